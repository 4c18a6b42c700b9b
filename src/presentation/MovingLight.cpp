#include "presentation/MovingLight.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "platform/Random.h"

namespace kv {
namespace {

constexpr double kTail = 0.09;  // of its life: how long the streak behind a spark is

QColor Faded(QColor colour, double strength) {
  colour.setAlphaF(std::clamp(strength, 0.0, 1.0));
  return colour;
}

}  // namespace

Glow::Glow(QRect place, QColor colour, int reach, double corner)
    : place_(place), colour_(std::move(colour)), reach_(reach), corner_(corner) {}

/// Only the ring itself is painted, so that what lies within is not drawn anew.
QRegion Glow::Area(double) const {
  const QRect outer = place_.adjusted(-reach_ - 2, -reach_ - 2, reach_ + 2, reach_ + 2);
  return QRegion(outer) - QRegion(place_.adjusted(3, 3, -3, -3));
}

void Glow::Paint(QPainter& painter, double way) const {
  constexpr int kRings = 4;
  constexpr double kLightsUp = 0.12;  // of the way
  if (way <= 0) return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  const double wide = reach_ * way;
  const double strength = (1 - way) * std::min(1.0, way / kLightsUp);
  for (int ring = 0; ring < kRings; ++ring) {
    const double out = wide * (kRings - ring) / kRings;
    painter.setPen(QPen(Faded(colour_, strength * (ring + 1.5) / (kRings + 1)), 2.5));
    painter.drawRoundedRect(QRectF(place_).adjusted(-out, -out, out, out), corner_ + out, corner_ + out);
  }
}

Sparks::Sparks(const SparkShow& show, std::uint64_t seed) : show_(show) {
  SeededRandom chance(seed);
  const double volley = 1.0 / (show.volleys + 1);
  for (int i = 0; i < show.count; ++i) {
    const double angle = 2 * std::numbers::pi * (i + chance.Rnd()) / show.count;
    const double far = show.reach * (0.35 + 0.65 * chance.Rnd());
    const QRectF source = show.source;
    Spark spark;
    spark.from = {source.left() + source.width() * chance.Rnd(),
                  source.top() + source.height() * chance.Rnd()};
    spark.flight = QPointF(std::cos(angle), std::sin(angle)) * far;
    spark.begins = show.volleys > 1 ? volley * (i % show.volleys) : 0.0;
    spark.lasts = (1 - spark.begins) * (0.6 + 0.4 * chance.Rnd());
    spark.size = 1.5 + 2 * chance.Rnd();
    sparks_.push_back(spark);
  }
}

QPointF Sparks::At(const Spark& spark, double age) const {
  const double out = Eased(Easing::Out, age);
  return spark.from + spark.flight * out + QPointF(0, show_.fall * age * age);
}

QRegion Sparks::Area(double way) const {
  QRegion area;
  for (const Spark& spark : sparks_) {
    const double age = AgeOf(spark, way);
    if (age <= 0 || age >= 1) continue;
    const QRectF seen(At(spark, age), At(spark, show_.streaks ? std::max(0.0, age - kTail) : age));
    const double rim = (show_.streaks ? 0.5 : 2) * spark.size + 1;
    area += seen.normalized().adjusted(-rim, -rim, rim, rim).toAlignedRect();
  }
  return area - QRegion(show_.behind);
}

void Sparks::Paint(QPainter& painter, double way) const {
  painter.setRenderHint(QPainter::Antialiasing);
  if (!show_.behind.isEmpty()) painter.setClipRegion(Area(way));
  for (const Spark& spark : sparks_) {
    const double age = AgeOf(spark, way);
    if (age <= 0 || age >= 1) continue;
    const double strength = 1 - age * age;
    const QPointF at = At(spark, age);
    if (show_.streaks) {
      painter.setPen(QPen(Faded(show_.colour, strength), spark.size, Qt::SolidLine, Qt::RoundCap));
      painter.drawLine(At(spark, std::max(0.0, age - kTail)), at);
      continue;
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(Faded(show_.colour, strength * 0.35));
    painter.drawEllipse(at, 2 * spark.size, 2 * spark.size);
    painter.setBrush(Faded(show_.colour.lighter(140), strength));
    painter.drawEllipse(at, spark.size, spark.size);
  }
}

}  // namespace kv
