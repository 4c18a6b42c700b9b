#include "DemoPlayer.h"

#include <QPixmap>
#include <iostream>

namespace kv {
namespace {

constexpr int kLookInterval = 40;   // milliseconds between two looks at the screen
constexpr int kStandstill = 15000;  // milliseconds without anything to do
constexpr int kGoodTotal = 17;      // stand from here on
constexpr int kWorthACard = 18;     // a hand card must reach at least this
constexpr Qt::Key kPlayKeys[] = {Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4};

}  // namespace

DemoPlayer::DemoPlayer(frmGame& screen, const clsGame& game, Scheduler& scheduler, std::string folder)
    : screen_(screen), game_(game), scheduler_(scheduler), folder_(std::move(folder)), hand_(screen) {}

bool DemoPlayer::PlayMatch() {
  int idle = 0;
  while (idle < kStandstill) {
    if (screen_.cmdTurn().Enabled()) {
      TakeTurn();
      idle = 0;
    } else if (screen_.banner().isVisible()) {
      TakePicture(game_.Wager == -1 ? "result" : "set");
      if (game_.Wager == -1) return true;
      Continue();
      idle = 0;
    }
    Wait(kLookInterval);
    idle += kLookInterval;
  }
  return false;
}

void DemoPlayer::Wait(int milliseconds) {
  static_cast<void>(scheduler_.Pause(milliseconds, lifetime_));
}

int DemoPlayer::Total(Seat seat) {
  return screen_.side(seat).lblTotal().text().toInt();
}

void DemoPlayer::TakeTurn() {
  ++turn_;
  TakePicture("turn");
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
  Wait(kLookInterval);
  TakePicture("card");
}

void DemoPlayer::Continue() {
  if (turn_ % 2 == 0) {
    hand_.Key(Qt::Key_Return);
  } else {
    hand_.Click(screen_.banner().cmdBust());
  }
}

void DemoPlayer::TakePicture(const std::string& what) {
  ++pictures_;
  std::string number = std::to_string(pictures_);
  number.insert(0, number.size() < 2 ? 1 : 0, '0');
  const std::string path = folder_ + "/" + number + "-" + what + ".png";
  if (!screen_.grab().save(QString::fromStdString(path))) std::cerr << "cannot write " << path << "\n";
}

}  // namespace kv
