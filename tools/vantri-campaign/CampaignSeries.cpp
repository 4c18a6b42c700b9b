#include "vantri-campaign/CampaignSeries.h"

#include <algorithm>
#include <exception>
#include <stdexcept>
#include <thread>

#include "vantri-strength/Tournament.h"

namespace kv {
namespace {

/// The campaigns with the numbers first, first + step, … of a plan.
SeriesResult PlayShare(const CampaignPlan& plan, std::int64_t first, std::int64_t step) {
  const std::unique_ptr<Strategy> strategy = MakeStrategy(plan.strategy);
  if (strategy == nullptr) throw std::invalid_argument("unknown strategy");
  SeriesResult sum;
  for (std::int64_t i = first; i < plan.campaigns; i += step) {
    SeededRandom random(plan.seed * 0x9E3779B97F4A7C15U +
                        static_cast<std::uint64_t>(i) * 0xD1B54A32D192ED03U);
    sum.Add(PlayCampaign(plan.habits, *strategy, random));
  }
  return sum;
}

}  // namespace

void SeriesResult::Add(const CampaignResult& campaign) {
  ++campaigns;
  ++ends.at(static_cast<std::size_t>(campaign.end));
  matches += campaign.matches;
  wins += campaign.wins;
  bought += campaign.bought;
  if (campaign.end == CampaignEnd::Finished) {
    creditsAtTheEnd += campaign.credits;
    lengths.push_back(campaign.matches);
  } else if (campaign.end == CampaignEnd::Bankrupt) {
    ruins.push_back(campaign.matches);
  }
  for (std::size_t tile = 0; tile < against.size(); ++tile) against[tile] += campaign.against[tile];
}

void SeriesResult::Add(const SeriesResult& other) {
  campaigns += other.campaigns;
  matches += other.matches;
  wins += other.wins;
  bought += other.bought;
  creditsAtTheEnd += other.creditsAtTheEnd;
  lengths.insert(lengths.end(), other.lengths.begin(), other.lengths.end());
  ruins.insert(ruins.end(), other.ruins.begin(), other.ruins.end());
  for (std::size_t end = 0; end < ends.size(); ++end) ends[end] += other.ends[end];
  for (std::size_t tile = 0; tile < against.size(); ++tile) against[tile] += other.against[tile];
}

SeriesResult PlaySeries(const CampaignPlan& plan) {
  const unsigned cores = std::max(1U, plan.threads != 0 ? plan.threads : std::thread::hardware_concurrency());
  std::vector<SeriesResult> results(cores);
  std::vector<std::exception_ptr> faults(cores);
  std::vector<std::thread> threads;
  for (unsigned i = 0; i < cores; ++i) {
    threads.emplace_back([&, i] {
      try {
        results[i] = PlayShare(plan, i, cores);
      } catch (...) {
        faults[i] = std::current_exception();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  SeriesResult sum;
  for (unsigned i = 0; i < cores; ++i) {
    if (faults[i]) std::rethrow_exception(faults[i]);
    sum.Add(results[i]);
  }
  return sum;
}

int Quantile(std::vector<int> lengths, double share) {
  if (lengths.empty()) return 0;
  const auto place = static_cast<std::ptrdiff_t>(share * static_cast<double>(lengths.size() - 1));
  std::nth_element(lengths.begin(), lengths.begin() + place, lengths.end());
  return lengths[static_cast<std::size_t>(place)];
}

}  // namespace kv
