#include "platform/Memory.h"

#include <malloc.h>

namespace kv {
namespace {

constexpr int kLargeBlock = 64 << 10;  // bytes; a card's face is smaller

}  // namespace

void ReturnLargeBlocks() {
  // Set by hand it stays: by itself it grows with every large block that is freed.
  static_cast<void>(::mallopt(M_MMAP_THRESHOLD, kLargeBlock));
}

}  // namespace kv
