#include "screens/frmPortraits.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <filesystem>
#include <optional>

#include "platform/QtKeys.h"
#include "platform/QtText.h"
#include "presentation/PanelPainter.h"
#include "presentation/PictureSizes.h"
#include "presentation/PortraitWords.h"
#include "screens/PortraitList.h"

namespace kv {
namespace {

constexpr std::string_view kNobody = "0";  // whose portraits the tiles show

QString NameOf(int tile) {
  return QStringLiteral("portrait %1").arg(PortraitOfTile(tile));
}

std::optional<PortraitKey> PortraitKeyOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return PortraitKey::Left;
    case Qt::Key_Right:
      return PortraitKey::Right;
    case Qt::Key_Up:
      return PortraitKey::Up;
    case Qt::Key_Down:
      return PortraitKey::Down;
    default:
      return {};
  }
}

}  // namespace

frmPortraits::frmPortraits(const ScreenServices& services, clsPlayer& player, PortraitCaller& caller,
                           const frmPortraitsServices& picker)
    : Screen(services, "frmPortraits", player.Interface_Opt),
      picker_(picker),
      player_(player),
      caller_(caller) {
  BuildTiles();
  BuildControls();
  ShowOverride();
  Select(TileOfPortrait(player_.Portrait));
}

frmPortraits::~frmPortraits() {
  CloseScreen();
}

void frmPortraits::BuildTiles() {
  std::array<int, kPortraitTiles> numbers{};
  for (int tile = 0; tile < kPortraitTiles; ++tile) {
    numbers.at(static_cast<std::size_t>(tile)) = PortraitOfTile(tile);
  }
  const QRect first = layout().rect(u"imgPortrait");
  lstPortraits_ = new PortraitList(this);
  lstPortraits_->setFocusPolicy(Qt::StrongFocus);
  layout().Place(u"lstPortraits", *lstPortraits_);
  const std::vector<Picture> pictures = services().portraits.GetReduced(numbers, kNobody, first.width());
  for (int tile = 0; tile < kPortraitTiles; ++tile) {
    auto* image = new FadeTarget(lstPortraits_);
    image->setObjectName(QStringLiteral("imgPortrait%1").arg(tile));
    image->setAccessibleName(SpokenPortrait(PortraitOfTile(tile)));
    image->setSelected(false);
    image->setGeometry(
        QRect(QPoint(tile % kPortraitColumns, tile / kPortraitColumns) * kPortraitStep, first.size()));
    image->setPicture(pictures.at(static_cast<std::size_t>(tile)));
    image->MouseMove = [this] { PlainHighlights(); };
    image->Click = [this, tile] { Select(tile); };
    image->DblClick = [this, tile] {
      Select(tile);
      PlayEffect("click");
      Confirm();
    };
    tiles_.at(static_cast<std::size_t>(tile)) = image;
  }
}

void frmPortraits::BuildControls() {
  imgSelected_ = new FadeTarget(this);
  layout().Place(u"imgSelected", *imgSelected_);
  imgOverride_ = new FadeTarget(this);
  imgOverride_->setFocusPolicy(Qt::TabFocus);
  imgOverride_->setCursor(Qt::PointingHandCursor);
  layout().Place(u"imgOverride", *imgOverride_);
  imgOverride_->Click = [this] { OpenFolder(); };
  for (FadeTarget* image : {imgSelected_, imgOverride_}) image->MouseMove = [this] { PlainHighlights(); };
  lblSelected_ = layout().NewLabel(u"lblSelected", this);
  layout().NewLabel(u"lblKeys", this);
  lblOverride_ = layout().NewLabel(u"lblOverride", this);
  lblHint_ = layout().NewLabel(u"lblHint", this);
  lblRefusal_ = layout().NewLabel(u"lblRefusal", this);
  cmdFolder_ = NewButton(u"cmdFolder", [this] { OpenFolder(); });
  cmdOK_ = NewButton(u"cmdOK", [this] { Confirm(); });
  ctlTitlebar_ = NewTitlebar();
  ctlTitlebar_->Quit = [this] { LeaveProgram(); };
  connect(qApp, &QApplication::focusChanged, this, [this] { update(); });  // the frames show the focus
}

void frmPortraits::ShowOverride() {
  const OwnPicture own = services().portraits.LookUp("");
  const bool found = !own.picture.empty();
  if (found) imgOverride_->setPicture(own.picture);
  imgOverride_->setVisible(found);
  lblOverride_->setVisible(found);
  cmdFolder_->setVisible(!found);
  lblHint_->setVisible(!found && own.refusal.empty());
  lblRefusal_->setVisible(!own.refusal.empty());
  lblRefusal_->setText(ToQString(own.refusal));
  lblRefusal_->setAccessibleName(lblRefusal_->text());
}

void frmPortraits::Activate() {
  lstPortraits_->setFocus();
  TellSelected();
}

void frmPortraits::Select(int tile) {
  tiles_.at(static_cast<std::size_t>(selected_))->setSelected(false);
  selected_ = tile;
  tiles_.at(static_cast<std::size_t>(selected_))->setSelected(true);
  const std::array number = {PortraitOfTile(tile)};
  imgSelected_->setPicture(services().portraits.GetReduced(number, kNobody, kPortraitSide).front());
  imgSelected_->setAccessibleName(QStringLiteral("Chosen: ") + SpokenPortrait(number.front()));
  lblSelected_->setText(NameOf(tile));
  lblSelected_->setAccessibleName(lblSelected_->text());
  update();
  if (lstPortraits_->hasFocus()) TellSelected();
}

void frmPortraits::TellSelected() {
  FadeTarget* tile = tiles_.at(static_cast<std::size_t>(selected_));
  for (const QAccessible::Event event : {QAccessible::Selection, QAccessible::Focus}) {
    QAccessibleEvent chosen(tile, event);
    QAccessible::updateAccessibility(&chosen);
  }
}

void frmPortraits::paintEvent(QPaintEvent* event) {
  Screen::paintEvent(event);
  QPainter painter(this);
  for (const char16_t* panel : {u"panelTiles", u"panelChoice"}) {
    PaintPanel(painter, layout().rect(panel), layout().bag(panel));
  }
  const auto frame = [&](const QWidget& picture, QStringView bag, int width) {
    const QRect area(picture.mapTo(this, QPoint()), picture.size());
    painter.fillRect(area.adjusted(-width, -width, width, width), layout().bag(bag).colour(u"color"));
  };
  for (const FadeTarget* tile : tiles_) frame(*tile, u"frameTile", 1);
  frame(*tiles_.at(static_cast<std::size_t>(selected_)), u"frameSelected", 3);
  frame(*imgSelected_, u"frameSelected", lstPortraits_->hasFocus() ? 3 : 2);
  if (!imgOverride_->isHidden()) frame(*imgOverride_, u"frameOverride", imgOverride_->hasFocus() ? 3 : 2);
}

void frmPortraits::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    LeaveProgram();
  } else if (const auto key = PortraitKeyOf(event->key())) {
    Select(TileAfter(*key, selected_));
  } else if (!IsEnter(event->key()) && event->key() != Qt::Key_Space) {
    Screen::keyPressEvent(event);
  } else if (imgOverride_->hasFocus()) {
    if (!event->isAutoRepeat()) OpenFolder();
  } else if (IsEnter(event->key()) && !event->isAutoRepeat()) {
    PlayEffect("click");
    Confirm();
  }
}

void frmPortraits::OpenFolder() {
  std::error_code ignored;  // a folder that cannot be made is shown by no browser either
  std::filesystem::create_directories(picker_.portraitFolder, ignored);
  if (picker_.openFolder) picker_.openFolder(picker_.portraitFolder);
  if (!closing() && cmdFolder_->isVisible()) cmdFolder_->setEnabled(true);
}

void frmPortraits::Confirm() {
  if (closing()) return;
  const int number = PortraitOfTile(selected_);
  player_.Portrait = static_cast<std::int16_t>(number);
  bool found = false;
  caller_.PortraitChosen(services().portraits.GetPortrait(number, "", found));
  services().navigator.ClosePortraits();
}

void frmPortraits::LeaveProgram() {
  if (!closing()) services().navigator.ClosePortraits();
}

}  // namespace kv
