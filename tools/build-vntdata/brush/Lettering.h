// Letters drawn as strokes on a small grid, so that no font of the machine ever gets into a picture.
#pragma once

#include <QColor>
#include <QPainterPath>
#include <QRectF>
#include <QString>

class QPainter;

namespace kv::datafile {

/// The strokes of a text in capitals and figures: its height is `height`, its left top corner the origin.
/// What the alphabet lacks is left blank.
[[nodiscard]] QPainterPath LetteringPath(const QString& text, double height, double spacing = 0.35);
/// The text in the middle of an area.
void DrawLettering(QPainter& painter, const QString& text, QRectF area, double height, QColor colour);

}  // namespace kv::datafile
