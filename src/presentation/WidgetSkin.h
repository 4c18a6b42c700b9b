// Dresses the toolkit's own widgets (text boxes, lists, tables, check boxes, option buttons, combo boxes,
// sliders) in the look of a screen's layout. It changes looks only, never what a widget does or contains.
#pragma once

#include <QWidget>

#include "platform/QtPropertyBag.h"

namespace kv {

/// Takes from the bag, each with a default in the look of "Slate":
///   "font"
///   "color"        text
///   "fill"         ground of boxes and lists, with "fill_strength" 0 (clear) to 255 (opaque)
///   "border"       frame; "border_width" in layout pixels (1), "corners" their radius in layout pixels (2)
///   "accent"       frame of the widget that has the focus, check marks, slider of a scroll bar
///   "select"       ground of a selected entry or text, "select_color" its text
///   "row_height"   of a list's entries, in layout pixels; as the font needs it if not given
///   "disabled"     text and frame while disabled
/// Call it again to change the look.
void SkinWidget(QWidget& widget, const PropertyBag& bag);

}  // namespace kv
