// The sheet on which things move, with a plain control and a thing that only counts its frames.
#include <gtest/gtest.h>

#include "presentation/MotionLayer.h"
#include "presentation/MovingPicture.h"
#include "support/HandScheduler.h"

namespace kv::test {
namespace {

class Filled final : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), Qt::white); }
};

class MotionLayerTest : public testing::Test {
 protected:
  MotionLayerTest() {
    screen.setFixedSize(100, 60);
    control->setGeometry(70, 20, 20, 20);
    screen.show();
  }
  void Fly(int delay = 0) {
    layer.Begin(std::make_unique<FlyingPicture>(
                    Flight{.front = layer.PictureOf(*control), .back = {}, .from = {10, 20}, .to = {70, 20}}),
                {.delay = delay, .length = 160, .easing = Easing::Even}, {control.get()});
  }
  /// Where the white square is seen: its left edge, or -1.
  int Left() {
    const QImage seen = screen.grab().toImage();
    for (int x = 0; x < 100; ++x) {
      if (seen.pixelColor(x, 30) == Qt::white) return x;
    }
    return -1;
  }

  HandScheduler clock;
  QWidget screen;
  std::unique_ptr<QWidget> control = std::make_unique<Filled>(&screen);
  MotionLayer layer{screen, clock};
};

TEST_F(MotionLayerTest, AControlIsSeenOnItsWayAndThenAtItsPlaceWithNoTimerLeft) {
  Fly(32);
  EXPECT_EQ(control->x(), 70) << "it stands there at once";
  EXPECT_EQ(Left(), 10);
  clock.Advance(32);
  EXPECT_EQ(Left(), 10);
  clock.Advance(80);
  EXPECT_NEAR(Left(), 40, 1);
  clock.Advance(80);
  EXPECT_EQ(Left(), 70);
  EXPECT_FALSE(layer.moving());
  EXPECT_EQ(clock.RunningTimers(), 0);
}

TEST_F(MotionLayerTest, ASecondMotionOfAControlEndsTheFirst) {
  Fly();
  clock.Advance(80);
  Fly();
  EXPECT_EQ(Left(), 10) << "its picture was taken although it was not drawn";
  layer.Finish(*control);
  EXPECT_EQ(Left(), 70);
  EXPECT_EQ(clock.RunningTimers(), 0);
}

TEST_F(MotionLayerTest, WhatIsHiddenOrGoneMovesNoMore) {
  Fly();
  control->hide();
  clock.Advance(16);
  EXPECT_FALSE(layer.moving());
  control->show();
  Fly();
  control.reset();
  EXPECT_EQ(Left(), 10);
  clock.Advance(16);
  EXPECT_FALSE(layer.moving());
  EXPECT_EQ(Left(), -1);
}

TEST_F(MotionLayerTest, AClosedOneMovesNothing) {
  Fly();
  layer.Close();
  EXPECT_EQ(Left(), 70);
  Fly();
  EXPECT_EQ(Left(), 70);
  EXPECT_EQ(clock.RunningTimers(), 0);
}

TEST(EasingTest, EachBeginsAtItsBeginningAndComesToItsEnd) {
  for (const Easing easing : {Easing::Even, Easing::Out, Easing::InOut, Easing::Over}) {
    EXPECT_NEAR(Eased(easing, 0), 0, 1e-12);
    EXPECT_EQ(Eased(easing, 1), 1);
    EXPECT_EQ(Eased(easing, 7), 1);
  }
}

}  // namespace
}  // namespace kv::test
