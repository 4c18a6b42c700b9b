// The wager panel: the amount box, its button and the ways to fill it. It shows what the wager entry holds
// and hands every change back to it; what a stake means is decided elsewhere.
#pragma once

#include <QLineEdit>
#include <QWidget>
#include <functional>
#include <optional>

#include "campaign/WagerEntry.h"
#include "presentation/Layout.h"
#include "presentation/ctlButton.h"

class QLabel;

namespace kv {

class ctlWager final : public QWidget {
 public:
  /// Takes "ctlWager" and its parts from the layout. `context` and `entry` must outlive it.
  ctlWager(QWidget* parent, Layout& layout, ButtonContext& context, WagerEntry& entry);

  std::function<void()> WagerClick;
  std::function<void()> EndClick;

  /// Shows what the entry holds now.
  void Refresh();

  [[nodiscard]] QLineEdit& gettxtWager() { return *txtWager_; }
  [[nodiscard]] ctlButton& getcmdWager() { return *cmdWager_; }
  [[nodiscard]] ctlButton& getcmdEnd() { return *cmdEnd_; }
  [[nodiscard]] QLabel& getlblCredits() { return *lblCredits_; }
  [[nodiscard]] QLabel& getlblWagerInfo() { return *lblWagerInfo_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  ctlButton* NewButton(QStringView control, Layout& layout, const std::function<void()>& click);
  QLabel* NewFill(QStringView control, Layout& layout);
  void TextChanged();
  void ShowBox(const BoxText& box);

  ButtonContext& context_;
  WagerEntry& entry_;
  PropertyBag look_;
  QRect drgWTitlebar_;
  int highest_;                   // the title bar of the screen stays free
  std::optional<QPoint> grip_;    // where the drag bar is held
  QLabel* lblCredits_ = nullptr;  // children
  QLabel* lblWagerInfo_ = nullptr;
  QLineEdit* txtWager_ = nullptr;
  ctlButton* cmdWager_ = nullptr;
  ctlButton* cmdEnd_ = nullptr;
};

}  // namespace kv
