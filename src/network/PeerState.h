// What a network game remembers of the peer's messages, so that each is taken only where it makes sense. It
// is forgotten with the connection.
#pragma once

#include <optional>
#include <string_view>

namespace kv {

/// Behind "[" and the name: what announces a Start in the chat, right before its "[Play]".
inline constexpr std::string_view kReadyToContinue = " is ready continue.]";

struct PeerState {
  /// What of the greeting has arrived.
  struct Greeting {
    bool version = false;
    bool name = false;
    bool portrait = false;
    bool file = false;
  };
  /// What it has done in its present turn.
  struct Moves {
    bool drawn = false;
    bool played = false;
  };

  int ready = 0;           // its "[Play]"s that no screen has used yet: it may be one screen ahead
  bool startSaid = false;  // the line that announces its Start has come: the next "[Play]" is that Start
  bool turnHeld = false;   // its "[Turn]" was acted on; what follows are repetitions
  bool turnSeen = false;   // it has ended a turn of this match
  bool versionMatches = true;
  Greeting greeting;
  Moves moves;
  std::optional<bool> playerStarts;  // said before the match screen stood
  int postponed = 0;                 // times that the present message was put off
};

}  // namespace kv
