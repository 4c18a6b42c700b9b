#include "profile/FileEntries.h"
#include "profile/ProfileFixture.h"
#include "support/Limits.h"
#include "support/ScriptedRandom.h"

namespace kv::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Player = ProfileTest;

constexpr const char* kNewPlayer = R"(||1.2.4|
100 0 0 0
0 0 0 0 0 0
2 1 0011 Slate 10 0000 0 0
7 100 0 0 0 127.0.0.1 6000
32 9 0 0 0 0 49 50 51 52 0 0 81 87 69 82 0 0 65 83 68 70 0 0 
0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 
0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 
s199 s199 s599 s599 fl3 fl3 fl4 fl4 fp5 s299 
ps1 ps1 ps2 ps2 ps3 ps3 ps4 ps4 ps5 ps5 
ps1 ps2 ps3 ps4 ps5 ps6 ms1 ms2 ms3 ms4 
)";

TEST_F(Player, StartsWithTheDefaults) {
  EXPECT_EQ(Snapshot(player), kNewPlayer);
  EXPECT_FALSE(player.WRITING);
}

/// The lines of a snapshot that differ, by number.
std::vector<int> Differing(const std::string& a, const std::string& b) {
  std::istringstream left(a);
  std::istringstream right(b);
  std::vector<int> lines;
  std::string x;
  std::string y;
  for (int line = 0; std::getline(left, x) && std::getline(right, y); ++line) {
    if (x != y) lines.push_back(line);
  }
  return lines;
}

TEST_F(Player, EachResetTouchesItsOwnFieldsOnly) {
  ASSERT_FALSE(LoadBytes(player, SampleFile().Bytes("")));
  const std::string loaded = Snapshot(player);
  player.ResetArcade();
  EXPECT_THAT(Differing(loaded, Snapshot(player)), ElementsAre(8));
  EXPECT_EQ(player.ArcadeDeck->Value(10).text(), "s299");

  const auto deck = player.Deck;
  player.ResetSP();
  EXPECT_THAT(Differing(loaded, Snapshot(player)), ElementsAre(1, 2, 8, 9));
  EXPECT_EQ(player.Credits->Value, 100);
  EXPECT_EQ(player.Arcade_Best, 54321);
  EXPECT_EQ(player.H6J8_Wins->Value, 0);
  EXPECT_EQ(deck->Value(1).text(), "ps1");  // whoever shares the deck sees it

  player.ResetMP();
  EXPECT_THAT(Differing(loaded, Snapshot(player)), ElementsAre(1, 2, 4, 7, 8, 9, 10));
  EXPECT_EQ(player.Credits_MP->Value, 100);
  EXPECT_EQ(player.Disconnects, 0);
  EXPECT_EQ(player.LastPort, 65535);
  EXPECT_EQ(player.Portrait, 312);
  EXPECT_EQ(CountCards(player.Cards_MP->getValue()), 0);
  EXPECT_EQ(player.Cards->Value(1, 1), 1000);
}

TEST_F(Player, CipherRepeatsTheKey) {
  EXPECT_EQ(clsPlayer::Cipher("abc", "\x01\x02"), "``b");
  EXPECT_EQ(clsPlayer::Cipher(std::string("a\0", 2), ""), "\x9E\xFF");
  EXPECT_EQ(clsPlayer::Cipher("", "1"), "");
}

TEST_F(Player, EncodePadsAndScramblesUnderThePin) {
  ScriptedRandom draws({0.0, 0.05, 0.9999999, 0.9999999, 0.0, 0.0});
  clsPlayer scripted(dialogs, draws);
  scripted.PIN = "31";
  EXPECT_EQ(clsPlayer::Cipher(scripted.Encode("hi"), "317"), "%hi05");
  EXPECT_EQ(clsPlayer::Cipher(scripted.Encode("", "key"), "key7"), "/99");
  scripted.PIN.clear();
  EXPECT_EQ(clsPlayer::Cipher(scripted.Encode("hi"), "7"), "%hi00");

  player.PIN = "4711";
  for (const char* text : {"", "hi", "longer than its key"}) {
    EXPECT_EQ(player.Decode(player.Encode(text)), text);
    EXPECT_EQ(scripted.Decode(player.Encode(text, "k"), "k"), text);
  }
  EXPECT_FALSE(player.Decode("ab"));
}

TEST_F(Player, CardCodesOfASideDeck) {
  for (const char* code : {"s199", "fl3", "ms-2", "no10", "sx1", "fm0", "ps99999"}) {
    EXPECT_TRUE(IsValidCardCode(code)) << code;
  }
  for (const char* code :
       {"s6", "s", "", "un3", "pi3", "fi3", "mi3", "00", "--", "ps", "p1", "S199", "ps1a"}) {
    EXPECT_FALSE(IsValidCardCode(code)) << code;
  }
}

TEST_F(Player, AFailedSaveTellsAndChangesNothing) {
  ASSERT_FALSE(LoadBytes(player, SampleFile().Bytes("")));
  const std::string file = folder.Get("p.vnt");
  const int filesOpen = OpenFiles();
  std::filesystem::create_directory(folder / "dir.vnt");
  for (const std::string& bad : {folder / "gone/p.vnt", folder / "dir.vnt", folder / std::string(300, 'n'),
                                 path + "/x.vnt", std::string()}) {
    player.FileName = bad;
    const std::string before = Snapshot(player);
    dialogs.boxes.clear();
    player.WritePlayerFile();
    EXPECT_THAT(Told(dialogs), ElementsAre(kSaveFailed)) << bad;
    EXPECT_EQ(Snapshot(player), before);
    EXPECT_FALSE(player.WRITING);
  }
  player.FileName = path;
  player.Name = std::string(65533, 'n');  // more than a record holds
  dialogs.boxes.clear();
  player.WritePlayerFile();
  EXPECT_THAT(Told(dialogs), ElementsAre(kSaveFailed));
  EXPECT_EQ(folder.Get("p.vnt"), file);
  EXPECT_EQ(folder.Count(), 2);
  EXPECT_EQ(OpenFiles(), filesOpen);
}

TEST_F(Player, AnUpdateThatCannotBeSavedStillLoadsAndClaimsNothing) {
  SampleFile sample;
  sample.setVersion("1.1.5");
  const std::string file = sample.Bytes("", 115);
  folder.Put("p.vnt", file);
  bool failed = true;
  {
    const FullDisk full(500);
    failed = player.LoadPlayerFile(path);
  }
  EXPECT_FALSE(failed);
  EXPECT_EQ(player.Name, "Zoë €");
  EXPECT_THAT(Told(dialogs), ElementsAre(kSaveFailed));
  EXPECT_EQ(folder.Get("p.vnt"), file);
  EXPECT_EQ(folder.Count(), 1);
}

TEST_F(Player, ASaveWaitsForTheOneUnderWay) {
  int waits = 0;
  clsPlayer* waiting = nullptr;
  const auto pump = [&] {
    EXPECT_FALSE(std::filesystem::exists(path));
    if (++waits == 3) waiting->WRITING = false;
    return true;
  };
  clsPlayer busy(dialogs, random, pump);
  waiting = &busy;
  busy.FileName = path;
  busy.WRITING = true;
  busy.WritePlayerFile();
  EXPECT_EQ(waits, 3);
  EXPECT_FALSE(busy.WRITING);
  EXPECT_TRUE(std::filesystem::exists(path));

  // The program ends while it waits: what there is to save is saved.
  clsPlayer ending(dialogs, random, [] { return false; });
  ending.FileName = folder / "ending.vnt";
  ending.WRITING = true;
  ending.WritePlayerFile();
  EXPECT_EQ(folder.Count(), 2);
  EXPECT_THAT(Told(dialogs), IsEmpty());
}

}  // namespace
}  // namespace kv::test
