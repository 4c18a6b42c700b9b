// Settling and booking: the account after each match, exactly one booking, and what the file holds in
// between.

#include "campaign/CampaignFixture.h"
#include "support/Rows.h"

namespace kv::test {
namespace {

using BookingRulesTest = CampaignFixture;
constexpr std::int16_t kTop = 32767;

TEST_F(BookingRulesTest, EachModeKeepsItsAccount) {
  for (const auto& [what, network, won, before, stake, after, wins, losses] :
       Rows<const char*, bool, bool, std::int32_t, std::int32_t, std::int32_t, int, int>{
           {"campaign win", false, true, 1000, 500, 1500, 1, 0},
           {"campaign loss", false, false, 1000, 500, 500, 0, 1},
           {"network win with its bonus", true, true, 1000, 95, 1104, 1, 0},
           {"network loss", true, false, 1000, 95, 905, 0, 1},
           {"campaign cap", false, true, 1999999900, 500, 2000000000, 1, 0},
           {"network cap", true, true, 2000000000, 2000000000, 2000000000, 1, 0}}) {
    SCOPED_TRACE(what);
    player.ResetSP();
    player.ResetMP();
    player.Credits->Value = before;
    player.Brummox_Wins->Value = 0;
    if (network) {
      MeetPeer(before);
    } else {
      player.Velir_Wins->Value = 10;
      Meet(3);
    }
    Stake(stake);
    won ? booking.SaveWin() : booking.SaveLoss();
    booking.SaveWin();  // nothing is left to book
    booking.SaveLoss();
    EXPECT_EQ(game.Wager, -1);
    EXPECT_EQ((network ? player.Credits_MP : player.Credits)->Value, after);
    EXPECT_EQ((network ? player.Wins_MP : player.Wins)->Value, wins);
    EXPECT_EQ((network ? player.Losses_MP : player.Losses)->Value, losses);
    EXPECT_EQ(player.Disconnects, 0);
    EXPECT_EQ(player.Brummox_Wins->Value, network ? 0 : wins);
    EXPECT_EQ(StoredPlayer(player.FileName).fields.Credits->Value, player.Credits->Value);
  }
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(BookingRulesTest, AnArcadeRunPaysFromItsOwnCredits) {
  game.CreditsRef->Value = 2000000000;
  Stake(1500000000);
  EXPECT_EQ(game.CreditsRef->Value, 500000000);
  booking.SaveWin();
  EXPECT_EQ(game.CreditsRef->Value, 2000000000);
  Stake(7);
  booking.SaveLoss();
  EXPECT_EQ(game.CreditsRef->Value, 1999999993);
  EXPECT_EQ(game.WinsRef->Value, 1);
  EXPECT_EQ(player.Credits->Value, 100);

  player.Arcade_Best = 1999999993;
  std::filesystem::remove(player.FileName);
  EndArcadeRun(game, player);
  EXPECT_FALSE(FileExists(player.FileName)) << "an equal result is no new high score";
  player.Arcade_Best = 1999999992;
  EndArcadeRun(game, player);
  EXPECT_EQ(StoredPlayer(player.FileName).fields.Arcade_Best, 1999999993);
}

/// A peer that gave up before it knew that it had won: the loss that was booked is put right.
TEST_F(BookingRulesTest, ALossIsTurnedIntoAWinOnce) {
  const auto account = [this](std::int32_t credits, int wins, int losses) {
    const StoredPlayer file(player.FileName);
    ASSERT_TRUE(file.loaded);
    EXPECT_EQ(file.fields.Credits_MP->Value, credits);
    EXPECT_EQ(file.fields.Wins_MP->Value, wins);
    EXPECT_EQ(file.fields.Losses_MP->Value, losses);
    EXPECT_EQ(file.fields.Disconnects, 0);
    EXPECT_EQ(game.Wager, -1);
  };
  MeetPeer(100);
  booking.TurnLossIntoWin();
  EXPECT_FALSE(FileExists(player.FileName)) << "no match was lost";
  Stake(40);
  booking.TurnLossIntoWin();
  EXPECT_EQ(game.Wager, 40) << "the match still runs";
  booking.SaveLoss();
  account(60, 0, 1);
  for (int time = 0; time < 2; ++time) {
    booking.TurnLossIntoWin();
    account(144, 1, 0);
  }
  MeetPeer(144);
  Stake(44);
  booking.SaveWin();
  booking.TurnLossIntoWin();
  account(192, 2, 0);
  Stake(10);
  booking.SaveLoss();
  Stake(0);
  booking.TurnLossIntoWin();
  EXPECT_EQ(game.Wager, 0) << "the loss is that of the match before";
}

TEST_F(BookingRulesTest, AMatchWithoutAStakeIsTurnedForTheMatchAlone) {
  MeetPeer(100);
  game.Mode = kModeNetworkArcade;
  game.CreditsRef = std::make_shared<clsLong>();
  game.WinsRef = std::make_shared<clsInteger>();
  game.LossesRef = std::make_shared<clsInteger>();
  game.Wager = 0;
  booking.SaveLoss();
  for (int time = 0; time < 2; ++time) booking.TurnLossIntoWin();
  EXPECT_EQ(game.WinsRef->Value, 1);
  EXPECT_EQ(game.LossesRef->Value, 0);
  EXPECT_EQ(game.CreditsRef->Value, 0);
  EXPECT_EQ(player.Credits_MP->Value, 100);
  EXPECT_EQ(player.Wins_MP->Value + player.Losses_MP->Value + player.Disconnects, 0);
}

TEST_F(BookingRulesTest, UnlocksAreToldOnceAndPlayTheirSoundOnce) {
  struct Row {
    int tile;
    std::int16_t winsBefore;
    bool levelUp;
    std::string title;
    int arcadeOpp;
  };
  const std::vector<Row> rows = {
      {1, 8, false, "", 0},
      {1, 9, true, "", 0},
      {1, 10, false, "", 0},
      {4, 9, true, "Kelm Vantri: Opponent Unlocked!", 0},
      {4, 10, false, "", 0},
      {5, 3, false, "", 0},
      {5, 4, true, "Kelm Vantri: Arcade Opponent!", 1},
      {5, 5, false, "", 0},
      {5, 9, true, "", 0},
      {5, kTop, false, "", 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::Message() << "tile " << row.tile << " after " << row.winsBefore);
    dialogs.boxes.clear();
    player.ArcadeOpp_Opt = 0;
    player.Credits->Value = 5000;
    player.Brannock_Wins->Value = player.Brummox_Wins->Value = player.Orrin_Wins->Value = 10;
    (player.*(CircuitOpponents().at(static_cast<std::size_t>(row.tile)).wins))->Value = row.winsBefore;
    Meet(row.tile);
    Stake(row.tile == 4 ? 750 : 10);
    // Leaving the match behind the box must not book it a second time.
    dialogs.whileOpen = [this] { booking.SaveLoss(); };
    booking.SaveWin();
    ASSERT_EQ(dialogs.boxes.size(), row.title.empty() ? 0U : 1U);
    EXPECT_EQ(dialogs.boxes.empty() ? "" : dialogs.boxes[0].title, row.title);
    EXPECT_EQ(player.ArcadeOpp_Opt, row.arcadeOpp);
    EXPECT_EQ(Circuit(game, player).TakeLevelUp(), row.levelUp);
    EXPECT_FALSE(Circuit(game, player).TakeLevelUp());
  }
}

TEST_F(BookingRulesTest, FullCountersStayWhereTheyAre) {
  player.Wins->Value = player.Losses->Value = player.Brannock_Wins->Value = kTop;
  Meet(0);
  Stake(10);
  EXPECT_EQ(player.Losses->Value, kTop);
  booking.SaveWin();
  EXPECT_EQ(player.Wins->Value, kTop);
  EXPECT_EQ(player.Brannock_Wins->Value, kTop);

  player.Losses_MP->Value = player.Disconnects = kTop;
  MeetPeer(100);
  Stake(1);
  EXPECT_EQ(player.Disconnects, kTop);
  booking.SaveLoss();
  EXPECT_EQ(player.Losses_MP->Value, kTop);
}

// A killed process leaves the file of its last save; each line is a moment at which it may die.
TEST_F(BookingRulesTest, TheFileNeverHoldsAGainBeforeTheWinIsBooked) {
  const auto stored = [this](int losses, std::int32_t credits) {
    const StoredPlayer file(player.FileName);
    ASSERT_TRUE(file.loaded);
    EXPECT_EQ(file.fields.Losses->Value, losses);
    EXPECT_EQ(file.fields.Credits->Value, credits);
  };
  player.Cards->setValue(3, 1, 2);
  player.WritePlayerFile();
  Meet(0);
  CardDesk desk(game, player, networkStake);
  stored(0, 100);
  ASSERT_TRUE(SettleStake(game, player, 10));
  stored(1, 100);
  desk.StakeSettled();
  desk.YourDeck(CardView::Sell);
  ASSERT_EQ(desk.ClickBank({3, 1}), BankClick::Picked);
  ASSERT_TRUE(desk.Trade());
  player.WritePlayerFile();  // whatever else saves meanwhile
  stored(1, 100);
  desk.YourDeck(CardView::Deck);
  desk.Store();
  player.WritePlayerFile();
  stored(1, 810);
  DealMatch(game, player, random);
  booking.SaveWin();
  stored(0, 830);

  MeetPeer(50);
  ASSERT_TRUE(SettleStake(game, player, 50));
  EXPECT_EQ(StoredPlayer(player.FileName).fields.Disconnects, 1);
  EXPECT_FALSE(SettleStake(game, player, 51)) << "more than there is";
  EXPECT_FALSE(SettleStake(game, player, -1));
}

TEST_F(BookingRulesTest, AFailedSaveIsToldAndMendedByTheNext) {
  player.Credits->Value = 1000;
  const std::string good = player.FileName;
  const std::vector<std::pair<const char*, std::function<void()>>> steps = {
      {"settle", [this] { ASSERT_TRUE(SettleStake(game, player, 10)); }},
      {"win", [this] { booking.SaveWin(); }},
      {"loss", [this] { booking.SaveLoss(); }},
      {"run", [this] { EndArcadeRun(game, player); }},
  };
  for (const auto& [what, step] : steps) {
    SCOPED_TRACE(what);
    Meet(0);
    game.Wager = 10;
    dialogs.boxes.clear();
    player.FileName = folder / "gone/Player.vnt";
    step();
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(dialogs.boxes[0].title, "Kelm Vantri: Error");
    player.FileName = good;
    player.WritePlayerFile();
    const StoredPlayer file(good);
    ASSERT_TRUE(file.loaded);
    EXPECT_EQ(file.fields.Credits->Value, player.Credits->Value);
    EXPECT_EQ(file.fields.Losses->Value, player.Losses->Value);
    EXPECT_EQ(file.fields.Wins->Value, player.Wins->Value);
  }
  EXPECT_EQ(player.Wins->Value, 1);
  EXPECT_EQ(player.Losses->Value, 0);  // one in advance, taken back by the win
}

}  // namespace
}  // namespace kv::test
