#include "platform/QtOneThread.h"

#include <QThreadPool>

namespace kv {

void PaintOnOneThread() {
  QThreadPool::globalInstance()->setMaxThreadCount(0);
}

}  // namespace kv

/// The toolkit has no switch for it, and would wake a thread of an empty pool, too. But before it splits a
/// fill it asks whether the thread at work is one of the pool's own, which must not wait for its like; this
/// answer stands before the library's when the program is linked. Where a toolkit no longer asks, the fills
/// are split as before.
bool QThreadPool::contains(const QThread* /*thread*/) const {
  return maxThreadCount() == 0;
}
