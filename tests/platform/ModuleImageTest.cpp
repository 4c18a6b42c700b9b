#include <gtest/gtest.h>

#include <cstring>

#include "packing/ModuleWriter.h"
#include "platform/ModuleImage.h"

namespace kv {
namespace {

using datafile::Bytes;
using datafile::Groups;

// Where the writer puts things: the resource section is the second page, file offsets and addresses agree.
constexpr std::size_t kRoot = 0x1000;
constexpr std::size_t kSize = 0x3000;
constexpr std::uint32_t kDirectory = 0x80000000U;

const Groups kGroups = {{"GIF", {{201, {1, 2, 3}}, {400, {4}}}},
                        {"JPG", {{101, {5, 6}}, {105, {7}}, {365, {8, 9}}}}};

Bytes Sample() {
  return datafile::WriteModule(kGroups, kSize).value();
}

ModuleResult Read(const Bytes& bytes) {
  return ModuleImage::Read(std::as_bytes(std::span(bytes)));
}

void Put(Bytes& bytes, std::size_t at, std::uint32_t value, int size = 4) {
  for (int i = 0; i < size; ++i)
    bytes.at(at + static_cast<std::size_t>(i)) = static_cast<std::uint8_t>(value >> (8 * i));
}

std::uint32_t Get(const Bytes& bytes, std::size_t at) {
  return bytes[at] | bytes[at + 1] << 8 | bytes[at + 2] << 16 |
         static_cast<std::uint32_t>(bytes[at + 3]) << 24;
}

/// Looks at everything that an image offers and counts it; what it offers must lie inside the file.
std::size_t Walk(const Bytes& bytes) {
  const ModuleResult result = Read(bytes);
  if (!result.image) {
    EXPECT_FALSE(result.error.empty());
    return 0;
  }
  std::size_t count = 0;
  for (const std::string& type : result.image->EnumTypes()) {
    for (const std::string& name : result.image->EnumNames(type)) {
      const auto data = result.image->FindResource(name, type);
      if (data.empty()) continue;  // a twin's name may hide it
      const auto* begin = reinterpret_cast<const std::uint8_t*>(data.data());
      EXPECT_GE(begin, bytes.data());
      EXPECT_LE(begin + data.size(), bytes.data() + bytes.size());
      ++count;
    }
  }
  return count;
}

TEST(ModuleImage, ListsAndFindsWhatWasWritten) {
  const Bytes bytes = Sample();
  const ModuleResult result = Read(bytes);
  ASSERT_TRUE(result.image) << result.error;
  const ModuleImage& image = *result.image;
  EXPECT_EQ(image.EnumTypes(), (std::vector<std::string>{"GIF", "JPG"}));
  EXPECT_EQ(image.EnumNames("jpg"), (std::vector<std::string>{"101", "105", "365"}));
  for (const auto& [type, entries] : kGroups) {
    for (const auto& [number, data] : entries) {
      const auto found = image.FindResource(std::to_string(number), type);
      ASSERT_EQ(found.size(), data.size()) << number;
      EXPECT_EQ(std::memcmp(found.data(), data.data(), data.size()), 0) << number;
    }
  }
  EXPECT_TRUE(image.FindResource("#101", "JPG").data() == image.FindResource("101", "JPG").data());
  EXPECT_TRUE(image.FindResource("101", "GIF").empty());
  EXPECT_TRUE(image.FindResource("101", "PNG").empty());
  EXPECT_TRUE(image.FindResource("", "JPG").empty());
  EXPECT_TRUE(image.FindResource("65637", "JPG").empty());  // 65536 + 101: no integer name is that large
}

TEST(ModuleImage, ReadsNumericTypesAndTextNames) {
  Bytes bytes = Sample();
  const std::size_t text = kRoot + (Get(bytes, kRoot + 16) & ~kDirectory);
  const std::uint32_t textEntry = Get(bytes, kRoot + 16);
  Put(bytes, kRoot + 16, 10);  // the first type becomes integer 10
  const std::size_t names = kRoot + (Get(bytes, kRoot + 16 + 12) & ~kDirectory);
  Put(bytes, names + 16, textEntry);  // and JPG's first name becomes a text
  Put(bytes, text + 2, '1', 2);
  Put(bytes, text + 4, '0', 2);
  Put(bytes, text + 6, 0x20ac, 2);  // the euro sign
  const ModuleResult result = Read(bytes);
  ASSERT_TRUE(result.image);
  EXPECT_EQ(result.image->EnumTypes(), (std::vector<std::string>{"10", "JPG"}));
  EXPECT_EQ(result.image->EnumNames("#10"), (std::vector<std::string>{"201", "400"}));
  EXPECT_EQ(result.image->EnumNames("10").size(), 2U);
  EXPECT_EQ(result.image->FindResource("10\xe2\x82\xac", "JPG").size(), 2U);
  const Bytes digits = datafile::WriteModule({{"77", {{201, {1}}}}}, kSize).value();  // a name of digits
  EXPECT_EQ(Read(digits).image->FindResource("201", "#77").size(), 1U);
}

TEST(ModuleImage, SurvivesEveryTruncation) {
  const Bytes whole = Sample();
  for (std::size_t length = 0; length < whole.size(); length += length < 0x1300 ? 1 : 97) {
    const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
    EXPECT_LE(Walk(cut), 5U) << length;
  }
}

TEST(ModuleImage, SurvivesEverySingleByteSetToAnExtreme) {
  const Bytes whole = Sample();
  for (std::size_t at = 0; at < 0x1300; ++at) {
    for (const std::uint8_t value : {0x00, 0x01, 0x7f, 0x80, 0xff}) {
      Bytes bytes = whole;
      bytes[at] = value;
      EXPECT_LE(Walk(bytes), ModuleImage::kMaxResources);
    }
  }
}

TEST(ModuleImage, ACircleOfDirectoriesEndsAtTheThirdLevel) {
  Bytes bytes = Sample();
  for (int i = 0; i < 2; ++i)
    Put(bytes, kRoot + 20 + static_cast<std::size_t>(i) * 8, kDirectory);  // types are the root
  EXPECT_EQ(Walk(bytes), 0U);

  bytes = Sample();  // a language that is a directory again
  const std::size_t names = kRoot + (Get(bytes, kRoot + 20) & ~kDirectory);
  const std::size_t languages = kRoot + (Get(bytes, names + 20) & ~kDirectory);
  Put(bytes, languages + 20, kDirectory);
  EXPECT_EQ(Walk(bytes), 4U);
}

TEST(ModuleImage, TypesThatShareOneDirectoryEachListIt) {
  Bytes bytes = Sample();
  Put(bytes, kRoot + 20, Get(bytes, kRoot + 28));
  EXPECT_EQ(Walk(bytes), 6U);
}

TEST(ModuleImage, HugeCountsStopAtTheCap) {
  // Every entry of every level leads to the same place, as often as the counts can say.
  Bytes bytes(kRoot + 0x100000, 0);
  const Bytes head = Sample();
  std::copy(head.begin(), head.begin() + kRoot, bytes.begin());
  Put(bytes, 0x80 + 24 + 224 + 16, 0x100000);
  for (std::size_t at = kRoot; at + 16 < bytes.size(); at += 8)
    Put(bytes, at, 0), Put(bytes, at + 4, kDirectory);
  Put(bytes, kRoot + 12, 0xffffffffU);
  EXPECT_EQ(Walk(bytes), 0U);
  // One resource with a data entry behind each name.
  const std::size_t languages = 0x80000;
  for (std::size_t at = kRoot + 16; at < kRoot + languages; at += 8) {
    Put(bytes, at, 1);
    Put(bytes, at + 4, kDirectory | static_cast<std::uint32_t>(at < kRoot + 0x1000 ? 0 : languages));
  }
  EXPECT_LE(Walk(bytes), ModuleImage::kMaxResources);
  Put(bytes, kRoot + 12, 0);
  EXPECT_EQ(Read(bytes).image->EnumTypes().size(), 0U);
}

TEST(ModuleImage, DataThatLeavesTheFileIsSkipped) {
  const Bytes whole = Sample();
  const std::size_t names = kRoot + (Get(whole, kRoot + 20) & ~kDirectory);
  const std::size_t languages = kRoot + (Get(whole, names + 20) & ~kDirectory);
  const std::size_t description = kRoot + Get(whole, languages + 20);
  for (const std::uint32_t size : {0U, 0x2000U, 0x7fffffffU, 0xffffffffU}) {
    Bytes bytes = whole;
    Put(bytes, description + 4, size);
    EXPECT_EQ(Walk(bytes), 4U) << size;
  }
  for (const std::uint32_t address : {0U, 0xfffU, 0x3000U, 0xffffffffU}) {
    Bytes bytes = whole;
    Put(bytes, description, address);
    EXPECT_EQ(Walk(bytes), 4U) << address;
  }
}

TEST(ModuleImage, SaysWhatIsWrongWithTheHeaders) {
  EXPECT_FALSE(Read({}).image);
  EXPECT_FALSE(Read(Bytes(kSize, 0)).image);
  const auto with = [](std::size_t at, std::uint32_t value) {
    Bytes bytes = Sample();
    Put(bytes, at, value);
    return Read(bytes);
  };
  constexpr std::size_t kOptional = 0x80 + 24;
  EXPECT_FALSE(with(0x3c, 0xfffffff0U).image);                  // new header past the end
  EXPECT_FALSE(with(0x80, 0x1234).image);                       // no new header
  EXPECT_FALSE(with(kOptional + 92, 2).image);                  // too few data directories
  EXPECT_FALSE(with(kOptional + 96 + 16, 0).image);             // no resource directory
  EXPECT_FALSE(with(kOptional + 96 + 16, 0x900000).image);      // outside every section
  EXPECT_FALSE(with(kOptional + 224 + 20, 0xfffffff0U).image);  // a section past the end
}

}  // namespace
}  // namespace kv
