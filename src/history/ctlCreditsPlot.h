// The credits after each match as a line, in the colours of the layout. With the focus on it the arrow keys
// go from match to match, and it says what it shows there.
#pragma once

#include <QColor>
#include <QWidget>
#include <functional>
#include <vector>

#include "history/HistoryStats.h"
#include "platform/QtPropertyBag.h"

namespace kv {

class ctlCreditsPlot final : public QWidget {
 public:
  /// Takes "color" (text), "line", "grid" and "accent" (the match that is looked at, the focus), and "font".
  ctlCreditsPlot(QWidget* parent, const PropertyBag& bag);

  /// From the oldest to the newest.
  void setPoints(std::vector<CreditPoint> points);
  /// What is shown, in a sentence for who does not see it.
  std::function<void(const std::string& sentence)> Told;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  [[nodiscard]] QRectF Area() const;
  [[nodiscard]] QPointF At(std::size_t point) const;
  [[nodiscard]] QString Sentence(std::size_t point) const;
  void LookAt(std::size_t point);
  void PaintGrid(QPainter& painter) const;
  void PaintLine(QPainter& painter) const;
  void PaintChosen(QPainter& painter) const;

  QColor text_;
  QColor line_;
  QColor grid_;
  QColor accent_;
  std::vector<CreditPoint> points_;
  std::int32_t least_ = 0;  // 0, unless somebody had less
  std::int32_t most_ = 0;
  std::size_t chosen_ = 0;
};

}  // namespace kv
