// Everything the match screen works with. The program owns it all; every reference outlives the screen.
#pragma once

#include "match/MatchPartners.h"
#include "match/clsGame.h"
#include "presentation/ScreenServices.h"
#include "profile/Settings.h"
#include "profile/clsPlayer.h"

namespace kv {

struct frmGameServices : ScreenServices {
  const clsPlayer& player;
  clsGame& game;
  MatchNetwork& network;
  MatchBooking& booking;
  Settings* settings = nullptr;  // what is remembered for all players; null: nothing
};

}  // namespace kv
