// How a screen asks for what comes next. Screens never know each other: the program opens the screen that was
// asked for and closes the one that asked. A screen must do nothing of its own after such a call.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

namespace kv {

class PortraitCaller;
class clsPlayer;

class Navigator {
 public:
  virtual ~Navigator() = default;

  /// The player selection. No player is current any more.
  virtual void OpenSplash() = 0;
  /// This player is the current one from now on.
  virtual void PlayerLoaded(std::unique_ptr<clsPlayer> player) = 0;
  virtual void OpenMenu() = 0;
  virtual void OpenOptions() = 0;
  /// The matches that the current player has played.
  virtual void OpenRecord() {}
  /// One of them, by its id in the history: its decisions weighed.
  virtual void OpenReview(std::int64_t /*match*/) {}
  /// And played again.
  virtual void OpenReplay(std::int64_t /*match*/) {}
  virtual void OpenCampaign() = 0;
  virtual void OpenCards() = 0;
  virtual void OpenLobby() = 0;
  /// The hands of the match record must be dealt.
  virtual void OpenMatch() = 0;

  /// Opens the portrait picker in front of `caller`, which stays open, hidden, until ClosePortraits.
  virtual void OpenPortraits(PortraitCaller& caller) = 0;
  /// Closes the picker and shows the screen that it was opened from again.
  virtual void ClosePortraits() = 0;

  /// The rules in a window of their own; what is open goes on behind it.
  virtual void OpenHelp() {}
  virtual void CloseHelp() {}

  /// A fresh match record of this mode takes the place of the present one.
  virtual void NewGame(std::string_view mode) = 0;
  /// The match is over and booked, and its last continue was used: the match screen is closed, and what
  /// follows in the match's mode is opened.
  virtual void LeaveMatch() = 0;
  /// Closes the card screen and opens it afresh a moment later, for the next match of an arcade run.
  virtual void ReloadCards() = 0;

  /// Something waits for the person, who may be busy with another program: the desktop tells so then.
  virtual void CallPlayer() {}

  /// The person leaves the program from a screen that owes nothing any more.
  virtual void EndProgram() = 0;
  /// The same, once the farewell sound has been heard. The screen stays on view until then.
  virtual void EndProgramSoon() = 0;
};

}  // namespace kv
