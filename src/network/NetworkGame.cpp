#include "network/NetworkGame.h"

#include <algorithm>
#include <utility>

#include "campaign/Counter.h"
#include "match/MatchEngine.h"
#include "profile/clsPlayer.h"

namespace kv {
namespace {

constexpr int kLeaveInterval = 50;       // milliseconds
constexpr int kMostLeaveTicks = 20;      // a second: then the link is closed in any case
constexpr std::size_t kMostLine = 1000;  // bytes of a typed line
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
             .Failed = [this](int number, const std::string& text) { ConnectionFailed(number, text); }}),
      tmrLeave_(services.scheduler.NewTimer(kLeaveInterval, [this] { LeaveTick(); })) {}

void NetworkGame::Begin(clsPlayer& player, clsGame& game, MatchBooking& booking) {
  player_ = &player;
  game_ = &game;
  booking_ = &booking;
  StartFresh();
}

void NetworkGame::StartFresh() {
  tmrLeave_->setEnabled(false);
  link_.CloseConnection();
  hosting_ = true;
  peerReady_ = turnHeld_ = arcade_ = false;
  versionMatches_ = true;
  greeting_ = {};
  peerMoves_ = {};
  playerStarts_.reset();
  postponed_ = 0;
  services_.stake.last = -1;
  chat_.Reset(std::string(kHelp));
}

// --- Screens ---------------------------------------------------------------------------------------------

void NetworkGame::ScreensClosed() {
  lobby_ = nullptr;
  cards_ = nullptr;
  match_ = nullptr;
  chat_.setMirror({});
}

void NetworkGame::MatchOpened(MatchEngine& match) {
  match_ = &match;
  peerMoves_ = {};
  turnSeen_ = false;
  if (playerStarts_) match.setPlayerStarts(*std::exchange(playerStarts_, {}));
}

// --- Greeting --------------------------------------------------------------------------------------------

void NetworkGame::SendHello() {
  if (lobby_ != nullptr) lobby_->Greet();
  peerReady_ = turnHeld_ = false;
  versionMatches_ = true;
  greeting_ = {};
  chat_.Reset("\r\n\r\n\r\n");
  NetSend("[Vers]" + std::string(kProgramVersion));
  NetSend("[Name]" + player_->Name);
  NetSend("[Chat]" + StatsLine());
  NetSend("[Port]" + std::to_string(player_->Portrait));
  bool found = false;
  static_cast<void>(services_.portrait(-1, "", found));
  NetSend("[File]" + (found ? FileNameOf(player_->FileName) : std::string("0")));
  player_->LastIP = link_.socket().RemoteHost();
  player_->LastPort = link_.socket().LocalPort();
  player_->WritePlayerFile();
}

std::string NetworkGame::StatsLine() const {
  return "[" + player_->Name + ": " + std::to_string(player_->Credits_MP->Value) + " credits, " +
         std::to_string(player_->Wins_MP->Value) + " wins, " + std::to_string(player_->Losses_MP->Value) +
         " losses, " + std::to_string(player_->Disconnects) + " disconnects]";
}

void NetworkGame::TellStats() {
  const std::string line = StatsLine();
  AddChatLine("[(You) " + line.substr(1));
  NetSend("[Chat]" + line);
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
  link_.socket().Bind(port, address);
}

void NetworkGame::ToggleMode() {
  arcade_ = !arcade_;
  AddChatLine(arcade_ ? "[Changed game mode to Arcade match.]" : "[Changed game mode to Normal match.]");
  if (!hosting_) return;
  peerReady_ = false;
  NetSend(arcade_ ? "[Mode]1" : "[Mode]0");
}

void NetworkGame::SendReady() {
  NetSend("[Chat][" + player_->Name + " is ready continue.]");
  NetSend("[Play]");
  AddChatLine("[You are ready to continue.]");
}

void NetworkGame::PrepareMatch() {
  clsGame& game = *game_;
  bool found = false;
  game.YourPic = services_.portrait(-1, "", found);
  game.Wager = -1;
  game.MinWager = 0;
  playerStarts_.reset();
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
  std::string text = WireText(message);
  if (text.size() > kMostWire) text = WireText(text.substr(0, kMostWire));
  link_.NetSend(text);
}

void NetworkGame::SubmitChat(const std::string& line) {
  if (line == "/quit") {
    SendQuit();
    services_.playEffect("losematch");
    BookLossIfUnderWay();
    services_.hideScreen();
    services_.navigator.EndProgramSoon();
    return;
  }
  if (line == "/disconnect") {
    SendQuit();
    BookLossIfUnderWay();
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
  SendQuit();
  services_.playEffect("click");
  services_.navigator.OpenMenu();
}

void NetworkGame::SendQuit() {
  if (!link_.connected()) {
    link_.CloseConnection();
    return;
  }
  link_.QuitLink();
  leaveTicks_ = 0;
  tmrLeave_->setEnabled(true);
}

void NetworkGame::LeaveTick() {
  // The peer hangs up when it has read the message; it may be slow, or gone.
  if (link_.connected() && ++leaveTicks_ < kMostLeaveTicks) return;
  tmrLeave_->setEnabled(false);
  link_.CloseConnection();
}

void NetworkGame::Interrupted(bool interrupted) {
  services_.lockScreen(interrupted);
  if (interrupted) AddChatLine("<< WARNING: Connection interrupted - Please Wait >>");
}

void NetworkGame::ConnectionFailed(int number, const std::string& description) {
  if (tmrLeave_->Enabled()) return;  // it was to be closed anyway, and the game is left
  services_.dialogs.Message(
      "Connection Problem (Err No: " + std::to_string(number) + " - " + description + ")",
      "Kelm Vantri: TCP/IP WinSock Error", DialogIcon::Critical);
  SaveDisconnect();
  StartFresh();
  services_.navigator.OpenLobby();
}

bool NetworkGame::matchUnderWay() const {
  return game_->Wager != -1;
}

void NetworkGame::BookLossIfUnderWay() {
  if (!matchUnderWay()) return;
  StakeToRecord();
  booking_->SaveLoss();
}

void NetworkGame::StakeToRecord() {
  if (game_->Mode != kModeNetwork || game_->CreditsRef == player_->Credits_MP) return;
  player_->Credits_MP->Value -= game_->Wager;
  game_->CreditsRef = player_->Credits_MP;
}

void NetworkGame::WithdrawStake() {
  if (!matchUnderWay()) return;
  const std::int32_t stake = std::exchange(game_->Wager, -1);
  if (game_->Mode != kModeNetwork) return;
  if (game_->CreditsRef == player_->Credits_MP) game_->CreditsRef->Value += stake;
  Lower(player_->Disconnects);
  player_->WritePlayerFile();
}

void NetworkGame::SaveDisconnect() {
  if (game_->Mode == kModeNetworkArcade) {
    game_->Wager = -1;
    return;
  }
  if (game_->Mode != kModeNetwork) {
    services_.dialogs.Message("Bug: Saving for disconnect when not a network game (report me)",
                              "Kelm Vantri: Error", DialogIcon::None);
    booking_->SaveLoss();
    return;
  }
  if (!matchUnderWay()) return;
  StakeToRecord();
  const std::int64_t half = std::exchange(game_->Wager, -1) / 2;
  clsLong& credits = *game_->CreditsRef;
  credits.Value = static_cast<std::int32_t>(std::min<std::int64_t>(kMostCredits, credits.Value + half));
  player_->WritePlayerFile();
}

}  // namespace kv
