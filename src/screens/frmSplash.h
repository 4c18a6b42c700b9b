// The start screen: the person picks a player file and types its PIN, renames it, moves it to the trash, or
// creates one. What is in a file never changes here, and no player is current until a load succeeds.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "presentation/Screen.h"
#include "presentation/WindowDrag.h"
#include "screens/PlayerFiles.h"
#include "screens/frmSplashServices.h"

class QLabel;
class QListWidget;
class QPushButton;

namespace kv {

class PinBox;
class TextLink;
class frmSplashCreation;
class frmSplashTitle;

class frmSplash final : public Screen {
 public:
  /// Nobody's style is known yet: "Slate" unless another one is asked for.
  frmSplash(const ScreenServices& services, const frmSplashServices& splash,
            std::string_view style = "Slate");
  ~frmSplash() override;

  void LeaveProgram() override;

 protected:
  void Activate() override;
  void Shown() override;
  void Closing() override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void BuildList();
  void BuildCreation();
  void BuildFrame();
  void BuildTitle();
  /// The list with its controls, or the steps of creating a player in its place.
  void ShowList(bool list);

  void RefreshPlayerList();
  void PlayerSelected();
  void MoveSelection(int rows);
  void TellSelected();
  void SelectPlayer(const std::string& name, const std::string& pin);
  void FocusList();
  void EnableList(bool enabled);
  void Continue();
  void LoadFailed();
  void LoadWatchTick();
  void Create();
  void BackToList();
  void BuildCare();
  void ShowOwner();
  [[nodiscard]] std::string SelectedName() const;
  /// The selected player if the person may delete and rename him; tells it and gives nothing if not.
  [[nodiscard]] std::string NameForCare();
  void Delete();
  void Rename();

  /// The button of the step that the Enter key performs.
  [[nodiscard]] ctlButton* StepButton() const;
  void StepChanged();
  void EnterStep();

  const frmSplashServices splash_;
  PlayerFileList lstFiles_;  // behind lstPlayers, entry by entry
  bool loaded_ = false;      // the screen stands; the hand-over waits for it
  WindowDrag drag_;
  std::unique_ptr<frmSplashTitle> title_;
  std::unique_ptr<frmSplashCreation> creation_;
  std::unique_ptr<Timer> tmrLoadWatch_;

  QLabel* lblPlayerHeader_ = nullptr;  // children, all that follow
  QListWidget* lstPlayers_ = nullptr;
  QLabel* lblPINtitle_ = nullptr;
  PinBox* txtPIN_ = nullptr;
  ctlButton* cmdContinue_ = nullptr;
  ctlButton* cmdCreate_ = nullptr;
  QLabel* lblOwner_ = nullptr;  // the name inside the selected file
  TextLink* lnkRename_ = nullptr;
  TextLink* lnkDelete_ = nullptr;
  QPushButton* cmdNew2_ = nullptr;  // hidden: what the Enter key presses
};

}  // namespace kv
