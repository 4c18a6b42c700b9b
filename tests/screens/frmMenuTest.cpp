#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLabel>

#include "screens/CountLabel.h"
#include "screens/frmMenu.h"
#include "support/ScreenHand.h"
#include "support/ScreenStage.h"
#include "support/TempFolder.h"

namespace kv {
namespace {

using test::ScreenHand;
using test::ScreenStage;
using test::TempFolder;
using testing::ElementsAre;
using testing::IsEmpty;

class frmMenuTest : public testing::TestWithParam<const char*> {
 protected:
  frmMenuTest() {
    player().Name = "Bob";
    player().FileName = folder / "Bob.vnt";
  }

  clsPlayer& player() { return stage.player; }
  std::vector<std::string>& calls() { return stage.recorded.calls; }
  frmMenu& Open() {
    menu = std::make_unique<frmMenu>(stage.services(), stage.player);
    menu->Open();
    stage.Settle();
    hand = std::make_unique<ScreenHand>(*menu);
    return *menu;
  }
  void LoseCampaign() {
    player().Credits->Value = 0;
    player().Losses->Value = 7;
  }
  std::string Campaign() { return menu->lblSPStats().text().toStdString(); }
  const QLabel& Label(const char* name) { return *menu->findChild<QLabel*>(QString::fromLatin1(name)); }

  TempFolder folder;
  ScreenStage stage;
  std::unique_ptr<frmMenu> menu;
  std::unique_ptr<ScreenHand> hand;
};

TEST_F(frmMenuTest, TheTextsTellTheRecord) {
  player().Arcade_Best = 2'000'000'000;
  player().Credits_MP->Value = 5;
  player().Disconnects = 2;
  Open();
  EXPECT_EQ(menu->cmdPlayer().Caption().toStdString(), "current player: Bob");
  EXPECT_EQ(menu->lblArcadeHigh().text().toStdString(), "Arcade Highscore: 2000000000 credits.(VICTORY)");
  EXPECT_EQ(Campaign(), "Current campaign stats: 100 credits, 0 wins, 0 losses.");
  EXPECT_EQ(menu->lblMPStats().text().toStdString(),
            "Current multiplayer stats: 5 credits, 0 wins, 0 losses. 2 disconnects.");
}

TEST_F(frmMenuTest, NoLineEndsBehindANumber) {
  EXPECT_EQ(CountLabel::Unbroken(QStringLiteral("6 losses. 1 disconnects. (VICTORY: All)")),
            QStringLiteral("6\u00A0losses. 1\u00A0disconnects. (VICTORY: All)"));
  EXPECT_NE(dynamic_cast<const CountLabel*>(&Open().lblMPStats()), nullptr);
}

TEST_F(frmMenuTest, ThePlayersButtonHoldsALongName) {
  player().Name = std::string(20, 'W');
  const ctlButton& button = Open().cmdPlayer();
  EXPECT_LE(button.getLabelWidth(), button.width());
  EXPECT_TRUE(menu->rect().contains(button.geometry()));
}

TEST_F(frmMenuTest, TheCampaignIsLostWithoutCreditsAndCards) {
  struct Case {
    std::int32_t credits;
    std::int16_t card;
    std::int16_t wins;
    const char* suffix;
    bool enabled;
  };
  for (const Case& c :
       {Case{0, 0, 0, " (DEFEATED: No credits or extra cards to sell)", false},
        Case{0, 0, 10, " (DEFEATED: No credits or extra cards to sell)", false}, Case{0, 1, 0, "", true},
        Case{0, -1, 9, " (DEFEATED: No credits or extra cards to sell)", false}, Case{-5, 0, 9, "", true},
        Case{1, 0, 10, " (VICTORY: All players defeated)", true}}) {
    player().Credits->Value = c.credits;
    player().Cards->setValue(4, 6, c.card);
    player().Orrin_Wins->Value = c.wins;
    Open();
    EXPECT_EQ(Campaign(), "Current campaign stats: " + std::to_string(c.credits) +
                              " credits, 0 wins, 0 losses." + c.suffix);
    EXPECT_EQ(menu->cmdCampaign().isEnabled(), c.enabled) << c.suffix;
  }
}

TEST_F(frmMenuTest, EachModeIsStartedOnceByClickAndByKey) {
  struct Case {
    Qt::Key key;
    ctlButton& (frmMenu::*button)();
    std::vector<std::string> calls;
  };
  const std::vector<Case> cases = {{Qt::Key_1, &frmMenu::cmdArcade, {"NewGame Arcade", "OpenCards"}},
                                   {Qt::Key_2, &frmMenu::cmdCampaign, {"NewGame Campaign", "OpenCampaign"}},
                                   {Qt::Key_3, &frmMenu::cmdNetwork, {"NewGame Network", "OpenLobby"}},
                                   {Qt::Key_4, &frmMenu::cmdOptions, {"OpenOptions"}},
                                   {Qt::Key_5, &frmMenu::cmdRecord, {"OpenRecord"}}};
  for (const Case& c : cases) {
    for (const bool byKey : {true, false}) {
      Open();
      calls().clear();
      stage.sound.played.clear();
      for (int press = 0; press < 2; ++press) {
        byKey ? hand->Key(c.key) : hand->Click((menu.get()->*c.button)());
        EXPECT_EQ(calls(), c.calls) << c.key;
        EXPECT_EQ(stage.sound.Count("click"), 1);
      }
      for (const Qt::Key other : {Qt::Key_0, Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4}) hand->Key(other);
      EXPECT_EQ(calls(), c.calls);
      EXPECT_FALSE(menu->titlebar().isEnabled());
    }
  }
}

TEST_F(frmMenuTest, ALostCampaignCannotBeStarted) {
  LoseCampaign();
  Open();
  hand->Key(Qt::Key_2);
  hand->Click(menu->cmdCampaign());
  EXPECT_THAT(calls(), IsEmpty());
  EXPECT_EQ(stage.sound.Count("click"), 0);
}

TEST_F(frmMenuTest, ThePlayerIsChangedAfterAQuestion) {
  LoseCampaign();
  Open();
  stage.dialogs.answers = {false, true};
  stage.dialogs.whileOpen = [this] {
    for (const Qt::Key key : {Qt::Key_0, Qt::Key_1, Qt::Key_4}) hand->Key(key);
  };
  hand->Click(menu->cmdPlayer());
  EXPECT_THAT(calls(), IsEmpty());
  EXPECT_TRUE(menu->cmdPlayer().isEnabled() && menu->cmdArcade().isEnabled() && menu->titlebar().isEnabled());
  EXPECT_FALSE(menu->cmdCampaign().isEnabled());
  hand->Key(Qt::Key_0);
  EXPECT_THAT(calls(), ElementsAre("OpenSplash"));
  ASSERT_EQ(stage.dialogs.boxes.size(), 2U);
  EXPECT_EQ(stage.dialogs.boxes[1].text, "Do you wish to return to the player selection screen?");
  EXPECT_EQ(stage.dialogs.boxes[1].title, "Vantri Arcade: Change Player");
  EXPECT_EQ(stage.dialogs.boxes[1].icon, DialogIcon::Question);
}

TEST_F(frmMenuTest, StatisticsAreResetByDoubleClickAndSaved) {
  struct Case {
    const char* label;
    const char* text;
    const char* title;
    std::function<void()> spoil;
    std::function<bool()> spoilt;
  };
  const auto arcade = [this] { return player().Arcade_Best == 900; };
  const auto network = [this] { return player().Disconnects == 3; };
  const auto campaign = [this] { return player().Losses->Value == 7; };
  const std::string score = "Do you wish to reset your Arcade Highscore?";
  const char* status = "Do you wish to reset your network status?";
  const char* fresh = "Do you wish to reset your campaign status?";
  const std::vector<Case> cases = {
      {"lblArcadeHigh", score.c_str(), "Kelm Vantri: Reset Highscore", [this] { player().Arcade_Best = 900; },
       arcade},
      {"lblMPStats", status, "Kelm Vantri: Reset Network Stats", [this] { player().Disconnects = 3; },
       network},
      {"lblNetworkDesc", status, "Kelm Vantri: Reset Network Stats", [this] { player().Disconnects = 3; },
       network},
      {"lblSPStats", fresh, "Kelm Vantri: New Campaign", [this] { LoseCampaign(); }, campaign},
      {"lblCampaignDesc", fresh, "Kelm Vantri: New Campaign", [this] { LoseCampaign(); }, campaign}};
  for (const Case& c : cases) {
    c.spoil();
    Open();
    hand->Click(Label(c.label));
    EXPECT_THAT(stage.dialogs.boxes, IsEmpty()) << c.label;
    stage.dialogs.answers = {false, true};
    hand->DoubleClick(Label(c.label));
    EXPECT_TRUE(c.spoilt());
    EXPECT_EQ(folder.Count(), 0);
    hand->DoubleClick(Label(c.label));
    EXPECT_FALSE(c.spoilt());
    EXPECT_EQ(folder.Count(), 1) << "saved";
    ASSERT_EQ(stage.dialogs.boxes.size(), 2U);
    EXPECT_EQ(stage.dialogs.boxes[1].text, c.text);
    EXPECT_EQ(stage.dialogs.boxes[1].title, c.title);
    EXPECT_EQ(Campaign(), "Current campaign stats: 100 credits, 0 wins, 0 losses.");
    EXPECT_TRUE(menu->cmdCampaign().isEnabled());
    std::filesystem::remove(player().FileName);
    stage.dialogs.boxes.clear();
  }
}

TEST_F(frmMenuTest, ResetsAreReachedByKeyboardAndTheCampaignsOnlyWhenItIsLost) {
  Open();
  hand->DoubleClick(menu->lblSPStats());
  hand->DoubleClick(Label("lblCampaignDesc"));
  hand->DoubleClick(Label("lblArcadeDesc"));
  EXPECT_THAT(stage.dialogs.boxes, IsEmpty());
  std::vector<std::string> reached;
  stage.dialogs.answers = {false, false};
  for (int step = 0; step < 9; ++step) {
    hand->Key(Qt::Key_Tab);
    const QString name = menu->focusWidget()->objectName();
    reached.push_back(name.toStdString());
    if (name.startsWith(QLatin1String("reset"))) hand->Key(Qt::Key_Return);
  }
  EXPECT_THAT(reached, testing::IsSupersetOf({"cmdArcade", "resetArcade", "cmdCampaign", "cmdNetwork",
                                              "resetNetwork", "cmdOptions", "cmdPlayer"}));
  EXPECT_THAT(reached, testing::Not(testing::Contains("resetCampaign")));
  EXPECT_EQ(stage.dialogs.boxes.size(), 2U);
}

TEST_F(frmMenuTest, EscapeLeadsBackToThePlayersAfterAQuestion) {
  Open();
  calls().clear();
  stage.dialogs.answers = {false, true};
  hand->Key(Qt::Key_Escape);
  EXPECT_THAT(calls(), IsEmpty());
  hand->Key(Qt::Key_Escape);
  EXPECT_THAT(calls(), ElementsAre("OpenSplash"));
}

TEST_F(frmMenuTest, ClosingPlaysTheFarewellAndASecondCloseEndsAtOnce) {
  player().Mute_Events_Opt = true;
  Open();
  hand->Click(menu->titlebar().cmdQuit());
  EXPECT_THAT(calls(), ElementsAre("EndProgramSoon"));
  EXPECT_EQ(stage.sound.Count("losematch"), 1);
  EXPECT_FALSE(menu->isEnabled());
  hand->Key(Qt::Key_1);
  hand->Click(menu->cmdArcade());
  EXPECT_EQ(calls().size(), 1U);
  menu->close();
  EXPECT_THAT(calls(), ElementsAre("EndProgramSoon", "EndProgram"));
  EXPECT_EQ(stage.sound.Count("losematch"), 1);
}

TEST_F(frmMenuTest, NothingHappensAfterAQuestionWhenTheMenuWasLeftMeanwhile) {
  for (const bool closed : {true, false}) {
    player().Arcade_Best = 900;
    Open();
    calls().clear();
    stage.dialogs.answers = {true};
    stage.dialogs.whileOpen = [this, closed] { closed ? menu->CloseScreen() : menu->LeaveProgram(); };
    closed ? hand->DoubleClick(menu->lblArcadeHigh()) : hand->Click(menu->cmdPlayer());
    EXPECT_EQ(player().Arcade_Best, 900);
    EXPECT_EQ(stage.recorded.Count("OpenSplash"), 0);
  }
}

TEST_P(frmMenuTest, TheLongestTextsFit) {
  player().Name = std::string(20, 'W');
  player().Interface_Opt = GetParam();
  for (const auto& box : {player().Credits, player().Credits_MP}) box->Value = 2'000'000'000;
  for (const auto& box :
       {player().Wins, player().Losses, player().Wins_MP, player().Losses_MP, player().Orrin_Wins}) {
    box->Value = 32767;
  }
  player().Arcade_Best = 2'000'000'000;
  player().Disconnects = 32767;
  for (const bool lost : {false, true}) {
    if (lost) player().Credits->Value = 0;
    Open();
    for (const QLabel* label : menu->findChildren<QLabel*>()) {
      EXPECT_LE(label->heightForWidth(label->width()), label->height()) << label->text().toStdString();
    }
    EXPECT_LE(menu->cmdPlayer().getLabelWidth(), menu->cmdPlayer().width());
    EXPECT_TRUE(menu->rect().contains(menu->cmdPlayer().geometry()));
  }
}

INSTANTIATE_TEST_SUITE_P(Styles, frmMenuTest, testing::Values("Slate", "Ember"));

}  // namespace
}  // namespace kv
