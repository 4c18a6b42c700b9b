#include "history/MatchRecorder.h"

#include <utility>

namespace kv {
namespace {

constexpr std::size_t kUsualMoves = 24;  // of one set

}  // namespace

void MatchRecorder::Happened(const MatchEvent& event) {
  std::visit([this](const auto& each) { Note(each); }, event);
}

void MatchRecorder::Add(RecordedMove move) {
  if (full_ || record_.sets.empty()) return;
  auto& moves = record_.sets.back().moves;
  const std::size_t most = move.kind == MoveKind::Flip ? kMostRecordedFlips : kMostRecordedMoves;
  if (moves.size() < most && move.card.text().size() <= kMostRecordedCode) moves.push_back(std::move(move));
}

void MatchRecorder::Note(const event::MatchBegun& begun) {
  record_.opponent = begun.opponent;
  record_.stake = begun.stake;
  for (std::size_t seat = 0; seat < record_.hands.size(); ++seat) {
    for (int slot = 1; slot <= kHandSize; ++slot) {
      record_.hands.at(seat).at(static_cast<std::size_t>(slot) - 1) = begun.hands.at(seat).Value(slot);
    }
  }
}

void MatchRecorder::Note(const event::SetBegun& begun) {
  full_ = record_.sets.size() >= kMostRecordedSets;
  if (full_) return;
  record_.sets.push_back({begun.starts, {}, {}});
  record_.sets.back().moves.reserve(kUsualMoves);
}

void MatchRecorder::Note(const event::Drew& drew) {
  Add({MoveKind::Draw, drew.seat, 0, drew.card});
}

void MatchRecorder::Note(const event::Flipped& flipped) {
  Add({MoveKind::Flip, Seat::Player, flipped.slot, flipped.card});
}

void MatchRecorder::Note(const event::Played& played) {
  Add({MoveKind::Play, played.seat, played.slot, played.card});
}

void MatchRecorder::Note(const event::EndedTurn& ended) {
  Add({MoveKind::End, ended.seat, 0, {}});
}

void MatchRecorder::Note(const event::Stood& stood) {
  Add({MoveKind::Stand, stood.seat, 0, {}});
}

void MatchRecorder::Note(const event::SetDecided& decided) {
  if (full_ || record_.sets.empty()) return;
  record_.sets.back().result = {decided.decision.rule, decided.decision.closing, decided.totals};
}

void MatchRecorder::Note(const event::MatchDecided& decided) {
  record_.winner = decided.winner;
  record_.setWins = decided.setWins;
  if (record_.ending == MatchEnding::Left) record_.ending = MatchEnding::ThreeSets;
}

void MatchRecorder::Note(const event::Booked& booked) {
  record_.stake = booked.stake;
  record_.booking = {booked.result, booked.before, booked.after};
  if (booked_) booked_(record_);
}

void MatchRecorder::Note(const event::Forfeited& forfeited) {
  record_.ending = MatchEnding::GivenUp;
  record_.givenUpBy = forfeited.seat;
}

void MatchRecorder::Note(const event::PeerGone&) {
  record_.ending = MatchEnding::PeerGone;
}

}  // namespace kv
