#include <gmock/gmock.h>

#include "campaign/frmCampaign.h"
#include "match/clsGame.h"
#include "support/OneScreen.h"
#include "support/Rows.h"

namespace kv::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class frmCampaignTest : public testing::Test, protected OneScreen<frmCampaign> {
 protected:
  ~frmCampaignTest() override { screen.reset(); }

  frmCampaign& Open(int credits, const std::vector<int>& wins = {}) {
    player.Credits->Value = credits;
    for (std::size_t i = 0; i < wins.size(); ++i) {
      (player.*(CircuitOpponents().at(i).wins))->Value = static_cast<std::int16_t>(wins.at(i));
    }
    return Show(std::make_unique<frmCampaign>(services(), player, game));
  }
  /// One letter for each tile: "-" hidden, "g" grey, "o" open.
  [[nodiscard]] std::string Tiles() {
    std::string tiles;
    for (int i = 0; i < kCircuitTiles; ++i) {
      const ctlOpponent& tile = screen->ctlOpp(i);
      EXPECT_EQ(screen->cmdOpp(i) != nullptr, tile.isVisible() && tile.Enabled()) << i;
      tiles += !tile.isVisible() ? '-' : tile.Enabled() ? 'o' : 'g';
    }
    return tiles;
  }

  clsGame game{player, {}};
};

TEST_F(frmCampaignTest, TilesAreHiddenGreyOrOpenAndLieApart) {
  Open(749, {10, 10, 10, 10});
  EXPECT_EQ(Tiles(), "oooog--");
  Open(750, {10, 10, 10, 10, 10});
  EXPECT_EQ(Tiles(), "ooooooo");
  for (int i = 0; i < kCircuitTiles; ++i) {
    for (int j = 0; j < i; ++j) {
      EXPECT_FALSE(screen->ctlOpp(i).geometry().intersects(screen->ctlOpp(j).geometry()));
    }
    EXPECT_TRUE(screen->rect().contains(screen->ctlOpp(i).geometry()));
  }
}

TEST_F(frmCampaignTest, ScreenReadersHearLimitsAndWinsAndWhatAGreyTileNeeds) {
  player.Portrait = 12;
  Open(100, {10, 1, 3, 10, 10});
  EXPECT_EQ(screen->cmdOpp(1)->accessibleName(), "Tamsen, stake 0 to 50, 1 win");
  EXPECT_EQ(screen->ctlOpp(4).accessibleName(), "Orrin Vaal, stake 750, 10 wins, needs 750 credits");
  EXPECT_EQ(screen->cmdOpp(kYourself)->accessibleName(), "Yourself, stake 0");
  EXPECT_EQ(screen->ctlOpp(kYourself).OppPic(), 12);
  EXPECT_EQ(screen->ctlOpp(4).toolTip(), "Plays for at least 750 credits; you have 100.");
  EXPECT_EQ(screen->cmdOpp(1)->toolTip().section('\n', 0, 0), "Plays for 0 to 50 credits.");
}

TEST_F(frmCampaignTest, AnOpponentIsChosenOnceByPointerOrKey) {
  for (const bool byKey : {false, true}) {
    Open(185, {10, 10});
    recorded.calls.clear();
    const int clicks = sound.Count("click");
    if (byKey) {
      for (int i = 0; i < 3; ++i) hand->Key(Qt::Key_Tab);
      hand->Key(Qt::Key_Return);
      hand->Key(Qt::Key_Return);
    } else {
      hand->Click(*screen->cmdOpp(2));
      hand->Click(*screen->cmdOpp(0));
      hand->Click(screen->cmdDeck());
    }
    EXPECT_THAT(recorded.calls, ElementsAre("OpenCards"));
    EXPECT_EQ(game.OppName, "Vel'ir");
    EXPECT_EQ(game.MaxWager, 185);
    EXPECT_FALSE(screen->ctlOpp(2).Enabled());
    EXPECT_EQ(sound.Count("click") - clicks, 1);
  }
}

TEST_F(frmCampaignTest, DeckButtonAndCloseButtonLeave) {
  Open(100);
  hand->Click(screen->cmdDeck());
  EXPECT_EQ(game.Mode, kModeDeckConfig);
  EXPECT_THAT(recorded.calls, ElementsAre("OpenCards"));
  recorded.calls.clear();
  Open(100);
  hand->Click(screen->titlebar().cmdQuit());
  hand->Click(*screen->cmdOpp(0));
  EXPECT_THAT(recorded.calls, ElementsAre("OpenMenu"));
}

TEST_F(frmCampaignTest, ATileHasTheColoursOfItsStyle) {
  const auto colour = [this](const char* label) {
    const auto& tile = screen->ctlOpp(0);
    return tile.findChild<QLabel*>(QString::fromLatin1(label))->palette().color(QPalette::WindowText);
  };
  Open(100);
  EXPECT_EQ(screen->ctlOpp(0).FrameColor(), QColor(128, 128, 255));
  EXPECT_EQ(colour("lblMaxWager"), QColor(128, 128, 255));
  EXPECT_EQ(colour("lblMax"), QColor(0, 169, 251));
  player.Interface_Opt = "Ember";
  Open(100);
  for (const QColor& warm :
       {screen->ctlOpp(0).FrameColor(), colour("lblMaxWager"), colour("lblMax"), colour("lblWins")}) {
    EXPECT_GT(warm.red(), warm.blue() + 50);
  }
}

TEST_F(frmCampaignTest, TheAccountHasRoomForTheLargestNumbersAndTheLongestName) {
  player.Name = std::string(20, 'W');
  player.Losses->Value = player.Wins->Value = 32767;
  for (const char* style : {"Slate", "Ember"}) {
    player.Interface_Opt = style;
    for (const int orrin : {0, 10}) {
      Open(2'000'000'000, {0, 0, 0, 0, orrin});
      for (const char* name : {"lblPName", "lblPCredits", "lblPWins", "lblPLosses", "lblLosses", "lblWins"}) {
        const auto& label = *screen->findChild<QLabel*>(name, Qt::FindDirectChildrenOnly);
        EXPECT_LE(label.fontMetrics().horizontalAdvance(label.text()), label.width()) << style << name;
      }
    }
  }
}

TEST_F(frmCampaignTest, HighlightFollowsThePointerAndTheFocus) {
  Open(100, {10});
  const QColor normal = screen->ctlOpp(0).FrameColor();
  const auto colours = [this] {
    return std::pair(screen->ctlOpp(0).FrameColor(), screen->ctlOpp(1).FrameColor());
  };
  const int hovers = sound.Count("hover");
  hand->MoveTo(hand->CentreOf(*screen->cmdOpp(0)));
  hand->MoveTo(hand->CentreOf(*screen->cmdOpp(0)) + QPoint(3, 3));
  const QColor hover = colours().first;
  EXPECT_NE(hover, normal);
  EXPECT_EQ(sound.Count("hover") - hovers, 1);
  hand->MoveTo(hand->CentreOf(*screen->cmdOpp(1)));
  EXPECT_EQ(colours(), std::pair(normal, hover));
  EXPECT_EQ(sound.Count("hover") - hovers, 2);
  hand->Press(hand->CentreOf(*screen->cmdOpp(1)));
  EXPECT_EQ(colours().second, QColor(Qt::white));
  hand->MoveTo({400, 560});
  hand->Release({400, 560});
  EXPECT_EQ(colours(), std::pair(normal, normal));
  hand->Key(Qt::Key_Tab);
  EXPECT_EQ(colours(), std::pair(hover, normal));
  EXPECT_THAT(recorded.calls, IsEmpty());
}

TEST_F(frmCampaignTest, LevelUpSoundsOnce) {
  game.CampaignWinRef = player.Brannock_Wins;
  Open(100, {10});
  EXPECT_EQ(sound.Count("levelup"), 1);
  Open(100, {10});
  EXPECT_EQ(sound.Count("levelup"), 1);
}

TEST_F(frmCampaignTest, BankruptcyIsToldAndEndsTheVisit) {
  for (const auto& [credits, cards, bankrupt] :
       Rows<int, int, bool>{{0, 0, true}, {0, 1, false}, {1, 0, false}}) {
    dialogs.boxes.clear();
    recorded.calls.clear();
    player.Cards->setValue(1, 1, static_cast<std::int16_t>(cards));
    dialogs.whileOpen = [this] { EXPECT_TRUE(screen->isVisible()); };
    Open(credits);
    EXPECT_EQ(dialogs.boxes.size(), bankrupt ? 1U : 0U);
    EXPECT_EQ(recorded.Count("OpenMenu"), bankrupt ? 1 : 0);
  }
  recorded.calls.clear();
  dialogs.whileOpen = [this] { screen->CloseScreen(); };
  Open(0);
  EXPECT_THAT(recorded.calls, IsEmpty()) << "it has closed behind the box";
}

}  // namespace
}  // namespace kv::test
