#include <gtest/gtest.h>

#include <QtGlobal>

#include "platform/QtThrift.h"

namespace kv {
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

}  // namespace
}  // namespace kv
