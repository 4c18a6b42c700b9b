#include "match/SideOperations.h"

#include "ai/HandSearch.h"
#include "match/MatchEngine.h"

namespace kv {
namespace {

constexpr int kPlayedCardPause = 175;  // milliseconds, so that the move can be seen

}  // namespace

int SideOperations::AI_CardCount() const {
  return CountHand(*engine_.side(seat_).hand);
}

int SideOperations::AI_FindCard(int change) {
  MatchEngine::Side& side = engine_.side(seat_);
  return FindHandCard(*side.hand, side.table, side.total, change);
}

int SideOperations::AI_FindCardType(std::string_view type) const {
  return FindHandType(*engine_.side(seat_).hand, type);
}

int SideOperations::AI_TestInvert(int a, int b) const {
  return TestInvert(engine_.Table(seat_), engine_.Total(seat_), a, b);
}

int SideOperations::Total() const {
  return engine_.Total(seat_);
}

int SideOperations::TableCount() const {
  return static_cast<int>(engine_.Table(seat_).size());
}

void SideOperations::SetHandCode(int slot, const CardCode& code) {
  engine_.side(seat_).hand->setValue(slot, code);
}

bool SideOperations::mayAct() const {
  return !engine_.closed_ && (!engine_.strategyRuns_ || engine_.strategyEpoch_ == engine_.epoch_);
}

void SideOperations::AI_PlayCard(int slot) {
  if (slot < 1 || slot > kHandSize || !mayAct() || TableCount() == kTableSize) return;
  if (seat_ == Seat::Player) {
    engine_.PlayHandCard(slot);
    return;
  }
  const CardCode code = engine_.HandCard(seat_, slot);
  if (IsEmptySlot(code)) return;
  engine_.view_.PlaySound("playcard");
  engine_.EmptyHandSlot(seat_, slot);
  engine_.PlayCard(code, true);
  // A pause cut short needs no answer here: the calls that follow find that they may not act any more.
  static_cast<void>(engine_.Wait(kPlayedCardPause));
}

void SideOperations::AI_EndTurn() {
  if (!mayAct()) return;
  if (seat_ == Seat::Player) {
    engine_.EndTurn();
    return;
  }
  engine_.SettleBust(seat_);
  engine_.OppEndTurn();
}

void SideOperations::AI_Stand() {
  if (!mayAct()) return;
  if (seat_ == Seat::Player) {
    engine_.Stand();
    return;
  }
  engine_.SettleBust(seat_);
  engine_.OppStand();
}

}  // namespace kv
