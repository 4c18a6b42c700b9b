#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "platform/Memory.h"

namespace kv {
namespace {

/// Kilobytes of files that stand in this process's memory.
int MappedFiles() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    if (word != "RssFile:") continue;
    int kilobytes = 0;
    status >> kilobytes;
    return kilobytes;
  }
  return 0;
}

TEST(Memory, CleanPagesGoAndComeBackAsTheyAreNeeded) {
  const int before = MappedFiles();
  ReturnCleanPages();
  const int after = MappedFiles();
  EXPECT_LT(after, before / 2);
  EXPECT_GT(after, 0);
}

}  // namespace
}  // namespace kv
