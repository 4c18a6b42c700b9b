// What happened in a match, as plain values: each told once, at the moment of the rule, for both sides. An
// event carries all that it is about: nobody has to read a state to guess it. Played again on two empty
// tables, the events of a set give its cards and totals.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "cards/clsDeckArray.h"
#include "match/MatchRules.h"

namespace kv::event {

/// Each side's total, won sets and so on, by Seat.
using Both = std::array<int, 2>;

/// The two have sat down. Of a peer's hand nothing is known: its codes are empty.
struct MatchBegun {
  std::string opponent;
  std::int32_t stake = 0;                                // credits
  std::array<std::array<CardCode, kHandSize>, 2> hands;  // by Seat
};
/// Both tables are empty and the main deck is complete.
struct SetBegun {
  int number = 1;  // tied sets count
  Seat starts = Seat::Player;
  Both setWins{};
};
struct Drew {
  Seat seat = Seat::Player;
  CardCode card;
  int total = 0;  // afterwards, as in all that follow
};
/// The person has turned a hand card; it reads `card` now. Nobody else sees it.
struct Flipped {
  int slot = 1;
  CardCode card;
};
struct TurnedCard {
  int index = 1;  // 1 to 9 on the table
  CardCode card;  // as it lies now
};
/// A side card was played.
struct Played {
  Seat seat = Seat::Player;
  int slot = 1;                    // of the hand, empty now
  CardCode card;                   // as it was in the hand
  CardCode landed;                 // as it lies on the table
  std::vector<TurnedCard> turned;  // what else it did to the side's own table
  int total = 0;
};
/// The side ended its turn and may come again in this set.
struct EndedTurn {
  Seat seat = Seat::Player;
  int total = 0;
};
/// The side takes no more turns in this set.
struct Stood {
  Seat seat = Seat::Player;
  StandReason why = StandReason::Choice;
  int total = 0;
};
/// A match that is given up in the short pause that follows ends by the forfeit instead.
struct SetDecided {
  SetDecision decision{};
  Both totals{};
};
/// A second one corrects the first: the peer had given up before it knew that it had won.
struct MatchDecided {
  Seat winner = Seat::Player;
  Both setWins{};
};
enum class Result : std::uint8_t { Won, Lost, BrokenOff };
/// The stake left the credits before the match. Without credits, as in simulations, both are 0.
struct Booked {
  Result result = Result::Won;
  std::int32_t stake = 0;
  std::int32_t before = 0;  // credits
  std::int32_t after = 0;
};
/// By its button, or by leaving the game.
struct Forfeited {
  Seat seat = Seat::Player;
};
/// The peer has left, or the line is lost.
struct PeerGone {};

}  // namespace kv::event

namespace kv {

using MatchEvent = std::variant<event::MatchBegun, event::SetBegun, event::Drew, event::Flipped,
                                event::Played, event::EndedTurn, event::Stood, event::SetDecided,
                                event::MatchDecided, event::Booked, event::Forfeited, event::PeerGone>;

}  // namespace kv
