// Messages that cross: one side leaves or gives up while the other's move is still on its way, and whatever
// the order, one of the two has won and the other has lost. And a peer that says what it must not: nothing
// changes, and the chat tells of it.
#include "network/NetworkFixture.h"

namespace kv::test {
namespace {

/// How and when one side leaves while the host's last move is under way.
struct Row {
  const char* moment;
  int delay;  // of every message, in milliseconds
  bool hostLeaves;
  bool givesUp;
  std::function<bool()> is;
  std::optional<bool> hostWins;  // without one: whoever has won by the cards
  bool comesFirst = false;       // the farewell waits at the host already when it moves
};

class CrossingTest : public NetworkFixture {
 protected:
  static constexpr Accounts kWon = {155, 1, 0, 0};  // of a match for 50 credits
  static constexpr Accounts kLost = {50, 0, 1, 0};

  /// Calls `act` once `is`, however deep in a pause the programs are.
  void When(std::function<bool()> is, std::function<void()> act) {
    if (is()) return act();
    clock.At(5, [this, is = std::move(is), act = std::move(act)] { When(is, act); });
  }
  [[nodiscard]] static bool Decided(NetworkPlayer& player) {
    return player.match() != nullptr && player.match()->engine().peer().decision().has_value();
  }
  [[nodiscard]] static bool Unsent(NetworkPlayer& player, const char* command) {
    return player.program->network()->link().Unsent(command);
  }
  /// The host's next move decides the match: it holds more than a guest that stands, or is bust.
  [[nodiscard]] bool AtTheLastMove(bool hostWins) {
    MatchEngine& engine = host.match()->engine();
    if (!engine.shown().controls.endTurn) return false;
    const int total = engine.shown().Total(Seat::Player);
    if (!hostWins) return total > kTargetTotal && engine.shown().SetWins(Seat::Opponent) == kSetsToWin - 1;
    return HostIsAhead() && engine.shown().SetWins(Seat::Player) == kSetsToWin - 1;
  }
  [[nodiscard]] bool HostIsAhead() {
    const MatchEngine& engine = host.match()->engine();
    return engine.shown().Stood(Seat::Opponent) &&
           engine.shown().Total(Seat::Player) > engine.shown().Total(Seat::Opponent);
  }
  /// No side cards: the guest stands on its first card, and the host goes on until it has more, or is bust.
  void Move(bool hostWins) {
    for (NetworkPlayer* each : {&host, &guest}) {
      MatchEngine& engine = each->match()->engine();
      if (engine.shown().banner.visible) engine.Continue();
      if (each == &guest || (hostWins && HostIsAhead())) {
        engine.person().Stand();
      } else {
        engine.person().EndTurn();
      }
    }
  }
  void Part(const Row& row, bool byPlay) {
    for (NetworkPlayer* each : {&host, &guest}) Renew(*each);
    ToTheLastMove(byPlay);
    net.mostDelay = row.delay;
    NetworkPlayer& leaver = row.hostLeaves ? host : guest;
    bool left = false;
    When(row.is, [&] {
      left = true;
      if (!row.givesUp) return leaver.Say("/disconnect");
      leaver.GiveUp();
    });
    MatchEngine& engine = host.match()->engine();
    const auto move = [&] { byPlay ? engine.person().Stand() : engine.person().EndTurn(); };
    if (row.comesFirst) {
      When([this] { return host.program->network()->link().waiting() > 0; }, move);
    } else {
      move();
    }
    Pass(20000);
    ASSERT_TRUE(left);
    const bool won = row.hostWins.value_or(byPlay);
    EXPECT_EQ(Account(host), won ? kWon : kLost);
    EXPECT_EQ(Account(guest), won ? kLost : kWon);
    const bool reversed = won && !byPlay && !row.hostLeaves && !row.givesUp;
    if (reversed) {
      EXPECT_EQ(host.dialogs.boxes.back().text, "Opponent has quit! You Win!");
    }
    net.mostDelay = 1;
  }
  void Renew(NetworkPlayer& player) {
    player.record().Credits_MP->Value = 100;
    player.record().Wins_MP->Value = player.record().Losses_MP->Value = player.record().Disconnects = 0;
    player.record().GameSpeed_Opt = 0;  // slow: long pauses for what may come between
    player.acts = true;
    player.OpenLobby();
  }
  void ToTheLastMove(bool hostWins) {
    Meet();
    ToCards(true);
    PlayUntil([this] { return BothOn("frmGame"); });
    host.acts = guest.acts = false;
    PlayUntil([&] {
      if (AtTheLastMove(hostWins)) return true;
      Move(hostWins);
      return false;
    });
    Pass(500);
  }
};

/// The host makes the last move. What crosses it arrives before the host has booked, or long after.
TEST_F(CrossingTest, BothBooksFitWhenTheLastMoveMeetsAFarewell) {
  const auto moving = [this] { return Decided(host) && Unsent(host, "[Turn]"); };
  const auto moved = [this] { return Decided(host) && !Unsent(host, "[Turn]"); };
  const auto reached = [this] { return Decided(guest) && Unsent(guest, "[TAck]"); };
  const auto answered = [this] { return Decided(guest) && !Unsent(guest, "[TAck]"); };
  const Row rows[] = {
      {"it moves while a farewell waits", 40, false, false, [] { return true; }, true, true},
      {"it moves while a forfeit waits", 40, false, true, [] { return true; }, true, true},
      {"its turn has not left", 40, true, false, moving, false},
      {"its turn has left", 40, true, false, moved, {}},
      {"its turn is on the way", 40, false, false, moved, true},
      {"its turn is long on the way", 1500, false, false, moved, true},
      {"its turn is on the way, given up", 40, false, true, moved, true},
      {"its turn is long on the way, given up", 1500, false, true, moved, true},
      {"its turn is not answered", 40, false, false, reached, true},
      {"its turn is answered", 40, false, false, answered, {}},
  };
  for (const bool byPlay : {true, false}) {
    for (const Row& row : rows) {
      SCOPED_TRACE(std::string(row.moment) + (byPlay ? ", won" : ", lost"));
      Part(row, byPlay);
      if (HasFatalFailure()) return;
    }
  }
}

/// The match of who quits is hidden and no longer plays: what its last move had decided comes to nothing.
TEST_F(CrossingTest, AMatchThatWasLostByQuittingIsNotWonBehindTheFarewell) {
  for (NetworkPlayer* each : {&host, &guest}) Renew(*each);
  ToTheLastMove(true);
  When([this] { return Decided(host) && Unsent(host, "[Turn]"); }, [this] { host.Say("/quit"); });
  host.match()->engine().person().Stand();
  Pass(2400);
  EXPECT_EQ(host.sound.played.back(), "losematch");
  EXPECT_EQ(Account(host), kLost);
  EXPECT_EQ(Account(guest), kWon);
}

/// The host is at the table already, and gives up while the guest still chooses its cards.
TEST_F(CrossingTest, WhoGivesUpBeforeThePeerIsAtTheTableHasLost) {
  for (const bool arcade : {false, true}) {
    SCOPED_TRACE(arcade);
    for (NetworkPlayer* each : {&host, &guest}) Renew(*each);
    Meet();
    if (arcade) host.Click("cmdGameMode"), Pass(500);
    ToCards(true);
    host.Click("cmdContinue");
    Pass(1000);
    ASSERT_EQ(host.ScreenName(), "frmGame");
    ASSERT_EQ(guest.ScreenName(), "frmCards");
    host.GiveUp();
    Pass(1500);
    EXPECT_TRUE(guest.Saw("[Hanna has forfeit this match. You Win.]"));
    EXPECT_EQ(guest.ScreenName(), "frmNetwork");
    PlayUntil([this] { return BothOn("frmNetwork"); });
    EXPECT_EQ(Account(host), arcade ? (Accounts{100, 0, 0, 0}) : kLost);
    EXPECT_EQ(Account(guest), arcade ? (Accounts{100, 0, 0, 0}) : kWon);
    Pass(3000);
    PlayMatch(10);
    EXPECT_FALSE(host.Saw("Unknown command") || guest.Saw("Unknown command"));
  }
}

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
  EXPECT_EQ(host.program->screenAs<frmCards>()->wager().gettxtWager().text(), "40");
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
