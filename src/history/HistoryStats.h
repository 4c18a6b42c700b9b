// What many matches say together: totals, streaks, win rates with their intervals, credits over time. Plain
// functions over the lines of a history, which are ordered from the newest to the oldest. Matches of somebody
// else, which were imported, are listed and never counted.
#pragma once

#include <string>
#include <vector>

#include "history/MatchLine.h"
#include "platform/Interval.h"

namespace kv {

/// What is not set lets every match through.
struct MatchFilter {
  std::optional<std::string> mode;
  std::optional<std::string> opponent;
  std::optional<MatchOutcome> outcome;
};
[[nodiscard]] std::vector<MatchLine> Filtered(const std::vector<MatchLine>& lines, const MatchFilter& filter);

struct MatchTotals {
  int matches = 0;
  int won = 0;
  int lost = 0;
  int longestWins = 0;  // one after the other, whatever was broken off in between
  int longestLosses = 0;
  [[nodiscard]] Interval interval() const { return WilsonInterval(won, won + lost); }
};
[[nodiscard]] MatchTotals TotalsOf(const std::vector<MatchLine>& lines);

/// Won and played, of the matches that were won or lost.
struct WinRate {
  std::string what;
  int won = 0;
  int played = 0;
  [[nodiscard]] double rate() const { return played == 0 ? 0 : static_cast<double>(won) / played; }
  [[nodiscard]] Interval interval() const { return WilsonInterval(won, played); }
};
enum class RateBy : std::uint8_t { Opponent, Deck, Style, Card };
/// How the person looks at the list: kept while a match of it is reviewed or played again.
struct RecordLook {
  MatchFilter filter;
  RateBy rates = RateBy::Opponent;
  std::int64_t match = 0;  // that was chosen; 0: none
};

/// In words of the screens, the most played first; cards: those that win most first, by the interval's lower
/// end.
[[nodiscard]] std::vector<WinRate> RatesBy(RateBy by, const std::vector<MatchLine>& lines);

struct CreditPoint {
  std::int64_t time = 0;
  std::int32_t credits = 0;
};
/// After each match that was booked for credits, from the oldest to the newest.
[[nodiscard]] std::vector<CreditPoint> CreditsOverTime(const std::vector<MatchLine>& lines);

}  // namespace kv
