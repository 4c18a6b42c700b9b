// A module image (Portable Executable) used only as a container of resources: reads its resource directory
// from bytes that nobody vouches for. It must never run, relocate or trust anything in the file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kv {

struct ModuleResult;

/// The resources of one image, in the order of its directory. Borrows the bytes: they must outlive it.
class ModuleImage {
 public:
  /// Resources beyond this many, over the whole image, are not looked at; so hostile counts cost nothing.
  static constexpr std::size_t kMaxResources = 8192;
  static constexpr std::size_t kMaxTypes = 256;
  static constexpr std::size_t kMaxNameLength = 128;  // UTF-16 units; a longer name skips its entry

  /// Reads the whole directory (type, name, language). A file that is no module or has no resource directory
  /// is an error; an entry that is broken is skipped.
  [[nodiscard]] static ModuleResult Read(std::span<const std::byte> bytes);

  /// Types in directory order: names as UTF-8, integer types as decimal text.
  [[nodiscard]] std::vector<std::string> EnumTypes() const;
  /// Names of one type in directory order; integer names as decimal text. Empty for an unknown type.
  [[nodiscard]] std::vector<std::string> EnumNames(std::string_view type) const;
  /// The bytes of a resource (its first language), or an empty span when there is none. A numeric name or
  /// type ("103", "#10") is tried as an integer first, then as a name; names compare without regard to case.
  [[nodiscard]] std::span<const std::byte> FindResource(std::string_view name, std::string_view type) const;

 private:
  friend class ModuleReader;

  /// What an entry is called: a name, or an integer when the name is empty.
  struct Identity {
    std::string name;
    std::uint16_t id = 0;
    [[nodiscard]] std::string Text() const;
  };
  struct Resource {
    Identity identity;
    std::span<const std::byte> bytes;
  };
  struct Type {
    Identity identity;
    std::vector<Resource> resources;
  };
  template <typename Entry>
  [[nodiscard]] static const Entry* Find(const std::vector<Entry>& entries, std::string_view wanted);

  std::vector<Type> types_;
};

/// Either the image, or why there is none.
struct ModuleResult {
  std::optional<ModuleImage> image;
  std::string error;  // empty when image is set
};

}  // namespace kv
