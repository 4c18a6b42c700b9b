#include "history/HistoryWords.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "history/RecordWords.h"
#include "match/clsGame.h"

namespace kv {
namespace {

constexpr std::array<std::string_view, 4> kOutcomes = {"won", "lost", "broken off", "left"};
constexpr std::array<std::string_view, 7> kStyles = {
    "higher total", "over twenty", "nine cards", "tie broken", "given up", "peer gone", "left"};

std::string Percent(double rate) {
  return std::to_string(std::lround(100 * rate));
}

std::string Field(std::string_view text) {
  const bool formula = !text.empty() && std::string_view("=+-@").find(text.front()) != std::string_view::npos;
  std::string field = formula ? "\"'" : "\"";
  for (const char c : text) field += c == '"' ? "\"\"" : std::string(1, c);
  return field + "\"";
}

std::string Number(std::optional<std::int32_t> number) {
  return number ? std::to_string(*number) : std::string();
}

}  // namespace

std::string_view OutcomeText(MatchOutcome outcome) {
  return kOutcomes.at(static_cast<std::size_t>(outcome));
}

std::string_view StyleText(EndStyle style) {
  return kStyles.at(static_cast<std::size_t>(style));
}

std::string ModeText(std::string_view mode) {
  std::string text(mode);
  std::transform(text.begin(), text.end(), text.begin(), [](char c) {
    return c == '_' ? ' ' : c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  return text;
}

std::string CardText(const CardCode& card) {
  std::string text = card.Caption();
  if (const auto both = text.find("&&"); both != std::string::npos) text.erase(both, 1);
  std::replace(text.begin(), text.end(), '\n', ' ');
  return text;
}

std::string DeckText(std::string_view codes) {
  std::vector<std::pair<std::string, int>> cards;
  while (!codes.empty()) {
    const std::string_view code = words::Cut(codes, " ");
    const std::string card = code == words::kUnknownCard ? "?" : CardText(InDeck(CardCode(code)));
    const auto known =
        std::find_if(cards.begin(), cards.end(), [&](const auto& each) { return each.first == card; });
    if (known == cards.end()) {
      cards.emplace_back(card, 1);
    } else {
      ++known->second;
    }
  }
  std::string text;
  for (const auto& [card, count] : cards) {
    text += (text.empty() ? "" : ", ") + (count > 1 ? std::to_string(count) + "x " : std::string()) + card;
  }
  return text;
}

std::string PercentText(double rate, const Interval& interval) {
  return Percent(rate) + " % (" + Percent(interval.low) + " to " + Percent(interval.high) + " %)";
}

std::string ResultText(const MatchLine& line) {
  return std::string(OutcomeText(line.outcome)) + " " + std::to_string(line.setWins[0]) + ":" +
         std::to_string(line.setWins[1]);
}

std::string TotalsText(const MatchTotals& totals) {
  std::string text = std::to_string(totals.matches) + (totals.matches == 1 ? " match: " : " matches: ") +
                     std::to_string(totals.won) + " won, " + std::to_string(totals.lost) + " lost.\n";
  const int decided = totals.won + totals.lost;
  if (decided > 0) {
    text += "Win rate " + PercentText(static_cast<double>(totals.won) / decided, totals.interval()) + ".\n";
  }
  return text + "Longest streak: " + std::to_string(totals.longestWins) + " won, " +
         std::to_string(totals.longestLosses) + " lost.";
}

std::string CsvOf(const std::vector<MatchLine>& lines) {
  std::string csv =
      "time,mode,opponent,strategy,stake,outcome,own sets,other sets,ending,credits before,credits "
      "after,deck,"
      "cards played,version,imported\r\n";
  for (const MatchLine& line : lines) {
    csv += words::TimeText(line.time) + "," + Field(line.mode) + "," + Field(line.opponent) + "," +
           Field(line.strategy) + "," + std::to_string(line.stake) + "," +
           std::string(OutcomeText(line.outcome)) + "," + std::to_string(line.setWins[0]) + "," +
           std::to_string(line.setWins[1]) + "," + std::string(StyleText(line.style)) + "," +
           Number(line.before) + "," + Number(line.after) + "," + Field(line.deck) + "," + Field(line.cards) +
           "," + Field(line.version) + "," + (line.imported ? "1" : "0") + "\r\n";
  }
  return csv;
}

}  // namespace kv
