#include "platform/ModuleImage.h"

#include <algorithm>
#include <charconv>

#include "platform/Text.h"

namespace kv {
namespace {

constexpr std::size_t kNewHeaderOffset = 0x3c;  // where the old header says where the new one is
constexpr std::uint16_t kOldMagic = 0x5a4d;     // "MZ"
constexpr std::uint32_t kNewMagic = 0x4550;     // "PE" and two zeros
constexpr std::uint16_t kOptional32 = 0x10b;
constexpr std::uint16_t kOptional64 = 0x20b;
constexpr std::size_t kFileHeaderSize = 20;
constexpr std::size_t kSectionSize = 40;
constexpr std::size_t kMaxSections = 96;
constexpr std::uint32_t kResourceDirectory = 2;  // its place among the data directories
constexpr std::size_t kDirectoryHeaderSize = 16;
constexpr std::size_t kEntrySize = 8;
constexpr std::uint32_t kHighBit = 0x80000000U;
// More entries than this in one directory cannot be looked at; the rest of it is left out.
constexpr std::size_t kMaxEntries = 4096;
// How many languages of one resource are tried until one is whole.
constexpr std::size_t kMaxLanguages = 16;

void AppendUtf8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xc0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3f));
  } else {
    out += static_cast<char>(0xe0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3f));
    out += static_cast<char>(0x80 | (c & 0x3f));
  }
}

/// The integer that a numeric name stands for, with or without a "#" before it.
std::optional<std::uint16_t> IntegerName(std::string_view text) {
  if (text.starts_with('#')) text.remove_prefix(1);
  std::uint16_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

}  // namespace

/// Walks one image. Every read says where it is and is checked against the file's end.
class ModuleReader {
 public:
  explicit ModuleReader(std::span<const std::byte> bytes) : bytes_(bytes) {}

  /// Empty, or what is wrong with the headers.
  std::string ReadHeaders();
  void ReadTypes(ModuleImage& image);

 private:
  using Identity = ModuleImage::Identity;

  struct Section {
    std::uint32_t address = 0;
    std::uint32_t size = 0;  // of what the file holds
    std::uint32_t offset = 0;
  };
  struct Entry {
    std::uint32_t name = 0;
    std::uint32_t target = 0;
    [[nodiscard]] bool isDirectory() const { return (target & kHighBit) != 0; }
    [[nodiscard]] std::size_t offset() const { return target & ~kHighBit; }
  };

  template <typename Number>
  std::optional<Number> Read(std::size_t at) const;
  std::optional<std::size_t> FileOffset(std::uint32_t address) const;
  std::vector<Entry> Entries(std::size_t directory, std::size_t limit) const;
  std::optional<Identity> IdentityOf(const Entry& entry) const;
  void ReadNames(std::size_t directory, ModuleImage::Type& type);
  std::span<const std::byte> FirstLanguage(std::size_t directory) const;
  std::span<const std::byte> Data(std::size_t description) const;

  std::span<const std::byte> bytes_;
  std::vector<Section> sections_;
  std::size_t root_ = 0;  // of the resource directory, in the file
  std::size_t resources_ = 0;
  std::size_t budget_ = 4 * ModuleImage::kMaxResources;  // directory entries that may still be looked at
};

template <typename Number>
std::optional<Number> ModuleReader::Read(std::size_t at) const {
  if (at > bytes_.size() || bytes_.size() - at < sizeof(Number)) return std::nullopt;
  Number value = 0;
  for (std::size_t i = 0; i < sizeof(Number); ++i) {
    value =
        static_cast<Number>(value | static_cast<Number>(std::to_integer<Number>(bytes_[at + i]) << (8 * i)));
  }
  return value;
}

std::string ModuleReader::ReadHeaders() {
  if (Read<std::uint16_t>(0) != kOldMagic) return "no module image";
  const std::size_t header = Read<std::uint32_t>(kNewHeaderOffset).value_or(0);
  if (Read<std::uint32_t>(header) != kNewMagic) return "no new-style header";
  const auto sectionCount = Read<std::uint16_t>(header + 6);
  const auto optionalSize = Read<std::uint16_t>(header + 20);
  const std::size_t optional = header + 4 + kFileHeaderSize;
  const auto magic = Read<std::uint16_t>(optional);
  if (!sectionCount || !optionalSize || (magic != kOptional32 && magic != kOptional64))
    return "broken header";
  const std::size_t directories = optional + (magic == kOptional32 ? 96U : 112U);
  const auto directoryCount = Read<std::uint32_t>(directories - 4);
  const auto address = Read<std::uint32_t>(directories + kEntrySize * kResourceDirectory);
  if (!directoryCount || *directoryCount <= kResourceDirectory || !address || *address == 0) {
    return "no resource directory";
  }
  for (std::size_t i = 0; i < std::min<std::size_t>(*sectionCount, kMaxSections); ++i) {
    const std::size_t at = optional + *optionalSize + i * kSectionSize;
    const auto offset = Read<std::uint32_t>(at + 20);
    if (!offset) return "section table past the end";
    sections_.push_back({*Read<std::uint32_t>(at + 12), *Read<std::uint32_t>(at + 16), *offset});
  }
  const auto root = FileOffset(*address);
  if (!root || !Read<std::uint16_t>(*root + 14)) return "resource directory past the end";
  root_ = *root;
  return {};
}

std::optional<std::size_t> ModuleReader::FileOffset(std::uint32_t address) const {
  for (const Section& section : sections_) {
    if (address >= section.address && address - section.address < section.size) {
      return std::size_t{section.offset} + (address - section.address);
    }
  }
  return std::nullopt;
}

/// The entries that lie inside the file; a count that promises more is not believed.
std::vector<ModuleReader::Entry> ModuleReader::Entries(std::size_t directory, std::size_t limit) const {
  const auto named = Read<std::uint16_t>(root_ + directory + 12);
  const auto integers = Read<std::uint16_t>(root_ + directory + 14);
  std::vector<Entry> entries;
  if (!named || !integers) return entries;
  const std::size_t count = std::min({std::size_t{*named} + *integers, limit, kMaxEntries});
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t at = root_ + directory + kDirectoryHeaderSize + i * kEntrySize;
    const auto name = Read<std::uint32_t>(at);
    const auto target = Read<std::uint32_t>(at + 4);
    if (!name || !target) break;
    entries.push_back({*name, *target});
  }
  return entries;
}

std::optional<ModuleImage::Identity> ModuleReader::IdentityOf(const Entry& entry) const {
  if ((entry.name & kHighBit) == 0) {
    if (entry.name > 0xffff) return std::nullopt;
    return Identity{{}, static_cast<std::uint16_t>(entry.name)};
  }
  const std::size_t at = root_ + (entry.name & ~kHighBit);
  const auto length = Read<std::uint16_t>(at);
  if (!length || *length == 0 || *length > ModuleImage::kMaxNameLength) return std::nullopt;
  Identity identity;
  for (std::size_t i = 0; i < *length; ++i) {
    const auto unit = Read<std::uint16_t>(at + 2 + 2 * i);
    if (!unit) return std::nullopt;
    const bool surrogate = *unit >= 0xd800 && *unit < 0xe000;
    AppendUtf8(identity.name, surrogate || *unit == 0 ? U'?' : *unit);
  }
  return identity;
}

void ModuleReader::ReadTypes(ModuleImage& image) {
  for (const Entry& entry : Entries(0, ModuleImage::kMaxTypes)) {
    auto identity = IdentityOf(entry);
    if (!identity || !entry.isDirectory()) continue;
    ModuleImage::Type type{std::move(*identity), {}};
    ReadNames(entry.offset(), type);
    image.types_.push_back(std::move(type));
  }
}

void ModuleReader::ReadNames(std::size_t directory, ModuleImage::Type& type) {
  const std::vector<Entry> entries = Entries(directory, budget_);
  budget_ -= entries.size();
  for (const Entry& entry : entries) {
    if (resources_ == ModuleImage::kMaxResources) return;
    auto identity = IdentityOf(entry);
    if (!identity || !entry.isDirectory()) continue;
    const auto data = FirstLanguage(entry.offset());
    if (data.empty()) continue;
    ++resources_;
    type.resources.push_back({std::move(*identity), data});
  }
}

std::span<const std::byte> ModuleReader::FirstLanguage(std::size_t directory) const {
  for (const Entry& entry : Entries(directory, kMaxLanguages)) {
    if (entry.isDirectory()) continue;  // a fourth level does not exist
    const auto data = Data(entry.offset());
    if (!data.empty()) return data;
  }
  return {};
}

std::span<const std::byte> ModuleReader::Data(std::size_t description) const {
  const auto address = Read<std::uint32_t>(root_ + description);
  const auto size = Read<std::uint32_t>(root_ + description + 4);
  if (!address || !size) return {};
  const auto at = FileOffset(*address);
  if (!at || *at > bytes_.size() || bytes_.size() - *at < *size) return {};
  return bytes_.subspan(*at, *size);
}

ModuleResult ModuleImage::Read(std::span<const std::byte> bytes) {
  ModuleReader reader(bytes);
  if (std::string error = reader.ReadHeaders(); !error.empty()) return {std::nullopt, std::move(error)};
  ModuleImage image;
  reader.ReadTypes(image);
  return {std::move(image), {}};
}

std::string ModuleImage::Identity::Text() const {
  return name.empty() ? std::to_string(id) : name;
}

template <typename Entry>
const Entry* ModuleImage::Find(const std::vector<Entry>& entries, std::string_view wanted) {
  if (const auto id = IntegerName(wanted)) {
    const auto found = std::ranges::find_if(
        entries, [&](const Entry& e) { return e.identity.name.empty() && e.identity.id == *id; });
    if (found != entries.end()) return &*found;
  }
  // "#10" is no integer here, so it may be the name "10" as well.
  for (const std::string_view name : {wanted, wanted.substr(wanted.starts_with('#') ? 1 : 0)}) {
    const std::string lowered = LowerAscii(name);
    const auto found = std::ranges::find_if(entries, [&](const Entry& e) {
      return !e.identity.name.empty() && LowerAscii(e.identity.name) == lowered;
    });
    if (found != entries.end()) return &*found;
  }
  return nullptr;
}

std::vector<std::string> ModuleImage::EnumTypes() const {
  std::vector<std::string> texts;
  for (const Type& type : types_) texts.push_back(type.identity.Text());
  return texts;
}

std::vector<std::string> ModuleImage::EnumNames(std::string_view type) const {
  std::vector<std::string> texts;
  if (const Type* found = Find(types_, type)) {
    for (const Resource& resource : found->resources) texts.push_back(resource.identity.Text());
  }
  return texts;
}

std::span<const std::byte> ModuleImage::FindResource(std::string_view name, std::string_view type) const {
  const Type* found = Find(types_, type);
  const Resource* resource = found == nullptr ? nullptr : Find(found->resources, name);
  return resource == nullptr ? std::span<const std::byte>() : resource->bytes;
}

}  // namespace kv
