// The start screen: the person picks a player file and types its PIN, or creates a new player. It loads and
// creates player files; it never changes one that exists, and no player is current until a load succeeds.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "presentation/Screen.h"
#include "presentation/TitleButton.h"
#include "presentation/WindowDrag.h"
#include "profile/clsPlayer.h"
#include "screens/PlayerFiles.h"

class QLabel;
class QLineEdit;
class QListWidget;

namespace kv {

class PinBox;
class TextLink;
class frmSplashTitle;

struct frmSplashServices {
  std::string workingFolder;  // player files; empty for the current folder
  std::function<std::unique_ptr<clsPlayer>()> newPlayer;
  std::function<void(const std::string& address)> openAddress;
};

class frmSplash final : public Screen {
 public:
  /// Nobody's style is known yet: "Slate" unless another one is asked for.
  frmSplash(const ScreenServices& services, const frmSplashServices& splash,
            std::string_view style = "Slate");
  ~frmSplash() override;

  /// Ends the program at once.
  void LeaveProgram() override;

 protected:
  void Activate() override;
  void Shown() override;
  void Closing() override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  // What the screen shows: the list, or one of the two steps of creating a player.
  enum class View { List, PlayerName, FileName };

  void BuildList();
  void BuildCreation();
  void BuildFrame();
  void BuildTitle();
  QLineEdit* NewBox(QStringView control);
  PinBox* NewPinBox(QStringView control);
  void Dress(QStringView control, QLineEdit& box);
  TextLink* NewLink(QStringView control);
  TitleButton* NewTitleButton(QStringView control, TitleButton::Sign sign);
  void ShowView(View view);

  void RefreshPlayerList();
  void PlayerSelected();
  void MoveSelection(int rows);
  void SelectPlayer(const std::string& name, const std::string& pin);
  void FocusList();
  void EnableList(bool enabled);
  void Continue();
  void LoadFailed();
  void LoadWatchTick();

  void Create();
  void CheckPlayerName();
  void NewName();
  void CheckFileName();
  void TrimFileName();
  void NewFile();
  void BackToList();

  /// The button of the step that the Enter key performs.
  [[nodiscard]] ctlButton* StepButton() const;
  void cmdNew2();

  const frmSplashServices splash_;
  PlayerFileList lstFiles_;  // behind lstPlayers, entry by entry
  View view_ = View::List;
  bool loaded_ = false;  // the screen stands; the hand-over waits for it
  WindowDrag drag_;
  std::unique_ptr<frmSplashTitle> title_;
  std::unique_ptr<Timer> tmrLoadWatch_;

  QLabel* lblPlayerHeader_ = nullptr;  // children, all that follow
  QListWidget* lstPlayers_ = nullptr;
  QLabel* lblPINtitle_ = nullptr;
  PinBox* txtPIN_ = nullptr;
  ctlButton* cmdContinue_ = nullptr;
  ctlButton* cmdCreate_ = nullptr;
  QLabel* lblHeader_ = nullptr;
  QLineEdit* txtPlayer_ = nullptr;
  ctlButton* cmdNewName_ = nullptr;
  QLineEdit* txtName_ = nullptr;
  QLabel* lblNewPIN_ = nullptr;
  PinBox* txtNewPIN_ = nullptr;
  TextLink* lblPINReveal_ = nullptr;
  ctlButton* cmdNewFile_ = nullptr;
  QLabel* lblCreateInfo_ = nullptr;
};

}  // namespace kv
