#include "Gallery.h"

#include <QPixmap>

#include "CardSheet.h"

namespace kv {
namespace {

constexpr int kLightStep = 400;  // milliseconds: a turn light well on its way

}  // namespace

Gallery::Gallery(std::string folder, std::string style, int scale)
    : folder_(std::move(folder)), style_(std::move(style)), scale_(scale) {}

std::vector<std::string> Gallery::Render() {
  MatchStart();
  MatchTurn();
  MatchOpponent();
  MatchSetWon();
  MatchWon();
  MatchNetwork();
  Cards();
  return failed_;
}

test::MatchScreenSetup Gallery::Setup(std::vector<int> draws) const {
  test::MatchScreenSetup setup;
  setup.style = style_;
  setup.draws = std::move(draws);
  setup.hand = {"ps3", "fm2", "s1-1", "s51"};
  setup.pixelRatio = scale_;
  return setup;
}

void Gallery::Save(QWidget& screen, const std::string& name) {
  QCoreApplication::processEvents();
  const std::string file = style_ + "-" + name + "@" + std::to_string(scale_) + ".png";
  if (!screen.grab().save(QString::fromStdString(folder_ + "/" + file))) failed_.push_back(file);
}

void Gallery::MatchStart() {
  test::MatchScreen match(Setup({7}));
  match.screen->Open();
  match.scheduler.Advance(20);
  Save(*match.screen, "match-start");
}

void Gallery::MatchTurn() {
  test::MatchScreen match(Setup({4, 6, 2, 8, 3}));
  match.Begin();
  for (const char* code : {"ps6", "pi4", "s300"}) match.engine().LoadNextCard(CardCode(code), false);
  match.engine().EndTurn();
  match.Settle();
  match.engine().EndTurn();
  match.Settle();
  match.scheduler.Advance(kLightStep);
  Save(*match.screen, "match-turn");
}

void Gallery::MatchOpponent() {
  test::MatchScreen match(Setup({9, 8, 6, 5}));
  match.strategy.turns.assign(2, [](AiOperations& side) { side.AI_PlayCard(2); });
  match.Begin();
  match.engine().PlayHandCard(1);
  match.engine().EndTurn();
  match.Settle();
  Save(*match.screen, "match-opponent");
}

void Gallery::MatchSetWon() {
  test::MatchScreen match(Setup({10, 7, 9, 10}));
  match.strategy.turns.assign(2, [](AiOperations& side) { side.AI_Stand(); });
  match.Begin();
  match.engine().EndTurn();
  match.Settle();
  match.engine().Stand();
  match.Settle();
  Save(*match.screen, "match-set-won");
}

void Gallery::MatchWon() {
  test::MatchScreen match(Setup({10, 7}));
  match.Begin();
  match.engine().OppForfeit();
  match.Settle();
  Save(*match.screen, "match-won");
}

void Gallery::MatchNetwork() {
  test::MatchScreenSetup setup = Setup({});
  setup.mode = std::string(kModeNetwork);
  test::MatchScreen match(setup);
  match.Begin();
  Save(*match.screen, "match-network");
}

void Gallery::Cards() {
  test::MatchScreen match(Setup({}));
  CardSheet sheet(match.globals);
  sheet.show();
  Save(sheet, "cards");
}

}  // namespace kv
