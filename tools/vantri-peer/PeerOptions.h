// The command line of the peer as values. It looks at words only: files, players and sockets are not its
// business.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "profile/PlayerFields.h"
#include "vantri-peer/Misplay.h"

namespace kv {

struct PeerOptions {
  bool hosting = true;
  std::string address;  // to listen at (empty: at all of the machine's) or to join
  int port = 6000;
  std::string from;  // local address of a side that joins; empty: any
  std::string name;  // empty: the player's own, or "Practice"
  std::string player;
  std::string pin;
  bool arcade = false;
  std::int32_t stake = 10;  // credits
  int matches = 0;          // 0: until somebody leaves
  bool once = false;
  bool chat = false;
  bool trace = false;
  std::string version{kProgramVersion};
  const Misplay* misplay = nullptr;
  int hurry = 1;                           // how many times as fast as the clock
  std::vector<std::string> playerOptions;  // words of vantri-player
};

/// Nothing, with `error` set, when the words make no sense.
[[nodiscard]] std::optional<PeerOptions> ParsePeerOptions(std::span<const std::string> words,
                                                          std::string& error);
[[nodiscard]] std::string PeerHelp();

}  // namespace kv
