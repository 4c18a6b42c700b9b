// The options screen: name, PIN, portrait, options and key bindings of the current player. Everything stands
// in its controls until OK stores it in one step; it must leave the record as it was on every other way out.
#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "presentation/PortraitCaller.h"
#include "presentation/Screen.h"
#include "profile/Settings.h"
#include "profile/clsPlayer.h"

class QLineEdit;

namespace kv {

class PinBox;
class frmOptionsFields;
class frmOptionsFrame;
class frmOptionsKeys;
class frmOptionsPortrait;
class frmOptionsSize;
class frmOptionsVolume;

struct frmOptionsServices {
  clsPlayer& player;
  Settings& settings;
  /// Makes all sounds louder or softer from now on, 0 to 100 percent.
  std::function<void(int percent)> setVolume{};
};

class frmOptions final : public Screen, public PortraitCaller {
 public:
  /// In the player's interface style, filled from the record. Player and settings must outlive the screen.
  frmOptions(const ScreenServices& services, const frmOptionsServices& options);
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
  void SizeChanged() override;

 private:
  void BuildControls();
  void BuildPlayer();
  void BuildVolume();
  void BuildKeys();
  ctlButton* NewFrameButton(QStringView control, std::function<void()> click);
  void FillControls();
  [[nodiscard]] bool NameGiven() const;

  void EscapeKey();
  void ShowKeyFrame();
  void HideKeyFrame();
  void KeyDown(const QKeyEvent& key);
  void KeyCaught(std::int16_t keyCode);

  void OKClick();
  /// True when the PIN may be stored: it is not changed, or the person is sure.
  [[nodiscard]] bool PINConfirmed();
  void StoreControls();
  void Cancel();

  const frmOptionsServices options_;
  clsPlayer& player_;
  std::int16_t portraitBefore_;  // the picker changes the record at once; without OK it is put back
  std::optional<int> waiting_;   // the key button that waits for its key
  std::unique_ptr<Timer> tmrKeys_;
  std::unique_ptr<frmOptionsFields> fields_;
  std::unique_ptr<frmOptionsSize> size_;
  frmOptionsFrame* frmeOptions_ = nullptr;  // children
  frmOptionsKeys* frmeKeys_ = nullptr;
  frmOptionsPortrait* imgYourPic_ = nullptr;
  QLineEdit* txtName_ = nullptr;
  PinBox* txtPIN_ = nullptr;
  frmOptionsVolume* sldVolume_ = nullptr;
  ctlButton* cmdKeys_ = nullptr;
  ctlButton* cmdOK_ = nullptr;
  ctlButton* cmdCancel_ = nullptr;
};

}  // namespace kv
