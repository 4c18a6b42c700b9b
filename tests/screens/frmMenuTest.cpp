#include <gmock/gmock.h>

#include "screens/CountLabel.h"
#include "screens/frmMenu.h"
#include "support/OneScreen.h"
#include "support/Rows.h"

namespace kv::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class frmMenuTest : public testing::TestWithParam<const char*>, protected OneScreen<frmMenu> {
 protected:
  frmMenuTest() {
    player.Name = "Bob";
    player.FileName = folder / "Bob.vnt";
  }

  frmMenu& Open() { return Show(std::make_unique<frmMenu>(services(), player)); }
  void LoseCampaign() {
    player.Credits->Value = 0;
    player.Losses->Value = 7;
  }
  std::string Campaign() { return Text("lblSPStats"); }
};

TEST_F(frmMenuTest, TheTextsTellTheRecord) {
  player.Arcade_Best = 2'000'000'000;
  player.Credits_MP->Value = 5;
  player.Disconnects = 2;
  Open();
  EXPECT_EQ(screen->cmdPlayer().Caption().toStdString(), "current player: Bob");
  EXPECT_EQ(Text("lblArcadeHigh"), "Arcade Highscore: 2000000000 credits.(VICTORY)");
  EXPECT_EQ(Campaign(), "Current campaign stats: 100 credits, 0 wins, 0 losses.");
  EXPECT_EQ(Text("lblMPStats"), "Current multiplayer stats: 5 credits, 0 wins, 0 losses. 2 disconnects.");
}

TEST_F(frmMenuTest, NoLineEndsBehindANumber) {
  EXPECT_EQ(CountLabel::Unbroken(QStringLiteral("6 losses. 1 disconnects. (VICTORY: All)")),
            QStringLiteral("6\u00A0losses. 1\u00A0disconnects. (VICTORY: All)"));
  EXPECT_NE(dynamic_cast<const CountLabel*>(&Open().lblMPStats()), nullptr);
}

TEST_F(frmMenuTest, TheCampaignIsLostWithoutCreditsAndCards) {
  for (const auto& [credits, card, wins, suffix, enabled] :
       Rows<std::int32_t, std::int16_t, std::int16_t, const char*, bool>{
           {0, 0, 0, " (DEFEATED: No credits or extra cards to sell)", false},
           {0, 0, 10, " (DEFEATED: No credits or extra cards to sell)", false},
           {0, 1, 0, "", true},
           {0, -1, 9, " (DEFEATED: No credits or extra cards to sell)", false},
           {-5, 0, 9, "", true},
           {1, 0, 10, " (VICTORY: All players defeated)", true}}) {
    player.Credits->Value = credits;
    player.Cards->setValue(4, 6, card);
    player.Orrin_Wins->Value = wins;
    Open();
    EXPECT_EQ(Campaign(),
              "Current campaign stats: " + std::to_string(credits) + " credits, 0 wins, 0 losses." + suffix);
    EXPECT_EQ(screen->cmdCampaign().isEnabled(), enabled) << suffix;
    recorded.calls.clear();
    hand->Click(screen->cmdCampaign());
    hand->Key(Qt::Key_2);
    EXPECT_EQ(recorded.Count("OpenCampaign"), enabled ? 1 : 0);
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
      recorded.calls.clear();
      sound.played.clear();
      for (int press = 0; press < 2; ++press) {
        byKey ? hand->Key(c.key) : hand->Click((screen.get()->*c.button)());
        EXPECT_EQ(recorded.calls, c.calls) << c.key;
        EXPECT_EQ(sound.Count("click"), 1);
      }
      for (const Qt::Key other : {Qt::Key_0, Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4}) hand->Key(other);
      EXPECT_EQ(recorded.calls, c.calls);
      EXPECT_FALSE(screen->titlebar().isEnabled());
    }
  }
}

TEST_F(frmMenuTest, ThePlayerIsChangedAfterAQuestion) {
  LoseCampaign();
  Open();
  dialogs.answers = {false};
  dialogs.whileOpen = [this] {
    for (const Qt::Key key : {Qt::Key_0, Qt::Key_1, Qt::Key_4}) hand->Key(key);
  };
  hand->Click(screen->cmdPlayer());
  EXPECT_THAT(recorded.calls, IsEmpty());
  EXPECT_TRUE(screen->cmdPlayer().isEnabled() && screen->cmdArcade().isEnabled() &&
              screen->titlebar().isEnabled());
  EXPECT_FALSE(screen->cmdCampaign().isEnabled());
  for (const Qt::Key key : {Qt::Key_0, Qt::Key_Escape}) {
    Open();
    recorded.calls.clear();
    dialogs.answers = {true};
    hand->Key(key);
    EXPECT_THAT(recorded.calls, ElementsAre("OpenSplash"));
    EXPECT_EQ(dialogs.boxes.back().text, "Do you wish to return to the player selection screen?");
    EXPECT_EQ(dialogs.boxes.back().title, "Vantri Arcade: Change Player");
    EXPECT_EQ(dialogs.boxes.back().icon, DialogIcon::Question);
  }
}

TEST_F(frmMenuTest, StatisticsAreResetByDoubleClickAndSaved) {
  const auto arcade = [this] { return player.Arcade_Best == 900; };
  const auto network = [this] { return player.Disconnects == 3; };
  const auto campaign = [this] { return player.Losses->Value == 7; };
  const auto play = [this] { player.Arcade_Best = 900; };
  const auto leave = [this] { player.Disconnects = 3; };
  const auto lose = [this] { LoseCampaign(); };
  const char* score = "Do you wish to reset your Arcade Highscore?";
  const char* status = "Do you wish to reset your network status?";
  const char* fresh = "Do you wish to reset your campaign status?";

  for (const auto& [label, text, title, spoil, spoilt] :
       Rows<const char*, const char*, const char*, std::function<void()>, std::function<bool()>>{
           {"lblArcadeHigh", score, "Kelm Vantri: Reset Highscore", play, arcade},
           {"lblMPStats", status, "Kelm Vantri: Reset Network Stats", leave, network},
           {"lblNetworkDesc", status, "Kelm Vantri: Reset Network Stats", leave, network},
           {"lblSPStats", fresh, "Kelm Vantri: New Campaign", lose, campaign},
           {"lblCampaignDesc", fresh, "Kelm Vantri: New Campaign", lose, campaign}}) {
    spoil();
    Open();
    hand->Click(Find<QLabel>(label));
    EXPECT_THAT(dialogs.boxes, IsEmpty()) << label;
    dialogs.answers = {false, true};
    hand->DoubleClick(Find<QLabel>(label));
    EXPECT_TRUE(spoilt());
    EXPECT_EQ(folder.Count(), 0);
    hand->DoubleClick(Find<QLabel>(label));
    EXPECT_FALSE(spoilt());
    EXPECT_EQ(folder.Count(), 1) << "saved";
    ASSERT_EQ(dialogs.boxes.size(), 2U);
    EXPECT_EQ(dialogs.boxes[1].text, text);
    EXPECT_EQ(dialogs.boxes[1].title, title);
    EXPECT_EQ(Campaign(), "Current campaign stats: 100 credits, 0 wins, 0 losses.");
    EXPECT_TRUE(screen->cmdCampaign().isEnabled());
    std::filesystem::remove(player.FileName);
    dialogs.boxes.clear();
  }
}

TEST_F(frmMenuTest, ResetsAreReachedByKeyboardAndTheCampaignsOnlyWhenItIsLost) {
  Open();
  hand->DoubleClick(screen->lblSPStats());
  hand->DoubleClick(Find<QLabel>("lblCampaignDesc"));
  hand->DoubleClick(Find<QLabel>("lblArcadeDesc"));
  EXPECT_THAT(dialogs.boxes, IsEmpty());
  std::vector<std::string> reached;
  dialogs.answers = {false, false};
  for (int step = 0; step < 9; ++step) {
    hand->Key(Qt::Key_Tab);
    const QString name = screen->focusWidget()->objectName();
    reached.push_back(name.toStdString());
    if (name.startsWith(QLatin1String("reset"))) hand->Key(Qt::Key_Return);
  }
  EXPECT_THAT(reached, testing::IsSupersetOf({"cmdArcade", "resetArcade", "cmdCampaign", "cmdNetwork",
                                              "resetNetwork", "cmdOptions", "cmdPlayer"}));
  EXPECT_THAT(reached, testing::Not(testing::Contains("resetCampaign")));
  EXPECT_EQ(dialogs.boxes.size(), 2U);
}

TEST_F(frmMenuTest, ClosingPlaysTheFarewellAndASecondCloseEndsAtOnce) {
  player.Mute_Events_Opt = true;
  Open();
  hand->Click(screen->titlebar().cmdQuit());
  EXPECT_THAT(recorded.calls, ElementsAre("EndProgramSoon"));
  EXPECT_EQ(sound.Count("losematch"), 1);
  EXPECT_FALSE(screen->isEnabled());
  hand->Key(Qt::Key_1);
  hand->Click(screen->cmdArcade());
  EXPECT_EQ(recorded.calls.size(), 1U);
  screen->close();
  EXPECT_THAT(recorded.calls, ElementsAre("EndProgramSoon", "EndProgram"));
  EXPECT_EQ(sound.Count("losematch"), 1);
}

TEST_F(frmMenuTest, NothingHappensAfterAQuestionWhenTheMenuWasLeftMeanwhile) {
  for (const bool closed : {true, false}) {
    player.Arcade_Best = 900;
    Open();
    recorded.calls.clear();
    dialogs.answers = {true};
    dialogs.whileOpen = [this, closed] { closed ? screen->CloseScreen() : screen->LeaveProgram(); };
    closed ? hand->DoubleClick(screen->lblArcadeHigh()) : hand->Click(screen->cmdPlayer());
    EXPECT_EQ(player.Arcade_Best, 900);
    EXPECT_EQ(recorded.Count("OpenSplash"), 0);
  }
}

TEST_P(frmMenuTest, TheLongestTextsFit) {
  player.Name = std::string(20, 'W');
  player.Interface_Opt = GetParam();
  for (const auto& box : {player.Credits, player.Credits_MP}) box->Value = 2'000'000'000;
  for (const auto& box : {player.Wins, player.Losses, player.Wins_MP, player.Losses_MP, player.Orrin_Wins}) {
    box->Value = 32767;
  }
  player.Arcade_Best = 2'000'000'000;
  player.Disconnects = 32767;
  for (const bool lost : {false, true}) {
    if (lost) player.Credits->Value = 0;
    Open();
    for (const QLabel* label : screen->findChildren<QLabel*>()) {
      EXPECT_LE(label->heightForWidth(label->width()), label->height()) << label->text().toStdString();
    }
    EXPECT_LE(screen->cmdPlayer().getLabelWidth(), screen->cmdPlayer().width());
    EXPECT_TRUE(screen->rect().contains(screen->cmdPlayer().geometry()));
  }
}

INSTANTIATE_TEST_SUITE_P(Styles, frmMenuTest, testing::Values("Slate", "Ember"),
                         [](const auto& style) { return std::string(style.param); });

}  // namespace
}  // namespace kv::test
