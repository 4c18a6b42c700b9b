// What is a message and what is not; what a person types in the lobby.
#include <gtest/gtest.h>

#include "network/Address.h"
#include "network/ChatLog.h"
#include "network/Framing.h"
#include "network/Message.h"
#include "platform/Random.h"

namespace kv {
namespace {

TEST(Message, TakesOnlyWhatItsCommandCanCarry) {
  for (const char* valid :
       {"[Acpt]",        "[Back]",          "[Card]no1",   "[Card]no10",  "[Mode]1",          "[Mode]False",
        "[Chat]",        "[Chat]<b>hi</b>", "[Forf]",      "[Hand]1ps6",  "[Hand]4ms-6",      "[Hand]2ms3",
        "[Hand]2fp3",    "[Hand]3fm3",      "[Hand]1s11",  "[Hand]1s1-1", "[Hand]1s299",      "[Hand]1s399",
        "[Hand]1s499",   "[Hand]1s5-2",     "[Name]Ann",   "[Play]",      "[Rset]",           "[File]0",
        "[File]ann.vnt", "[Port]0",         "[Port]65",    "[Quit]",      "[Stnd]",           "[Turn]",
        "[TAck]",        "[Vers]1.2.9",     "[Vers]1.3.0", "[Wage]0",     "[Wage]2000000000", "[WhoS]True",
        "[WhoS]0"}) {
    EXPECT_TRUE(ParseMessage(valid)) << valid;
  }
  for (const char* invalid : {"",
                              "[Pla",
                              "[play]",
                              "[Play]1",
                              "[Quit] ",
                              "[Xyzw]hello",
                              "[Card]",
                              "[Card]no0",
                              "[Card]no11",
                              "[Card]no07",
                              "[Card]no-3",
                              "[Card]NO3",
                              "[Card]ps3",
                              "[Mode]",
                              "[Mode]2",
                              "[Mode]true",
                              "[Hand]",
                              "[Hand]0ps3",
                              "[Hand]5ps3",
                              "[Hand]1",
                              "[Hand]1ps",
                              "[Hand]1ps0",
                              "[Hand]1ps7",
                              "[Hand]1ps-3",
                              "[Hand]1ps03",
                              "[Hand]1no7",
                              "[Hand]1fl3",
                              "[Hand]1s199",
                              "[Hand]1s23",
                              "[Hand]1s53",
                              "[Hand]1un",
                              "[Hand]100",
                              "[Hand]1pi3",
                              "[Name]",
                              "[Name]   ",
                              "[Name]\n",
                              "[File]",
                              "[File]../ann.vnt",
                              "[File]a\\b.vnt",
                              "[File]/etc/passwd",
                              "[File].vnt",
                              "[File]*.vnt",
                              "[File]C:a.vnt",
                              "[File]a\n.vnt",
                              "[Port]",
                              "[Port]66",
                              "[Port]-1",
                              "[Port]7x",
                              "[Port]99999999999",
                              "[Wage]",
                              "[Wage]-1",
                              "[Wage]2000000001",
                              "[Wage]5 ",
                              "[Wage]+5",
                              "[WhoS]",
                              "[WhoS]yes"}) {
    EXPECT_FALSE(ParseMessage(invalid)) << invalid;
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
