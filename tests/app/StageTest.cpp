// The window that holds the screens: its size, its place, and what of them is remembered.
#include <gtest/gtest.h>

#include <QScreen>

#include "support/ProgramStage.h"

namespace kv::test {
namespace {

class StageTest : public testing::Test, protected ProgramStage {
 protected:
  StageTest() { sizes = &factor_; }
  ~StageTest() override {
    program.reset();
    factor_.Set(1);
  }
  void Play(const char* style) {
    EnterMenuAs("ann", [&](clsPlayer& player) { player.Interface_Opt = style; });
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers held) {
    ScreenHand(*program->screen()).Key(key, held);
    Settle(200);
  }
  [[nodiscard]] Stage& stage() { return program->stage(); }
  [[nodiscard]] static double Ratio() { return QGuiApplication::primaryScreen()->devicePixelRatio(); }
  /// The desktop in the pixels that layouts have at 100 percent.
  [[nodiscard]] QSizeF Desktop() const { return factor_.WorkArea(*QGuiApplication::primaryScreen()); }

  QtSizeFactor factor_;
};

TEST_F(StageTest, TheStartScreensGroundMovesTheWindowAndNotWhatIsInIt) {
  Start();
  test::ScreenHand hand(*program->screen());
  const QPoint inside = program->screen()->pos();
  const QPoint outside = stage().pos();
  hand.Press({5, 5});
  hand.MoveTo({65, 35});
  EXPECT_EQ(program->screen()->pos(), inside);
  EXPECT_EQ(stage().pos(), outside + QPoint(60, 30));
  hand.Release({5, 5});
}

TEST_F(StageTest, KeysChangeTheSizeOfEverythingAtOnceAndItIsRemembered) {
  Play("Slate");
  const int first = stage().ShownPercent();
  Press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(Ratio(), 1);
  Press(Qt::Key_Plus, Qt::ControlModifier);
  Press(Qt::Key_Equal, Qt::ControlModifier);
  EXPECT_EQ(Ratio(), 1.5);
  EXPECT_EQ(stage().size(), program->screen()->size()) << "in the layout's own pixels";
  Click("cmdOptions");  // where it is drawn now
  EXPECT_EQ(ScreenName(), "frmOptions");
  Start();
  EXPECT_EQ(Ratio(), 1.5);
  for (int step = 0; step < 20; ++step) Press(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(stage().ShownPercent(), kLeastSize);
  EXPECT_NE(stage().graphicsEffect(), nullptr) << "the toolkit's painter does not reduce";
  for (int step = 0; step < 20; ++step) Press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(stage().ShownPercent(), kMostSize);
  EXPECT_EQ(stage().graphicsEffect(), nullptr) << "it would blur what the painter draws sharp";
  EXPECT_NE(first, kMostSize);
}

TEST_F(StageTest, FitIsTheLargestSizeThatHoldsEveryScreenOfTheStyle) {
  for (const auto& [style, largest] : {std::pair{"Slate", QSizeF(800, 690)}, {"Ember", QSizeF(1024, 840)}}) {
    settings.Write("size", "fit");
    Play(style);
    const QSizeF shown = largest * (stage().ShownPercent() / 100.0);
    EXPECT_NEAR(std::max(shown.width() / Desktop().width(), shown.height() / Desktop().height()), 1, 0.01);
    for (const char* screen : {"cmdOptions", "cmdCampaign", "cmdArcade", "cmdNetwork"}) {
      Click(screen);
      EXPECT_LE(program->screen()->width(), largest.width()) << screen;
      EXPECT_LE(program->screen()->height(), largest.height()) << screen;
      Start();
      EnterMenu("ann");
    }
  }
}

TEST_F(StageTest, WithoutAChoiceWhatIsWholeStaysAsLaidOutAndTheRestFits) {
  Play("Ember");  // larger than the tests' desktop of 800 by 800 pixels
  ASSERT_LT(Desktop().width(), 1024);
  EXPECT_NEAR(Ratio(), Desktop().width() / 1024, 0.01);
  EXPECT_FALSE(stage().sizePercent()) << "nobody has chosen it";
  EXPECT_FALSE(settings.Read("size").value_or("").size());
}

TEST_F(StageTest, FullScreenHoldsTheScreenInItsMiddleAndComesBack) {
  Play("Slate");
  Press(Qt::Key_0, Qt::ControlModifier);
  const QRect before = stage().geometry();
  Press(Qt::Key_F11, Qt::NoModifier);
  EXPECT_TRUE(stage().fullScreen());
  const QPoint off = program->screen()->geometry().center() - stage().rect().center();
  EXPECT_LE(off.manhattanLength(), 2);
  EXPECT_EQ(stage().size(), stage().screen()->size());
  Click("cmdOptions");
  EXPECT_EQ(ScreenName(), "frmOptions") << "found where it is drawn";
  Start();
  EXPECT_TRUE(stage().fullScreen()) << "remembered";
  EnterMenu("ann");
  Press(Qt::Key_Return, Qt::AltModifier);
  EXPECT_FALSE(stage().fullScreen());
  EXPECT_EQ(stage().geometry(), before);
}

TEST_F(StageTest, PicturesBecomeFinerInTheirPlaces) {
  programFolder = qEnvironmentVariable("KV_ASSETS").toStdString();
  for (const char* style : {"Slate", "Ember"}) {
    Play(style);
    Press(Qt::Key_0, Qt::ControlModifier);
    const QImage coarse = program->screen()->grab().toImage();
    Press(Qt::Key_Plus, Qt::ControlModifier);
    for (int step = 0; step < 3; ++step) Press(Qt::Key_Plus, Qt::ControlModifier);
    ASSERT_EQ(Ratio(), 2);
    const QImage fine = program->screen()->grab().toImage();
    const QImage blown = coarse.scaled(fine.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    // The background alone, without texts: a strip of its frame.
    const QRect strip(8, fine.height() / 2, 24, fine.height() / 3);
    EXPECT_NE(fine.copy(strip), blown.copy(strip)) << style;
    double detail = 0;
    double blurred = 0;
    for (int y = strip.top() + 1; y < strip.bottom(); ++y) {
      detail += std::abs(qGreen(fine.pixel(20, y)) - qGreen(fine.pixel(20, y - 1)));
      blurred += std::abs(qGreen(blown.pixel(20, y)) - qGreen(blown.pixel(20, y - 1)));
    }
    EXPECT_GT(detail, blurred) << style;
  }
}

}  // namespace
}  // namespace kv::test
