// vantri-campaign: plays whole campaigns without a screen and prints how long they take and how they end.
#include <charconv>
#include <chrono>
#include <cstdio>
#include <exception>
#include <map>
#include <string_view>

#include "vantri-campaign/CampaignSeries.h"
#include "vantri-strength/Tournament.h"

namespace {

constexpr const char* kUsage =
    "vantri-campaign [--strategy S] [--stakes P] [--keep] [--campaigns N] [--seed N] [--threads N] "
    "[--table]\n"
    "  S: standard, ember, careless; P: least, quarter, most\n"
    "  --keep never buys a card. --table plays every strategy with every stake, buying and not.\n";

constexpr std::array<const char*, 3> kStakes = {"least", "quarter", "most"};

double Share(std::int64_t part, std::int64_t whole) {
  return whole == 0 ? 0 : static_cast<double>(part) / static_cast<double>(whole);
}

void PrintHeading() {
  std::puts(
      "| strategy | stakes | buys | campaigns | finished | 95 % | bankrupt | gave up | matches to finish, "
      "median "
      "(10 to 90 %) | matches to ruin, median | matches won | cards bought | credits when finished |");
  std::puts("|---|---|---|---|---|---|---|---|---|---|---|---|---|");
}

void PrintRow(const kv::CampaignPlan& plan, const kv::SeriesResult& result) {
  const std::int64_t finished = result.ends[0];
  const kv::Interval interval = kv::WilsonInterval(finished, result.campaigns);
  std::printf(
      "| %s | %s | %s | %lld | %.1f %% | %.1f to %.1f %% | %.1f %% | %.1f %% | %d (%d to %d) | %d | "
      "%.1f %% | %.1f | %.0f |\n",
      plan.strategy.c_str(), kStakes.at(static_cast<std::size_t>(plan.habits.stakes)),
      plan.habits.buys ? "yes" : "no", static_cast<long long>(result.campaigns),
      100 * Share(finished, result.campaigns), 100 * interval.low, 100 * interval.high,
      100 * Share(result.ends[1], result.campaigns), 100 * Share(result.ends[2], result.campaigns),
      kv::Quantile(result.lengths, 0.5), kv::Quantile(result.lengths, 0.1), kv::Quantile(result.lengths, 0.9),
      kv::Quantile(result.ruins, 0.5), 100 * Share(result.wins, result.matches),
      Share(result.bought, result.campaigns), Share(result.creditsAtTheEnd, finished));
  std::fflush(stdout);
}

/// Returns how many campaigns were played.
std::int64_t Run(const kv::CampaignPlan& plan, bool table) {
  if (!table) {
    PrintRow(plan, kv::PlaySeries(plan));
    return plan.campaigns;
  }
  std::int64_t played = 0;
  for (const char* strategy : {"standard", "ember", "careless"}) {
    for (const auto stakes : {kv::StakePolicy::Least, kv::StakePolicy::Quarter, kv::StakePolicy::Most}) {
      for (const bool buys : {true, false}) {
        kv::CampaignPlan row = plan;
        row.strategy = strategy;
        row.habits.stakes = stakes;
        row.habits.buys = buys;
        PrintRow(row, kv::PlaySeries(row));
        played += row.campaigns;
      }
    }
  }
  return played;
}

bool ReadNumber(std::string_view text, std::uint64_t& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size();
}

bool ReadStakes(std::string_view text, kv::StakePolicy& stakes) {
  for (std::size_t i = 0; i < kStakes.size(); ++i) {
    if (text != kStakes[i]) continue;
    stakes = static_cast<kv::StakePolicy>(i);
    return true;
  }
  return false;
}

bool ReadPlan(int count, char** words, kv::CampaignPlan& plan, bool& table) {
  auto campaigns = static_cast<std::uint64_t>(plan.campaigns);
  std::uint64_t threads = plan.threads;
  const std::map<std::string_view, std::uint64_t*> numbers = {
      {"--campaigns", &campaigns}, {"--seed", &plan.seed}, {"--threads", &threads}};
  for (int i = 1; i < count; ++i) {
    const std::string_view word = words[i];
    if (word == "--table") {
      table = true;
    } else if (word == "--keep") {
      plan.habits.buys = false;
    } else if (i + 1 == count) {
      return false;
    } else if (word == "--strategy") {
      plan.strategy = words[++i];
    } else if (word == "--stakes") {
      if (!ReadStakes(words[++i], plan.habits.stakes)) return false;
    } else if (const auto number = numbers.find(word);
               number == numbers.end() || !ReadNumber(words[++i], *number->second)) {
      return false;
    }
  }
  plan.campaigns = static_cast<std::int64_t>(campaigns);
  plan.threads = static_cast<unsigned>(threads);
  return plan.campaigns > 0;
}

}  // namespace

int main(int count, char** words) {
  kv::CampaignPlan plan;
  bool table = false;
  if (!ReadPlan(count, words, plan, table)) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  try {
    const auto start = std::chrono::steady_clock::now();
    PrintHeading();
    const std::int64_t played = Run(plan, table);
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    std::fprintf(stderr, "%.1f s, %.0f campaigns a second\n", seconds.count(),
                 static_cast<double>(played) / seconds.count());
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "%s\n", fault.what());
    return 1;
  }
  return 0;
}
