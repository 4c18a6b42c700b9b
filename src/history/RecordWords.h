// The words of a record's text, each in one table for both directions, and its small values: names, codes,
// numbers, times.
#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "history/MatchRecord.h"

namespace kv::words {

inline constexpr std::string_view kFirstLine = "Kelm Vantri match, form 1";
inline constexpr std::string_view kUnknownCard = "--";

template <typename Value>
struct Word {
  std::string_view word;
  Value value;
};

inline constexpr std::array<Word<Seat>, 2> kSeats = {
    {{"player", Seat::Player}, {"opponent", Seat::Opponent}}};
inline constexpr std::array<Word<SetRule>, 7> kRules = {{{"player over twenty", SetRule::PlayerOver},
                                                         {"opponent over twenty", SetRule::OpponentOver},
                                                         {"nine cards of player", SetRule::PlayerNine},
                                                         {"nine cards of opponent", SetRule::OpponentNine},
                                                         {"tiebreaker", SetRule::Tiebreaker},
                                                         {"tied", SetRule::Equal},
                                                         {"higher total", SetRule::HigherTotal}}};
inline constexpr std::array<Word<event::Result>, 3> kResults = {
    {{"won", event::Result::Won}, {"lost", event::Result::Lost}, {"broken off", event::Result::BrokenOff}}};

template <typename Value, std::size_t count>
[[nodiscard]] constexpr std::string_view WordOf(const std::array<Word<Value>, count>& table, Value value) {
  for (const auto& each : table) {
    if (each.value == value) return each.word;
  }
  return {};
}
template <typename Value, std::size_t count>
[[nodiscard]] std::optional<Value> ValueOf(const std::array<Word<Value>, count>& table,
                                           std::string_view word) {
  for (const auto& each : table) {
    if (each.word == word) return each.value;
  }
  return {};
}

template <typename Number>
[[nodiscard]] std::optional<Number> NumberIn(std::string_view text, Number least, Number most) {
  Number number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = error == std::errc() && end == text.data() + text.size();
  return whole && number >= least && number <= most ? std::optional(number) : std::nullopt;
}

/// Takes what stands before the first `mark` off the front of `text`, and the mark; all of it without one.
[[nodiscard]] std::string_view Cut(std::string_view& text, std::string_view mark);

/// What can stand on a line: control characters become blanks, and a name that is too long is cut.
[[nodiscard]] std::string LineOf(std::string_view name);
/// True for what LineOf would leave as it is.
[[nodiscard]] bool IsLine(std::string_view text);

/// "2026-11-25 13:25:12", in UTC.
[[nodiscard]] std::string TimeText(std::int64_t seconds);
[[nodiscard]] std::optional<std::int64_t> TimeIn(std::string_view text);

/// Codes with blanks between them, "--" for one that is not known.
[[nodiscard]] std::string CodesText(const CardCode* first, std::size_t count);
/// False when they are not `count` codes.
[[nodiscard]] bool CodesIn(std::string_view text, CardCode* first, std::size_t count);
/// Nothing for what is no code: not of letters, digits and "-", or too long.
[[nodiscard]] std::optional<CardCode> CodeIn(std::string_view text);

}  // namespace kv::words
