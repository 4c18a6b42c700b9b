// What a list of matches and its statistics need of each, without its course.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "history/MatchRecord.h"

namespace kv {

/// How it was booked; a match without a booking was Left.
enum class MatchOutcome : std::uint8_t { Won, Lost, BrokenOff, Left };

/// What ended the last set, or the match before it.
enum class EndStyle : std::uint8_t { HigherTotal, OverTwenty, NineCards, TieBroken, GivenUp, PeerGone, Left };

struct MatchLine {
  std::int64_t id = 0;    // in its history
  std::int64_t time = 0;  // seconds of UTC since 1970
  std::string version;
  std::string mode;
  std::string opponent;
  std::string strategy;
  std::int32_t stake = 0;
  std::string deck;   // the player's, as codes with blanks between them
  std::string cards;  // the side cards that the player played, each once, as they stand in a deck
  MatchOutcome outcome = MatchOutcome::Left;
  EndStyle style = EndStyle::Left;
  event::Both setWins{};
  std::optional<std::int32_t> before;  // credits, of a match that was booked; the stake is taken already
  std::optional<std::int32_t> after;
  bool imported = false;
  friend bool operator==(const MatchLine&, const MatchLine&) = default;
};

/// Without an id.
[[nodiscard]] MatchLine LineOf(const MatchRecord& record);

/// A hand card's code as a deck has it: its sign, if it has a choice, not chosen.
[[nodiscard]] CardCode InDeck(const CardCode& card);

}  // namespace kv
