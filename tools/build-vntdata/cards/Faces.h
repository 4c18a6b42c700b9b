// The card faces: 201 to 207 in "Slate", 221 to 227 in "Ember". A kind is told by its shape first: a plus
// card points up, a minus card down, a flip card is split, a special one is a star; colour only agrees.
#pragma once

class QPainter;

namespace kv::datafile {

void PaintFace(QPainter& painter, int number);

}  // namespace kv::datafile
