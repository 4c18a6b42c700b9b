// The strip of the options screen that sets how large everything is. It is no option of the player: what is
// pressed takes effect at once and stays, whatever way the screen is left.
#pragma once

#include <functional>

#include "presentation/ButtonContext.h"
#include "presentation/Layout.h"
#include "presentation/WindowSize.h"

class QCheckBox;
class QLabel;

namespace kv {

class ctlButton;

class frmOptionsSize {
 public:
  /// Makes the controls as children of `frame`, placed by `layout`; `clicked` is called at every tick.
  frmOptionsSize(QWidget& frame, Layout& layout, ButtonContext& buttons, WindowSize& size,
                 std::function<void()> clicked);

  /// Shows the size in use, which keys change too.
  void Refresh();

 private:
  ctlButton* NewStep(QStringView control, int direction, QWidget& frame, Layout& layout,
                     ButtonContext& buttons);

  WindowSize& size_;
  QLabel* lblSizeValue_;  // children of the frame
  ctlButton* cmdSmaller_ = nullptr;
  ctlButton* cmdLarger_ = nullptr;
  QCheckBox* chkFit_ = nullptr;
  QCheckBox* chkFullScreen_ = nullptr;
};

}  // namespace kv
