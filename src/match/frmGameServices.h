// Everything the match screen works with. The program owns it all; every reference outlives the screen.
#pragma once

#include <functional>

#include "cards/CardFaces.h"
#include "match/MatchPartners.h"
#include "match/Navigator.h"
#include "match/clsGame.h"
#include "platform/Dialogs.h"
#include "platform/Random.h"
#include "platform/Scheduler.h"
#include "presentation/ButtonContext.h"
#include "presentation/Effects.h"
#include "profile/clsPlayer.h"

namespace kv {

struct frmGameServices {
  Scheduler& scheduler;
  Dialogs& dialogs;
  Random& random;
  ButtonContext& buttons;
  Effects& effects;
  const CardLook& look;
  std::function<Picture(int number)> getPic;
  const clsPlayer& player;
  clsGame& game;
  MatchNetwork& network;
  MatchBooking& booking;
  Navigator& navigator;
};

}  // namespace kv
