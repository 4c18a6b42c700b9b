#include "network/PeerPlace.h"

#include <array>

namespace kv {
namespace {

constexpr Verdict T = Verdict::Take;
constexpr Verdict K = Verdict::Keep;
constexpr Verdict L = Verdict::Late;
constexpr Verdict A = Verdict::Ahead;
constexpr Verdict F = Verdict::Fault;

constexpr std::size_t kKinds = std::variant_size_v<Message>;
using Row = std::array<Verdict, kPlaces>;
// In the order of Message; columns in the order of Place:
//  lobby cards desk opening handover ours theirs decided banner over
constexpr std::array<Row, kKinds> kTable = {{
    {L, T, F, F, F, F, F, F, F, F},  // Acpt
    {T, T, T, T, T, T, T, T, T, T},  // Back
    {L, L, L, K, K, F, T, F, K, L},  // Card
    {T, T, T, T, T, T, T, T, T, T},  // Mode
    {T, T, T, T, T, T, T, T, T, T},  // Chat
    {L, L, T, T, T, T, T, T, T, T},  // Forf
    {L, L, L, K, K, F, T, F, K, L},  // Hand
    {T, T, T, T, T, T, T, T, T, T},  // Name
    {T, T, T, T, F, F, F, T, T, T},  // Play
    {T, T, T, T, T, T, T, T, T, T},  // File
    {T, T, T, T, T, T, T, T, T, T},  // Port
    {T, T, T, T, T, T, T, T, T, T},  // Quit
    {L, L, L, K, K, F, T, F, K, L},  // Stnd
    {L, L, L, K, K, F, T, F, K, L},  // Turn
    {T, T, T, T, T, T, T, T, T, T},  // TAck
    {T, T, T, T, T, T, T, T, T, T},  // Vers
    {L, T, F, F, F, F, F, F, F, F},  // Wage
    {A, F, T, T, F, F, F, F, F, L},  // WhoS
}};

constexpr std::array<std::string_view, 5> kNames = {"lobby", "started", "cards", "table", "returning"};

}  // namespace

Verdict TableVerdict(std::size_t kind, Place place) {
  return kTable.at(kind).at(static_cast<std::size_t>(place));
}

// --- This side -------------------------------------------------------------------------------------------

void PeerPlace::OwnLobby(Place from) {
  // Wherever it is or is going to by this side's Start, it will hear that this side is here, and come back.
  // Only after a match it may have been here before, and have pressed Start anew.
  const bool startedAnew = at_ == At::Started && from == Place::Over;
  if (at_ != At::Lobby && !startedAnew) at_ = At::Returning;
  playerStarts.reset();
}

void PeerPlace::OwnTable() {
  // A card screen that is entered in silence: what it says next is said from the table.
  if (at_ == At::Started) at_ = At::Cards;
  sets_ = continues_ = 0;
  leaveAt_ = -1;
  drawn_ = played_ = turnSeen_ = false;
}

void PeerPlace::OwnForfeit(Place place) {
  // Up to the last banner that it may still continue from, and then the one of the end. Where it cannot be
  // told which is which, its entering the lobby tells.
  const bool betweenSets = place == Place::Banner || place == Place::Decided;
  leaveAt_ = betweenSets ? sets_ + 1 : continues_ + 1;
}

void PeerPlace::OwnModeChange() {
  // It may have gone ahead by both Starts already; if so, it comes back when it hears of the change.
  // A Start that it has only announced is cancelled as well: the next one is announced anew.
  if (at_ != At::Lobby || startSaid_) at_ = At::Returning;
  startSaid_ = false;
}

// --- The peer --------------------------------------------------------------------------------------------

void PeerPlace::InLobby() {
  at_ = At::Lobby;
  startSaid_ = false;
  playerStarts.reset();
}

PeerPlace::Play PeerPlace::PlayMeans() const {
  if (startSaid_ || at_ == At::Lobby) return Play::Start;
  switch (at_) {
    case At::Started:
      return Play::Cards;
    case At::Cards:
      return Play::Table;
    case At::Table:
      return Play::Continues;
    default:
      return Play::Nothing;
  }
}

void PeerPlace::Plays(bool arcade) {
  switch (PlayMeans()) {
    case Play::Start:
      at_ = At::Started;
      break;
    case Play::Cards:
      at_ = arcade ? At::Table : At::Cards;
      break;
    case Play::Table:
      at_ = At::Table;
      break;
    case Play::Continues:
      ++continues_;
      break;
    case Play::Nothing:
      break;
  }
  startSaid_ = turnHeld_ = drawn_ = played_ = false;
}

void PeerPlace::EndsTurn() {
  turnHeld_ = turnSeen_ = true;
  drawn_ = played_ = false;
}

// --- What follows ----------------------------------------------------------------------------------------

bool PeerPlace::Ready(Place place) const {
  switch (place) {
    case Place::Lobby:
      return at_ == At::Started || at_ == At::Cards || at_ == At::Table;
    case Place::Cards:
    case Place::Desk:
      return at_ == At::Cards || at_ == At::Table;
    case Place::Opening:
      return at_ == At::Table;
    case Place::Over:
      return at_ == At::Lobby || at_ == At::Started || continues_ >= (leaveAt_ == -1 ? sets_ : leaveAt_);
    default:
      return continues_ >= sets_;
  }
}

Course PeerPlace::CourseOf(std::size_t kind, Place place, bool waits) const {
  switch (TableVerdict(kind, place)) {
    case Verdict::Take:
      return Course::Act;
    case Verdict::Keep:
      // In a pause of this side's it is only early; from a banner both must have gone on. Before the first
      // set it was meant for a table that this side has left meanwhile, which the peer will hear of.
      if (place == Place::Handover || (waits && Ready(place))) return Course::Wait;
      return place == Place::Opening ? Course::Ignore : Course::Refuse;
    case Verdict::Late:
      return place == Place::Lobby && at_ == At::Lobby ? Course::Refuse : Course::Ignore;
    case Verdict::Ahead:
      if (at_ == At::Lobby) return Course::Refuse;
      return at_ == At::Returning ? Course::Ignore : Course::Act;
    case Verdict::Fault:
      break;
  }
  return Course::Refuse;
}

std::string PeerPlace::Text() const {
  return std::string(kNames.at(static_cast<std::size_t>(at_))) + ", " + std::to_string(sets_) + " sets, " +
         std::to_string(continues_) + " continued";
}

}  // namespace kv
