#include "platform/QtOneThread.h"

#include <QThreadPool>
#include <atomic>

namespace {

std::atomic<bool> oneThread = false;

}  // namespace

namespace kv {

void PaintOnOneThread() {
  oneThread = true;
}

}  // namespace kv

/// The toolkit has no switch for it. But before it splits a fill it asks whether the thread at work is one of
/// the pool's own, which must not wait for its like; this answer stands before the library's when the program
/// is linked. Where a toolkit no longer asks, the fills are split as before.
bool QThreadPool::contains(const QThread* /*thread*/) const {
  return oneThread;
}
