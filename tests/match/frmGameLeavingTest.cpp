// Leaving the match screen: forfeit, the banner by itself, the program's end, and closing at any moment.
#include <gtest/gtest.h>

#include "match/MatchScreenTest.h"
#include "match/frmGame.h"

namespace kv {
namespace {

using test::MatchScreen;
using test::MatchScreenSetup;
using test::ScreenHand;

using frmGameLeavingTest = test::MatchScreenTest;

INSTANTIATE_TEST_SUITE_P(Styles, frmGameLeavingTest, testing::Values("Slate", "Ember"),
                         [](const auto& style) { return std::string(style.param); });

TEST_P(frmGameLeavingTest, ForfeitAsksFirst) {
  MatchScreen& match = Begin({4});
  ScreenHand hand(*match.screen);
  match.dialogs.answers = {false, true};
  hand.Click(match.screen->cmdForfeit());
  ASSERT_EQ(match.dialogs.boxes.size(), 1u);
  EXPECT_EQ(match.dialogs.boxes[0].text, "Are you sure you wish to forfeit this match?");
  EXPECT_EQ(match.dialogs.boxes[0].title, "Kelm Vantri: Forfeit Match");
  EXPECT_TRUE(match.screen->cmdForfeit().Enabled()) << "No gives the button back";
  EXPECT_TRUE(match.screen->cmdTurn().Enabled());

  hand.Click(match.screen->titlebar().cmdQuit());
  EXPECT_EQ(match.dialogs.boxes.size(), 2u);
  EXPECT_EQ(match.screen->banner().lblBust().text(), QStringLiteral("You have been defeated."));
  EXPECT_EQ(match.screen->side(Seat::Opponent).SetWinsShown(), 3);
  EXPECT_FALSE(match.screen->cmdTurn().Enabled());
  EXPECT_FALSE(match.screen->hand().imgFlip(2).isEnabled());
  EXPECT_EQ(match.bookings, 1);
  match.Settle();
  // After the match the title bar's close is the banner's button.
  hand.Click(match.screen->titlebar().cmdQuit());
  EXPECT_EQ(match.recorded.Count("LeaveMatch"), 1);
  EXPECT_FALSE(match.screen->isVisible());
  EXPECT_EQ(match.bookings, 1);
}

TEST_P(frmGameLeavingTest, LeavingTheProgramGivesUpTheMatchOnce) {
  MatchScreen& match = Begin({4});
  match.dialogs.answers = {false, true};
  ScreenHand(*match.screen).Key(Qt::Key_Escape);  // asks like the title bar, and is answered no
  EXPECT_EQ(match.dialogs.boxes.size(), 1u);
  EXPECT_TRUE(match.screen->isVisible());
  match.screen->close();
  EXPECT_EQ(match.recorded.Count("EndProgram"), 1);
  EXPECT_EQ(match.bookings, 1);
}

TEST_P(frmGameLeavingTest, AutoConfirm) {
  MatchScreenSetup setup = Setup({4, 10, 5, 9});
  setup.options = [](clsPlayer& player) { player.AutoDialogs_Opt = true; };
  MatchScreen match(setup);
  match.strategy.turns.assign(1, [](AiOperations& side) { side.AI_Stand(); });
  match.Begin();
  ScreenHand hand(*match.screen);
  hand.Click(match.screen->cmdStand());
  while (!match.screen->banner().isVisible()) match.scheduler.Advance(10);
  EXPECT_FALSE(match.screen->banner().cmdBust().Enabled());
  const int clicks = match.sound.Count("click");
  match.scheduler.Advance(780);
  EXPECT_EQ(match.engine().shown().Table(Seat::Player).size(), 1u);
  match.scheduler.Advance(400);
  EXPECT_EQ(match.sound.Count("click"), clicks + 1);
  match.Settle();
  EXPECT_FALSE(match.screen->banner().isVisible());
  EXPECT_EQ(match.engine().shown().SetWins(Seat::Opponent), 1);
}

/// Closes the screen at every few milliseconds of a match: in pauses, between turns, under the banner.
TEST_P(frmGameLeavingTest, ClosesAtAnyMoment) {
  for (int moment = 0; moment < 2600; moment += 37) {
    MatchScreen match(Setup({4, 10, 5, 9}));
    match.strategy.turns.assign(1, [](AiOperations& side) {
      side.AI_PlayCard(1);
      side.AI_Stand();
    });
    match.scheduler.At(moment, [&] { match.screen->CloseScreen(); });
    match.scheduler.At(1100, [&] { match.engine().person().Stand(); });
    match.Begin();
    EXPECT_FALSE(match.screen->isVisible());
    const std::size_t pauses = match.scheduler.pauses.size();
    match.Settle();
    EXPECT_EQ(match.scheduler.RunningTimers(), 0) << "closed at " << moment;
    EXPECT_EQ(match.scheduler.pauses.size(), pauses);
    match.screen.reset();
  }
}

}  // namespace
}  // namespace kv
