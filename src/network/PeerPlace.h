// What this side knows of its peer, concluded from the peer's messages alone, whose order the connection
// keeps: where the peer is, what its next "[Play]" means, and what can be made of each message at each place.
// A plain value; it acts on nothing.
//
// The table of verdicts is the one of docs/protocol.md.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "network/Message.h"

namespace kv {

/// Behind "[" and the name: what announces a Start in the chat, right before its "[Play]".
inline constexpr std::string_view kReadyToContinue = " is ready continue.]";

/// Where this side is. Cards, a stake still to be agreed upon; Desk, it is settled; Opening to Over, at the
/// table.
enum class Place : std::uint8_t {
  Lobby,
  Cards,
  Desk,
  Opening,   // before the first set
  Handover,  // the peer's turn is next; a pause of this side's still runs
  Ours,
  Theirs,
  Decided,  // the set is; its banner is not shown yet
  Banner,   // of a set
  Over,     // the match is booked
};
inline constexpr int kPlaces = static_cast<int>(Place::Over) + 1;

enum class Verdict : std::uint8_t {
  Take,
  Keep,   // early: it becomes right by what this side is about to do
  Late,   // harmless: the peer could not know yet; a fault once it must have known
  Ahead,  // in the lobby: remembered for the table, where the peer is already; harmless when it is on its way
          // back
  Fault,
};
/// The table itself, before what is known of the peer is looked at. `kind` is an index of Message.
[[nodiscard]] Verdict TableVerdict(std::size_t kind, Place place);

/// What is to be done with a message.
enum class Course : std::uint8_t { Act, Wait, Ignore, Refuse };

class PeerPlace {
 public:
  /// Where the peer is. Returning: it was ahead of this side, which is in the lobby, and has not yet said
  /// that it is there too; what it still sends was meant for a place that this side has left.
  enum class At : std::uint8_t { Lobby, Started, Cards, Table, Returning };
  enum class Play : std::uint8_t { Start, Cards, Table, Continues, Nothing };

  /// What of the greeting has arrived.
  struct Greeting {
    bool version = false;
    bool name = false;
    bool portrait = false;
    bool file = false;
    friend bool operator==(const Greeting&, const Greeting&) = default;
  };

  // --- What this side does ---------------------------------------------------------------------------------
  /// `from`: where it was before.
  void OwnLobby(Place from);
  void OwnTable();
  /// One more set is decided here, by the peer's last move or by one of this side's.
  void OwnSetDecided() { ++sets_; }
  /// The match ended here out of order, at this place: what the peer has to say until it leaves.
  void OwnForfeit(Place place);
  /// The host's mode change took both Starts back: only what the peer says of a new Start counts.
  void OwnModeChange();

  // --- What the peer's messages say ------------------------------------------------------------------------
  /// The peer is in the lobby, and has not pressed Start there since.
  void InLobby();
  /// The chat line that announces its Start.
  void SaysStart() { startSaid_ = true; }
  /// What a "[Play]" that arrives now means. `arcade`: the card screen says nothing when it is entered.
  [[nodiscard]] Play PlayMeans() const;
  void Plays(bool arcade);
  /// It forfeits: its next "[Play]" leaves the table.
  void Forfeits() { leaveAt_ = continues_ + 1; }

  // --- Its turn --------------------------------------------------------------------------------------------
  [[nodiscard]] bool drawn() const { return drawn_; }
  [[nodiscard]] bool played() const { return played_; }
  void Draws() { drawn_ = true; }
  void PlaysCard() { played_ = true; }
  /// "[WhoS]": a "[Turn]" may be due only after this side's first.
  void Begins(bool ownStart) { turnHeld_ = ownStart; }
  /// Its "[Turn]" is acted on; what follows are repetitions, until it has answered this side's next.
  void EndsTurn();
  void AnswersTurn() { turnHeld_ = false; }
  [[nodiscard]] bool turnHeld() const { return turnHeld_; }
  /// Without a move since its last "[Turn]" another is a repetition.
  [[nodiscard]] bool repeatsTurn() const { return turnSeen_ && !drawn_; }

  // --- What follows ----------------------------------------------------------------------------------------
  /// Whether it has come as far as this side's next step from `place` needs.
  [[nodiscard]] bool Ready(Place place) const;
  /// `waits`: this side has continued from the banner (or waits for the first set).
  [[nodiscard]] Course CourseOf(std::size_t kind, Place place, bool waits) const;
  [[nodiscard]] At at() const { return at_; }
  /// For a person: "cards, 2 sets, 1 continued".
  [[nodiscard]] std::string Text() const;
  friend bool operator==(const PeerPlace&, const PeerPlace&) = default;

  Greeting greeting;
  bool versionMatches = true;
  std::optional<bool> playerStarts;  // said before this side's table stood

 private:
  At at_ = At::Lobby;
  bool startSaid_ = false;
  int sets_ = 0;       // decided here in this match
  int continues_ = 0;  // banners that it has continued from
  int leaveAt_ = -1;   // continues_ at which it leaves an ended match; -1: with the last set
  bool drawn_ = false;
  bool played_ = false;
  bool turnHeld_ = false;
  bool turnSeen_ = false;  // it has ended a turn of this match
};

}  // namespace kv
