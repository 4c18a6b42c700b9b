// Limits of this process that are lowered while an object lives.
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace kv::test {

class Limit {
 public:
  Limit(__rlimit_resource what, rlim_t value) : what_(what) {
    ::getrlimit(what_, &old_);
    const rlimit lowered{value, old_.rlim_max};
    ::setrlimit(what_, &lowered);
  }
  Limit(const Limit&) = delete;
  Limit& operator=(const Limit&) = delete;
  ~Limit() { ::setrlimit(what_, &old_); }

 private:
  __rlimit_resource what_;
  rlimit old_{};
};

/// No file may have more than `bytes` bytes: a disk that is full.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)), limit_(RLIMIT_FSIZE, bytes) {}
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() { std::signal(SIGXFSZ, handler_); }

 private:
  void (*handler_)(int);
  Limit limit_;
};

}  // namespace kv::test
