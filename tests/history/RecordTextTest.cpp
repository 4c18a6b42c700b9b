// Records as text, which a person may have written, and packed, as the history keeps them.
#include <gtest/gtest.h>

#include "history/RecordPack.h"
#include "history/RecordText.h"
#include "support/SampleMatch.h"

namespace kv::test {
namespace {

constexpr const char* kByHand =
    "Kelm Vantri match, form 1\r\n"
    "time: 2026-11-25 13:25:12\n"
    "version: 1.2.4\n"
    "mode: Network\n"
    "opponent: Zoë\n"
    "strategy:\n"
    "stake: 50\n"
    "hand: fp2 s299 s399 ps4\n"
    "opponent's hand: ms-2 -- -- --\n"
    "\n"
    "set 1: player starts\n"
    "player: draws 7, flips 1 to fm2, plays 1 fm2, ends\n"
    "opponent: draws 10, plays 1 ms-2, ends\n"
    "player: draws 6, plays 3 s399, stands\n"
    "opponent: draws 9, stands\n"
    "result: 15:17, higher total, closed by opponent\n"
    "set 2: opponent starts\n"
    "opponent: draws 3\n"
    "end: opponent gave up, player won 2:1\n"
    "credits: 50 to 155, won\n";

TEST(RecordText, IsReadAsAPersonWritesIt) {
  const ParsedRecord parsed = ParseRecord(kByHand);
  ASSERT_TRUE(parsed.record) << parsed.line << ": " << parsed.fault;
  const MatchRecord& record = *parsed.record;
  EXPECT_EQ(record.time, 1795613112);
  EXPECT_EQ(record.opponent, "Zoë");
  EXPECT_EQ(record.hands[1], (RecordedHand{CardCode("ms-2")}));
  ASSERT_EQ(record.sets.size(), 2u);
  EXPECT_EQ(record.sets[0].moves.size(), 12u);
  EXPECT_EQ(record.sets[0].moves[1], (RecordedMove{MoveKind::Flip, Seat::Player, 1, CardCode("fm2")}));
  EXPECT_EQ(record.ending, MatchEnding::GivenUp);
  EXPECT_EQ(record.givenUpBy, Seat::Opponent);
  EXPECT_TRUE(PlayAgain(record));
  const std::string again = FormatRecord(record);
  EXPECT_NE(again.find("player: draws 7, flips 1 to fm2, plays 1 fm2, ends\n"), std::string::npos) << again;
}

TEST(RecordText, AndThePackedFormGiveTheRecordBack) {
  for (std::uint64_t seed = 1; seed <= 200; ++seed) {
    const MatchRecord record = SampleMatch(seed);
    const ParsedRecord parsed = ParseRecord(FormatRecord(record));
    ASSERT_TRUE(parsed.record) << parsed.line << ": " << parsed.fault << "\n" << FormatRecord(record);
    ASSERT_EQ(*parsed.record, record) << FormatRecord(record);
    MatchRecord packed = record;
    packed.sets.clear();
    packed.hands = {};
    ASSERT_TRUE(UnpackCourse(PackCourse(record), packed));
    ASSERT_EQ(packed, record);
  }
}

TEST(RecordText, RefusesALineThatIsNotUnderstoodAndNamesIt) {
  const std::string whole = kByHand;
  const auto refused = [&](const char* line, const char* instead, int number) {
    std::string text = whole;
    const std::size_t at = text.find(line);
    ASSERT_NE(at, std::string::npos) << line;
    text.replace(at, std::string_view(line).size(), instead);
    const ParsedRecord parsed = ParseRecord(text);
    EXPECT_FALSE(parsed.record) << instead;
    EXPECT_EQ(parsed.line, number) << instead;
  };
  refused("form 1", "form 2", 1);
  refused("2026-11-25", "2026-02-30", 2);
  refused("2026-11-25 13:25:12", "2026-11-25 13:25:60", 2);
  refused("opponent: Zoë", ("opponent: " + std::string(90, 'z')).c_str(), 5);
  refused("opponent: Zoë", "opponent: Zo\te", 5);
  refused("stake: 50", "stake: 2147483648", 7);
  refused("ps4\n", "ps4 ps5\n", 8);
  refused("ps4\n", "psfourfour\n", 8);
  refused("set 1:", "set 2:", 11);
  refused("player starts", "nobody starts", 11);
  refused("draws 7", "draws 11", 12);
  refused("flips 1", "flips 5", 12);
  refused("opponent: draws 10, plays 1", "opponent: flips 1 to fm2, plays 1", 13);
  refused("ends\nopponent: draws 10", "waits\nopponent: draws 10", 12);
  refused("15:17,", "15:1717,", 16);
  refused("higher total", "fate", 16);
  refused("result: 15:17", "result: 1:2, tied, closed by player\nresult: 15:17", 17);
  refused("gave up", "ran off", 19);
  refused("won 2:1", "won 4:1", 19);
  refused("155, won", "155, drew", 20);
}

TEST(RecordText, IsBounded) {
  EXPECT_FALSE(ParseRecord(std::string(kMostRecordText + 1, '\n')).record);
  EXPECT_FALSE(ParseRecord("").record);
  std::string text = "Kelm Vantri match, form 1\n";
  for (int set = 1; set <= 100; ++set) text += "set " + std::to_string(set) + ": player starts\n";
  EXPECT_EQ(ParseRecord(text + "end: left\n").line, 101);
  text = "Kelm Vantri match, form 1\nset 1: player starts\n";
  for (std::size_t i = 0; i <= kMostRecordedMoves; ++i) text += "player: ends\n";
  EXPECT_EQ(ParseRecord(text + "end: left\n").line, 3 + static_cast<int>(kMostRecordedMoves));
}

TEST(RecordText, TakesNamesThatWouldBreakALine) {
  MatchRecord record;
  record.opponent = "a\nend: left\n" + std::string(66, 'x') + "ëë";
  const ParsedRecord parsed = ParseRecord(FormatRecord(record));
  ASSERT_TRUE(parsed.record) << parsed.fault;
  EXPECT_EQ(parsed.record->opponent, "a end: left " + std::string(66, 'x') + "ë") << "80 bytes";
}

TEST(RecordPack, RefusesBytesThatAreNoCourse) {
  const std::string bytes = PackCourse(SampleMatch(4));
  MatchRecord record;
  for (std::size_t size = 0; size < bytes.size(); ++size) {
    if (UnpackCourse(std::string_view(bytes).substr(0, size), record)) {
      EXPECT_LT(record.sets.size(), SampleMatch(4).sets.size()) << "cut between two sets";
    }
  }
  std::string wrong = bytes;
  wrong[0] = '\x7F';
  EXPECT_FALSE(UnpackCourse(wrong, record)) << "a code that is too long";
  wrong[0] = '\2';
  wrong[1] = '\n';
  EXPECT_FALSE(UnpackCourse(wrong, record)) << "a code that no text can hold";
}

}  // namespace
}  // namespace kv::test
