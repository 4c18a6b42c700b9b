#include "network/NetworkGame.h"

#include <utility>

#include "match/MatchEngine.h"
#include "profile/clsPlayer.h"

namespace kv {
namespace {

constexpr std::size_t kMostLine = 1600;  // bytes of a typed line
constexpr std::size_t kMostWire = 4000;  // bytes of a message
constexpr std::string_view kHelp =
    "Network chat commands: \r\n/quit\t\t-\tQuit whole game\r\n/disconnect\t-\tDisconnect to Main "
    "Menu\r\n\r\n"
    "To minimize chances of a network related bug incident, try to play on a stable (not necessary fast, "
    "just "
    "good flowing) connection and try not to quit during a match (it *should* work...)";

std::string FileNameOf(const std::string& path) {
  const std::size_t slash = path.find_last_of("/\\");
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

}  // namespace

NetworkGame::NetworkGame(const NetworkServices& services, TcpSocket& socket)
    : services_(services),
      link_(services.scheduler, socket,
            {.Greet = [this] { SendHello(); },
             .Message = [this](const std::string& message) { return ProcessMessage(message); },
             .Interrupted = [this](bool interrupted) { Interrupted(interrupted); },
             .Failed = [this](int number, const std::string& text) { ConnectionFailed(number, text); }}) {}

void NetworkGame::Begin(clsPlayer& player, clsGame& game, MatchBooking& booking) {
  side_.player = &player;
  side_.game = &game;
  side_.booking = &booking;
  StartFresh();
}

void NetworkGame::StartFresh() {
  link_.CloseConnection();
  hosting_ = true;
  arcade_ = false;
  peer_ = {};
  services_.stake.last = -1;
  chat_.Reset(std::string(kHelp));
}

// --- Screens ---------------------------------------------------------------------------------------------

void NetworkGame::LobbyOpened(LobbyView& lobby) {
  side_.lobby = &lobby;
  peer_.OwnLobby(side_.left);
  link_.StopTurnRepeat();  // the match is over: nobody need answer its last turn any more
  // A match without a stake may have been called off at the cards: there is none under way here.
  if (side_.game->Mode == kModeNetworkArcade) side_.game->Wager = -1;
}

void NetworkGame::ScreensClosed() {
  side_.ScreensClosed();
  chat_.setMirror({});
}

void NetworkGame::MatchOpened(MatchEngine& match) {
  side_.match = &match;
  peer_.OwnTable();
  if (peer_.playerStarts) match.peer().setPlayerStarts(*std::exchange(peer_.playerStarts, {}));
}

// --- Greeting --------------------------------------------------------------------------------------------

void NetworkGame::SendHello() {
  if (side_.lobby != nullptr) side_.lobby->Greet();
  peer_ = {};
  chat_.Reset("\r\n\r\n\r\n");
  NetSend("[Vers]" + std::string(kProgramVersion));
  NetSend("[Name]" + side_.player->Name);
  SendStats();
  NetSend("[Port]" + std::to_string(side_.player->Portrait));
  bool found = false;
  static_cast<void>(services_.portrait(-1, "", found));
  // A name that the wire cannot spell, or that no receiver takes, would name nothing or another file over
  // there.
  const std::string file = "[File]" + FileNameOf(side_.player->FileName);
  NetSend(found && ParseMessage(file) ? file : "[File]0");
  side_.player->LastIP = link_.tcpSock().RemoteHost();
  side_.player->LastPort = link_.tcpSock().LocalPort();
  side_.player->WritePlayerFile();
}

std::string NetworkGame::StatsLine() const {
  return "[" + side_.player->Name + ": " + std::to_string(side_.player->Credits_MP->Value) + " credits, " +
         std::to_string(side_.player->Wins_MP->Value) + " wins, " +
         std::to_string(side_.player->Losses_MP->Value) + " losses, " +
         std::to_string(side_.player->Disconnects) + " disconnects]";
}

void NetworkGame::TellStats() {
  AddChatLine("[(You) " + StatsLine().substr(1));
  SendStats();
}

// --- Lobby -----------------------------------------------------------------------------------------------

void NetworkGame::Open(int port, const std::string& remoteHost) {
  if (hosting_) {
    link_.Listen(port, remoteHost);
  } else {
    link_.Connect(port, remoteHost);
  }
}

void NetworkGame::Bind(int port, const std::string& address) {
  link_.CloseConnection();
  link_.tcpSock().Bind(port, address);
}

void NetworkGame::ToggleMode() {
  arcade_ = !arcade_;
  AddChatLine(arcade_ ? "[Changed game mode to Arcade match.]" : "[Changed game mode to Normal match.]");
  if (!hosting_) return;
  peer_.OwnModeChange();
  NetSend(arcade_ ? "[Mode]1" : "[Mode]0");
}

void NetworkGame::PressStart() {
  NetSend("[Chat][" + side_.player->Name + std::string(kReadyToContinue));
  NetSend("[Play]");
  AddChatLine("[You are ready to continue.]");
}

void NetworkGame::PrepareMatch() {
  clsGame& game = *side_.game;
  bool found = false;
  game.YourPic = services_.portrait(-1, "", found);
  game.Wager = -1;
  game.MinWager = 0;
  if (arcade_) {
    game.Mode = kModeNetworkArcade;
    game.InitArcadeCards();
    game.CreditsRef = std::make_shared<clsLong>();
    game.WinsRef = std::make_shared<clsInteger>();
    game.LossesRef = std::make_shared<clsInteger>();
    game.DeckRef = std::make_shared<clsDeckArray>(*side_.player->ArcadeDeck);
    game.MaxWager = 0;
    return;
  }
  game.Mode = kModeNetwork;
  game.CreditsRef = side_.player->Credits_MP;
  game.WinsRef = side_.player->Wins_MP;
  game.LossesRef = side_.player->Losses_MP;
  game.DeckRef = side_.player->Deck_MP;
  game.CardsRef = side_.player->Cards_MP;
  game.MaxWager = side_.player->Credits_MP->Value;
}

// --- Chat ------------------------------------------------------------------------------------------------

void NetworkGame::NetSend(const std::string& message) {
  if (message == "[Forf]") peer_.OwnForfeit(place());
  std::string text = WireText(message);
  if (text.size() > kMostWire) text = WireText(text.substr(0, kMostWire));
  link_.NetSend(text);
}

void NetworkGame::SubmitChat(const std::string& line) {
  if (line == "/quit") {
    services_.playEffect("losematch");
    Leave();
    services_.hideScreen();
    services_.navigator.EndProgramSoon();
    return;
  }
  if (line == "/disconnect") {
    Leave();
    services_.navigator.OpenMenu();
    return;
  }
  const std::string text = WireText(line.substr(0, kMostLine));
  if (text.empty()) return;
  const std::string spoken = side_.player->Name + ": " + text;
  NetSend("[Chat]" + spoken);
  AddChatLine(spoken);
}

// --- Leaving ---------------------------------------------------------------------------------------------

void NetworkGame::LeaveLobby() {
  link_.Leave();
  services_.playEffect("click");
  services_.navigator.OpenMenu();
}

void NetworkGame::Interrupted(bool interrupted) {
  services_.lockScreen(interrupted);
  if (interrupted) AddChatLine("<< WARNING: Connection interrupted - Please Wait >>");
}

void NetworkGame::ConnectionFailed(int number, const std::string& description) {
  services_.dialogs.Message(
      "Connection Problem (Err No: " + std::to_string(number) + " - " + description + ")",
      "Kelm Vantri: TCP/IP WinSock Error", DialogIcon::Critical);
  side_.LineLost(services_.dialogs);
  StartFresh();
  services_.navigator.OpenLobby();
}

/// The person leaves the game for good: the peer is told, and a match under way is lost, unless both sides
/// know already how it has ended.
void NetworkGame::Leave() {
  const bool known = !link_.Unsent("[Turn]") && !link_.Unsent("[TAck]");
  link_.Leave();
  side_.LoseByLeaving(known);
}

}  // namespace kv
