// Every screen of the program in both styles: opened, closed at once, and closed while a box of its own is
// open or a pause is under way. Nothing may be left running, and the player's file must stay loadable.
#include <gtest/gtest.h>

#include "support/ProgramStage.h"
#include "support/SampleMatch.h"

namespace kv::test {
namespace {

struct Walk {
  const char* screen;
  std::function<void(ProgramStage&)> enter;  // from the menu; none: the start screen itself
  std::function<void(ProgramStage&)> ask;    // opens a box or starts a pause; none: the screen has neither
};

void Set(ProgramStage& stage, const char* box, const char* text) {
  stage.Control<QLineEdit>(box).setText(QString::fromUtf8(text));
}
void CloseByTitlebar(ProgramStage& stage) {
  stage.Control<ctlTitlebar>("ctlTitlebar").Quit();
}
void OpenCards(ProgramStage& stage) {
  stage.Click("cmdArcade");
  Set(stage, "txtWager", "10");
  stage.Click("cmdWager");
}
using Way = std::function<void(ProgramStage&)>;

/// Presses the buttons one after the other.
Way Press(std::vector<const char*> buttons) {
  return [buttons](ProgramStage& stage) {
    for (const char* button : buttons) stage.Click(button);
  };
}
Way SetAndPress(const char* box, const char* text, const char* button) {
  return [=](ProgramStage& stage) {
    Set(stage, box, text);
    stage.Click(button);
  };
}
/// To what these buttons of the record screen lead to for a match of the past.
Way PressForPast(std::vector<const char*> buttons) {
  return [buttons](ProgramStage& stage) {
    HistoryFile(HistoryFile::PathOf(stage.folder / "ann.vnt")).Store(SampleMatch(3));
    Press({"cmdRecord"})(stage);
    Press(buttons)(stage);
  };
}

const Walk kWalks[] = {
    {"frmSplash", {}, SetAndPress("txtPIN", "77", "cmdContinue")},
    {"frmMenu", Press({}), Press({"cmdPlayer"})},
    {"frmOptions", Press({"cmdOptions"}), SetAndPress("txtPIN", "1", "cmdOK")},
    {"frmPortraits", Press({"cmdOptions", "imgYourPic"}), {}},
    {"frmRecord", Press({"cmdRecord"}), Press({"cmdImport"})},
    {"frmReview", PressForPast({"cmdReview"}), {}},
    {"frmReplay", PressForPast({"cmdReplay", "cmdRun"}), {}},
    {"frmCampaign", Press({"cmdCampaign"}), {}},
    {"frmCards", OpenCards, CloseByTitlebar},
    {"frmGame",
     [](ProgramStage& stage) {
       OpenCards(stage);
       stage.Click("cmdContinue");
     },
     CloseByTitlebar},
};

class ScreensWalkTest : public testing::TestWithParam<const char*> {
 protected:
  /// A program that has come to the walk's screen.
  void Enter(ProgramStage& stage, const Walk& walk) const {
    stage.MakePlayer("ann", [](clsPlayer& player) { player.Interface_Opt = GetParam(); });
    stage.Start();
    if (walk.enter) {
      stage.EnterMenu("ann");
      walk.enter(stage);
    }
    EXPECT_EQ(stage.ScreenName(), walk.screen);
  }
  static void ExpectEnded(ProgramStage& stage) {
    stage.Settle(8000);
    EXPECT_EQ(stage.program->screen(), nullptr);
    EXPECT_EQ(stage.program->Retired(), 0u);
    EXPECT_EQ(stage.scheduler.RunningTimers(), 0);
    EXPECT_EQ(stage.Stored("ann")->Name, "ann");
  }
};

TEST_P(ScreensWalkTest, ClosesAtOnceAndAfterAWhile) {
  for (const Walk& walk : kWalks) {
    SCOPED_TRACE(walk.screen);
    for (const int milliseconds : {0, 130, 3000}) {
      ProgramStage stage;
      Enter(stage, walk);
      stage.Settle(milliseconds);
      stage.program->EndProgram();
      ExpectEnded(stage);
    }
    ProgramStage stage;
    Enter(stage, walk);
    stage.program.reset();  // the program itself goes while the screen stands
    EXPECT_EQ(stage.scheduler.RunningTimers(), 0);
  }
}

TEST_P(ScreensWalkTest, ClosesWhileItsBoxIsOpen) {
  for (const Walk& walk : kWalks) {
    if (!walk.ask) continue;
    SCOPED_TRACE(walk.screen);
    for (const bool answer : {true, false}) {
      ProgramStage stage;
      Enter(stage, walk);
      stage.dialogs.answers = {answer};
      stage.dialogs.texts = {std::nullopt};
      stage.dialogs.whileOpen = [&stage] { stage.program->EndProgram(); };
      walk.ask(stage);
      EXPECT_EQ(stage.dialogs.boxes.size(), 1u);
      ExpectEnded(stage);
    }
  }
}

TEST_P(ScreensWalkTest, ClosesInTheMiddleOfAPause) {
  for (const char* screen : {"frmOptions", "frmGame"}) {
    SCOPED_TRACE(screen);
    ProgramStage stage;
    Enter(stage, *std::find_if(std::begin(kWalks), std::end(kWalks),
                               [screen](const Walk& walk) { return std::string(walk.screen) == screen; }));
    stage.Settle(3000);
    stage.scheduler.At(200, [&stage] { stage.program->EndProgram(); });
    if (auto* match = stage.program->screenAs<frmGame>()) {
      match->engine().person().EndTurn();
    } else {
      SetAndPress("txtPIN", "1", "lblPINReveal")(stage);
    }
    ExpectEnded(stage);
  }
}

INSTANTIATE_TEST_SUITE_P(Styles, ScreensWalkTest, testing::Values("Slate", "Ember"),
                         [](const auto& style) { return std::string(style.param); });

}  // namespace
}  // namespace kv::test
