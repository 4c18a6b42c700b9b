#include "profile/PlayerFile.h"
#include "profile/ProfileFixture.h"
#include "support/Rows.h"

namespace kv::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kPin = "4711";

using PlayerFileTest = ProfileTest;

TEST_F(PlayerFileTest, EveryRecordLandsInItsField) {
  player.PIN = kPin;
  ASSERT_FALSE(LoadBytes(player, SampleFile().Bytes(kPin)));
  EXPECT_EQ(Snapshot(player), path + R"(|4711|1.2.4|Zoë €
2000000000 301 302 54321
11 12 13 14 15 16
1 3 1100 Ember 01 1011 2 1
312 2222 41 42 43 10.20.30.40 65535
101 102 0 0 0 0 103 104 105 106 0 0 107 108 109 110 0 0 111 112 113 114 0 0 
1000 1001 1002 1003 1004 1005 1006 1007 1008 1009 1010 1011 1012 1013 1014 1015 1016 1017 1018 1019 1020 1021 1022 1023 
-32768 -32767 -32766 -32765 -32764 -32763 -32762 -32761 -32760 -32759 -32758 -32757 -32756 -32755 -32754 -32753 -32752 -32751 -32750 -32749 -32748 -32747 -32746 -32745 
ps1 ms2 ms-3 fl4 fp5 fm6 no7 s199 s299 s599 
s399 s499 fl1 fl2 fl3 fl4 fl5 fl6 sp1 s61 
ms1 ms2 ms3 ms4 ms5 ms6 ps2 ps3 ps4 ps5 
)");
  EXPECT_THAT(Told(dialogs), IsEmpty());
}

/// The file cut into the contents of its records.
std::vector<std::string> Cut(const std::string& file) {
  std::vector<std::string> records;
  for (std::size_t at = 0; at + 4 <= file.size();) {
    EXPECT_EQ(file.substr(at, 2), std::string("\x08\0", 2));
    const std::size_t length =
        static_cast<unsigned char>(file[at + 2]) + 256U * static_cast<unsigned char>(file[at + 3]);
    records.push_back(file.substr(at + 4, length));
    at += 4 + length;
  }
  return records;
}

TEST_F(PlayerFileTest, SavingWritesTheSameRecords) {
  for (const std::string pin : {"", "0", kPin}) {
    player.PIN = pin;
    const SampleFile sample;
    ASSERT_FALSE(LoadBytes(player, sample.Bytes(pin)));
    player.WritePlayerFile();
    const std::vector<std::string> records = Cut(folder.Get("p.vnt"));
    ASSERT_EQ(records.size(), sample.size());
    EXPECT_EQ(records.front(), "1.2.4");
    for (int number = 2; number < 128; ++number) {
      // Between the padding of one byte and two.
      const std::string& content = records[static_cast<std::size_t>(number) - 1];
      const std::string expected = sample.Scrambled(number, pin);
      ASSERT_EQ(content.size(), expected.size()) << number;
      EXPECT_EQ(content.substr(1, content.size() - 3), expected.substr(1, expected.size() - 3)) << number;
    }
  }
}

TEST_F(PlayerFileTest, WhatIsSavedIsLoadedBack) {
  for (const std::string pin : {"", "9", "0000"}) {
    for (const bool fresh : {true, false}) {
      clsPlayer saved(dialogs, random);
      saved.PIN = pin;
      if (!fresh) {
        ASSERT_FALSE(LoadBytes(saved, SampleFile().Bytes(pin)));
      }
      saved.FileName = path;
      saved.WritePlayerFile();

      player.PIN = pin;
      player.Name = "somebody else";
      player.Deck->Fill(5);
      player.Cards->Fill(9);
      ASSERT_FALSE(player.LoadPlayerFile(path));
      EXPECT_EQ(Snapshot(player), Snapshot(saved));
    }
  }
  player.Name = std::string(60000, 'n');
  player.WritePlayerFile();
  ASSERT_FALSE(player.LoadPlayerFile(path));
  EXPECT_EQ(player.Name.size(), 60000U);
  EXPECT_THAT(Told(dialogs), IsEmpty());
}

TEST_F(PlayerFileTest, LoadingFillsTheBoxesThatAMatchAlreadyHolds) {
  const auto credits = player.Credits;
  const auto deck = player.Deck;
  const auto cards = player.Cards_MP;
  ASSERT_FALSE(LoadBytes(player, SampleFile().Bytes("")));
  EXPECT_EQ(credits->Value, 2000000000);
  EXPECT_EQ(deck->Value(1).text(), "s399");
  EXPECT_EQ(cards->Value(1, 1), -32768);
}

TEST_F(PlayerFileTest, AWrongPinIsRefusedInSilence) {
  const std::string file = SampleFile().Bytes(kPin);
  const std::string before = Snapshot(player);
  // The first digit alone touches only padding in the version record; the body gives it away.
  for (const char* pin : {"", "4", "471", "4712", "4721", "4811", "5711", "0000", "47110"}) {
    clsPlayer other(dialogs, random);
    other.PIN = pin;
    const std::string untouched = Snapshot(other);
    EXPECT_TRUE(LoadBytes(other, file)) << pin;
    EXPECT_EQ(other.FileName, path);
    other.FileName.clear();
    EXPECT_EQ(Snapshot(other), untouched) << pin;
  }
  EXPECT_EQ(folder.Get("p.vnt"), file);
  EXPECT_THAT(Told(dialogs), IsEmpty());
}

TEST_F(PlayerFileTest, VersionsAreThreeDigits) {
  for (const auto& [text, number] : Rows<const char*, int>{
           {"1.2.4", 124}, {"1.0.3", 103}, {"0.0.1", 1}, {"2.5.5", 255}, {"1.2.10", 120}}) {
    EXPECT_EQ(VersionNumber(text), number);
  }
  for (const char* text : {"", "1", "1.", "a.b.c", "2.5.6", "9.9.9", "-.1.2"}) {
    EXPECT_FALSE(VersionNumber(text)) << text;
  }
}

TEST_F(PlayerFileTest, OldFilesKeepDefaultsForWhatTheyLackAndAreRewritten) {
  // Which late fields a file of that version holds.
  for (const auto& [version, number, wins, arcadeDeck, minimize, speed, arcade, keys] :
       Rows<const char*, int, bool, bool, bool, bool, bool, bool>{
           {"1.0.0", 100, false, false, false, false, false, false},
           {"1.0.1", 101, true, false, false, false, false, false},
           {"1.0.3", 103, true, true, false, false, false, false},
           {"1.1.5", 115, true, true, true, true, false, false},
           {"1.2.0", 120, true, true, true, true, true, false},
           {"1.2.3", 123, true, true, true, true, true, true}}) {
    SampleFile sample;
    sample.setVersion(version);
    ScriptedDialogs boxes;
    clsPlayer loaded(boxes, random);
    loaded.PIN = kPin;
    ASSERT_FALSE(LoadBytes(loaded, sample.Bytes(kPin, number))) << version;
    EXPECT_EQ(loaded.H6J8_Wins->Value, wins ? 16 : 0);
    EXPECT_EQ(loaded.ArcadeDeck->Value(1).text(), arcadeDeck ? "ps1" : "s199");
    EXPECT_EQ(loaded.ShowMinimize_Opt, !minimize);
    EXPECT_EQ(loaded.GameSpeed_Opt, speed ? 3 : 1);
    EXPECT_EQ(loaded.ArcadeAI_Opt, arcade ? 1 : 0);
    EXPECT_EQ(loaded.KeysEn, keys);
    EXPECT_EQ(loaded.Keys->Value(1, 1), keys ? 101 : 32);
    EXPECT_EQ(loaded.Cards_MP->Value(4, 6), -32745) << "records after the missing ones stay in step";
    EXPECT_EQ(loaded.Version, "1.2.4");
    EXPECT_THAT(Told(boxes), ElementsAre("i Kelm Vantri: Your player file has been updated from v" +
                                         std::string(version) + " to v1.2.4."));

    player.PIN = kPin;
    ASSERT_FALSE(player.LoadPlayerFile(path));  // now a file of today
    EXPECT_EQ(Snapshot(player), Snapshot(loaded));
  }
  EXPECT_THAT(Told(dialogs), IsEmpty());
}

TEST_F(PlayerFileTest, NewerFilesAreRefusedWithAMessage) {
  const std::string before = Snapshot(player);
  for (const char* version : {"1.3.0", "1.2.5", "2.5.5"}) {
    SampleFile sample;
    sample.setVersion(version);
    const std::string file = sample.Bytes("");
    dialogs.boxes.clear();
    EXPECT_TRUE(LoadBytes(player, file));
    EXPECT_THAT(Told(dialogs),
                ElementsAre("! Kelm Vantri: Error: This version of Kelm Vantri is older than the player file "
                            "version!"));
    EXPECT_EQ(folder.Get("p.vnt"), file);
    player.FileName.clear();
    EXPECT_EQ(Snapshot(player), before);
  }
}

}  // namespace
}  // namespace kv::test
