// vantri-campaign: plays whole campaigns without a screen and prints how long they take and how they end.
#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <exception>
#include <map>
#include <string>
#include <string_view>

#include "platform/Interval.h"
#include "platform/StandardOptions.h"
#include "vantri-campaign/CampaignSeries.h"
#include "vantri-strength/Tournament.h"

namespace {

constexpr const char* kUsage =
    "usage: vantri-campaign [--strategy S] [--stakes P] [--hasty] [--keep] [--campaigns N] [--give-up N] "
    "[--seed "
    "N]\n"
    "                       [--threads N] [--table]\n"
    "  S: standard, ember, careless, oracle-N (N simulated matches a decision); P: least, quarter, most\n"
    "  --hasty meets each opponent as soon as its least stake is there; --keep never buys a card; --give-up "
    "N\n"
    "  stops after so many matches (5000). --table plays the strategies with every habit.\n";

constexpr std::array<const char*, 3> kStakes = {"least", "quarter", "most"};

double Share(std::int64_t part, std::int64_t whole) {
  return whole == 0 ? 0 : static_cast<double>(part) / static_cast<double>(whole);
}

void PrintHeading() {
  std::puts(
      "| strategy | climbs | stakes | buys | finished | 95 % | bankrupt | gave up "
      "| matches to finish, median (10 to 90 %) | matches to ruin, median (10 to 90 %) | matches won "
      "| cards bought | credits when finished |");
  std::puts("|---|---|---|---|---|---|---|---|---|---|---|---|---|");
}

/// "2853 (2102 to 4267)": the middle and where the middle four fifths lie; a dash for no campaign at all.
std::string Lengths(const std::vector<int>& lengths) {
  if (lengths.empty()) return "-";
  return std::to_string(kv::Quantile(lengths, 0.5)) + " (" + std::to_string(kv::Quantile(lengths, 0.1)) +
         " to " + std::to_string(kv::Quantile(lengths, 0.9)) + ")";
}

std::string Rounded(double number) {
  return std::to_string(static_cast<std::int64_t>(number + 0.5));
}

void PrintRow(const kv::CampaignPlan& plan, const kv::SeriesResult& result) {
  const std::int64_t finished = result.ends[0];
  const kv::Interval interval = kv::WilsonInterval(finished, result.campaigns);
  const std::string credits = finished == 0 ? "-" : Rounded(Share(result.creditsAtTheEnd, finished));
  std::printf(
      "| %s | %s | %s | %s | %.1f %% | %.1f to %.1f %% | %.1f %% | %.1f %% | %s | %s | %.1f %% | %.1f | %s "
      "|\n",
      plan.strategy.c_str(), plan.habits.patient ? "patient" : "hasty",
      kStakes.at(static_cast<std::size_t>(plan.habits.stakes)), plan.habits.buys ? "yes" : "no",
      100 * Share(finished, result.campaigns), 100 * interval.low, 100 * interval.high,
      100 * Share(result.ends[1], result.campaigns), 100 * Share(result.ends[2], result.campaigns),
      Lengths(result.lengths).c_str(), Lengths(result.ruins).c_str(),
      100 * Share(result.wins, result.matches), Share(result.bought, result.campaigns), credits.c_str());
  std::fflush(stdout);
}

void PrintOpponents(const kv::SeriesResult& result) {
  std::puts("\n| opponent | share of the matches |\n|---|---|");
  for (std::size_t tile = 0; tile < result.against.size(); ++tile) {
    if (result.against.at(tile) == 0) continue;
    std::printf("| %s | %.1f %% |\n", std::string(kv::CircuitOpponents().at(tile).name).c_str(),
                100 * Share(result.against.at(tile), result.matches));
  }
}

/// What was played in all.
struct Played {
  std::int64_t campaigns = 0;
  std::int64_t matches = 0;
};

Played Run(const kv::CampaignPlan& plan, bool table) {
  if (!table) {
    const kv::SeriesResult result = kv::PlaySeries(plan);
    PrintRow(plan, result);
    PrintOpponents(result);
    return {result.campaigns, result.matches};
  }
  Played played;
  for (const char* strategy : {"standard", "ember", "careless"}) {
    for (const bool patient : {false, true}) {
      for (const auto stakes : {kv::StakePolicy::Least, kv::StakePolicy::Quarter, kv::StakePolicy::Most}) {
        for (const bool buys : {false, true}) {
          kv::CampaignPlan row = plan;
          row.strategy = strategy;
          row.habits.stakes = stakes;
          row.habits.buys = buys;
          row.habits.patient = patient;
          const kv::SeriesResult result = kv::PlaySeries(row);
          PrintRow(row, result);
          played.campaigns += result.campaigns;
          played.matches += result.matches;
        }
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
  auto most = static_cast<std::uint64_t>(plan.habits.mostMatches);
  const std::map<std::string_view, std::uint64_t*> numbers = {
      {"--campaigns", &campaigns}, {"--give-up", &most}, {"--seed", &plan.seed}, {"--threads", &threads}};
  for (int i = 1; i < count; ++i) {
    const std::string_view word = words[i];
    if (word == "--table") {
      table = true;
    } else if (word == "--hasty") {
      plan.habits.patient = false;
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
  plan.habits.mostMatches = static_cast<int>(std::min<std::uint64_t>(most, 1000000));
  return plan.campaigns > 0;
}

}  // namespace

int main(int count, char** words) {
  if (kv::AnswersStandardOption(count, words, "vantri-campaign", kUsage)) return 0;
  kv::CampaignPlan plan;
  bool table = false;
  if (!ReadPlan(count, words, plan, table)) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  try {
    const auto start = std::chrono::steady_clock::now();
    PrintHeading();
    const Played played = Run(plan, table);
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    std::fprintf(stderr, "%.1f s, %.0f campaigns and %.0f matches a second\n", seconds.count(),
                 static_cast<double>(played.campaigns) / seconds.count(),
                 static_cast<double>(played.matches) / seconds.count());
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "%s\n", fault.what());
    return 1;
  }
  return 0;
}
