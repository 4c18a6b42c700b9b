// The match in its typical moments, and the sheet of all cards.
#include "CardSheet.h"
#include "Gallery.h"
#include "support/MatchScreen.h"

namespace kv {
namespace {

constexpr int kLightStep = 400;  // milliseconds: a turn light well on its way

test::MatchScreenSetup Setup(const Gallery& gallery, std::vector<int> draws) {
  test::MatchScreenSetup setup;
  setup.style = gallery.style();
  setup.draws = std::move(draws);
  setup.hand = {"ps3", "fm2", "s1-1", "s51"};
  setup.pixelRatio = gallery.scale();
  return setup;
}

void Start(Gallery& gallery) {
  test::MatchScreen match(Setup(gallery, {7}));
  match.screen->Open();
  match.scheduler.Advance(20);
  gallery.Save(*match.screen, "match-start");
}

void Turn(Gallery& gallery) {
  test::MatchScreen match(Setup(gallery, {4, 6, 2, 8, 3}));
  match.Begin();
  for (const char* code : {"ps6", "pi4", "s300"}) match.engine().board().LoadNextCard(CardCode(code), false);
  match.engine().person().EndTurn();
  match.Settle();
  match.engine().person().EndTurn();
  match.Settle();
  match.scheduler.Advance(kLightStep);
  gallery.Save(*match.screen, "match-turn");
}

void OpponentsTurn(Gallery& gallery) {
  test::MatchScreen match(Setup(gallery, {9, 8, 6, 5}));
  match.strategy.turns.assign(2, [](AiOperations& side) { side.AI_PlayCard(2); });
  match.Begin();
  match.engine().person().PlayHandCard(1);
  match.engine().person().EndTurn();
  match.Settle();
  gallery.Save(*match.screen, "match-opponent");
}

void SetWon(Gallery& gallery) {
  test::MatchScreen match(Setup(gallery, {10, 7, 9, 10}));
  match.strategy.turns.assign(2, [](AiOperations& side) { side.AI_Stand(); });
  match.Begin();
  match.engine().person().EndTurn();
  match.Settle();
  match.engine().person().Stand();
  match.Settle();
  gallery.Save(*match.screen, "match-set-won");
}

void Won(Gallery& gallery) {
  test::MatchScreen match(Setup(gallery, {10, 7}));
  match.Begin();
  match.engine().peer().OppForfeit();
  match.Settle();
  gallery.Save(*match.screen, "match-won");
}

/// Long names, and no portraits.
void Plain(Gallery& gallery) {
  test::MatchScreenSetup setup = Setup(gallery, {7});
  setup.options = [](clsPlayer& player) {
    player.Name = "Alexandra Hohenstein";
    player.ShowPortrait_Opt = false;
  };
  setup.opponent = "WWWWWWWWWWWWWWWWWWWW";
  test::MatchScreen match(setup);
  match.Begin();
  gallery.Save(*match.screen, "match-plain");
}

/// A newcomer's first match: the offer, and the two longest hints.
void Newcomer(Gallery& gallery) {
  test::MatchScreenSetup setup = Setup(gallery, {9, 8, 7, 5, 8});
  setup.newcomer = true;
  test::MatchScreen match(setup);
  match.Begin();
  gallery.Save(*match.screen, "match-offer");
  match.screen->guide()->Key(Qt::Key_F5);
  gallery.Save(*match.screen, "match-hint-turn");
  match.engine().person().EndTurn();
  match.Settle();
  gallery.Save(*match.screen, "match-hint-card");
  match.engine().person().EndTurn();
  match.Settle();
  gallery.Save(*match.screen, "match-hint-sign");
}

void Network(Gallery& gallery) {
  test::MatchScreenSetup setup = Setup(gallery, {});
  setup.mode = std::string(kModeNetwork);
  test::MatchScreen match(setup);
  match.Begin();
  gallery.Save(*match.screen, "match-network");
}

void Cards(Gallery& gallery) {
  test::MatchScreen match(Setup(gallery, {}));
  CardSheet sheet(match.globals);
  sheet.show();
  gallery.Save(sheet, "cards");
}

}  // namespace

void RenderMatch(Gallery& gallery) {
  for (const auto& picture : {Start, Turn, OpponentsTurn, SetWon, Won, Plain, Newcomer, Network, Cards})
    picture(gallery);
}

}  // namespace kv
