// What a network game needs of the program around it.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "campaign/WagerEntry.h"
#include "platform/Dialogs.h"
#include "platform/Picture.h"
#include "platform/Scheduler.h"
#include "presentation/Navigator.h"

namespace kv {

/// All references outlive the network game.
struct NetworkServices {
  Scheduler& scheduler;
  Dialogs& dialogs;
  Navigator& navigator;
  NetworkStake& stake;  // forgotten when a network game begins afresh
  std::function<void(std::string_view effect)> playEffect;
  std::function<void()> stopEffects;
  /// The portrait of a number and a player file's base name; the current player's for -1 and "". `found`
  /// tells whether it is a picture of one's own.
  std::function<Picture(int number, const std::string& name, bool& found)> portrait;
  /// Shuts the screen in front off while the connection is interrupted.
  std::function<void(bool locked)> lockScreen;
  /// Hides it: the person is leaving the program.
  std::function<void()> hideScreen;
};

}  // namespace kv
