// Windows that are smaller than their layout. The toolkit's painter magnifies for dense screens but never
// reduces (it takes a ratio below 1 for 1), although sizes, positions and the pointer are right at any ratio:
// each window is therefore painted in its own pixels and the picture of it reduced.
#pragma once

#include <QObject>

namespace kv {

/// Watches the application's windows, boxes and tooltips from now on.
class QtShrunken final : public QObject {
 public:
  QtShrunken();
  /// Once the ratio of the windows that stand has changed.
  static void Refresh();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace kv
