// The whole program on the test's own clock: from the player file to one match after another.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QCoreApplication>

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
