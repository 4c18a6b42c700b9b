#include <gtest/gtest.h>

#include <QJsonObject>
#include <QTest>

#include "cards/ctlCard.h"
#include "platform/QtPropertyBag.h"

namespace kv {
namespace {

Picture Plain(QSize size, QColor colour) {
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(colour);
  return Picture(std::make_shared<const QImage>(image));
}

class ctlCardTest : public testing::Test {
 protected:
  ctlCardTest() {
    look.faces.LoadCardPictures([](int number) { return Plain({48, 64}, QColor(number, 100, 0)); });
    look.picDim = Plain({83, 102}, Qt::black);
  }
  /// The face's colour in a corner that no label covers.
  [[nodiscard]] QColor Face() const { return card.Surface(1).pixelColor(2, 2); }

  CardLook look;
  QWidget window;
  ctlCard card{&window, look};
};

TEST_F(ctlCardTest, ShowsWhatTheCodeSays) {
  card.setCard("PS3");
  EXPECT_EQ(card.Card(), "ps3");
  EXPECT_EQ(card.Caption(), "+3");
  EXPECT_EQ(card.cardValue, 3);
  EXPECT_EQ(Face().red(), 203);

  card.setCard("ms3");
  EXPECT_EQ(card.cardValue, -3);
  EXPECT_EQ(Face().red(), 204);

  card.setCard("s399");
  EXPECT_EQ(card.Caption(), "2&&4");
  card.setCard("--");
  EXPECT_EQ(card.Caption(), "OOO");
  EXPECT_EQ(card.cardValue, 0);
  card.setCard("");
  EXPECT_TRUE(card.Caption().isEmpty());
  EXPECT_EQ(card.Surface(1).pixelColor(2, 2).alpha(), 0) << "no card, no face";
}

TEST_F(ctlCardTest, OnlyAnotherTypeReloadsTheFace) {
  card.setCard("ps3");
  card.Alpha(Plain({4, 4}, Qt::white), 255);
  card.setCard("ps5");
  EXPECT_EQ(Face(), QColor(Qt::white)) << "the same type keeps the picture as it is";
  card.setCard("fp5");
  EXPECT_EQ(Face().red(), 205);
}

TEST_F(ctlCardTest, DisabledCardsCarryTheDimOnce) {
  card.setCard("ps3");
  card.setEnabled(false);
  const int dimmed = 203 * (255 - 105) / 255;
  EXPECT_NEAR(Face().red(), dimmed, 1);
  card.setCard("ps4");
  EXPECT_NEAR(Face().red(), dimmed, 1);
  card.setEnabled(true);
  EXPECT_EQ(Face().red(), 203);
  card.grey();
  EXPECT_NEAR(Face().red(), dimmed, 1);
}

TEST_F(ctlCardTest, StylesHaveTheirSizesAndFaces) {
  card.setCard("no7");
  EXPECT_EQ(card.size(), QSize(48, 64));
  card.setCount("12");
  card.setShow_Count(true);
  card.setStyle("Ember");
  EXPECT_EQ(card.size(), QSize(83, 102));
  EXPECT_EQ(Face().red(), 222);
  EXPECT_FALSE(card.Show_Count()) << "a new layout hides the count";
  EXPECT_EQ(card.count(), "12");
  card.setStyle("Brass");
  EXPECT_EQ(card.size(), QSize(83, 102));
  EXPECT_EQ(card.Surface(2).size(), QSize(166, 204)) << "drawn sharply at twice the size";

  look.interfaceStyle = "Ember";
  EXPECT_EQ(ctlCard(&window, look).size(), QSize(83, 102));
}

TEST_F(ctlCardTest, PropertyBag) {
  card.ReadProperties(PropertyBag());
  EXPECT_EQ(card.count(), "-1");
  EXPECT_EQ(card.Style(), "Slate");
  EXPECT_TRUE(card.Enabled());
  EXPECT_EQ(card.Card(), "");
  card.ReadProperties(
      PropertyBag(QJsonObject{{"Card", "FL2"}, {"enabled", false}, {"count", 3}, {"style", "Ember"}}));
  EXPECT_EQ(card.Card(), "fl2");
  EXPECT_EQ(card.count(), "3");
  EXPECT_FALSE(card.Enabled());
  EXPECT_EQ(card.size(), QSize(83, 102));
}

TEST_F(ctlCardTest, MouseEvents) {
  std::string events;
  card.setCard("ps3");
  card.Click = [&] { events += "click "; };
  card.DblClick = [&] { events += "double "; };
  card.MouseDown = [&](auto, auto, QPoint at) { events += "down" + std::to_string(at.x()) + " "; };
  card.MouseUp = [&](auto, auto, QPoint) { events += "up "; };
  const QPoint surface(4, 4);
  const QPoint caption(20, 25);
  QTest::mouseClick(&card, Qt::LeftButton, {}, surface);
  EXPECT_EQ(events, "down4 up click ");
  events.clear();
  QTest::mouseClick(&card, Qt::LeftButton, {}, caption);
  EXPECT_EQ(events, "click ") << "the caption keeps a plain press to itself";
  events.clear();
  QTest::mouseDClick(&card, Qt::LeftButton, {}, caption);
  EXPECT_NE(events.find("double"), std::string::npos);
  events.clear();
  QTest::mousePress(&card, Qt::LeftButton, {}, caption);
  QTest::mouseMove(&card, caption + QPoint(30, 30));
  QTest::mouseRelease(&card, Qt::LeftButton, {}, caption + QPoint(30, 30));
  EXPECT_EQ(events, "down20 up ") << "a press that is drawn away takes hold of the card";
  events.clear();
  card.setEnabled(false);
  QTest::mouseClick(&card, Qt::LeftButton, {}, surface);
  QTest::mouseDClick(&card, Qt::LeftButton, {}, surface);
  EXPECT_EQ(events, "");
}

TEST(CardFacesTest, FacesByPictureNumber) {
  CardFaces faces;
  faces.LoadCardPictures([](int number) { return Plain({number, 1}, Qt::red); });
  EXPECT_EQ(faces.CardFace(201).image()->width(), 201);
  EXPECT_EQ(faces.CardFace(227).image()->width(), 227);
  for (const int none : {200, 208, 220, 240, 307, 27, -201})
    EXPECT_TRUE(faces.CardFace(none).empty()) << none;
}

TEST(CardFacesTest, CardsInWords) {
  for (const auto& [code, words] :
       std::initializer_list<std::pair<const char*, const char*>>{{"ps3", "plus 3"},
                                                                  {"mi3", "plus 3"},
                                                                  {"ms-3", "minus 3"},
                                                                  {"no7", "7"},
                                                                  {"fl2", "plus or minus 2"},
                                                                  {"fm2", "flip card, minus 2"},
                                                                  {"s1-1", "tiebreaker, minus 1"},
                                                                  {"s299", "double"},
                                                                  {"s399", "flip 2 and 4"},
                                                                  {"un", "face-down card"},
                                                                  {"", ""}}) {
    EXPECT_EQ(SpokenCard(CardCode(code)), words);
  }
}

}  // namespace
}  // namespace kv
