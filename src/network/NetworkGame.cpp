#include "network/NetworkGame.h"

#include <utility>

#include "match/MatchEngine.h"
#include "network/BrokenOff.h"
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
  player_ = &player;
  game_ = &game;
  booking_ = &booking;
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
  lobby_ = &lobby;
  peer_.OwnLobby(left_);
  link_.StopTurnRepeat();  // the match is over: nobody need answer its last turn any more
  // A match without a stake may have been called off at the cards: there is none under way here.
  if (game_->Mode == kModeNetworkArcade) game_->Wager = -1;
}

bool NetworkGame::matchUnderWay() const {
  return game_->Wager != -1;
}

Place NetworkGame::place() const {
  if (match_ == nullptr) {
    if (cards_ == nullptr) return Place::Lobby;
    return matchUnderWay() ? Place::Desk : Place::Cards;
  }
  if (!matchUnderWay()) return Place::Over;
  if (!match_->peer().begun()) return Place::Opening;
  if (match_->peer().decision()) return Place::Decided;
  if (match_->peer().betweenSets()) return Place::Banner;
  switch (match_->peer().peerTurn()) {
    case PeerTurn::Theirs:
      return Place::Theirs;
    case PeerTurn::Soon:
      return Place::Handover;
    case PeerTurn::NotTheirs:
      break;
  }
  return Place::Ours;
}

void NetworkGame::ScreensClosed() {
  if (game_ != nullptr) left_ = place();
  lobby_ = nullptr;
  cards_ = nullptr;
  match_ = nullptr;
  chat_.setMirror({});
}

void NetworkGame::MatchOpened(MatchEngine& match) {
  match_ = &match;
  peer_.OwnTable();
  if (peer_.playerStarts) match.peer().setPlayerStarts(*std::exchange(peer_.playerStarts, {}));
}

// --- Greeting --------------------------------------------------------------------------------------------

void NetworkGame::SendHello() {
  if (lobby_ != nullptr) lobby_->Greet();
  peer_ = {};
  chat_.Reset("\r\n\r\n\r\n");
  NetSend("[Vers]" + std::string(kProgramVersion));
  NetSend("[Name]" + player_->Name);
  SendStats();
  NetSend("[Port]" + std::to_string(player_->Portrait));
  bool found = false;
  static_cast<void>(services_.portrait(-1, "", found));
  // A name that the wire cannot spell, or that no receiver takes, would name nothing or another file over
  // there.
  const std::string file = "[File]" + FileNameOf(player_->FileName);
  NetSend(found && ParseMessage(file) ? file : "[File]0");
  player_->LastIP = link_.tcpSock().RemoteHost();
  player_->LastPort = link_.tcpSock().LocalPort();
  player_->WritePlayerFile();
}

std::string NetworkGame::StatsLine() const {
  return "[" + player_->Name + ": " + std::to_string(player_->Credits_MP->Value) + " credits, " +
         std::to_string(player_->Wins_MP->Value) + " wins, " + std::to_string(player_->Losses_MP->Value) +
         " losses, " + std::to_string(player_->Disconnects) + " disconnects]";
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
  NetSend("[Chat][" + player_->Name + std::string(kReadyToContinue));
  NetSend("[Play]");
  AddChatLine("[You are ready to continue.]");
}

void NetworkGame::PrepareMatch() {
  clsGame& game = *game_;
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
    game.DeckRef = std::make_shared<clsDeckArray>(*player_->ArcadeDeck);
    game.MaxWager = 0;
    return;
  }
  game.Mode = kModeNetwork;
  game.CreditsRef = player_->Credits_MP;
  game.WinsRef = player_->Wins_MP;
  game.LossesRef = player_->Losses_MP;
  game.DeckRef = player_->Deck_MP;
  game.CardsRef = player_->Cards_MP;
  game.MaxWager = player_->Credits_MP->Value;
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
  const std::string spoken = player_->Name + ": " + text;
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
  const auto settle = [this] { SaveDisconnect(*game_, *player_, *booking_, services_.dialogs); };
  if (match_ != nullptr && matchUnderWay()) {
    match_->peer().BrokenOff(settle);
  } else {
    settle();
  }
  StartFresh();
  services_.navigator.OpenLobby();
}

/// The person leaves the game for good: the peer is told, and a match under way is lost, unless both sides
/// know already how it has ended.
void NetworkGame::Leave() {
  const bool known = !link_.Unsent("[Turn]") && !link_.Unsent("[TAck]");
  link_.Leave();
  if (!matchUnderWay()) return;
  if (match_ != nullptr && known && match_->peer().BookDecision()) return;
  StakeToRecord(*game_, *player_);
  if (match_ != nullptr) {
    match_->person().LoseByLeaving();
  } else {
    booking_->SaveLoss();
  }
}

}  // namespace kv
