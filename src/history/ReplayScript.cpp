#include "history/ReplayScript.h"

namespace kv {

const RecordedMove* ReplayScript::Next() const {
  const auto& moves = set().moves;
  return stopped() || move_ == moves.size() ? nullptr : &moves[move_];
}

const RecordedMove* ReplayScript::Next(MoveKind kind) const {
  const RecordedMove* next = Next();
  return next != nullptr && next->kind == kind ? next : nullptr;
}

bool ReplayScript::NextSet() {
  if (set_ + 1 >= record_.sets.size()) return false;
  // Whatever is left of a set that is over cannot have happened.
  if (Next() != nullptr) Fail();
  ++set_;
  move_ = 0;
  return !failed_;
}

bool ReplayScript::atEnd() const {
  return Next() == nullptr && !set().result;
}

bool ReplayScript::Take(const MatchEvent& event) {
  if (atEnd() && record_.ending != MatchEnding::ThreeSets &&
      !std::holds_alternative<event::MatchBegun>(event) && !std::holds_alternative<event::SetBegun>(event)) {
    cut_ = true;
    return false;
  }
  const bool fits = std::visit([this](const auto& each) { return Fits(each); }, event);
  if (!fits) Fail();
  return fits;
}

bool ReplayScript::FitsMove(const RecordedMove& move) {
  const RecordedMove* next = Next();
  if (next == nullptr || !(*next == move)) return false;
  ++move_;
  asked_ = 0;
  return true;
}

bool ReplayScript::Fits(const event::SetBegun& begun) {
  return begun.starts == set().starts;
}
bool ReplayScript::Fits(const event::Drew& drew) {
  return FitsMove({MoveKind::Draw, drew.seat, 0, drew.card});
}
bool ReplayScript::Fits(const event::Flipped& flipped) {
  return FitsMove({MoveKind::Flip, Seat::Player, flipped.slot, flipped.card});
}
bool ReplayScript::Fits(const event::Played& played) {
  return FitsMove({MoveKind::Play, played.seat, played.slot, played.card});
}
bool ReplayScript::Fits(const event::EndedTurn& ended) {
  ++turns_;
  return FitsMove({MoveKind::End, ended.seat, 0, {}});
}
bool ReplayScript::Fits(const event::Stood& stood) {
  ++turns_;
  return FitsMove({MoveKind::Stand, stood.seat, 0, {}});
}
bool ReplayScript::Fits(const event::SetDecided& decided) {
  return set().result == RecordedResult{decided.decision.rule, decided.decision.closing, decided.totals};
}

double ReplayScript::Rnd() {
  const RecordedMove* next = Next(MoveKind::Draw);
  int value = next == nullptr ? 0 : next->card.number();
  // A card that the main deck has no more of is not drawn: the engine asks again, and some other card ends
  // the script.
  if (value < 1 || value > 10 || asked_ > 0) value = static_cast<int>(asked_ % 10) + 1;
  ++asked_;
  return (value - 0.5) / 10;
}

void ScriptedSide::AI(AiOperations& side, int, int, int, int, bool, bool) {
  while (Move(side)) continue;
}

bool ScriptedSide::Move(AiOperations& side) {
  actions_.Flip();
  const RecordedMove* move = script_.Next();
  if (move == nullptr) {
    if (!script_.atEnd()) script_.Fail();
    return false;
  }
  if (move->seat != seat_ || move->kind == MoveKind::Draw ||
      (move->kind == MoveKind::Play && !IsHandSlot(move->slot))) {
    script_.Fail();
    return false;
  }
  if (move->kind == MoveKind::End) side.AI_EndTurn();
  if (move->kind == MoveKind::Stand) side.AI_Stand();
  if (move->kind != MoveKind::Play) return false;
  const int turns = script_.turns();
  side.SetHandCode(move->slot, move->card);
  side.AI_PlayCard(move->slot);
  if (script_.Next() == move) script_.Fail();
  return !script_.stopped() && script_.turns() == turns;
}

}  // namespace kv
