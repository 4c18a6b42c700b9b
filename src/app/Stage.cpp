#include "app/Stage.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QShortcut>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <utility>

#include "presentation/RoundWindow.h"
#include "presentation/Screen.h"

namespace kv {
namespace {

// With the chat below, in layout pixels. The factor is the same for all screens of a style: a window that
// changed it from screen to screen would make every text larger and smaller.
constexpr QSize kLargestSlate(800, 690);
constexpr QSize kLargestEmber(1024, 840);
// Of the room that there is, as much as a window takes that leaves the desktop in sight.
constexpr double kFirstShare = 0.7;
constexpr double kAsLaidOut = 1;

double StepBelow(double factor) {
  return std::floor(factor * 100 / kSizeStep) * kSizeStep / 100;
}

/// The size that nobody has chosen yet: as laid out, smaller where that is not whole, larger on a desktop
/// where it would be a stamp.
double FirstFactor(double fitting) {
  if (fitting < kAsLaidOut) return fitting;
  return std::max(kAsLaidOut, StepBelow(fitting * kFirstShare));
}

/// The top left corner of a window with its middle at `centre`, moved so far that it lies in `area`. Of one
/// that is larger the right and lower parts stay outside: its title bar is at the top.
QPoint InArea(QPoint centre, QSize size, QRect area) {
  const QPoint corner = centre - QRect({}, size).center();
  const QPoint last = area.bottomRight() - QRect({}, size).bottomRight();
  return {std::max(std::min(corner.x(), last.x()), area.left()),
          std::max(std::min(corner.y(), last.y()), area.top())};
}

/// Off screen nobody cuts or holds a window, and the toolkit would only complain.
bool HasDesktop() {
  return QGuiApplication::platformName() != QStringLiteral("offscreen");
}

}  // namespace

Stage::Stage(QtSizeFactor* sizes) : sizes_(sizes) {
  setObjectName(QStringLiteral("Stage"));
  setWindowFlag(Qt::FramelessWindowHint);
  setAttribute(Qt::WA_TranslucentBackground);
  setFocusPolicy(Qt::NoFocus);
  setInterfaceStyle("Slate");
  // Not as a key of its own: a button that has the focus would take Enter first.
  for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
    auto* shortcut = new QShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(key)), this);
    connect(shortcut, &QShortcut::activated, this, [this] { setFullScreen(!full_); });
  }
}

void Stage::setInterfaceStyle(std::string_view style) {
  const bool ember = style == "Ember";
  largest_ = ember ? kLargestEmber : kLargestSlate;
  QPalette ground = palette();
  ground.setColor(QPalette::Window, ember ? QColor(12, 8, 4) : QColor(3, 7, 12));
  setPalette(ground);
}

void Stage::Show(Screen& screen) {
  if (screen_ != nullptr) screen_->removeEventFilter(this);
  screen_ = &screen;
  content_ = &screen;
  screen.setParent(this);
  screen.clearMask();  // its own, as a window
  screen.installEventFilter(this);
  setWindowTitle(screen.windowTitle());
  kept_ = {};
  Reshape();
  show();
  windowHandle()->removeEventFilter(this);
  windowHandle()->installEventFilter(this);
}

void Stage::Keep() {
  if (screen_ != nullptr && screen_->isVisible()) kept_ = screen_->grab();
}

// --- Size ------------------------------------------------------------------------------------------------

const QScreen* Stage::Desktop() const {
  return isVisible() ? QWidget::screen() : QGuiApplication::primaryScreen();
}

double Stage::FittingFactor(QSizeF area) const {
  return std::min(area.width() / largest_.width(), area.height() / largest_.height());
}

double Stage::Factor() const {
  const QScreen* desktop = Desktop();
  if (sizes_ == nullptr || desktop == nullptr) return kAsLaidOut;
  if (full_) return FittingFactor(sizes_->WholeArea(*desktop));
  const double fitting = FittingFactor(sizes_->WorkArea(*desktop));
  if (!percent_) return FirstFactor(fitting);
  return *percent_ == kFitSize ? fitting : *percent_ / 100.0;
}

int Stage::ShownPercent() const {
  return static_cast<int>(std::lround(Factor() * 100));
}

void Stage::setSizePercent(std::optional<int> percent) {
  percent_ = percent;
  if (percent_ && *percent_ != kFitSize) percent_ = std::clamp(*percent_, kLeastSize, kMostSize);
  Reshape();
  if (Changed) Changed();
}

void Stage::StepSize(int direction) {
  full_ = false;
  const double steps = Factor() * 100 / kSizeStep;
  const double next = direction > 0 ? std::floor(steps) + 1 : std::ceil(steps) - 1;
  setSizePercent(static_cast<int>(next) * kSizeStep);
}

void Stage::setFits(bool fits) {
  setSizePercent(fits ? std::optional(kFitSize) : std::nullopt);
}

void Stage::setFullScreen(bool full) {
  full_ = full;
  Reshape();
  if (Changed) Changed();
}

// --- Shape and place -------------------------------------------------------------------------------------

void Stage::Reshape() {
  if (screen_ == nullptr) return;
  placing_ = true;
  SetFactor();
  if (full_) {
    clearMask();
    setMinimumSize(0, 0);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    setWindowState(windowState() | Qt::WindowFullScreen);
    if (const QScreen* desktop = Desktop()) setGeometry(desktop->geometry());
  } else {
    setWindowState(windowState() & ~Qt::WindowFullScreen);
    if (HasDesktop()) {
      setFixedSize(screen_->size());
    } else {
      resize(screen_->size());
    }
    PlaceWindow();
    clearMask();  // or one that is the same in layout pixels would stay as it was
    if (HasDesktop()) setMask(RoundedShape(size(), screen_->corners() / 2));
  }
  PlaceScreen();
  placing_ = false;
  update();
}

void Stage::SetFactor() {
  if (sizes_ == nullptr || sizes_->factor() == Factor()) return;
  sizes_->Set(Factor());
  if (FactorChanged) FactorChanged();
}

void Stage::PlaceScreen() {
  if (screen_ != nullptr) screen_->move((width() - screen_->width()) / 2, (height() - screen_->height()) / 2);
}

void Stage::PlaceWindow() {
  const QScreen* desktop = Desktop();
  if (desktop == nullptr) return;
  const QRect whole = desktop->geometry();
  const QPointF centre(whole.x() + place_.x() * whole.width(), whole.y() + place_.y() * whole.height());
  placed_ = QRect(InArea(centre.toPoint(), size(), desktop->availableGeometry()), size());
  setGeometry(placed_);
  // What the window system has been told is in its own pixels, and those have changed with the factor.
  if (windowHandle() != nullptr) windowHandle()->setGeometry(placed_);
}

void Stage::setPlace(QPointF place) {
  place_ = {std::clamp(place.x(), 0.0, 1.0), std::clamp(place.y(), 0.0, 1.0)};
  if (!full_) Reshape();
}

void Stage::Raise() {
  if (isMinimized()) setWindowState(windowState() & ~Qt::WindowMinimized);
  raise();
  activateWindow();
}

// --- Events ----------------------------------------------------------------------------------------------

bool Stage::event(QEvent* event) {
  // The largest factor of a full screen is known once the window is on it.
  if (event->type() == QEvent::ScreenChangeInternal && !placing_) Reshape();
  return QWidget::event(event);
}

/// The second half of a double-click is meant for the screen that the first half has closed, and not for what
/// lies under the pointer now.
bool Stage::MeantForTheLastScreen(const QMouseEvent& event) {
  if (event.type() == QEvent::MouseButtonRelease) return std::exchange(swallowed_, false);
  const bool again =
      event.timestamp() - press_.time < static_cast<quint64>(QApplication::doubleClickInterval());
  const bool near =
      (event.globalPosition().toPoint() - press_.point).manhattanLength() < QApplication::startDragDistance();
  swallowed_ = press_.screen != nullptr && press_.screen != screen_ && again && near;
  if (!swallowed_) press_ = {screen_, event.globalPosition().toPoint(), event.timestamp()};
  return swallowed_;
}

bool Stage::eventFilter(QObject* watched, QEvent* event) {
  if (watched == windowHandle()) {
    const bool click = event->type() == QEvent::MouseButtonPress ||
                       event->type() == QEvent::MouseButtonDblClick ||
                       event->type() == QEvent::MouseButtonRelease;
    return click && MeantForTheLastScreen(*static_cast<QMouseEvent*>(event));
  }
  if (watched == content_ && event->type() == QEvent::WindowTitleChange) {
    setWindowTitle(static_cast<QWidget*>(watched)->windowTitle());
  }
  if (watched == content_ && event->type() == QEvent::Resize && !placing_) Reshape();
  return QWidget::eventFilter(watched, event);
}

void Stage::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (screen_ != nullptr && !screen_->closing()) screen_->LeaveProgram();
}

void Stage::keyPressEvent(QKeyEvent* event) {
  const bool control = event->modifiers().testFlag(Qt::ControlModifier);
  if (event->key() == Qt::Key_F1) {
    if (Help) Help();
  } else if (event->key() == Qt::Key_F11) {
    setFullScreen(!full_);
  } else if (control && (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Equal)) {
    StepSize(1);
  } else if (control && event->key() == Qt::Key_Minus) {
    StepSize(-1);
  } else if (control && event->key() == Qt::Key_0) {
    full_ = false;
    setSizePercent(100);
  } else {
    QWidget::keyPressEvent(event);
  }
}

void Stage::moveEvent(QMoveEvent* event) {
  QWidget::moveEvent(event);
  const QScreen* desktop = Desktop();
  // What was pushed aside by the edge of the work area goes back where there is room again.
  if (placing_ || full_ || desktop == nullptr || !isVisible() || pos() == placed_.topLeft()) return;
  const QRect whole = desktop->geometry();
  const QPointF centre = geometry().center() - whole.topLeft();
  place_ = {std::clamp(centre.x() / whole.width(), 0.0, 1.0),
            std::clamp(centre.y() / whole.height(), 0.0, 1.0)};
  if (Changed) Changed();
}

void Stage::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (full_) painter.fillRect(rect(), palette().color(QPalette::Window));
  if (!kept_.isNull() && screen_ != nullptr) painter.drawPixmap(screen_->pos(), kept_);
}

void Stage::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  PlaceScreen();
}

}  // namespace kv
