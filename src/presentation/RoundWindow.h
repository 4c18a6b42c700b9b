// Windows with rounded corners and no frame.
#pragma once

class QWidget;

namespace kv {

/// The diameter of the corners of every main screen, in layout pixels.
inline constexpr int kScreenCorners = 32;

/// Takes the frame from `window` and rounds its corners (both diameters `radius`), now and after each resize.
/// Call it before the window is shown: the corners are then smooth, and the window must paint its whole
/// background itself. Raise nothing over its corners afterwards.
void RoundWindow(QWidget& window, int radius);

}  // namespace kv
