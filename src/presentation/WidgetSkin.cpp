#include "presentation/WidgetSkin.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSlider>
#include <QStringList>
#include <QTableView>
#include <QTextEdit>

namespace kv {
namespace {

constexpr QColor kText(230, 245, 255);
constexpr QColor kFill(2, 14, 26);
constexpr int kFillStrength = 215;
constexpr QColor kBorder(0, 110, 165);
constexpr QColor kAccent(0, 169, 251);
constexpr QColor kSelect(0, 84, 132);
constexpr QColor kSelectText(255, 255, 255);
constexpr QColor kDisabled(136, 144, 150);

QString Css(const QColor& color) {
  return QStringLiteral("rgba(%1,%2,%3,%4)")
      .arg(color.red())
      .arg(color.green())
      .arg(color.blue())
      .arg(color.alpha());
}

struct Look {
  explicit Look(const PropertyBag& bag)
      : text(Css(bag.colour(u"color", kText))),
        border(Css(bag.colour(u"border", kBorder))),
        accent(Css(bag.colour(u"accent", kAccent))),
        select(Css(bag.colour(u"select", kSelect))),
        selectText(Css(bag.colour(u"select_color", kSelectText))),
        disabled(Css(bag.colour(u"disabled", kDisabled))),
        frame(QStringLiteral("%1px").arg(bag.number(u"border_width", 1))),
        corners(QStringLiteral("%1px").arg(bag.number(u"corners", 2))) {
    if (const int height = bag.number(u"row_height"); height > 0) {
      row = QStringLiteral("height:%1px").arg(height);
    }
    QColor ground = bag.colour(u"fill", kFill);
    ground.setAlpha(bag.number(u"fill_strength", kFillStrength));
    fill = Css(ground);
    ground.setAlpha(255);
    solid = Css(ground);
  }

  [[nodiscard]] QString Box(const QString& type) const {
    return QStringLiteral(
               "%1{color:%2;background:%3;border:%4 solid %5;border-radius:%6;"
               "selection-background-color:%7;selection-color:%8;lineedit-password-character:35;outline:0}"
               "%1:focus{border-color:%9}")
               .arg(type, text, fill, frame, border, corners, select, selectText, accent) +
           QStringLiteral("%1:disabled{color:%2;border-color:%2}").arg(type, disabled);
  }
  [[nodiscard]] QString List(const QString& type) const {
    return Box(type) + QStringLiteral(
                           "%1{activate-on-singleclick:0}"
                           "%1::item{padding:0 4px;border:0;%5}"
                           "%1::item:selected{background:%2;color:%3}"
                           "%1::item:selected:disabled{background:transparent;color:%4}")
                           .arg(type, select, selectText, disabled, row);
  }
  [[nodiscard]] QString Table() const {
    return List(QStringLiteral("QTableView")) +
           QStringLiteral(
               "QHeaderView{background:transparent;border:0}"
               "QHeaderView::section{color:%1;background:transparent;border:0;border-bottom:1px solid %2;"
               "padding:0 4px;height:20px}")
               .arg(accent, border);
  }
  [[nodiscard]] QString ScrollBar() const {
    return QStringLiteral(
               "QScrollBar:vertical{background:transparent;width:10px;margin:0}"
               "QScrollBar::handle:vertical{background:%1;min-height:18px;margin:2px;border-radius:3px}"
               "QScrollBar::handle:vertical:hover{background:%2}"
               "QScrollBar::add-line,QScrollBar::sub-line{height:0}"
               "QScrollBar::add-page,QScrollBar::sub-page{background:transparent}")
        .arg(border, accent);
  }
  // A solid block for on, an empty frame for off: seen by its shape, not only by its colour.
  [[nodiscard]] QString Mark(const QString& type, const QString& round) const {
    return QStringLiteral(
               "%1{color:%2;background:transparent;spacing:6px}"
               "%1:focus{color:%3}"
               "%1:disabled{color:%4}"
               "%1::indicator{width:7px;height:7px;padding:2px;border:1px solid %5;border-radius:%6;"
               "background-color:%7;background-clip:padding}")
               .arg(type, text, accent, disabled, border, round, fill) +
           QStringLiteral(
               "%1::indicator:hover,%1::indicator:focus{border-color:%2}"
               "%1::indicator:checked{background-color:%2;background-clip:border;border-color:%2}"
               "%1::indicator:checked:hover,%1::indicator:checked:focus{border-color:%4}"
               "%1::indicator:disabled{border-color:%3}"
               "%1::indicator:checked:disabled{background-color:%3}")
               .arg(type, accent, disabled, text);
  }
  [[nodiscard]] QString Combo() const {
    return Box(QStringLiteral("QComboBox")) +
           QStringLiteral(
               "QComboBox{padding-left:4px}"
               "QComboBox::drop-down{border:0;width:16px}"
               "QComboBox QAbstractItemView{color:%1;background:%2;border:1px solid %3;"
               "selection-background-color:%4;selection-color:%5;outline:0}")
               .arg(text, solid, accent, select, selectText);
  }

  // The way behind the handle is filled, so that the value is seen without a look at the colours.
  [[nodiscard]] QString Slider() const {
    return QStringLiteral(
               "QSlider{background:transparent}"
               "QSlider::groove:horizontal{height:4px;background:%1;border:1px solid %2;border-radius:2px}"
               "QSlider::sub-page:horizontal{background:%2;border:1px solid %2;border-radius:2px}"
               "QSlider::handle:horizontal{width:8px;margin:-6px 0;background:%3;border:1px solid "
               "%2;border-radius:%4}")
               .arg(fill, border, text, corners) +
           QStringLiteral(
               "QSlider::handle:horizontal:hover,QSlider::handle:horizontal:focus{background:%1;border-color:"
               "%2}"
               "QSlider::handle:horizontal:disabled{background:%3}")
               .arg(accent, text, disabled);
  }

  QString text;
  QString border;
  QString accent;
  QString select;
  QString selectText;
  QString disabled;
  QString frame;
  QString corners;
  QString row;
  QString fill;
  QString solid;
};

QString SheetFor(const QWidget& widget, const Look& look) {
  if (qobject_cast<const QLineEdit*>(&widget) != nullptr) {
    return look.Box(QStringLiteral("QLineEdit")) + QStringLiteral("QLineEdit{padding:0 4px}");
  }
  if (qobject_cast<const QPlainTextEdit*>(&widget) != nullptr) {
    return look.Box(QStringLiteral("QPlainTextEdit")) + look.ScrollBar();
  }
  if (qobject_cast<const QTextEdit*>(&widget) != nullptr) {
    return look.Box(QStringLiteral("QTextEdit")) + look.ScrollBar();
  }
  if (qobject_cast<const QTableView*>(&widget) != nullptr) return look.Table() + look.ScrollBar();
  if (qobject_cast<const QAbstractItemView*>(&widget) != nullptr) {
    return look.List(QStringLiteral("QAbstractItemView")) + look.ScrollBar();
  }
  if (qobject_cast<const QComboBox*>(&widget) != nullptr) return look.Combo() + look.ScrollBar();
  if (qobject_cast<const QSlider*>(&widget) != nullptr) return look.Slider();
  if (widget.inherits("QRadioButton")) {
    return look.Mark(QStringLiteral("QRadioButton"), QStringLiteral("6px"));
  }
  if (qobject_cast<const QAbstractButton*>(&widget) != nullptr) {
    return look.Mark(QStringLiteral("QCheckBox"), look.corners);
  }
  return QStringLiteral("color:%1;background:%2").arg(look.text, look.fill);
}

}  // namespace

void SkinWidget(QWidget& widget, const PropertyBag& bag) {
  widget.setFont(bag.font(u"font", widget.font()));
  widget.setStyleSheet(SheetFor(widget, Look(bag)));
}

}  // namespace kv
