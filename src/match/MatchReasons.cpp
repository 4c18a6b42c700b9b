#include "match/MatchReasons.h"

#include <cstdlib>

#include "match/MatchSentences.h"

namespace kv {
namespace {

/// The stake left the credits before the match, so a win brings it back before it brings anything.
std::string CreditsText(const event::Booked& booked) {
  const std::int64_t change = std::int64_t{booked.after} - booked.before - booked.stake;
  if (change == 0) return {};
  const std::int64_t size = std::abs(change);
  return (change < 0 ? "-" : "+") + std::to_string(size) + (size == 1 ? " credit" : " credits");
}

}  // namespace

void MatchReasons::Happened(const MatchEvent& event) {
  std::visit([this](const auto& each) { Tell(each); }, event);
}

std::string MatchReasons::text() const {
  std::string text;
  for (const std::string* part : {&reason_, &credits_, &progress_}) {
    if (!part->empty()) text += (text.empty() ? "" : "; ") + *part;
  }
  return text;
}

void MatchReasons::Tell(const event::MatchBegun& begun) {
  opponent_ = begun.opponent.empty() ? "the opponent" : begun.opponent;
}

void MatchReasons::Tell(const event::SetBegun&) {
  reason_.clear();
}

void MatchReasons::Tell(const event::SetDecided& decided) {
  reason_ = ReasonText(decided);
}

void MatchReasons::Tell(const event::Booked& booked) {
  credits_ = CreditsText(booked);
  progress_ = booked.result == event::Result::Won ? booking_.Progress() : std::string();
}

void MatchReasons::Tell(const event::Forfeited& forfeited) {
  reason_ = (forfeited.seat == Seat::Player ? "you" : opponent_) + " gave up";
}

void MatchReasons::Tell(const event::PeerGone&) {
  reason_ = opponent_ + " has left";
}

}  // namespace kv
