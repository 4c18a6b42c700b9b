// The sign at the left of a box: a lozenge in the colour of what the box says, with a letter that says it
// too.
#pragma once

#include <QPixmap>

#include "platform/Dialogs.h"

namespace kv {

/// `ratio`: physical pixels in a layout pixel. Null for DialogIcon::None.
[[nodiscard]] QPixmap DialogSign(DialogIcon icon, qreal ratio);

}  // namespace kv
