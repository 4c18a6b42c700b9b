#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QLabel>
#include <stdexcept>

#include "presentation/Layout.h"

namespace kv::test {
namespace {

TEST(PropertyBagTest, FindsKeysInAnyCaseAndFallsBackWhereTheKindIsWrong) {
  const PropertyBag bag(
      QJsonObject{{"Caption", "End Turn"},
                  {"count", "three"},
                  {"border_color", QJsonArray{1, 2, 3}},
                  {"broken_color", QJsonArray{1, 2, 300}},
                  {"font", QJsonObject{{"family", "BankGothic Lt BT"}, {"size", 14}, {"bold", true}}}});
  EXPECT_EQ(bag.text(u"CAPTION"), "End Turn");
  EXPECT_EQ(bag.number(u"count", 7), 7);
  EXPECT_TRUE(bag.flag(u"caption", true));
  EXPECT_EQ(bag.colour(u"Border_Color"), QColor(1, 2, 3));
  EXPECT_EQ(bag.colour(u"broken_color", Qt::red), QColor(Qt::red));
  EXPECT_FALSE(bag.has(u"enabled"));
  const QFont font = bag.font(u"Font");
  EXPECT_EQ(font.family(), "BankGothic Lt BT");
  EXPECT_EQ(font.pixelSize(), 19);  // 14 points of 96 to the inch
  EXPECT_TRUE(font.bold());
  const QFont own = FontOf("Sans", 11, false);
  EXPECT_EQ(bag.font(u"none", own), own);
}

TEST(LayoutTest, AnUnknownStyleIsLaidOutAsSlate) {
  EXPECT_EQ(Layout("frmGame", "Granite").size(), QSize(786, 540));
  EXPECT_EQ(Layout("frmGame", "Granite").rect(u"cmdTurn"), QRect(20, 393, 124, 30));
}

TEST(LayoutTest, PlacesAndNamesAWidget) {
  Layout layout("frmGame", "Ember");
  QWidget window;
  QWidget button(&window);
  layout.Place(u"cmdStand", button);
  EXPECT_EQ(button.geometry(), QRect(276, 648, 150, 32));
  EXPECT_EQ(button.objectName(), "cmdStand");
  EXPECT_FALSE(button.accessibleName().isEmpty());
}

TEST(LayoutTest, NamingWhatIsNotThereIsAFault) {
  EXPECT_THROW(Layout("frmNowhere", "Slate"), std::out_of_range);
  const Layout layout("frmGame", "Slate");
  EXPECT_FALSE(layout.has(u"cmdNowhere"));
  EXPECT_THROW(static_cast<void>(layout.rect(u"cmdNowhere")), std::out_of_range);
  EXPECT_THROW(static_cast<void>(layout.bag(u"cmdNowhere")), std::out_of_range);
}

}  // namespace
}  // namespace kv::test
