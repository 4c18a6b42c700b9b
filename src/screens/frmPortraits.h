// The portrait picker: the built-in portraits as tiles, one of them selected. It changes the player's
// Portrait only when the choice is confirmed; saving the record is left to the screen that it was opened
// from.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "presentation/FadeTarget.h"
#include "presentation/PortraitCaller.h"
#include "presentation/Screen.h"
#include "profile/clsPlayer.h"
#include "screens/PortraitGrid.h"

namespace kv {

class PortraitList;

struct frmPortraitsServices {
  std::string portraitFolder;
  /// Shows a folder, which exists, in the system's file browser.
  std::function<void(const std::string& folder)> openFolder;
};

class frmPortraits final : public Screen {
 public:
  /// In the player's interface style. `player` and `caller` must outlive it.
  frmPortraits(const ScreenServices& services, clsPlayer& player, PortraitCaller& caller,
               const frmPortraitsServices& picker);
  ~frmPortraits() override;

  /// Back to the caller; nothing is chosen.
  void LeaveProgram() override;

  [[nodiscard]] int SelectedTile() const { return selected_; }
  [[nodiscard]] FadeTarget& imgPortrait(int tile) { return *tiles_.at(static_cast<std::size_t>(tile)); }
  [[nodiscard]] FadeTarget& imgSelected() { return *imgSelected_; }
  [[nodiscard]] FadeTarget& imgOverride() { return *imgOverride_; }
  [[nodiscard]] QLabel& lblOverride() { return *lblOverride_; }
  [[nodiscard]] QLabel& lblRefusal() { return *lblRefusal_; }
  [[nodiscard]] ctlButton& cmdFolder() { return *cmdFolder_; }
  [[nodiscard]] ctlButton& cmdOK() { return *cmdOK_; }
  [[nodiscard]] ctlTitlebar& titlebar() { return *ctlTitlebar_; }

 protected:
  void Activate() override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void BuildControls();
  void BuildTiles();
  void ShowOverride();
  void Select(int tile);
  void Confirm();
  void OpenFolder();
  /// The keys are in the list of tiles: a reader hears the one that is chosen.
  void TellSelected();

  frmPortraitsServices picker_;
  clsPlayer& player_;
  PortraitCaller& caller_;
  int selected_ = 0;
  PortraitList* lstPortraits_ = nullptr;  // children
  std::array<FadeTarget*, kPortraitTiles> tiles_{};
  FadeTarget* imgSelected_ = nullptr;
  QLabel* lblSelected_ = nullptr;
  FadeTarget* imgOverride_ = nullptr;
  QLabel* lblOverride_ = nullptr;
  QLabel* lblHint_ = nullptr;
  QLabel* lblRefusal_ = nullptr;    // why the own picture is not shown
  ctlButton* cmdFolder_ = nullptr;  // while there is no own picture to click
  ctlButton* cmdOK_ = nullptr;
  ctlTitlebar* ctlTitlebar_ = nullptr;
};

}  // namespace kv
