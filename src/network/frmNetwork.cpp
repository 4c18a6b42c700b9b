// What the lobby shows and how it is built. What the person does in it is in frmNetworkActions.cpp.
#include "network/frmNetwork.h"

#include <QPainter>
#include <array>

#include "platform/QtText.h"
#include "presentation/NameText.h"
#include "presentation/PanelPainter.h"
#include "presentation/SpokenValue.h"
#include "presentation/WidgetSkin.h"

namespace kv {
namespace {

constexpr QColor kOwnPortraitFrame(0x0D, 0x59, 0x45);
constexpr QColor kBuiltInFrame(0x80, 0x80, 0x80);

constexpr std::array kHeadings = {u"lblNameH",       u"lblCreditsH", u"lblWinsH", u"lblLossesH", u"lblDCsH",
                                  u"lblConnectMode", u"lblDeviceIP", u"lblIP",    u"lblPort"};
constexpr std::array kPanels = {u"panelPlayer", u"panelConnection", u"panelPlay"};

}  // namespace

frmNetwork::frmNetwork(const ScreenServices& services, const frmNetworkServices& lobby)
    : Screen(services, "frmNetwork", lobby.player.Interface_Opt),
      services_(lobby),
      lobby_(
          {services.scheduler, services.dialogs, services.navigator, lobby.network, lobby.player, lifetime()},
          *this) {
  for (const char16_t* heading : kHeadings) layout().NewLabel(heading, this);
  BuildPlayer();
  BuildConnection();
  BuildPlay();
  ctlTitlebar* titlebar = NewTitlebar();
  titlebar->Quit = [this] { services_.network.LeaveLobby(); };
  // Over everything that it covers.
  lstIPs_->raise();
}

frmNetwork::~frmNetwork() {
  CloseScreen();
}

void frmNetwork::BuildConnection() {
  cmdHost_ = NewButton(u"cmdHost", [this] { ChooseSide(true); });
  cmdJoin_ = NewButton(u"cmdJoin", [this] { ChooseSide(false); });
  cmdDeviceIP_ = NewButton(u"cmdDeviceIP", [this] { ShowAddresses(); });
  ShowCaption(*cmdDeviceIP_, "Address of this computer",
              QString::fromStdString(services_.network.LocalAddress()));
  lstIPs_ = new QListWidget(this);
  SkinWidget(*lstIPs_, layout().bag(u"lstIPs"));
  layout().Place(u"lstIPs", *lstIPs_);
  lstIPs_->hide();
  connect(lstIPs_, &QListWidget::itemActivated, this,
          [this](QListWidgetItem* item) { ChooseAddress(*item); });
  txtIP_ = new QLineEdit(this);
  txtIP_->setMaxLength(15);
  SkinWidget(*txtIP_, layout().bag(u"txtIP"));
  layout().Place(u"txtIP", *txtIP_);
  txtIP_->setText(QString::fromStdString(services_.player.LastIP));
  connect(txtIP_, &QLineEdit::textChanged, this, [this] { AddressChanged(); });
  connect(txtIP_, &QLineEdit::returnPressed, this, [this] {
    if (cmdConnect_->Enabled()) cmdConnect_->click();
  });
  cmdPort_ = NewButton(u"cmdPort", [this] { cmdPort_Click(); });
  ShowCaption(*cmdPort_, "Port", QString::number(services_.player.LastPort));
  cmdConnect_ = NewButton(u"cmdConnect", [this] { cmdConnect_Click(); });
}

void frmNetwork::BuildPlayer() {
  imgYourPic_ = new frmOptionsPortrait(this, layout(), u"imgYourPic");
  connect(imgYourPic_, &QAbstractButton::clicked, this, [this] { imgYourPic_Click(); });
  lblName_ = layout().NewLabel(u"lblName", this);
  lblCredits_ = layout().NewLabel(u"lblCredits", this);
  lblWins_ = layout().NewLabel(u"lblWins", this);
  lblLosses_ = layout().NewLabel(u"lblLosses", this);
  lblDCs_ = layout().NewLabel(u"lblDCs", this);
}

void frmNetwork::BuildPlay() {
  chat_ = new ctlChat(this, layout(), services_.network, services().announcer);
  lblState_ = layout().NewLabel(u"lblState", this);
  cmdGameMode_ = NewButton(u"cmdGameMode", [this] { lobby_.PressMode(); });
  cmdStart_ = NewButton(u"cmdStart", [this] { lobby_.PressStart(); });
  ShowPlay();
}

void frmNetwork::Activate() {
  if (std::exchange(choosingPortrait_, false)) PlayEffect("panel");
  ShowPlayer();
  ListLocalIPs();
  EnableButtons(true);
  ChooseSide(services_.network.hosting());
  if (services_.network.connected()) EnableButtons(false);
  lobby_.Open();
}

void frmNetwork::Closing() {
  lobby_.Close();
}

void frmNetwork::ShowPlayer() {
  const clsPlayer& player = services_.player;
  ShowValue(*lblName_, u"Name", QString::fromStdString(player.Name));
  ShowName(*lblName_, layout().bag(u"lblName"), QString::fromStdString(player.Name));
  ShowValue(*lblCredits_, u"Credits", QString::number(player.Credits_MP->Value));
  ShowValue(*lblWins_, u"Wins", QString::number(player.Wins_MP->Value));
  ShowValue(*lblLosses_, u"Losses", QString::number(player.Losses_MP->Value));
  ShowValue(*lblDCs_, u"Disconnects", QString::number(player.Disconnects));
  bool found = false;
  imgYourPic_->setPicture(services().portraits.GetPortrait(kOwnPortrait, "", found));
  imgYourPic_->setBorder(found ? kOwnPortraitFrame : kBuiltInFrame);
}

void frmNetwork::PortraitChosen(const Picture& picture) {
  imgYourPic_->setPicture(picture);
}

void frmNetwork::ShowPlay() {
  const LobbyPlay& play = lobby_.play();
  const bool arcade = services_.network.arcade();
  for (ctlButton* button : {cmdGameMode_, cmdStart_}) {
    button->setColor_Style(arcade ? QStringLiteral("Ember_Menu") : QStringLiteral("Slate"));
  }
  ShowCaption(*cmdGameMode_, "Game mode",
              arcade ? QStringLiteral("arcade match") : QStringLiteral("normal match"));
  cmdStart_->setVisible(play.startShown);
  cmdStart_->setEnabled(play.startEnabled);
  cmdGameMode_->setVisible(play.modeShown);
  cmdGameMode_->setEnabled(play.modeEnabled);
  lblState_->setText(ToQString(play.state));
  lblState_->setAccessibleName(lblState_->text());
}

void frmNetwork::ShowCaption(ctlButton& button, const char* what, const QString& caption) {
  button.setCaption(caption);
  button.setAccessibleName(QString::fromUtf8(what) + QStringLiteral(": ") + caption);
}

void frmNetwork::paintEvent(QPaintEvent* event) {
  Screen::paintEvent(event);
  QPainter painter(this);
  for (const char16_t* panel : kPanels) PaintPanel(painter, layout().rect(panel), layout().bag(panel));
}

}  // namespace kv
