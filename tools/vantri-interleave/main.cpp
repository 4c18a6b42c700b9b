// Lets two programs without windows play a network game in every order of events that chance finds, and
// reports the first runs in which they came apart, each shrunk to the actions it needs.
//   vantri-interleave [--runs N] [--actions N] [--seed N] [--delay MS] [--keep N]
//   vantri-interleave --script FILE [--seed N] [--delay MS]     plays a list of actions that was printed
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>

#include "platform/StandardOptions.h"
#include "vantri-interleave/Run.h"

namespace kv::interleave {
namespace {

constexpr const char* kUsage =
    "usage: vantri-interleave [--runs N] [--actions N] [--seed N] [--delay MS] [--keep N] | --script FILE\n"
    "Explores a network game between two programs: what both persons do, delays, broken lines, failing "
    "saves.\n";

struct Options {
  int runs = 1000;
  int keep = 3;  // faulty runs that are shrunk and printed, of each kind
  std::string script;
  Plan plan;
};

int PlayScript(const Options& options) {
  std::ifstream file(options.script);
  std::vector<Action> actions;
  for (std::string line; std::getline(file, line);) {
    if (const auto action = ParseAction(line)) actions.push_back(*action);
  }
  Plan plan = options.plan;
  plan.script = &actions;
  plan.trace = true;
  const Report report = Explore(plan);
  std::fputs(Text(report).c_str(), stdout);
  return report.fault == Fault::None ? 0 : 1;
}

int ExploreAll(const Options& options) {
  std::array<int, kFaults> counts{};
  std::int64_t simulated = 0;
  int matches = 0;
  const auto start = std::chrono::steady_clock::now();
  for (int run = 0; run < options.runs; ++run) {
    Plan plan = options.plan;
    plan.seed += static_cast<std::uint64_t>(run);
    const Report report = Explore(plan);
    simulated += report.simulated;
    matches += report.matches;
    int& count = counts.at(static_cast<std::size_t>(report.fault));
    if (++count > options.keep || report.fault == Fault::None) continue;
    std::printf("seed %llu: %s\n", static_cast<unsigned long long>(plan.seed),
                Text(Shrink(plan, report)).c_str());
    std::fflush(stdout);
  }
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
  std::printf("%d runs of %d actions, %d stakes settled, %.0f simulated hours, %.1f s\n", options.runs,
              options.plan.actions, matches, static_cast<double>(simulated) / 3.6e6, took.count());
  for (int fault = 0; fault < kFaults; ++fault) {
    std::printf("%8d %s\n", counts.at(static_cast<std::size_t>(fault)), Name(static_cast<Fault>(fault)));
  }
  return counts.at(0) == options.runs ? 0 : 1;
}

}  // namespace
}  // namespace kv::interleave

int main(int argc, char** argv) {
  using namespace kv::interleave;
  if (kv::AnswersStandardOption(argc, argv, "vantri-interleave", kUsage)) return 0;
  Options options;
  for (int at = 1; at < argc; ++at) {
    const std::string_view name = argv[at];
    const bool known = name == "--runs" || name == "--actions" || name == "--seed" || name == "--delay" ||
                       name == "--keep" || name == "--script";
    if (!known || at + 1 == argc) {
      std::fputs(kUsage, stderr);
      return 2;
    }
    const char* value = argv[++at];
    if (name == "--runs") options.runs = std::atoi(value);
    if (name == "--actions") options.plan.actions = std::atoi(value);
    if (name == "--seed") options.plan.seed = std::strtoull(value, nullptr, 10);
    if (name == "--delay") options.plan.mostDelay = std::atoi(value);
    if (name == "--keep") options.keep = std::atoi(value);
    if (name == "--script") options.script = value;
  }
  return options.script.empty() ? ExploreAll(options) : PlayScript(options);
}
