// What the person does on the start screen: picking and loading a player, and creating one step by step.
#include <QListWidget>
#include <QPushButton>
#include <algorithm>

#include "screens/PinBox.h"
#include "screens/PlayerFiles.h"
#include "screens/TextLink.h"
#include "screens/frmSplash.h"
#include "screens/frmSplashCreation.h"
#include "screens/frmSplashTitle.h"

namespace kv {
namespace {

constexpr const char* kLoadFailedText = "Player file corrupted, or incorrect PIN";
constexpr const char* kErrorTitle = "Kelm Vantri: Error";

}  // namespace

void frmSplash::RefreshPlayerList() {
  lstFiles_.Refresh();
  QStringList entries;
  for (std::size_t i = 0; i < lstFiles_.files().size(); ++i) {
    entries.append(QString::fromStdString(lstFiles_.Player(i)));
  }
  lstPlayers_->clear();
  lstPlayers_->addItems(entries);
  const bool any = !lstFiles_.files().empty();
  lstPlayers_->setEnabled(any);
  cmdContinue_->setEnabled(any);
  for (TextLink* link : {lnkRename_, lnkDelete_}) link->setEnabled(any);
  if (any) {
    lstPlayers_->setCurrentRow(0);
  } else {
    ShowOwner();
  }
  StepChanged();
}

void frmSplash::PlayerSelected() {
  if (lstPlayers_->currentRow() < 0) return;
  txtPIN_->clear();
  cmdContinue_->setEnabled(true);
  ShowOwner();
  StepChanged();
}

void frmSplash::MoveSelection(int rows) {
  if (!lstPlayers_->isEnabled()) return;
  lstPlayers_->setCurrentRow(std::clamp(lstPlayers_->currentRow() + rows, 0, lstPlayers_->count() - 1));
  // The list has not got the focus, so that nothing else tells of it.
  TellSelected();
}

void frmSplash::TellSelected() {
  const QListWidgetItem* item = lstPlayers_->currentItem();
  if (item != nullptr) Announce(item->text().toStdString() + " is selected.");
}

void frmSplash::FocusList() {
  // The PIN is what is typed next; the list follows the arrow keys from there.
  if (lstPlayers_->isEnabled()) {
    txtPIN_->setFocus();
  } else {
    cmdCreate_->setFocus();
  }
}

void frmSplash::EnableList(bool enabled) {
  if (!enabled) setFocus();  // else it would wander to the link below
  lstPlayers_->setEnabled(enabled);
  txtPIN_->setEnabled(enabled);
  cmdContinue_->setEnabled(enabled);
  cmdCreate_->setEnabled(enabled);
  for (TextLink* link : {lnkRename_, lnkDelete_}) link->setEnabled(enabled);
  StepChanged();
}

void frmSplash::Continue() {
  const int row = lstPlayers_->currentRow();
  if (row < 0) return;
  EnableList(false);
  cmdContinue_->setCaption(QStringLiteral("loading..."));
  // A fresh record each time: nothing of a failed attempt can be left in it.
  std::unique_ptr<clsPlayer> player = splash_.newPlayer();
  player->PIN = txtPIN_->PIN();
  const bool failed = player->LoadPlayerFile(
      PlayerPath(splash_.workingFolder, lstFiles_.Player(static_cast<std::size_t>(row))));
  if (closing()) return;
  if (failed) {
    LoadFailed();
    return;
  }
  services().navigator.PlayerLoaded(std::move(player));
  PlayEffect("click");
  title_->Stop();
  tmrLoadWatch_->setEnabled(true);
}

void frmSplash::LoadFailed() {
  services().dialogs.Message(kLoadFailedText, kErrorTitle, DialogIcon::Critical);
  if (closing()) return;
  cmdContinue_->setCaption(QStringLiteral("continue"));
  EnableList(true);
  txtPIN_->setFocus();
  txtPIN_->selectAll();
}

void frmSplash::LoadWatchTick() {
  if (!loaded_) return;
  tmrLoadWatch_->setEnabled(false);
  services().navigator.OpenMenu();
}

void frmSplash::Create() {
  txtPIN_->clear();
  ShowList(false);
  creation_->Begin();
}

void frmSplash::SelectPlayer(const std::string& name, const std::string& pin) {
  const auto& files = lstFiles_.files();
  std::size_t row = 0;
  while (row < files.size() && lstFiles_.Player(row) != name) ++row;
  if (row == files.size()) return;
  lstPlayers_->setCurrentRow(static_cast<int>(row));
  txtPIN_->setPIN(pin);
  TellSelected();
}

void frmSplash::BackToList() {
  cmdCreate_->setEnabled(true);
  ShowList(true);
}

ctlButton* frmSplash::StepButton() const {
  if (ctlButton* step = creation_->StepButton()) return step;
  return cmdContinue_->Enabled() ? cmdContinue_ : cmdCreate_;
}

void frmSplash::StepChanged() {
  cmdNew2_->setEnabled(StepButton()->Enabled());
}

void frmSplash::EnterStep() {
  if (creation_->StepButton() != nullptr) {
    creation_->Next();
  } else if (cmdContinue_->Enabled()) {
    Continue();
  } else {
    Create();
  }
}

}  // namespace kv
