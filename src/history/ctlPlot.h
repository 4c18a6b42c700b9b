// What every plot of the history has in common: its area and colours, a point that is looked at, and the keys
// and clicks that lead from point to point. What is drawn in it, a plot knows itself.
#pragma once

#include <QColor>
#include <QMargins>
#include <QWidget>
#include <functional>

#include "platform/QtPropertyBag.h"

namespace kv {

class ctlPlot : public QWidget {
 public:
  /// The person has gone to a point.
  std::function<void(std::size_t point)> Chosen;
  void setChosen(std::size_t point);

 protected:
  /// Takes "color" (text), "line", "grid", "accent" (the chosen point, the focus) and "font" of the layout.
  /// `around`: what lies between the widget's edges and the area of the plot, in layout pixels.
  ctlPlot(QWidget* parent, const PropertyBag& bag, const QMargins& around);

  /// How many points there are to go to.
  [[nodiscard]] virtual std::size_t Points() const = 0;
  /// How many find room, evenly across the area.
  [[nodiscard]] virtual std::size_t Places() const { return Points(); }
  /// Behind the frame of the focus.
  virtual void PaintPlot(QPainter& painter) const = 0;

  [[nodiscard]] QRectF Area() const { return QRectF(rect().marginsRemoved(around_)); }
  [[nodiscard]] double Across(std::size_t point) const;
  void PaintLevel(QPainter& painter, double y) const;
  [[nodiscard]] std::size_t chosen() const { return chosen_; }

  void paintEvent(QPaintEvent* event) final;
  void keyPressEvent(QKeyEvent* event) final;
  void focusInEvent(QFocusEvent* event) final;
  void focusOutEvent(QFocusEvent* event) final;
  void mousePressEvent(QMouseEvent* event) final;

  const QColor text_;
  const QColor line_;
  const QColor grid_;
  const QColor accent_;

 private:
  void GoTo(std::size_t point);

  const QMargins around_;
  std::size_t chosen_ = 0;
};

}  // namespace kv
