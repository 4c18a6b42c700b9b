// The hidden part of the program that every screen shares: the effects with their timers, the pictures that
// the card control draws with, and the timers that outlive a screen. It has no window of its own.
#pragma once

#include <functional>
#include <memory>

#include "cards/CardFaces.h"
#include "presentation/Effects.h"
#include "presentation/GlobalPictures.h"

namespace kv {

class frmGlobals {
 public:
  /// Both must outlive it.
  frmGlobals(Scheduler& scheduler, ButtonContext& buttons);

  const GlobalPictures pictures;
  Effects effects;
  CardLook look;

  /// Once each time they are started; they stop themselves before they call.
  std::function<void()> Off;
  std::function<void()> ReloadCards;

  const std::unique_ptr<Timer> tmrOff;          // the farewell of the main menu
  const std::unique_ptr<Timer> tmrReloadCards;  // the next match of an arcade run
};

}  // namespace kv
