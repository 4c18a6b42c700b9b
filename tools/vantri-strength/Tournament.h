// Many matches between two strategies, spread over the machine's cores. The result depends on the seed alone,
// not on how many cores there are.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "match/HeadlessMatch.h"
#include "platform/Interval.h"

namespace kv {

class OracleSeat;

/// One side of a tournament.
struct Contestant {
  std::string strategy;  // a name of StrategyNames(), "oracle", or "oracle-N"
  std::string deck;      // "arcade", "campaign", "network", or the name of a circuit opponent
};

struct TournamentPlan {
  Contestant first;
  Contestant second;
  std::int64_t matches = 100000;  // half of them with the seats changed
  std::uint64_t seed = 1;
  bool checkInvariants = false;
  unsigned threads = 0;  // 0: one for each core
};

/// Sums over all matches; [0] the first contestant, [1] the second, whatever the seat.
struct TournamentResult {
  std::int64_t matches = 0;
  std::int64_t sets = 0;
  std::int64_t ties = 0;
  std::array<std::int64_t, 2> wins{};
  std::array<std::int64_t, 2> busts{};
  std::array<std::int64_t, 2> winsAsPlayer{};

  void Add(const TournamentResult& other);
};

[[nodiscard]] std::vector<std::string> StrategyNames();
/// Null for an unknown name.
[[nodiscard]] std::unique_ptr<Strategy> MakeStrategy(std::string_view name);
/// The seat of a strategy "oracle" or "oracle-N", which has to be told of each match and its events; null for
/// any other. It belongs to the strategy.
[[nodiscard]] OracleSeat* OracleIn(Strategy& strategy);
/// Returns false for an unknown name.
[[nodiscard]] bool FindDeck(std::string_view name, clsDeckArray& deck);

/// Plays the plan. Both contestants' names must be known (std::invalid_argument otherwise); a broken
/// invariant throws std::logic_error.
[[nodiscard]] TournamentResult PlayTournament(const TournamentPlan& plan);

}  // namespace kv
