// A card as the pulse sees it: something over which a highlight can be drawn.
#pragma once

#include "platform/Picture.h"

namespace kv {

class PulsingCard {
 public:
  virtual ~PulsingCard() = default;
  /// Draws the picture over the plain card with the opacity `level`, 0 (no highlight) to 255.
  virtual void Alpha(const Picture& picture, int level) = 0;
  [[nodiscard]] virtual bool Enabled() const = 0;
};

}  // namespace kv
