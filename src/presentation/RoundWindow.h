// Windows with rounded corners and no frame.
#pragma once

#include <QRegion>
#include <QSize>

class QWidget;

namespace kv {

/// The diameter of the corners of every main screen, in layout pixels.
inline constexpr int kScreenCorners = 32;

/// Takes the frame from `window` and rounds its corners (both diameters `radius`), now and after each resize.
/// What becomes the content of another window keeps its corners; the other one is to be shaped by its owner.
/// Call it before the window is shown: the corners are then smooth, and the window must paint its whole
/// background itself. Raise nothing over its corners afterwards.
void RoundWindow(QWidget& window, int radius);

/// Every pixel that a rectangle with round corners touches at all; `radius` is that of its corners.
[[nodiscard]] QRegion RoundedShape(QSize size, int radius);

}  // namespace kv
