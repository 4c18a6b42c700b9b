// Everything that every screen works with. The program owns it all; every reference outlives the screens.
#pragma once

#include <functional>

#include "cards/CardFaces.h"
#include "platform/Announcer.h"
#include "platform/Dialogs.h"
#include "platform/Picture.h"
#include "platform/Random.h"
#include "platform/Scheduler.h"
#include "presentation/ButtonContext.h"
#include "presentation/Effects.h"
#include "presentation/Navigator.h"
#include "presentation/Portraits.h"
#include "presentation/WindowSize.h"

namespace kv {

struct ScreenServices {
  Scheduler& scheduler;
  Dialogs& dialogs;
  Random& random;
  ButtonContext& buttons;
  Effects& effects;
  const CardLook& look;
  std::function<Picture(int number)> getPic;
  Portraits& portraits;
  Navigator& navigator;
  WindowSize& window;
  Announcer& announcer;
};

}  // namespace kv
