#include "history/HistoryStats.h"

#include <algorithm>
#include <map>

#include "history/HistoryWords.h"
#include "history/RecordWords.h"
#include "match/clsGame.h"

namespace kv {
namespace {

bool Counts(const MatchLine& line) {
  return !line.imported && (line.outcome == MatchOutcome::Won || line.outcome == MatchOutcome::Lost);
}

template <typename Each>
void EachKey(RateBy by, const MatchLine& line, const Each& each) {
  switch (by) {
    case RateBy::Opponent:
      each(line.opponent);
      break;
    case RateBy::Deck:
      each(line.deck);
      break;
    case RateBy::Style:
      each(std::string(StyleText(line.style)));
      break;
    case RateBy::Card:
      for (std::string_view rest = line.cards; !rest.empty();) each(std::string(words::Cut(rest, " ")));
      break;
  }
}

std::string Named(RateBy by, const std::string& key) {
  if (by == RateBy::Deck) return DeckText(key);
  return by == RateBy::Card ? CardText(CardCode(key)) : key;
}

}  // namespace

std::vector<MatchLine> Filtered(const std::vector<MatchLine>& lines, const MatchFilter& filter) {
  std::vector<MatchLine> some;
  std::copy_if(lines.begin(), lines.end(), std::back_inserter(some), [&](const MatchLine& line) {
    return (!filter.mode || line.mode == *filter.mode) &&
           (!filter.opponent || line.opponent == *filter.opponent) &&
           (!filter.outcome || line.outcome == *filter.outcome);
  });
  return some;
}

MatchTotals TotalsOf(const std::vector<MatchLine>& lines) {
  MatchTotals totals;
  int wins = 0;
  int losses = 0;
  for (const MatchLine& line : lines) {
    if (!line.imported) ++totals.matches;
    if (!Counts(line)) continue;
    const bool won = line.outcome == MatchOutcome::Won;
    ++(won ? totals.won : totals.lost);
    wins = won ? wins + 1 : 0;
    losses = won ? 0 : losses + 1;
    totals.longestWins = std::max(totals.longestWins, wins);
    totals.longestLosses = std::max(totals.longestLosses, losses);
  }
  return totals;
}

std::vector<WinRate> RatesBy(RateBy by, const std::vector<MatchLine>& lines) {
  std::map<std::string, WinRate> found;
  for (const MatchLine& line : lines) {
    if (!Counts(line)) continue;
    EachKey(by, line, [&](const std::string& key) {
      WinRate& rate = found[key];
      ++rate.played;
      if (line.outcome == MatchOutcome::Won) ++rate.won;
    });
  }
  std::vector<WinRate> rates;
  for (auto& [key, rate] : found) {
    rate.what = Named(by, key);
    rates.push_back(std::move(rate));
  }
  std::stable_sort(rates.begin(), rates.end(), [by](const WinRate& a, const WinRate& b) {
    return by == RateBy::Card ? a.interval().low > b.interval().low : a.played > b.played;
  });
  return rates;
}

std::vector<CreditPoint> CreditsOverTime(const std::vector<MatchLine>& lines) {
  std::vector<CreditPoint> points;
  for (const MatchLine& line : lines) {
    if (!line.imported && line.after && line.mode != kModeNetworkArcade)
      points.push_back({line.time, *line.after});
  }
  std::reverse(points.begin(), points.end());
  return points;
}

}  // namespace kv
