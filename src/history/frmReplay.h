// A recorded match, played again on the tables of the match screen with both hands open: step by step, forth
// and back, by itself, or from set to set. There is no engine, no player and no network behind it, so nothing
// can be booked or saved from here.
#pragma once

#include <memory>

#include "history/ReplayCourse.h"
#include "match/clsGame.h"
#include "match/frmGameSide.h"
#include "presentation/Screen.h"

class QComboBox;

namespace kv {

class clsPlayer;

struct frmReplayServices {
  const clsPlayer& player;
  const MatchRecord& record;
};

class frmReplay final : public Screen {
 public:
  /// In the player's interface style; the record is not needed afterwards.
  frmReplay(const ScreenServices& services, const frmReplayServices& replay);
  ~frmReplay() override;

  /// Back to the list of matches.
  void LeaveProgram() override;

  [[nodiscard]] const ReplayCourse& course() const { return course_; }
  [[nodiscard]] frmGameSide& side(Seat seat) { return *sides_.at(static_cast<std::size_t>(seat)); }

 protected:
  void Activate() override;
  void Closing() override;
  void keyPressEvent(QKeyEvent* event) override;
  /// The keys of the replay, wherever the focus is.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildSides(const frmReplayServices& replay);
  void BuildControls();
  void BuildSets();
  ctlButton* NewStepButton(QStringView control, void (frmReplay::*act)());
  bool ReplayKey(int key);
  void Step() { Go(&ReplayCourse::Forth); }
  void Back() { Go(&ReplayCourse::Back); }
  void NextSet() { Go(&ReplayCourse::NextSet); }
  void SetBefore() { Go(&ReplayCourse::SetBefore); }
  void Go(void (ReplayCourse::*way)());
  /// From 1 on; one that the match does not have changes nothing.
  void GoToSet(int set);
  void Run();
  void StopRunning();
  void RunTick();
  void ShowStep();
  void ShowSide(Seat seat);
  void ShowHands();
  void ShowButtons();

  ReplayCourse course_;
  clsGame game_;  // names and portraits only
  std::array<std::unique_ptr<frmGameSide>, 2> sides_;
  std::array<ctlCard*, kHandSize> hand_{};  // children, all that follow
  QLabel* lblPlace_ = nullptr;
  QLabel* lblStrip_ = nullptr;
  QComboBox* cmbSet_ = nullptr;
  ctlButton* cmdSetBefore_ = nullptr;
  ctlButton* cmdBackward_ = nullptr;
  ctlButton* cmdRun_ = nullptr;
  ctlButton* cmdForward_ = nullptr;
  ctlButton* cmdNextSet_ = nullptr;
  ctlTitlebar* ctlTitlebar_ = nullptr;
  std::unique_ptr<Timer> tmrRun_;
};

}  // namespace kv
