// What fades, pulses and moves: the effects, round windows, and the sheet on which things move.
#include <QPainter>

#include "presentation/Effects.h"
#include "presentation/MotionLayer.h"
#include "presentation/MovingPicture.h"
#include "presentation/RoundWindow.h"
#include "presentation/SkinFixture.h"
#include "presentation/ctlButton.h"
#include "support/HandScheduler.h"

namespace kv::test {
namespace {

Picture Plain(QColor color, int side = 20) {
  QImage image(side, side, QImage::Format_RGB32);
  image.fill(color);
  return Picture(std::make_shared<const QImage>(image));
}

class FakeCard : public PulsingCard {
 public:
  void Alpha(const Picture&, int level) override { levels.push_back(level); }
  [[nodiscard]] bool Enabled() const override { return enabled; }

  std::vector<int> levels;
  bool enabled = true;
};

class WidgetCard final : public QWidget, public FakeCard {};

class EffectsTest : public SkinFixture {
 protected:
  EffectsTest() {
    box.setPicture(Plain(Qt::black));
    player.Interface_Opt = "Ember";
  }

  /// The strengths of the next `steps` ticks.
  std::vector<int> Strengths(int steps) {
    std::vector<int> strengths;
    for (int i = 0; i < steps; ++i) {
      clock.Advance(20);
      strengths.push_back(box.alpha());
    }
    return strengths;
  }
  static std::vector<int> Run(int from, int to, int step) {
    std::vector<int> run;
    for (int v = from; step > 0 ? v <= to : v >= to; v += step) run.push_back(v);
    return run;
  }

  HandScheduler clock;
  GlobalPictures pictures;
  Effects effects{clock, context, pictures};
  FadeTarget box;
  Effects::Pair pair{Plain(Qt::white), &box};
};

TEST_F(EffectsTest, AFadeRunsUpOnceAndStopsAfterItsLastStrength) {
  effects.FadeOnce(pair, {.start = 0, .end = 255, .step = 15});
  EXPECT_EQ(Strengths(18), Run(0, 255, 15));
  EXPECT_FALSE(effects.fading());
  EXPECT_EQ(clock.RunningTimers(), 0);

  effects.FadeOnce(pair, {.start = 0, .end = 100, .step = 30});  // the last one not above the end
  EXPECT_EQ(Strengths(5), (std::vector<int>{0, 30, 60, 90, 90}));
}

TEST_F(EffectsTest, ALoopSwingsBetweenItsStartAndFullStrength) {
  effects.FadeLoop(pair, {.start = 100, .end = 255, .step = 10});
  EXPECT_EQ(Strengths(26), Run(0, 250, 10));
  for (int swing = 0; swing < 2; ++swing) {
    EXPECT_EQ(Strengths(16), Run(255, 105, -10));
    EXPECT_EQ(Strengths(16), Run(100, 250, 10));
  }
}

TEST_F(EffectsTest, ALoopThatRisesToFullStrengthStaysThereForTwoSteps) {
  effects.FadeLoop(pair, {.start = 0, .end = 255, .step = 15});
  EXPECT_EQ(Strengths(18), Run(0, 255, 15));
  EXPECT_EQ(Strengths(18), Run(255, 0, -15));
  EXPECT_EQ(Strengths(17), Run(15, 255, 15));
}

TEST_F(EffectsTest, AFadeMovesBothItsPairsAndReplacesTheOneBefore) {
  FadeTarget second;
  effects.FadeLoop(pair, {.start = 0, .end = 255, .step = 15}, {Plain(Qt::red), &second});
  clock.Advance(60);
  EXPECT_EQ(box.alpha(), 30);
  EXPECT_EQ(second.alpha(), 30);
  {
    FadeTarget third;
    effects.FadeOnce({Plain(Qt::red), &third}, {.start = 0, .end = 255, .step = 15});
    clock.Advance(40);
    EXPECT_EQ(third.alpha(), 15);
    EXPECT_EQ(box.alpha(), 30);
  }
  clock.Advance(40);  // the box is gone, the fade goes on without it
  effects.StopFade();
  EXPECT_EQ(clock.RunningTimers(), 0);
}

TEST_F(EffectsTest, BlendingReplacesWhatWasBlendedBefore) {
  box.resize(20, 20);
  Effects::AlphaBlendPicture(Plain(Qt::white), box, 102);
  Effects::AlphaBlendPicture(Plain(Qt::white, 10), box, 51);
  EXPECT_NEAR(Pixel(box, QPoint(5, 5)).red(), 51, 1);
  EXPECT_EQ(Pixel(box, QPoint(15, 15)), QColor(Qt::black));  // the source covers only its own size
  Effects::AlphaBlendPicture(Picture(), box, 255);
  EXPECT_EQ(Pixel(box, QPoint(5, 5)), QColor(Qt::black));
}

TEST_F(EffectsTest, ThePulseSwingsAndRestsWithoutACard) {
  FakeCard card;
  effects.StartCardPulse(&card);
  clock.Advance(20 * 24);
  std::vector<int> expected = Run(0, 200, 20);
  for (const int v : Run(180, 20, -20)) expected.push_back(v);
  for (const int v : Run(40, 100, 20)) expected.push_back(v);
  EXPECT_EQ(card.levels, expected);
  effects.StartCardPulse(&card);  // the same card: nothing starts anew
  clock.Advance(20);
  EXPECT_EQ(card.levels.back(), 120);

  effects.StopCardPulse();
  EXPECT_EQ(card.levels.back(), 0);
  clock.Advance(100);
  EXPECT_EQ(clock.RunningTimers(), 0);
  effects.StartCardPulse(&card);  // the value has waited
  clock.Advance(20);
  EXPECT_EQ(card.levels.back(), 140);
}

TEST_F(EffectsTest, AnotherCardTakesThePulseOver) {
  FakeCard first;
  FakeCard disabled;
  FakeCard last;
  effects.StartCardPulse(&first);
  clock.Advance(40);
  effects.StartCardPulse(&disabled);
  EXPECT_EQ(first.levels.back(), 0);
  clock.Advance(40);
  disabled.enabled = false;
  effects.StartCardPulse(&last);  // a disabled card keeps its look
  EXPECT_EQ(disabled.levels.back(), 60);
  {
    WidgetCard fleeting;
    effects.StartCardPulse(&fleeting);
    clock.Advance(20);
  }
  clock.Advance(20);
  EXPECT_EQ(effects.pulsingCard(), nullptr);
}

TEST_F(EffectsTest, NoPulseInSlateOrWhenItIsSwitchedOff) {
  FakeCard card;
  player.LightPulse_Opt = false;
  effects.StartCardPulse(&card);
  player.LightPulse_Opt = true;
  player.Interface_Opt = "Slate";
  effects.StartCardPulse(&card);
  clock.Advance(100);
  EXPECT_TRUE(card.levels.empty());
  EXPECT_EQ(clock.RunningTimers(), 0);
}

TEST_F(EffectsTest, StoppingAllForgetsTheHighlightToo) {
  ctlButton button(nullptr, context);
  FakeCard card;
  Hover(button, QPoint(1, 1));
  effects.FadeLoop(pair, {});
  effects.StartCardPulse(&card);
  effects.StopEffects();
  clock.Advance(20);
  EXPECT_EQ(context.RememberedButton(), nullptr);
  EXPECT_EQ(effects.pulsingCard(), nullptr);
  EXPECT_EQ(clock.RunningTimers(), 0);
}

TEST(GlobalPicturesTest, HaveTheirSizesAndTheMasksTheirCorners) {
  const GlobalPictures pictures;
  for (const Picture& p : {pictures.picHighlight(), pictures.picDim, pictures.imgMaskEmber}) {
    EXPECT_EQ(p.image()->deviceIndependentSize(), QSizeF(83, 102));
  }
  EXPECT_EQ(pictures.imgMaskSlate.image()->deviceIndependentSize(), QSizeF(48, 64));
  EXPECT_EQ(pictures.imgMaskSlate.image()->pixelColor(0, 0).alpha(), 0);
  EXPECT_EQ(pictures.imgMaskSlate.image()->pixelColor(48, 64).alpha(), 255);
  EXPECT_EQ(pictures.picDim.image()->pixelColor(0, 0).alpha(), 255);
}

class PlainWindow final : public QWidget {
 protected:
  void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), Qt::white); }
};

TEST(RoundWindowTest, CutsTheCornersSmoothlyAndFollowsTheSize) {
  PlainWindow window;
  window.resize(200, 100);
  RoundWindow(window, kScreenCorners);
  window.resize(300, 150);
  window.show();
  EXPECT_TRUE(window.windowFlags().testFlag(Qt::FramelessWindowHint));
  const QImage image = window.grab().toImage();
  EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
  EXPECT_EQ(image.pixelColor(299, 149).alpha(), 0);
  EXPECT_EQ(image.pixelColor(16, 16).alpha(), 255);
  EXPECT_EQ(image.pixelColor(150, 0).alpha(), 255);
  const QRegion shape = RoundedShape(window.size(), kScreenCorners / 2);
  int partial = 0;
  for (int x = 0; x < 16; ++x) {
    for (int y = 0; y < 16; ++y) {
      const int alpha = image.pixelColor(x, y).alpha();
      partial += alpha > 0 && alpha < 255 ? 1 : 0;
      EXPECT_TRUE(alpha == 0 || shape.contains(QPoint(x, y))) << x << "," << y;
    }
  }
  EXPECT_GT(partial, 10);
  EXPECT_FALSE(shape.contains(QPoint(299, 0)));
  EXPECT_FALSE(shape.contains(QPoint(0, 149)));
}

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
