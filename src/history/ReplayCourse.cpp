#include "history/ReplayCourse.h"

#include <algorithm>
#include <utility>

#include "match/MatchSentences.h"

namespace kv {
namespace {

/// Of a step that is told only with the rest of its turn.
std::string PartOfTurn(const MatchEvent& event, const std::string& opponent) {
  if (const auto* drew = std::get_if<event::Drew>(&event)) {
    return opponent + " draws " + CardWords(drew->card) + ", total " + std::to_string(drew->total) + ".";
  }
  if (const auto* played = std::get_if<event::Played>(&event)) {
    return opponent + " plays " + CardWords(played->card) + ", total " + std::to_string(played->total) + ".";
  }
  return {};
}

}  // namespace

ReplayCourse::ReplayCourse(const MatchRecord& record) {
  std::string told;
  MatchSentences sentences([&](const std::string& each) { told += (told.empty() ? "" : " ") + each; });
  const std::string opponent = record.opponent.empty() ? "The opponent" : record.opponent;
  for (ReplayStep& step : StepsOf(record)) {
    told.clear();
    sentences.Happened(step.event);
    if (told.empty()) told = PartOfTurn(step.event, opponent);
    if (told.empty()) continue;  // a booking that changed nothing
    if (std::holds_alternative<event::SetBegun>(step.event)) beginnings_.push_back(steps_.size());
    steps_.push_back(std::move(step));
    sentences_.push_back(told);
  }
}

std::optional<Seat> ReplayCourse::turn() const {
  for (std::size_t i = at_ + 1; i > 0; --i) {
    const MatchEvent& event = steps_.at(i - 1).event;
    if (const auto* drew = std::get_if<event::Drew>(&event)) return drew->seat;
    const bool within =
        std::holds_alternative<event::Played>(event) || std::holds_alternative<event::Flipped>(event);
    if (!within) return {};
  }
  return {};
}

void ReplayCourse::GoTo(std::size_t step) {
  at_ = steps_.empty() ? 0 : std::min(step, steps_.size() - 1);
}

bool ReplayCourse::BeginsSet(std::size_t step) const {
  return std::binary_search(beginnings_.begin(), beginnings_.end(), step);
}

std::size_t ReplayCourse::set() const {
  const auto begun = std::upper_bound(beginnings_.begin(), beginnings_.end(), at_);
  return static_cast<std::size_t>(begun - beginnings_.begin());
}

void ReplayCourse::GoToSet(std::size_t set) {
  if (set >= 1 && set <= sets()) GoTo(beginnings_[set - 1]);
}

void ReplayCourse::NextSet() {
  do {
    Forth();
  } while (!AtEnd() && !BeginsSet(at_));
}

void ReplayCourse::SetBefore() {
  do {
    Back();
  } while (!AtStart() && !BeginsSet(at_));
}

}  // namespace kv
