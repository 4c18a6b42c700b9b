#include "platform/NewFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace kv {

NewFile::NewFile(std::string path) : path_(std::move(path)) {
  const int fd = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kNewFileMode);
  if (fd < 0) {
    claim_ = errno == EEXIST ? Claim::Exists : Claim::Refused;
    return;
  }
  claim_ = Claim::Made;
  struct stat info {};
  (void)::fstat(fd, &info);
  device_ = info.st_dev;
  file_ = info.st_ino;
  (void)::close(fd);
}

NewFile::~NewFile() {
  if (claim_ == Claim::Made && !Written()) (void)::unlink(path_.c_str());
}

bool NewFile::Written() const {
  struct stat info {};
  if (claim_ != Claim::Made || ::stat(path_.c_str(), &info) != 0) return false;
  return info.st_dev != device_ || info.st_ino != file_ || info.st_size > 0;
}

}  // namespace kv
