#include <gmock/gmock.h>

#include <set>

#include "packing/Catalogue.h"
#include "portraits/Table.h"
#include "presentation/PortraitWords.h"

namespace kv::datafile {
namespace {

using testing::HasSubstr;

constexpr std::string_view kRow = R"({"number": 7, "kind": "Human", "shape": "Egg", "build": "Usual",
  "place": "Window", "skin": "#c89870", "cloth": "#3c5878", "hair": "#3a2820", "back": "#2e5a86",
  "eye": "#4c6c40", "width": 0.98, "length": 1, "jaw": 0.5, "tilt": 3, "turn": -0.3, "nod": 0,
  "hairStyle": "Short", "gear": "None", "growth": "None", "eyes": "Plain", "mood": "Smile", "mouth": "Lips",
  "garment": "Uniform", "mark": "None"})";

/// The fault of a table of one row in which `from` has become `to`.
std::string FaultWith(std::string_view from, std::string_view to) {
  std::string row(kRow);
  row.replace(row.find(from), from.size(), to);
  return ParseBusts("[" + row + "]").fault;
}

TEST(PortraitTable, OfTheGameIsWholeAndARowIsTakenAsItStands) {
  const BustTable table = ReadBusts();
  EXPECT_EQ(table.fault, "");
  EXPECT_EQ(Catalogue(table.rows).Fault(), "");
  const BustTable one = ParseBusts("[" + std::string(kRow) + "]");
  ASSERT_EQ(one.rows.size(), 1U) << one.fault;
  const BustSpec& row = one.rows.front();
  EXPECT_EQ(row.skin, 0xffc89870U);
  EXPECT_EQ(row.mouth, Mouth::Lips);
  EXPECT_EQ(row.garment, Garment::Uniform);
  EXPECT_DOUBLE_EQ(row.turn, -0.3);
}

TEST(PortraitTable, TellsWhatIsWrongWithARow) {
  EXPECT_THAT(FaultWith("\"Egg\"", "\"Eg\""), HasSubstr(R"("shape" is "Eg"; it must be one of Egg, Round)"));
  EXPECT_THAT(FaultWith("\"mark\": \"None\"", "\"mark\": 3"), HasSubstr(R"("mark" is 3)"));
  EXPECT_THAT(FaultWith("#c89870", "c89870"), HasSubstr(R"("skin" is "c89870"; it must be a colour)"));
  EXPECT_THAT(FaultWith("\"tilt\": 3", "\"tilt\": 90"), HasSubstr("a number from -30 to 30"));
  EXPECT_THAT(FaultWith("\"tilt\": 3, ", ""), HasSubstr("\"tilt\" is missing"));
  EXPECT_THAT(FaultWith("\"tilt\"", "\"title\""), HasSubstr("\"tilt\" is missing"));
  EXPECT_THAT(FaultWith("{\"number\"", "{\"hat\": 1, \"number\""), HasSubstr("\"hat\" is no field"));
  EXPECT_THAT(FaultWith("\"number\": 7", "\"number\": 7.5"), HasSubstr("whole"));
  EXPECT_THAT(FaultWith("\"tilt\": 3,", "\"tilt\": 3"), HasSubstr("line "));
  EXPECT_THAT(ParseBusts("[" + std::string(kRow) + "," + std::string(kRow) + "]").fault,
              HasSubstr("row 2 (number 7): there is a row of that number"));
  EXPECT_THAT(ParseBusts("{}").fault, HasSubstr("no list"));
}

TEST(PortraitTable, HasARowForEveryPictureAndAPictureForEveryRow) {
  std::vector<BustSpec> rows = ReadBusts().rows;
  rows.back().number = 66;
  EXPECT_THAT(Catalogue(rows).Fault(), HasSubstr("portrait 66 has a row"));
  rows.pop_back();
  EXPECT_THAT(Catalogue(rows).Fault(), HasSubstr("portrait 65 has a picture number, but no row"));
}

TEST(PortraitTable, HasWordsForEveryRowAndForNoOtherNumber) {
  std::set<int> painted;
  for (const BustSpec& row : ReadBusts().rows) painted.insert(row.number);
  for (int number = 0; number < 100; ++number) {
    EXPECT_EQ(!PortraitWords(number).isEmpty(), painted.contains(number)) << number;
  }
}

}  // namespace
}  // namespace kv::datafile
