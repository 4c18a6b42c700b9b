// What the person does in the lobby, and what the other side's doing changes in it.
#include <QKeyEvent>

#include "network/Address.h"
#include "network/frmNetwork.h"

namespace kv {
namespace {

constexpr int kHeadingLines = 2;  // of the list of addresses
constexpr std::int32_t kTradedCredits = 10;
constexpr int kListMargin = 8;  // layout pixels below its last line
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
  lobby_.network.setHosting(hosting);
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
  const bool hosting = lobby_.network.hosting();
  const bool own =
      address == QString::fromUtf8(kLoopback) || !lstIPs_->findItems(address, Qt::MatchExactly).isEmpty();
  if (!hosting && own) {
    services().dialogs.Message("Error! This IP is being used on this computer!", "Kelm Vantri: Error",
                               DialogIcon::Exclamation);
    if (!closing()) AddressChanged();
    return;
  }
  EnableButtons(false);
  ShowState(hosting ? "Waiting for the other player to join..." : "Connecting...");
  lobby_.network.Open(Port(), address.toStdString());
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
  const std::vector<std::string> addresses = UsableAddresses(lobby_.localAddresses());
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
  ChooseSide(lobby_.network.hosting());
  cmdDeviceIP_->setFocus();
}

void frmNetwork::ChooseAddress(const QListWidgetItem& item) {
  if (lstIPs_->row(&item) < kHeadingLines) return;
  lobby_.network.Bind(Port(), item.text().toStdString());
  ShowCaption(*cmdDeviceIP_, "Address of this computer",
              QString::fromStdString(lobby_.network.LocalAddress()));
  HideAddresses();
}

void frmNetwork::imgYourPic_Click() {
  PlayEffect("click");
  imgYourPic_->setBorder(kChoosingFrame);
  choosingPortrait_ = true;
  services().navigator.OpenPortraits(*this);
}

// --- Mode and start --------------------------------------------------------------------------------------

void frmNetwork::cmdGameMode_Click() {
  lobby_.network.ToggleMode();
  ShowMode();
  if (!lobby_.network.hosting()) return;
  tmrNetWait_->setEnabled(false);
  cmdGameMode_->setEnabled(true);
  cmdStart_->setEnabled(true);
  ShowState("Press start when you are ready.");
}

bool frmNetwork::AskTrade() {
  return services().dialogs.AskYesNo("Trade in 1 win for 10 credits?", "Kelm Vantri: No Credits",
                                     DialogIcon::Information);
}

void frmNetwork::cmdStart_Click() {
  clsPlayer& player = lobby_.player;
  if (player.Credits_MP->Value == 0 && player.Wins_MP->Value >= 1) {
    const bool trade = AskTrade();
    if (closing()) return;
    if (trade) {
      player.Credits_MP->Value = kTradedCredits;
      --player.Wins_MP->Value;
      ShowPlayer();
    }
  }
  cmdStart_->setEnabled(false);  // a mode change behind the box may have enabled it
  lobby_.network.SendReady();
  ShowState("Waiting for the other player to press start...");
  tmrNetWait_->setEnabled(true);
}

void frmNetwork::NetWaitTick() {
  if (!lobby_.network.peerReady()) return;
  tmrNetWait_->setEnabled(false);
  lobby_.network.UsePeerStart();
  lobby_.network.PrepareMatch();
  services().navigator.OpenCards();
}

void frmNetwork::ShowStart() {
  tmrShowStart_->setEnabled(false);
  cmdStart_->show();
  cmdStart_->setEnabled(true);
  cmdGameMode_->show();
  cmdGameMode_->setEnabled(lobby_.network.hosting());
  ShowState("Press start when you are ready.");
}

// --- The other side --------------------------------------------------------------------------------------

void frmNetwork::Greet() {
  lstIPs_->hide();
  EnableButtons(false);
  tmrShowStart_->setEnabled(true);
  chat_->txtSend().clear();
  chat_->txtSend().setFocus();
  ShowState("Connected.");
}

void frmNetwork::RefuseStart() {
  tmrShowStart_->setEnabled(false);
  tmrNetWait_->setEnabled(false);
  cmdStart_->hide();
  ShowState("The versions differ: only chat is possible.");
}

void frmNetwork::ModeReceived(bool arcade) {
  tmrNetWait_->setEnabled(false);
  if (lobby_.network.arcade() != arcade) cmdGameMode_Click();
  cmdStart_->setEnabled(true);
  if (cmdStart_->isVisible()) ShowState("Press start when you are ready.");
}

// --- Leaving ---------------------------------------------------------------------------------------------

void frmNetwork::LeaveProgram() {
  if (lobby_.network.connected()) {
    lobby_.network.SubmitChat("/quit");
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
    lobby_.network.LeaveLobby();
  }
}

void frmNetwork::mousePressEvent(QMouseEvent* event) {
  if (lstIPs_->isVisible()) HideAddresses();
  Screen::mousePressEvent(event);
}

}  // namespace kv
