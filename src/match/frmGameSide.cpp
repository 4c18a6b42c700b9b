#include "match/frmGameSide.h"

#include "match/frmGamePoint.h"
#include "presentation/NameText.h"

namespace kv {
namespace {

constexpr std::string_view kFaceDown = "un";
constexpr int kLitEdge = 8;  // layout pixels beside a portrait in which the scene shines

}  // namespace

frmGameSide::frmGameSide(Seat seat, QWidget& container, Layout& layout, const frmGameServices& services,
                         const MatchGrid& grid)
    : seat_(seat), container_(container), grid_(grid), look_(services.look) {
  const bool player = seat == Seat::Player;
  markerBag_ = layout.bag(player ? u"imgYourWins" : u"imgOppWins");
  markerSize_ = layout.rect(player ? u"imgYourWins" : u"imgOppWins").size();
  BuildPortrait(layout, services);
  BuildLabels(layout, services);
  BuildLight(layout, services);
  if (!player) BuildOpponentHand();
}

void frmGameSide::BuildLabels(Layout& layout, const frmGameServices& services) {
  const bool player = seat_ == Seat::Player;
  const QStringView control = player ? QStringView(u"lblYourName") : u"lblOppName";
  const QString shown = QString::fromStdString(player ? services.player.Name : services.game.OppName);
  QLabel* name = layout.NewLabel(control, &container_);
  ShowName(*name, layout.bag(control), shown);
  name->setAccessibleName(name->accessibleName() + QStringLiteral(": ") + shown);
  total_ = layout.NewLabel(player ? u"lblYourTotal" : u"lblOppTotal", &container_);
  ShowTotal(0);
}

void frmGameSide::BuildPortrait(Layout& layout, const frmGameServices& services) {
  const bool player = seat_ == Seat::Player;
  const QStringView control = player ? QStringView(u"imgYourPic") : QStringView(u"imgOppPic");
  const PropertyBag bag = layout.bag(control);
  shutter_ = new ctlShape(&container_, ctlShape::Kind::Shutter, bag.colour(u"shutter_color"));
  shutter_->setGeometry(layout.rect(control).adjusted(-kLitEdge, -kLitEdge, kLitEdge, kLitEdge));
  shutter_->hide();
  frame_ = new ctlShape(&container_, ctlShape::Kind::Frame, bag.colour(u"color"));
  frame_->setGeometry(layout.rect(control).adjusted(-kFrameWidth, -kFrameWidth, kFrameWidth, kFrameWidth));
  portrait_ = new FadeTarget(&container_);
  portrait_->setPicture(player ? services.game.YourPic : services.game.OppPic);
  layout.Place(control, *portrait_);
  if (player) {
    portrait_->DblClick = [this] { HidePortrait(); };
  } else {
    portrait_->Click = [this] { HidePortrait(); };
  }
  if (!services.player.ShowPortrait_Opt) HidePortrait();
}

void frmGameSide::BuildLight(Layout& layout, const frmGameServices& services) {
  const QStringView control = seat_ == Seat::Player ? QStringView(u"imgturnlight") : u"imgturnlight_R";
  const PropertyBag bag = layout.bag(control);
  lit_ = services.getPic(bag.number(u"picture"));
  unlit_ = services.getPic(bag.number(u"picture_off"));
  light_ = new FadeTarget(&container_);
  layout.Place(control, *light_);
  light_->setToolTip(seat_ == Seat::Player ? QStringLiteral("Lit while it is your turn.")
                                           : QStringLiteral("Lit while it is the opponent's turn."));
  RepaintLight();
  TellLight(false);
}

void frmGameSide::BuildOpponentHand() {
  for (int slot = 1; slot <= kHandSize; ++slot) {
    auto* card = new ctlCard(&container_, look_);
    card->setObjectName(QStringLiteral("ctlOppDeck%1").arg(slot));
    card->setPlace(QStringLiteral("opponent's hand card %1").arg(slot));
    card->setCard(kFaceDown);
    card->move(PointOf(grid_.HandSpot(seat_, slot)));
    hand_.at(static_cast<std::size_t>(slot) - 1) = card;
  }
}

void frmGameSide::ShowTableCard(int index, const CardCode& code) {
  if (index <= static_cast<int>(table_.size())) {
    table_.at(static_cast<std::size_t>(index) - 1)->setCard(code.text());
    return;
  }
  const bool player = seat_ == Seat::Player;
  auto* card = new ctlCard(&container_, look_);
  card->setObjectName((player ? QStringLiteral("ctlYourPlay%1") : QStringLiteral("ctlOppPlay%1")).arg(index));
  card->setPlace((player ? QStringLiteral("your table card %1") : QStringLiteral("opponent's table card %1"))
                     .arg(index));
  card->setCard(code.text());
  card->setEnabled(tableEnabled_);
  card->move(PointOf(grid_.TableSpot(seat_, index)));
  card->lower();
  card->show();
  table_.push_back(card);
}

void frmGameSide::ClearTable() {
  for (ctlCard* card : table_) {
    card->hide();
    card->deleteLater();  // the pointer may be inside one of its events
  }
  table_.clear();
}

void frmGameSide::setTableEnabled(bool enabled) {
  if (enabled == tableEnabled_) return;
  tableEnabled_ = enabled;
  for (ctlCard* card : table_) card->setEnabled(enabled);
}

void frmGameSide::ShowTotal(int total) {
  total_->setText(QString::number(total));
  total_->setAccessibleName(
      (seat_ == Seat::Player ? QStringLiteral("Your total: %1") : QStringLiteral("Opponent's total: %1"))
          .arg(total));
}

void frmGameSide::ShowSetWins(int count) {
  const bool player = seat_ == Seat::Player;
  for (; SetWinsShown() > count; markers_.pop_back()) {
    markers_.back()->hide();
    markers_.back()->deleteLater();
  }
  while (SetWinsShown() < count) {
    const int set = SetWinsShown() + 1;
    auto* marker = new ctlShape(&container_, ctlShape::Kind::Marker, markerBag_.colour(u"color"));
    marker->setObjectName(
        (player ? QStringLiteral("imgYourWins%1") : QStringLiteral("imgOppWins%1")).arg(set));
    marker->setAccessibleName(markerBag_.text(u"accessible"));
    marker->setToolTip(QStringLiteral("A won set; three win the match."));
    marker->setGeometry(QRect(PointOf(grid_.MarkerSpot(seat_, set)), markerSize_));
    marker->show();
    markers_.push_back(marker);
  }
}

void frmGameSide::ShowHandCard(int slot, bool shown) {
  if (seat_ == Seat::Opponent) ctlOppDeck(slot).setVisible(shown);
}

void frmGameSide::setHandEnabled(bool enabled) {
  for (ctlCard* card : hand_) {
    if (card != nullptr && card->Enabled() != enabled) card->setEnabled(enabled);
  }
}

void frmGameSide::HidePortrait() {
  portrait_->hide();
  frame_->hide();
  shutter_->show();
}

void frmGameSide::RepaintLight() {
  light_->setPicture(unlit_);
}

void frmGameSide::TellLight(bool on) {
  const QString whose = seat_ == Seat::Player ? QStringLiteral("Your") : QStringLiteral("Opponent's");
  const QString name =
      whose + QStringLiteral(" turn light: ") + (on ? QStringLiteral("on") : QStringLiteral("off"));
  if (name != light_->accessibleName()) light_->setAccessibleName(name);
}

}  // namespace kv
