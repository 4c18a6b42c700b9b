// What a person can do, or what can happen to the line and the disk, as values: they are drawn by chance,
// written down, read again, and left out one by one until only those remain that a fault needs.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "vantri-interleave/Side.h"

namespace kv::interleave {

enum class Deed : std::uint8_t {
  Nothing,
  EnterNetwork,  // from the menu
  Connect,       // host or join
  Start,
  Mode,
  LeaveLobby,  // its title bar
  Wager,       // types `value` where that is possible, and presses the panel's button
  End,         // the panel's end button
  CloseCards,  // its title bar
  Continue,    // on the card screen
  EndTurn,
  Stand,
  Play,  // hand card `value`
  Flip,  // hand card `value`
  Forfeit,
  Banner,        // its button
  LeaveProgram,  // the window system's close
  Chat,
  Disconnect,  // "/disconnect"
  Quit,        // "/quit"
  FailSaves,   // the next `value` saves fail
  Stall,       // the line stands still for `value` milliseconds
  Break,       // the line breaks
};
inline constexpr int kDeeds = static_cast<int>(Deed::Break) + 1;

struct Action {
  int after = 0;  // milliseconds since the action before it
  int seat = 0;   // 0 the host's person, 1 the guest's
  Deed deed = Deed::Nothing;
  int value = 0;
  Answering box{};  // how boxes are answered from now on
};

/// "250 guest Wager 10 box 900 no"; back again, or nothing for any other text.
[[nodiscard]] std::string Text(const Action& action);
[[nodiscard]] std::optional<Action> ParseAction(std::string_view line);

/// Whether it can be done now: its control is enabled.
[[nodiscard]] bool Possible(Side& side, Deed deed);
/// Does it if it is possible. On the side's own stack.
void Do(Side& side, Wire& wire, const Action& action);
/// Draws something that can be done now; Nothing when nothing can.
[[nodiscard]] Action Draw(Side& side, Random& chance);
/// What a person does who only wants to get back to the lobby; Nothing when there is nothing to do.
[[nodiscard]] Deed WayBack(Side& side);

}  // namespace kv::interleave
