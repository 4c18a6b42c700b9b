// The two steps of the start screen in which a player is created: the player's name, then the file's name and
// PIN. It makes the file and says how that ended; it knows nothing of the players that exist, and never
// changes a file.
#pragma once

#include <QString>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <string>

#include "platform/Announcer.h"
#include "platform/Scheduler.h"
#include "presentation/Layout.h"
#include "presentation/ctlButton.h"
#include "screens/frmSplashServices.h"

class QLabel;
class QLineEdit;

namespace kv {

class PinBox;

class frmSplashCreation final {
 public:
  /// All outlive it.
  struct Services {
    ButtonContext& buttons;
    Scheduler& scheduler;
    Announcer& announcer;
    const Lifetime& lifetime;  // of the screen
    const frmSplashServices& splash;
  };
  /// Its controls become children of `screen`, hidden until Begin.
  frmSplashCreation(QWidget& screen, Layout& layout, const Services& services);

  /// The steps are over: the person has changed their mind.
  std::function<void()> GivenUp;
  /// The steps are over: there is a player file of this name now, or a box has told why it could not be
  /// saved.
  std::function<void(const std::string& fileName, const std::string& pin)> Done;
  /// What StepButton gives, or whether it is enabled, may have changed.
  std::function<void()> StepChanged;

  /// The first step, with empty boxes.
  void Begin();
  /// One step back.
  void Back();
  /// Does what the button of the present step does, if that is enabled.
  void Next();
  /// Null outside the steps.
  [[nodiscard]] ctlButton* StepButton() const;

 private:
  enum class Step : std::uint8_t { None, PlayerName, FileName };

  ctlButton* NewButton(QStringView control, std::function<void()> click);
  void BuildName();
  void BuildFile();
  void Show(Step step);
  void ShowPlayerName();
  void CheckPlayerName();
  void NoteRefused(const QString& letters);
  void ShowNameInfo();
  void ShowInfo(const QString& info);
  void NewName();
  void CheckFileName();
  void TrimFileName();
  void NewFile();
  void End();

  QWidget& screen_;
  Layout& layout_;
  const Services services_;
  QObject context_;  // of what the controls tell, which may outlive this
  Step step_ = Step::None;
  QString refused_;              // letters that were typed into the player's name and cannot be stored
  QString maxLength_;            // the line about the length of the player's name
  QLabel* lblHeader_ = nullptr;  // children of the screen, all that follow
  QLineEdit* txtPlayer_ = nullptr;
  ctlButton* cmdNewName_ = nullptr;
  QLineEdit* txtName_ = nullptr;
  QLabel* lblNewPIN_ = nullptr;
  PinBox* txtNewPIN_ = nullptr;
  QWidget* lblPINReveal_ = nullptr;
  ctlButton* cmdNewFile_ = nullptr;
  ctlButton* cmdBack_ = nullptr;
  QLabel* lblCreateInfo_ = nullptr;
};

}  // namespace kv
