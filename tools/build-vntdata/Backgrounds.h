// The screen pictures 101 to 107. Wells and frames lie exactly where the layouts put their controls; whatever
// moves a control there moves its well here.
#pragma once

class QPainter;

namespace kv::datafile {

/// Paints one of them; any other number paints nothing.
void PaintBackground(QPainter& painter, int number);

void PaintMenu(QPainter& painter);        // 101
void PaintCircuit(QPainter& painter);     // 102
void PaintLobby(QPainter& painter);       // 103
void PaintSlateDeck(QPainter& painter);   // 104
void PaintSlateMatch(QPainter& painter);  // 105
void PaintEmberDeck(QPainter& painter);   // 106
void PaintEmberMatch(QPainter& painter);  // 107

}  // namespace kv::datafile
