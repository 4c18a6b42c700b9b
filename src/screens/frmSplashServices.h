// What the start screen needs besides the services of every screen.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "profile/clsPlayer.h"
#include "screens/PlayerCare.h"

namespace kv {

struct frmSplashServices {
  std::string workingFolder;  // player files; empty for the current folder
  std::function<std::unique_ptr<clsPlayer>()> newPlayer;
  std::string lastPlayer{};  // whom the list stands at first, if he is there still
  PlayerCareServices care{};
};

}  // namespace kv
