// The start screen: its scene (400), the title off and on (401, 402) and the line below it off and on (403,
// 404). The title and line pictures carry their part of the scene, so that they lie on it without a seam.
#pragma once

class QPainter;

namespace kv::datafile {

void PaintStartPicture(QPainter& painter, int number);

}  // namespace kv::datafile
