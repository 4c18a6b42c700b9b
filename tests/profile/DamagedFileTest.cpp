// Files that somebody or something has damaged: the load fails, the record and the file stay as they were.
#include <map>

#include "profile/PlayerFile.h"
#include "profile/ProfileFixture.h"
#include "profile/Scramble.h"

namespace kv::test {
namespace {

using testing::IsEmpty;

class DamagedFile : public ProfileTest {
 protected:
  /// Checks that the file is refused in silence and that nothing has changed, in memory or on disk.
  void ExpectRefused(const std::string& bytes, const std::string& what) {
    EXPECT_TRUE(LoadBytes(player, bytes)) << what;
    player.FileName.clear();
    EXPECT_EQ(Snapshot(player), before) << what;
    EXPECT_EQ(folder.Get("p.vnt"), bytes) << what;
    EXPECT_THAT(Told(dialogs), IsEmpty()) << what;
  }

  /// The quick form, in memory.
  void ExpectDamaged(const std::string& bytes, const std::string& what) {
    const auto parsed = ParsePlayerFile(bytes, player.PIN);
    const auto* fault = std::get_if<PlayerFileFault>(&parsed);
    EXPECT_TRUE(fault != nullptr && *fault == PlayerFileFault::Damaged) << what;
  }

  const std::string before = Snapshot(player);
};

TEST_F(DamagedFile, CutOffAtAnyByte) {
  const std::string file = SampleFile().Bytes("");
  for (std::size_t length = 0; length < file.size(); ++length) {
    ExpectDamaged(file.substr(0, length), "cut at " + std::to_string(length));
    if (length % 37 == 0) ExpectRefused(file.substr(0, length), "cut at " + std::to_string(length));
  }
}

TEST_F(DamagedFile, AnyByteChangedIsRefusedOrReadWhole) {
  const std::string file = SampleFile().Bytes("12");
  int whole = 0;
  for (std::size_t at = 0; at < file.size(); ++at) {
    std::string changed = file;
    changed[at] = static_cast<char>(~changed[at]);
    (void)ParsePlayerFile(changed, "12");
    changed[at] = static_cast<char>(file[at] ^ (1 << (at % 8)));
    const auto parsed = ParsePlayerFile(changed, "12");
    const auto* content = std::get_if<PlayerFileContent>(&parsed);
    if (content != nullptr) {
      EXPECT_EQ(content->values.size(), 125U) << at;
      ++whole;
    }

    if (at % 7 != 0) continue;  // the same from the disk, now and then
    clsPlayer other(dialogs, random);
    other.PIN = "12";
    const std::string untouched = Snapshot(other);
    const bool failed = LoadBytes(other, changed);
    EXPECT_EQ(failed, content == nullptr) << at;
    other.FileName.clear();
    EXPECT_EQ(Snapshot(other) == untouched, failed) << at;
    EXPECT_EQ(folder.Get("p.vnt"), changed) << at;
  }
  EXPECT_GT(whole, 128 * 3);  // padding may change, and some texts and digits
  EXPECT_THAT(Told(dialogs), IsEmpty());
}

TEST_F(DamagedFile, OneValueThatDoesNotConvert) {
  const std::string tooLong = "99999999999999999999";
  const std::vector<std::pair<std::vector<int>, std::vector<std::string>>> cases = {
      // Numbers of every width and place.
      {{4, 5, 7, 13, 14, 23, 41, 63, 86, 87, 88, 89, 91, 93, 104, 127},
       {"", "-", "x", "1x", " 1", "1 ", "+1", "1.0", "1e3", "--1", "0x1", tooLong, "-" + tooLong}},
      {{4, 7, 88, 93}, {"2147483648", "-2147483649"}},
      {{5, 6, 8, 13, 23, 36, 63, 86, 87, 89, 91, 104, 127}, {"32768", "-32769"}},
      {{14, 15, 41, 42}, {"256", "-1"}},
      {{16, 19, 21, 22, 37, 40}, {"", "true", "FALSE", "1", "0", "-1", "True ", "Tru"}},
      {{43, 52, 53, 62, 94, 103},
       {"s6", "s", "", "0", "ps", "ps-", "PS1", "xx1", "ps1x", "fi3", "pi3", "un1", "ps+1", "ps 1", "ps1 "}},
      // The counters that the consistency test joins may not be negative, but for the first.
      {{5, 6, 7, 8, 9, 10, 11, 12}, {"-1"}},
      // The version is written twice.
      {{1, 2}, {"1.2.3", "", "1.2.4 "}},
  };
  for (const auto& [records, texts] : cases) {
    for (const int number : records) {
      for (const std::string& text : texts) {
        SampleFile sample;
        sample.record(number).text = text;
        ExpectDamaged(sample.Bytes(""), "record " + std::to_string(number) + " = '" + text + "'");
      }
    }
    SampleFile sample;
    sample.record(records.back()).text = texts.back();
    ExpectRefused(sample.Bytes(""), "record " + std::to_string(records.back()));
  }
}

TEST_F(DamagedFile, OddValuesThatStillConvertAreLoaded) {
  const std::multimap<int, std::string> cases = {{3, ""},
                                                 {4, "-2147483648"},
                                                 {4, "-0"},
                                                 {13, "-32768"},
                                                 {14, "255"},
                                                 {20, "\xFF"},
                                                 {43, "s199999"},
                                                 {53, "ms-2"},
                                                 {53, "s\xE9\063"},
                                                 {63, "-1"},
                                                 {63, "00000000000012"},
                                                 {88, "-7"},
                                                 {128, ""}};
  for (const auto& [number, text] : cases) {
    SampleFile sample;
    sample.record(number).text = text;
    EXPECT_FALSE(LoadBytes(player, sample.Bytes(""))) << number << " = " << text;
  }
  EXPECT_FALSE(LoadBytes(player, SampleFile().Bytes("") + "whatever follows"));
  EXPECT_THAT(Told(dialogs), IsEmpty());
}

TEST_F(DamagedFile, VersionsThatAreNoNumber) {
  for (const char* version : {"", "1", "12", "a.b.c", "2.5.6", "9.9.9"}) {
    SampleFile sample;
    sample.setVersion(version);
    ExpectRefused(sample.Bytes(""), version);
  }
}

TEST_F(DamagedFile, RecordHeaders) {
  const SampleFile sample;
  const std::string file = sample.Bytes("");
  std::size_t at = 0;
  for (int number = 1; number <= 128; ++number) {
    const std::size_t length = static_cast<unsigned char>(file[at + 2]);
    const auto changed = [&](std::size_t offset, int value) {
      std::string bytes = file;
      bytes[at + offset] = static_cast<char>(value);
      return bytes;
    };
    const std::string name = "record " + std::to_string(number);
    ExpectDamaged(changed(0, 9), name + " tag");
    ExpectDamaged(changed(1, 1), name + " tag, high byte");
    ExpectDamaged(changed(3, 255), name + " longer than the file");
    ExpectDamaged(changed(2, 2), name + " shorter than its padding");
    // Two bytes instead of the record, everything else in step.
    ExpectDamaged(file.substr(0, at) + SampleFile::RecordBytes("ab") + file.substr(at + 4 + length),
                  name + " replaced");
    at += 4 + length;
  }
  EXPECT_EQ(at, file.size());
}

TEST_F(DamagedFile, WhatIsNoFile) {
  const int filesOpen = OpenFiles();
  std::filesystem::create_directory(folder / "dir.vnt");
  folder.Put("zeros.vnt", "");
  std::filesystem::resize_file(folder / "zeros.vnt", std::uintmax_t{1} << 32U);
  for (const std::string& name : {folder / "missing.vnt", folder / "gone/p.vnt", folder / "dir.vnt",
                                  folder / "zeros.vnt", std::string()}) {
    EXPECT_TRUE(player.LoadPlayerFile(name)) << name;
    EXPECT_EQ(player.FileName, name);
  }
  for (int i = 0; i < 20; ++i) EXPECT_TRUE(LoadBytes(player, "junk"));
  EXPECT_EQ(OpenFiles(), filesOpen);
  EXPECT_THAT(Told(dialogs), IsEmpty());
}

}  // namespace
}  // namespace kv::test
