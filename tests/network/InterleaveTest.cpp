// The explorer over a few hundred seeds, and the orders of events that once left two players waiting for
// ever.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>

#include "vantri-interleave/Run.h"

namespace kv::interleave {
namespace {

/// The script's actions; what is left out of one is 0, and a box of a moment that is answered no.
Report Play(const char* script, int delay, std::uint64_t seed = 3) {
  std::vector<Action> actions;
  std::istringstream lines{std::string(script)};
  for (std::string line; std::getline(lines, line);) {
    const auto words = std::ranges::count(line, ' ') + 1;
    line += words == 3 ? " 0 box 1 no" : words == 4 ? " box 1 no" : "";
    if (const auto action = ParseAction(line)) actions.push_back(*action);
  }
  EXPECT_FALSE(actions.empty());
  Plan plan{.seed = seed, .mostDelay = delay, .script = &actions};
  return Explore(plan);
}

/// KV_INTERLEAVE_RUNS and KV_INTERLEAVE_SEED: how many runs, and from which seed on.
TEST(Interleave, NoOrderOfEventsLeavesTheTwoApart) {
  const auto setting = [](const char* name, int otherwise) {
    const char* text = std::getenv(name);
    return text == nullptr ? otherwise : std::atoi(text);
  };
  const int runs = setting("KV_INTERLEAVE_RUNS", 500);
  int matches = 0;
  for (int run = 0; run < runs; ++run) {
    const Plan plan{.seed = static_cast<std::uint64_t>(setting("KV_INTERLEAVE_SEED", 1) + run)};
    const Report report = Explore(plan);
    ASSERT_EQ(report.fault, Fault::None) << "seed " << plan.seed << ": " << Text(Shrink(plan, report));
    matches += report.matches;
  }
  EXPECT_GT(matches, runs / 10) << "the persons hardly play";
}

TEST(Interleave, EqualPlansGiveEqualRunsAndScriptsCanBeReadAgain) {
  const Plan plan{.seed = 77, .actions = 60};
  const Report once = Explore(plan);
  EXPECT_EQ(Text(once), Text(Explore(plan)));
  for (const Action& action : once.actions) {
    const auto again = ParseAction(Text(action));
    ASSERT_TRUE(again.has_value());
    EXPECT_EQ(Text(*again), Text(action));
  }
  EXPECT_FALSE(ParseAction("250 nobody Start 0 box 1 no"));
}

struct Recipe {
  const char* name;
  int delay;
  const char* script;
};

class InterleaveRecipe : public testing::TestWithParam<Recipe> {};

TEST_P(InterleaveRecipe, EndsInTheLobby) {
  const Report report = Play(GetParam().script, GetParam().delay);
  EXPECT_EQ(report.fault, Fault::None) << Text(report);
}

// Each of these once ended with both waiting for ever, with books that do not fit, or with a complaint.
const Recipe kRecipes[] = {
    {"AQuestionInAPauseHoldsUpNoMove", 2,
     "10 host Start\n10 guest Start\n1500 host Wager 10\n600 guest Wager 10\n600 host Continue\n50 guest "
     "Continue\n2500 host EndTurn\n0 guest EndTurn\n150 host Forfeit 0 box 9000 no\n0 guest Forfeit 0 box "
     "9000 no\n"},
    {"AModeChangeThatMeetsBothStarts", 40, "480 host Mode\n57 host Start\n243 guest Start\n306 host Mode\n"},
    {"AModeChangeThatMeetsBothStartsTwice", 40,
     "10 host Start\n100 guest Start\n50 host Mode\n120 host Start\n"},
    {"AGoodbyeThatComesWhileAFailedSaveIsRead", 2,
     "2959 host Start\n231 guest Start\n43 host FailSaves 2\n1433 host Wager 55 box 12973 no\n418 guest "
     "Wager 55\n1444 guest LeaveProgram 0 box 1319 yes\n"},
    {"AFailedSaveThatIsReadForLong", 2,
     "10 host Start\n10 guest Start\n1500 host Wager 10\n600 guest Wager 10\n600 host Continue\n50 guest "
     "Continue\n2500 host FailSaves 1\n10 host Forfeit 0 box 6000 yes\n7500 guest Banner\n"},
    {"AStakeThatIsTakenWhileItIsGivenBack", 300,
     "10 host Start\n10 guest Start\n2500 host Wager 10\n1200 host End\n0 guest Wager 10\n"},
    {"AFailedSaveOnTheWayBack", 300,
     "10 host Start\n10 guest Start\n1800 host Wager 25\n800 host FailSaves 3 box 7000 no\n10 host End 0 box "
     "600 no\n200 guest Wager 45 box 900 yes\n2800 guest Start\n100 host Start\n"},
};

INSTANTIATE_TEST_SUITE_P(All, InterleaveRecipe, testing::ValuesIn(kRecipes),
                         [](const auto& param) { return std::string(param.param.name); });

}  // namespace
}  // namespace kv::interleave
