// What the program spares while nobody needs it: graphics that the toolkit would load, a blinking caret,
// memory.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QtGlobal>
#include <fstream>

#include "platform/Memory.h"
#include "platform/QtCaretRest.h"
#include "platform/QtThrift.h"
#include "support/HandScheduler.h"

namespace kv::test {
namespace {

TEST(QtThrift, AsksForLessAndLeavesNoTraceForOtherPrograms) {
  const QByteArray theme = qgetenv("QT_QPA_PLATFORMTHEME");
  qunsetenv("QT_QPA_PLATFORMTHEME");
  qunsetenv("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION");
  qputenv("QT_XCB_GL_INTEGRATION", "xcb_egl");  // the user's own wish
  {
    QtThrift thrift;
    EXPECT_EQ(qgetenv("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION"), "none");
    EXPECT_EQ(qgetenv("QT_XCB_GL_INTEGRATION"), "xcb_egl");
    thrift.Restore();
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION"));
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_QPA_PLATFORMTHEME"));
  }
  EXPECT_EQ(qgetenv("QT_XCB_GL_INTEGRATION"), "xcb_egl");
  qunsetenv("QT_XCB_GL_INTEGRATION");
  if (!theme.isNull()) qputenv("QT_QPA_PLATFORMTHEME", theme);
}

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

/// Kilobytes of files that stand in this process's memory.
int MappedFiles() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    if (word != "RssFile:") continue;
    int kilobytes = 0;
    status >> kilobytes;
    return kilobytes;
  }
  return 0;
}

TEST(Memory, CleanPagesGoAndComeBackAsTheyAreNeeded) {
  const int before = MappedFiles();
  ReturnCleanPages();
  const int after = MappedFiles();
  EXPECT_LT(after, before / 2);
  EXPECT_GT(after, 0);
}

}  // namespace
}  // namespace kv::test
