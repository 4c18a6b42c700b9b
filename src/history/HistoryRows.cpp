#include "history/HistoryRows.h"

#include "history/RecordPack.h"
#include "history/RecordWords.h"

namespace kv {
namespace {

/// A value of an enumeration as the file has it; nothing for one out of its range.
template <typename Kind>
std::optional<Kind> KindIn(std::int64_t value, Kind last) {
  const bool known = value >= 0 && value <= static_cast<std::int64_t>(last);
  return known ? std::optional(static_cast<Kind>(value)) : std::nullopt;
}

std::int32_t Credits(std::int64_t value) {
  return static_cast<std::int32_t>(value);
}

}  // namespace

MatchLine LineIn(SqlStatement& row) {
  MatchLine line;
  line.id = row.Number();
  line.time = row.Number();
  for (std::string* text : {&line.version, &line.mode, &line.opponent, &line.strategy}) *text = row.Text();
  line.stake = Credits(row.Number());
  line.deck = row.Text();
  line.cards = row.Text();
  line.outcome = KindIn(row.Number(), MatchOutcome::Left).value_or(MatchOutcome::Left);
  line.style = KindIn(row.Number(), EndStyle::Left).value_or(EndStyle::Left);
  for (int& sets : line.setWins) sets = static_cast<int>(row.Number());
  for (auto* credits : {&line.before, &line.after}) {
    if (const auto value = row.NumberOrNothing()) *credits = Credits(*value);
  }
  line.imported = row.Number() != 0;
  return line;
}

std::optional<MatchRecord> RecordIn(SqlStatement& row) {
  MatchRecord record;
  record.time = row.Number();
  for (std::string* text : {&record.version, &record.mode, &record.opponent, &record.strategy})
    *text = row.Text();
  record.stake = Credits(row.Number());
  if (!words::CodesIn(row.Text(), record.deck.data(), record.deck.size())) return {};
  const auto outcome = KindIn(row.Number(), MatchOutcome::Left);
  for (int& sets : record.setWins) sets = static_cast<int>(row.Number());
  const auto before = row.NumberOrNothing();
  const auto after = row.NumberOrNothing();
  const auto ending = KindIn(row.Number(), MatchEnding::Left);
  const auto givenUpBy = KindIn(row.Number(), Seat::Opponent);
  const auto winner = row.NumberOrNothing();
  if (!outcome || !ending || !givenUpBy || !UnpackCourse(row.Text(), record)) return {};
  record.ending = *ending;
  record.givenUpBy = *givenUpBy;
  if (winner) record.winner = KindIn(*winner, Seat::Opponent);
  if (before && after && *outcome != MatchOutcome::Left) {
    record.booking = {static_cast<event::Result>(*outcome), Credits(*before), Credits(*after)};
  }
  return record;
}

}  // namespace kv
