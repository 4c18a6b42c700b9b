// What the person does in the lobby, and what the other side's doing changes in it.
#include <QKeyEvent>

#include "network/Address.h"
#include "network/frmNetwork.h"

namespace kv {
namespace {

constexpr int kHeadingLines = 2;  // of the list of addresses
constexpr int kListMargin = 8;    // layout pixels below its last line
constexpr QColor kChoosingFrame(255, 0, 0);
constexpr const char* kLoopback = "127.0.0.1";
constexpr const char* kPortPrompt =
    "Both players must use the same port number. Enter new port number (1 - 65535)";

}  // namespace

// --- Connection ------------------------------------------------------------------------------------------

void frmNetwork::EnableButtons(bool enabled) {
  for (ctlButton* button : {cmdHost_, cmdJoin_, cmdPort_, cmdDeviceIP_, cmdConnect_}) {
    button->setEnabled(enabled);
  }
  txtIP_->setEnabled(enabled);
  imgYourPic_->setEnabled(enabled);
}

void frmNetwork::ChooseSide(bool hosting) {
  services_.network.setHosting(hosting);
  ShowCaption(*cmdConnect_, "Open the connection",
              hosting ? QStringLiteral("host") : QStringLiteral("connect"));
  cmdHost_->setEnabled(!hosting);
  cmdJoin_->setEnabled(hosting);
  txtIP_->setEnabled(!hosting);
  if (hosting) {
    cmdConnect_->setEnabled(true);
  } else {
    AddressChanged();
  }
}

void frmNetwork::AddressChanged() {
  cmdConnect_->setEnabled(IsValidIP(txtIP_->text().toStdString()));
}

int frmNetwork::Port() const {
  return cmdPort_->Caption().toInt();
}

void frmNetwork::cmdConnect_Click() {
  const QString address = txtIP_->text();
  const bool hosting = services_.network.hosting();
  const bool own =
      address == QString::fromUtf8(kLoopback) || !lstIPs_->findItems(address, Qt::MatchExactly).isEmpty();
  if (!hosting && own) {
    services().dialogs.Message("Error! This IP is being used on this computer!", "Kelm Vantri: Error",
                               DialogIcon::Exclamation);
    if (!closing()) AddressChanged();
    return;
  }
  EnableButtons(false);
  lobby_.Opening();
  services_.network.Open(Port(), address.toStdString());
}

void frmNetwork::cmdPort_Click() {
  const std::string present = std::to_string(Port());
  for (;;) {
    const auto answer = services().dialogs.AskText(kPortPrompt, "Kelm Vantri: Change Port", present);
    if (closing()) return;
    if (!answer || answer->find_first_not_of(' ') == std::string::npos) break;
    if (const auto port = PortOf(*answer)) {
      PlayEffect("click");
      ShowCaption(*cmdPort_, "Port", QString::number(*port));
      break;
    }
  }
  cmdPort_->setEnabled(true);
}

// --- The machine's own addresses -------------------------------------------------------------------------

void frmNetwork::ListLocalIPs() {
  const std::vector<std::string> addresses = UsableAddresses(services_.localAddresses());
  lstIPs_->clear();
  lstIPs_->addItem(QStringLiteral("< %1 IP(s) detected >").arg(addresses.size()));
  lstIPs_->addItem(QStringLiteral("(double-click to select)"));
  for (const std::string& address : addresses) lstIPs_->addItem(QString::fromStdString(address));
}

void frmNetwork::ShowAddresses() {
  EnableButtons(false);
  ListLocalIPs();
  const int rows = lstIPs_->sizeHintForRow(0) * lstIPs_->count() + 2 * lstIPs_->frameWidth();
  lstIPs_->setFixedHeight(rows + kListMargin);
  lstIPs_->show();
  lstIPs_->setCurrentRow(lstIPs_->count() > kHeadingLines ? kHeadingLines : 0);
  lstIPs_->setFocus();
  PlayEffect("panel");
}

void frmNetwork::HideAddresses() {
  lstIPs_->hide();
  EnableButtons(true);
  ChooseSide(services_.network.hosting());
  cmdDeviceIP_->setFocus();
}

void frmNetwork::ChooseAddress(const QListWidgetItem& item) {
  if (lstIPs_->row(&item) < kHeadingLines) return;
  services_.network.Bind(Port(), item.text().toStdString());
  ShowCaption(*cmdDeviceIP_, "Address of this computer",
              QString::fromStdString(services_.network.LocalAddress()));
  HideAddresses();
}

void frmNetwork::imgYourPic_Click() {
  PlayEffect("click");
  imgYourPic_->setBorder(kChoosingFrame);
  choosingPortrait_ = true;
  services().navigator.OpenPortraits(*this);
}

void frmNetwork::ShowGreeting() {
  lstIPs_->hide();
  EnableButtons(false);
  chat_->txtSend().clear();
  chat_->txtSend().setFocus();
}

// --- Leaving ---------------------------------------------------------------------------------------------

void frmNetwork::LeaveProgram() {
  if (services_.network.connected()) {
    services_.network.SubmitChat("/quit");
  } else {
    services().navigator.EndProgram();
  }
}

void frmNetwork::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape || event->isAutoRepeat()) {
    Screen::keyPressEvent(event);
  } else if (lstIPs_->isVisible()) {
    HideAddresses();
  } else {
    services_.network.LeaveLobby();
  }
}

void frmNetwork::mousePressEvent(QMouseEvent* event) {
  if (lstIPs_->isVisible()) HideAddresses();
  Screen::mousePressEvent(event);
}

}  // namespace kv
