// What is a message and what is not; what a person types in the lobby.
#include <gtest/gtest.h>

#include <map>

#include "network/Address.h"
#include "network/ChatLog.h"
#include "network/Framing.h"
#include "network/Message.h"
#include "platform/Random.h"

namespace kv {
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

TEST(Address, IsFourGroupsOfDigits) {
  for (const char* valid : {"192.168.0.12", "999.1.1.1", "1.2.3.4"}) EXPECT_TRUE(IsValidIP(valid)) << valid;
  for (const char* invalid :
       {"", "192.168.0", "1.2.3.4.5", "1..2.3", ".1.2.3", "1.2.3.", "1.2.3.x", "1.2.3. 4"}) {
    EXPECT_FALSE(IsValidIP(invalid)) << invalid;
  }
}

TEST(Address, APortIsOneToFiveDigits) {
  EXPECT_EQ(PortOf("7000"), 7000);
  EXPECT_EQ(PortOf("  65535 "), 65535);
  for (const char* invalid : {"", " ", "0", "65536", "abc", "7 0", "-1", "000001"}) {
    EXPECT_FALSE(PortOf(invalid)) << invalid;
  }
}

TEST(Address, OfSixRowsThoseAreListedThatOthersCanUse) {
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

}  // namespace
}  // namespace kv
