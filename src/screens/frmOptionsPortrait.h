// The player's portrait as a button. It shows the picture that it is given and knows nothing of where
// pictures come from.
#pragma once

#include <QAbstractButton>
#include <QColor>

#include "platform/Picture.h"
#include "presentation/Layout.h"

namespace kv {

class frmOptionsPortrait final : public QAbstractButton {
 public:
  /// Frame colours from the layout: "border", and "accent" under the pointer and in focus.
  frmOptionsPortrait(QWidget* parent, Layout& layout, QStringView control);

  void setPicture(const Picture& picture);
  /// Another frame colour than the layout's.
  void setBorder(const QColor& color);
  [[nodiscard]] const Picture& picture() const { return picture_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  Picture picture_;
  QColor border_;
  QColor accent_;
};

}  // namespace kv
