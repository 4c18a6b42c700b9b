// What each message of the peer's does. A message is taken only where it makes sense; one that is merely
// early, because this side is still in a pause of its own, waits for its moment.
#include <string>
#include <utility>

#include "match/MatchEngine.h"
#include "network/NetworkGame.h"
#include "profile/clsPlayer.h"

namespace kv {
namespace {

constexpr std::uint8_t kCopiesInDeck = 4;  // of each main-deck card
constexpr std::string_view kStatsEnd = " disconnects]";
constexpr std::size_t kVersionDigits = 4;  // "1.2.": what two versions that can play have in common

}  // namespace

// --- Greeting and chat -------------------------------------------------------------------------------------

template <>
bool NetworkGame::Handle(const msg::Vers& version) {
  if (std::exchange(peer_.greeting.version, true)) return false;
  const auto digits = [](std::string_view text) { return text.substr(0, kVersionDigits); };
  const std::string own(kProgramVersion);
  peer_.versionMatches = digits(version.version) == digits(kProgramVersion);
  if (peer_.versionMatches) {
    AddChatLine("[Version Check (Pass): You - v" + own + ", Opp - v" + version.version + "]");
    return true;
  }
  AddChatLine("[Version Check (FAIL): You - " + own + ", Opp - v" + version.version + "]");
  if (side_.lobby != nullptr) side_.lobby->RefuseStart();
  return true;
}

template <>
bool NetworkGame::Handle(const msg::Name& name) {
  if (std::exchange(peer_.greeting.name, true)) return false;
  side_.game->OppName = name.text;
  AddChatLine("[Connected with " + name.text + "]");
  AddChatLine("[(You) " + StatsLine().substr(1));
  return true;
}

template <>
bool NetworkGame::Handle(const msg::Port& port) {
  if (std::exchange(peer_.greeting.portrait, true)) return false;
  bool found = false;
  side_.game->OppPic = services_.portrait(port.number, "0", found);
  return true;
}

template <>
bool NetworkGame::Handle(const msg::File& file) {
  if (std::exchange(peer_.greeting.file, true)) return false;
  bool found = false;
  const Picture own = services_.portrait(0, file.baseName, found);
  if (found) side_.game->OppPic = own;
  return true;
}

template <>
bool NetworkGame::Handle(const msg::Chat& chat) {
  AddChatLine(chat.text);
  const std::string& name = side_.game->OppName;
  if (chat.text == "[" + name + std::string(kReadyToContinue)) peer_.SaysStart();
  // Its statistics are what a lobby says when it is entered.
  if (chat.text.starts_with("[" + name + ": ") && chat.text.ends_with(kStatsEnd)) PeerIsInLobby();
  return true;
}

// --- Lobby and card screen -------------------------------------------------------------------------------

template <>
bool NetworkGame::Handle(const msg::Mode& mode) {
  if (hosting_) return false;
  AddChatLine("[" + side_.game->OppName + " has changed the game mode to " +
              (mode.arcade ? "Arcade match" : "Normal match") + ".]");
  const bool started = side_.lobby != nullptr && side_.lobby->waiting();
  PeerIsInLobby();
  if (side_.lobby != nullptr) {
    side_.lobby->ModeReceived(mode.arcade);
  } else if (arcade_ != mode.arcade) {
    ToggleMode();
  }
  // This side's Start may have met the host's already, which then went ahead alone: this brings it back.
  if (started) NetSend("[Back]");
  return true;
}

template <>
bool NetworkGame::Handle(const msg::Play&) {
  const PeerPlace::Play means = peer_.PlayMeans();
  const Place here = place();
  const bool atTable = here == Place::Opening || here == Place::Decided || here == Place::Banner;
  if (atTable && means == PeerPlace::Play::Continues && (here == Place::Opening || peer_.Ready(here))) {
    return false;  // there is no further banner that it could continue from
  }
  peer_.Plays(arcade_);
  return true;
}

template <>
bool NetworkGame::Handle(const msg::Wage& wage) {
  if (side_.game->Mode != kModeNetwork) return false;
  services_.playEffect("propose");
  side_.cards->Proposed(wage.amount);
  return true;
}

template <>
bool NetworkGame::Handle(const msg::Acpt&) {
  if (!side_.cards->awaitsAnswer()) return false;
  side_.cards->Accepted();
  AddChatLine("[" + side_.game->OppName + " has agreed to your wager.]");
  return true;
}

template <>
bool NetworkGame::Handle(const msg::Back&) {
  AddChatLine("[" + side_.game->OppName + " has returned to the Network screen.]");
  PeerIsInLobby();
  return true;
}

/// Whoever is ahead comes back.
void NetworkGame::PeerIsInLobby() {
  // Both had pressed Start, and it has been to the cards by this side's: neither Start counts any longer.
  const bool usedUp = side_.lobby != nullptr && side_.lobby->waiting() && peer_.Ready(Place::Lobby);
  peer_.InLobby();
  if (usedUp) {
    side_.lobby->TakeStartBack();
    SendStats();
  }
  if (side_.PeerIsInLobby()) services_.navigator.OpenLobby();
}

// --- The match ---------------------------------------------------------------------------------------------

template <>
bool NetworkGame::Handle(const msg::WhoS& who) {
  if (hosting_) return false;
  peer_.Begins(who.youStart);
  if (side_.match != nullptr) {
    side_.match->peer().setPlayerStarts(who.youStart);
  } else {
    peer_.playerStarts = who.youStart;
  }
  return true;
}

template <>
bool NetworkGame::Handle(const msg::Card& card) {
  const bool left = side_.match->board().MainDeckCount(card.value) < kCopiesInDeck;
  if (peer_.drawn() || side_.match->shown().Stood(Seat::Opponent) || !left) return false;
  peer_.Draws();
  const int before = side_.match->shown().Total(Seat::Opponent);
  side_.match->peer().OppDraw(card.value);
  services_.playEffect("draw");
  if (before <= kTargetTotal && side_.match->shown().Total(Seat::Opponent) > kTargetTotal)
    services_.playEffect("bust");
  return true;
}

template <>
bool NetworkGame::Handle(const msg::Hand& hand) {
  const bool full = side_.match->shown().Table(Seat::Opponent).size() == kTableSize;
  const bool spent = side_.match->shown().HandCard(Seat::Opponent, hand.slot) == EmptiedSlot();
  if (!peer_.drawn() || peer_.played() || side_.match->shown().Stood(Seat::Opponent) || full || spent)
    return false;
  peer_.PlaysCard();
  side_.match->peer().OppPlayHand(hand.slot, hand.code);
  return true;
}

template <>
bool NetworkGame::Handle(const msg::Stnd&) {
  if (!peer_.drawn() || side_.match->shown().Stood(Seat::Opponent)) return false;
  side_.match->peer().OppStand();
  return true;
}

template <>
bool NetworkGame::Handle(const msg::Turn&) {
  // Without a move since its last it is a repetition that came late.
  if (!peer_.drawn() && !side_.match->shown().Stood(Seat::Opponent)) return peer_.repeatsTurn();
  peer_.EndsTurn();
  side_.match->peer().AI_EndTurn();
  return true;
}

template <>
bool NetworkGame::Handle(const msg::TAck&) {
  // A surplus answer, to a repeated "[Turn]", must not let the peer's own repetitions through.
  if (!link_.turnRepeats()) return true;
  link_.StopTurnRepeat();
  peer_.AnswersTurn();
  return true;
}

template <>
bool NetworkGame::Handle(const msg::Forf&) {
  peer_.Forfeits();
  if (place() == Place::Over) {
    // Both may have ended it at the same time; or it gave up before it knew that it had won.
    if (side_.match->peer().LostByPlay()) {
      AddChatLine("[" + side_.game->OppName + " has forfeit this match. You Win.]");
      side_.match->peer().WinAfterAll();
    }
    return true;
  }
  AddChatLine("[" + side_.game->OppName + " has forfeit this match. You Win.]");
  if (side_.match != nullptr) {
    side_.match->peer().OppForfeit();
  } else {
    side_.WinAtTheDesk();
    if (side_.cards == nullptr) return true;  // the line was lost while a failed save was told
    NetSend("[Play]");                        // its banner waits for that
    services_.navigator.OpenLobby();
  }
  return true;
}

template <>
bool NetworkGame::Handle(const msg::Quit&) {
  services_.stopEffects();
  const bool repeats = link_.turnRepeats();
  if (side_.match != nullptr) side_.match->peer().Gone();
  // The line goes first: while a box is open nothing more may happen on it.
  link_.CloseConnection();
  const bool won = side_.WinByItsLeaving(repeats);
  services_.dialogs.Message(won ? "Opponent has quit! You Win!" : "Opponent has quit!",
                            "Kelm Vantri: Connection Terminated", DialogIcon::Exclamation);
  StartFresh();
  services_.navigator.OpenLobby();
  return true;
}

// --- All of them -------------------------------------------------------------------------------------------

Course NetworkGame::CourseOf(const Message& message) {
  Course course =
      peer_.CourseOf(message.index(), place(), side_.match != nullptr && side_.match->peer().waitsForPeer());
  if (!std::holds_alternative<msg::Turn>(message)) return course;
  // Repetitions can come at any time, and each is answered.
  if (peer_.turnHeld()) course = Course::Ignore;
  if (course != Course::Wait) NetSend("[TAck]");
  return course == Course::Refuse && peer_.repeatsTurn() ? Course::Ignore : course;
}

// Last, for every kind of message must be known here.
bool NetworkGame::ProcessMessage(const std::string& entry) {
  const auto message = ParseMessage(entry);
  Course course = message ? CourseOf(*message) : Course::Refuse;
  if (course == Course::Wait) return false;
  if (course == Course::Act && !std::visit([this](const auto& each) { return Handle(each); }, *message)) {
    course = Course::Refuse;
  }
  if (course == Course::Refuse) {
    AddChatLine("<< Unknown command: " + WireText(entry) + " - report as bug >>");
  }
  return true;
}

}  // namespace kv
