#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include "platform/QtCaretRest.h"
#include "support/HandScheduler.h"

namespace kv::test {
namespace {

TEST(QtCaretRest, BlinksForAWhileAfterEachKey) {
  HandScheduler scheduler;
  QLineEdit box;
  box.show();
  const int blinking = QApplication::cursorFlashTime();
  const QtCaretRest rest(scheduler);
  scheduler.Advance(QtCaretRest::kAfter - 1);
  EXPECT_EQ(QApplication::cursorFlashTime(), blinking);
  QTest::keyClick(&box, Qt::Key_A);
  scheduler.Advance(QtCaretRest::kAfter - 1);
  EXPECT_EQ(QApplication::cursorFlashTime(), blinking);
  scheduler.Advance(1);
  EXPECT_EQ(QApplication::cursorFlashTime(), 0);
  QTest::keyClick(&box, Qt::Key_B);
  EXPECT_EQ(QApplication::cursorFlashTime(), blinking);
}

}  // namespace
}  // namespace kv::test
