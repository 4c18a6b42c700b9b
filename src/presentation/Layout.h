// The layout of one screen in one interface style: where its controls are and what they say. It is data, one
// JSON file beside each screen; the C++ of a screen holds behaviour only. Naming a control that the file does
// not have is a fault of the program: std::out_of_range.
#pragma once

#include <QPointer>
#include <QRect>
#include <QSize>
#include <QString>
#include <QWidget>
#include <string>
#include <string_view>

#include "platform/QtPropertyBag.h"

class QLabel;

namespace kv {

class Layout {
 public:
  /// `style` is "Slate" or "Ember"; any other, or one that the file lacks, reads as "Slate".
  Layout(std::string_view screen, std::string_view style);

  /// Size of the window in layout pixels.
  [[nodiscard]] QSize size() const { return size_; }
  [[nodiscard]] bool has(QStringView control) const;
  [[nodiscard]] PropertyBag bag(QStringView control) const;
  [[nodiscard]] QRect rect(QStringView control) const;

  /// Gives the widget its place, its object name and its accessible name ("accessible", else "caption").
  /// Widgets are reached by Tab in the order in which they were placed.
  void Place(QStringView control, QWidget& widget);
  /// A label with the caption, font, colour and alignment of the bag, placed; owned by `parent`. The pointer
  /// goes through it to what lies below.
  QLabel* NewLabel(QStringView control, QWidget* parent);
  /// The same for a label of another kind, which exists already.
  void Dress(QStringView control, QLabel& label);

 private:
  QSize size_;
  QJsonObject controls_;
  QPointer<QWidget> lastPlaced_;
};

}  // namespace kv
