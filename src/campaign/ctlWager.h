// The wager panel: the amount box, its button and the ways to fill it. It shows what the wager entry holds
// and hands every change back to it; what a stake means is decided elsewhere.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QWidget>
#include <functional>

#include "campaign/WagerEntry.h"
#include "presentation/Layout.h"
#include "presentation/PanelDrag.h"
#include "presentation/ctlButton.h"

namespace kv {

class ctlWager final : public QWidget {
 public:
  /// Takes "ctlWager" and its parts from the layout. `context` and `entry` must outlive it.
  ctlWager(QWidget* parent, Layout& layout, ButtonContext& context, WagerEntry& entry);

  std::function<void()> WagerClick;
  std::function<void()> EndClick;
  /// The credits label and the info label were clicked: each may fill the amount.
  std::function<void()> CreditsClick;
  std::function<void()> WagerInfoClick;

  /// "Slate" or "Ember": the layout that the panel has; any other text keeps the style.
  [[nodiscard]] const QString& Style() const { return style_; }
  void setStyle(const QString& style);

  /// Shows what the entry holds now.
  void Refresh();
  /// The same after the amount was filled in; the caret goes where the box says, and typing goes on there.
  void ShowFilled(const BoxText& box);

  [[nodiscard]] QLineEdit& gettxtWager() { return *txtWager_; }
  [[nodiscard]] ctlButton& getcmdWager() { return *cmdWager_; }
  [[nodiscard]] ctlButton& getcmdEnd() { return *cmdEnd_; }
  [[nodiscard]] QLabel& getlblCredits();
  [[nodiscard]] QLabel& getlblWagerInfo();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  ctlButton* NewButton(const std::function<void()>& click);
  class Fill;
  Fill* NewFill(const std::function<void()>& fill);
  void TakeLayout(Layout& layout);
  void TextChanged();
  void ShowBox(const BoxText& box);

  ButtonContext& context_;
  WagerEntry& entry_;
  QString style_ = QStringLiteral("Slate");
  PropertyBag look_;
  QRect drgWTitlebar_;
  int highest_ = 0;  // the title bar of the screen stays free
  PanelDrag drag_;
  QLabel* lblPrompt_ = nullptr;  // children
  Fill* lblCredits_ = nullptr;
  Fill* lblWagerInfo_ = nullptr;
  QLineEdit* txtWager_ = nullptr;
  ctlButton* cmdWager_ = nullptr;
  ctlButton* cmdEnd_ = nullptr;
};

}  // namespace kv
