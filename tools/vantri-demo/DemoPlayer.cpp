#include "DemoPlayer.h"

namespace kv {
namespace {

constexpr int kStandstill = 15000;  // milliseconds without anything to do
constexpr int kLaterTurn = 4;       // a turn with something on the table
constexpr int kGoodTotal = 17;      // stand from here on
constexpr int kWorthACard = 18;     // a hand card must reach at least this
constexpr Qt::Key kPlayKeys[] = {Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4};

}  // namespace

DemoPlayer::DemoPlayer(DemoPerson& person)
    : person_(person),
      screen_(*person.program().screenAs<frmGame>()),
      game_(*person.program().game()),
      hand_(screen_) {}

void DemoPlayer::PlayMatch() {
  for (int idle = 0; idle < kStandstill; idle += kLookInterval) {
    if (screen_.cmdTurn().Enabled()) {
      TakeTurn();
      idle = 0;
    } else if (screen_.banner().isVisible()) {
      if (game_.Wager == -1) return;
      if (!setSeen_) person_.TakePicture("set");
      setSeen_ = true;
      Continue();
      idle = 0;
    }
    person_.Wait(kLookInterval);
  }
  throw DemoFailure("the match has come to a standstill");
}

int DemoPlayer::Total(Seat seat) {
  return screen_.side(seat).lblTotal().text().toInt();
}

void DemoPlayer::TakeTurn() {
  ++turn_;
  if (turn_ == 1 || turn_ == kLaterTurn) person_.TakePicture("turn");
  UseHand();
  if (!screen_.cmdTurn().Enabled()) return;  // exactly 20: the turn is over
  const bool stand = Total(Seat::Player) >= kGoodTotal;
  // Mouse and keys by turns, so that both are seen to work.
  if (turn_ % 2 == 0) {
    hand_.Key(stand ? Qt::Key_Tab : Qt::Key_Space);
  } else {
    hand_.Click(stand ? screen_.cmdStand() : screen_.cmdTurn());
  }
}

void DemoPlayer::UseHand() {
  const int total = Total(Seat::Player);
  const int slot = HandCardFor(total);
  if (slot != 0) {
    PlayCard(slot);
    return;
  }
  // A look at what a flip card could be, and back again.
  for (int i = 1; i <= kHandSize; ++i) {
    if (!screen_.hand().imgFlip(i).isVisible()) continue;
    hand_.Click(screen_.hand().imgFlip(i));
    const int flipped = HandCardFor(total);
    if (flipped == i) {
      PlayCard(i);
      return;
    }
    hand_.Click(screen_.hand().imgFlip(i));
  }
}

int DemoPlayer::HandCardFor(int total) const {
  int best = 0;
  int bestTotal = total > 20 ? 0 : std::max(total, kWorthACard - 1);
  for (int slot = 1; slot <= kHandSize; ++slot) {
    const ctlCard& card = screen_.hand().ctlYourDeck(slot);
    if (!card.isVisible() || !card.Enabled() || card.Caption().contains(u'&') || card.Caption() == u"D")
      continue;
    const int reached = total + card.cardValue;
    if (reached > 20 || reached <= bestTotal) continue;
    best = slot;
    bestTotal = reached;
  }
  return best;
}

void DemoPlayer::PlayCard(int slot) {
  const ctlCard& card = screen_.hand().ctlYourDeck(slot);
  if (turn_ % 3 == 0) {
    hand_.Key(kPlayKeys[slot - 1]);
  } else if (turn_ % 3 == 1) {
    hand_.DoubleClick(card);
  } else {
    const MatchGrid& grid = kMatchGrids.at(static_cast<std::size_t>(screen_.StyleIndex()));
    const QPoint table(qRound((grid.dropLeft + grid.dropRight) / 2),
                       qRound((grid.dropTop + grid.dropBottom) / 2));
    hand_.Drag(card, {4, 4}, table - card.rect().center());
  }
  person_.Wait(kLookInterval);
  if (!cardSeen_) person_.TakePicture("card");
  cardSeen_ = true;
}

void DemoPlayer::Continue() {
  if (turn_ % 2 == 0) {
    hand_.Key(Qt::Key_Return);
  } else {
    hand_.Click(screen_.banner().cmdBust());
  }
}

}  // namespace kv
