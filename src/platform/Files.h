// Files by name: reading, replacing and listing. Names are matched without regard to case, and "\" means "/".
// Nothing here throws for what the disk holds or does, and no file stays open after a call.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kv {

/// Either the bytes, or why there are none.
struct FileBytes {
  std::optional<std::string> bytes;
  std::string error;  // empty when bytes is set
};

/// The whole file; a file of more than `maxBytes` is an error, and so is anything but a regular file.
[[nodiscard]] FileBytes ReadWhole(std::string_view path, std::size_t maxBytes);
/// The file's first `maxBytes` bytes, fewer when it is shorter.
[[nodiscard]] FileBytes ReadStart(std::string_view path, std::size_t maxBytes);

/// Replaces the file (or makes it): writes a new file beside it, flushes that to disk and renames it over the
/// old one. A crash at any moment leaves the old file or the new one, whole. Returns an empty text, or what
/// went wrong: then the old file is untouched and the new one removed.
[[nodiscard]] std::string AtomicWrite(std::string_view path, std::string_view bytes);

/// True for a regular file.
[[nodiscard]] bool FileExists(std::string_view path);

/// Names (without folder) of the regular files in `folder` that match `pattern`, in which "*" stands for any
/// characters and "?" for one; ordered without regard to case. Empty when the folder cannot be read.
[[nodiscard]] std::vector<std::string> List(std::string_view folder, std::string_view pattern);

/// The path as the disk spells it: each part that exists under another case is replaced by its real name.
[[nodiscard]] std::string ResolvePath(std::string_view path);

}  // namespace kv
