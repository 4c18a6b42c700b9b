// The main menu: shows the statistics of the three modes, starts a mode, opens the options, goes back to the
// player selection and resets statistics. It changes the record only by a reset, and always saves it then.
#pragma once

#include <array>
#include <string>

#include "presentation/Screen.h"
#include "profile/clsPlayer.h"
#include "screens/frmMenuReset.h"

namespace kv {

class frmMenu final : public Screen {
 public:
  /// In the player's interface style. `player` must outlive it.
  frmMenu(const ScreenServices& services, clsPlayer& player);
  ~frmMenu() override;

  /// The farewell: its sound, and the end of the program a while later. Asked for a second time meanwhile,
  /// the program ends at once.
  void LeaveProgram() override;

  [[nodiscard]] ctlTitlebar& titlebar() { return *ctlTitlebar_; }
  [[nodiscard]] ctlButton& cmdArcade() { return *cmdArcade_; }
  [[nodiscard]] ctlButton& cmdCampaign() { return *cmdCampaign_; }
  [[nodiscard]] ctlButton& cmdNetwork() { return *cmdNetwork_; }
  [[nodiscard]] ctlButton& cmdOptions() { return *cmdOptions_; }
  [[nodiscard]] ctlButton& cmdRecord() { return *cmdRecord_; }
  [[nodiscard]] ctlButton& cmdPlayer() { return *cmdPlayer_; }
  [[nodiscard]] QLabel& lblArcadeHigh() { return *lblArcadeHigh_; }
  [[nodiscard]] QLabel& lblSPStats() { return *lblSPStats_; }
  [[nodiscard]] QLabel& lblMPStats() { return *lblMPStats_; }

 protected:
  void Activate() override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  struct Question {
    const char* text;
    const char* title;
  };

  void BuildControls();
  ctlButton* NewMenuButton(QStringView control, void (frmMenu::*open)());
  void NewReset(QStringView control, frmMenuReset*& reset, void (frmMenu::*ask)());
  void ShowTexts();
  void FitPlayerButton();

  void OpenArcade();
  void OpenCampaign();
  void OpenNetwork();
  void OpenOptions();
  void OpenRecord();
  void ChangePlayer();
  void ResetArcade();
  void ResetCampaign();
  void ResetNetwork();

  /// True when nothing was under way; from then on nothing else can be started.
  [[nodiscard]] bool Begin();
  void EnableControls(bool enabled);
  /// True for Yes, unless the screen has been left meanwhile.
  [[nodiscard]] bool Ask(const Question& question);
  void SaveReset();

  clsPlayer& player_;
  bool busy_ = false;  // a screen is being opened, a question is open, or the farewell has begun
  bool farewell_ = false;
  ctlTitlebar* ctlTitlebar_ = nullptr;  // children
  ctlButton* cmdArcade_ = nullptr;
  ctlButton* cmdCampaign_ = nullptr;
  ctlButton* cmdNetwork_ = nullptr;
  ctlButton* cmdOptions_ = nullptr;
  ctlButton* cmdRecord_ = nullptr;
  ctlButton* cmdPlayer_ = nullptr;
  QLabel* lblArcadeHigh_ = nullptr;
  QLabel* lblSPStats_ = nullptr;
  QLabel* lblMPStats_ = nullptr;
  frmMenuReset* resetArcade_ = nullptr;
  frmMenuReset* resetCampaign_ = nullptr;
  frmMenuReset* resetNetwork_ = nullptr;
};

}  // namespace kv
