// One whole campaign without a window: a strategy in the player's seat climbs the circuit by the same rules
// as a person does, stake by stake, from the first opponent to the last or to ruin.
#pragma once

#include <array>
#include <cstdint>

#include "ai/Strategy.h"
#include "campaign/Circuit.h"
#include "platform/Random.h"

namespace kv {

/// How much the player stakes within an opponent's limits.
enum class StakePolicy : std::uint8_t {
  Least,    // the least that is allowed
  Quarter,  // a quarter of the credits
  Most,     // the most that is allowed
};

struct CampaignHabits {
  StakePolicy stakes = StakePolicy::Quarter;
  bool buys = true;        // changes its cards for better ones when credits are left over
  bool patient = true;     // meets the newest opponent only with several of its least stakes in the purse
  int mostMatches = 5000;  // then the player gives up
};

enum class CampaignEnd : std::uint8_t { Finished, Bankrupt, GaveUp };

struct CampaignResult {
  CampaignEnd end = CampaignEnd::GaveUp;
  int matches = 0;
  int wins = 0;  // and losses, as the player record counts them
  int losses = 0;
  int bought = 0;  // cards
  std::int32_t credits = 0;
  std::array<int, kCircuitTiles> against{};  // matches, by tile
};

/// Plays a campaign from 100 credits; an oracle knows the deck of its opponent, as a person learns it. Equal
/// random numbers give equal campaigns.
[[nodiscard]] CampaignResult PlayCampaign(const CampaignHabits& habits, Strategy& strategy, Random& random);

}  // namespace kv
