// One running copy of the program for each player data folder. Two people who share a machine have a folder
// each and do not get in each other's way; the mark of a copy that was killed keeps nobody out. A second
// start asks the running copy to come to the front.
#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <functional>
#include <string>

namespace kv {

class SingleInstance {
 public:
  /// Tries once to become the only copy for this folder, which must exist, for as long as the object lives.
  explicit SingleInstance(const std::string& dataFolder);

  /// True when another copy runs. A folder in which no mark can be left counts as free.
  [[nodiscard]] bool OtherRuns() const { return otherRuns_; }

  /// Calls `raise` whenever a second start asks for it, from the event loop. Without a place to listen the
  /// copy just stays where it is.
  void Listen(std::function<void()> raise);
  /// Asks the running copy to come to the front; half a second at most. False when nobody listens.
  [[nodiscard]] bool RaiseOther() const;

 private:
  void Asked(QLocalSocket& socket);

  QLockFile lock_;
  QString address_;
  bool otherRuns_;
  QLocalServer server_;
  std::function<void()> raise_;
};

}  // namespace kv
