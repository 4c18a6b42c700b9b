// The card-sized pictures that the program draws itself: the pulse's highlight, the dim, the two masks.
#pragma once

#include "platform/Picture.h"

namespace kv {

struct GlobalPictures {
  /// Paints all four, at twice their layout size.
  GlobalPictures();

  Picture picHighlight;  // 83 x 102, blended over the pulsing card
  Picture picDim;        // 83 x 102, opaque; blended over a disabled card
  Picture imgMaskSlate;  // 48 x 64, opaque where the card is, clear outside its rounded corners
  Picture imgMaskEmber;  // 83 x 102, likewise
};

}  // namespace kv
