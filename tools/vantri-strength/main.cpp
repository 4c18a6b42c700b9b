// vantri-strength: plays strategies against each other and prints how often each wins.
#include <charconv>
#include <chrono>
#include <cstdio>
#include <exception>
#include <map>

#include "platform/Interval.h"
#include "platform/StandardOptions.h"
#include "vantri-strength/FitBetween.h"
#include "vantri-strength/Tournament.h"

namespace {

constexpr const char* kUsage =
    "usage: vantri-strength [--first S] [--second S] [--first-deck D] [--second-deck D] [--matches N] "
    "[--seed N]\n"
    "                       [--threads N] [--check] [--table] [--fit]\n"
    "  S: standard, ember, careless, standard-rescue-ends, standard-rescue-stands\n"
    "     or oracle-N, which weighs its moves by N simulated matches a decision (oracle: 1000)\n"
    "  D: arcade, campaign, network, or a circuit opponent such as \"H6-J8\"\n"
    "  Half of the matches are played with the seats changed. --check proves the rules at every step.\n"
    "  --table plays standard and ember against each other and against a careless player with several "
    "decks.\n"
    "  --fit prints the weights of the estimate that the oracle has of a match between two sets.\n";

void PrintHeading() {
  std::puts(
      "| first | second | matches | first wins | 95 % | as player | as opponent | sets per match | ties | "
      "busts per match (first / second) |");
  std::puts("|---|---|---|---|---|---|---|---|---|---|");
}

void PrintRow(const kv::TournamentPlan& plan, const kv::TournamentResult& result) {
  const auto matches = static_cast<double>(result.matches);
  const kv::Interval interval = kv::WilsonInterval(result.wins[0], result.matches);
  const auto percent = [&](std::int64_t part, double whole) {
    return 100.0 * static_cast<double>(part) / whole;
  };
  std::printf(
      "| %s, %s | %s, %s | %lld | %.2f %% | %.2f to %.2f %% | %.2f %% | %.2f %% | %.2f | %.2f %% | %.3f / "
      "%.3f |\n",
      plan.first.strategy.c_str(), plan.first.deck.c_str(), plan.second.strategy.c_str(),
      plan.second.deck.c_str(), static_cast<long long>(result.matches), percent(result.wins[0], matches),
      100 * interval.low, 100 * interval.high, percent(result.winsAsPlayer[0], matches / 2),
      percent(result.wins[0] - result.winsAsPlayer[0], matches / 2),
      static_cast<double>(result.sets) / matches, percent(result.ties, static_cast<double>(result.sets)),
      static_cast<double>(result.busts[0]) / matches, static_cast<double>(result.busts[1]) / matches);
}

void Run(const kv::TournamentPlan& plan) {
  PrintRow(plan, kv::PlayTournament(plan));
  std::fflush(stdout);
}

void RunTable(kv::TournamentPlan plan) {
  for (const char* deck : {"arcade", "campaign", "network"}) {
    plan.first.deck = plan.second.deck = deck;
    for (const auto& [first, second] : {std::pair{"standard", "ember"}, std::pair{"standard", "careless"},
                                        std::pair{"ember", "careless"}}) {
      plan.first.strategy = first;
      plan.second.strategy = second;
      Run(plan);
    }
  }
}

/// The rows of the table in match/BetweenSets.cpp.
void PrintFit(const kv::TournamentPlan& plan) {
  for (int own = 0; own < kv::kSetsToWin; ++own) {
    for (int other = own; other < kv::kSetsToWin; ++other) {
      std::printf("{%d, %d, {{", own, other);
      const char* gap = "";
      for (const double weight : kv::FitBetween(own, other, static_cast<int>(plan.matches), plan.seed)) {
        std::printf("%s%.3f", gap, weight);
        gap = ", ";
      }
      std::puts("}}},");
    }
  }
}

bool ReadNumber(const std::string& text, std::uint64_t& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size();
}

/// Reads the words of the command line; false when one is not understood.
bool ReadPlan(int count, char** words, kv::TournamentPlan& plan, std::string& what) {
  std::uint64_t matches = static_cast<std::uint64_t>(plan.matches);
  std::uint64_t threads = 0;
  const std::map<std::string, std::string*> texts = {{"--first", &plan.first.strategy},
                                                     {"--second", &plan.second.strategy},
                                                     {"--first-deck", &plan.first.deck},
                                                     {"--second-deck", &plan.second.deck}};
  const std::map<std::string, std::uint64_t*> numbers = {
      {"--matches", &matches}, {"--seed", &plan.seed}, {"--threads", &threads}};
  for (int i = 1; i < count; ++i) {
    const std::string word = words[i];
    if (word == "--check") {
      plan.checkInvariants = true;
    } else if (word == "--table" || word == "--fit") {
      what = word;
    } else if (i + 1 == count) {
      return false;
    } else if (const auto text = texts.find(word); text != texts.end()) {
      *text->second = words[++i];
    } else if (const auto number = numbers.find(word);
               number == numbers.end() || !ReadNumber(words[++i], *number->second)) {
      return false;
    }
  }
  plan.matches = static_cast<std::int64_t>(matches);
  plan.threads = static_cast<unsigned>(threads);
  return plan.matches > 0;
}

}  // namespace

int main(int count, char** words) {
  if (kv::AnswersStandardOption(count, words, "vantri-strength", kUsage)) return 0;
  kv::TournamentPlan plan{.first = {"standard", "arcade"}, .second = {"ember", "arcade"}};
  std::string what;
  if (!ReadPlan(count, words, plan, what)) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  try {
    const auto start = std::chrono::steady_clock::now();
    if (what == "--fit") {
      PrintFit(plan);
    } else {
      PrintHeading();
      what == "--table" ? RunTable(plan) : Run(plan);
    }
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    std::fprintf(stderr, "%.1f s\n", seconds.count());
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "%s\n", fault.what());
    return 1;
  }
  return 0;
}
