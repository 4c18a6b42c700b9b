// Keys that are held too long on the match screen: only their first press counts.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QKeyEvent>

#include "match/MatchScreenTest.h"
#include "match/frmGame.h"

namespace kv {
namespace {

using test::MatchScreen;
using test::MatchScreenSetup;
using test::ScreenHand;

using frmGameKeysTest = test::MatchScreenTest;

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
  MatchScreenSetup setup = Setup({4});
  setup.options = [](clsPlayer& player) { player.KeysEn = false; };
  MatchScreen match(setup);
  match.Begin();
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
  MatchScreenSetup setup = Setup({4});
  setup.options = [](clsPlayer& player) { player.Keys->setValue(1, 2, kF2); };
  MatchScreen match(setup);
  match.Begin();
  match.announcer.told.clear();
  ScreenHand(*match.screen).Key(Qt::Key_F2);
  EXPECT_TRUE(match.engine().shown().Stood(Seat::Player));
  EXPECT_NE(match.announcer.Last().substr(0, 10), "Your table");
}

/// The panel of a first match: two buttons and two keys, and everything else goes where it went.
TEST_P(frmGameKeysTest, ANewcomerIsShownHowByAKeyOrNeverAgain) {
  MatchScreenSetup setup = Setup({5, 3, 4, 3});
  setup.newcomer = true;
  MatchScreen match(setup);
  match.Begin();
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

}  // namespace
}  // namespace kv
