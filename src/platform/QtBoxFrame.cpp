#include "platform/QtBoxFrame.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QWindow>

#include "platform/QtPropertyBag.h"

namespace kv {
namespace {

// Logical pixels.
constexpr int kTitleHeight = 30;
constexpr int kMargin = 22;
constexpr int kCorners = 10;
constexpr int kSidesOfTitle = 24;

QFont TitleFont() {
  QFont font = FontOf(QStringLiteral("BankGothic Md BT"));
  font.setPixelSize(14);
  return font;
}

struct BoxColors {
  QColor top;     // of the plate
  QColor bottom;  // of the plate
  QColor band;    // behind the title
  QColor accent;
  QColor title;
  const char* sheet;
};

constexpr const char* kSlateSheet =
    "QLabel { color: #e6f5ff; font-family: 'BankGothic Md BT'; font-size: 14px; }"
    "QLineEdit { background: #02070d; color: #ffffff; border: 1px solid #0075b0; border-radius: 2px; "
    "padding: 5px;"
    "  font-family: 'BankGothic Md BT'; font-size: 14px; selection-background-color: #005a88; }"
    "QPushButton { background: #04141f; color: #00a9fb; border: 1px solid #0075b0; padding: 7px 22px;"
    "  font-family: 'BankGothic Md BT'; font-size: 14px; min-width: 60px; }"
    "QPushButton:hover, QPushButton:focus { background: #06283d; color: #7fd6ff; border-color: #00a9fb; }"
    "QPushButton:pressed { background: #0a3d5c; color: #ffffff; }";
constexpr const char* kEmberSheet =
    "QLabel { color: #ebe1be; font-family: 'BankGothic Md BT'; font-size: 15px; }"
    "QLineEdit { background: #0a0703; color: #ffffff; border: 1px solid #8a6a2c; border-radius: 2px; "
    "padding: 5px;"
    "  font-family: 'BankGothic Md BT'; font-size: 15px; selection-background-color: #6a4c14; }"
    "QPushButton { background: #1d140a; color: #e8c45c; border: 1px solid #8a6a2c; padding: 7px 22px;"
    "  font-family: 'BankGothic Md BT'; font-size: 15px; min-width: 60px; }"
    "QPushButton:hover, QPushButton:focus { background: #0c2a20; color: #5fe0b8; border-color: #1ab28c; }"
    "QPushButton:pressed { background: #124436; color: #ffffff; }";

const BoxColors& ColorsOf(const std::string& interfaceStyle) {
  static const BoxColors slate{QColor(10, 24, 38),  QColor(4, 11, 19),     QColor(0, 46, 74),
                               QColor(0, 169, 251), QColor(127, 214, 255), kSlateSheet};
  static const BoxColors ember{QColor(38, 27, 14),   QColor(16, 11, 6),     QColor(84, 58, 22),
                               QColor(196, 152, 66), QColor(255, 222, 140), kEmberSheet};
  return interfaceStyle == "Ember" ? ember : slate;
}

/// Paints the plate of the box that owns it and lets its title line be dragged.
class BoxFrame final : public QObject {
 public:
  BoxFrame(QDialog& box, const BoxColors& colors) : QObject(&box), box_(box), colors_(colors) {
    box.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      Paint();
      return true;
    }
    if (event->type() == QEvent::MouseButtonPress) Drag(*static_cast<QMouseEvent*>(event));
    return QObject::eventFilter(watched, event);
  }

 private:
  void Paint() {
    QPainter painter(&box_);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = QRectF(box_.rect()).adjusted(1, 1, -1, -1);
    QPainterPath plate;
    plate.addRoundedRect(area, kCorners, kCorners);
    QLinearGradient gradient(area.topLeft(), area.bottomLeft());
    gradient.setColorAt(0, colors_.top);
    gradient.setColorAt(1, colors_.bottom);
    painter.fillPath(plate, gradient);
    const QRectF band(0, 0, box_.width(), kTitleHeight);
    painter.save();
    painter.setClipPath(plate);
    painter.fillRect(band, colors_.band);
    painter.restore();
    painter.setPen(QPen(colors_.accent, 1));
    painter.drawLine(band.bottomLeft(), band.bottomRight());
    painter.setPen(QPen(colors_.accent, 2));
    painter.drawPath(plate);
    painter.setFont(TitleFont());
    painter.setPen(colors_.title);
    painter.drawText(band, Qt::AlignCenter, box_.windowTitle());
  }
  void Drag(const QMouseEvent& press) {
    if (press.button() != Qt::LeftButton || press.position().y() >= kTitleHeight) return;
    if (box_.windowHandle() != nullptr) box_.windowHandle()->startSystemMove();
  }

  QDialog& box_;
  const BoxColors& colors_;
};

}  // namespace

void FrameBox(QDialog& box, const std::string& interfaceStyle) {
  const BoxColors& colors = ColorsOf(interfaceStyle);
  box.setStyleSheet(QString::fromLatin1(colors.sheet));
  box.setWindowFlag(Qt::FramelessWindowHint);
  box.setAttribute(Qt::WA_TranslucentBackground);  // outside its round corners
  new BoxFrame(box, colors);
  static_cast<void>(box.sizeHint());  // a box for text makes its layout only when it is measured
  for (auto* button : box.findChildren<QAbstractButton*>()) button->setIcon({});
  if (box.layout() == nullptr) return;
  box.layout()->setContentsMargins(kMargin, kTitleHeight + kMargin, kMargin, kMargin);
  // A short text must not cut the title.
  const int title = QFontMetrics(TitleFont()).horizontalAdvance(box.windowTitle()) + 2 * kSidesOfTitle;
  if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
    grid->addItem(new QSpacerItem(title - 2 * kMargin, 0), grid->rowCount(), 0, 1, grid->columnCount());
  }
}

}  // namespace kv
