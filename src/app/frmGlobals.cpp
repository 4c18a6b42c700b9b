#include "app/frmGlobals.h"

namespace kv {
namespace {

// Milliseconds.
constexpr int kOffInterval = 2500;
constexpr int kReloadCardsInterval = 100;

}  // namespace

frmGlobals::frmGlobals(Scheduler& scheduler, ButtonContext& buttons)
    : effects(scheduler, buttons, pictures),
      tmrOff(scheduler.NewTimer(kOffInterval,
                                [this] {
                                  tmrOff->setEnabled(false);
                                  if (Off) Off();
                                })),
      tmrReloadCards(scheduler.NewTimer(kReloadCardsInterval, [this] {
        tmrReloadCards->setEnabled(false);
        if (ReloadCards) ReloadCards();
      })) {
  look.picDim = pictures.picDim;
  look.imgMaskSlate = pictures.imgMaskSlate;
  look.imgMaskEmber = pictures.imgMaskEmber;
}

}  // namespace kv
