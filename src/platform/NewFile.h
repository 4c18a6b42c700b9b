// A file name that is taken before the file is written, so that a file which somebody else has made meanwhile
// can never be replaced.
#pragma once

#include <sys/types.h>

#include <string>

namespace kv {

inline constexpr mode_t kNewFileMode = 0666;  // less the user's mask

class NewFile {
 public:
  enum class Claim { Made, Exists, Refused };

  /// Makes an empty file of exactly this name, unless anything of that name exists (a link counts).
  explicit NewFile(std::string path);
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  /// Removes the file if it is still the empty one.
  ~NewFile();

  [[nodiscard]] Claim claim() const { return claim_; }
  /// True once something else than the empty file lies there.
  [[nodiscard]] bool Written() const;

 private:
  std::string path_;
  Claim claim_ = Claim::Refused;
  dev_t device_ = 0;
  ino_t file_ = 0;
};

}  // namespace kv
