// The boards one plays on: card desk and match, once a style. Wells and frames lie exactly where the layouts
// put their controls; whatever moves a control there moves its well here.
#pragma once

class QPainter;

namespace kv::datafile {

void PaintSlateDeck(QPainter& painter);   // 104
void PaintSlateMatch(QPainter& painter);  // 105
void PaintEmberDeck(QPainter& painter);   // 106
void PaintEmberMatch(QPainter& painter);  // 107

}  // namespace kv::datafile
