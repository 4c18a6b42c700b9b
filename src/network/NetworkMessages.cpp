// What each message of the peer's does. A message is taken only where it makes sense; one that is merely
// early, because this side is still in a pause of its own, waits for its moment.
#include <string>
#include <utility>

#include "match/MatchEngine.h"
#include "network/BrokenOff.h"
#include "network/NetworkGame.h"
#include "profile/clsPlayer.h"

namespace kv {
namespace {

constexpr int kMostPostponed = 50;         // ticks: far longer than any pause of a match
constexpr std::uint8_t kCopiesInDeck = 4;  // of each main-deck card
constexpr std::size_t kVersionDigits = 4;  // "1.2.": what two versions that can play have in common

}  // namespace

std::optional<NetworkGame::Answer> NetworkGame::MoveBarred() const {
  if (match_ == nullptr) return Answer::Refuse;
  switch (match_->peerTurn()) {
    case PeerTurn::Theirs:
      return {};
    case PeerTurn::Soon:
      return Answer::Later;
    case PeerTurn::NotTheirs:
      break;
  }
  // The match ended here (a forfeit) while the move was on its way.
  return match_->Stopped() || !matchUnderWay() ? Answer::Done : Answer::Refuse;
}

// --- Greeting and chat -------------------------------------------------------------------------------------

template <>
NetworkGame::Answer NetworkGame::Handle(const msg::Vers& version) {
  if (std::exchange(peer_.greeting.version, true)) return Answer::Refuse;
  const auto digits = [](std::string_view text) { return text.substr(0, kVersionDigits); };
  const std::string own(kProgramVersion);
  peer_.versionMatches = digits(version.version) == digits(kProgramVersion);
  if (peer_.versionMatches) {
    AddChatLine("[Version Check (Pass): You - v" + own + ", Opp - v" + version.version + "]");
    return Answer::Done;
  }
  AddChatLine("[Version Check (FAIL): You - " + own + ", Opp - v" + version.version + "]");
  if (lobby_ != nullptr) lobby_->RefuseStart();
  return Answer::Done;
}

template <>
NetworkGame::Answer NetworkGame::Handle(const msg::Name& name) {
  if (std::exchange(peer_.greeting.name, true)) return Answer::Refuse;
  game_->OppName = name.text;
  AddChatLine("[Connected with " + name.text + "]");
  AddChatLine("[(You) " + StatsLine().substr(1));
  return Answer::Done;
}

template <>
NetworkGame::Answer NetworkGame::Handle(const msg::Port& port) {
  if (std::exchange(peer_.greeting.portrait, true)) return Answer::Refuse;
  bool found = false;
  game_->OppPic = services_.portrait(port.number, "0", found);
  return Answer::Done;
}

template <>
NetworkGame::Answer NetworkGame::Handle(const msg::File& file) {
  if (std::exchange(peer_.greeting.file, true)) return Answer::Refuse;
  bool found = false;
  const Picture own = services_.portrait(0, file.baseName, found);
  if (found) game_->OppPic = own;
  return Answer::Done;
}

template <>
NetworkGame::Answer NetworkGame::Handle(const msg::Chat& chat) {
  AddChatLine(chat.text);
  peer_.startSaid = chat.text == "[" + game_->OppName + std::string(kReadyToContinue);
  return Answer::Done;
}

// --- Lobby and card screen -------------------------------------------------------------------------------

template <>
NetworkGame::Answer NetworkGame::Handle(const msg::Mode& mode) {
  const bool choosingCards = cards_ != nullptr && (!matchUnderWay() || arcade_);
  if (hosting_ || (lobby_ == nullptr && !choosingCards)) return Answer::Refuse;
  AddChatLine("[" + game_->OppName + " has changed the game mode to " +
              (mode.arcade ? "Arcade match" : "Normal match") + ".]");
  peer_.ready = 0;
  // The host took its Start back while this side was already on its way to the cards.
  if (lobby_ == nullptr) {
    WithdrawStake(*game_, *player_);
    services_.navigator.OpenLobby();
  }
  if (lobby_ != nullptr) lobby_->ModeReceived(mode.arcade);
  return Answer::Done;
}

template <>
NetworkGame::Answer NetworkGame::Handle(const msg::Play&) {
  if (match_ != nullptr) {
    if (match_->deciding()) return Answer::Later;
    if (!match_->expectsPlay()) return Answer::Refuse;
  }
  if (std::exchange(peer_.startSaid, false)) {
    // Its Start, perhaps once more after a mode change that had crossed the first: it counts once, here only.
    if (lobby_ == nullptr) return Answer::Done;
    peer_.ready = 1;
  } else {
    ++peer_.ready;
  }
  peer_.turnHeld = false;
  peer_.moves = {};
  return Answer::Done;
}

template <>
NetworkGame::Answer NetworkGame::Handle(const msg::Wage& wage) {
  if (cards_ == nullptr || game_->Mode != kModeNetwork || matchUnderWay()) return Answer::Refuse;
  services_.playEffect("propose");
  cards_->Proposed(wage.amount);
  return Answer::Done;
}

template <>
NetworkGame::Answer NetworkGame::Handle(const msg::Acpt&) {
  if (cards_ == nullptr || game_->Mode != kModeNetwork || matchUnderWay()) return Answer::Refuse;
  if (!cards_->awaitsAnswer()) return Answer::Refuse;
  cards_->Accepted();
  AddChatLine("[" + game_->OppName + " has agreed to your wager.]");
  return Answer::Done;
}

template <>
NetworkGame::Answer NetworkGame::Handle(const msg::Back&) {
  const bool opening = match_ != nullptr && !match_->begun();
  if (lobby_ == nullptr && cards_ == nullptr && !opening) return Answer::Refuse;
  AddChatLine("[" + game_->OppName + " has returned to the Network screen.]");
  peer_.ready = 0;
  if (lobby_ != nullptr) return Answer::Done;
  WithdrawStake(*game_, *player_);
  services_.navigator.OpenLobby();
  return Answer::Done;
}

// --- The match ---------------------------------------------------------------------------------------------

template <>
NetworkGame::Answer NetworkGame::Handle(const msg::WhoS& who) {
  if (hosting_ || (match_ != nullptr && match_->begun())) return Answer::Refuse;
  // The host may be at the table while this side has still to press Start.
  const bool hostIsAhead = lobby_ != nullptr && peer_.ready > 0;
  if (match_ == nullptr && cards_ == nullptr && !hostIsAhead) return Answer::Refuse;
  peer_.turnHeld = who.youStart;
  if (match_ != nullptr) {
    match_->setPlayerStarts(who.youStart);
  } else {
    peer_.playerStarts = who.youStart;
  }
  return Answer::Done;
}

template <>
NetworkGame::Answer NetworkGame::Handle(const msg::Card& card) {
  if (const auto barred = MoveBarred()) return *barred;
  const bool left = match_->MainDeckCount(card.value) < kCopiesInDeck;
  if (peer_.moves.drawn || match_->OpponentStood() || !left) return Answer::Refuse;
  peer_.moves.drawn = true;
  const int before = match_->Total(Seat::Opponent);
  match_->LoadNextCard(CardCode(CardType::MainDeck, card.value), true);
  match_->DeductDrawCard(card.value);
  services_.playEffect("draw");
  if (before <= kTargetTotal && match_->Total(Seat::Opponent) > kTargetTotal) services_.playEffect("bust");
  return Answer::Done;
}

template <>
NetworkGame::Answer NetworkGame::Handle(const msg::Hand& hand) {
  if (const auto barred = MoveBarred()) return *barred;
  const bool full = match_->Table(Seat::Opponent).size() == kTableSize;
  const bool spent = match_->HandCard(Seat::Opponent, hand.slot) == EmptiedSlot();
  if (!peer_.moves.drawn || peer_.moves.played || match_->OpponentStood() || full || spent) {
    return Answer::Refuse;
  }
  peer_.moves.played = true;
  match_->OppPlayHand(hand.slot, hand.code);
  return Answer::Done;
}

template <>
NetworkGame::Answer NetworkGame::Handle(const msg::Stnd&) {
  if (const auto barred = MoveBarred()) return *barred;
  if (!peer_.moves.drawn || match_->OpponentStood()) return Answer::Refuse;
  match_->OppStand();
  return Answer::Done;
}

template <>
NetworkGame::Answer NetworkGame::Handle(const msg::Turn&) {
  const auto barred = peer_.turnHeld ? Answer::Done : MoveBarred();
  if (barred == Answer::Later) return *barred;
  NetSend("[TAck]");
  // Repetitions can come late, even after the next "[Play]": without a move since the last they end no turn.
  const bool repeated = peer_.turnSeen && !peer_.moves.drawn;
  if (barred) return repeated ? Answer::Done : *barred;
  if (!peer_.moves.drawn && !match_->OpponentStood()) return repeated ? Answer::Done : Answer::Refuse;
  peer_.turnHeld = peer_.turnSeen = true;
  peer_.moves = {};
  match_->AI_EndTurn();
  return Answer::Done;
}

template <>
NetworkGame::Answer NetworkGame::Handle(const msg::TAck&) {
  // A surplus answer, to a repeated "[Turn]", must not let the peer's own repetitions through.
  if (!link_.turnRepeats()) return Answer::Done;
  link_.StopTurnRepeat();
  peer_.turnHeld = false;
  return Answer::Done;
}

template <>
NetworkGame::Answer NetworkGame::Handle(const msg::Forf&) {
  const bool choosingCards = cards_ != nullptr && matchUnderWay();
  if (match_ == nullptr && !choosingCards) return Answer::Refuse;
  // Both may have ended it at the same time.
  if (match_ != nullptr && (!matchUnderWay() || match_->Stopped())) return Answer::Done;
  AddChatLine("[" + game_->OppName + " has forfeit this match. You Win.]");
  if (match_ != nullptr) {
    match_->OppForfeit();
  } else {
    WinAtTheDesk();
  }
  return Answer::Done;
}

/// The peer was at the table already and gave up there; its banner waits for this side's "[Play]".
void NetworkGame::WinAtTheDesk() {
  StakeToRecord(*game_, *player_);
  booking_->SaveWin();
  NetSend("[Play]");
  peer_.ready = 0;
  services_.navigator.OpenLobby();
}

template <>
NetworkGame::Answer NetworkGame::Handle(const msg::Quit&) {
  services_.stopEffects();
  const bool won = matchUnderWay();
  // The line goes first: while the box is open nothing more may happen on it.
  link_.CloseConnection();
  if (won) {
    StakeToRecord(*game_, *player_);
    booking_->SaveWin();
  }
  services_.dialogs.Message(won ? "Opponent has quit! You Win!" : "Opponent has quit!",
                            "Kelm Vantri: Connection Terminated", DialogIcon::Exclamation);
  StartFresh();
  services_.navigator.OpenLobby();
  return Answer::Done;
}

// Last, for every kind of message must be known here.
bool NetworkGame::ProcessMessage(const std::string& entry) {
  const auto message = ParseMessage(entry);
  Answer answer = Answer::Refuse;
  if (message) answer = std::visit([this](const auto& each) { return Handle(each); }, *message);
  if (answer == Answer::Later && ++peer_.postponed <= kMostPostponed) return false;
  peer_.postponed = 0;
  if (answer != Answer::Done) AddChatLine("<< Unknown command: " + WireText(entry) + " - report as bug >>");
  return true;
}

}  // namespace kv
