#include "packing/ModuleWriter.h"

#include <string_view>

namespace kv::datafile {
namespace {

// One page of headers, then the resource section: file offsets and addresses are the same.
constexpr std::uint32_t kPage = 0x1000;
constexpr std::size_t kNewHeader = 0x80;
constexpr std::size_t kOptionalHeader = kNewHeader + 24;
constexpr std::size_t kSectionTable = kOptionalHeader + 224;
constexpr std::uint32_t kHighBit = 0x80000000U;
constexpr std::uint32_t kLanguage = 0x409;
constexpr std::size_t kAlignment = 8;
// What the part for MS-DOS says when the file is started by mistake; "$" ends the text.
constexpr std::string_view kStubText = "This file holds pictures.\r\n$";
constexpr std::uint8_t kStubCode[] = {0x0e, 0x1f, 0xba, 0x0e, 0x00, 0xb4, 0x09,
                                      0xcd, 0x21, 0xb8, 0x01, 0x4c, 0xcd, 0x21};

void Put16(Bytes& bytes, std::size_t at, std::uint32_t value) {
  bytes[at] = static_cast<std::uint8_t>(value);
  bytes[at + 1] = static_cast<std::uint8_t>(value >> 8);
}

void Put32(Bytes& bytes, std::size_t at, std::uint32_t value) {
  Put16(bytes, at, value);
  Put16(bytes, at + 2, value >> 16);
}

void PutText(Bytes& bytes, std::size_t at, std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) bytes[at + i] = static_cast<std::uint8_t>(text[i]);
}

std::size_t Aligned(std::size_t value, std::size_t step) {
  return (value + step - 1) / step * step;
}

void WriteStub(Bytes& image) {
  PutText(image, 0, "MZ");
  Put16(image, 0x02, 0x80);  // bytes on the last page
  Put16(image, 0x04, 1);     // pages
  Put16(image, 0x08, 4);     // header paragraphs
  Put16(image, 0x10, 0xb8);
  Put16(image, 0x18, 0x40);
  Put32(image, 0x3c, kNewHeader);
  for (std::size_t i = 0; i < sizeof(kStubCode); ++i) image[0x40 + i] = kStubCode[i];
  PutText(image, 0x40 + sizeof(kStubCode), kStubText);
}

void WriteHeaders(Bytes& image) {
  const auto size = static_cast<std::uint32_t>(image.size());
  WriteStub(image);
  PutText(image, kNewHeader, "PE");
  Put16(image, kNewHeader + 4, 0x14c);
  Put16(image, kNewHeader + 6, 1);        // one section
  Put16(image, kNewHeader + 20, 224);     // optional header
  Put16(image, kNewHeader + 22, 0x2102);  // 32-bit library, can be loaded
  Put16(image, kOptionalHeader, 0x10b);
  Put32(image, kOptionalHeader + 8, size - kPage);
  Put32(image, kOptionalHeader + 20, kPage);
  Put32(image, kOptionalHeader + 24, kPage);
  Put32(image, kOptionalHeader + 28, 0x10000000);
  Put32(image, kOptionalHeader + 32, kPage);
  Put32(image, kOptionalHeader + 36, kPage);
  Put16(image, kOptionalHeader + 40, 4);
  Put16(image, kOptionalHeader + 48, 4);
  Put32(image, kOptionalHeader + 56, size);
  Put32(image, kOptionalHeader + 60, kPage);
  Put16(image, kOptionalHeader + 68, 2);
  Put32(image, kOptionalHeader + 72, 0x100000);
  Put32(image, kOptionalHeader + 76, 0x1000);
  Put32(image, kOptionalHeader + 80, 0x100000);
  Put32(image, kOptionalHeader + 84, 0x1000);
  Put32(image, kOptionalHeader + 92, 16);
  Put32(image, kOptionalHeader + 96 + 2 * 8, kPage);
  Put32(image, kOptionalHeader + 96 + 2 * 8 + 4, size - kPage);
  PutText(image, kSectionTable, ".rsrc");
  Put32(image, kSectionTable + 8, size - kPage);
  Put32(image, kSectionTable + 12, kPage);
  Put32(image, kSectionTable + 16, size - kPage);
  Put32(image, kSectionTable + 20, kPage);
  Put32(image, kSectionTable + 36, 0x40000040);  // initialised data, readable
}

/// Where the parts of the resource section lie, from its start.
struct Plan {
  std::size_t names = 0;      // first directory of a type
  std::size_t languages = 0;  // first directory of a resource
  std::size_t descriptions = 0;
  std::size_t texts = 0;
  std::size_t data = 0;
  std::size_t end = 0;
};

Plan PlanOf(const Groups& groups) {
  Plan plan;
  std::size_t resources = 0;
  std::size_t texts = 0;
  std::size_t data = 0;
  for (const auto& [type, entries] : groups) {
    resources += entries.size();
    texts += 2 + 2 * type.size();
    for (const auto& [number, bytes] : entries) data += Aligned(bytes.size(), kAlignment);
  }
  plan.names = 16 + 8 * groups.size();
  plan.languages = plan.names + 16 * groups.size() + 8 * resources;
  plan.descriptions = plan.languages + 24 * resources;
  plan.texts = plan.descriptions + 16 * resources;
  plan.data = Aligned(plan.texts + texts, kAlignment);
  plan.end = plan.data + data;
  return plan;
}

/// Puts a directory's header and gives the place of its first entry.
std::size_t Directory(Bytes& image, std::size_t at, std::size_t named, std::size_t numbered) {
  Put16(image, at + 12, static_cast<std::uint32_t>(named));
  Put16(image, at + 14, static_cast<std::uint32_t>(numbered));
  return at + 16;
}

void Entry(Bytes& image, std::size_t& at, std::size_t name, std::size_t target) {
  Put32(image, at, static_cast<std::uint32_t>(name));
  Put32(image, at + 4, static_cast<std::uint32_t>(target));
  at += 8;
}

void WriteResources(Bytes& image, const Groups& groups) {
  Plan plan = PlanOf(groups);
  std::size_t typeEntry = Directory(image, kPage, groups.size(), 0);
  for (const auto& [type, entries] : groups) {
    Entry(image, typeEntry, plan.texts | kHighBit, plan.names | kHighBit);
    Put16(image, kPage + plan.texts, static_cast<std::uint32_t>(type.size()));
    for (std::size_t i = 0; i < type.size(); ++i) {
      Put16(image, kPage + plan.texts + 2 + 2 * i, static_cast<unsigned char>(type[i]));
    }
    plan.texts += 2 + 2 * type.size();
    std::size_t nameEntry = Directory(image, kPage + plan.names, 0, entries.size());
    plan.names += 16 + 8 * entries.size();
    for (const auto& [number, bytes] : entries) {
      Entry(image, nameEntry, number, plan.languages | kHighBit);
      std::size_t languageEntry = Directory(image, kPage + plan.languages, 0, 1);
      Entry(image, languageEntry, kLanguage, plan.descriptions);
      Put32(image, kPage + plan.descriptions, static_cast<std::uint32_t>(kPage + plan.data));
      Put32(image, kPage + plan.descriptions + 4, static_cast<std::uint32_t>(bytes.size()));
      std::copy(bytes.begin(), bytes.end(), image.begin() + static_cast<std::ptrdiff_t>(kPage + plan.data));
      plan.languages += 24;
      plan.descriptions += 16;
      plan.data += Aligned(bytes.size(), kAlignment);
    }
  }
}

}  // namespace

std::size_t SmallestSize(const Groups& groups) {
  return Aligned(kPage + PlanOf(groups).end, kPage);
}

std::optional<Bytes> WriteModule(const Groups& groups, std::size_t size) {
  if (size % kPage != 0 || SmallestSize(groups) > size) return std::nullopt;
  Bytes image(size, 0);
  WriteHeaders(image);
  WriteResources(image, groups);
  return image;
}

}  // namespace kv::datafile
