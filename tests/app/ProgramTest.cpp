// The whole program on the test's own clock: from the first start to the last click.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QScreen>

#include "app/AccessibleRoles.h"
#include "history/MatchReplay.h"
#include "platform/Files.h"
#include "support/ProgramStage.h"

namespace kv::test {
namespace {

class ProgramTest : public testing::Test, protected ProgramStage {
 protected:
  [[nodiscard]] frmGame& Match() { return *program->screenAs<frmGame>(); }
  void EnterArcade(int stake, bool toMatch = false) {
    Click("cmdArcade");
    SettleStake(stake);
    if (toMatch) ToMatch();
  }
  /// From the card screen, where the stake is settled, to the player's first turn.
  void ToMatch() {
    Click("cmdContinue");
    Settle(6000);
  }
  /// On the card screen: sets the stake; the stored deck is taken as it is.
  void SettleStake(int stake) {
    Control<QLineEdit>("txtWager").setText(QString::number(stake));
    Click("cmdWager");
    Settle(500);
  }
  /// Gives up the match and uses the banner's last continue.
  void LoseMatch() {
    dialogs.answers.push_back(true);
    Match().titlebar().Quit();
    Settle(6000);
    Match().banner().Click();
    Settle(6000);
  }
};

TEST_F(ProgramTest, TheStyleChosenInTheOptionsIsThatOfTheNextScreens) {
  EnterMenuAs("ann");
  Click("cmdOptions");
  EXPECT_EQ(ScreenName(), "frmOptions");
  Control<QListWidget>("lstInterface").setCurrentRow(1);
  Click("cmdOK");
  EXPECT_EQ(Stored("ann")->Interface_Opt, "Ember");
  EnterArcade(10, true);
  EXPECT_EQ(Match().StyleIndex(), 1);
  EXPECT_EQ(Match().hand().ctlYourDeck(1).size(), QSize(83, 102));
}

TEST_F(ProgramTest, AnArcadeRunIsPlayedForItsCreditsAndEndsInTheMenu) {
  EnterMenuAs("ann", [](clsPlayer& player) { player.Arcade_Best = 90; });
  EnterArcade(30);
  EXPECT_EQ(program->game()->Wager, 30);
  ToMatch();
  LoseMatch();
  EXPECT_EQ(ScreenName(), "frmCards");
  EXPECT_EQ(program->game()->CreditsRef->Value, 70);
  EXPECT_EQ(program->game()->Wager, -1);
  SettleStake(70);
  dialogs.answers = {true};
  Control<ctlTitlebar>("ctlTitlebar").Quit();
  Settle(1000);
  EXPECT_EQ(ScreenName(), "frmCards") << "a forfeit on the card screen opens it afresh";
  EXPECT_EQ(program->game()->CreditsRef->Value, 0);
  Click("cmdEnd");
  EXPECT_EQ(ScreenName(), "frmMenu");
  EXPECT_EQ(program->game(), nullptr);
  EXPECT_EQ(Stored("ann")->Arcade_Best, 90);
  EXPECT_EQ(program->Retired(), 0u) << "closed screens are destroyed once no pause is under way";
}

TEST_F(ProgramTest, EveryMatchIsKeptAlsoOneThatIsLeft) {
  EnterMenuAs("ann");
  EnterArcade(30);
  EXPECT_FALSE(FileExists(folder / "ann.history.sqlite"));
  ToMatch();
  LoseMatch();
  auto lines = program->history()->Lines();
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0].outcome, MatchOutcome::Lost);
  EXPECT_EQ(lines[0].style, EndStyle::GivenUp);
  EXPECT_EQ(lines[0].mode, "Arcade");
  EXPECT_EQ(lines[0].stake, 30);
  EXPECT_EQ(lines[0].after, 70);
  EXPECT_EQ(lines[0].strategy, "standard");
  EXPECT_EQ(lines[0].opponent, program->game()->OppName);
  EXPECT_TRUE(PlayAgain(*program->history()->Load(lines[0].id)));
  SettleStake(20);
  ToMatch();
  program->EndAtOnce();
  program.reset();
  lines = HistoryFile(folder / "ann.history.sqlite").Lines();
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_TRUE(std::ranges::any_of(lines, [](const MatchLine& line) { return line.style == EndStyle::Left; }));
}

TEST_F(ProgramTest, AHistoryGoesWithItsPlayerToAnotherNameAndToTheTrash) {
  MakePlayer("ann");
  folder.Put("ann.history.sqlite", "matches");
  folder.Put("ann.history.sqlite-wal", "the last of them");
  Settings(settings).setLastPlayer("ann");
  Start();
  dialogs.texts = {"zoe"};
  Click("lnkRename");
  EXPECT_EQ(folder.Get("zoe.history.sqlite") + folder.Get("zoe.history.sqlite-wal"),
            "matchesthe last of them");
  EXPECT_EQ(Settings(settings).lastPlayer(), "zoe");
  dialogs.answers = {true};
  Click("lnkDelete");
  EXPECT_EQ(trashed, (std::vector<std::string>{"zoe.vnt", "zoe.history.sqlite", "zoe.history.sqlite-wal"}));
}

TEST_F(ProgramTest, AHistoryThatCannotBeWrittenCostsNoMatchAndIsToldOnce) {
  MakePlayer("ann");
  std::filesystem::create_directory(folder / "ann.history.sqlite");
  Start();
  EnterMenu("ann");
  EnterArcade(30, true);
  LoseMatch();
  EXPECT_EQ(dialogs.boxes.size(), 1u) << "the question before the forfeit";
  EXPECT_EQ(program->game()->CreditsRef->Value, 70);
  EXPECT_EQ(
      std::ranges::count_if(
          announcer.told, [](const std::string& told) { return told.find("history") != std::string::npos; }),
      1);
}

TEST_F(ProgramTest, ACampaignMatchIsBookedInAdvanceAndOnce) {
  EnterMenuAs("ann");
  Click("cmdCampaign");
  EXPECT_EQ(ScreenName(), "frmCampaign");
  Click("cmdOpp0");
  SettleStake(10);
  EXPECT_EQ(Stored("ann")->Losses->Value, 1) << "in advance, on disk";
  EXPECT_EQ(Stored("ann")->Credits->Value, 100);
  ToMatch();
  EXPECT_EQ(Stored("ann")->Credits->Value, 90);
  LoseMatch();
  EXPECT_EQ(ScreenName(), "frmCampaign");
  EXPECT_EQ(Stored("ann")->Losses->Value, 1);
  EXPECT_EQ(Stored("ann")->Credits->Value, 90);
  EXPECT_EQ(Stored("ann")->Wins->Value, 0);
}

TEST_F(ProgramTest, APressByAScreenReaderDoesNotWaitForTheBoxThatItOpens) {
  InstallAccessibleRoles();
  EnterMenuAs("ann");
  auto& button = Control<QWidget>("cmdPlayer");
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&button);
  dialogs.answers = {false};
  spoken->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(dialogs.boxes.empty()) << "the reader would wait until it is answered";
  QCoreApplication::processEvents();
  EXPECT_EQ(dialogs.boxes.size(), 1U);
  spoken->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  button.setEnabled(false);  // before it comes to that
  QCoreApplication::processEvents();
  EXPECT_EQ(dialogs.boxes.size(), 1U);
}

TEST_F(ProgramTest, TheWindowTheTitleBarAndTheStakeAreKnownForWhatTheyAre) {
  InstallAccessibleRoles();
  EnterMenuAs("ann");
  Click("cmdArcade");
  const auto spoken = [](QWidget& widget) { return QAccessible::queryAccessibleInterface(&widget); };
  EXPECT_EQ(spoken(program->stage())->role(), QAccessible::Window);
  EXPECT_EQ(spoken(Control<QWidget>("ctlTitlebar"))->role(), QAccessible::TitleBar);
  EXPECT_EQ(spoken(Control<QWidget>("ctlTitlebar"))->text(QAccessible::Name), "Arcade Match: Select Cards");
  EXPECT_EQ(spoken(Control<QWidget>("ctlWager"))->text(QAccessible::Name), "how much do you wager?");
  QAccessibleInterface* fill = spoken(Control<QWidget>("lblWagerCredits"));
  EXPECT_EQ(fill->role(), QAccessible::Button);
  fill->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  QCoreApplication::processEvents();
  EXPECT_EQ(Control<QLineEdit>("txtWager").text(), "100");
}

/// Clicks and keys anywhere at any time, on whatever screen is open: the program neither falls nor hangs, a
/// match shows what its record holds, and the player's file can always be loaded.
TEST_F(ProgramTest, SurvivesAMonkey) {
  constexpr Qt::Key kKeys[] = {Qt::Key_0,     Qt::Key_1,      Qt::Key_2,   Qt::Key_3,    Qt::Key_4,
                               Qt::Key_Space, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Left, Qt::Key_9};
  MakePlayer("ann");
  Start();
  SeededRandom monkey(13);
  const auto upTo = [&](int end) { return static_cast<int>(monkey.Rnd() * end); };
  const std::set<std::string> all = {"frmSplash", "frmMenu", "frmOptions", "frmPortraits", "frmCampaign",
                                     "frmCards",  "frmGame", "frmNetwork", "frmRecord"};
  std::set<std::string> seen;
  // On until it has come everywhere, for a while longer if need be.
  for (int step = 0; step < 6000 || (step < 20000 && seen != all); ++step) {
    if (program->screen() == nullptr) {  // it has left the program, or the next screen is on its way
      Settle(3000);
      if (program->screen() == nullptr) Start();
      continue;
    }
    Screen& screen = *program->screen();
    seen.insert(ScreenName());
    if (ScreenName() == "frmSplash" && upTo(3) != 0) EnterMenu("ann");
    if (program->screen() != &screen) continue;
    ScreenHand hand(screen);
    dialogs.answers.assign(4, upTo(3) != 0);
    dialogs.texts.assign(4, upTo(2) == 0 ? std::optional<std::string>("7000") : std::nullopt);
    const QList<QWidget*> widgets = screen.findChildren<QWidget*>();
    const QPoint point(upTo(screen.width()), upTo(screen.height()));
    switch (upTo(4)) {
      case 0:
        hand.Press(point);
        if (program->screen() == &screen && upTo(2) == 0)
          hand.MoveTo({upTo(screen.width()), upTo(screen.height())});
        if (program->screen() == &screen) hand.Release(point);
        break;
      case 1:
      case 2:
        if (QWidget* widget = widgets.at(upTo(static_cast<int>(widgets.size()))); widget->isVisible()) {
          upTo(4) == 0 ? hand.DoubleClick(*widget) : hand.Click(*widget);
        }
        break;
      default:
        hand.Key(kKeys[upTo(std::size(kKeys))], upTo(5) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
        break;
    }
    Settle(upTo(600));
    if (frmGame* match = program->screenAs<frmGame>()) {
      for (const Seat seat : {Seat::Player, Seat::Opponent}) {
        EXPECT_EQ(match->side(seat).lblTotal().text().toInt(), match->engine().shown().Total(seat));
        EXPECT_EQ(match->side(seat).table().size(), match->engine().shown().Table(seat).size());
      }
    }
    if (clsPlayer* player = program->player(); player != nullptr && !player->PIN.empty()) {
      player->PIN.clear();  // it would lock the monkey out
      player->WritePlayerFile();
    }
    if (step % 50 == 0) static_cast<void>(Stored("ann"));
  }
  EXPECT_EQ(seen, all);
}

TEST_F(ProgramTest, EndsOnceAndLeavesNothingRunning) {
  EnterMenuAs("ann");
  Control<ctlTitlebar>("ctlTitlebar").Quit();
  EXPECT_EQ(sound.Count("losematch"), 1);
  Settle(2000);
  EXPECT_EQ(quits, 0) << "the farewell is heard out";
  Settle(1000);
  EXPECT_EQ(quits, 1);
  EXPECT_EQ(program->screen(), nullptr);
  EXPECT_EQ(scheduler.RunningTimers(), 0);
}

TEST_F(ProgramTest, EndsAtOnceWithoutAQuestionAndKeepsTheRecord) {
  for (const bool boxOpen : {false, true}) {
    EnterMenuAs("ann", [](clsPlayer& player) { player.Arcade_Best = 20; });
    EnterArcade(10, true);
    quits = 0;
    dialogs.boxes.clear();
    if (boxOpen) {
      dialogs.answers = {true};
      dialogs.whileOpen = [this] { program->EndAtOnce(); };
      Match().titlebar().Quit();
      dialogs.whileOpen = {};
    } else {
      scheduler.At(200, [this] { program->EndAtOnce(); });
      Match().engine().person().EndTurn();
    }
    Settle(6000);
    EXPECT_EQ(quits, 1);
    EXPECT_EQ(dialogs.boxes.size(), boxOpen ? 1u : 0u);
    EXPECT_EQ(Stored("ann")->Arcade_Best, 90) << "what is left of the run without its open stake";
    EXPECT_EQ(scheduler.RunningTimers(), 0);
  }
}

TEST_F(ProgramTest, AFileThatCannotBeSavedHoldsUpNoEnd) {
  EnterMenuAs("ann");
  EnterArcade(10);
  std::filesystem::remove_all(folder.path());
  program->EndAtOnce();
  EXPECT_EQ(quits, 1);
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(ProgramTest, ScreensOpenInsideTheWorkAreaAndComeBackToTheirPlace) {
  MakePlayer("ann", [](clsPlayer& player) { player.Interface_Opt = "Ember"; });
  Start();
  Stage& stage = program->stage();
  const QRect area = stage.screen()->availableGeometry();
  stage.move(area.left() - 100, area.top() - 100);
  EnterMenu("ann");
  const QPoint menu = stage.pos();
  EXPECT_TRUE(area.contains(stage.geometry()));
  ASSERT_LT(area.width(), 1024) << "the card screen must be wider than the work area";
  EnterArcade(10);
  EXPECT_EQ(stage.pos(), area.topLeft()) << "the title bar can be reached";
  dialogs.answers = {true};
  Control<ctlTitlebar>("ctlTitlebar").Quit();
  Settle(1000);
  Click("cmdEnd");
  EXPECT_EQ(stage.pos(), menu);
  stage.move(area.bottomRight());
  Click("cmdOptions");
  EXPECT_TRUE(area.contains(stage.geometry()));
}

TEST_F(ProgramTest, ADoubleClickEndsWithTheScreenThatItOpens) {
  /// Counts what the pointer does to a screen of this name.
  class Presses final : public QObject {
   public:
    bool eventFilter(QObject* watched, QEvent* event) override {
      const auto* widget = qobject_cast<QWidget*>(watched);
      const bool press =
          event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
      if (press && widget != nullptr && widget->objectName() == "frmOptions") ++count;
      return false;
    }
    int count = 0;
  };
  EnterMenuAs("ann");
  Presses presses;
  QCoreApplication::instance()->installEventFilter(&presses);
  ScreenHand(*program->screen()).DoubleClick(Control<QWidget>("cmdOptions"));
  ASSERT_EQ(ScreenName(), "frmOptions");
  EXPECT_EQ(presses.count, 0);
  const QPoint empty(3, 300);
  QTest::mouseClick(program->stage().windowHandle(), Qt::LeftButton, {}, empty);
  EXPECT_EQ(presses.count, 1);
}

TEST_F(ProgramTest, EndsInTheMiddleOfAPause) {
  EnterMenuAs("ann");
  EnterArcade(10, true);
  dialogs.answers = {true};
  scheduler.At(200, [this] { program->screen()->LeaveProgram(); });
  Match().engine().person().EndTurn();
  Settle(6000);
  EXPECT_EQ(quits, 1);
  EXPECT_EQ(scheduler.RunningTimers(), 0);
}

}  // namespace
}  // namespace kv::test
