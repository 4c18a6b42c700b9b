// What the start screen offers for a player as a whole: to delete or to rename the one that is selected.
#include <QLabel>
#include <QListWidget>
#include <algorithm>

#include "platform/QtText.h"
#include "presentation/SpokenValue.h"
#include "screens/PinBox.h"
#include "screens/PlayerFiles.h"
#include "screens/TextLink.h"
#include "screens/frmSplash.h"

namespace kv {
namespace {

constexpr const char* kCareError = "Kelm Vantri: Error";
constexpr const char* kDeleteTitle = "Kelm Vantri: Delete Player";
constexpr const char* kRenameTitle = "Kelm Vantri: Rename Player";
constexpr const char* kNoAccess = "Player file corrupted, or incorrect PIN";
constexpr int kLongestName = 20;  // characters, as for a new player

/// Why a name cannot be that of a player file; empty for one that can.
std::string FaultOf(const QString& name) {
  if (!IsValidFileName(name.toStdString())) return "- invalid char: \\  /  :  *  ?  \"  <  >  |";
  if (name.size() > kLongestName) return "- max length reached (" + std::to_string(kLongestName) + ")";
  return {};
}

/// Empty when it was done, else why not.
std::string Renamed(const std::string& folder, const std::string& name, const QString& wanted,
                    const PlayerCareServices& care) {
  if (std::string fault = FaultOf(wanted); !fault.empty()) return fault;
  switch (RenamePlayer(folder, name, wanted.toStdString(), care)) {
    case CareResult::Exists:
      return "- file of already exists";
    case CareResult::Done:
      return {};
    default:
      return "The player file \"" + name + "\" could not be renamed. Nothing has changed.";
  }
}

std::string DeleteQuestion(const std::string& name) {
  return "Move the player file \"" + name + "\" and the matches kept with it to the trash?";
}

}  // namespace

void frmSplash::BuildCare() {
  lblOwner_ = layout().NewLabel(u"lblOwner", this);
  const auto link = [this](QStringView control, void (frmSplash::*click)()) {
    const PropertyBag bag = layout().bag(control);
    auto* made = new TextLink(this, bag);
    layout().Place(control, *made);
    made->setToolTip(bag.text(u"tooltip"));
    connect(made, &QAbstractButton::clicked, this, click);
    return made;
  };
  lnkRename_ = link(u"lnkRename", &frmSplash::Rename);
  lnkDelete_ = link(u"lnkDelete", &frmSplash::Delete);
}

void frmSplash::ShowOwner() {
  const std::string name = SelectedName();
  const std::string owner = name.empty() ? name : NameInside(PlayerPath(splash_.workingFolder, name));
  ShowValue(*lblOwner_, u"Name of the player", ToQString(owner),
            ToQString(owner.empty() ? "not shown" : owner));
}

std::string frmSplash::SelectedName() const {
  const int row = lstPlayers_->currentRow();
  return row < 0 ? std::string() : lstFiles_.Player(static_cast<std::size_t>(row));
}

// Whoever may not open a player shall not make it vanish from the list of the one who may, either.
std::string frmSplash::NameForCare() {
  if (!lstPlayers_->isVisible() || !lstPlayers_->isEnabled()) return {};
  std::string name = SelectedName();
  if (name.empty() || PINAllowsCare(PlayerPath(splash_.workingFolder, name), txtPIN_->PIN())) return name;
  services().dialogs.Message(kNoAccess, kCareError, DialogIcon::Critical);
  if (!closing()) {
    txtPIN_->setFocus();
    txtPIN_->selectAll();
  }
  return {};
}

void frmSplash::Delete() {
  const std::string name = NameForCare();
  if (name.empty() || closing()) return;
  const int row = lstPlayers_->currentRow();
  const bool sure = services().dialogs.AskYesNo(DeleteQuestion(name), kDeleteTitle, DialogIcon::Question);
  if (closing() || !sure) return;
  const CareResult result = TrashPlayer(PlayerPath(splash_.workingFolder, name), splash_.care);
  RefreshPlayerList();
  if (lstPlayers_->isEnabled()) lstPlayers_->setCurrentRow(std::min(row, lstPlayers_->count() - 1));
  FocusList();
  if (result == CareResult::Done) {
    Announce(name + " was moved to the trash.");
    TellSelected();
    return;
  }
  const std::string told =
      result == CareResult::Parted
          ? "The player file \"" + name +
                "\" is in the trash, but the matches kept with it could not be moved."
          : "The player file \"" + name + "\" could not be moved to the trash. Nothing was deleted.";
  services().dialogs.Message(told, kDeleteTitle, DialogIcon::Exclamation);
}

void frmSplash::Rename() {
  const std::string name = NameForCare();
  if (name.empty() || closing()) return;
  std::string wanted = name;
  while (true) {
    const auto answer = services().dialogs.AskText("Enter a filename for your player:", kRenameTitle, wanted);
    if (closing() || !answer) return;
    const QString trimmed = ToQString(*answer).trimmed();
    wanted = trimmed.toStdString();
    if (wanted.empty() || wanted == name) return;
    const std::string fault = Renamed(splash_.workingFolder, name, trimmed, splash_.care);
    if (fault.empty()) break;
    services().dialogs.Message(fault, kRenameTitle, DialogIcon::Exclamation);
    if (closing()) return;
  }
  if (splash_.care.renamed) splash_.care.renamed(name, wanted);
  const std::string pin = txtPIN_->PIN();
  RefreshPlayerList();
  SelectPlayer(wanted, pin);
  FocusList();
}

}  // namespace kv
