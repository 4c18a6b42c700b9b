// What moves in a match, as strips of pictures: sixteen a second, on a clock turned by hand.
#include <QLabel>

#include "Gallery.h"
#include "support/MatchScreen.h"

namespace kv {
namespace {

constexpr int kStep = 62;  // milliseconds between two pictures
constexpr int kColumns = 4;

/// Takes its pictures while the match goes on, also within its pauses.
class Strip {
 public:
  Strip(Gallery& gallery, test::MatchScreen& match, QRect part, int pictures, int step = kStep, int from = 0)
      : gallery_(gallery), match_(match), part_(part) {
    for (int i = 0; i < pictures; ++i) {
      match.scheduler.At(from + i * step + 1, [this] { pictures_.push_back(match_.screen->grab(part_)); });
    }
  }
  void Save(const std::string& name) {
    const int columns = std::min(kColumns, static_cast<int>(pictures_.size()));
    const int rows = (static_cast<int>(pictures_.size()) + columns - 1) / columns;
    QWidget sheet;
    sheet.setFixedSize(part_.width() * columns, part_.height() * rows);
    for (int i = 0; i < static_cast<int>(pictures_.size()); ++i) {
      auto* picture = new QLabel(&sheet);
      picture->setPixmap(pictures_.at(static_cast<std::size_t>(i)));
      picture->setGeometry(
          QRect(i % columns * part_.width(), i / columns * part_.height(), part_.width(), part_.height()));
    }
    gallery_.Save(sheet, name);
  }

 private:
  Gallery& gallery_;
  test::MatchScreen& match_;
  const QRect part_;
  std::vector<QPixmap> pictures_;
};

test::MatchScreenSetup MovingSetup(const Gallery& gallery, std::vector<int> draws) {
  test::MatchScreenSetup setup;
  setup.style = gallery.style();
  setup.draws = std::move(draws);
  setup.hand = {"ps3", "fm2", "s399", "s299"};
  setup.pixelRatio = gallery.scale();
  return setup;
}

/// Tables, totals and hands.
QRect Board(const Gallery& gallery) {
  return gallery.style() == "Ember" ? QRect(100, 70, 824, 540) : QRect(150, 110, 486, 380);
}

void Draws(Gallery& gallery) {
  test::MatchScreen match(MovingSetup(gallery, {7, 6, 4}));
  match.screen->Open();
  while (match.engine().shown().Table(Seat::Player).empty()) match.scheduler.Advance(10);
  Strip strip(gallery, match, Board(gallery), 8);
  match.Settle();
  strip.Save("motion-draw");
}

void Plays(Gallery& gallery) {
  test::MatchScreen match(MovingSetup(gallery, {9, 8, 6, 5}));
  match.strategy.turns.assign(2, [](AiOperations& side) { side.AI_PlayCard(1); });
  match.Begin();
  Strip strip(gallery, match, Board(gallery), 28);
  match.engine().person().PlayHandCard(1);
  match.scheduler.Advance(200);
  match.engine().person().EndTurn();
  match.Settle();
  strip.Save("motion-play");
}

void Flips(Gallery& gallery) {
  test::MatchScreen match(MovingSetup(gallery, {2, 8, 4, 5, 2, 6}));
  match.Begin();
  for (int turn = 0; turn < 2; ++turn) {
    match.engine().person().EndTurn();
    match.Settle();
  }
  Strip strip(gallery, match, Board(gallery), 20, 31);
  match.engine().person().FirstFlip(2);
  match.scheduler.Advance(250);
  match.engine().person().PlayHandCard(3);  // turns all twos and fours
  match.Settle();
  strip.Save("motion-flip");
}

void Doubles(Gallery& gallery) {
  test::MatchScreen match(MovingSetup(gallery, {4, 8}));
  match.Begin();
  Strip strip(gallery, match, Board(gallery), 8, 31);
  match.engine().person().PlayHandCard(4);
  match.Settle();
  strip.Save("motion-double");
}

void Busts(Gallery& gallery) {
  test::MatchScreen match(MovingSetup(gallery, {10, 3, 8, 4, 9}));
  match.Begin();
  for (int turn = 0; turn < 2; ++turn) {
    match.engine().person().EndTurn();
    match.Settle();
  }
  Strip strip(gallery, match, Board(gallery), 20, 31);
  match.engine().person().EndTurn();
  match.Settle();
  strip.Save("motion-bust");
}

void Twenty(Gallery& gallery) {
  test::MatchScreen match(MovingSetup(gallery, {10, 3, 10, 4}));
  match.strategy.turns = {[](AiOperations& side) { side.AI_EndTurn(); }, test::StandOpponent};
  match.Begin();
  const int draws = gallery.style() == "Ember" ? 740 : 1080;  // milliseconds until the player does
  Strip strip(gallery, match, Board(gallery), 20, 31, draws);
  match.engine().person().EndTurn();
  match.Settle();
  strip.Save("motion-twenty");
}

void Returns(Gallery& gallery) {
  test::MatchScreen match(MovingSetup(gallery, {10}));
  match.Begin();
  ctlCard& card = match.screen->hand().ctlYourDeck(2);
  card.MouseDown(Qt::LeftButton, {}, {5, 5});
  card.MouseMove(Qt::LeftButton, {}, {65, -75});
  Strip strip(gallery, match, Board(gallery), 8, 31);
  card.MouseUp(Qt::LeftButton, {}, {5, 5});
  match.Settle();
  strip.Save("motion-return");
}

/// A set is won, as so many were before it.
void Wins(Gallery& gallery, const std::string& name, int setsBefore, const std::string& mode, int best,
          bool unlocks = false) {
  test::MatchScreenSetup setup = MovingSetup(gallery, {});
  setup.mode = mode;
  setup.options = [best](clsPlayer& player) { player.Arcade_Best = best; };
  for (int set = 0; set <= setsBefore; ++set) {
    setup.draws.insert(setup.draws.end(), {10, 10, 9});
  }
  test::MatchScreen match(setup);
  match.strategy.turns.assign(3, test::StandOpponent);
  if (unlocks) match.game.CampaignWinRef = match.player.Tamsen_Wins;
  match.screen->Open();
  for (int set = 0; set <= setsBefore; ++set) {
    match.Settle();
    match.engine().person().EndTurn();
    match.Settle();
    match.engine().person().Stand();
    if (set == setsBefore) break;
    match.Settle();
    match.engine().Continue();
  }
  while (!match.engine().shown().banner.visible) match.scheduler.Advance(1);
  const QRect all(QPoint(0, 0), match.screen->size());
  Strip strip(gallery, match, all.adjusted(0, 30, 0, -all.height() / 3), 24);
  match.Settle();
  strip.Save(name);
}

}  // namespace

void RenderMotion(Gallery& gallery) {
  for (const auto& moves : {Draws, Plays, Flips, Doubles, Busts, Twenty, Returns}) moves(gallery);
  Wins(gallery, "motion-set-won", 0, std::string(kModeArcade), 5000);
  Wins(gallery, "motion-match-won", 2, std::string(kModeArcade), 5000);
  Wins(gallery, "motion-campaign-won", 2, std::string(kModeCampaign), 5000);
  Wins(gallery, "motion-unlocked", 2, std::string(kModeCampaign), 5000, true);
  Wins(gallery, "motion-high-score", 2, std::string(kModeArcade), -1);
}

}  // namespace kv
