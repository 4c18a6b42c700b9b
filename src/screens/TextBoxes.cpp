#include "screens/TextBoxes.h"

#include <algorithm>

#include "presentation/WidgetSkin.h"

namespace kv {

void PlaceBox(Layout& layout, QStringView control, QLineEdit& box) {
  const PropertyBag bag = layout.bag(control);
  SkinWidget(box, bag);
  box.setToolTip(bag.text(u"tooltip"));
  layout.Place(control, box);
}

QString Trimmed(const QLineEdit& box) {
  QString text = box.text();
  while (text.endsWith(u' ')) text.chop(1);
  while (text.startsWith(u' ')) text.remove(0, 1);
  return text;
}

bool RemoveLeadingBlanks(QLineEdit& box) {
  const QString text = box.text();
  qsizetype blanks = 0;
  while (blanks < text.size() && text.at(blanks) == u' ') ++blanks;
  if (blanks == 0) return false;
  const int caret = box.cursorPosition() - static_cast<int>(blanks);
  box.setText(text.mid(blanks));
  box.setCursorPosition(std::max(caret, 0));
  return true;
}

}  // namespace kv
