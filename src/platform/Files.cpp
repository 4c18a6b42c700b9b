#include "platform/Files.h"

#include <fcntl.h>
#include <fnmatch.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "platform/NewFile.h"

namespace kv {
namespace {

namespace fs = std::filesystem;

constexpr int kNameAttempts = 100;

std::string LastError() {
  return std::generic_category().message(errno);
}

/// A file descriptor that closes itself.
class Descriptor {
 public:
  explicit Descriptor(int fd) : fd_(fd) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { (void)Close(); }

  [[nodiscard]] int get() const { return fd_; }
  [[nodiscard]] bool open() const { return fd_ >= 0; }
  /// Some disks report a failed write only here.
  [[nodiscard]] bool Close() {
    const int fd = fd_;
    fd_ = -1;
    return fd < 0 || ::close(fd) == 0;
  }

 private:
  int fd_;
};

/// Removes a half-made file unless it was renamed into its place.
class Unfinished {
 public:
  explicit Unfinished(std::string path) : path_(std::move(path)) {}
  Unfinished(const Unfinished&) = delete;
  Unfinished& operator=(const Unfinished&) = delete;
  ~Unfinished() {
    if (!path_.empty()) (void)::unlink(path_.c_str());
  }
  void Keep() { path_.clear(); }

 private:
  std::string path_;
};

/// Lower case for ASCII and for the accented letters of Latin-1, which in UTF-8 are 0xC3 and one byte more.
std::string FoldCase(std::string_view name) {
  std::string folded(name);
  for (std::size_t i = 0; i < folded.size(); ++i) {
    const auto c = static_cast<unsigned char>(folded[i]);
    const bool accented =
        i > 0 && static_cast<unsigned char>(name[i - 1]) == 0xC3 && c >= 0x80 && c <= 0x9E && c != 0x97;
    if ((c >= 'A' && c <= 'Z') || accented) folded[i] = static_cast<char>(c + 0x20);
  }
  return folded;
}

/// The pattern for fnmatch. A name that is part of it may hold what is special there but not to us.
std::string Glob(std::string_view pattern) {
  std::string glob;
  for (const char c : pattern) {
    if (c == '[' || c == '\\') glob += '\\';
    glob += c;
  }
  return glob;
}

bool Exists(const fs::path& path) {
  std::error_code error;
  return fs::exists(path, error);
}

/// Calls `visit` with each entry until it returns false.
template <typename Visit>
void VisitFolder(const fs::path& folder, Visit visit) {
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    if (!visit(*entry)) return;
  }
}

/// The entry of `folder` that has this name under any case; the smallest when several do.
std::string RealName(const fs::path& folder, const std::string& name) {
  const std::string wanted = FoldCase(name);
  std::string real;
  VisitFolder(folder.empty() ? fs::path(".") : folder, [&](const fs::directory_entry& entry) {
    std::string candidate = entry.path().filename().string();
    if (FoldCase(candidate) == wanted && (real.empty() || candidate < real)) real = std::move(candidate);
    return true;
  });
  return real.empty() ? name : real;
}

std::string ReadDescriptor(int fd, std::string& bytes, std::size_t maxBytes) {
  std::size_t have = 0;
  while (have < bytes.size() || bytes.size() < maxBytes) {
    // The file may grow while it is read.
    if (have == bytes.size()) bytes.resize(std::min(maxBytes, bytes.size() + 4096));
    const ssize_t got = ::read(fd, bytes.data() + have, bytes.size() - have);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return LastError();
    if (got == 0) break;
    have += static_cast<std::size_t>(got);
  }
  bytes.resize(have);
  return "";
}

std::string WriteDescriptor(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t put = ::write(fd, bytes.data(), bytes.size());
    if (put < 0 && errno == EINTR) continue;
    if (put <= 0) return put < 0 ? LastError() : "nothing written";
    bytes.remove_prefix(static_cast<std::size_t>(put));
  }
  return "";
}

/// Opens a file that did not exist before; `path` becomes its name. The name does not depend on the target's,
/// which may already be as long as the disk allows.
int OpenNew(const std::string& folder, std::string& path) {
  for (int attempt = 0; attempt < kNameAttempts; ++attempt) {
    path = folder + "/.vantri-" + std::to_string(::getpid()) + "-" + std::to_string(attempt) + ".new";
    const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kNewFileMode);
    if (fd >= 0 || errno != EEXIST) return fd;
  }
  return -1;
}

/// The file that a save really lands in: links are followed, so that a linked player file stays linked.
std::string SaveTarget(std::string_view path) {
  std::string target = ResolvePath(path);
  std::error_code error;
  if (!fs::is_symlink(target, error)) return target;
  const fs::path real = fs::canonical(target, error);
  return error ? target : real.string();
}

std::string FillAndClose(Descriptor& file, const std::string& target, std::string_view bytes) {
  struct stat old {};
  if (::stat(target.c_str(), &old) == 0) (void)::fchmod(file.get(), old.st_mode & 07777U);
  if (std::string error = WriteDescriptor(file.get(), bytes); !error.empty()) return error;
  if (::fsync(file.get()) != 0 || !file.Close()) return LastError();
  return "";
}

}  // namespace

FileBytes ReadStart(std::string_view path, std::size_t maxBytes) {
  if (path.find('\0') != std::string_view::npos) return {{}, "bad file name"};
  // Without O_NONBLOCK a pipe of that name would block for ever.
  const Descriptor file(::open(ResolvePath(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat info {};
  if (!file.open() || ::fstat(file.get(), &info) != 0) return {{}, LastError()};
  if (!S_ISREG(info.st_mode)) return {{}, "not a file"};
  // One byte more than it should have shows the end without growing the buffer.
  std::string bytes(std::min(maxBytes, static_cast<std::size_t>(info.st_size) + 1), '\0');
  std::string error = ReadDescriptor(file.get(), bytes, maxBytes);
  if (!error.empty()) return {{}, std::move(error)};
  return {std::move(bytes), ""};
}

FileBytes ReadWhole(std::string_view path, std::size_t maxBytes) {
  FileBytes read = ReadStart(path, std::max(maxBytes, maxBytes + 1));
  if (read.bytes && read.bytes->size() > maxBytes) return {{}, "file too large"};
  return read;
}

std::string AtomicWrite(std::string_view path, std::string_view bytes) {
  if (path.empty() || path.find('\0') != std::string_view::npos) return "bad file name";
  const std::string target = SaveTarget(path);
  // A rename would replace even a file that its owner has made read-only.
  if (::access(target.c_str(), W_OK) != 0 && errno != ENOENT) return LastError();
  const fs::path parent = fs::path(target).parent_path();
  const std::string folder = parent.empty() ? "." : parent.string();

  std::string fresh;
  Descriptor file(OpenNew(folder, fresh));
  if (!file.open()) return LastError();
  Unfinished unfinished(fresh);
  if (std::string error = FillAndClose(file, target, bytes); !error.empty()) return error;
  if (::rename(fresh.c_str(), target.c_str()) != 0) return LastError();
  unfinished.Keep();

  // The new file is in place whatever happens now; some file systems cannot flush a folder.
  const Descriptor place(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (place.open()) (void)::fsync(place.get());
  return "";
}

bool FileExists(std::string_view path) {
  if (path.find('\0') != std::string_view::npos) return false;
  std::error_code error;
  return fs::is_regular_file(ResolvePath(path), error);
}

std::vector<std::string> List(std::string_view folder, std::string_view pattern) {
  const std::string wanted = Glob(FoldCase(pattern));
  std::vector<std::pair<std::string, std::string>> found;  // folded and real name
  VisitFolder(folder.empty() ? "." : ResolvePath(folder), [&](const fs::directory_entry& entry) {
    std::error_code error;
    std::string name = entry.path().filename().string();
    std::string folded = FoldCase(name);
    if (::fnmatch(wanted.c_str(), folded.c_str(), 0) == 0 && entry.is_regular_file(error)) {
      found.emplace_back(std::move(folded), std::move(name));
    }
    return true;
  });
  std::sort(found.begin(), found.end());
  std::vector<std::string> names;
  names.reserve(found.size());
  for (auto& [folded, name] : found) names.push_back(std::move(name));
  return names;
}

std::string ResolvePath(std::string_view path) {
  std::string slashed(path);
  std::replace(slashed.begin(), slashed.end(), '\\', '/');
  if (Exists(slashed)) return slashed;
  fs::path real;
  for (const fs::path& part : fs::path(slashed)) {
    fs::path next = real / part;
    real = Exists(next) || part.empty() ? std::move(next) : real / RealName(real, part.string());
  }
  return real.string();
}

}  // namespace kv
