// A label of several lines that never parts a number from what it counts. It changes no letter of its text.
#pragma once

#include <QLabel>

namespace kv {

class CountLabel final : public QLabel {
 public:
  using QLabel::QLabel;

  /// The text as it is drawn: with blanks that no line is broken at behind each number.
  [[nodiscard]] static QString Unbroken(QString text);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace kv
