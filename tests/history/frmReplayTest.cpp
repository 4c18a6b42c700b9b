// A match played again: forth and back give the same tables, and keys and the clock lead through it.
#include <gtest/gtest.h>

#include <QComboBox>

#include "history/frmReplay.h"
#include "support/OneScreen.h"
#include "support/SampleMatch.h"

namespace kv::test {
namespace {

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
INSTANTIATE_TEST_SUITE_P(Styles, frmReplayTest, testing::Values("Slate", "Ember"));

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
