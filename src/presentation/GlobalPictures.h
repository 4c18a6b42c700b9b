// The card-sized pictures that the program draws itself: the pulse's highlight, the dim, the two masks.
#pragma once

#include "platform/Picture.h"

namespace kv {

class GlobalPictures {
 public:
  /// Paints all at twice their layout size; the highlight only when it is asked for, since no start needs it.
  GlobalPictures();

  /// 83 x 102, blended over the pulsing card.
  [[nodiscard]] const Picture& picHighlight() const;

  Picture picDim;        // 83 x 102, opaque; blended over a disabled card
  Picture imgMaskSlate;  // 48 x 64, opaque where the card is, clear outside its rounded corners
  Picture imgMaskEmber;  // 83 x 102, likewise

 private:
  mutable Picture picHighlight_;
};

}  // namespace kv
