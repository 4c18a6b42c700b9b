// The one window of the program: the screens follow each other on it. It gives the open screen its shape, its
// place and its size on the desktop, and stays where the player has put it. It knows nothing of what a screen
// is for.
#pragma once

#include <QPixmap>
#include <QPointF>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <optional>

#include "platform/QtSizeFactor.h"
#include "presentation/WindowSize.h"
#include "profile/Settings.h"

namespace kv {

class Screen;

class Stage final : public QWidget, public WindowSize {
 public:
  /// `sizes` must outlive it; null: everything stays as large as its layout says.
  explicit Stage(QtSizeFactor* sizes);

  /// Takes the screen in, which it does not own, and is as large as it. The screen opens itself.
  void Show(Screen& screen);
  /// The open screen is about to go and the next one comes in a moment: its picture stays meanwhile.
  void Keep();
  /// The style outside a screen that does not fill the desktop, and the size of its largest screen.
  void setInterfaceStyle(std::string_view style);

  /// kFitSize, or a percentage; without a choice one that suits the desktop. Takes effect at once.
  void setSizePercent(std::optional<int> percent);
  [[nodiscard]] std::optional<int> sizePercent() const { return percent_; }
  [[nodiscard]] int ShownPercent() const override;
  [[nodiscard]] bool fits() const override { return percent_ == kFitSize; }
  void StepSize(int direction) override;
  void setFits(bool fits) override;
  /// Everything as large as the desktop's screen holds, on a dark ground.
  void setFullScreen(bool full) override;
  [[nodiscard]] bool fullScreen() const override { return full_; }
  /// The middle of the window, from 0 to 1 of its desktop's screen in each direction.
  void setPlace(QPointF place);
  [[nodiscard]] QPointF place() const { return place_; }

  /// Comes to the front and takes the keys.
  void Raise();

  /// The player asks for the rules.
  std::function<void()> Help;
  /// Everything is drawn at another factor from now on.
  std::function<void()> FactorChanged;
  /// The player has changed size, full screen or place.
  std::function<void()> Changed;

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  [[nodiscard]] const QScreen* Desktop() const;
  [[nodiscard]] double Factor() const;
  [[nodiscard]] double FittingFactor(QSizeF area) const;
  [[nodiscard]] bool MeantForTheLastScreen(const QMouseEvent& event);
  void Reshape();
  void SetFactor();
  void PlaceScreen();
  void PlaceWindow();

  QtSizeFactor* sizes_;
  QPointer<Screen> screen_;
  const QObject* content_ = nullptr;  // the same, only compared: events come while it is being destroyed, too
  QSize largest_;                     // screen of the style, in layout pixels
  QPixmap kept_;
  QPointF place_{0.5, 0.5};
  QRect placed_;  // what it has come to, within the work area
  std::optional<int> percent_;
  bool full_ = false;
  struct Press {
    const Screen* screen = nullptr;  // that was open; only compared
    QPoint point;                    // on the desktop
    quint64 time = 0;                // milliseconds
  };
  Press press_;
  bool swallowed_ = false;
  bool placing_ = false;  // the program moves the window, not the player
};

}  // namespace kv
