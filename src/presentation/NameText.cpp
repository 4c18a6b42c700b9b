#include "presentation/NameText.h"

#include <QFontMetrics>
#include <algorithm>

namespace kv {
namespace {

// Smaller letters than these would not be read any more.
constexpr double kSmallestPart = 0.68;  // of the font's size
constexpr int kSmallest = 10;           // layout pixels

// Asked of what cuts it: a name that just fits by its width may still be cut.
QString Cut(const QFont& font, const QString& text, int width) {
  return QFontMetrics(font).elidedText(text, Qt::ElideRight, width);
}

}  // namespace

void ShowName(QLabel& label, const PropertyBag& look, const QString& name) {
  QFont font = look.font(u"font", label.font());
  const int least = std::max(kSmallest, qRound(font.pixelSize() * kSmallestPart));
  const int room = label.contentsRect().width();
  while (font.pixelSize() > least && Cut(font, name, room) != name) font.setPixelSize(font.pixelSize() - 1);
  label.setFont(font);
  label.setText(Cut(font, name, room));
  const bool cut = label.text() != name;
  label.setToolTip(cut ? name.toHtmlEscaped() : QString());  // a name is never read as markup
  // A label lets the pointer through, unless it has something to tell it.
  label.setAttribute(Qt::WA_TransparentForMouseEvents, !cut);
  label.setMouseTracking(cut);
}

}  // namespace kv
