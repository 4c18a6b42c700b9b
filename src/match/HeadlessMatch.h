// A whole match between two strategies with no window, clock or network, at full speed: for measuring the
// strategies, for proving the rules, and for simulated campaigns.
#pragma once

#include <array>
#include <functional>

#include "match/MatchEngine.h"

namespace kv {

struct HeadlessSetup {
  Strategy& player;
  Strategy& opponent;
  const clsDeckArray& playerDeck;  // ten side cards; four are dealt
  const clsDeckArray& opponentDeck;
  MatchOptions options;
  MatchObserver* observer = nullptr;  // told what happens
};

struct HeadlessResult {
  Seat winner = Seat::Player;
  int sets = 0;  // played, ties included
  int ties = 0;
  std::array<int, 2> setWins{};  // by Seat
  std::array<int, 2> busts{};    // sets in which the side ended over 20, by Seat
};

/// Told after every change of a match, so that a proof can look at the engine.
using MatchWatch = std::function<void(const MatchEngine&)>;

/// Plays one match to its end. Equal random numbers give equal matches. Throws std::logic_error when the
/// match comes to a standstill, which is a fault of the rules.
[[nodiscard]] HeadlessResult PlayHeadless(const HeadlessSetup& setup, Random& random,
                                          const MatchWatch& watch = {});

/// Plays the match that `game` holds ready: hands dealt, a strategy for the opponent, a stake open. `player`
/// sits in the player's seat; `booking` books the result and so closes the stake.
[[nodiscard]] HeadlessResult PlayPrepared(clsGame& game, Strategy& player, MatchBooking& booking,
                                          const MatchOptions& options, Random& random,
                                          const MatchWatch& watch = {}, MatchObserver* observer = nullptr);

}  // namespace kv
