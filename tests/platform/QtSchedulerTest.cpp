// The event loop: pauses, timers and boxes, and the signals that end the program as events of it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCoreApplication>
#include <QEventLoop>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <csignal>

#include "platform/QtDialogs.h"
#include "platform/QtScheduler.h"
#include "platform/QtSignals.h"

namespace kv::test {
namespace {

class QtDialogsTest : public testing::Test {
 protected:
  /// Acts on the box that is opened next, once it stands.
  template <typename Box>
  void WhenOpen(std::function<void(Box&)> act) {
    QTimer::singleShot(0, QCoreApplication::instance(), [this, act] {
      EXPECT_EQ(scheduler.PauseDepth(), 1);
      auto* box = dynamic_cast<Box*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      act(*box);
    });
  }
  static void Escape(QWidget& box) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(&box, &press);
  }

  QtScheduler scheduler;
  QtDialogs dialogs{scheduler};
};

TEST_F(QtDialogsTest, ShowsTextTitleAndIconAsTheyAre) {
  WhenOpen<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.text(), "<b>5 < 6</b> & more");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.windowTitle(), "Kelm Vantri: Error");
    EXPECT_FALSE(box.iconPixmap().isNull());
    EXPECT_GT(box.width(), QFontMetrics(box.font()).horizontalAdvance(box.windowTitle()));
    Escape(box);
  });
  dialogs.Message("<b>5 < 6</b> & more", "Kelm Vantri: Error", DialogIcon::Critical);
  EXPECT_EQ(scheduler.PauseDepth(), 0);
}

TEST_F(QtDialogsTest, OnlyYesIsYes) {
  const auto ask = [this] { return dialogs.AskYesNo("Sure?", "Kelm Vantri", DialogIcon::Question); };
  WhenOpen<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
  EXPECT_TRUE(ask());
  WhenOpen<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::No)->click(); });
  EXPECT_FALSE(ask());
  WhenOpen<QMessageBox>([](QMessageBox& box) { Escape(box); });
  EXPECT_FALSE(ask());
}

TEST_F(QtDialogsTest, AsksForTextWithAPreset) {
  WhenOpen<QInputDialog>([](QInputDialog& box) {
    EXPECT_EQ(box.textValue(), "6000");
    box.setTextValue("Zoë");
    box.accept();
  });
  EXPECT_EQ(dialogs.AskText("Port:", "Kelm Vantri", "6000"), "Zo\u00eb");
  WhenOpen<QInputDialog>([](QInputDialog& box) { Escape(box); });
  EXPECT_EQ(dialogs.AskText("Port:", "Kelm Vantri", "6000"), std::nullopt);
}

TEST_F(QtDialogsTest, ABoxWhoseWindowGoesAnswersNo) {
  auto* window = new QWidget;
  window->show();
  QApplication::setActiveWindow(window);
  WhenOpen<QMessageBox>([window](QMessageBox&) { delete window; });
  EXPECT_FALSE(dialogs.AskYesNo("Sure?", "Kelm Vantri", DialogIcon::None));
}

constexpr int kLong = 60'000;  // a pause that only its end by force can bring back in time

void In(int milliseconds, std::function<void()> call) {
  QTimer::singleShot(milliseconds, Qt::PreciseTimer, QCoreApplication::instance(), std::move(call));
}

TEST(QtSchedulerTest, APauseLastsItsTimeWhileTimersTick) {
  QtScheduler scheduler;
  const Lifetime screen;
  int ticks = 0;
  const auto timer = scheduler.NewTimer(2, [&] {
    ++ticks;
    EXPECT_EQ(scheduler.PauseDepth(), 1);
  });
  timer->setEnabled(true);
  const std::uint32_t start = scheduler.timeGetTime();
  EXPECT_TRUE(scheduler.Pause(20, screen));
  EXPECT_GE(scheduler.timeGetTime() - start, 19U);
  EXPECT_GE(ticks, 1);
  EXPECT_EQ(scheduler.PauseDepth(), 0);
  timer->setEnabled(false);
  const int before = ticks;
  EXPECT_TRUE(scheduler.Pause(10, screen));
  EXPECT_EQ(ticks, before);
}

TEST(QtSchedulerTest, AClosingOwnerEndsItsPausesAtOnceAndForGood) {
  QtScheduler scheduler;
  Lifetime screen;
  const Lifetime other;
  In(1, [&] {
    // Nested: the inner pause belongs to another screen and lasts its time.
    In(1, [&] { screen.Close(); });
    EXPECT_TRUE(scheduler.Pause(10, other));
    EXPECT_EQ(scheduler.PauseDepth(), 1);
  });
  EXPECT_FALSE(scheduler.Pause(kLong, screen));
  EXPECT_FALSE(scheduler.Pause(kLong, screen));
  EXPECT_TRUE(scheduler.Pause(0, other));
}

TEST(QtSchedulerTest, TheEndOfTheProgramEndsEveryPause) {
  QtScheduler scheduler;
  const Lifetime screen;
  const Lifetime other;
  int ended = 0;
  In(0, [&] {
    In(0, [&] {
      In(0, [] { QCoreApplication::quit(); });
      ended += scheduler.Pause(kLong, screen) ? 0 : 1;
    });
    ended += scheduler.Pause(kLong, other) ? 0 : 1;
    ended += scheduler.Pause(kLong, other) ? 0 : 1;
  });
  QCoreApplication::exec();
  EXPECT_EQ(ended, 3);
  EXPECT_FALSE(scheduler.Pause(kLong, screen));
}

TEST(QtSchedulerTest, ATimerMayStopRestartOrDestroyItselfInItsTick) {
  QtScheduler scheduler;
  const Lifetime screen;
  int once = 0;
  std::unique_ptr<Timer> single;
  single = scheduler.NewTimer(1, [&] {
    single->setEnabled(false);
    ++once;
  });
  int last = 0;
  std::unique_ptr<Timer> fleeting;
  fleeting = scheduler.NewTimer(1, [&fleeting, &last, kept = std::string(64, 'x')] {
    fleeting.reset();
    last += static_cast<int>(kept.size());  // what the tick holds outlives its timer
  });
  single->setEnabled(true);
  fleeting->setEnabled(true);
  EXPECT_TRUE(scheduler.Pause(15, screen));
  EXPECT_EQ(once, 1);
  EXPECT_EQ(last, 64);
  EXPECT_FALSE(single->Enabled());
  single->setInterval(5);
  EXPECT_FALSE(single->Enabled());
  EXPECT_EQ(single->Interval(), 5);
}

constexpr int kPatience = 5000;  // milliseconds

TEST(QtSignals, EachEndsTheProgramAlsoInsideANestedLoop) {
  QtSignals ends;
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    QEventLoop box;
    int told = 0;
    ends.Ended = [&] {
      ++told;
      box.quit();
    };
    QTimer::singleShot(0, &box, [signal] {
      std::raise(signal);
      std::raise(signal);
    });
    QTimer::singleShot(kPatience, &box, &QEventLoop::quit);
    box.exec();
    EXPECT_EQ(told, 1) << signal;
  }
  EXPECT_TRUE(ends.ended());
}

TEST(QtSignals, AProgramThatIsToOutliveItsTerminalDoes) {
  std::signal(SIGHUP, SIG_IGN);
  {
    const QtSignals ends;
    std::raise(SIGHUP);
    QCoreApplication::processEvents();
    EXPECT_FALSE(ends.ended());
  }
  EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
}

}  // namespace
}  // namespace kv::test
