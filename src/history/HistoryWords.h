// The words of the record screen and of its files.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "history/HistoryStats.h"

namespace kv {

[[nodiscard]] std::string_view OutcomeText(MatchOutcome outcome);
[[nodiscard]] std::string_view StyleText(EndStyle style);
/// "network arcade".
[[nodiscard]] std::string ModeText(std::string_view mode);
/// A card as its face reads: "+/-3".
[[nodiscard]] std::string CardText(const CardCode& card);
/// The cards of a deck, each once, with their numbers: "2x +3, +/-5".
[[nodiscard]] std::string DeckText(std::string_view codes);
/// "53 % (41 to 64 %)".
[[nodiscard]] std::string PercentText(double rate, const Interval& interval);
/// "won 3:1".
[[nodiscard]] std::string ResultText(const MatchLine& line);
/// A few lines: matches, win rate, streaks.
[[nodiscard]] std::string TotalsText(const MatchTotals& totals);

/// A table for other programs, as RFC 4180 has it, in UTF-8. What a program could take for a formula begins
/// with an apostrophe: names come from peers.
[[nodiscard]] std::string CsvOf(const std::vector<MatchLine>& lines);

}  // namespace kv
