// The bar across the top of a borderless window: its caption, and the ways to drag, minimise and close it.
// What closing means is the owning window's business.
#pragma once

#include <QWidget>
#include <functional>

#include "platform/QtPropertyBag.h"
#include "presentation/ButtonContext.h"
#include "presentation/WindowDrag.h"

class QAbstractButton;

namespace kv {

class TitleButton;

class ctlTitlebar final : public QWidget {
 public:
  /// `context` must outlive it. The owning window is the window it lies in.
  ctlTitlebar(QWidget* parent, ButtonContext& context);

  /// The close button was clicked.
  std::function<void()> Quit;
  std::function<void()> MouseMove;

  /// The close button back to idle. Call it when the pointer moves over the window's background.
  void unColorQuit();

  [[nodiscard]] QString Caption() const { return caption_; }
  void setCaption(const QString& caption);
  [[nodiscard]] bool Enabled() const { return isEnabled(); }
  [[nodiscard]] QFont Font() const { return font(); }
  [[nodiscard]] QColor Border_Color() const { return borderColor_; }
  void setBorder_Color(const QColor& color);
  /// Takes "font", "caption", "enabled", "border_color" and "minimize" (shown before a player is loaded).
  void ReadProperties(const PropertyBag& bag);

  /// Lays its parts out again; shows the minimise label by the option of the player, once there is one.
  void Relayout();
  /// The close and the minimise button are not reached by Tab unless this is set.
  void setButtonFocus(Qt::FocusPolicy policy);

  /// The parts, for the keyboard and for tests.
  [[nodiscard]] QAbstractButton& cmdQuit() const;
  [[nodiscard]] QAbstractButton& cmdMini() const;
  /// The colour of the close button at this moment.
  [[nodiscard]] QColor QuitColor() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void PointerMoved();

  ButtonContext& context_;
  WindowDrag drag_;
  QString caption_;
  QColor borderColor_;
  TitleButton* quit_;  // children, owned by the bar
  TitleButton* mini_;
  bool miniInLayout_ = true;
};

}  // namespace kv
