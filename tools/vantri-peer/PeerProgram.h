// The peer as a whole: it goes from the lobby to the cards, to the match and back as the program's screens
// do, and ends when there is nobody left to play with or enough has been played.
#pragma once

#include <deque>

#include "campaign/modSaveWin.h"
#include "vantri-peer/PeerMatch.h"
#include "vantri-peer/PeerScreen.h"

namespace kv {

/// All outlive the program. `quit` ends the process with this code.
struct PeerParts {
  const PeerOptions& options;
  Scheduler& scheduler;
  Random& random;
  TcpSocket& socket;
  clsPlayer& player;
  PeerReport& report;
  std::function<void(int code)> quit;
};

class PeerProgram final : public Navigator {
 public:
  explicit PeerProgram(const PeerParts& parts);
  ~PeerProgram() override;

  void Start();
  /// Leaves as a person does by "/quit": the peer is told, a match under way is lost.
  void Leave();

  void OpenCards() override;
  void OpenLobby() override;
  void OpenMatch() override;
  void OpenMenu() override { Finish(); }
  void LeaveMatch() override { OpenLobby(); }
  void EndProgram() override { Finish(); }
  void EndProgramSoon() override { Finish(); }

  // A peer has no other places.
  void OpenSplash() override {}
  void PlayerLoaded(std::unique_ptr<clsPlayer>) override {}
  void OpenOptions() override {}
  void OpenCampaign() override {}
  void OpenPortraits(PortraitCaller&) override {}
  void ClosePortraits() override {}
  void NewGame(std::string_view) override {}
  void ReloadCards() override {}

 private:
  [[nodiscard]] NetworkServices Services();
  [[nodiscard]] PeerServices ScreenServices();
  [[nodiscard]] int SetWins(bool own) const;
  /// The next place stands, and `match` when it is one.
  void Show(std::shared_ptr<PeerScreen> next, PeerMatch* match = nullptr);
  void ShowLobby();
  void CloseCurrent();
  void Sweep();
  /// What follows when nobody is at the other end: true when another one may come.
  [[nodiscard]] bool MayMeetAgain();
  void MisplayTick();
  void Finish();

  PeerParts parts_;
  NetworkStake stake_;
  clsGame game_;
  SaveBooking book_;
  PeerBooking booking_;
  NetworkGame network_;
  std::unique_ptr<Strategy> strategy_;
  std::shared_ptr<PeerScreen> screen_;
  PeerMatch* match_ = nullptr;                       // screen_, while it is one
  std::deque<std::shared_ptr<PeerScreen>> retired_;  // may still be inside a pause
  std::unique_ptr<Timer> tmrSweep_;
  std::unique_ptr<Timer> tmrMisplay_;
  std::unique_ptr<Timer> tmrQuit_;  // until "[Quit]" has left
  std::size_t misplayed_ = 0;
  int tries_ = 0;
  bool met_ = false;  // since the connection was opened last
  bool finished_ = false;
  std::int16_t disconnects_ = 0;  // before the present match
};

}  // namespace kv
