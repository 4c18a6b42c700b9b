// The volume of all sounds on the options screen: a slider, and beside it what it stands at. It belongs to
// the program and not to the player: a change is heard at once and outlives CANCEL.
#pragma once

#include <QSlider>
#include <functional>

#include "presentation/Layout.h"

class QLabel;

namespace kv {

class frmOptionsVolume final : public QSlider {
 public:
  /// With its label; both lie in the layout as "sldVolume" and "lblVolume". `percent` is 0 to 100.
  frmOptionsVolume(QWidget& frame, Layout& layout, int percent);

  /// The person has chosen another volume.
  std::function<void(int percent)> Changed;

 private:
  void Moved(int percent);
  void ShowVolume();

  QLabel* lblVolume_;  // child of the frame
  QString caption_;
  int told_;  // percent
};

}  // namespace kv
