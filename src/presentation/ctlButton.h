// The program's text button: a caption in a rectangular border, both in the colour of the button's state. A
// click disables it; whoever handles the click enables it again.
#pragma once

#include <QAbstractButton>
#include <QColor>
#include <functional>
#include <string>

#include "platform/QtPropertyBag.h"
#include "presentation/ButtonContext.h"

namespace kv {

class ctlButton final : public QAbstractButton {
 public:
  /// `context` must outlive it. Tab reaches it unless its focus policy is set to Qt::NoFocus; Space and Enter
  /// then click it.
  ctlButton(QWidget* parent, ButtonContext& context);

  /// The screen may close in it, but must not delete the button before the handler has returned.
  std::function<void()> Click;
  std::function<void()> MouseMove;

  [[nodiscard]] double buttonID() const { return identity_; }
  /// Width of the caption in layout pixels.
  [[nodiscard]] int getLabelWidth() const;
  /// Back to the normal colour, unless disabled.
  void unColor();

  [[nodiscard]] QString Caption() const { return caption_; }
  void setCaption(const QString& caption);
  [[nodiscard]] const std::string& Click_Sound() const { return clickSound_; }
  void setClick_Sound(std::string effect) { clickSound_ = std::move(effect); }
  [[nodiscard]] QString Color_Style() const { return colorStyle_; }
  /// "Slate", "Ember" or "Ember_Menu"; another style keeps the colours.
  void setColor_Style(const QString& style);
  [[nodiscard]] bool Enabled() const { return isEnabled(); }
  void setEnabled(bool enabled);
  [[nodiscard]] QFont Font() const { return font(); }
  [[nodiscard]] int LabelOffset() const { return labelOffset_; }
  void setLabelOffset(int pixels);
  /// Takes "caption", "Click_Sound", "Color_Style", "enabled", "font" and "LabelOffset".
  void ReadProperties(const PropertyBag& bag);

  /// The colour of caption and border at this moment.
  [[nodiscard]] QColor Color() const { return color_; }
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Paint(const QColor& color);
  void DoClick();

  ButtonContext& context_;
  const double identity_;
  QColor normal_;
  QColor hover_;
  QColor pressed_;
  QColor disabled_;
  QColor color_;
  QString caption_;
  QString colorStyle_;
  std::string clickSound_ = "click";
  int labelOffset_ = 0;
  bool hadFocus_ = false;  // when the click disabled it: the focus comes back with the enabling
};

}  // namespace kv
