// The skinned controls: buttons and the title bar.
#include <QAbstractButton>
#include <QAccessible>
#include <QJsonArray>
#include <QJsonObject>
#include <QKeyEvent>
#include <QLabel>

#include "presentation/SkinFixture.h"
#include "presentation/ctlButton.h"
#include "presentation/ctlTitlebar.h"

namespace kv::test {
namespace {

const QColor kNormal(0, 169, 251);
const QColor kHover(255, 255, 0);
const QColor kPressed(255, 0, 0);
const QColor kGrey(128, 128, 128);
constexpr QPoint kInside(10, 10);

class ButtonTest : public SkinFixture {
 protected:
  ButtonTest() {
    window.resize(300, 100);
    for (ctlButton* button : {&first, &second}) {
      button->setCaption("Stand");
      button->resize(120, 30);
    }
    second.move(150, 0);
  }

  QWidget window;
  ctlButton first{&window, context};
  ctlButton second{&window, context};
};

TEST_F(ButtonTest, PaintsBorderInTheColourOfItsState) {
  const auto expectBorder = [this](const QColor& color) {
    EXPECT_EQ(first.Color(), color);
    for (const QPoint at : {QPoint(60, 0), QPoint(0, 15), QPoint(119, 15), QPoint(60, 29)}) {
      EXPECT_EQ(Pixel(first, at), color);
    }
  };
  expectBorder(kNormal);
  Hover(first, kInside);
  expectBorder(kHover);
  Press(first, kInside);
  expectBorder(kPressed);
  Release(first, QPoint(500, 10));  // outside: no click
  expectBorder(kNormal);
  first.setEnabled(false);
  expectBorder(kGrey);
}

TEST_F(ButtonTest, AClickDisablesThenSoundsThenReports) {
  int clicks = 0;
  first.setClick_Sound("check");
  first.Click = [&] {
    ++clicks;
    EXPECT_FALSE(first.Enabled());
    EXPECT_EQ(sound.played, std::vector<std::string>{"check"});
  };
  ClickOn(first, kInside);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(first.Color(), kGrey);
  ClickOn(first, kInside);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(first.Color(), kGrey);

  sound.played.clear();
  first.setEnabled(true);
  EXPECT_EQ(first.Color(), kNormal);
  Point(first, QEvent::MouseButtonPress, kInside, Qt::RightButton, Qt::RightButton);
  EXPECT_EQ(first.Color(), kPressed);
  Point(first, QEvent::MouseButtonRelease, kInside, Qt::RightButton);
  EXPECT_EQ(clicks, 1);
  // The second press of a fast pair is a press like any other.
  Point(first, QEvent::MouseButtonDblClick, kInside, Qt::LeftButton, Qt::LeftButton);
  Release(first, kInside);
  EXPECT_EQ(clicks, 2);
}

TEST_F(ButtonTest, TheHighlightMovesWithThePointerAndSoundsOnceAButton) {
  int moves = 0;
  first.MouseMove = [&] { ++moves; };
  Hover(first, kInside);
  Hover(first, QPoint(20, 20));
  EXPECT_EQ(moves, 2);
  EXPECT_EQ(sound.Count("hover"), 1);
  Hover(second, kInside);
  EXPECT_EQ(first.Color(), kNormal);
  EXPECT_EQ(second.Color(), kHover);
  EXPECT_EQ(sound.Count("hover"), 2);
  EXPECT_EQ(context.RememberedButton(), &second);
  context.unColor();
  EXPECT_EQ(second.Color(), kNormal);

  player.Mute_Highlight_Opt = true;
  Hover(second, kInside);
  EXPECT_EQ(second.Color(), kHover);
  EXPECT_EQ(sound.Count("hover"), 2);
}

TEST_F(ButtonTest, APressedButtonKeepsItsColourUntilItIsTold) {
  Press(first, kInside);
  Point(first, QEvent::MouseMove, QPoint(500, 10), Qt::NoButton, Qt::LeftButton);
  EXPECT_EQ(first.Color(), kPressed);
  EXPECT_EQ(sound.Count("hover"), 0);
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(&first, &leave);
  EXPECT_EQ(first.Color(), kPressed);
  first.unColor();
  EXPECT_EQ(first.Color(), kNormal);
  first.setEnabled(false);
  first.unColor();
  EXPECT_EQ(first.Color(), kGrey);
}

TEST_F(ButtonTest, ADeletedButtonIsRememberedNoMore) {
  auto third = std::make_unique<ctlButton>(&window, context);
  Hover(*third, kInside);
  third.reset();
  EXPECT_EQ(context.RememberedButton(), nullptr);
  Hover(first, kInside);
  EXPECT_EQ(first.Color(), kHover);
}

TEST_F(ButtonTest, ReadsItsPropertiesInAnyCaseAndDefaultsToSlate) {
  first.ReadProperties(PropertyBag(QJsonObject{{"CAPTION", "Forfeit"},
                                               {"color_style", "Ember"},
                                               {"click_sound", "buy"},
                                               {"labeloffset", 3},
                                               {"Enabled", false}}));
  EXPECT_EQ(first.Caption(), "Forfeit");
  EXPECT_EQ(first.Click_Sound(), "buy");
  EXPECT_EQ(first.LabelOffset(), 3);
  EXPECT_EQ(first.Color(), kGrey);
  first.setEnabled(true);
  EXPECT_EQ(first.Color(), QColor(102, 77, 0));
  first.setColor_Style("Ember_Menu");
  EXPECT_EQ(first.Color(), QColor(26, 178, 140));
  first.setColor_Style("Granite");  // unknown: the colours stay
  EXPECT_EQ(first.Color(), QColor(26, 178, 140));

  first.ReadProperties(PropertyBag());
  EXPECT_EQ(first.Color(), kNormal);
  EXPECT_EQ(first.Click_Sound(), "click");
  EXPECT_EQ(first.Caption(), QString());
  EXPECT_TRUE(first.Enabled());
}

TEST_F(ButtonTest, TheKeyboardReachesItWhereTheScreenWants) {
  int clicks = 0;
  first.Click = [&] { ++clicks; };
  window.show();
  window.activateWindow();
  first.setFocus();
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&first, &press);
    EXPECT_FALSE(first.Enabled());
    EXPECT_FALSE(second.hasFocus());  // the focus waits for it
    first.setEnabled(true);
    EXPECT_EQ(window.focusWidget(), &first);
  }
  EXPECT_EQ(clicks, 2);
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QString(), true);
  QCoreApplication::sendEvent(&first, &held);
  EXPECT_EQ(clicks, 2);
}

TEST_F(ButtonTest, TellsAssistiveToolsThatItIsAButton) {
  QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&first);
  ASSERT_NE(accessible, nullptr);
  EXPECT_EQ(accessible->role(), QAccessible::Button);
  EXPECT_EQ(accessible->text(QAccessible::Name), "Stand");
}

const QColor kIdle(128, 0, 0);
const QColor kHot(255, 0, 0);
const QColor kPressedCross(255, 255, 255);
constexpr QPoint kOnQuit(7, 7);

class TitlebarTest : public SkinFixture {
 protected:
  TitlebarTest() {
    window.resize(786, 540);
    bar.setGeometry(0, 0, 786, 24);
    bar.Quit = [this] { ++quits; };
    bar.MouseMove = [this] { ++moves; };
  }

  QWidget window{nullptr, Qt::FramelessWindowHint};
  ctlTitlebar bar{&window, context};
  int quits = 0;
  int moves = 0;
};

TEST_F(TitlebarTest, TheCloseButtonShowsItsStateAndAsksToQuit) {
  EXPECT_EQ(bar.QuitColor(), kIdle);
  EXPECT_EQ(Pixel(bar.cmdQuit(), QPoint(7, 3)), kIdle);
  Hover(bar.cmdQuit(), kOnQuit);
  Hover(bar.cmdQuit(), kOnQuit + QPoint(1, 0));
  EXPECT_EQ(bar.QuitColor(), kHot);
  EXPECT_EQ(sound.Count("hover"), 1);
  Press(bar.cmdQuit(), kOnQuit);
  EXPECT_EQ(bar.QuitColor(), kPressedCross);
  EXPECT_EQ(Pixel(bar.cmdQuit(), QPoint(7, 3)), kPressedCross);
  Hover(bar.cmdQuit(), kOnQuit);
  EXPECT_EQ(bar.QuitColor(), kPressedCross);
  EXPECT_EQ(quits, 0);
  Release(bar.cmdQuit(), kOnQuit);
  EXPECT_EQ(bar.QuitColor(), kIdle);
  EXPECT_EQ(quits, 1);
}

TEST_F(TitlebarTest, TheDragAreaTakesTheHighlightFromTheCloseButton) {
  Hover(bar.cmdQuit(), kOnQuit);
  Hover(bar.drgTitlebar(), QPoint(100, 10));
  EXPECT_EQ(bar.QuitColor(), kIdle);
  EXPECT_EQ(moves, 1);
}

TEST_F(TitlebarTest, EveryPlaceOfTheBarBelongsToItsDragAreaOrAButton) {
  window.show();
  for (const int width : {786, 1024}) {
    bar.resize(width, 30);
    for (const QPoint at : {QPoint(0, 0), QPoint(width / 2, 15), QPoint(width - 1, 29)}) {
      EXPECT_EQ(bar.childAt(at), &bar.drgTitlebar()) << at.x();
    }
    EXPECT_EQ(bar.childAt(bar.cmdQuit().geometry().center()), &bar.cmdQuit());
  }
}

TEST_F(TitlebarTest, DraggingTheBarMovesTheWindow) {
  window.move(50, 60);
  window.show();
  const QPoint start = window.pos();
  Press(bar.drgTitlebar(), QPoint(100, 10));
  Point(bar.drgTitlebar(), QEvent::MouseMove, QPoint(101, 11), Qt::NoButton, Qt::LeftButton);
  EXPECT_EQ(window.pos(), start) << "a click by a hand that trembles";
  Point(bar.drgTitlebar(), QEvent::MouseMove, QPoint(130, 25), Qt::NoButton, Qt::LeftButton);
  EXPECT_EQ(window.pos(), start + QPoint(30, 15));
  Release(bar.drgTitlebar(), QPoint(100, 10));
  Hover(bar.drgTitlebar(), QPoint(300, 10));
  EXPECT_EQ(window.pos(), start + QPoint(30, 15));
  // A press with another button, or the end of a drag that nobody saw, moves nothing.
  Point(bar.drgTitlebar(), QEvent::MouseButtonPress, QPoint(100, 10), Qt::RightButton, Qt::RightButton);
  Point(bar.drgTitlebar(), QEvent::MouseMove, QPoint(200, 10), Qt::NoButton, Qt::RightButton);
  Press(bar.drgTitlebar(), QPoint(100, 10));
  Hover(bar.drgTitlebar(), QPoint(300, 10));
  EXPECT_EQ(window.pos(), start + QPoint(30, 15));
}

TEST_F(TitlebarTest, TheMinimiseLabelFollowsThePlayerOnceThereIsOne) {
  window.show();
  context.setPlayer(nullptr);
  bar.ReadProperties(PropertyBag(QJsonObject{{"minimize", false}}));
  EXPECT_TRUE(bar.cmdMini().isHidden());
  player.ShowMinimize_Opt = true;
  context.setPlayer(&player);
  bar.resize(1024, 30);
  EXPECT_FALSE(bar.cmdMini().isHidden());
  EXPECT_LT(bar.cmdMini().geometry().right(), bar.cmdQuit().x());
  EXPECT_LT(bar.cmdQuit().geometry().right(), bar.width());
  player.ShowMinimize_Opt = false;
  bar.Relayout();
  EXPECT_TRUE(bar.cmdMini().isHidden());

  ClickOn(bar.cmdMini(), kOnQuit);
  EXPECT_TRUE(window.windowState().testFlag(Qt::WindowMinimized));
}

TEST_F(TitlebarTest, TheBorderColourIsAlsoTheMinimiseLabels) {
  const QColor border(90, 200, 40);
  bar.ReadProperties(
      PropertyBag(QJsonObject{{"Caption", "Arcade Match"},
                              {"Border_Color", QJsonArray{border.red(), border.green(), border.blue()}}}));
  EXPECT_EQ(bar.Caption(), "Arcade Match");
  EXPECT_EQ(bar.lblTitlebar().text(), "Arcade Match");
  EXPECT_EQ(Pixel(bar.cmdMini(), QPoint(7, 3)), border);
  EXPECT_EQ(Pixel(bar, QPoint(300, 23)), border);
}

}  // namespace
}  // namespace kv::test
