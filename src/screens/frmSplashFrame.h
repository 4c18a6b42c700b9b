// The frame of the start screen: version, web address, and the two buttons of a window. It knows nothing of
// players.
#pragma once

#include <QWidget>
#include <functional>

#include "presentation/ButtonContext.h"
#include "presentation/Layout.h"

namespace kv {

struct SplashFrameActions {
  std::function<void()> lblURL;
  std::function<void()> cmdMini;
  std::function<void()> cmdQuit;
};

/// All become children of `screen`, which `buttons` must outlive.
void BuildSplashFrame(QWidget& screen, Layout& layout, ButtonContext& buttons,
                      const SplashFrameActions& actions);

}  // namespace kv
