#include "presentation/TipSkin.h"

#include <QPalette>
#include <QToolTip>

#include "platform/QtPropertyBag.h"

namespace kv {

void SkinTips(std::string_view style) {
  const bool ember = style == "Ember";
  QPalette palette = QToolTip::palette();
  palette.setColor(QPalette::ToolTipBase, ember ? QColor(36, 25, 10) : QColor(4, 22, 40));
  palette.setColor(QPalette::ToolTipText, ember ? QColor(245, 235, 205) : QColor(230, 245, 255));
  QToolTip::setPalette(palette);
  QFont font = FontOf(QStringLiteral("BankGothic Lt BT"));
  font.setPixelSize(13);
  QToolTip::setFont(font);
}

}  // namespace kv
