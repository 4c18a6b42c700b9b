// The turn lights of the match screen: 458 and 461 in "Slate", 462 and 465 in "Ember"; the first is lit.
#pragma once

class QPainter;

namespace kv::datafile {

void PaintLight(QPainter& painter, int number);

}  // namespace kv::datafile
