#include "screens/frmOptions.h"

#include <QKeyEvent>
#include <QLineEdit>

#include "platform/Keys.h"
#include "platform/QtKeys.h"
#include "screens/PinBox.h"
#include "screens/frmOptionsFields.h"
#include "screens/frmOptionsFrame.h"
#include "screens/frmOptionsKeys.h"
#include "screens/frmOptionsPortrait.h"
#include "screens/frmOptionsSize.h"

namespace kv {
namespace {

constexpr const char* kConfirmation = "Kelm Vantri: Confirmation";
constexpr const char* kChangePIN = "Are you sure you want to change your PIN?";
constexpr const char* kRemovePIN = "Are you sure you want to remove your PIN?";
constexpr const char* kAltTitle = "Kelm Vantri: Alt Key Warning";
constexpr const char* kAltWarning =
    "I highly recommend AGAINST using the Alt key as it will trigger on an 'Alt-Tab' task switch command!";

}  // namespace

frmOptions::frmOptions(const ScreenServices& services, const frmOptionsServices& options)
    : Screen(services, "frmOptions", options.player.Interface_Opt),
      options_(options),
      player_(options.player),
      portraitBefore_(options.player.Portrait),
      tmrKeys_(NewTimer(1, [this] {
        tmrKeys_->setEnabled(false);
        frmeOptions_->setEnabled(false);
      })) {
  BuildControls();
  FillControls();
}

frmOptions::~frmOptions() {
  CloseScreen();
}

void frmOptions::Closing() {
  tmrKeys_->setEnabled(false);
  waiting_.reset();
}

void frmOptions::SizeChanged() {
  size_->Refresh();
}

void frmOptions::PortraitChosen(const Picture& picture) {
  imgYourPic_->setPicture(picture);
}

// --- Key bindings ----------------------------------------------------------------------------------------

bool frmOptions::event(QEvent* event) {
  const QEvent::Type type = event->type();
  if (type != QEvent::KeyPress && type != QEvent::ShortcutOverride) return QWidget::event(event);
  const auto& key = static_cast<QKeyEvent&>(*event);
  if (waiting_) {
    // Before the toolkit takes Tab and the like for itself.
    event->accept();
    if (type == QEvent::KeyPress) KeyDown(key);
    return true;
  }
  if (type == QEvent::KeyPress && key.key() == Qt::Key_Escape && !key.isAutoRepeat()) {
    EscapeKey();
    return true;
  }
  return QWidget::event(event);
}

void frmOptions::EscapeKey() {
  if (!frmeKeys_->isVisible()) {
    Cancel();
  } else if (frmeKeys_->isEnabled()) {
    HideKeyFrame();
  }
}

void frmOptions::ShowKeyFrame() {
  frmeKeys_->show();
  frmeKeys_->cmdKey(0).setFocus();
  tmrKeys_->setEnabled(true);
}

void frmOptions::HideKeyFrame() {
  tmrKeys_->setEnabled(false);
  frmeKeys_->hide();
  frmeOptions_->setEnabled(true);
  cmdKeys_->setEnabled(true);
  frmeKeys_->cmdKeysDone().setEnabled(true);
  cmdKeys_->setFocus();
}

void frmOptions::getKey(int index) {
  // With the focus on the screen itself every key comes here first; the frame's own controls get none.
  setFocus();
  frmeKeys_->BeginWaiting(index);
  waiting_ = index;
  Announce(frmeKeys_->Title().toStdString(), Urgency::Assertive);
}

void frmOptions::KeyDown(const QKeyEvent& key) {
  if (key.isAutoRepeat()) return;  // the key that clicked the button may still be held
  const int code = VirtualKey(key);
  if (code > 0) KeyCaught(static_cast<std::int16_t>(code));
}

void frmOptions::KeyCaught(std::int16_t keyCode) {
  const int index = *waiting_;
  waiting_.reset();
  frmeKeys_->Bind(index, keyCode == KeyEscape ? kNoKey : keyCode);
  if (keyCode == KeyAlt) services().dialogs.Message(kAltWarning, kAltTitle, DialogIcon::Critical);
  if (closing()) return;
  frmeKeys_->EndWaiting();
  Announce(frmeKeys_->cmdKey(index).accessibleName().toStdString());
}

// --- The ways out ----------------------------------------------------------------------------------------

void frmOptions::OKClick() {
  const bool sure = PINConfirmed();
  if (closing()) return;
  if (!sure) {
    cmdOK_->setEnabled(NameGiven());
    return;
  }
  StoreControls();
  cmdOK_->setEnabled(false);
  cmdCancel_->setEnabled(false);
  player_.WritePlayerFile();
  if (!closing()) services().navigator.OpenMenu();
}

bool frmOptions::PINConfirmed() {
  const std::string pin = txtPIN_->PIN();
  if (pin == player_.PIN) return true;
  return services().dialogs.AskYesNo(pin.empty() ? kRemovePIN : kChangePIN, kConfirmation,
                                     DialogIcon::Exclamation);
}

void frmOptions::StoreControls() {
  player_.PIN = txtPIN_->PIN();
  portraitBefore_ = player_.Portrait;
  player_.Name = txtName_->text().trimmed().toStdString();
  fields_->Write(player_);
  frmeKeys_->Write(*player_.Keys);
}

void frmOptions::Cancel() {
  player_.Portrait = portraitBefore_;
  services().navigator.OpenMenu();
}

void frmOptions::LeaveProgram() {
  player_.Portrait = portraitBefore_;
  services().navigator.EndProgram();
}

}  // namespace kv
