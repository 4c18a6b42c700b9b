// A match of the past: its review, what it says of a match that is known and that leaving ends it at once;
// and its replay, through which keys and the clock lead.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QTableView>

#include "history/frmReplay.h"
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
  EXPECT_TRUE(screen->findChild<QLabel*>("lblAssumed")->isVisible());
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

using Told = std::vector<std::string>;

class frmReplayTest : public testing::TestWithParam<const char*>, protected OneScreen<frmReplay> {
 protected:
  frmReplayTest() : OneScreen(GetParam()), record(SampleMatch(12, "Tamsen")) {}
  ~frmReplayTest() override { screen.reset(); }

  void Open() { Show(std::make_unique<frmReplay>(services(), frmReplayServices{player, record}), 0); }
  ctlCard& HandCard(const char* name, int slot) {
    return Find<ctlCard>((name + std::to_string(slot)).c_str());
  }
  /// All that a person sees of the match.
  Told Seen() {
    Told seen{Text("lblPlace"), Text("lblStrip")};
    for (const Seat seat : {Seat::Player, Seat::Opponent}) {
      const frmGameSide& side = screen->side(seat);
      seen.push_back(side.lblTotal().text().toStdString());
      seen.push_back(std::to_string(side.SetWinsShown()));
      seen.push_back(side.light().accessibleName().toStdString());
      for (const ctlCard* card : side.table()) seen.push_back(card->Card());
    }
    for (int slot = 1; slot <= kHandSize; ++slot) {
      for (const char* name : {"ctlYourDeck", "ctlOppDeck"}) {
        const ctlCard& card = HandCard(name, slot);
        seen.push_back(card.isHidden() ? "-" : card.Card());
      }
    }
    return seen;
  }

  MatchRecord record;
};
INSTANTIATE_TEST_SUITE_P(Styles, frmReplayTest, testing::Values("Slate", "Ember"),
                         [](const auto& style) { return std::string(style.param); });

TEST_P(frmReplayTest, ShowsTheSameForthAndBack) {
  Open();
  const std::vector<ReplayStep> steps = StepsOf(record);
  std::vector<Told> forth{Seen()};
  EXPECT_EQ(HandCard("ctlOppDeck", 1).Card(), record.hands[1][0].text()) << "both hands are open";
  while (!screen->course().AtEnd()) {
    hand->Key(Qt::Key_Right);
    forth.push_back(Seen());
    EXPECT_FALSE(Text("lblStrip").empty()) << forth.size();
    const ReplayStep& step = steps.at(forth.size() - 1);
    for (const Seat seat : {Seat::Player, Seat::Opponent}) {
      const auto index = static_cast<std::size_t>(seat);
      EXPECT_EQ(screen->side(seat).table().size(), step.tables.at(index).size());
      EXPECT_EQ(screen->side(seat).SetWinsShown(), step.setWins.at(index));
    }
  }
  ASSERT_EQ(forth.size(), steps.size() - 1) << "the booking of a loss changes nothing: no step";
  EXPECT_FALSE(Find("cmdForward").isEnabled());
  for (std::size_t i = forth.size(); i > 0; --i) {
    EXPECT_EQ(Seen(), forth[i - 1]) << "step " << i;
    hand->Key(Qt::Key_Left);
  }
  EXPECT_EQ(Seen(), forth[0]) << "there is nothing before the beginning";
}

TEST_P(frmReplayTest, GoesFromSetToSetAndRunsByItself) {
  Open();
  const auto click = [&](const char* name) { hand->Click(Find(name)); };
  click("cmdNextSet");
  click("cmdNextSet");
  EXPECT_EQ(Text("lblStrip").substr(0, 6), "Set 2.");
  EXPECT_TRUE(screen->side(Seat::Player).table().empty());
  const Told second = Seen();
  click("cmdRun");
  Settle(2000);
  EXPECT_NE(Seen(), second);
  EXPECT_EQ(announcer.Last(), Text("lblStrip"));
  hand->Key(Qt::Key_PageUp);
  EXPECT_EQ(Seen(), second);
  EXPECT_EQ(scheduler.RunningTimers(), 0) << "a step ends the run";
  hand->Key(Qt::Key_PageUp);
  EXPECT_EQ(Text("lblStrip").substr(0, 6), "Set 1.");
  click("cmdRun");
  Settle(900 * static_cast<int>(screen->course().size()));
  EXPECT_TRUE(screen->course().AtEnd());
  EXPECT_EQ(scheduler.RunningTimers(), 0);
  hand->Key(Qt::Key_Escape);
  EXPECT_EQ(recorded.calls, std::vector<std::string>{"OpenRecord"});
}

TEST_P(frmReplayTest, GoesToASetByItsNumber) {
  Open();
  auto& sets = Find<QComboBox>("cmbSet");
  ASSERT_EQ(sets.count(), static_cast<int>(record.sets.size()));
  hand->Key(Qt::Key_3);
  EXPECT_EQ(Text("lblStrip").substr(0, 6), "Set 3.");
  EXPECT_EQ(sets.currentIndex(), 2);
  hand->Key(Qt::Key_Left);
  EXPECT_EQ(sets.currentIndex(), 1) << "it says where the replay is";
  const Told before = Seen();
  hand->Key(static_cast<Qt::Key>(Qt::Key_0 + record.sets.size() + 1));
  EXPECT_EQ(Seen(), before) << "there is no such set";
  sets.setFocus();
  hand->Key(Qt::Key_Down);
  EXPECT_EQ(Text("lblStrip").substr(0, 6), "Set 3.");
  EXPECT_EQ(announcer.Last(), Text("lblStrip"));
  hand->Key(Qt::Key_1);
  EXPECT_EQ(Text("lblStrip").substr(0, 6), "Set 1.");
}

TEST_P(frmReplayTest, SaysThatThereIsNothingToPlay) {
  record = MatchRecord();
  Open();
  for (const int key : {Qt::Key_Right, Qt::Key_Left, Qt::Key_PageDown, Qt::Key_PageUp})
    hand->Key(static_cast<Qt::Key>(key));
  EXPECT_EQ(Text("lblStrip"), "This match has nothing that could be played again.");
  EXPECT_FALSE(Find("cmdRun").isEnabled());
}

}  // namespace
}  // namespace kv::test
