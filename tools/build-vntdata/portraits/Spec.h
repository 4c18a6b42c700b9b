// What makes one portrait, a row of portraits.json: everybody is put together from these choices, and no two
// share them all.
#pragma once

#include <QColor>

#include "portraits/Choices.h"

namespace kv::datafile {

struct BustSpec {
  int number;
  Kind kind;
  Shape shape;
  Build build;
  Place place;
  QRgb skin;
  QRgb cloth;
  QRgb hair;  // or trim, crest, fur
  QRgb back;  // the light of the room
  QRgb eye;
  double width;   // of the head, 1 is usual
  double length;  // of the head
  double jaw;     // 0 pointed to 1 square
  double tilt;    // degrees, clockwise
  double turn;    // -1 looks to the left, 1 to the right
  double nod;     // -1 looks up, 1 down
  Hair hairStyle;
  Gear gear;
  Growth growth;
  Eyes eyes;
  Mood mood;
  Mouth mouth;
  Garment garment;
  Mark mark;
};

}  // namespace kv::datafile
