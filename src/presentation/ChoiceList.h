// A list from which one entry is chosen. A screen reader selects an entry without moving to it, as nobody
// does with keys or pointer: what is selected is what counts.
#pragma once

#include <QListWidget>

namespace kv {

/// The entry that is selected becomes the current one, by whichever way that happens.
inline void LetCurrentFollowSelection(QListWidget& list) {
  QObject::connect(&list, &QListWidget::itemSelectionChanged, &list, [&list] {
    const QList<QListWidgetItem*> chosen = list.selectedItems();
    if (chosen.size() == 1 && chosen.front() != list.currentItem()) list.setCurrentItem(chosen.front());
  });
}

}  // namespace kv
