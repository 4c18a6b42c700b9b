#include "match/SideOperations.h"

#include "ai/HandSearch.h"
#include "match/MatchEngine.h"

namespace kv {

void SideOperations::Ask(Strategy& strategy) {
  const MatchSide& own = engine_.shown().side(seat_);
  const MatchSide& other = engine_.shown().side(seat_ == Seat::Player ? Seat::Opponent : Seat::Player);
  epoch_ = engine_.pauses().epoch();
  runs_ = true;
  strategy.AI(*this, own.total, other.total, other.setWins, own.setWins, other.stood, own.stood);
  runs_ = false;
}

int SideOperations::AI_CardCount() const {
  return CountHand(engine_.board().hand(seat_));
}

int SideOperations::AI_FindCard(int change) {
  const MatchSide& side = engine_.shown().side(seat_);
  return FindHandCard(engine_.board().hand(seat_), side.table, side.total, change);
}

int SideOperations::AI_FindCardType(std::string_view type) const {
  return FindHandType(engine_.board().hand(seat_), type);
}

int SideOperations::AI_TestInvert(int a, int b) const {
  return TestInvert(engine_.shown().Table(seat_), Total(), a, b);
}

int SideOperations::Total() const {
  return engine_.shown().Total(seat_);
}

int SideOperations::TableCount() const {
  return static_cast<int>(engine_.shown().Table(seat_).size());
}

void SideOperations::SetHandCode(int slot, const CardCode& code) {
  engine_.board().hand(seat_).setValue(slot, code);
}

bool SideOperations::mayAct() const {
  return !engine_.pauses().closed() && (!runs_ || epoch_ == engine_.pauses().epoch());
}

void SideOperations::AI_PlayCard(int slot) {
  if (slot < 1 || slot > kHandSize || !mayAct() || TableCount() == kTableSize) return;
  if (seat_ == Seat::Player) {
    engine_.person().PlayHandCard(slot);
  } else {
    engine_.peer().AI_PlayCard(slot);
  }
}

void SideOperations::AI_EndTurn() {
  if (!mayAct()) return;
  if (seat_ == Seat::Player) {
    engine_.person().EndTurn();
  } else {
    engine_.peer().AI_EndTurn();
  }
}

void SideOperations::AI_Stand() {
  if (!mayAct()) return;
  if (seat_ == Seat::Player) {
    engine_.person().Stand();
  } else {
    engine_.peer().AI_Stand();
  }
}

}  // namespace kv
