#include "app/SingleInstance.h"

#include <QString>

namespace kv {
namespace {

constexpr const char* kLockFile = "/.kelm-vantri.lock";

}  // namespace

SingleInstance::SingleInstance(const std::string& dataFolder)
    : lock_(QString::fromStdString(dataFolder + kLockFile)), otherRuns_(false) {
  // However long a copy has been running, only the end of its process frees the folder.
  lock_.setStaleLockTime(0);
  otherRuns_ = !lock_.tryLock(0) && lock_.error() == QLockFile::LockFailedError;
}

}  // namespace kv
