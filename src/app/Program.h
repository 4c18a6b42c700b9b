// One running program: the player record, the match record, the services, and the screens that are open. It
// owns everything and hands out references; nothing of it is global, so two can run in one process.
#pragma once

#include <QPoint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/frmGlobals.h"
#include "match/ArcadeBooking.h"
#include "match/clsGame.h"
#include "match/frmGame.h"
#include "platform/SoundDevice.h"
#include "presentation/Navigator.h"
#include "presentation/Pictures.h"
#include "presentation/Portraits.h"
#include "presentation/Sounds.h"
#include "profile/clsPlayer.h"

namespace kv {

/// The desktop's services, in their real forms or in the tests' own. All outlive the program.
struct ProgramServices {
  Scheduler& scheduler;
  Dialogs& dialogs;
  Random& random;
  SoundDevice& sound;
  /// Ends the event loop.
  std::function<void()> quit;
};

struct ProgramFolders {
  std::string program;  // data file, sounds, portraits; without a slash at its end
  std::string player;   // player files; empty for the working folder
};

class Program final : public Navigator {
 public:
  Program(const ProgramServices& services, const ProgramFolders& folders);
  ~Program() override;

  /// Loads the player and opens the first screen.
  void Start();

  // Only the match screen exists yet: whatever is asked for, a match follows.
  void OpenSplash() override {}
  void PlayerLoaded(std::unique_ptr<clsPlayer>) override {}
  void OpenMenu() override {}
  void OpenOptions() override {}
  void OpenCampaign() override {}
  void OpenCards() override {}
  void OpenLobby() override {}
  void OpenMatch() override { OpenMatch(std::optional<QPoint>()); }
  void OpenPortraits(PortraitCaller&) override {}
  void ClosePortraits() override {}
  void NewGame(std::string_view) override { StartRun(); }
  void LeaveMatch() override;
  void ReloadCards() override {}
  void EndProgram() override;
  void EndProgramSoon() override { EndProgram(); }

  [[nodiscard]] clsPlayer& player() { return player_; }
  [[nodiscard]] clsGame& game() { return *game_; }
  /// The open match screen; null once the program ends.
  [[nodiscard]] frmGame* match() { return match_.get(); }
  /// Screens that are closed but may not be destroyed yet.
  [[nodiscard]] std::size_t ClosedScreens() const { return closed_.size(); }

 private:
  void LoadPlayer();
  void StartRun();
  void SettleStake();
  /// At a place of the desktop, or where the window system puts it.
  void OpenMatch(std::optional<QPoint> centre);
  void CloseMatch();

  ProgramServices services_;
  ProgramFolders folders_;
  Sounds sounds_;
  ButtonContext buttons_;
  Pictures pictures_;
  frmGlobals globals_;
  clsPlayer player_;
  Portraits portraits_;
  MatchNetwork noNetwork_;
  std::unique_ptr<clsGame> game_;
  std::unique_ptr<ArcadeBooking> booking_;
  std::unique_ptr<frmGame> match_;
  std::vector<std::unique_ptr<frmGame>> closed_;
  std::unique_ptr<Timer> tmrSweep_;   // destroys closed screens
  std::unique_ptr<Timer> tmrSounds_;  // loads the sounds once the first window stands
};

}  // namespace kv
