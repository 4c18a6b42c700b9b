// Light that shows for a moment: a glow around a place, and sparks that fly from it.
#pragma once

#include <QColor>
#include <vector>

#include "presentation/Motion.h"

namespace kv {

/// A ring of light that widens around a place and fades.
class Glow final : public Moving {
 public:
  /// It reaches `reach` layout pixels beyond `place`, with its corners as round as `corner`.
  Glow(QRect place, QColor colour, int reach, double corner);
  [[nodiscard]] QRegion Area(double way) const override;
  void Paint(QPainter& painter, double way) const override;

 private:
  QRect place_;
  QColor colour_;
  int reach_;
  double corner_;
};

/// How sparks fly. Lengths in layout pixels.
struct SparkShow {
  QRect source;  // from anywhere within it
  QColor colour{};
  QRect behind{};  // they pass behind what lies here
  int count = 12;
  double reach = 60;     // how far the fastest flies
  double fall = 0;       // how far each has fallen at the end; negative: it has risen
  bool streaks = false;  // lines of light; else round embers
  int volleys = 1;       // they start so many times, one after the other
};

class Sparks final : public Moving {
 public:
  /// Equal seeds give equal sparks.
  Sparks(const SparkShow& show, std::uint64_t seed);
  [[nodiscard]] QRegion Area(double way) const override;
  void Paint(QPainter& painter, double way) const override;

 private:
  struct Spark {
    QPointF from;
    QPointF flight;
    double begins = 0;  // of the way
    double lasts = 1;
    double size = 2;
  };
  [[nodiscard]] QPointF At(const Spark& spark, double age) const;
  [[nodiscard]] static double AgeOf(const Spark& spark, double way) {
    return (way - spark.begins) / spark.lasts;
  }

  SparkShow show_;
  std::vector<Spark> sparks_;
};

}  // namespace kv
