// The options screen: name, PIN, portrait, options and key bindings of the current player. Everything stands
// in its controls until OK stores it in one step; it must leave the record as it was on every other way out.
#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <optional>

#include "presentation/PortraitCaller.h"
#include "presentation/Screen.h"
#include "profile/clsPlayer.h"

class QCheckBox;
class QLineEdit;
class QListWidget;
class QRadioButton;

namespace kv {

class frmOptionsKeys;
class frmOptionsPortrait;

class frmOptions final : public Screen, public PortraitCaller {
 public:
  /// In the player's interface style, filled from the record. `player` must outlive the screen.
  frmOptions(const ScreenServices& services, clsPlayer& player);
  ~frmOptions() override;

  /// Leaves the program; the record stays as it was when the screen was opened.
  void LeaveProgram() override;
  void PortraitChosen(const Picture& picture) override;

  /// Waits for one key and binds it to key button `index` (0 to 13); Escape takes the binding away.
  void getKey(int index);
  [[nodiscard]] bool WaitsForKey() const { return waiting_.has_value(); }

 protected:
  bool event(QEvent* event) override;
  void Closing() override;

 private:
  void BuildControls();
  void BuildPlayer();
  void BuildLists();
  void BuildKeys();
  QWidget& Place(QStringView control, QWidget* widget);
  QListWidget* NewList(QStringView control);
  ctlButton* NewFrameButton(QStringView control, std::function<void()> click);

  void FillControls();
  void NameChanged();
  void KeyDown(const QKeyEvent& key);
  void KeyCaught(std::int16_t keyCode);
  void ShowKeyFrame();
  void HideKeyFrame();

  void OKClick();
  /// True when the PIN may be stored: it is not changed, or the person is sure.
  [[nodiscard]] bool PINConfirmed();
  void StoreControls();
  void Cancel();
  void PutPortraitBack() { player_.Portrait = portraitBefore_; }

  clsPlayer& player_;
  const std::int16_t portraitBefore_;  // the picker changes the record at once; only OK keeps that
  std::uint8_t turnMode_;              // index of the turn system that was clicked last
  std::optional<int> waiting_;         // the key button that waits for its key
  std::unique_ptr<Timer> tmrKeys_;
  QWidget* frmeOptions_ = nullptr;  // children
  frmOptionsKeys* frmeKeys_ = nullptr;
  frmOptionsPortrait* imgYourPic_ = nullptr;
  QLineEdit* txtName_ = nullptr;
  QLineEdit* txtPIN_ = nullptr;
  ctlButton* cmdKeys_ = nullptr;
  ctlButton* cmdOK_ = nullptr;
  ctlButton* cmdCancel_ = nullptr;
};

}  // namespace kv
