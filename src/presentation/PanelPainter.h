// Framed, translucent panels behind the text of a screen, as its layout describes them.
#pragma once

#include <QPainter>
#include <QRect>

#include "platform/QtPropertyBag.h"

namespace kv {

/// Paints a panel in `area`. `bag` gives "fill_color", "fill_alpha" (0 to 255, 255 if not given),
/// "border_color" and "corners" (radius in layout pixels); with "rim" (the colour of its metal) the panel is
/// set in a rim of "rim_width" layout pixels (4), riveted where "rivets" is true. The painter is left as it
/// was.
void PaintPanel(QPainter& painter, const QRect& area, const PropertyBag& bag);

}  // namespace kv
