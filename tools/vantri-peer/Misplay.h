// What a peer can do wrong on purpose, so that a program can be tried against it. Each misplay is one row of
// a table; a peer without one plays as a person would.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "platform/Random.h"
#include "platform/TcpSocket.h"

namespace kv {

class MatchEngine;
class NetworkGame;

/// What a misplay finds when its time has come.
struct MisplayScene {
  NetworkGame& network;
  TcpSocket& socket;  // the bare line, for what no program would send
  Random& random;
  MatchEngine* match;  // null while none is open
  std::size_t& done;   // what it has done so far, for the misplay's own use; 0 at first
};

struct Misplay {
  std::string_view name;
  std::string_view help;
  int every;  // milliseconds
  void (*act)(MisplayScene& scene);
};

[[nodiscard]] std::span<const Misplay> Misplays();
/// Null for a name that is none.
[[nodiscard]] const Misplay* FindMisplay(std::string_view name);

}  // namespace kv
