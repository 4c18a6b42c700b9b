// A peer that says what it must not: nothing changes, and the chat tells of it.
#include "network/NetworkFixture.h"

namespace kv::test {
namespace {

using NetworkFaultsTest = NetworkFixture;

TEST_F(NetworkFaultsTest, MessagesOutOfPlaceChangeNothing) {
  Meet();
  for (const char* message :
       {"[Xyzw]hello", "[Card]no7", "[Hand]1ps3", "[Stnd]", "[Turn]", "[Forf]", "[Acpt]", "[Wage]50",
        "[WhoS]True", "[Name]Other", "[Port]12", "[Vers]1.3.0", "[File]0"}) {
    Refused(host, message);
  }
  Refused(host, "[Mode]1");
  EXPECT_FALSE(host.program->network()->arcade()) << "the host alone chooses the mode";
  EXPECT_EQ(host.program->game()->OppName, "Gus");

  ToTurn(Seat::Player);
  MatchEngine& engine = host.match()->engine();
  const int total = engine.shown().Total(Seat::Opponent);
  for (const char* message : {"[Card]no7", "[Hand]1ps3", "[Stnd]", "[Play]", "[Wage]5", "[Acpt]"}) {
    Refused(host, message);
  }
  EXPECT_EQ(engine.shown().Total(Seat::Opponent), total);
  EXPECT_TRUE(engine.shown().controls.endTurn) << "still this side's turn";

  engine.person().EndTurn();
  PlayUntil([this] { return guest.match()->engine().shown().controls.endTurn; });
  Pass(500);
  Refused(host, "[Card]no3");  // it has drawn
  const int slot = 2;
  Forge(host, "[Hand]2fp3");
  EXPECT_EQ(engine.shown().HandCard(Seat::Opponent, slot).text(), "00");
  EXPECT_EQ(engine.shown().Table(Seat::Opponent).back().text(), "fp3");
  Refused(host, "[Hand]3ps1");  // one side card a turn
}

TEST_F(NetworkFaultsTest, ATurnThatIsRepeatedEndsOnce) {
  Meet();
  ToTurn(Seat::Opponent);
  const std::size_t before = host.socket->sent.size();
  for (int time = 0; time < 3; ++time) host.socket->Receive("[Turn]\x87");
  Pass(250);
  EXPECT_EQ(host.match()->engine().peer().peerTurn(), PeerTurn::NotTheirs);
  Pass(2000);
  EXPECT_EQ(Count(host.socket->sent.substr(before), "[TAck]"), 3u);
  EXPECT_FALSE(host.Saw("Unknown command"));
}

TEST_F(NetworkFaultsTest, AnAcceptanceNeedsAProposalThatStillStands) {
  Meet();
  ToCards(false);
  Pass(500);
  Refused(host, "[Acpt]");
  host.Act(30);
  Pass(500);
  Refused(guest, "[Acpt]");  // it was asked, and has asked nothing
  auto& wager = guest.program->screenAs<frmCards>()->wager();
  wager.gettxtWager().setText("40");
  wager.getcmdWager().click();
  Pass(500);
  Refused(host, "[Acpt]");  // its 30 are off the table
  for (NetworkPlayer* each : {&host, &guest}) {
    EXPECT_EQ(each->program->game()->Wager, -1);
    EXPECT_EQ(Account(*each), (Accounts{100, 0, 0, 0}));
  }
  Forge(guest, "[Acpt]");
  EXPECT_EQ(guest.program->game()->Wager, 40);
}

TEST_F(NetworkFaultsTest, TheHostAloneTellsWhoBegins) {
  Meet();
  ToCards(true);
  host.Click("cmdContinue");
  Pass(1000);
  ASSERT_EQ(host.ScreenName(), "frmGame");
  Refused(host, "[WhoS]True");
  Forge(guest, "[WhoS]True");
  EXPECT_EQ(Complaints(guest, "[WhoS]True"), 0u);
}

TEST_F(NetworkFaultsTest, BothDrawFromOneDeckThatHoldsFourOfEachCard) {
  Meet();
  ToTurn(Seat::Opponent);
  MatchEngine& engine = host.match()->engine();
  const auto theirs = [&engine] { return engine.peer().peerTurn() == PeerTurn::Theirs; };
  guest.acts = host.acts = false;
  Forge(host, "[Turn]");
  PlayUntil([&engine] { return engine.shown().controls.stand; });
  engine.person().Stand();
  while (engine.board().MainDeckCount(1) < 4) {
    PlayUntil(theirs);
    const int total = engine.shown().Total(Seat::Opponent);
    Forge(host, "[Card]no1");
    ASSERT_EQ(engine.shown().Total(Seat::Opponent), total + 1);
    Forge(host, "[Turn]");
  }
  PlayUntil(theirs);
  Refused(host, "[Card]no1");
  Forge(host, "[Card]no2");
  EXPECT_EQ(Complaints(host, "[Card]no2"), 0u) << "it may still draw what there is";
}

TEST_F(NetworkFaultsTest, WithoutAPeerNobodyIsWaitedForAtTheEnd) {
  host.program->EndAtOnce();
  EXPECT_EQ(host.quits, 1);
}

/// The system ends the program in the middle of a match.
TEST_F(NetworkFaultsTest, ThePeerHearsThatTheOtherSideWasEnded) {
  Meet();
  ToTurn(Seat::Player);
  host.dialogs.boxes.clear();
  host.program->EndAtOnce();
  Pass(300);
  EXPECT_EQ(host.quits, 1) << "nobody waits for the farewell of a match";
  EXPECT_TRUE(host.dialogs.boxes.empty());
  EXPECT_EQ(host.record().Losses_MP->Value, 1);
  Pass(1000);
  EXPECT_EQ(guest.dialogs.boxes.back().text, "Opponent has quit! You Win!");
}

}  // namespace
}  // namespace kv::test
