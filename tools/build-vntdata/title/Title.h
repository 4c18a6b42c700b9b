// The game's name in letters of its own: stencil capitals of metal, the small word over the large one, held
// between two pairs of arcs as the lozenge of the house's sign is.
#pragma once

#include <QPainter>

namespace kv::datafile {

/// The lettering of the start screen in an area of 440 by 90 layout pixels; lit it glows, unlit it is cold
/// metal.
void PaintTitle(QPainter& painter, bool lit);

/// One letter of the title's alphabet as an outline: `size` is the width and the height between the middles
/// of its strokes, its left top corner the origin.
[[nodiscard]] QPainterPath TitleLetter(char letter, QSizeF size, double stroke);

}  // namespace kv::datafile
