// The match screen's keys, what each does and that only its first press counts; and the ways to leave the
// screen.
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
  Hand().Key(Qt::Key_W);
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
  Hand().Key(Qt::Key_Escape);
  ASSERT_TRUE(match.screen->banner().isVisible());
  Repeat(*match.screen, Qt::Key_Return, QStringLiteral("\r"));
  EXPECT_TRUE(match.screen->banner().isVisible());
  EXPECT_EQ(match.recorded.Count("LeaveMatch"), 0);
}

TEST_P(frmGameKeysTest, TableAndHandAreToldAgainByAKeyEach) {
  MatchScreen& match = Begin({4});
  Hand().Key(Qt::Key_F2);
  EXPECT_THAT(
      match.announcer.Last(),
      testing::MatchesRegex("Your table: 4, total 4\\. .*'s table: empty, total 0\\. 4 cards in hand\\. "
                            "Sets 0 to 0\\. Hand: plus 3; .* Your turn\\."));
  Hand().Key(Qt::Key_F3);
  EXPECT_EQ(match.announcer.Last().substr(0, 13), "Hand: plus 3;");
  EXPECT_EQ(match.screen->side(Seat::Player).light().accessibleName(), QStringLiteral("Your turn light: on"));
}

TEST_P(frmGameKeysTest, AKeyThatThePlayerHasBoundIsNoKeyToHear) {
  constexpr std::int16_t kF2 = 113;
  MatchScreen& match = BeginWith([](clsPlayer& player) { player.Keys->setValue(1, 2, kF2); });
  match.announcer.told.clear();
  Hand().Key(Qt::Key_F2);
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
  Hand().Click(guide.cmdGuideYes());
  EXPECT_FALSE(guide.cmdGuideYes().isVisible());
  EXPECT_NE(guide.lblGuide().text().indexOf(QStringLiteral("End Turn")), -1);
  EXPECT_EQ(match.announcer.told.back(), guide.lblGuide().text().toStdString());
  Hand().Key(Qt::Key_F6);
  EXPECT_FALSE(guide.isVisible());
  EXPECT_TRUE(match.settings.hintSeen("first_special_"));
  Hand().Key(Qt::Key_F5);
  EXPECT_FALSE(guide.isVisible());
  EXPECT_EQ(match.engine().shown().Table(Seat::Player).size(), 1u);
}

// Leaving: forfeit, the banner by itself, the program's end, and closing at any moment.

TEST_P(frmGameKeysTest, ForfeitAsksFirst) {
  MatchScreen& match = Begin({4});
  match.dialogs.answers = {false, true};
  Hand().Click(match.screen->cmdForfeit());
  ASSERT_EQ(match.dialogs.boxes.size(), 1u);
  EXPECT_EQ(match.dialogs.boxes[0].text, "Are you sure you wish to forfeit this match?");
  EXPECT_EQ(match.dialogs.boxes[0].title, "Kelm Vantri: Forfeit Match");
  EXPECT_EQ(match.dialogs.boxes[0].icon, DialogIcon::Exclamation);
  EXPECT_TRUE(match.screen->cmdForfeit().Enabled()) << "No gives the button back";
  EXPECT_TRUE(match.screen->cmdTurn().Enabled());

  Hand().Click(match.screen->titlebar().cmdQuit());
  EXPECT_EQ(match.dialogs.boxes.size(), 2u);
  EXPECT_EQ(match.screen->banner().lblBust().text(), QStringLiteral("You have been defeated."));
  EXPECT_EQ(match.screen->side(Seat::Opponent).SetWinsShown(), 3);
  EXPECT_FALSE(match.screen->cmdTurn().Enabled());
  EXPECT_FALSE(match.screen->hand().imgFlip(2).isEnabled());
  EXPECT_EQ(match.bookings, 1);
  match.Settle();
  // After the match the title bar's close is the banner's button.
  Hand().Click(match.screen->titlebar().cmdQuit());
  EXPECT_EQ(match.recorded.Count("LeaveMatch"), 1);
  EXPECT_FALSE(match.screen->isVisible());
  EXPECT_EQ(match.bookings, 1);
}

TEST_P(frmGameKeysTest, LeavingTheProgramGivesUpTheMatchOnce) {
  MatchScreen& match = Begin({4});
  match.dialogs.answers = {false, true};
  Hand().Key(Qt::Key_Escape);  // asks like the title bar, and is answered no
  EXPECT_EQ(match.dialogs.boxes.size(), 1u);
  EXPECT_TRUE(match.screen->isVisible());
  match.screen->close();
  EXPECT_EQ(match.recorded.Count("EndProgram"), 1);
  EXPECT_EQ(match.bookings, 1);
}

TEST_P(frmGameKeysTest, AutoConfirm) {
  MatchScreen& match = BeginWith([](clsPlayer& player) { player.AutoDialogs_Opt = true; }, {4, 10, 5, 9});
  match.strategy.turns = {StandOpponent};
  Hand().Click(match.screen->cmdStand());
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

constexpr int kKeyQ = 81;
constexpr int kKeyA = 65;

class MatchKeysTest : public testing::Test {
 protected:
  KeyAction Press(int key, KeyModifiers held = {}, const FlipsShown& flips = {}) const {
    return KeyActionOf(keys, key, held, flips);
  }

  PlayerFields player;
  clsCardArray& keys = *player.Keys;
  const FlipsShown all{{true, true, true, true}, {true, true, true, true}};
};

TEST_F(MatchKeysTest, DefaultKeys) {
  EXPECT_EQ(Press(KeySpace), (KeyAction{KeyCommand::EndTurn}));
  EXPECT_EQ(Press(KeyTab), (KeyAction{KeyCommand::Stand}));
  EXPECT_EQ(Press('3'), (KeyAction{KeyCommand::Play, 3}));
  EXPECT_EQ(Press(kKeyQ, {}, all), (KeyAction{KeyCommand::FirstFlip, 1}));
  EXPECT_EQ(Press(kKeyA, {}, all), (KeyAction{KeyCommand::SecondFlip, 1}));
  EXPECT_EQ(Press(kKeyQ), KeyAction{}) << "a flip button that is not shown";
  // Entries without a binding hold 0, the code of keys that the platform does not know.
  for (const int unbound : {0, -1, int{KeyEnter}, 70000}) {
    EXPECT_FALSE(IsBoundKey(keys, unbound));
    EXPECT_EQ(Press(unbound, {}, all), KeyAction{});
  }
}

TEST_F(MatchKeysTest, ModifiersTurnAPlayKeyIntoAFlip) {
  EXPECT_EQ(Press('2', {.shift = true}, all), (KeyAction{KeyCommand::FirstFlip, 2}));
  EXPECT_EQ(Press('2', {.alt = true}, all), (KeyAction{KeyCommand::FirstFlip, 2}));
  EXPECT_EQ(Press('2', {.control = true}, all), (KeyAction{KeyCommand::SecondFlip, 2}));
  EXPECT_EQ(Press('2', {.shift = true}), KeyAction{}) << "never played by mistake for a flip";
  EXPECT_EQ(Press(KeySpace, {.shift = true}), (KeyAction{KeyCommand::EndTurn}));
}

TEST_F(MatchKeysTest, AModifierFlipsTheCardOfThePlayKeyWhateverTheFlipKeysAre) {
  for (const std::int16_t flipKey : {std::int16_t{0}, std::int16_t{kKeyQ}}) {  // cleared, and one for all
    for (int slot = 1; slot <= 4; ++slot) {
      keys.setValue(3, slot, flipKey);
      keys.setValue(4, slot, flipKey);
    }
    EXPECT_EQ(Press('3', {.shift = true}, all), (KeyAction{KeyCommand::FirstFlip, 3}));
    EXPECT_EQ(Press('3', {.control = true}, all), (KeyAction{KeyCommand::SecondFlip, 3}));
    const FlipsShown others{{true, true, false, true}, {true, true, false, true}};
    EXPECT_EQ(Press('3', {.alt = true}, others), KeyAction{});
    EXPECT_EQ(Press('3', {.control = true}, others), KeyAction{});
  }
}

TEST_F(MatchKeysTest, ABoundModifierIsAKeyLikeAnyOther) {
  keys.setValue(1, 1, KeyShift);
  EXPECT_EQ(Press(KeyShift, {.shift = true}, all), (KeyAction{KeyCommand::EndTurn}));
  EXPECT_EQ(Press('2', {.shift = true}, all), (KeyAction{KeyCommand::Play, 2}));
  EXPECT_EQ(Press('2', {.control = true}, all), (KeyAction{KeyCommand::SecondFlip, 2}));
  keys.setValue(1, 2, KeyControl);
  EXPECT_EQ(Press('2', {.control = true}, all), (KeyAction{KeyCommand::Play, 2}));
  EXPECT_EQ(Press('2', {.control = true, .alt = true}, all), (KeyAction{KeyCommand::FirstFlip, 2}));
}

TEST_F(MatchKeysTest, OneKeyForSeveralThings) {
  // The first rule wins; among flip buttons the first that is shown.
  for (int slot = 1; slot <= 4; ++slot) keys.setValue(3, slot, kKeyQ);
  EXPECT_EQ(Press(kKeyQ, {}, {{false, false, true, true}, {}}), (KeyAction{KeyCommand::FirstFlip, 3}));
  keys.setValue(4, 2, kKeyQ);
  EXPECT_EQ(Press(kKeyQ, {}, {{}, {true, true, true, true}}), (KeyAction{KeyCommand::SecondFlip, 2}));
  keys.setValue(2, 4, kKeyQ);
  EXPECT_EQ(Press(kKeyQ, {}, all), (KeyAction{KeyCommand::Play, 4}));
  keys.setValue(1, 2, kKeyQ);
  EXPECT_EQ(Press(kKeyQ, {}, all), (KeyAction{KeyCommand::Stand}));
}

}  // namespace
}  // namespace kv::test
