// The campaign screen: the player's account and the tiles of the circuit. It shows what the circuit decides,
// and hands back which opponent the person has chosen.
#pragma once

#include <array>

#include "campaign/Circuit.h"
#include "campaign/ctlOpponent.h"
#include "campaign/frmCampaignTarget.h"
#include "presentation/Screen.h"
#include "profile/clsPlayer.h"

namespace kv {

class frmCampaign final : public Screen {
 public:
  /// In the player's interface style. Ties `game` to the player's campaign account; both must outlive it.
  frmCampaign(const ScreenServices& services, clsPlayer& player, clsGame& game);
  ~frmCampaign() override;

  /// Nothing is owed here: the program ends at once.
  void LeaveProgram() override;

  [[nodiscard]] ctlOpponent& ctlOpp(int index) { return *tiles_.at(static_cast<std::size_t>(index)); }
  /// The click target of a tile, null while the opponent cannot be chosen.
  [[nodiscard]] frmCampaignTarget* cmdOpp(int index) { return targets_.at(static_cast<std::size_t>(index)); }
  [[nodiscard]] ctlButton& cmdDeck() { return *cmdDeck_; }
  [[nodiscard]] ctlTitlebar& titlebar() { return *ctlTitlebar_; }
  [[nodiscard]] QLabel& lblPName() { return *lblPName_; }
  [[nodiscard]] QLabel& lblPCredits() { return *lblPCredits_; }
  [[nodiscard]] QLabel& lblPWins() { return *lblPWins_; }
  [[nodiscard]] QLabel& lblPLosses() { return *lblPLosses_; }

 protected:
  void Activate() override;
  void Shown() override;
  bool event(QEvent* event) override;
  void PlainHighlights() override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QLabel* NewAccountLabel(QStringView control);
  void BuildPortrait();
  void BuildTile(int index);
  void BuildTarget(int index);
  void ShowAccount();
  /// The layout's control of this name, or its place in the finished campaign.
  [[nodiscard]] QString PlaceOf(QStringView control);
  void Choose(int index);
  void ViewDeck();
  /// Back to the menu.
  void Close();
  /// True when nothing was under way; from then on the screen takes no input.
  [[nodiscard]] bool Begin();

  clsPlayer& player_;
  Circuit circuit_;
  bool busy_ = false;  // the next screen is being opened, or the bankruptcy is being told
  bool portraitShown_ = false;
  std::array<ctlOpponent*, kCircuitTiles> tiles_{};  // children
  std::array<frmCampaignTarget*, kCircuitTiles> targets_{};
  ctlButton* cmdDeck_ = nullptr;
  ctlTitlebar* ctlTitlebar_ = nullptr;
  QLabel* lblPName_ = nullptr;
  QLabel* lblPCredits_ = nullptr;
  QLabel* lblPWins_ = nullptr;
  QLabel* lblPLosses_ = nullptr;
};

}  // namespace kv
