// What the benchmarks of screens stand on.
#pragma once

#include <malloc.h>

#include <QApplication>

#include "platform/Folders.h"
#include "platform/QtOneThread.h"

namespace kv::bench {

/// Taken of the heap, in KB.
inline double HeapKb() {
  const struct mallinfo2 heap = ::mallinfo2();
  return static_cast<double>(heap.uordblks + heap.hblkhd) / 1024;
}

/// An application on a display that is not there, on which everything is drawn at twice its size.
struct DenseDisplay {
  DenseDisplay() : application((Prepare(), argc), nullptr) {}
  static void Prepare() {
    PaintOnOneThread();  // as the game does
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "2");
    qputenv("KV_ASSETS", QByteArray::fromStdString(ProgramFolder()));
  }
  int argc = 0;
  QApplication application;
};

}  // namespace kv::bench
