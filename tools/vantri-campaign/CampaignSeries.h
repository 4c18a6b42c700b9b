// Many campaigns of the same player, spread over the machine's cores. The result depends on the seed alone,
// not on how many cores there are.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "vantri-campaign/CampaignPlay.h"

namespace kv {

struct CampaignPlan {
  std::string strategy = "standard";  // a name of StrategyNames()
  CampaignHabits habits;
  std::int64_t campaigns = 10000;
  std::uint64_t seed = 1;
  unsigned threads = 0;  // 0: one for each core
};

/// Sums over all campaigns.
struct SeriesResult {
  std::int64_t campaigns = 0;
  std::array<std::int64_t, 3> ends{};  // by CampaignEnd
  std::int64_t matches = 0;
  std::int64_t wins = 0;
  std::int64_t bought = 0;
  std::int64_t creditsAtTheEnd = 0;  // of finished campaigns
  std::vector<int> lengths;          // matches of each finished campaign, in no order
  std::vector<int> ruins;            // matches of each bankrupt campaign
  std::array<std::int64_t, kCircuitTiles> against{};

  void Add(const CampaignResult& campaign);
  void Add(const SeriesResult& other);
};

/// Plays the plan; the strategy's name must be known (std::invalid_argument otherwise).
[[nodiscard]] SeriesResult PlaySeries(const CampaignPlan& plan);

/// The value below which this share (0 to 1) of the lengths lies; 0 for none.
[[nodiscard]] int Quantile(std::vector<int> lengths, double share);

}  // namespace kv
