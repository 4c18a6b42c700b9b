// The built-in portraits: a bust in a dim room, lit from the upper left, on a square of 112 by 112.
#pragma once

#include "brush/Brush.h"
#include "brush/Relief.h"
#include "portraits/Paths.h"
#include "portraits/Spec.h"

namespace kv::datafile {

inline constexpr double kBustSide = 112;

void PaintPortrait(QPainter& painter, const BustSpec& spec);

/// Where the parts of a face lie, as shares of the head.
struct FacePlan {
  double eyeX;
  double eyeY;
  double eyeSize;
  double mouthY;
};
[[nodiscard]] FacePlan FacePlanOf(Shape shape);

/// Neck and shoulders of a build; layout pixels.
struct Frame {
  QPointF head;
  double neck;   // its half width as a share of the head's
  double reach;  // half the shoulders' breadth
  double top;    // where the shoulders leave the neck
  double slope;  // how much lower they end
  double lean;   // how much lower the right one is
};
[[nodiscard]] Frame FrameOf(Build build);

/// What an expression does to a face.
struct Expression {
  double openLeft;  // of the eyes, 1 is usual
  double openRight;
  double liftLeft;  // of the brows, as a share of the eye's width
  double liftRight;
  double frown;  // how much the brows' inner ends drop
  double bend;   // of the mouth, up is positive
  double skew;   // how much its right corner is higher
  double gape;   // how far it is open
  bool teeth;
};
[[nodiscard]] Expression ExpressionOf(Mood mood);

enum class Stuff { Skin, Hide, Cloth, Hair, Metal, Bone, Glass };

/// One bust being painted: its choices, where its head is, and its own chance.
struct Sitter {
  const BustSpec& spec;
  Frame frame;
  FacePlan plan;
  Expression mood;
  QPointF head;  // the middle of the skull
  double halfWidth;
  double halfLength;
  Chance chance;
  QColor skin;
  QColor cloth;
  QColor hair;
  QColor back;
  QColor eye;

  explicit Sitter(const BustSpec& row);
  /// A point on the face, -1 to 1 over the head; `out` is how far it stands out of it. Turns with the head.
  [[nodiscard]] QPointF At(double x, double y, double out = 0) const;
  /// A point of the outline or beyond it, -1 to 1 over the head.
  [[nodiscard]] QPointF Out(double x, double y) const;
  [[nodiscard]] QPainterPath HeadPath() const;
  [[nodiscard]] Surface Of(QColor colour, Stuff stuff) const;
};

/// Fills a shape as a solid thing that casts a shadow on what is already painted.
void Model(QPainter& painter, const Sitter& sitter, const QPainterPath& path, QColor colour,
           Stuff stuff = Stuff::Cloth, double round = 0);

// The layers, from the back to the front.
void PaintPlace(QPainter& painter, Sitter& sitter);
void PaintBehind(QPainter& painter, Sitter& sitter);  // hair and growth that the head hides
void PaintNeck(QPainter& painter, Sitter& sitter);
void PaintGarment(QPainter& painter, Sitter& sitter);
void PaintHead(QPainter& painter, Sitter& sitter);
void PaintEyes(QPainter& painter, Sitter& sitter);
void PaintMouth(QPainter& painter, Sitter& sitter);  // what of it stands out or is open
void PaintMachineHead(QPainter& painter, Sitter& sitter);
void PaintHair(QPainter& painter, Sitter& sitter);
void PaintBeard(QPainter& painter, Sitter& sitter);
void PaintGrowth(QPainter& painter, Sitter& sitter);
void PaintGear(QPainter& painter, Sitter& sitter);
void PaintGearBehind(QPainter& painter, Sitter& sitter);
void PaintHairBehind(QPainter& painter, Sitter& sitter);

// What is pressed into a head before the light falls on it.
void PressMarks(Relief& head, Sitter& sitter);
void PressMouth(Relief& head, Sitter& sitter);

}  // namespace kv::datafile
