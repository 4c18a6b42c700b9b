#include "campaign/frmCampaign.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include "campaign/DeskTips.h"
#include "match/clsGame.h"
#include "platform/QtText.h"
#include "presentation/NameText.h"
#include "presentation/PanelPainter.h"
#include "presentation/SpokenValue.h"

namespace kv {
namespace {

constexpr const char* kDefeatTitle = "Vantri Arcade: Defeat!";
constexpr const char* kDefeatText =
    "You are bankrupt with no extra cards to sell. You can start a new campaign by double-clicking the "
    "campaign "
    "stats text in the main menu.";
constexpr int kNarrowTiles = 5;
// A name that no portrait file bears: opponents look the same to everybody.
constexpr std::string_view kNobody = "0";
constexpr QColor kPressedFrame(255, 255, 255);

QString TileName(int index) {
  return QStringLiteral("ctlOpp%1").arg(index);
}

}  // namespace

frmCampaign::frmCampaign(const ScreenServices& services, clsPlayer& player, clsGame& game)
    : Screen(services, "frmCampaign", player.Interface_Opt), player_(player), circuit_(game, player) {
  for (const QStringView heading : {u"lblName", u"lblCredits", u"lblWins", u"lblLosses"}) {
    NewAccountLabel(heading);
  }
  lblPName_ = NewAccountLabel(u"lblPName");
  lblPCredits_ = NewAccountLabel(u"lblPCredits");
  lblPWins_ = NewAccountLabel(u"lblPWins");
  lblPLosses_ = NewAccountLabel(u"lblPLosses");
  NewAccountLabel(u"lblHint")->setVisible(!circuit_.Finished());
  BuildPortrait();
  for (int i = 0; i < kCircuitTiles; ++i) BuildTile(i);
  cmdDeck_ = NewButton(u"cmdDeck", [this] { ViewDeck(); });
  cmdDeck_->setGeometry(layout().rect(PlaceOf(u"cmdDeck")));
  cmdDeck_->setToolTip(QStringLiteral("Your deck, your cards and the shop, without a match."));
  ctlTitlebar_ = NewTitlebar();
  ctlTitlebar_->Quit = [this] { Close(); };
}

frmCampaign::~frmCampaign() {
  CloseScreen();
}

QString frmCampaign::PlaceOf(QStringView control) {
  const QString wide = control.toString() + QStringLiteral("Wide");
  return circuit_.Finished() && layout().has(wide) ? wide : control.toString();
}

QLabel* frmCampaign::NewAccountLabel(QStringView control) {
  QLabel* label = layout().NewLabel(control, this);
  label->setGeometry(layout().rect(PlaceOf(control)));
  return label;
}

void frmCampaign::BuildPortrait() {
  bool found = false;
  auto* imgYourPic = new FadeTarget(this);
  layout().Place(u"imgYourPic", *imgYourPic);
  imgYourPic->setPicture(services().portraits.GetPortrait(kOwnPortrait, {}, found));
  imgYourPic->MouseMove = [this] { PlainHighlights(); };
  portraitShown_ = !circuit_.Finished() && !imgYourPic->picture().empty();  // the last tile shows it then
  imgYourPic->setVisible(portraitShown_);
}

void frmCampaign::BuildTile(int index) {
  const CircuitTile tile = circuit_.Tile(index);
  const QString name = TileName(index);
  auto* shown = new ctlOpponent(this, layout(), [this, index](int number) {
    bool found = false;
    return services().portraits.GetPortrait(number, index == kYourself ? std::string_view() : kNobody, found);
  });
  shown->ReadProperties(layout().bag(name));
  shown->setObjectName(name);
  shown->move(layout().rect(PlaceOf(name)).topLeft());
  shown->setOppName(ToQString(tile.opponent.name));
  shown->setMinWager(tile.opponent.minWager);
  shown->setMaxWager(tile.opponent.maxWager);
  shown->setOppPic(tile.opponent.portrait);
  shown->setWins(tile.wins);
  if (!tile.enabled) {
    shown->setNote(QStringLiteral("needs %1 credits").arg(tile.opponent.minWager));
    shown->setEnabled(false);
  }
  shown->setVisible(tile.visible);
  shown->setAccessibleName(shown->Description());
  shown->setToolTip(ToQString(OpponentTip(tile, player_.Credits->Value)));
  tiles_.at(static_cast<std::size_t>(index)) = shown;
  if (tile.enabled) BuildTarget(index);
}

void frmCampaign::BuildTarget(int index) {
  ctlOpponent& tile = ctlOpp(index);
  auto* target = new frmCampaignTarget(this);
  const QString name = TileName(index);
  layout().Place(name, *target);
  target->setObjectName(QStringLiteral("cmdOpp%1").arg(index));
  target->setGeometry(tile.geometry());
  target->setAccessibleName(tile.Description());
  target->setToolTip(tile.toolTip());
  target->Entered = [this, &tile] {
    PlainHighlights();
    tile.Color(layout().bag(u"ctlOpponent").colour(u"hover_color", Qt::white));
    services().buttons.PlayHover();
  };
  target->Pressed = [&tile] { tile.Color(kPressedFrame); };
  target->Left = [&tile] {
    if (tile.Enabled()) tile.unColor();
  };
  target->Click = [this, index] { Choose(index); };
  targets_.at(static_cast<std::size_t>(index)) = target;
}

void frmCampaign::Activate() {
  ShowAccount();
  if (!circuit_.TakeLevelUp()) return;
  PlayEffect("levelup");
  Announce("A new opponent plays against you.");
}

void frmCampaign::ShowAccount() {
  const QString name = QString::fromStdString(player_.Name);
  ShowName(*lblPName_, layout().bag(u"lblPName"), name);
  lblPName_->setAccessibleName(QStringLiteral("Name: ") + name);
  ShowValue(*lblPCredits_, u"Credits", QString::number(player_.Credits->Value));
  ShowValue(*lblPWins_, u"Wins", QString::number(player_.Wins->Value));
  ShowValue(*lblPLosses_, u"Losses", QString::number(player_.Losses->Value));
}

void frmCampaign::Shown() {
  if (!circuit_.Bankrupt() || !Begin()) return;
  services().dialogs.Message(kDefeatText, kDefeatTitle, DialogIcon::Information);
  if (closing()) return;
  busy_ = false;
  Close();
}

/// The places of the opponents who are still to come are painted, and no controls.
bool frmCampaign::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return Screen::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  for (int i = 1; i < kNarrowTiles; ++i) {
    if (!ctlOpp(i).isHidden() || !ctlOpp(i).geometry().contains(help->pos())) continue;
    QToolTip::showText(help->globalPos(), ToQString(ClosedTileTip(circuit_.Tile(i - 1))), this,
                       ctlOpp(i).geometry());
    return true;
  }
  return Screen::event(event);
}

bool frmCampaign::Begin() {
  if (busy_ || closing()) return false;
  busy_ = true;
  setFocus();  // else the focus would wander from tile to tile as they are disabled
  for (frmCampaignTarget* target : targets_) {
    if (target != nullptr) target->setEnabled(false);
  }
  cmdDeck_->setEnabled(false);
  ctlTitlebar_->setEnabled(false);
  return true;
}

void frmCampaign::Choose(int index) {
  if (!Begin()) return;
  PlayEffect("click");
  if (!circuit_.Choose(index)) return;
  ctlOpp(index).setEnabled(false);
  services().navigator.OpenCards();
}

void frmCampaign::ViewDeck() {
  if (!Begin()) return;
  circuit_.ChooseDeckView();
  services().navigator.OpenCards();
}

void frmCampaign::Close() {
  if (!Begin()) return;
  PlayEffect("click");
  services().navigator.OpenMenu();
}

void frmCampaign::LeaveProgram() {
  if (!closing()) services().navigator.EndProgram();
}

void frmCampaign::PlainHighlights() {
  Screen::PlainHighlights();
  for (ctlOpponent* tile : tiles_) {
    if (tile->Enabled()) tile->unColor();
  }
}

void frmCampaign::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && !event->isAutoRepeat()) {
    Close();
  } else {
    Screen::keyPressEvent(event);
  }
}

void frmCampaign::paintEvent(QPaintEvent* event) {
  Screen::paintEvent(event);
  QPainter painter(this);
  const QString account = PlaceOf(u"panelAccount");
  PaintPanel(painter, layout().rect(account), layout().bag(account));
  if (circuit_.Finished()) {
    PaintPanel(painter, layout().rect(u"panelDeckWide"), layout().bag(u"panelDeckWide"));
  } else if (portraitShown_) {
    painter.setPen(layout().bag(u"imgYourPic").colour(u"border_color"));
    painter.drawRect(layout().rect(u"imgYourPic").adjusted(-1, -1, 0, 0));
  }
  // The places of the opponents who are still to come.
  for (int i = 0; i < kNarrowTiles; ++i) {
    if (ctlOpp(i).isHidden()) PaintPanel(painter, ctlOpp(i).geometry(), layout().bag(u"panelEmpty"));
  }
}

}  // namespace kv
