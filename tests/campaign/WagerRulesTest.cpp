// The wager panel's rules: what can be typed, which amounts open the button, and what pressing it means.
#include "campaign/CampaignFixture.h"
#include "support/Rows.h"

namespace kv::test {
namespace {

class WagerRulesTest : public CampaignFixture {
 protected:
  WagerEntry Panel(bool hosting = false) const { return {game, player, networkStake, hosting}; }
  void Run(std::int32_t credits, std::int32_t best) {
    game.CreditsRef->Value = credits;
    player.Arcade_Best = best;
  }
};

TEST_F(WagerRulesTest, WhatIsNoAmountIsUndone) {
  for (const auto& [typed, cursor, left, cursorLeft] :
       Rows<const char*, int, const char*, int>{{"12a", 3, "12", 2},
                                                {"a12", 1, "12", 0},
                                                {"-5", 1, "12", 0},
                                                {"1 2", 2, "12", 1},
                                                {"+12", 1, "12", 0},
                                                {"?", 1, "12", 0},
                                                {"12.5 credits", 12, "12", 2},
                                                {"", 0, "", 0},
                                                {"0012", 4, "0012", 4}}) {
    WagerEntry panel = Panel();
    ASSERT_EQ(panel.Change("12", 2).text, "12");
    const BoxText box = panel.Change(typed, cursor);
    EXPECT_EQ(box.text, left) << typed;
    EXPECT_EQ(box.cursor, cursorLeft) << typed;
  }
}

TEST_F(WagerRulesTest, OnlyPermittedAmountsOpenTheButton) {
  // Tile -1 is an arcade match.
  for (const auto& [tile, credits, text, open] :
       Rows<int, std::int32_t, const char*, bool>{{4, 800, "749", false},
                                                  {4, 800, "750", true},
                                                  {4, 800, "751", false},
                                                  {0, 5, "0", true},
                                                  {0, 5, "5", true},
                                                  {0, 5, "6", false},
                                                  {6, 800, "0", true},
                                                  {6, 800, "1", false},
                                                  {-1, 0, "0", false},
                                                  {-1, 200, "000", false},
                                                  {-1, 200, "200", true},
                                                  {-1, 200, "00000000000000000000000000200", true},
                                                  {-1, 200, "201", false},
                                                  {-1, 200, "4294967297", false},
                                                  {-1, 200, "18446744073709551617", false},
                                                  {-1, 200, "", false}}) {
    SCOPED_TRACE(testing::Message() << tile << " " << text);
    clsGame run(player, {});
    game = run;
    player.Credits->Value = credits;
    player.Brummox_Wins->Value = player.Orrin_Wins->Value = 10;
    player.Cards->setValue(1, 1, 1);  // no warning
    if (tile >= 0) Meet(tile);
    game.CreditsRef->Value = credits;
    WagerEntry panel = Panel();
    static_cast<void>(panel.Change(text, 0));
    EXPECT_EQ(panel.buttonEnabled(), open);
    EXPECT_EQ(panel.Press(dialogs).action, open ? WagerAction::Settle : WagerAction::None);
  }
}

TEST_F(WagerRulesTest, TheLastStakeAgainstTheSameOpponentIsProposed) {
  Meet(0);
  EXPECT_EQ(Panel().text(), "");
  Stake(8);
  game.Wager = -1;
  EXPECT_EQ(Panel().text(), "8");
  EXPECT_TRUE(Panel().buttonEnabled());
  game.CreditsRef->Value = 7;  // no longer to be had
  EXPECT_EQ(Panel().text(), "");
  EXPECT_FALSE(Panel().buttonEnabled());
  game.CreditsRef->Value = 500;
  game.OppName = "somebody else";
  EXPECT_EQ(Panel().text(), "");
}

TEST_F(WagerRulesTest, LabelsFillTheBox) {
  Run(100, 130);
  WagerEntry run = Panel();
  EXPECT_EQ(run.FillFromInfo().text, "30");
  EXPECT_EQ(run.FillFromCredits().cursor, 3);
  EXPECT_EQ(run.InfoText(), "Highscore: 130");
  EXPECT_FALSE(run.InfoStandsOut());
  Run(131, 130);
  EXPECT_EQ(run.FillFromInfo().text, "0");
  EXPECT_TRUE(run.InfoStandsOut());
  Run(1, 2000000000);
  EXPECT_EQ(run.FillFromInfo().text, "1");

  Meet(0);
  WagerEntry circuit = Panel();
  EXPECT_EQ(circuit.FillFromCredits().text, "10");
  EXPECT_EQ(circuit.CreditsText(), "Credits: 100");
  EXPECT_EQ(circuit.InfoText(), "Min Wager: 0, Max Wager: 10");

  MeetPeer(80);
  WagerEntry peer = Panel(true);
  EXPECT_EQ(peer.InfoText(), "");
  EXPECT_EQ(peer.FillFromCredits().text, "80");
  networkStake.last = 25;
  EXPECT_EQ(peer.FillFromCredits().text, "25");
  EXPECT_EQ(peer.FillFromInfo().text, "80");
}

TEST_F(WagerRulesTest, AStakeThatRisksTheCampaignIsAskedFor) {
  player.Credits->Value = 8;
  Meet(0);
  WagerEntry panel = Panel();
  static_cast<void>(panel.Change("7", 1));
  EXPECT_EQ(panel.Press(dialogs).action, WagerAction::Settle);
  EXPECT_TRUE(dialogs.boxes.empty());

  dialogs.answers = {false, true};
  static_cast<void>(panel.Change("008", 3));
  EXPECT_EQ(panel.Press(dialogs).action, WagerAction::None);
  EXPECT_TRUE(panel.buttonEnabled());
  EXPECT_EQ(panel.text(), "8");
  EXPECT_EQ(game.Wager, -1);
  EXPECT_EQ(game.CreditsRef->Value, 8);
  EXPECT_EQ(panel.Press(dialogs).amount, 8);
  EXPECT_EQ(dialogs.boxes.size(), 2U);

  player.Cards->setValue(1, 6, 1);
  EXPECT_EQ(panel.Press(dialogs).action, WagerAction::Settle);
  EXPECT_EQ(dialogs.boxes.size(), 2U) << "a card is left to sell";
}

TEST_F(WagerRulesTest, TwoPeersAgreeOnAStake) {
  MeetPeer(100);
  WagerEntry host = Panel(true);
  WagerEntry guest = Panel(false);
  EXPECT_EQ(CaptionText(host.caption()), "propose");
  EXPECT_EQ(CaptionText(guest.caption()), "(waiting)");
  EXPECT_EQ(guest.text(), "?");
  EXPECT_FALSE(host.boxEnabled() || host.buttonEnabled() || guest.boxEnabled());

  host.EnableButtons(true);
  static_cast<void>(host.Change("040", 3));
  const WagerPress proposal = host.Press(dialogs);
  EXPECT_EQ(proposal.action, WagerAction::Propose);
  EXPECT_EQ(TextsOfProposal(player.Name, proposal.amount).chat, "[Chat][Mara proposes a wager of 40.]");
  EXPECT_EQ(CaptionText(host.caption()), "(waiting)");
  EXPECT_FALSE(host.boxEnabled() || host.buttonEnabled());

  ASSERT_TRUE(guest.PeerProposes("101"));
  EXPECT_FALSE(guest.buttonEnabled()) << "not covered by the credits";
  EXPECT_FALSE(guest.PeerProposes("-1"));
  ASSERT_TRUE(guest.PeerProposes("40"));
  EXPECT_EQ(CaptionText(guest.caption()), "accept");
  static_cast<void>(guest.Change("41", 2));
  EXPECT_EQ(CaptionText(guest.caption()), "propose") << "an edited amount is a new proposal";
  ASSERT_TRUE(guest.PeerProposes("40"));
  const WagerPress accepted = guest.Press(dialogs);
  EXPECT_EQ(accepted.action, WagerAction::Settle);
  EXPECT_TRUE(accepted.acceptsPeer);

  game.Wager = 0;  // as the peer's acceptance leaves it
  const WagerPress settled = host.Press(dialogs);
  EXPECT_EQ(settled.action, WagerAction::Settle);
  EXPECT_EQ(settled.amount, 40);
  EXPECT_FALSE(settled.acceptsPeer);
}

}  // namespace
}  // namespace kv::test
