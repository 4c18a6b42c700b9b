#include "vantri-peer/Misplay.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "match/MatchEngine.h"
#include "network/Framing.h"
#include "network/NetworkGame.h"

namespace kv {
namespace {

constexpr std::size_t kNoiseBytes = 64;                // of one burst
constexpr std::size_t kFloodBytes = 1000000;           // of one burst
constexpr std::size_t kMostFlood = 100 * kFloodBytes;  // then the line is left in peace
constexpr std::array kMoves = {"[Card]no5", "[Hand]1ps3", "[Stnd]", "[Turn]"};

/// One set has been won, and this side is at its turn: a good moment to spoil a match.
bool InTheMiddle(const MisplayScene& scene) {
  if (scene.match == nullptr || !scene.match->shown().Light(Seat::Player)) return false;
  return scene.match->shown().SetWins(Seat::Player) + scene.match->shown().SetWins(Seat::Opponent) > 0;
}

std::string Rubbish(Random& random, std::size_t size) {
  std::string bytes(size, ' ');
  for (char& byte : bytes) byte = static_cast<char>(random.Rnd() * 256);
  return bytes;
}

/// One move right behind the end of each own turn: later, the other side may have ended its turn as well.
void OutOfTurn(MisplayScene& scene) {
  if (scene.match == nullptr) return;
  // Before a set begins the next turn may be this side's own; against a side that stands it is, at once.
  const bool inSet = scene.match->peer().begun() && !scene.match->shown().banner.visible &&
                     !scene.match->shown().Stood(Seat::Opponent);
  const bool waits = inSet && scene.match->peer().peerTurn() != PeerTurn::NotTheirs;
  const bool moved = scene.done % 2 == 1;
  if (waits == moved) return;
  if (waits) scene.network.NetSend(kMoves.at(scene.done / 2 % kMoves.size()));
  ++scene.done;
}

void Noise(MisplayScene& scene) {
  scene.socket.SendData(Rubbish(scene.random, kNoiseBytes) + kSeparatorByte);
}

void Flood(MisplayScene& scene) {
  if (!scene.network.connected() || scene.done >= kMostFlood) return;
  std::string bytes = Rubbish(scene.random, kFloodBytes);
  // Short messages, so that it is their number that has to be stood, not the length of one.
  for (std::size_t i = 0; i < bytes.size(); i += kNoiseBytes) bytes[i] = kSeparatorByte;
  scene.socket.SendData(bytes);
  scene.done += bytes.size();
}

void Vanish(MisplayScene& scene) {
  if (!InTheMiddle(scene)) return;
  std::fputs("vantri-peer: vanishes\n", stderr);
  std::_Exit(0);
}

void Forfeit(MisplayScene& scene) {
  if (InTheMiddle(scene)) scene.match->person().Forfeit();
}

void Disconnect(MisplayScene& scene) {
  if (InTheMiddle(scene)) scene.network.SubmitChat("/disconnect");
}

void Sleep(MisplayScene& scene) {
  if (scene.match != nullptr) scene.match->person().setStrategy(nullptr);
}

constexpr std::array<Misplay, 7> kMisplays = {{
    {"out-of-turn", "sends moves while it is not its turn", 20, OutOfTurn},
    {"noise", "sends random bytes between its messages", 200, Noise},
    {"flood", "sends 100 MB of random messages as soon as it is connected", 10, Flood},
    {"vanish", "dies in the middle of a match, without a word", 20, Vanish},
    {"forfeit", "gives up each match after its first set", 20, Forfeit},
    {"disconnect", "leaves by \"/disconnect\" in the middle of a match", 20, Disconnect},
    {"sleep", "never makes a move, and keeps the line up", 10, Sleep},
}};

}  // namespace

std::span<const Misplay> Misplays() {
  return kMisplays;
}

const Misplay* FindMisplay(std::string_view name) {
  const auto* row = std::ranges::find(kMisplays, name, &Misplay::name);
  return row == kMisplays.end() ? nullptr : row;
}

}  // namespace kv
