// Everything a screen stands on, in the tests' own forms: a clock turned by hand, scripted answers and
// chance, recorded sounds and a navigator that only remembers. Pictures come from the folder in KV_ASSETS;
// without it every picture is empty.
#pragma once

#include <QCoreApplication>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "app/frmGlobals.h"
#include "presentation/PictureSizes.h"
#include "presentation/Pictures.h"
#include "presentation/Portraits.h"
#include "presentation/ScreenServices.h"
#include "presentation/Sounds.h"
#include "profile/clsPlayer.h"
#include "support/HandScheduler.h"
#include "support/RecordingAnnouncer.h"
#include "support/RecordingNavigator.h"
#include "support/RecordingSound.h"
#include "support/ScriptedDialogs.h"
#include "support/ScriptedRandom.h"

namespace kv::test {

class ScreenStage {
 public:
  /// `portraitFolder`: where own portraits lie; with none, nobody has one.
  explicit ScreenStage(const std::string& style = "Slate", double pixelRatio = 1,
                       const std::string& portraitFolder = "/nowhere")
      : sounds(sound),
        buttons(sounds),
        globals(scheduler, buttons),
        player(dialogs, padding),
        pictures(pixelRatio),
        portraits(pictures, portraitFolder, [this] {
          return PortraitOwner{std::filesystem::path(player.FileName).filename().string(), player.Portrait};
        }) {
    player.Name = "Player";
    player.Interface_Opt = style;
    buttons.setPlayer(&player);
    sounds.setPlayer(&player);
    sounds.InitEffects("");
    if (const char* assets = std::getenv("KV_ASSETS")) {
      static_cast<void>(pictures.OpenDataFile(std::string(assets) + "/" + kDataFileName));
    }
    globals.look.faces.LoadCardPictures([this](int number) { return pictures.getPic(number); });
    globals.look.interfaceStyle = style;
  }

  [[nodiscard]] ScreenServices services() {
    return {scheduler,
            dialogs,
            random,
            buttons,
            globals.effects,
            globals.look,
            [this](int number) { return pictures.getPic(number); },
            portraits,
            *navigator,
            window,
            announcer};
  }

  /// Lets the events be handled and `milliseconds` pass.
  void Settle(int milliseconds = 3000) {
    QCoreApplication::processEvents();
    scheduler.Advance(milliseconds);
    QCoreApplication::processEvents();
  }

  HandScheduler scheduler;
  ScriptedDialogs dialogs;
  ScriptedRandom random{};
  RecordingAnnouncer announcer;
  RecordingSound sound;
  Sounds sounds;
  ButtonContext buttons;
  frmGlobals globals;
  SeededRandom padding{1};
  clsPlayer player;
  Pictures pictures;
  Portraits portraits;
  WindowSize window;
  RecordingNavigator recorded;
  Navigator* navigator = &recorded;
};

}  // namespace kv::test
