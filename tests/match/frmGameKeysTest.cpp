// The match screen's keys, of which only the first press counts, and the ways to leave it.
#include <gmock/gmock.h>

#include <QKeyEvent>

#include "match/MatchScreenTest.h"

namespace kv::test {
namespace {

using frmGameKeysTest = MatchScreenTest;

INSTANTIATE_TEST_SUITE_P(Styles, frmGameKeysTest, testing::Values("Slate", "Ember"),
                         [](const auto& style) { return std::string(style.param); });

/// The press that a keyboard sends again while a key is held.
void Repeat(QWidget& widget, Qt::Key key, const QString& text = {}) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text, true);
  QCoreApplication::sendEvent(&widget, &press);
}

TEST_P(frmGameKeysTest, ARepeatedGameKeyDoesNothing) {
  MatchScreen& match = Begin({4});
  for (const auto& [key, text] :
       {std::pair{Qt::Key_Space, " "}, {Qt::Key_Tab, "\t"}, {Qt::Key_1, "1"}, {Qt::Key_W, "w"}}) {
    Repeat(*match.screen, key, QString::fromLatin1(text));
    Repeat(match.screen->cmdTurn(), key, QString::fromLatin1(text));
  }
  EXPECT_EQ(match.engine().shown().Total(Seat::Player), 4);
  EXPECT_TRUE(match.engine().shown().controls.endTurn) << "a turn ended by the key of the turn before";
  EXPECT_FALSE(match.engine().shown().Stood(Seat::Player));
  EXPECT_EQ(match.screen->hand().ctlYourDeck(2).Card(), "fp2");
  ScreenHand(*match.screen).Key(Qt::Key_W);
  EXPECT_EQ(match.screen->hand().ctlYourDeck(2).Card(), "fm2") << "the first press of it acts";
}

TEST_P(frmGameKeysTest, ARepeatedEnterOrEscapeNeitherPlaysNorConfirmsNorAsks) {
  MatchScreen& match = BeginWith([](clsPlayer& player) { player.KeysEn = false; });
  Repeat(match.screen->hand().ctlYourDeck(1), Qt::Key_Return, QStringLiteral("\r"));
  Repeat(match.screen->hand().ctlYourDeck(1), Qt::Key_Space, QStringLiteral(" "));
  EXPECT_EQ(match.engine().shown().Total(Seat::Player), 4);
  Repeat(*match.screen, Qt::Key_Escape);
  EXPECT_TRUE(match.dialogs.boxes.empty());
  match.dialogs.answers = {true};
  ScreenHand(*match.screen).Key(Qt::Key_Escape);
  ASSERT_TRUE(match.screen->banner().isVisible());
  Repeat(*match.screen, Qt::Key_Return, QStringLiteral("\r"));
  EXPECT_TRUE(match.screen->banner().isVisible());
  EXPECT_EQ(match.recorded.Count("LeaveMatch"), 0);
}

TEST_P(frmGameKeysTest, TableAndHandAreToldAgainByAKeyEach) {
  MatchScreen& match = Begin({4});
  ScreenHand(*match.screen).Key(Qt::Key_F2);
  EXPECT_THAT(
      match.announcer.Last(),
      testing::MatchesRegex("Your table: 4, total 4\\. .*'s table: empty, total 0\\. 4 cards in hand\\. "
                            "Sets 0 to 0\\. Hand: plus 3; .* Your turn\\."));
  ScreenHand(*match.screen).Key(Qt::Key_F3);
  EXPECT_EQ(match.announcer.Last().substr(0, 13), "Hand: plus 3;");
  EXPECT_EQ(match.screen->side(Seat::Player).light().accessibleName(), QStringLiteral("Your turn light: on"));
}

TEST_P(frmGameKeysTest, AKeyThatThePlayerHasBoundIsNoKeyToHear) {
  constexpr std::int16_t kF2 = 113;
  MatchScreen& match = BeginWith([](clsPlayer& player) { player.Keys->setValue(1, 2, kF2); });
  match.announcer.told.clear();
  ScreenHand(*match.screen).Key(Qt::Key_F2);
  EXPECT_TRUE(match.engine().shown().Stood(Seat::Player));
  EXPECT_NE(match.announcer.Last().substr(0, 10), "Your table");
}

/// The panel of a first match: two buttons and two keys, and everything else goes where it went.
TEST_P(frmGameKeysTest, ANewcomerIsShownHowByAKeyOrNeverAgain) {
  MatchScreenSetup setup = Setup({5, 3, 4, 3});
  setup.newcomer = true;
  MatchScreen& match = Begin(setup);
  ctlGuide& guide = *match.screen->guide();
  EXPECT_TRUE(guide.isVisible());
  EXPECT_FALSE(guide.isAncestorOf(match.screen->focusWidget()));
  EXPECT_THAT(match.announcer.told, testing::Contains(testing::HasSubstr("F5: show me")));
  ScreenHand(*match.screen).Click(guide.cmdGuideYes());
  EXPECT_FALSE(guide.cmdGuideYes().isVisible());
  EXPECT_NE(guide.lblGuide().text().indexOf(QStringLiteral("End Turn")), -1);
  EXPECT_EQ(match.announcer.told.back(), guide.lblGuide().text().toStdString());
  ScreenHand(*match.screen).Key(Qt::Key_F6);
  EXPECT_FALSE(guide.isVisible());
  EXPECT_TRUE(match.settings.hintSeen("first_special_"));
  ScreenHand(*match.screen).Key(Qt::Key_F5);
  EXPECT_FALSE(guide.isVisible());
  EXPECT_EQ(match.engine().shown().Table(Seat::Player).size(), 1u);
}

// Leaving: forfeit, the banner by itself, the program's end, and closing at any moment.

TEST_P(frmGameKeysTest, ForfeitAsksFirst) {
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

TEST_P(frmGameKeysTest, LeavingTheProgramGivesUpTheMatchOnce) {
  MatchScreen& match = Begin({4});
  match.dialogs.answers = {false, true};
  ScreenHand(*match.screen).Key(Qt::Key_Escape);  // asks like the title bar, and is answered no
  EXPECT_EQ(match.dialogs.boxes.size(), 1u);
  EXPECT_TRUE(match.screen->isVisible());
  match.screen->close();
  EXPECT_EQ(match.recorded.Count("EndProgram"), 1);
  EXPECT_EQ(match.bookings, 1);
}

TEST_P(frmGameKeysTest, AutoConfirm) {
  MatchScreen& match = BeginWith([](clsPlayer& player) { player.AutoDialogs_Opt = true; }, {4, 10, 5, 9});
  match.strategy.turns = {StandOpponent};
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
TEST_P(frmGameKeysTest, ClosesAtAnyMoment) {
  for (int moment = 0; moment < 2600; moment += 37) {
    MatchScreen match(Setup({4, 10, 5, 9}));
    match.strategy.turns = {PlayFirstAndStand};
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
}  // namespace kv::test
