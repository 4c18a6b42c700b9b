#include "match/frmGameMotion.h"

#include <algorithm>
#include <map>

#include "match/ctlBust.h"
#include "match/frmGamePoint.h"
#include "presentation/MovingLight.h"

namespace kv {
namespace {

// Milliseconds, at most: the pauses of the pace in use may be shorter.
constexpr int kDrawTime = 220;
constexpr int kPlayTime = 165;      // within the pause after a card of the opponent
constexpr int kLastPlayTime = 120;  // within the pause before the player stands by himself
constexpr int kRollTime = 110;
constexpr int kFlipTime = 180;
constexpr int kHomeTime = 170;
constexpr int kUnfoldTime = 190;
constexpr int kMarkerTime = 600;

constexpr double kDrawPart = 0.7;   // of the turn's pause
constexpr double kLandPart = 0.55;  // of the pause after a side has stood, when the card is its last
constexpr double kShakeReach = 7;   // layout pixels
constexpr double kLift = 0.14;
constexpr double kRollLift = 0.06;
constexpr int kLidEdge = 14;
constexpr int kTwentyEdge = 60;

}  // namespace

frmGameMotion::frmGameMotion(MotionLayer& layer, const frmGameServices& services, const MatchGrid& grid,
                             std::array<frmGameSide*, 2> sides, frmGameHand& hand)
    : layer_(layer),
      services_(services),
      grid_(grid),
      pace_(PaceOf(MatchOptionsOf(services.player), services.game.isNetwork())),
      sides_(sides),
      hand_(hand),
      look_(SceneLookOf(&grid == &kMatchGrids[1] ? 1 : 0)) {}

void frmGameMotion::Happened(const MatchEvent& event) {
  std::visit([this](const auto& each) { See(each); }, event);
}

void frmGameMotion::See(const event::MatchBegun& e) {
  held_ = e.hands[0];
}

void frmGameMotion::See(const event::SetBegun&) {
  layer_.FinishAll();
  totals_ = {};
  scene_ = Scene::None;
}

void frmGameMotion::See(const event::Drew& e) {
  const int time = LandingTime(e.total, side(e.seat).table().size());
  if (wanted()) {
    ctlCard& card = *side(e.seat).table().back();
    Land(e.seat,
         {.front = layer_.PictureOf(card),
          .back = CardPicture(CardCode("un"), true),
          .from = TableMiddle() - QPointF(card.width(), card.height()) / 2,
          .to = layer_.PlaceOf(card).topLeft(),
          .fromScale = 0.8,
          .lift = kLift},
         time);
  }
  CountUp(e.seat, e.total, time);
}

void frmGameMotion::See(const event::Flipped& e) {
  if (wanted()) {
    ctlCard& card = hand_.ctlYourDeck(e.slot);
    RollOver(card, CardPicture(held_.at(static_cast<std::size_t>(e.slot) - 1), card.Enabled()),
             layer_.PictureOf(card), {.length = kFlipTime});
  }
  held_.at(static_cast<std::size_t>(e.slot) - 1) = e.card;
}

void frmGameMotion::See(const event::Played& e) {
  const int time = PlayTime(e);
  if (wanted()) {
    const auto& table = side(e.seat).table();
    ctlCard& card = *table.back();
    Flight flight{.front = layer_.PictureOf(card),
                  .back = {},
                  .from = {},
                  .to = layer_.PlaceOf(card).topLeft(),
                  .lift = kLift};
    const bool repeats = e.card.type() == CardType::Double && !(e.card == e.landed) && table.size() > 1;
    if (repeats) {
      flight.from = layer_.PlaceOf(*table.at(table.size() - 2)).topLeft();
    } else if (e.seat == Seat::Opponent) {
      flight.from = layer_.PlaceOf(side(e.seat).ctlOppDeck(e.slot)).topLeft();
      flight.back = CardPicture(CardCode("un"), true);
    } else {
      ctlCard& held = hand_.ctlYourDeck(e.slot);
      flight.from = layer_.moves(held) ? dropped_ : layer_.PlaceOf(held).topLeft();
      layer_.Finish(held);
    }
    Land(e.seat, std::move(flight), time);
    TurnCards(e, time);
  }
  CountUp(e.seat, e.total, time);
}

void frmGameMotion::See(const event::Stood& e) {
  if (!wanted()) return;
  const int left =
      static_cast<int>(landing_.at(static_cast<std::size_t>(e.seat)) - services_.scheduler.timeGetTime());
  const int delay = std::max(0, left);
  const int time = std::max(60, static_cast<int>(pace_.turnDelay / 1.5) - delay);
  if (e.why == StandReason::OverTwenty) {
    Shake(e.seat, time);
  } else {
    CloseLid(e.seat, e.why == StandReason::Twenty, delay, time);
  }
}

void frmGameMotion::See(const event::SetDecided& e) {
  scene_ = e.decision.result == GameStep::PlayerWins ? Scene::Set : Scene::None;
}

void frmGameMotion::See(const event::MatchDecided& e) {
  const bool campaign = services_.game.Mode == kModeCampaign;
  scene_ = e.winner != Seat::Player ? Scene::None : campaign ? Scene::CampaignStep : Scene::Match;
}

void frmGameMotion::See(const event::Booked& e) {
  const bool best = services_.game.Mode == kModeArcade && e.after > services_.player.Arcade_Best;
  if (e.result != event::Result::Won) return;
  if (best) scene_ = Scene::HighScore;
  // The booking has left the counter there only if it has reached a mark.
  if (services_.game.Mode == kModeCampaign && services_.game.CampaignWinRef) scene_ = Scene::Unlocked;
}

void frmGameMotion::CardPutHome(int slot, QPoint from) {
  ctlCard& card = hand_.ctlYourDeck(slot);
  if (!wanted() || card.isHidden() || card.pos() == from) return;
  dropped_ = layer_.PlaceOf(card).topLeft() + from - card.pos();
  layer_.Begin(std::make_unique<FlyingPicture>(Flight{.front = layer_.PictureOf(card),
                                                      .back = {},
                                                      .from = dropped_,
                                                      .to = layer_.PlaceOf(card).topLeft(),
                                                      .lift = 0.01}),
               {.length = kHomeTime}, {&card});
}

void frmGameMotion::MarkerAdded(Seat seat) {
  if (!wanted()) return;
  const QRect place = layer_.PlaceOf(*side(seat).markers().back());
  layer_.Begin(std::make_unique<Glow>(place, look_.gold, place.width() / 2, place.width() / 2.0),
               {.length = kMarkerTime});
  const SparkShow show{.source = QRect(place.center(), QSize(1, 1)),
                       .colour = look_.gold,
                       .count = 10,
                       .reach = 2.0 * place.width(),
                       .streaks = look_.streaks};
  layer_.Begin(std::make_unique<Sparks>(show, 7), {.length = kMarkerTime, .easing = Easing::Even});
}

void frmGameMotion::BannerShown(ctlBust& banner) {
  const Scene scene = std::exchange(scene_, Scene::None);
  if (!wanted()) return;
  const QRect place = layer_.PlaceOf(banner);
  layer_.Begin(std::make_unique<UnfoldingPicture>(layer_.PictureOf(banner), place), {.length = kUnfoldTime},
               {&banner});
  if (services_.player.AutoDialogs_Opt) return;
  frmGameSide& winner = side(Seat::Player);
  PlayScene(layer_, scene, look_,
            {.banner = place,
             .portrait = layer_.PlaceOf(winner.portrait()),
             .face = winner.shuttered() ? nullptr : &winner.portrait(),
             .total = layer_.PlaceOf(winner.lblTotal())});
}

// --- How it moves ----------------------------------------------------------------------------------------

/// A drawn card that is its side's last makes room for what follows in the same pause.
int frmGameMotion::LandingTime(int total, std::size_t cards) const {
  const bool last = total == kTargetTotal || cards == kTableSize;
  const double room = last ? pace_.turnDelay / 1.5 * kLandPart : pace_.turnDelay * kDrawPart;
  return std::min(kDrawTime, static_cast<int>(room));
}

int frmGameMotion::PlayTime(const event::Played& e) {
  const bool last = e.total == kTargetTotal || side(e.seat).table().size() == kTableSize;
  return last && e.seat == Seat::Player ? kLastPlayTime : kPlayTime;
}

QPointF frmGameMotion::TableMiddle() const {
  const Spot first = grid_.TableSpot(Seat::Player, 1);
  const Spot last = grid_.TableSpot(Seat::Opponent, kTableSize);
  const QSize card = hand_.ctlYourDeck(1).size();
  return {(first.left + last.left + card.width()) / 2, (first.top + last.top + card.height()) / 2};
}

QImage frmGameMotion::CardPicture(const CardCode& code, bool enabled) {
  ctlCard card(&layer_, services_.look);
  card.setCard(code.text());
  card.setEnabled(enabled);
  return layer_.PictureOf(card);
}

std::vector<PlacedPicture> frmGameMotion::TablePictures(Seat seat) {
  std::vector<PlacedPicture> pictures;
  for (ctlCard* card : side(seat).table())
    pictures.push_back({layer_.PictureOf(*card), layer_.PlaceOf(*card)});
  return pictures;
}

void frmGameMotion::Land(Seat seat, Flight flight, int time) {
  landing_.at(static_cast<std::size_t>(seat)) =
      services_.scheduler.timeGetTime() + static_cast<std::uint32_t>(time);
  layer_.Begin(std::make_unique<FlyingPicture>(std::move(flight)), {.length = time},
               {side(seat).table().back()});
}

void frmGameMotion::RollOver(ctlCard& card, QImage before, QImage now, const Timing& timing) {
  const QPointF place = layer_.PlaceOf(card).topLeft();
  layer_.Begin(
      std::make_unique<FlyingPicture>(Flight{
          .front = std::move(now), .back = std::move(before), .from = place, .to = place, .lift = kRollLift}),
      {.delay = timing.delay, .length = timing.length, .easing = Easing::InOut}, {&card});
}

/// One after the other, the last of them when the played card lands. Cards that look the same share a
/// picture.
void frmGameMotion::TurnCards(const event::Played& e, int time) {
  std::map<std::string, QImage> pictures;
  const auto picture = [&](const CardCode& code, bool enabled) {
    QImage& found = pictures[code.text()];
    if (found.isNull()) found = CardPicture(code, enabled);
    return found;
  };
  const int count = static_cast<int>(e.turned.size());
  const int roll = std::min(kRollTime, time);
  for (int i = 0; i < count; ++i) {
    const event::TurnedCard& turned = e.turned.at(static_cast<std::size_t>(i));
    ctlCard& card = *side(e.seat).table().at(static_cast<std::size_t>(turned.index) - 1);
    RollOver(card, picture(turned.card.Inverted(), card.Enabled()), picture(turned.card, card.Enabled()),
             {.delay = count == 1 ? 0 : (time - roll) * i / (count - 1), .length = roll});
  }
}

void frmGameMotion::CountUp(Seat seat, int total, int time) {
  const int before = std::exchange(totals_.at(static_cast<std::size_t>(seat)), total);
  if (before == total || !wanted()) return;
  QLabel& label = side(seat).lblTotal();
  layer_.Begin(std::make_unique<CountingTotal>(label, layer_.PlaceOf(label), before, total,
                                               total > kTargetTotal ? kShakeReach : 0.0),
               {.length = time}, {&label});
}

void frmGameMotion::Shake(Seat seat, int time) {
  std::vector<PlacedPicture> pictures = TablePictures(seat);
  std::vector<QWidget*> controls(side(seat).table().begin(), side(seat).table().end());
  QLabel& total = side(seat).lblTotal();
  layer_.Begin(std::make_unique<ShakingPictures>(
                   std::vector<PlacedPicture>{{layer_.PictureOf(total), layer_.PlaceOf(total)}}, kShakeReach),
               {.length = time, .easing = Easing::Even}, {&total});
  layer_.Begin(std::make_unique<ShakingPictures>(std::move(pictures), kShakeReach),
               {.length = time, .easing = Easing::Even}, controls);
}

void frmGameMotion::CloseLid(Seat seat, bool twenty, int delay, int time) {
  layer_.Begin(
      std::make_unique<ClosingLid>(TablePictures(seat), delay > 0 ? 1 : 0, twenty ? look_.gold : look_.light,
                                   twenty ? kTwentyEdge : kLidEdge),
      {.delay = delay, .length = time, .easing = Easing::InOut});
  if (!twenty) return;
  layer_.Begin(std::make_unique<Glow>(layer_.PlaceOf(side(seat).lblTotal()), look_.gold, 12, 8),
               {.delay = delay, .length = time});
}

}  // namespace kv
