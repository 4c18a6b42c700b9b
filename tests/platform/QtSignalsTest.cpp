// The signals that end the program, as events of the event loop.
#include <gtest/gtest.h>

#include <QEventLoop>
#include <QTimer>
#include <csignal>

#include "platform/QtSignals.h"

namespace kv {
namespace {

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
}  // namespace kv
