// The whole program on the test's own clock: from the player file to one match after another.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QCoreApplication>
#include <set>

#include "app/AccessibleRoles.h"
#include "app/Program.h"
#include "platform/Files.h"
#include "support/HandScheduler.h"
#include "support/RecordingSound.h"
#include "support/ScreenHand.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"

namespace kv {
namespace {

class ProgramTest : public testing::Test {
 protected:
  void Start() {
    program =
        std::make_unique<Program>(ProgramServices{scheduler, dialogs, random, sound, [this] { ++quits; }},
                                  ProgramFolders{"no-such-folder", folder.path()});
    program->Start();
    Settle();
  }
  void Settle() {
    QCoreApplication::processEvents();
    scheduler.Advance(6000);
    QCoreApplication::processEvents();
  }
  [[nodiscard]] std::string PlayerFile(const std::string& name) const { return folder.path() + "/" + name; }
  /// Gives up the match and uses the banner's last continue.
  void LoseMatch() {
    dialogs.answers.push_back(true);
    program->match()->titlebar().Quit();
    Settle();
    program->match()->banner().Click();
    Settle();
  }

  test::TempFolder folder;
  test::HandScheduler scheduler;
  test::ScriptedDialogs dialogs;
  SeededRandom random{7};
  test::RecordingSound sound;
  int quits = 0;
  std::unique_ptr<Program> program;
};

TEST_F(ProgramTest, MakesAPlayerAndOpensAMatchWithoutItsPictures) {
  Start();
  EXPECT_TRUE(FileExists(PlayerFile("Player.vnt")));
  EXPECT_EQ(program->player().Name, "Player");
  ASSERT_NE(program->match(), nullptr);
  EXPECT_TRUE(program->match()->isVisible());
  EXPECT_EQ(program->game().Wager, 10);
  EXPECT_EQ(program->game().CreditsRef->Value, 90);
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(ProgramTest, OptionsComeFromThePlayerFile) {
  clsPlayer player(dialogs, random);
  player.Name = "Ann";
  player.Interface_Opt = "Ember";
  player.ArcadeOpp_Opt = 1;
  player.FileName = PlayerFile("Player.vnt");
  player.WritePlayerFile();
  Start();
  EXPECT_EQ(program->player().Name, "Ann");
  EXPECT_EQ(program->match()->StyleIndex(), 1);
  EXPECT_EQ(program->match()->hand().ctlYourDeck(1).size(), QSize(83, 102));
  EXPECT_EQ(program->game().OppName, "H6-J8");
}

TEST_F(ProgramTest, ADamagedPlayerFileIsToldAndLeftAlone) {
  ASSERT_EQ(AtomicWrite(PlayerFile("Player.vnt"), "not a player"), "");
  Start();
  ASSERT_EQ(dialogs.boxes.size(), 1u);
  EXPECT_EQ(dialogs.boxes[0].icon, DialogIcon::Critical);
  EXPECT_EQ(ReadWhole(PlayerFile("Player.vnt"), 100).bytes, "not a player");
  EXPECT_TRUE(FileExists(PlayerFile("Player2.vnt")));
}

TEST_F(ProgramTest, OneMatchFollowsAnother) {
  Start();
  for (int match = 1; match <= 12; ++match) {
    const frmGame* old = program->match();
    EXPECT_EQ(program->game().CreditsRef->Value, match <= 10 ? 100 - 10 * match : 210 - 10 * match - 10);
    LoseMatch();
    EXPECT_NE(program->match(), old);
    EXPECT_TRUE(program->match()->isVisible());
    EXPECT_EQ(program->game().Wager, 10);
    EXPECT_EQ(program->ClosedScreens(), 0u) << "closed screens are destroyed once no pause is under way";
  }
}

TEST_F(ProgramTest, EveryControlHasANameAndARole) {
  InstallAccessibleRoles();
  Start();
  for (QWidget* widget : program->match()->findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->focusPolicy() == Qt::NoFocus) continue;
    const QAccessibleInterface* control = QAccessible::queryAccessibleInterface(widget);
    ASSERT_NE(control, nullptr);
    EXPECT_EQ(control->role(), QAccessible::Button) << widget->objectName().toStdString();
    EXPECT_FALSE(control->text(QAccessible::Name).isEmpty()) << widget->objectName().toStdString();
  }
  while (!program->match()->cmdTurn().Enabled()) Settle();
  QAccessibleInterface* card =
      QAccessible::queryAccessibleInterface(&program->match()->hand().ctlYourDeck(1));
  const std::size_t cards = program->match()->engine().Table(Seat::Player).size();
  card->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(program->match()->engine().Table(Seat::Player).size(), cards + 1);
}

/// Clicks, drags and keys anywhere at any time: what is shown is always what the match holds.
TEST_F(ProgramTest, SurvivesAMonkey) {
  constexpr Qt::Key kKeys[] = {Qt::Key_1, Qt::Key_2,     Qt::Key_3,      Qt::Key_4,   Qt::Key_Q,
                               Qt::Key_S, Qt::Key_Space, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Left};
  Start();
  SeededRandom monkey(11);
  const auto upTo = [&](int end) { return static_cast<int>(monkey.Rnd() * end); };
  std::set<const clsDeckArray*> hands;
  for (int step = 0; step < 4000; ++step) {
    frmGame& screen = *program->match();
    test::ScreenHand hand(screen);
    dialogs.answers.assign(1, upTo(4) == 0);
    const QPoint point(upTo(screen.width() - 100), upTo(screen.height() - 100));
    const ctlCard& card = screen.hand().ctlYourDeck(1 + upTo(4));
    switch (upTo(6)) {
      case 0:
        hand.Click(upTo(2) == 0 ? static_cast<QWidget&>(screen.cmdTurn()) : screen.banner().cmdBust());
        break;
      case 1:
        hand.Press(point);
        hand.Release({upTo(screen.width()), upTo(screen.height())});
        break;
      case 2:
        if (card.isVisible()) hand.Drag(card, {3, 3}, point);
        break;
      case 3:
        if (card.isVisible()) hand.DoubleClick(card);
        break;
      default:
        hand.Key(kKeys[upTo(std::size(kKeys))], upTo(5) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
        break;
    }
    scheduler.Advance(upTo(400));
    frmGame& now = *program->match();
    hands.insert(program->game().SideDeck.get());
    for (const Seat seat : {Seat::Player, Seat::Opponent}) {
      EXPECT_EQ(now.side(seat).lblTotal().text().toInt(), now.engine().Total(seat));
      EXPECT_EQ(now.side(seat).table().size(), now.engine().Table(seat).size());
      EXPECT_EQ(now.side(seat).SetWinsShown(), now.engine().SetWins(seat));
    }
    EXPECT_EQ(now.cmdTurn().Enabled(), now.engine().controls().endTurn);
    EXPECT_EQ(now.banner().isVisible(), now.engine().banner().visible);
  }
  EXPECT_GT(hands.size(), 5u) << "it came through several matches";
  EXPECT_GT(scheduler.pauses.size(), 500u);
}

TEST_F(ProgramTest, EndsOnceAndLeavesNothingRunning) {
  Start();
  dialogs.answers = {true};
  program->match()->LeaveProgram();
  EXPECT_EQ(quits, 1);
  EXPECT_EQ(program->match(), nullptr);
  Settle();
  EXPECT_EQ(program->ClosedScreens(), 0u);
  EXPECT_EQ(scheduler.RunningTimers(), 0);
  program.reset();
}

TEST_F(ProgramTest, EndsInTheMiddleOfAPause) {
  Start();
  dialogs.answers = {true};
  scheduler.At(200, [this] { program->match()->LeaveProgram(); });
  program->match()->engine().EndTurn();
  Settle();
  EXPECT_EQ(quits, 1);
  EXPECT_EQ(scheduler.RunningTimers(), 0);
}

}  // namespace
}  // namespace kv
