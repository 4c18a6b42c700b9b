// What a match is made of, as plain values: its limits, options, steps, and what the person may use.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace kv {

class clsPlayer;

/// The two sides of a match. The player is the person at this screen; the opponent a strategy or a peer.
enum class Seat : std::uint8_t { Player, Opponent };
[[nodiscard]] constexpr Seat OtherSeat(Seat seat) {
  return seat == Seat::Player ? Seat::Opponent : Seat::Player;
}

inline constexpr int kTableSize = 9;
inline constexpr int kSetsToWin = 3;
inline constexpr int kTargetTotal = 20;

/// What the game timer does on its next tick; the numbers are the product's own.
enum class GameStep : std::uint8_t {
  None = 0,
  PlayerTurn = 1,
  OpponentTurn = 2,
  SetTied = 10,
  OpponentWins = 11,
  PlayerWins = 12,
};

/// How far a match has come: no set has begun, one is played, the result of one is shown.
enum class MatchStage : std::uint8_t { Opening, Set, BetweenSets };

/// Why a side takes no more turns in a set.
enum class StandReason : std::uint8_t { Choice, Twenty, NineCards, OverTwenty };

/// The rule that decides a set, in the order in which they are asked.
enum class SetRule : std::uint8_t {
  PlayerOver,
  OpponentOver,
  PlayerNine,
  OpponentNine,
  Tiebreaker,
  Equal,
  HigherTotal,
};

/// Where a match stands in the peer's turn.
enum class PeerTurn : std::uint8_t { NotTheirs, Soon, Theirs };

/// The options of the player record that a match follows, taken when it opens.
struct MatchOptions {
  int speed = 1;             // GameSpeed_Opt: 0 slow, 1 normal, 2 fast; anything else is taken as normal
  bool emberStyle = false;   // Interface_Opt is "Ember"
  int turnMode = 2;          // TurnMode_Opt: 0 random, 1 the player begins, 2 alternating
  bool autoTurn = false;     // AutoTurn_Opt
  bool autoDialogs = false;  // AutoDialogs_Opt
};
[[nodiscard]] MatchOptions MatchOptionsOf(const clsPlayer& player);

/// How fast a match is played, in milliseconds.
struct MatchPace {
  int speedOffset = 0;  // what every step of the speed option takes off a pause; negative when slow
  int turnDelay = 0;    // the base pause of a turn
};
[[nodiscard]] MatchPace PaceOf(const MatchOptions& options, bool network);

/// What the person may use at the moment. A hand card is usable when hand is set and its slot is not empty.
struct MatchControls {
  bool endTurn = false;
  bool stand = false;
  bool forfeit = false;
  bool flips = false;        // the flip buttons of the hand: from the first turn until a forfeit
  bool hand = false;         // the player's hand cards
  bool opponentHand = true;  // false dims the opponent's face-down cards
  bool titlebar = true;
  std::array<bool, 2> table{true, true};  // by Seat; false dims the cards of that table
  friend bool operator==(const MatchControls&, const MatchControls&) = default;
};

struct MatchBanner {
  bool visible = false;
  bool buttonEnabled = false;
  std::string text;
  std::string caption = "continue";
};

}  // namespace kv
