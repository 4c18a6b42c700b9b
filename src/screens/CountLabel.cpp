#include "screens/CountLabel.h"

#include <QPainter>
#include <QStyle>

namespace kv {

QString CountLabel::Unbroken(QString text) {
  for (qsizetype i = 1; i < text.size(); ++i) {
    if (text.at(i) == u' ' && text.at(i - 1).isDigit()) text[i] = QChar(QChar::Nbsp);
  }
  return text;
}

void CountLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()) | Qt::TextWordWrap, palette(),
                        isEnabled(), Unbroken(text()), QPalette::WindowText);
}

}  // namespace kv
