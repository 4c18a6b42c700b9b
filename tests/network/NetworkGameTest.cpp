// A network game step by step: the greeting, the way to a match, the ways it ends, and the lobby.
#include "network/NetworkFixture.h"
#include "support/Rows.h"
#include "support/ScreenHand.h"

namespace kv::test {
namespace {

using NetworkGameTest = NetworkFixture;

TEST_F(NetworkGameTest, GreetingShowsWhoIsThere) {
  Meet();
  EXPECT_EQ(host.program->network()->chatLog(),
            "\r\n\r\n\r\n\r\n[Version Check (Pass): You - v1.2.4, Opp - v1.2.4]\r\n[Connected with Gus]\r\n"
            "[(You) Hanna: 100 credits, 0 wins, 0 losses, 0 disconnects]\r\n"
            "[Gus: 100 credits, 0 wins, 0 losses, 0 disconnects]");
  EXPECT_EQ(guest.record().LastIP, "10.0.0.1");
  EXPECT_TRUE(host.Find<ctlButton>("cmdGameMode")->isEnabled());
  EXPECT_FALSE(guest.Find<ctlButton>("cmdGameMode")->isEnabled());
  host.Say("<b>hi</b> \u2021[Quit]\u2021");
  Pass(500);
  EXPECT_TRUE(guest.Saw("\r\nHanna: <b>hi</b> [Quit]"));
  EXPECT_TRUE(guest.Find<QPlainTextEdit>("txtNetwork")->toPlainText().contains("<b>hi</b>"));
}

TEST_F(NetworkGameTest, AnotherVersionOrOneThatCannotBeReadCanOnlyChat) {
  for (const char* version : {"1.3.0", "", "1.2.4 and a long tail of it", "1.2.\xE4"}) {
    SCOPED_TRACE(version);
    LoopbackSocket stranger(net, "10.0.0.7");
    stranger.Connected = [&] {
      stranger.SendData(std::string("[Vers]") + version + "\x87[Name]Old\x87[Chat]hi\x87");
    };
    stranger.DataArrival = [] {};
    host.Click("cmdConnect");
    stranger.setRemoteHost("10.0.0.1");
    stranger.setRemotePort(6000);
    stranger.Connect();
    Pass(5000);
    const std::string read = version == std::string("1.3.0") ? version : "";
    EXPECT_TRUE(host.Saw("[Version Check (FAIL): You - 1.2.4, Opp - v" + read + "]"));
    EXPECT_TRUE(host.Saw("\r\nhi"));
    EXPECT_FALSE(host.Find<ctlButton>("cmdStart")->isVisible());
    stranger.Close();
    Pass(12000);
  }
}

TEST_F(NetworkGameTest, AGoodbyeIsSaidAlsoToWhoComesStraightBack) {
  Meet();
  host.Say("/disconnect");
  host.OpenLobby();
  Pass(1000);
  EXPECT_EQ(guest.dialogs.boxes.back().text, "Opponent has quit!");
}

TEST_F(NetworkGameTest, AModeChangeTakesBothStartsBack) {
  Meet();
  guest.Click("cmdStart");
  Pass(1000);
  host.Click("cmdGameMode");
  Pass(1000);
  EXPECT_TRUE(guest.Saw("[Hanna has changed the game mode to Arcade match.]"));
  EXPECT_TRUE(guest.Find<ctlButton>("cmdStart")->isEnabled());
  host.Click("cmdStart");
  Pass(3000);
  EXPECT_TRUE(BothOn("frmNetwork"));
  guest.Click("cmdStart");
  Pass(3000);
  EXPECT_TRUE(BothOn("frmCards"));
  EXPECT_EQ(guest.program->game()->Mode, kModeNetworkArcade);
}

TEST_F(NetworkGameTest, AStartThatCrossesAModeChangeCostsNobodyTheMatch) {
  Meet();
  guest.Click("cmdStart");
  for (int toggle = 0; toggle < 2; ++toggle) host.Click("cmdGameMode");
  Pass(1000);
  host.Click("cmdStart");  // the guest's first Start came after the toggles
  Pass(1000);
  guest.Click("cmdStart");
  Pass(2000);
  for (NetworkPlayer* next : {&host, &guest, &host}) {  // proposes, accepts, goes on to the table
    next->Act(10);
    Pass(1000);
  }
  EXPECT_EQ(host.program->game()->Wager, 10);
  Pass(8000);  // the guest takes its time
  PlayUntil([this] { return BothOn("frmNetwork"); }, 10);
  EXPECT_EQ(host.record().Wins_MP->Value + guest.record().Wins_MP->Value, 1);

  Pass(3000);
  guest.Click("cmdStart");
  host.Click("cmdGameMode");  // to an arcade match, which has nothing to wait for at the cards
  host.Click("cmdStart");
  Pass(8000);
  EXPECT_TRUE(BothOn("frmNetwork")) << "the guest's Start was taken back";
  EXPECT_TRUE(guest.Click("cmdStart"));
  host.Click("cmdStart");  // where its own had met the guest's old one
  Pass(2000);
  ASSERT_TRUE(BothOn("frmCards"));
  PlayUntil([this] { return BothOn("frmNetwork"); }, 0);
  EXPECT_FALSE(guest.Saw("Unknown command") || host.Saw("Unknown command"));
}

TEST_F(NetworkGameTest, BackFromTheCardsReturnsBoth) {
  Meet();
  host.Click("cmdGameMode");
  Pass(500);
  ToCards(false);
  host.Find<ctlTitlebar>("ctlTitlebar")->Quit();
  Pass(3000);
  EXPECT_TRUE(BothOn("frmNetwork"));
  for (NetworkPlayer* each : {&host, &guest}) EXPECT_EQ(each->program->game()->Wager, -1);
  host.Click("cmdGameMode");
  Pass(500);
  ToCards(false);
  host.program->screenAs<frmCards>()->wager().getcmdEnd().click();
  Pass(1000);
  EXPECT_TRUE(BothOn("frmNetwork"));
  EXPECT_TRUE(guest.Saw("[Hanna has returned to the Network screen.]"));
  Pass(3000);
  PlayMatch(10);
  host.Say("/quit");
  Pass(3000);
  EXPECT_EQ(guest.dialogs.boxes.back().text, "Opponent has quit!");
}

/// A peer that says, in whatever way, that it is in the lobby has left what this side is in.
TEST_F(NetworkGameTest, WhoIsAheadOfItsPeerComesBack) {
  const auto says = [this](const std::string& message) {
    Forge(host, message);
    Pass(500);
    EXPECT_EQ(host.ScreenName(), "frmNetwork") << message;
    EXPECT_EQ(host.program->game()->Wager, -1);
    guest.program->OpenLobby();
    Pass(3000);
  };
  Meet();
  ToCards(true);
  says("[Chat][Gus: 100 credits, 0 wins, 0 losses, 0 disconnects]");
  EXPECT_EQ(Account(host), (Accounts{100, 0, 0, 0})) << "the stake is withdrawn";
  guest.record().Disconnects = 0;
  ToTurn(Seat::Player);
  says("[Back]");
  EXPECT_EQ(Account(host), (Accounts{155, 1, 0, 0})) << "leaving a match is losing it";
}

TEST_F(NetworkGameTest, LeavingCostsAnOpenStakeAndNothingElse) {
  for (const auto& [state, reach, told, leaver, stayer] :
       Rows<const char*, std::function<void()>, const char*, Accounts, Accounts>{
           {"lobby", [] {}, "Opponent has quit!", {100, 0, 0, 0}, {100, 0, 0, 0}},
           {"cards", [this] { ToCards(true); }, "Opponent has quit! You Win!", {50, 0, 1, 0}, {155, 1, 0, 0}},
           {"match",
            [this] { ToTurn(Seat::Opponent); },
            "Opponent has quit! You Win!",
            {0, 0, 2, 0},
            {210, 2, 0, 0}}}) {
    SCOPED_TRACE(state);
    Meet();
    reach();
    host.ScreenName() == "frmNetwork" ? host.Find<ctlTitlebar>("ctlTitlebar")->Quit()
                                      : host.Say("/disconnect");
    EXPECT_EQ(host.ScreenName(), "frmMenu");
    Pass(3000);
    EXPECT_EQ(guest.dialogs.boxes.back().text, told);
    EXPECT_EQ(guest.dialogs.boxes.back().title, "Kelm Vantri: Connection Terminated");
    EXPECT_EQ(guest.ScreenName(), "frmNetwork");
    EXPECT_TRUE(guest.Saw("Network chat commands"));
    EXPECT_EQ(clock.RunningTimers(), 0);
    EXPECT_EQ(Account(host), leaver);
    EXPECT_EQ(Account(guest), stayer);
    host.OpenLobby();
  }
}

TEST_F(NetworkGameTest, TheProgramEndsOnceItsFarewellIsHeardOut) {
  Meet();
  ToCards(true);
  guest.Say("/quit");
  EXPECT_FALSE(guest.program->screen()->isVisible());
  Pass(1500);
  EXPECT_EQ(host.dialogs.boxes.back().text, "Opponent has quit! You Win!");
  EXPECT_EQ(guest.quits, 0);
  Pass(1500);
  EXPECT_EQ(guest.quits, 1);
  EXPECT_EQ(Account(guest), (Accounts{50, 0, 1, 0}));
  EXPECT_EQ(Account(host), (Accounts{155, 1, 0, 0}));
}

/// The line drops at each state of a game: the screen that stays is locked, and ten seconds later an open
/// stake is booked and a fresh lobby stands.
TEST_F(NetworkGameTest, ADroppedLineIsBookedByTheStateOfTheGame) {
  const auto arcade = [this] { host.Click("cmdGameMode"), Pass(500); };
  const auto banner = [this](int sets) {
    ToTurn(Seat::Player);
    guest.acts = false;
    PlayUntil([this, sets] {
      const MatchEngine& engine = guest.match()->engine();
      const bool shown =
          engine.shown().banner.visible &&
          engine.shown().SetWins(Seat::Player) + engine.shown().SetWins(Seat::Opponent) >= sets;
      if (!shown && engine.shown().banner.visible) guest.match()->engine().Continue();
      if (engine.shown().controls.endTurn) guest.match()->engine().person().EndTurn();
      return shown;
    });
    guest.acts = true;
  };
  const Accounts untouched = {100, 0, 0, 0};
  const Accounts halved = {75, 0, 0, 1};
  for (const auto& [state, reach, booked] : Rows<const char*, std::function<void()>, Accounts>{
           {"lobby", [] {}, untouched},
           {"Start pressed", [this] { guest.Click("cmdStart"); }, untouched},
           {"cards", [this] { ToCards(false); }, untouched},
           {"stake proposed", [this] { ToCards(false), Pass(500), host.Act(50), Pass(500); }, untouched},
           {"stake settled", [this] { ToCards(true); }, halved},
           {"match opening", [this] { ToCards(true), guest.Click("cmdContinue"), Pass(1000); }, halved},
           {"turn of the peer", [this] { ToTurn(Seat::Player); }, halved},
           {"turn of one's own", [this] { ToTurn(Seat::Opponent); }, halved},
           {"banner of a set", [&] { banner(1); }, halved},
           {"match won", [&] { ToTurn(Seat::Player), host.GiveUp(), Pass(1000); }, {155, 1, 0, 0}},
           {"arcade cards", [&] { arcade(), ToCards(false); }, untouched},
           {"arcade turn", [&] { arcade(), ToTurn(Seat::Player); }, untouched}}) {
    SCOPED_TRACE(state);
    for (NetworkPlayer* each : {&host, &guest}) {
      each->record().Credits_MP->Value = 100;
      each->record().Wins_MP->Value = each->record().Losses_MP->Value = each->record().Disconnects = 0;
    }
    Meet();
    reach();
    host.socket->Close();
    Pass(300);
    EXPECT_TRUE(guest.Saw("<< WARNING: Connection interrupted - Please Wait >>"));
    EXPECT_FALSE(guest.program->screen()->isEnabled());
    Pass(9500);
    EXPECT_FALSE(guest.Saw("Network chat commands"));
    Pass(1000);
    EXPECT_EQ(guest.dialogs.boxes.back().text, "Connection Problem (Err No: 0 - Connection lost)");
    EXPECT_EQ(guest.dialogs.boxes.back().title, "Kelm Vantri: TCP/IP WinSock Error");
    EXPECT_EQ(Account(guest), booked);
    EXPECT_EQ(guest.program->game()->Wager, -1);
    EXPECT_EQ(guest.ScreenName(), "frmNetwork");
    EXPECT_TRUE(guest.program->screen()->isEnabled());
    EXPECT_TRUE(guest.Saw("Network chat commands"));
    Pass(12000);
  }
}

TEST_F(NetworkGameTest, AScreenThatClosesUnderItsQuestionIsKeptUntilTheAnswer) {
  Meet();
  ToTurn(Seat::Opponent);
  guest.dialogs.answers = {true};
  guest.dialogs.whileOpen = [this] {
    guest.dialogs.whileOpen = {};
    Forge(guest, "[Quit]");
    Pass(1000);
    EXPECT_EQ(guest.ScreenName(), "frmNetwork");
  };
  guest.match()->engine().person().Forfeit();
  Pass(1000);
  EXPECT_EQ(guest.program->Retired(), 0u);
  EXPECT_EQ(Account(guest), (Accounts{155, 1, 0, 0}));
}

// --- The lobby -------------------------------------------------------------------------------------------

TEST_F(NetworkGameTest, OnesOwnAddressCannotBeJoined) {
  guest.Click("cmdJoin");
  for (const char* own : {"127.0.0.1", "10.0.0.2"}) {
    guest.Find<QLineEdit>("txtIP")->setText(QString::fromUtf8(own));
    guest.Click("cmdConnect");
    EXPECT_EQ(guest.dialogs.boxes.back().text, "Error! This IP is being used on this computer!");
    EXPECT_TRUE(guest.Find<ctlButton>("cmdConnect")->isEnabled());
  }
  guest.Find<QLineEdit>("txtIP")->setText("1.2.3");
  EXPECT_FALSE(guest.Click("cmdConnect"));
  guest.Find<QLineEdit>("txtIP")->setText("10.0.0.99");
  guest.Click("cmdConnect");
  Pass(100);
  EXPECT_EQ(guest.dialogs.boxes.back().text, "Connection Problem (Err No: 10061 - Connection refused)");
  EXPECT_TRUE(guest.Find<ctlButton>("cmdConnect")->isEnabled()) << "a fresh lobby";
}

TEST_F(NetworkGameTest, APortIsAskedForUntilItIsOne) {
  host.dialogs.texts = {"0", "65536", "abc", "7000"};
  host.Click("cmdPort");
  EXPECT_EQ(host.Find<ctlButton>("cmdPort")->Caption(), "7000");
  host.dialogs.texts = {std::nullopt};
  host.Click("cmdPort");
  EXPECT_EQ(host.Find<ctlButton>("cmdPort")->Caption(), "7000");
  EXPECT_TRUE(host.Find<ctlButton>("cmdPort")->isEnabled());
}

TEST_F(NetworkGameTest, AnAddressIsChosenFromTheList) {
  host.Click("cmdDeviceIP");
  auto& list = *host.Find<QListWidget>("lstIPs");
  ASSERT_EQ(list.count(), 3);
  EXPECT_EQ(list.item(0)->text(), "< 1 IP(s) detected >");
  emit list.itemActivated(list.item(1));
  EXPECT_TRUE(list.isVisible());
  emit list.itemActivated(list.item(2));
  EXPECT_FALSE(list.isVisible());
  EXPECT_FALSE(host.Find<ctlButton>("cmdHost")->isEnabled());
  EXPECT_TRUE(host.Find<ctlButton>("cmdJoin")->isEnabled());
}

TEST_F(NetworkGameTest, EscapeInTheChatLineTakesTheLineBackAndNothingElse) {
  Meet();
  Screen* lobby = host.program->screen();
  auto& line = *host.Find<QLineEdit>("txtSend");
  lobby->activateWindow();
  line.setFocus();
  Pass(200);
  line.setText(QStringLiteral("good"));
  ScreenHand(*lobby).Key(Qt::Key_Escape);
  Pass(500);
  EXPECT_EQ(line.text(), QString());
  EXPECT_FALSE(line.hasFocus());
  EXPECT_EQ(host.ScreenName(), "frmNetwork");
  EXPECT_TRUE(host.program->network()->connected());
  ScreenHand(*lobby).Key(Qt::Key_Escape);
  EXPECT_EQ(host.ScreenName(), "frmMenu") << "whoever is not writing leaves the lobby";
}

TEST_F(NetworkGameTest, AWinBuysTenCredits) {
  host.record().Credits_MP->Value = guest.record().Credits_MP->Value = 0;
  host.record().Wins_MP->Value = 2;
  Meet();
  host.dialogs.answers = {true};
  Start();
  EXPECT_EQ(host.record().Credits_MP->Value, 10);
  EXPECT_EQ(host.record().Wins_MP->Value, 1);
  EXPECT_TRUE(guest.dialogs.boxes.empty()) << "nothing to trade in";
}

}  // namespace
}  // namespace kv::test
