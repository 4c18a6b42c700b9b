#include <QAbstractButton>
#include <QJsonArray>
#include <QJsonObject>

#include "presentation/SkinFixture.h"
#include "presentation/ctlTitlebar.h"

namespace kv::test {
namespace {

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
