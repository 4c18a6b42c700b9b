// The one interface through which the match engine speaks to its screen. The engine holds the state; the
// screen is told what has changed and reads it from the engine. A screen decides nothing about the rules.
#pragma once

#include <cstdint>
#include <string_view>

#include "match/MatchState.h"

namespace kv {

/// Timers that the screen keeps for the engine: Game every 50 ms (one tick a start), AutoDialogs after 800 ms
/// (one tick a start), NetWait every 50 ms until it is stopped, Quiet every 20 ms until it is stopped.
enum class MatchTimer : std::uint8_t { Game, AutoDialogs, NetWait, Quiet };

class MatchView {
 public:
  virtual ~MatchView() = default;

  /// Card `index` (1 to 9) of a table was placed or rewritten, the total with it; 0: the table is empty
  /// again.
  virtual void TableChanged(Seat seat, int index) = 0;
  /// The code in hand slot 1 to 4 has changed; an empty slot is hidden.
  virtual void HandChanged(Seat seat, int slot) = 0;
  /// A won-set marker was added; the engine's SetWins tells how many there are.
  virtual void SetWinAdded(Seat seat) = 0;
  /// What the person may use has changed: the engine's controls(). Dims and enables accordingly.
  virtual void ControlsChanged() = 0;
  /// One of the turn lights went on or off.
  virtual void LightsChanged() = 0;
  /// The result banner was shown, changed or hidden.
  virtual void BannerChanged() = 0;
  virtual void RunTimer(MatchTimer timer, bool run) = 0;
  virtual void PlaySound(std::string_view effect) = 0;
  /// Waits while events are handled; false when the screen is closing: the engine then returns at once.
  [[nodiscard]] virtual bool Pause(int milliseconds) = 0;
  /// The match is booked and its last continue was used: the screen is to be left.
  virtual void Leave() = 0;
};

}  // namespace kv
