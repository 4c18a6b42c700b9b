#include "history/MatchRecorder.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace kv {
namespace {

constexpr std::size_t kUsualMoves = 256;  // of a match
constexpr std::size_t kUsualSets = 12;

}  // namespace

void MatchRecorder::Happened(const MatchEvent& event) {
  std::visit([this](const auto& each) { Note(each); }, event);
}

MatchRecorder::MatchRecorder(MatchRecord head, Booked booked)
    : record_(std::move(head)), booked_(std::move(booked)) {
  moves_.reserve(kUsualMoves);
  sets_.reserve(kUsualSets);
}

MatchRecord MatchRecorder::record() const {
  MatchRecord record = record_;
  for (std::size_t i = 0; i < sets_.size(); ++i) {
    const std::size_t end = i + 1 < sets_.size() ? sets_[i + 1].first : moves_.size();
    RecordedSet& set = record.sets.emplace_back(RecordedSet{sets_[i].starts, {}, sets_[i].result});
    set.moves.reserve(end - sets_[i].first);
    std::copy_if(moves_.begin() + static_cast<std::ptrdiff_t>(sets_[i].first),
                 moves_.begin() + static_cast<std::ptrdiff_t>(end), std::back_inserter(set.moves),
                 [](const RecordedMove& each) { return each.card.text().size() <= kMostRecordedCode; });
  }
  return record;
}

void MatchRecorder::Add(MoveKind kind, Seat seat, int slot, const CardCode& card) {
  if (full_ || sets_.empty()) return;
  const std::size_t most = kind == MoveKind::Flip ? kMostRecordedFlips : kMostRecordedMoves;
  if (moves_.size() - sets_.back().first < most) moves_.push_back({kind, seat, slot, card});
}

void MatchRecorder::Note(const event::MatchBegun& begun) {
  moves_.clear();
  sets_.clear();
  record_.ending = MatchEnding::Left;
  record_.winner.reset();
  record_.booking.reset();
  record_.opponent = begun.opponent;
  record_.stake = begun.stake;
  record_.hands = begun.hands;
}

void MatchRecorder::Note(const event::SetBegun& begun) {
  full_ = sets_.size() >= kMostRecordedSets;
  if (!full_) sets_.push_back({begun.starts, moves_.size(), {}});
}

void MatchRecorder::Note(const event::Drew& drew) {
  Add(MoveKind::Draw, drew.seat, 0, drew.card);
}

void MatchRecorder::Note(const event::Flipped& flipped) {
  Add(MoveKind::Flip, Seat::Player, flipped.slot, flipped.card);
}

void MatchRecorder::Note(const event::Played& played) {
  Add(MoveKind::Play, played.seat, played.slot, played.card);
}

void MatchRecorder::Note(const event::EndedTurn& ended) {
  Add(MoveKind::End, ended.seat, 0, {});
}

void MatchRecorder::Note(const event::Stood& stood) {
  Add(MoveKind::Stand, stood.seat, 0, {});
}

void MatchRecorder::Note(const event::SetDecided& decided) {
  if (full_ || sets_.empty()) return;
  sets_.back().result = {decided.decision.rule, decided.decision.closing, decided.totals};
}

void MatchRecorder::Note(const event::MatchDecided& decided) {
  record_.winner = decided.winner;
  record_.setWins = decided.setWins;
  if (record_.ending == MatchEnding::Left) record_.ending = MatchEnding::ThreeSets;
}

void MatchRecorder::Note(const event::Booked& booked) {
  record_.stake = booked.stake;
  record_.booking = {booked.result, booked.before, booked.after};
  if (booked_) booked_(record());
}

void MatchRecorder::Note(const event::Forfeited& forfeited) {
  record_.ending = MatchEnding::GivenUp;
  record_.givenUpBy = forfeited.seat;
}

void MatchRecorder::Note(const event::PeerGone&) {
  record_.ending = MatchEnding::PeerGone;
}

}  // namespace kv
