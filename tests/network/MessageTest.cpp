// What is a message and what is not, and what a person types in the lobby; what a side concludes of its peer,
// and that the document tells the same table as the code.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>
#include <vector>

#include "network/Address.h"
#include "network/ChatLog.h"
#include "network/Framing.h"
#include "network/Message.h"
#include "network/PeerPlace.h"
#include "platform/Random.h"

namespace kv::test {
namespace {

TEST(Message, TakesOnlyWhatItsCommandCanCarry) {
  const std::map<std::string, std::vector<const char*>> valid = {
      {"[Card]", {"no1", "no10"}},
      {"[Chat]", {"", "<b>hi</b>"}},
      {"[File]", {"0", "ann.vnt"}},
      {"[Hand]",
       {"1ps6", "4ms-6", "2ms3", "2fp3", "3fm3", "1s11", "1s1-1", "1s299", "1s399", "1s499", "1s5-2"}},
      {"[Mode]", {"1", "False"}},
      {"[Name]", {"Ann"}},
      {"[Port]", {"0", "65"}},
      {"[Vers]", {"1.2.9", "1.3.0"}},
      {"[Wage]", {"0", "2000000000"}},
      {"[WhoS]", {"True", "0"}},
  };
  const std::map<std::string, std::vector<const char*>> invalid = {
      {"", {"", "[Pla", "[play]", "[Play]1", "[Quit] ", "[Xyzw]hello"}},
      {"[Card]", {"", "no0", "no11", "no07", "no-3", "NO3", "ps3"}},
      {"[File]", {"", "../ann.vnt", "a\\b.vnt", "/etc/passwd", ".vnt", "*.vnt", "C:a.vnt", "a\n.vnt"}},
      {"[Hand]", {"", "0ps3", "5ps3", "1", "1ps", "1ps0", "1ps7", "1ps-3", "1ps03", "1no7", "1fl3"}},
      {"[Hand]1", {"s199", "s23", "s53", "un", "00", "pi3"}},
      {"[Mode]", {"", "2", "true"}},
      {"[Name]", {"", "   ", "\n"}},
      {"[Port]", {"", "66", "-1", "7x", "99999999999"}},
      {"[Wage]", {"", "-1", "2000000001", "5 ", "+5"}},
      {"[WhoS]", {"", "yes"}},
  };
  for (const auto* rows : {&valid, &invalid}) {
    for (const auto& [command, bodies] : *rows) {
      for (const char* body : bodies) {
        EXPECT_EQ(ParseMessage(command + body).has_value(), rows == &valid) << command << body;
      }
    }
  }
  for (const char* bare :
       {"[Acpt]", "[Back]", "[Forf]", "[Play]", "[Rset]", "[Quit]", "[Stnd]", "[Turn]", "[TAck]"}) {
    EXPECT_TRUE(ParseMessage(bare)) << bare;
  }
  EXPECT_FALSE(ParseMessage("[Name]" + std::string(65, 'n')));
  EXPECT_EQ(std::get<msg::File>(*ParseMessage("[File]ann.vnt")).baseName, "ann");
  EXPECT_EQ(std::get<msg::File>(*ParseMessage("[File]vnt")).baseName, "v");
  EXPECT_EQ(std::get<msg::File>(*ParseMessage("[File].ann.vnt")).baseName, ".ann");
  for (const char* unreadable : {"[Vers]", "[Vers]1.2.\x01", "[Vers]11111111111111111"}) {
    EXPECT_EQ(std::get<msg::Vers>(*ParseMessage(unreadable)).version, "") << unreadable;
  }
}

TEST(Message, NothingTypedCanForgeAMessage) {
  EXPECT_EQ(WireText("a\u2021[Quit]\u2021\r\n\tb\x7F\u0081"), "a[Quit]b");
  EXPECT_EQ(WireText("caf\u00e9 \u20ac \u65e5"), "caf\u00e9 \u20ac ?");
  EXPECT_EQ(std::get<msg::Chat>(*ParseMessage("[Chat]a\r\nb")).text, "ab");
}

TEST(Framing, AnyCuttingGivesTheSameMessages) {
  const std::string stream = "[Play]\x87\x87[Chat]caf\xe9\x87[Turn]\x87[Cha";
  const std::vector<std::string> expected = {"[Play]", "", "[Chat]caf\xe9", "[Turn]"};
  SeededRandom chance(3);
  for (int round = 0; round < 200; ++round) {
    Framing framing;
    std::vector<std::string> messages;
    for (std::size_t at = 0; at < stream.size();) {
      const auto size = 1 + static_cast<std::size_t>(chance.Rnd() * 9);
      for (auto& message : framing.Feed(std::string_view(stream).substr(at, size)))
        messages.push_back(message);
      at += size;
    }
    EXPECT_EQ(messages, expected);
    EXPECT_EQ(framing.Feed("t]hi\x87"), std::vector<std::string>{"[Chat]hi"});
  }
}

TEST(Framing, AMessageTooLongBreaksTheStream) {
  const std::string longest(kMostFrame, 'x');
  Framing framing;
  EXPECT_EQ(framing.Feed(longest + "\x87").size(), 1u);
  EXPECT_TRUE(framing.Feed(longest).empty());
  EXPECT_FALSE(framing.broken());
  EXPECT_TRUE(framing.Feed("x\x87[Play]\x87").empty());
  EXPECT_TRUE(framing.broken());
  framing.Reset();
  EXPECT_EQ(framing.Feed("[Play]\x87").size(), 1u);
}

TEST(Address, IsFourGroupsOfDigitsAndAPortOneToFive) {
  for (const char* valid : {"192.168.0.12", "999.1.1.1", "1.2.3.4"}) EXPECT_TRUE(IsValidIP(valid)) << valid;
  for (const char* invalid :
       {"", "192.168.0", "1.2.3.4.5", "1..2.3", ".1.2.3", "1.2.3.", "1.2.3.x", "1.2.3. 4"}) {
    EXPECT_FALSE(IsValidIP(invalid)) << invalid;
  }
  EXPECT_EQ(PortOf("7000"), 7000);
  EXPECT_EQ(PortOf("  65535 "), 65535);
  for (const char* invalid : {"", " ", "0", "65536", "abc", "7 0", "-1", "000001"}) {
    EXPECT_FALSE(PortOf(invalid)) << invalid;
  }
  // Of six rows those are listed that others can use.
  const std::vector<std::string> rows = {"0.0.0.0",  "127.0.0.1", "10.0.0.1", "10.0.0.2",
                                         "10.0.0.3", "10.0.0.4",  "10.0.0.5"};
  EXPECT_EQ(UsableAddresses(rows), std::vector<std::string>(rows.begin() + 2, rows.begin() + 6));
}

TEST(ChatLog, KeepsTheLastLineHoweverLongItIs) {
  ChatLog log;
  std::string wide = "a";
  for (int character = 0; character < 4000; ++character) wide += "\u20ac";
  for (int line = 0; line < 3; ++line) log.AddLine(wide);
  EXPECT_NE(log.text().find(wide), std::string::npos);
  EXPECT_LT(log.text().size(), 3 * wide.size()) << "the oldest go";
}

std::string Word(Verdict verdict) {
  static constexpr std::array kWords = {"take", "keep", "late", "ahead", "fault"};
  return kWords.at(static_cast<std::size_t>(verdict));
}

/// The cells of a table row of the document, without blanks and code marks.
std::vector<std::string> Cells(const std::string& line) {
  std::vector<std::string> cells;
  std::istringstream row(line.substr(1));
  for (std::string cell; std::getline(row, cell, '|');) {
    std::erase_if(cell, [](char c) { return c == ' ' || c == '`'; });
    cells.push_back(cell);
  }
  return cells;
}

TEST(PeerPlace, TheDocumentTellsTheSameTable) {
  std::ifstream document(KV_SOURCE_DIR "/docs/protocol.md");
  std::size_t kind = 0;
  bool inTable = false;
  for (std::string line; std::getline(document, line);) {
    if (line.starts_with("| message | lobby |")) inTable = true;
    if (!inTable || !line.starts_with("| `[")) continue;
    const std::vector<std::string> cells = Cells(line);
    ASSERT_EQ(cells.size(), static_cast<std::size_t>(kPlaces) + 1) << line;
    // A message with this command is the kind of this row.
    static constexpr std::array kExamples = {"",        "",  "no7", "1", "hello", "", "1ps3",  "Ann", "",
                                             "ann.vnt", "7", "",    "",  "",      "", "1.2.4", "5",   "True"};
    const auto message = ParseMessage(cells[0] + kExamples.at(kind));
    ASSERT_TRUE(message.has_value()) << line;
    ASSERT_EQ(message->index(), kind) << line;
    for (int place = 0; place < kPlaces; ++place) {
      EXPECT_EQ(cells.at(static_cast<std::size_t>(place) + 1),
                Word(TableVerdict(kind, static_cast<Place>(place))))
          << line << " column " << place;
    }
    ++kind;
    if (kind == std::variant_size_v<Message>) return;
  }
  FAIL() << "rows found: " << kind;
}

TEST(PeerPlace, ConcludesFromTheOrderOfMessages) {
  PeerPlace peer;
  EXPECT_FALSE(peer.Ready(Place::Lobby));
  peer.SaysStart();
  peer.Plays(false);
  EXPECT_TRUE(peer.Ready(Place::Lobby)) << "it has pressed Start";
  EXPECT_FALSE(peer.Ready(Place::Cards));
  peer.Plays(false);
  EXPECT_TRUE(peer.Ready(Place::Cards));
  EXPECT_FALSE(peer.Ready(Place::Opening));
  peer.OwnTable();
  peer.Plays(false);
  EXPECT_TRUE(peer.Ready(Place::Opening));
  peer.OwnSetDecided();
  EXPECT_FALSE(peer.Ready(Place::Banner)) << "it has not gone on from the first set yet";
  peer.Plays(false);
  EXPECT_TRUE(peer.Ready(Place::Banner));
  peer.OwnSetDecided();
  EXPECT_FALSE(peer.Ready(Place::Over));
  peer.InLobby();
  EXPECT_TRUE(peer.Ready(Place::Over)) << "it has left the table";
}

TEST(PeerPlace, WhatWasSaidBeforeAReturnIsLate) {
  PeerPlace peer;
  peer.SaysStart();
  peer.Plays(true);
  peer.OwnLobby(Place::Desk);  // back from the cards while the peer is on its way there
  EXPECT_EQ(peer.at(), PeerPlace::At::Returning);
  EXPECT_EQ(peer.PlayMeans(), PeerPlace::Play::Nothing);
  EXPECT_FALSE(peer.Ready(Place::Lobby)) << "its Start is used up";
  const auto card = ParseMessage("[Card]no7")->index();
  EXPECT_EQ(peer.CourseOf(card, Place::Lobby, false), Course::Ignore);
  peer.InLobby();
  EXPECT_EQ(peer.CourseOf(card, Place::Lobby, false), Course::Refuse) << "now it should know";
  peer.SaysStart();
  peer.Plays(true);
  EXPECT_TRUE(peer.Ready(Place::Lobby));
  peer.OwnModeChange();
  EXPECT_FALSE(peer.Ready(Place::Lobby)) << "a mode change takes both Starts back";
  peer.InLobby();
  peer.SaysStart();
  peer.OwnModeChange();
  peer.Plays(true);
  EXPECT_FALSE(peer.Ready(Place::Lobby)) << "also one that had only been announced";
  peer.SaysStart();
  peer.Plays(true);
  EXPECT_TRUE(peer.Ready(Place::Lobby));
}

TEST(PeerPlace, AnEndOutOfOrderWaitsForTheRightPlay) {
  PeerPlace before;
  for (int play = 0; play < 3; ++play) {
    if (play == 0) before.SaysStart();
    before.Plays(false);
  }
  before.OwnTable();
  before.OwnSetDecided();
  PeerPlace forfeited = before;  // at the first banner, from which the peer may still go on
  forfeited.OwnForfeit(Place::Banner);
  forfeited.Plays(false);
  EXPECT_FALSE(forfeited.Ready(Place::Over)) << "that may have been the set's";
  forfeited.Plays(false);
  EXPECT_TRUE(forfeited.Ready(Place::Over));
  PeerPlace won = before;  // the peer forfeits: its next one leaves
  won.Forfeits();
  EXPECT_FALSE(won.Ready(Place::Over));
  won.Plays(false);
  EXPECT_TRUE(won.Ready(Place::Over));
}

TEST(PeerPlace, WhatIsEarlyWaitsOnlyForWhatThisSideIsAboutToDo) {
  PeerPlace peer;
  const auto card = ParseMessage("[Card]no7")->index();
  EXPECT_EQ(peer.CourseOf(card, Place::Handover, false), Course::Wait);
  EXPECT_EQ(peer.CourseOf(card, Place::Theirs, false), Course::Act);
  EXPECT_EQ(peer.CourseOf(card, Place::Ours, false), Course::Refuse);
  peer.OwnTable();
  peer.OwnSetDecided();
  EXPECT_EQ(peer.CourseOf(card, Place::Banner, true), Course::Refuse) << "the peer has not gone on";
  peer.SaysStart();
  for (int play = 0; play < 4; ++play) peer.Plays(false);
  EXPECT_EQ(peer.CourseOf(card, Place::Banner, true), Course::Wait);
  EXPECT_EQ(peer.CourseOf(card, Place::Banner, false), Course::Refuse) << "this side has not gone on";
}

}  // namespace
}  // namespace kv::test
