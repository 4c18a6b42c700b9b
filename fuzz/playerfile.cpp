// Player files made of anything. What parses must store, save and parse again to the same values.
// Random bytes never pass the scrambled version check, so inputs are made here: whole valid files of every
// version, then changed one decoded record at a time.
#include "profile/PlayerFile.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "profile/FileEntries.h"
#include "profile/Scramble.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

using namespace kv;

constexpr std::array<const char*, 2> kPins = {"", "4711"};
constexpr std::size_t kFirstEntry = 2;  // records before it: the version, plain and scrambled

/// The layouts that differ: version text and number.
struct Layout {
  const char* text;
  int number;
};
constexpr std::array<Layout, 9> kLayouts = {{{"1.0.0", 100},
                                             {"1.0.1", 101},
                                             {"1.0.3", 103},
                                             {"1.1.0", 110},
                                             {"1.1.4", 114},
                                             {"1.2.0", 120},
                                             {"1.2.3", 123},
                                             {"1.2.4", 124},
                                             {"1.3.0", 130}}};

constexpr std::array<std::string_view, 20> kTexts = {
    "True", "False", "true", "-1",  "0",     "32767", "32768",      "-32768",      "255",      "256",
    "s6",   "s199",  "ms-2", "fl3", "Ember", "",      "2147483647", "-2147483648", "99999999", "-"};

std::string Format(const PlayerFields& fields) {
  SeededRandom random(1);
  return FormatPlayerFile(fields, "2024-02-29 18:05:00", random).value();
}

/// The contents of the records, as far as the headers make sense.
std::vector<std::string> Cut(std::string_view file) {
  std::vector<std::string> records;
  while (file.size() >= 4) {
    const std::size_t length = static_cast<std::uint8_t>(file[2]) |
                               static_cast<std::size_t>(static_cast<std::uint8_t>(file[3])) << 8U;
    records.emplace_back(file.substr(4, length));
    file.remove_prefix(std::min(file.size(), 4 + length));
  }
  return records;
}

std::string Join(const std::vector<std::string>& records) {
  std::string file;
  for (const std::string& record : records) {
    file += std::string_view("\x08\0", 2);
    file += static_cast<char>(record.size() & 0xFFU);
    file += static_cast<char>(record.size() >> 8U & 0xFFU);
    file += record;
  }
  return file;
}

/// A valid file as the given version wrote it.
std::string ValidFile(const Layout& layout, const char* pin) {
  PlayerFields fields;
  fields.PIN = pin;
  fields.Version = layout.text;
  fields.Name = "Somebody";
  const std::vector<std::string> all = Cut(Format(fields));
  const std::vector<FileEntry> entries = EntriesOf(kProgramVersionNumber);
  const std::vector<FileEntry> kept = EntriesOf(layout.number);
  std::vector<std::string> records(all.begin(), all.begin() + kFirstEntry);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const bool keep = std::any_of(kept.begin(), kept.end(),
                                  [&](const FileEntry& entry) { return entry.row == entries[i].row; });
    if (keep) records.push_back(all[kFirstEntry + i]);
  }
  records.push_back(all.back());
  return Join(records);
}

std::string Mutated(std::string text, std::size_t room) {
  const std::size_t size = text.size();
  text.resize(size + room);
  text.resize(LLVMFuzzerMutate(reinterpret_cast<std::uint8_t*>(text.data()), size, text.size()));
  return text;
}

/// Changes the decoded text of one record, under the key that the current layout gives it.
void MutateRecord(std::vector<std::string>& records, const char* pin, std::minstd_rand& dice) {
  if (records.size() <= kFirstEntry) return;
  const std::vector<FileEntry> entries = EntriesOf(kProgramVersionNumber);
  const std::size_t at = kFirstEntry + dice() % (records.size() - kFirstEntry);
  const std::size_t index = std::min(at - kFirstEntry, entries.size() - 1);
  const std::string key = pin + entries[index].keySuffix;
  std::string text = DecodeBytes(records[at], key).value_or("");
  text = dice() % 2 == 0 ? entries[index].marker + std::string(kTexts[dice() % kTexts.size()])
                         : Mutated(std::move(text), 8);
  SeededRandom random(dice());
  records[at] = EncodeBytes(text, key, random);
}

void Check(std::string_view file, const char* pin) {
  const auto parsed = ParsePlayerFile(file, pin);
  const auto* content = std::get_if<PlayerFileContent>(&parsed);
  if (content == nullptr) return;
  PlayerFields first;
  StoreContent(*content, first);
  first.PIN = pin;
  first.Version = kProgramVersion;
  const std::string saved = Format(first);
  const auto again = ParsePlayerFile(saved, pin);
  PlayerFields second;
  StoreContent(std::get<PlayerFileContent>(again), second);
  second.PIN = pin;
  if (Format(second) != saved) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string file(data, data + size);
  for (const char* pin : kPins) Check(file, pin);
  return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed) {
  std::minstd_rand dice(seed);
  const char* pin = kPins[dice() % kPins.size()];
  std::string file(data, data + size);
  switch (Cut(file).size() <= kFirstEntry ? 0 : dice() % 16) {
    case 0:
      file = ValidFile(kLayouts[dice() % kLayouts.size()], pin);
      break;
    case 1:
      return LLVMFuzzerMutate(data, size, maxSize);
    case 2: {  // a record more or less
      std::vector<std::string> records = Cut(file);
      if (records.empty()) break;
      const auto at = records.begin() + static_cast<std::ptrdiff_t>(dice() % records.size());
      if (dice() % 2 == 0) {
        records.erase(at);
      } else {
        records.insert(at, std::string(*at));
      }
      file = Join(records);
      break;
    }
    default: {
      std::vector<std::string> records = Cut(file);
      MutateRecord(records, pin, dice);
      file = Join(records);
    }
  }
  if (file.size() > maxSize) file.resize(maxSize);
  std::copy(file.begin(), file.end(), data);
  return file.size();
}
