#include "screens/ExampleScene.h"

#include <algorithm>
#include <cmath>

namespace kv {
namespace {

// Layout pixels.
constexpr int kCardHeight = 40;
constexpr int kPadding = 4;
constexpr int kCardGap = 3;
constexpr int kSumWidth = 30;

constexpr int kSceneSlots = 4;
constexpr double kSceneLift = 0.12;
constexpr double kRollHeight = 0.05;

// Parts of the way.
constexpr double kFlightBegins = 0.1;
constexpr double kFlightLasts = 0.4;
constexpr double kRollBegins = 0.5;
constexpr double kRollStep = 0.15;
constexpr double kRollLasts = 0.25;
constexpr double kSumLasts = 0.3;

double Part(double way, double begins, double lasts) {
  return std::clamp((way - begins) / lasts, 0.0, 1.0);
}

double SmallWidth(const CardLook& look) {
  const ctlCard card(nullptr, look);
  return std::round(static_cast<double>(kCardHeight) * card.width() / card.height());
}

}  // namespace

QImage SmallCard(const CardCode& code, const CardLook& look, double height, double ratio) {
  ctlCard card(nullptr, look);
  card.setCard(code.text());
  const double sharp = 2 * ratio;  // it is made smaller from there
  QImage large((QSizeF(card.size()) * sharp).toSize(), QImage::Format_ARGB32_Premultiplied);
  large.setDevicePixelRatio(sharp);
  large.fill(Qt::transparent);
  card.render(&large, QPoint(), QRegion(), QWidget::DrawChildren);
  const QSizeF size = QSizeF(card.size()) * (height / card.height());
  QImage small = large.scaled((size * ratio).toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  small.setDevicePixelRatio(ratio);
  return small;
}

QSize ExampleScene::Size(const CardLook& look) {
  const int cards = kSceneSlots * (static_cast<int>(SmallWidth(look)) + kCardGap);
  return {2 * kPadding + cards + kSumWidth, 2 * kPadding + kCardHeight};
}

const QImage& SmallCards::Of(const CardCode& code) {
  QImage& made = made_[code.text()];
  if (made.isNull()) made = SmallCard(code, look_, kCardHeight, ratio_);
  return made;
}

ExampleScene::ExampleScene(const HelpExample& example, SmallCards& cards, const SceneStyle& style,
                           QPointF plate)
    : style_(style),
      ratio_(cards.ratio()),
      plate_(QRect(plate.toPoint(), Size(cards.look()))),
      sum_(plate_.right() - kPadding - kSumWidth, plate_.top(), kSumWidth, plate_.height()) {
  const std::vector<CardCode> before = TableBefore(example);
  const std::vector<CardCode> after = TableAfter(example);
  from_ = SumOf(before);
  to_ = SumOf(after);
  QPointF place = plate_.topLeft() + QPointF(kPadding, kPadding);
  const QPointF step(SmallWidth(cards.look()) + kCardGap, 0);
  for (std::size_t i = 0; i < before.size(); ++i, place += step) {
    Lying lying{place, cards.Of(after[i]), {}};
    if (!(before[i] == after[i])) {
      lying.roll.emplace(Flight{.front = lying.picture,
                                .back = cards.Of(before[i]),
                                .from = place,
                                .to = place,
                                .lift = kRollHeight});
    }
    table_.push_back(std::move(lying));
  }
  playedPlace_ = place;
  played_ = cards.Of(after.back());
  turns_ = CardCode(example.code).Caption() != after.back().Caption();
}

void ExampleScene::FlyFrom(const QImage& card, QPointF place) {
  const QSizeF small = played_.deviceIndependentSize();
  const double scale = card.deviceIndependentSize().height() / small.height();
  const QPointF grown(small.width() * (scale - 1) / 2, small.height() * (scale - 1) / 2);
  flight_.emplace(Flight{.front = turns_ ? played_ : card,  // as sharp as where it begins
                         .back = turns_ ? card : QImage(),
                         .size = small,
                         .from = place + grown,
                         .to = playedPlace_,
                         .fromScale = scale,
                         .lift = kSceneLift});
}

QRegion ExampleScene::Area(double way) const {
  const double flown = Part(way, kFlightBegins, kFlightLasts);
  return flight_ && flown > 0 && flown < 1 ? QRegion(plate_) + flight_->Area(flown) : QRegion(plate_);
}

void ExampleScene::Paint(QPainter& painter, double way) const {
  // With hard edges: it lies over the picture on the page, and none of that may shine through.
  painter.fillRect(plate_, style_.border);
  painter.fillRect(plate_.adjusted(1, 1, -1, -1), style_.fill);
  double rolls = kRollBegins;
  for (const Lying& each : table_) {
    const double rolled = each.roll ? Part(way, rolls, kRollLasts) : 1;
    if (each.roll) rolls += kRollStep;
    if (rolled == 1) {
      painter.drawImage(each.place, each.picture);
      continue;
    }
    painter.save();
    each.roll->Paint(painter, rolled);
    painter.restore();
  }
  painter.setFont(style_.font);
  painter.setPen(style_.text);
  const int sum = from_ + static_cast<int>(std::lround((to_ - from_) * Part(way, kRollBegins, kSumLasts)));
  painter.drawText(sum_, Qt::AlignCenter, QString::number(sum));
  const double flown = Part(way, kFlightBegins, kFlightLasts);
  if (flown == 1) {
    painter.drawImage(playedPlace_, played_);
  } else if (flight_ && flown > 0) {
    flight_->Paint(painter, flown);
  }
}

QImage ExampleScene::Picture() const {
  QImage picture((QSizeF(plate_.size()) * ratio_).toSize(), QImage::Format_ARGB32_Premultiplied);
  picture.setDevicePixelRatio(ratio_);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.translate(-plate_.topLeft());
  Paint(painter, 1);
  return picture;
}

}  // namespace kv
