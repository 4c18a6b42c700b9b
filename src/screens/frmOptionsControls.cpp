// How the options screen's controls come to be and what they show when it opens.
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QToolTip>

#include "presentation/WidgetSkin.h"
#include "screens/NameValidator.h"
#include "screens/PinBox.h"
#include "screens/TextLink.h"
#include "screens/frmOptions.h"
#include "screens/frmOptionsFields.h"
#include "screens/frmOptionsFrame.h"
#include "screens/frmOptionsKeys.h"
#include "screens/frmOptionsPortrait.h"
#include "screens/frmOptionsSize.h"
#include "screens/frmOptionsVolume.h"
#include "screens/modShowPIN.h"

namespace kv {
namespace {

constexpr int kNameLimit = 20;  // characters
constexpr int kArcadeUnlockWins = 5;

constexpr QStringView kOptionPanels[] = {u"grpPlayer", u"grpArcade",     u"grpGame", u"grpInterface",
                                         u"grpSounds", u"grpTurnSystem", u"grpKeys", u"grpSize"};
constexpr QStringView kLabels[] = {
    u"lblInfo(0)",    u"lblInfo(1)",  u"lblName",      u"lblPIN",      u"lblSpeed",           u"lblArcadeOpp",
    u"lblArcadeInfo", u"lblArcadeAI", u"lblInterface", u"lblKeysInfo", u"lblEmberSizeWarning"};

}  // namespace

void frmOptions::BuildControls() {
  NewTitlebar()->Quit = [this] { Cancel(); };
  frmeOptions_ = new frmOptionsFrame(this, layout(), u"frmeOptions");
  for (const QStringView panel : kOptionPanels) frmeOptions_->AddPanel(layout(), panel);
  for (const QStringView label : kLabels) layout().NewLabel(label, frmeOptions_);
  BuildPlayer();
  fields_ = std::make_unique<frmOptionsFields>(*frmeOptions_, layout(), [this] { PlayEffect("check"); });
  BuildVolume();
  cmdKeys_ = NewFrameButton(u"cmdKeys", [this] { ShowKeyFrame(); });
  QObject::connect(&fields_->chkKeys(), &QCheckBox::clicked, this,
                   [this](bool checked) { cmdKeys_->setEnabled(checked); });
  size_ = std::make_unique<frmOptionsSize>(*frmeOptions_, layout(), services().buttons, services().window,
                                           [this] { PlayEffect("check"); });
  cmdOK_ = NewFrameButton(u"cmdOK", [this] { OKClick(); });
  cmdCancel_ = NewFrameButton(u"cmdCancel", [this] { Cancel(); });
  BuildKeys();
}

void frmOptions::BuildPlayer() {
  imgYourPic_ = new frmOptionsPortrait(frmeOptions_, layout(), u"imgYourPic");
  QObject::connect(imgYourPic_, &QAbstractButton::clicked, this,
                   [this] { services().navigator.OpenPortraits(*this); });
  txtName_ = new QLineEdit(frmeOptions_);
  txtName_->setMaxLength(kNameLimit);
  auto* validator = new NameValidator(txtName_);
  validator->Refused = [this](const QString& letters) {
    const QString told = QStringLiteral("Cannot be stored: %1").arg(letters);
    QToolTip::showText(txtName_->mapToGlobal(QPoint(0, txtName_->height())), told, txtName_);
    Announce(told.toStdString(), Urgency::Assertive);
  };
  txtName_->setValidator(validator);
  SkinWidget(*txtName_, layout().bag(u"txtName"));
  layout().Place(u"txtName", *txtName_);
  QObject::connect(txtName_, &QLineEdit::textChanged, this, [this] { cmdOK_->setEnabled(NameGiven()); });
  txtPIN_ = new PinBox(frmeOptions_);
  txtPIN_->setToolTip(layout().bag(u"txtPIN").text(u"tooltip"));
  SkinWidget(*txtPIN_, layout().bag(u"txtPIN"));
  layout().Place(u"txtPIN", *txtPIN_);
  auto* reveal = new TextLink(frmeOptions_, layout().bag(u"lblPINReveal"));
  layout().Place(u"lblPINReveal", *reveal);
  QObject::connect(reveal, &QAbstractButton::clicked, this,
                   [this] { RevealPIN(*txtPIN_, services().scheduler, lifetime()); });
}

void frmOptions::BuildVolume() {
  sldVolume_ = new frmOptionsVolume(*frmeOptions_, layout(), options_.settings.volume());
  sldVolume_->Changed = [this](int percent) {
    options_.settings.setVolume(percent);
    if (options_.setVolume) options_.setVolume(percent);
    PlayEffect("check");
  };
  // With the other sounds, in front of the hotkeys that follow them.
  QWidget::setTabOrder(&fields_->chkLastMute(), sldVolume_);
}

void frmOptions::BuildKeys() {
  // Made last and never raised, so that it lies over the options but under the window's corners.
  frmeKeys_ = new frmOptionsKeys(this, layout(), services().buttons);
  frmeKeys_->KeyClick = [this](int index) { getKey(index); };
  frmeKeys_->DefaultsClick = [this] { Announce("All keys are those of a new player."); };
  frmeKeys_->DoneClick = [this] { HideKeyFrame(); };
  frmeKeys_->hide();
}

ctlButton* frmOptions::NewFrameButton(QStringView control, std::function<void()> click) {
  auto* button = new ctlButton(frmeOptions_, services().buttons);
  button->ReadProperties(layout().bag(control));
  layout().Place(control, *button);
  button->Click = std::move(click);
  return button;
}

void frmOptions::FillControls() {
  bool found = false;
  imgYourPic_->setPicture(services().portraits.GetPortrait(kOwnPortrait, {}, found));
  txtName_->setText(QString::fromStdString(player_.Name));
  txtPIN_->setPIN(player_.PIN);
  fields_->Read(player_);
  const bool unlocked = player_.H6J8_Wins->Value >= kArcadeUnlockWins;
  fields_->lstArcadeOpp().setEnabled(unlocked);
  frmeOptions_->findChild<QLabel*>(QStringLiteral("lblArcadeInfo"))->setVisible(!unlocked);
  frmeKeys_->Read(*player_.Keys);
  cmdKeys_->setEnabled(player_.KeysEn);
  cmdOK_->setEnabled(NameGiven());
}

bool frmOptions::NameGiven() const {
  return !txtName_->text().trimmed().isEmpty();
}

}  // namespace kv
