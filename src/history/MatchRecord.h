// One match as it was played, as plain values: who sat where, every draw and move of both sides in order, how
// each set and the match ended. Totals and tables are not in it: a replay gives them (MatchReplay).
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "match/MatchEvent.h"

namespace kv {

// More is not recorded, and not read from outside. A set has room for eighteen cards on its tables.
inline constexpr std::size_t kMostRecordedSets = 99;
inline constexpr std::size_t kMostRecordedMoves = 400;  // of one set, flips included
inline constexpr std::size_t kMostRecordedFlips = 300;
inline constexpr std::size_t kMostRecordedCode = 8;  // bytes of a card's code
inline constexpr std::size_t kMostRecordedName = 80;

enum class MoveKind : std::uint8_t { Draw, Flip, Play, End, Stand };

/// `card` is that of the main deck, or the side card as it read in the hand afterwards (Flip) or as it was
/// played (Play), from slot 1 to 4. End and Stand have neither.
struct RecordedMove {
  MoveKind kind = MoveKind::End;
  Seat seat = Seat::Player;
  int slot = 0;
  CardCode card;
  friend bool operator==(const RecordedMove&, const RecordedMove&) = default;
};

struct RecordedResult {
  SetRule rule = SetRule::Equal;
  Seat closing = Seat::Player;
  event::Both totals{};
  friend bool operator==(const RecordedResult&, const RecordedResult&) = default;
};
/// Nothing for a tie.
[[nodiscard]] std::optional<Seat> WinnerOf(const RecordedResult& result);

struct RecordedSet {
  Seat starts = Seat::Player;
  std::vector<RecordedMove> moves;
  std::optional<RecordedResult> result;  // none: the match ended before
  friend bool operator==(const RecordedSet&, const RecordedSet&) = default;
};

/// Left: nobody heard its end.
enum class MatchEnding : std::uint8_t { ThreeSets, GivenUp, PeerGone, Left };

struct RecordedBooking {
  event::Result result = event::Result::Won;
  std::int32_t before = 0;  // credits, without the stake
  std::int32_t after = 0;
  friend bool operator==(const RecordedBooking&, const RecordedBooking&) = default;
};

using RecordedHand = std::array<CardCode, kHandSize>;

struct MatchRecord {
  std::int64_t time = 0;  // of its beginning, in seconds of UTC since 1970
  std::string version;    // of the program
  std::string mode;       // clsGame::Mode
  std::string opponent;
  std::string strategy;  // "standard", "ember", or empty: a peer
  std::int32_t stake = 0;
  std::array<CardCode, kDeckSize> deck;  // the player's, as the player chose it
  std::array<RecordedHand, 2> hands;     // by Seat; what is not known is empty
  std::vector<RecordedSet> sets;
  MatchEnding ending = MatchEnding::Left;
  Seat givenUpBy = Seat::Player;  // of a match that was GivenUp
  std::optional<Seat> winner;
  event::Both setWins{};
  std::optional<RecordedBooking> booking;
  friend bool operator==(const MatchRecord&, const MatchRecord&) = default;
};

[[nodiscard]] constexpr bool IsHandSlot(int slot) {
  return slot >= 1 && slot <= kHandSize;
}

class clsGame;

/// A record of a match that is about to begin, at `time`, with all that its events will not tell.
[[nodiscard]] MatchRecord RecordOf(const clsGame& game, std::int64_t time);

}  // namespace kv
