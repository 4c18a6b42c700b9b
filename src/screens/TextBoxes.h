// Text boxes as a layout describes them. What may be typed into a box is its owner's business.
#pragma once

#include <QLineEdit>
#include <QString>

#include "presentation/Layout.h"

namespace kv {

/// Skins the box and gives it its place and "tooltip".
void PlaceBox(Layout& layout, QStringView control, QLineEdit& box);

/// The text without blanks at its ends.
[[nodiscard]] QString Trimmed(const QLineEdit& box);

/// Takes the blanks from the start of the box, and says whether there were any. The caret stays at its text.
bool RemoveLeadingBlanks(QLineEdit& box);

}  // namespace kv
