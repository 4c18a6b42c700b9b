// The views behind menu, circuit and lobby, inside a metal border. Both styles share them: a layout folds
// their colours to warm ones, so they must not use green.
#pragma once

class QPainter;

namespace kv::datafile {

void PaintMenu(QPainter& painter);     // 101
void PaintCircuit(QPainter& painter);  // 102
void PaintLobby(QPainter& painter);    // 103

}  // namespace kv::datafile
