#include "history/ctlCreditsPlot.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "history/RecordWords.h"

namespace kv {
namespace {

// Layout pixels.
constexpr int kTop = 18;
constexpr int kBottom = 18;
constexpr int kSide = 8;
constexpr int kDot = 3;
constexpr int kGridLines = 4;
constexpr std::size_t kDateLength = 10;  // of a time: the day

QString Day(std::int64_t time) {
  return QString::fromStdString(words::TimeText(time).substr(0, kDateLength));
}

}  // namespace

ctlCreditsPlot::ctlCreditsPlot(QWidget* parent, const PropertyBag& bag)
    : ctlPlot(parent, bag, {kSide, kTop, kSide, kBottom}) {}

void ctlCreditsPlot::setPoints(std::vector<CreditPoint> points) {
  points_ = std::move(points);
  least_ = most_ = 0;
  for (const CreditPoint& point : points_) {
    least_ = std::min(least_, point.credits);
    most_ = std::max(most_, point.credits);
  }
  setChosen(points_.empty() ? 0 : points_.size() - 1);
  QString name = QStringLiteral("Credits over time: no match yet");
  if (!points_.empty()) {
    name = QStringLiteral("Credits over time: from %1 to %2 in %3 matches, at most %4")
               .arg(points_.front().credits)
               .arg(points_.back().credits)
               .arg(points_.size())
               .arg(most_);
  }
  setAccessibleName(name);
}

QPointF ctlCreditsPlot::At(std::size_t point) const {
  const double range = static_cast<double>(most_) - least_;
  const double up = range == 0 ? 0 : (static_cast<double>(points_.at(point).credits) - least_) / range;
  return {Across(point), Area().bottom() - up * Area().height()};
}

std::string ctlCreditsPlot::Sentence(std::size_t point) const {
  return QStringLiteral("Match %1 of %2, %3: %4 credits")
      .arg(point + 1)
      .arg(points_.size())
      .arg(Day(points_.at(point).time))
      .arg(points_.at(point).credits)
      .toStdString();
}

void ctlCreditsPlot::PaintPlot(QPainter& painter) const {
  for (int i = 0; i <= kGridLines; ++i) {
    PaintLevel(painter, Area().bottom() - Area().height() * i / kGridLines);
  }
  if (points_.empty()) {
    painter.setPen(text_);
    painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("No match for credits yet"));
    return;
  }
  PaintLine(painter);
  PaintTexts(painter);
}

void ctlCreditsPlot::PaintLine(QPainter& painter) const {
  // No more points than there are pixels: of those that share one, the lowest and the highest.
  QPainterPath path(At(0));
  const std::size_t step =
      std::max<std::size_t>(1, points_.size() / static_cast<std::size_t>(std::max(1, width())));
  for (std::size_t i = 0; i < points_.size(); i += step) {
    const auto first = points_.begin() + static_cast<std::ptrdiff_t>(i);
    const auto end = points_.begin() + static_cast<std::ptrdiff_t>(std::min(points_.size(), i + step));
    const auto [low, high] = std::minmax_element(
        first, end, [](const CreditPoint& a, const CreditPoint& b) { return a.credits < b.credits; });
    for (const auto each : {std::min(low, high), std::max(low, high)}) {
      path.lineTo(At(static_cast<std::size_t>(each - points_.begin())));
    }
  }
  path.lineTo(At(points_.size() - 1));
  painter.setPen(QPen(line_, 1.6));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(path);
}

void ctlCreditsPlot::PaintTexts(QPainter& painter) const {
  painter.setPen(Qt::NoPen);
  painter.setBrush(accent_);
  painter.drawEllipse(At(chosen()), kDot, kDot);
  painter.setPen(text_);
  const QRect above(kSide, 0, width() - 2 * kSide, kTop);
  const QRect below(kSide, height() - kBottom, width() - 2 * kSide, kBottom);
  painter.drawText(above, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("%1").arg(most_));
  painter.drawText(
      above, Qt::AlignRight | Qt::AlignVCenter,
      QStringLiteral("%1: %2").arg(Day(points_.at(chosen()).time)).arg(points_.at(chosen()).credits));
  painter.drawText(below, Qt::AlignLeft | Qt::AlignVCenter, Day(points_.front().time));
  painter.drawText(below, Qt::AlignRight | Qt::AlignVCenter, Day(points_.back().time));
}

}  // namespace kv
