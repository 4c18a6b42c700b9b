// The built-in portraits: a bust before a soft light, lit from the upper left, on a square of 112 by 112.
#pragma once

#include <QPainterPath>

#include "Brush.h"
#include "BustSpec.h"

namespace kv::datafile {

/// Paints built-in portrait `number` (1 to 65); a number that nobody has paints nothing.
void PaintPortrait(QPainter& painter, int number);

/// One bust being painted: its choices, where its head is, and its own chance.
struct Sitter {
  const BustSpec& spec;
  QPointF head{55, 49};  // the middle of the face
  double halfWidth;
  double halfLength;
  Chance chance;
  QColor skin;
  QColor cloth;
  QColor hair;
  QColor back;
  QColor eye;

  explicit Sitter(const BustSpec& row);
  [[nodiscard]] QPointF At(double x, double y) const {  // -1 to 1 over the head
    return head + QPointF(x * halfWidth, y * halfLength);
  }
  [[nodiscard]] QPainterPath HeadPath() const;
};

// The layers, from the back to the front.
void PaintBehind(QPainter& painter, Sitter& sitter);  // hair and gear that the head hides
void PaintNeck(QPainter& painter, Sitter& sitter);
void PaintMachineNeck(QPainter& painter, Sitter& sitter);
void PaintGarment(QPainter& painter, Sitter& sitter);
void PaintHead(QPainter& painter, Sitter& sitter);  // skin, light, nose
void PaintMarks(QPainter& painter, Sitter& sitter);
void PaintEyes(QPainter& painter, Sitter& sitter);
void PaintMouth(QPainter& painter, Sitter& sitter);
void PaintMachineHead(QPainter& painter, Sitter& sitter);
void PaintHair(QPainter& painter, Sitter& sitter);
void PaintGear(QPainter& painter, Sitter& sitter);

/// Fills a shape as a rounded thing: light on its upper left, shade on its lower right.
void Model(QPainter& painter, const QPainterPath& path, QColor colour, double contrast = 1);

}  // namespace kv::datafile
