// One running program: the player record, the match record, the services, and the screen that is open. It
// owns everything and hands out references; nothing of it is global, so two can run in one process.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "app/CountedDialogs.h"
#include "app/Stage.h"
#include "app/frmGlobals.h"
#include "campaign/WagerEntry.h"
#include "history/HistoryStats.h"
#include "history/KeptMatch.h"
#include "match/MatchPartners.h"
#include "match/clsGame.h"
#include "network/NetworkGame.h"
#include "platform/Announcer.h"
#include "platform/SoundDevice.h"
#include "platform/TcpSocket.h"
#include "presentation/Pictures.h"
#include "presentation/Portraits.h"
#include "presentation/Screen.h"
#include "presentation/Sounds.h"
#include "profile/Settings.h"
#include "profile/clsPlayer.h"

namespace kv {

class frmGame;

/// The desktop's services, in their real forms or in the tests' own. All outlive the program.
struct ProgramServices {
  Scheduler& scheduler;
  Dialogs& dialogs;
  Random& random;
  SoundDevice& sound;
  /// Ends the event loop.
  std::function<void()> quit;
  /// Shows a folder in the desktop's file browser; may be empty.
  std::function<void(const std::string& folder)> openFolder{};
  /// A socket of the network, and the machine's IPv4 addresses; the real ones where they are empty.
  std::function<std::unique_ptr<TcpSocket>()> newSocket{};
  std::function<std::vector<std::string>()> localAddresses{};
  /// The size of everything that is drawn; null: as laid out.
  QtSizeFactor* sizes = nullptr;
  /// What is remembered for all players; null: nothing.
  SettingsStore* settings = nullptr;
  /// Tells what happens to who does not see it; null: nobody listens.
  Announcer* announcer = nullptr;
  /// Moves a file to the desktop's trash; false when it lies where it was. Empty: there is no trash.
  std::function<bool(const std::string& path)> moveToTrash{};
  /// Opens the data file, and decodes the pictures of the start screen; null: the program does.
  PicturesAhead* ahead = nullptr;
};

/// Without a slash at their ends.
struct ProgramFolders {
  std::string program;  // data file and sounds
  std::string player;   // player files; empty for the working folder
  std::string portraits;
};

class Program final : public Navigator {
 public:
  Program(const ProgramServices& services, const ProgramFolders& folders);
  ~Program() override;

  /// Opens the start screen.
  void Start();
  /// Ends the program without a question, as the system asks for it: what is at stake is booked, or stays
  /// booked in advance. Takes some hundred milliseconds while a peer is told, else none.
  void EndAtOnce();

  void OpenSplash() override;
  void PlayerLoaded(std::unique_ptr<clsPlayer> player) override;
  void OpenMenu() override;
  void OpenOptions() override;
  void OpenRecord() override;
  void OpenReview(std::int64_t match) override;
  void OpenReplay(std::int64_t match) override;
  void OpenCampaign() override;
  void OpenCards() override;
  void OpenLobby() override;
  void OpenMatch() override;
  void OpenPortraits(PortraitCaller& caller) override;
  void ClosePortraits() override;
  void OpenHelp() override;
  void CloseHelp() override;
  void NewGame(std::string_view mode) override;
  void LeaveMatch() override;
  void ReloadCards() override;
  void CallPlayer() override;
  void EndProgram() override;
  void EndProgramSoon() override;

  /// The current player, null while one is being chosen.
  [[nodiscard]] clsPlayer* player() { return player_.get(); }
  /// The match record, null outside the modes.
  [[nodiscard]] clsGame* game() { return game_.get(); }
  /// The network game, null until one was begun.
  [[nodiscard]] NetworkGame* network() { return network_.get(); }
  /// The matches of the current player, null while one is being chosen.
  [[nodiscard]] HistoryFile* history() { return history_.get(); }
  /// The open screen; null once the program has ended.
  [[nodiscard]] Screen* screen() { return screen_.get(); }
  /// The open screen if it is one of this kind, else null.
  template <typename Kind>
  [[nodiscard]] Kind* screenAs() {
    return dynamic_cast<Kind*>(screen_.get());
  }
  /// The window that holds the screens.
  [[nodiscard]] Stage& stage() { return stage_; }
  /// Closed screens, and the records they stood on, that may not be destroyed yet.
  [[nodiscard]] std::size_t Retired() const { return retired_.size(); }

 private:
  void BuildStage();
  [[nodiscard]] ScreenServices Services();
  /// Closes the open screen, makes the next one with `make`, and opens it on the same window.
  template <typename Make>
  void Show(Make make);
  void CloseCurrent();
  void StartNetwork();
  /// The network as the present mode sees it.
  [[nodiscard]] MatchNetwork& Network();
  void Retire(std::shared_ptr<void> what);
  void ClearGame();
  /// What happens in the match on this screen goes into the player's history.
  void KeepMatch(frmGame& match);
  void LoadSounds();

  ProgramServices services_;
  ProgramFolders folders_;
  SettingsStore noSettings_;
  Settings settings_;
  Stage stage_;  // holds the screens, and goes after them
  Announcer nobody_;
  CountedDialogs dialogs_;
  Sounds sounds_;
  ButtonContext buttons_;
  Pictures pictures_;
  frmGlobals globals_;
  Portraits portraits_;
  MatchNetwork noNetwork_;
  NetworkStake networkStake_;
  std::unique_ptr<TcpSocket> socket_;  // both from the first network game on
  std::unique_ptr<NetworkGame> network_;
  std::shared_ptr<clsPlayer> player_;
  std::shared_ptr<clsGame> game_;
  std::shared_ptr<MatchBooking> booking_;
  std::shared_ptr<HistoryFile> history_;
  RecordLook recordLook_;            // until the menu is open again
  std::shared_ptr<KeptMatch> kept_;  // the match on the screen
  std::shared_ptr<Screen> screen_;
  std::unique_ptr<Effects>
      helpEffects_;  // its own, so that what glows behind it goes on; both while it is open
  std::shared_ptr<Screen> help_;
  std::shared_ptr<Screen> behind_;  // the hidden screen that the portrait picker was opened from
  std::deque<std::shared_ptr<void>> retired_;
  std::unique_ptr<Timer> tmrSweep_;   // destroys what is retired
  std::unique_ptr<Timer> tmrSounds_;  // loads the sounds once the first window stands
};

}  // namespace kv
