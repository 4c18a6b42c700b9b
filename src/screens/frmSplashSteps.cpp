// What the person does on the start screen: picking and loading a player, and creating one step by step.
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <algorithm>

#include "screens/PinBox.h"
#include "screens/PlayerFiles.h"
#include "screens/frmSplash.h"
#include "screens/frmSplashTitle.h"

namespace kv {
namespace {

constexpr const char* kLoadFailedText = "Player file corrupted, or incorrect PIN";
constexpr const char* kErrorTitle = "Kelm Vantri: Error";

/// Takes the blanks from the start of the box, and says whether there were any. The caret stays at its text.
bool RemoveLeadingBlanks(QLineEdit& box) {
  const QString text = box.text();
  qsizetype blanks = 0;
  while (blanks < text.size() && text.at(blanks) == u' ') ++blanks;
  if (blanks == 0) return false;
  const int caret = box.cursorPosition() - static_cast<int>(blanks);
  box.setText(text.mid(blanks));
  box.setCursorPosition(std::max(caret, 0));
  return true;
}

QString Trimmed(const QLineEdit& box) {
  QString text = box.text();
  while (text.endsWith(u' ')) text.chop(1);
  while (text.startsWith(u' ')) text.remove(0, 1);
  return text;
}

QString MaxLengthLine(const QLineEdit& box) {
  if (box.text().size() < box.maxLength()) return {};
  return QStringLiteral("- max length reached (%1)\n").arg(box.maxLength());
}

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
  if (any) lstPlayers_->setCurrentRow(0);
}

void frmSplash::PlayerSelected() {
  if (lstPlayers_->currentRow() < 0) return;
  txtPIN_->clear();
  cmdContinue_->setEnabled(true);
}

void frmSplash::MoveSelection(int rows) {
  if (!lstPlayers_->isEnabled()) return;
  lstPlayers_->setCurrentRow(std::clamp(lstPlayers_->currentRow() + rows, 0, lstPlayers_->count() - 1));
}

void frmSplash::FocusList() {
  // The PIN is what is typed next; the list follows the arrow keys from there.
  if (lstPlayers_->isEnabled()) {
    txtPIN_->setFocus();
  } else {
    setFocus();
  }
}

void frmSplash::EnableList(bool enabled) {
  lstPlayers_->setEnabled(enabled);
  txtPIN_->setEnabled(enabled);
  cmdContinue_->setEnabled(enabled);
  cmdCreate_->setEnabled(enabled);
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
  lblHeader_->setText(QStringLiteral("Enter a player name:"));
  ShowView(View::PlayerName);
  CheckPlayerName();
  txtPlayer_->setFocus();
}

void frmSplash::CheckPlayerName() {
  if (RemoveLeadingBlanks(*txtPlayer_)) return;  // the change has been looked at already
  cmdNewName_->setEnabled(!txtPlayer_->text().isEmpty());
  lblCreateInfo_->setText(MaxLengthLine(*txtPlayer_));
}

void frmSplash::NewName() {
  const QString name = Trimmed(*txtPlayer_);
  txtPlayer_->setText(name);
  lblHeader_->setText(QStringLiteral("Enter a filename for your player:"));
  ShowView(View::FileName);
  txtName_->setText(name.toLower());
  CheckFileName();
  txtName_->setFocus();
  txtName_->deselect();
  txtName_->end(false);
}

void frmSplash::CheckFileName() {
  if (RemoveLeadingBlanks(*txtName_)) return;  // the change has been looked at already
  // Blanks at the end are on their way to a further word, and go when the name is used.
  const std::string name = Trimmed(*txtName_).toStdString();
  const bool valid = IsValidFileName(name);
  const bool exists = valid && !name.empty() && PlayerExists(splash_.workingFolder, name);
  cmdNewFile_->setEnabled(valid && !name.empty() && !exists);
  QString info;
  if (exists) info += QStringLiteral("- file of already exists\n");
  if (!valid) info += QStringLiteral("- invalid char: \\  /  :  *  ?  \"  <  >  |\n");
  lblCreateInfo_->setText(info + MaxLengthLine(*txtName_));
}

void frmSplash::TrimFileName() {
  if (const QString name = Trimmed(*txtName_); name != txtName_->text()) txtName_->setText(name);
}

void frmSplash::NewFile() {
  cmdNewFile_->setEnabled(false);  // while a box about the saving is open
  TrimFileName();
  const std::string name = txtName_->text().toStdString();
  std::unique_ptr<clsPlayer> player = splash_.newPlayer();
  player->Name = txtPlayer_->text().toStdString();
  player->PIN = txtNewPIN_->PIN();
  const PlayerCreation created = CreatePlayerFile(*player, splash_.workingFolder, name);
  if (closing()) return;
  if (created == PlayerCreation::Exists) {  // it has appeared since the name was looked at
    CheckFileName();
    txtName_->setFocus();
    return;
  }
  BackToList();
  RefreshPlayerList();
  if (created == PlayerCreation::Created) SelectPlayer(name, player->PIN);
  FocusList();
}

void frmSplash::SelectPlayer(const std::string& name, const std::string& pin) {
  const auto& files = lstFiles_.files();
  std::size_t row = 0;
  while (row < files.size() && lstFiles_.Player(row) != name) ++row;
  if (row == files.size()) return;
  lstPlayers_->setCurrentRow(static_cast<int>(row));
  txtPIN_->setPIN(pin);
}

void frmSplash::BackToList() {
  ShowView(View::List);
  for (QLineEdit* box : {txtPlayer_, txtName_, static_cast<QLineEdit*>(txtNewPIN_)}) box->clear();
  txtNewPIN_->setRevealed(false);
  cmdCreate_->setEnabled(true);
  FocusList();
}

ctlButton* frmSplash::StepButton() const {
  if (view_ == View::PlayerName) return cmdNewName_;
  if (view_ == View::FileName) return cmdNewFile_;
  return cmdContinue_->Enabled() ? cmdContinue_ : cmdCreate_;
}

// The hidden default button: it does what the button of the present step does, and only while that may.
void frmSplash::cmdNew2() {
  const ctlButton* step = StepButton();
  if (!step->Enabled()) return;
  if (step == cmdNewName_) NewName();
  if (step == cmdNewFile_) NewFile();
  if (step == cmdContinue_) Continue();
  if (step == cmdCreate_) Create();
}

}  // namespace kv
