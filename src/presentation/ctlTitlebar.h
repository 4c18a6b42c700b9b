// The bar across the top of a borderless window: its caption, and the ways to drag, minimise and close it.
// What closing means is the owning window's business.
#pragma once

#include <QWidget>
#include <functional>

#include "platform/QtPropertyBag.h"
#include "presentation/ButtonContext.h"

class QAbstractButton;
class QLabel;

namespace kv {

class TitleButton;
class TitleDrag;

class ctlTitlebar final : public QWidget {
 public:
  /// `context` must outlive it. The owning window is the window it lies in.
  ctlTitlebar(QWidget* parent, ButtonContext& context);

  /// The close button was clicked.
  std::function<void()> Quit;
  std::function<void()> MouseMove;
  /// The help button was clicked; it is shown once this is set and the bar is laid out again.
  std::function<void()> Help;

  /// The close button back to idle. Call it when the pointer moves over the window's background.
  void unColorQuit();

  [[nodiscard]] QString Caption() const;
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

  /// The parts, for the keyboard and for tests: what is written on the bar, the area over it by which the
  /// window is dragged, and the buttons at its right end.
  [[nodiscard]] QLabel& lblTitlebar() const { return *lblTitlebar_; }
  [[nodiscard]] QWidget& drgTitlebar() const;
  [[nodiscard]] QAbstractButton& cmdQuit() const;
  [[nodiscard]] QAbstractButton& cmdMini() const;
  [[nodiscard]] QAbstractButton& cmdHelp() const;
  /// The colour of the close button at this moment.
  [[nodiscard]] QColor QuitColor() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void ConnectParts();
  void PointerMoved();

  ButtonContext& context_;
  QColor borderColor_;
  QLabel* lblTitlebar_;  // children, owned by the bar; the later ones lie over the others
  TitleDrag* drgTitlebar_;
  TitleButton* quit_;
  TitleButton* mini_;
  TitleButton* help_;
  bool miniInLayout_ = true;
};

}  // namespace kv
