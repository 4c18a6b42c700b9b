// The look of the program's boxes: a framed plate with a title line of its own, in the colours of the
// interface style, like the screens under it. Never decides what a box says or answers.
#pragma once

#include <QDialog>
#include <string>

namespace kv {

/// Takes the window manager's frame from `box` and paints its own, with `box`'s window title; it is dragged
/// by its title line. To be called before the box is shown, once its contents are in place. `interfaceStyle`
/// is "Slate" or "Ember"; any other counts as "Slate".
void FrameBox(QDialog& box, const std::string& interfaceStyle);

}  // namespace kv
