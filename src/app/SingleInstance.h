// One running copy of the program for each player data folder. Two people who share a machine have a folder
// each and do not get in each other's way; the mark of a copy that was killed keeps nobody out.
#pragma once

#include <QLockFile>
#include <string>

namespace kv {

class SingleInstance {
 public:
  /// Tries once to become the only copy for this folder, which must exist, for as long as the object lives.
  explicit SingleInstance(const std::string& dataFolder);

  /// True when another copy runs. A folder in which no mark can be left counts as free.
  [[nodiscard]] bool OtherRuns() const { return otherRuns_; }

 private:
  QLockFile lock_;
  bool otherRuns_;
};

}  // namespace kv
