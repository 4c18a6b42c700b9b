#include "platform/QtThrift.h"

#include <QLoggingCategory>
#include <QtGlobal>
#include <utility>

namespace kv {
namespace {

constexpr std::pair<const char*, const char*> kLeftOut[] = {
    {"QT_QPA_PLATFORMTHEME", "generic"},
    {"QT_XCB_GL_INTEGRATION", "none"},
    {"QT_WAYLAND_CLIENT_BUFFER_INTEGRATION", "none"},
};

}  // namespace

QtThrift::QtThrift() {
  for (const auto& [variable, value] : kLeftOut) {
    if (!qEnvironmentVariableIsEmpty(variable)) continue;
    qputenv(variable, value);
    set_.push_back(variable);
  }
  // Of the integration that is left out the toolkit would complain that it cannot be found.
  QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.wayland.warning=false"));
}

void QtThrift::Restore() {
  if (set_.empty()) return;
  for (const char* variable : std::exchange(set_, {})) qunsetenv(variable);
  QLoggingCategory::setFilterRules({});
}

}  // namespace kv
