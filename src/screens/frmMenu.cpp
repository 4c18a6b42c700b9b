#include "screens/frmMenu.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <algorithm>

#include "match/clsGame.h"
#include "presentation/PanelPainter.h"
#include "screens/CountLabel.h"
#include "screens/MenuTexts.h"

namespace kv {
namespace {

constexpr std::array kPanels = {u"panelArcade", u"panelCampaign", u"panelNetwork", u"panelOptions"};
constexpr std::array kDescriptions = {u"lblArcadeDesc", u"lblCampaignDesc", u"lblNetworkDesc",
                                      u"lblOptionsDesc"};
constexpr int kWindowMargin = 16;  // layout pixels kept free beside the widest button

void Show(QLabel& label, const std::string& text) {
  label.setText(QString::fromStdString(text));
  label.setAccessibleName(label.text());
}

}  // namespace

frmMenu::frmMenu(const ScreenServices& services, clsPlayer& player)
    : Screen(services, "frmMenu", player.Interface_Opt), player_(player) {
  BuildControls();
  ShowTexts();
}

frmMenu::~frmMenu() {
  CloseScreen();
}

void frmMenu::BuildControls() {
  cmdArcade_ = NewMenuButton(u"cmdArcade", &frmMenu::OpenArcade);
  NewReset(u"resetArcade", resetArcade_, &frmMenu::ResetArcade);
  cmdCampaign_ = NewMenuButton(u"cmdCampaign", &frmMenu::OpenCampaign);
  NewReset(u"resetCampaign", resetCampaign_, &frmMenu::ResetCampaign);
  cmdNetwork_ = NewMenuButton(u"cmdNetwork", &frmMenu::OpenNetwork);
  NewReset(u"resetNetwork", resetNetwork_, &frmMenu::ResetNetwork);
  cmdOptions_ = NewMenuButton(u"cmdOptions", &frmMenu::OpenOptions);
  cmdRecord_ = NewMenuButton(u"cmdRecord", &frmMenu::OpenRecord);
  cmdPlayer_ = NewMenuButton(u"cmdPlayer", &frmMenu::ChangePlayer);
  ctlTitlebar_ = NewTitlebar();
  ctlTitlebar_->Quit = [this] { LeaveProgram(); };
  for (const char16_t* description : kDescriptions) layout().NewLabel(description, this);
  const std::pair<QStringView, QLabel**> counts[] = {
      {u"lblArcadeHigh", &lblArcadeHigh_}, {u"lblSPStats", &lblSPStats_}, {u"lblMPStats", &lblMPStats_}};
  for (const auto& [control, label] : counts) {
    *label = new CountLabel(this);
    layout().Dress(control, **label);
  }
}

ctlButton* frmMenu::NewMenuButton(QStringView control, void (frmMenu::*open)()) {
  return NewButton(control, [this, open] { (this->*open)(); });
}

void frmMenu::NewReset(QStringView control, frmMenuReset*& reset, void (frmMenu::*ask)()) {
  reset = new frmMenuReset(this, layout().bag(control));
  layout().Place(control, *reset);
  reset->DblClick = [this, ask] { (this->*ask)(); };
  reset->MouseMove = [this] { PlainHighlights(); };
}

void frmMenu::Activate() {
  ShowTexts();
}

void frmMenu::ShowTexts() {
  const MenuTexts texts = MenuTextsOf(player_);
  cmdPlayer_->setCaption(QString::fromStdString(texts.cmdPlayer));
  FitPlayerButton();
  Show(*lblArcadeHigh_, texts.lblArcadeHigh);
  Show(*lblSPStats_, texts.lblSPStats);
  Show(*lblMPStats_, texts.lblMPStats);
  if (!busy_) EnableControls(true);
}

void frmMenu::FitPlayerButton() {
  const QRect place = layout().rect(u"cmdPlayer");
  const int widest = width() - 2 * kWindowMargin;
  QRect fitted(0, place.y(), std::min(cmdPlayer_->sizeHint().width(), widest), place.height());
  fitted.moveCenter(place.center());
  cmdPlayer_->setGeometry(fitted);
}

void frmMenu::paintEvent(QPaintEvent* event) {
  Screen::paintEvent(event);
  QPainter painter(this);
  for (const char16_t* panel : kPanels) PaintPanel(painter, layout().rect(panel), layout().bag(panel));
  PaintPanel(painter, cmdPlayer_->geometry(), layout().bag(u"panelPlayer"));
}

void frmMenu::keyPressEvent(QKeyEvent* event) {
  const bool held = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
  const QString text = event->text();
  const std::array<ctlButton*, 6> buttons = {cmdPlayer_,  cmdArcade_,  cmdCampaign_,
                                             cmdNetwork_, cmdOptions_, cmdRecord_};
  if (event->key() == Qt::Key_Escape && !held && !event->isAutoRepeat()) {
    ChangePlayer();
    return;
  }
  const int digit = text.size() == 1 ? text.front().unicode() - u'0' : -1;
  if (held || event->isAutoRepeat() || digit < 0 || digit >= static_cast<int>(buttons.size())) {
    Screen::keyPressEvent(event);
    return;
  }
  // A click disables the button, plays its sound and does what the button does.
  buttons.at(static_cast<std::size_t>(digit))->click();
}

bool frmMenu::Begin() {
  if (busy_ || closing()) return false;
  busy_ = true;
  return true;
}

void frmMenu::EnableControls(bool enabled) {
  const bool lost = CampaignLost(player_);
  for (ctlButton* button : {cmdArcade_, cmdNetwork_, cmdOptions_, cmdRecord_, cmdPlayer_})
    button->setEnabled(enabled);
  cmdCampaign_->setEnabled(enabled && !lost);
  resetCampaign_->setEnabled(enabled && lost);
  resetArcade_->setEnabled(enabled);
  resetNetwork_->setEnabled(enabled);
  ctlTitlebar_->setEnabled(enabled);
}

void frmMenu::OpenArcade() {
  if (!Begin()) return;
  EnableControls(false);
  services().navigator.NewGame(kModeArcade);
  services().navigator.OpenCards();
}

void frmMenu::OpenCampaign() {
  if (!Begin()) return;
  EnableControls(false);
  services().navigator.NewGame(kModeCampaign);
  services().navigator.OpenCampaign();
}

void frmMenu::OpenNetwork() {
  if (!Begin()) return;
  EnableControls(false);
  services().navigator.NewGame(kModeNetwork);
  services().navigator.OpenLobby();
}

void frmMenu::OpenOptions() {
  if (!Begin()) return;
  EnableControls(false);
  services().navigator.OpenOptions();
}

void frmMenu::OpenRecord() {
  if (!Begin()) return;
  EnableControls(false);
  services().navigator.OpenRecord();
}

void frmMenu::ChangePlayer() {
  if (Ask({"Do you wish to return to the player selection screen?", "Vantri Arcade: Change Player"})) {
    busy_ = true;
    EnableControls(false);
    services().navigator.OpenSplash();
  }
}

bool frmMenu::Ask(const Question& question) {
  if (!Begin()) return false;
  const QPointer<QWidget> focus = focusWidget();
  EnableControls(false);
  const bool yes = services().dialogs.AskYesNo(question.text, question.title, DialogIcon::Question);
  if (closing() || farewell_) return false;
  busy_ = false;
  EnableControls(true);
  if (focus) focus->setFocus(Qt::OtherFocusReason);
  return yes;
}

void frmMenu::ResetArcade() {
  if (!Ask({"Do you wish to reset your Arcade Highscore?", "Kelm Vantri: Reset Highscore"})) return;
  player_.Arcade_Best = 0;
  SaveReset();
}

void frmMenu::ResetCampaign() {
  if (!Ask({"Do you wish to reset your campaign status?", "Kelm Vantri: New Campaign"})) return;
  player_.ResetSP();
  SaveReset();
}

void frmMenu::ResetNetwork() {
  if (!Ask({"Do you wish to reset your network status?", "Kelm Vantri: Reset Network Stats"})) return;
  player_.ResetMP();
  SaveReset();
}

void frmMenu::SaveReset() {
  player_.WritePlayerFile();
  // Saving may show a box, and events are handled while it waits.
  if (!closing()) ShowTexts();
}

void frmMenu::LeaveProgram() {
  if (closing()) return;
  if (farewell_) {
    services().navigator.EndProgram();
    return;
  }
  farewell_ = true;
  busy_ = true;
  services().buttons.PlayEffectOnce("losematch");
  setEnabled(false);
  services().navigator.EndProgramSoon();
}

}  // namespace kv
