// A screen that shows the current player's portrait and lets the person choose another one.
#pragma once

#include "platform/Picture.h"

namespace kv {

class PortraitCaller {
 public:
  virtual ~PortraitCaller() = default;
  /// The player's Portrait has been changed; `picture` is what the player is shown with now.
  virtual void PortraitChosen(const Picture& picture) = 0;
};

}  // namespace kv
