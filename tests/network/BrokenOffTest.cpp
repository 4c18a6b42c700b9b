// What is booked when a network match is broken off before its result: the stake given back, halved, or moved
// from the card screen's copies into the record.
#include "campaign/CampaignFixture.h"
#include "network/BrokenOff.h"

namespace kv::test {
namespace {

class BrokenOffTest : public CampaignFixture {
 protected:
  /// The stake is settled on the card screen; with `continued` its copies are stored, too.
  void Settle(std::int32_t amount, bool continued) {
    player.Disconnects = 3;
    player.Losses_MP->Value = 1;
    MeetPeer(100);
    if (continued) {
      Stake(amount);
      return;
    }
    CardDesk desk(game, player, networkStake);
    ASSERT_TRUE(SettleStake(game, player, amount));
    desk.StakeSettled();
  }
  /// Credits, losses and disconnects, in the record and on disk alike.
  void Expect(std::int32_t credits, int losses, int disconnects) {
    const StoredPlayer file(player.FileName);
    ASSERT_TRUE(file.loaded);
    for (const clsPlayer* each : {static_cast<const clsPlayer*>(&player), &file.fields}) {
      EXPECT_EQ(each->Credits_MP->Value, credits);
      EXPECT_EQ(each->Losses_MP->Value, losses);
      EXPECT_EQ(each->Disconnects, disconnects);
    }
    EXPECT_EQ(game.Wager, -1);
  }
};

TEST_F(BrokenOffTest, AWithdrawnStakeLeavesNoTrace) {
  for (const bool continued : {false, true}) {
    SCOPED_TRACE(continued);
    Settle(41, continued);
    EXPECT_EQ(player.Disconnects, 4);
    for (int time = 0; time < 2; ++time) {
      WithdrawStake(game, player);
      Expect(100, 1, 3);
    }
  }
}

TEST_F(BrokenOffTest, ALostLineCostsHalfTheStakeAndIsADisconnect) {
  for (const bool continued : {false, true}) {
    SCOPED_TRACE(continued);
    Settle(41, continued);
    for (int time = 0; time < 2; ++time) {
      SaveDisconnect(game, player, booking, dialogs);
      Expect(79, 1, 4);
    }
  }
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(BrokenOffTest, AWinAtTheDeskIsPaidIntoTheRecord) {
  Settle(41, false);
  StakeToRecord(game, player);
  StakeToRecord(game, player);  // once is enough
  EXPECT_EQ(player.Credits_MP->Value, 59);
  booking.SaveWin();
  Expect(145, 1, 3);
}

TEST_F(BrokenOffTest, AMatchWithoutAStakeBooksNothing) {
  Settle(41, false);
  for (const bool lost : {false, true}) {
    game.Mode = kModeNetworkArcade;
    game.Wager = 0;
    StakeToRecord(game, player);
    EXPECT_NE(game.CreditsRef, player.Credits_MP) << "the arcade match keeps its own credits";
    if (lost) {
      SaveDisconnect(game, player, booking, dialogs);
    } else {
      WithdrawStake(game, player);
    }
    Expect(100, 1, 4);  // as the file of the stake before says
  }
  EXPECT_TRUE(dialogs.boxes.empty());
}

}  // namespace
}  // namespace kv::test
