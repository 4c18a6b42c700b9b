// The hidden part of the program that every screen shares: the effects with their timers, and the pictures
// that the card control draws with. It has no window of its own.
#pragma once

#include "cards/CardFaces.h"
#include "presentation/Effects.h"
#include "presentation/GlobalPictures.h"

namespace kv {

class frmGlobals {
 public:
  /// Both must outlive it.
  frmGlobals(Scheduler& scheduler, ButtonContext& buttons) : effects(scheduler, buttons, pictures) {
    look.picDim = pictures.picDim;
    look.imgMaskSlate = pictures.imgMaskSlate;
    look.imgMaskEmber = pictures.imgMaskEmber;
  }

  const GlobalPictures pictures;
  Effects effects;
  CardLook look;
};

}  // namespace kv
