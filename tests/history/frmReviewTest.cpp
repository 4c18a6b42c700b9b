// The review of a match: what it says of a match that is known, and that leaving ends it at once.
#include <gtest/gtest.h>

#include <QTableView>
#include <filesystem>

#include "history/frmReview.h"
#include "support/OneScreen.h"
#include "support/Position.h"
#include "support/SampleMatch.h"

namespace kv::test {
namespace {

constexpr int kEndless = 1'000'000'000;  // matches for a decision

std::ptrdiff_t Threads() {
  const std::filesystem::directory_iterator tasks("/proc/self/task");
  return std::distance(begin(tasks), end(tasks));
}

class frmReviewTest : public testing::Test, protected OneScreen<frmReview> {
 protected:
  frmReview& Open(const MatchRecord& record, int matches) {
    return Show(std::make_unique<frmReview>(services(), frmReviewServices{player, record, matches}), 0);
  }
  void Finish() {
    screen->running()->Wait();
    Settle(200);
  }
  std::string Cell(int row, int column) {
    const auto* model = Find<QTableView>("tblDecisions").model();
    return model->data(model->index(row, column)).toString().toStdString();
  }
};

TEST(MatchReview, HasTheTurnsAsTheyWerePlayedAndNothingOfTheOtherHand) {
  MatchRecord record = SampleMatch(3);
  const std::vector<PlayedTurn> turns = TurnsOf(record);
  std::size_t closed = 0;
  for (const RecordedSet& set : record.sets) {
    closed += static_cast<std::size_t>(std::count_if(
        set.moves.begin(), set.moves.end(), [](const auto& move) { return move.kind == MoveKind::Draw; }));
  }
  EXPECT_EQ(turns.size(), closed);
  EXPECT_GT(DecisionsIn(turns), 4u);
  EXPECT_LT(DecisionsIn(turns), turns.size());
  EXPECT_EQ(turns.front().position.turnMode, record.sets[0].starts != record.sets[1].starts ? 2 : 1);
  EXPECT_TRUE(turns.front().position.side(Seat::Opponent).deck);
  record.strategy.clear();
  EXPECT_FALSE(TurnsOf(record).front().position.side(Seat::Opponent).deck) << "that of a peer is not known";
  EXPECT_TRUE(TurnsOf(MatchRecord()).empty());
}

TEST_F(frmReviewTest, SaysWhatItTakesForADeckThatIsNotKnown) {
  MatchRecord record = SampleMatch(3, "Tamsen");
  EXPECT_EQ(AssumptionText(record), "");
  record.opponent = "Yourself";
  EXPECT_EQ(TurnsOf(record).front().position.side(Seat::Opponent).deck->getValue(), record.deck);
  record.opponent = "Somebody";  // a text that was typed may name anybody
  EXPECT_FALSE(TurnsOf(record).front().position.side(Seat::Opponent).deck) << "not a deck of empty cards";
  record.strategy.clear();
  Open(record, 1);
  EXPECT_TRUE(screen->findChild<QLabel*>(QStringLiteral("lblAssumed"))->isVisible());
  EXPECT_EQ(Text("lblAssumed"), AssumptionText(record));
}

TEST(MatchReview, SaysWhatADecisionWasWorthAndPutsTheDearestFirst) {
  const std::vector<const char*> theirs{"un0", "un0"};
  const MatchPosition lost =
      PositionOf({{"no4", "no6", "no7"}, {"ps2", "fp5"}, 2}, {{"no8", "no10"}, theirs, 2, true});
  const MatchPosition fine = PositionOf({{"no4"}, {"ps2", "fp5"}, 2}, {{}, theirs, 2});
  const std::vector<PlayedTurn> match{{fine, {}}, {lost, {.slot = 0, .card = {}, .stands = true}}};
  BackgroundReview review(match, 600);
  review.Wait();
  EXPECT_TRUE(review.done());
  const std::vector<ReviewedTurn> weighed = review.Take();
  ASSERT_EQ(weighed.size(), 2u);
  EXPECT_TRUE(review.Take().empty());
  EXPECT_EQ(DecisionText(lost, weighed[1]),
            "Set 1. Stood on 17 against a standing 18: 0 %; playing +2 and standing wins 100 %. 95 % "
            "intervals: 0 to 2 %, 98 to 100 %.");
  EXPECT_EQ(CostText(weighed[1]), "100 %");
  EXPECT_FALSE(weighed[0].Dear());
  EXPECT_EQ(ByCost(weighed), (std::vector<std::size_t>{1, 0}));
}

TEST_F(frmReviewTest, ListsEveryDecisionAndIsReachedByKeys) {
  Open(SampleMatch(12, "Tamsen"), 60);
  EXPECT_EQ(Text("lblState").substr(0, 5), "0 of ");
  Finish();
  const auto decisions = static_cast<int>(DecisionsIn(TurnsOf(SampleMatch(12))));
  EXPECT_EQ(screen->weighed().size(), static_cast<std::size_t>(decisions));
  EXPECT_EQ(screen->running(), nullptr);
  EXPECT_EQ(scheduler.RunningTimers(), 0);
  EXPECT_EQ(Text("lblState").substr(0, Text("lblState").find(',')), std::to_string(decisions) + " decisions");
  EXPECT_EQ(announcer.Last(), Text("lblState") + ".");
  EXPECT_NE(Text("lblDecision").find(Cell(0, 3)), std::string::npos) << "the dearest is chosen";
  auto& plot = Find("plot");
  plot.setFocus();
  hand->Key(Qt::Key_Home);
  EXPECT_EQ(Text("lblDecision").substr(0, 6), "Set 1.");
  EXPECT_EQ(announcer.Last(), Text("lblDecision"));
  for (const char* name : {"plot", "tblDecisions", "cmdBack"}) {
    const auto& control = Find(name);
    EXPECT_TRUE(control.focusPolicy() & Qt::TabFocus) << name;
    EXPECT_FALSE(control.accessibleName().isEmpty()) << name;
  }
  hand->Key(Qt::Key_Escape);
  EXPECT_EQ(recorded.calls, std::vector<std::string>{"OpenRecord"});
}

TEST_F(frmReviewTest, EndsWithItsScreen) {
  const std::ptrdiff_t before = Threads();
  Open(SampleMatch(3), kEndless);
  Settle(200);
  EXPECT_EQ(Threads(), before + 1) << "it weighs beside the window";
  screen->CloseScreen();
  EXPECT_EQ(Threads(), before);
  EXPECT_EQ(scheduler.RunningTimers(), 0);
  Open(SampleMatch(3), kEndless);
  screen.reset();
  EXPECT_EQ(Threads(), before) << "the program ends in the middle of it";
}

TEST_F(frmReviewTest, SaysThatThereIsNothingToReview) {
  Open(MatchRecord(), kEndless);
  EXPECT_EQ(Text("lblDecision"), "This match has no decision of yours that could be weighed.");
  EXPECT_EQ(announcer.Last(), Text("lblDecision"));
  EXPECT_EQ(screen->running(), nullptr);
  hand->Click(Find("plot"));
  hand->Key(Qt::Key_Home);
}

}  // namespace
}  // namespace kv::test
