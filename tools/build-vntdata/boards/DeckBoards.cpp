// The desks of the side-deck screen: a lined tray with one place for each card of the collection, a tray for
// the deck and a counter for the trade. Every rectangle is one of the screen's layout, in layout pixels.
#include <array>

#include "boards/Boards.h"
#include "brush/Brush.h"

namespace kv::datafile {
namespace {

constexpr int kKinds = 4;
constexpr int kNumbers = 6;
constexpr int kDeckCards = 10;

/// Where a style's desk has what.
struct DeskPlan {
  const Style& style;
  QColor lining;  // of the collection's tray
  QColor felt;    // of the deck's tray
  QRectF screen;
  double titleBar;
  QSizeF card;
  QRectF label;  // of the first kind
  QPointF bankAt;
  QSizeF bankStep;
  QRectF deckTray;
  QPointF deckAt;
  double deckStep;
  QRectF display;  // credits and stake
  std::array<QRectF, 3> views;
  QRectF counter;
  QRectF next;
};

const DeskPlan kSlateDesk{kSlate,
                          {13, 24, 38},
                          {6, 26, 46},
                          {0, 0, 786, 540},
                          24,
                          {48, 64},
                          {44, 62, 74, 64},
                          {126, 62},
                          {63, 78},
                          {34, 394, 482, 104},
                          {39, 424},
                          47,
                          {546, 62, 204, 56},
                          {QRectF(552, 126, 58, 28), QRectF(618, 126, 58, 28), QRectF(684, 126, 58, 28)},
                          {552, 168, 192, 194},
                          {573, 468, 150, 30}};
const DeskPlan kEmberDesk{kEmber,
                          {44, 24, 15},
                          {8, 42, 36},
                          {0, 0, 1024, 690},
                          30,
                          {83, 102},
                          {46, 66, 96, 102},
                          {148, 66},
                          {87, 107},
                          {36, 504, 952, 148},
                          {52, 542},
                          93,
                          {706, 72, 282, 66},
                          {QRectF(716, 146, 82, 32), QRectF(806, 146, 82, 32), QRectF(896, 146, 82, 32)},
                          {716, 192, 262, 244},
                          {772, 452, 150, 34}};

/// A sunken tray with a soft lining; worn ones have a seam along the rim.
void PaintTray(QPainter& painter, QRectF area, const Style& style, QColor lining, std::uint64_t seed) {
  const double corner = style.worn ? 12 : 8;
  Well(painter, area, style, corner);
  const QPainterPath path = Cornered(area.adjusted(1, 1, -1, -1), corner, style.worn);
  painter.save();
  painter.setClipPath(path);
  QRadialGradient light(area.topLeft() + QPointF(area.width() * 0.35, 0), area.width() * 0.9);
  light.setColorAt(0, Mix(lining, Qt::white, 0.07));
  light.setColorAt(0.5, lining);
  light.setColorAt(1, Mix(lining, Qt::black, 0.6));
  painter.fillRect(area, light);
  Grain(painter, area, seed, style.worn ? 0.08 : 0.05, style.worn ? 3 : 30);
  for (int i = 1; i <= 5; ++i) {  // the rim's shadow
    painter.strokePath(path.translated(1, 1.5), QPen(Faint(Qt::black, 0.2), i * 3));
  }
  painter.restore();
  if (!style.worn) return;
  QPen seam(Faint(style.edge, 0.3), 1.2, Qt::CustomDashLine, Qt::RoundCap);
  seam.setDashPattern({4, 3});
  painter.strokePath(Cornered(area.adjusted(5, 5, -5, -5), corner - 4, true), seam);
}

/// A plate for the kind's name, from which a line of light runs along its six places.
void PaintKind(QPainter& painter, const DeskPlan& plan, int kind) {
  const Style& style = plan.style;
  const double top = plan.bankAt.y() + kind * plan.bankStep.height();
  const double middle = top + plan.card.height() / 2;
  const double last = plan.bankAt.x() + (kNumbers - 1) * plan.bankStep.width() + plan.card.width();
  QPainterPath rail;
  rail.moveTo(plan.label.right() - 6, middle);
  rail.lineTo(last, middle);
  painter.strokePath(rail, QPen(Faint(Qt::black, 0.6), 6));
  Glow(painter, rail, style.accent, 0.9, 4);
  const QRectF plate(plan.label.left() - 6, middle - 17, plan.label.width() + 6, 34);
  Plate(painter, plate, style, 60 + static_cast<std::uint64_t>(kind), 7);
  Well(painter, plate.adjusted(4, 4, -4, -4), style, 4);
  for (int number = 0; number < kNumbers; ++number) {
    CardSlot(painter, {QPointF(plan.bankAt.x() + number * plan.bankStep.width(), top), plan.card}, style);
  }
}

void PaintCollection(QPainter& painter, const DeskPlan& plan) {
  const double right = plan.bankAt.x() + (kNumbers - 1) * plan.bankStep.width() + plan.card.width();
  const double bottom = plan.bankAt.y() + (kKinds - 1) * plan.bankStep.height() + plan.card.height();
  const QRectF tray(QPointF(plan.label.left() - 14, plan.bankAt.y() - 10),
                    QPointF(plan.style.worn ? right + 14 : plan.deckTray.right() - 2, bottom + 9));
  if (!plan.style.worn) {
    Plate(painter, tray.adjusted(-9, -9, 9, 9), plan.style, 41, 12);
    Fasten(painter, tray.adjusted(-13, -13, 13, 13), plan.style);
  }
  PaintTray(painter, tray, plan.style, plan.lining, 42);
  for (int kind = 0; kind < kKinds; ++kind) PaintKind(painter, plan, kind);
}

void PaintDeck(QPainter& painter, const DeskPlan& plan) {
  const double left = plan.style.worn ? 7 : 13;  // where the collection's tray begins
  Plate(painter, plan.deckTray.adjusted(-left, -6, 7, 7), plan.style, 43, 12);
  PaintTray(painter, plan.deckTray, plan.style, plan.felt, 44);
  for (int i = 0; i < kDeckCards; ++i) {
    CardSlot(painter, {plan.deckAt + QPointF(i * plan.deckStep, 0), plan.card}, plan.style);
  }
}

/// Louvres, as every machine of the circuit has them.
void PaintGrille(QPainter& painter, QRectF area, const Style& style) {
  for (double y = area.top(); y < area.bottom() - 2; y += 7) {
    Well(painter, {area.left(), y, area.width(), 3}, style, 1.5);
  }
}

/// The counter where cards are traded: a hatch that bears the sign while it is closed.
void PaintHatch(QPainter& painter, const DeskPlan& plan) {
  const Style& style = plan.style;
  Well(painter, plan.counter.adjusted(-4, -4, 4, 4), style, 10);
  Plate(painter, plan.counter, style, 45, 10);
  Fasten(painter, plan.counter, style);
  const QPointF middle = plan.counter.center();
  const double radius = plan.counter.height() * 0.27;
  const double turn = style.worn ? 22.5 : 0;
  const int sides = style.worn ? 8 : 6;
  const QPainterPath boss = Polygon(middle, radius * 1.3, sides, turn);
  DropShadow(painter, boss, 5, 0.5);
  painter.fillPath(boss, Downward(boss.boundingRect(), Mix(style.plate, style.edge, 0.15), style.plateShade));
  painter.strokePath(boss, QPen(Faint(style.edge, 0.7), 1.2));
  painter.fillPath(Polygon(middle, radius * 1.08, sides, turn), style.wellShade);
  Glow(painter, Emblem(middle, radius * 0.74), style.accent, 1.4, 7);
  QPainterPath seams;
  for (const double side : {-1.0, 1.0}) {
    seams.moveTo(middle + QPointF(side * radius * 1.3, 0));
    seams.lineTo(QPointF(side < 0 ? plan.counter.left() : plan.counter.right(), middle.y()));
  }
  Engrave(painter, seams, style, 2);
}

void PaintCounter(QPainter& painter, const DeskPlan& plan) {
  const Style& style = plan.style;
  Well(painter, plan.display, style, 6);
  for (const QRectF& button : plan.views) Well(painter, button.adjusted(-3, -3, 3, 3), style, 4);
  PaintHatch(painter, plan);
  const double top = plan.counter.bottom() + 18;
  if (const double room = plan.next.top() - 18 - top; room > 20) {
    PaintGrille(painter, {plan.counter.left() + 14, top, plan.counter.width() - 28, room}, style);
  }
  Plate(painter, plan.next.adjusted(-10, -9, 10, 9), style, 46, 8);
  Well(painter, plan.next.adjusted(-3, -3, 3, 3), style, 4);
}

void TitleStrip(QPainter& painter, const DeskPlan& plan) {
  const QRectF bar(0, 0, plan.screen.width(), plan.titleBar);
  painter.fillRect(bar, Downward(bar, plan.style.plateShade, plan.style.wellShade));
  painter.fillRect(QRectF(0, plan.titleBar - 1, bar.width(), 1), Faint(plan.style.edge, 0.35));
}

void PaintDesk(QPainter& painter, const DeskPlan& plan, std::uint64_t seed, QRectF counterPlate) {
  Board(painter, plan.screen, plan.style, seed);
  Spot(painter, {plan.screen.width() * 0.3, 0}, plan.screen.height() * 0.8,
       plan.style.worn ? kAmber : plan.style.edge, 0.12);
  Plate(painter, counterPlate, plan.style, seed + 2, 12);
  Fasten(painter, counterPlate, plan.style);
  PaintCollection(painter, plan);
  PaintDeck(painter, plan);
  PaintCounter(painter, plan);
  TitleStrip(painter, plan);
}

}  // namespace

void PaintSlateDeck(QPainter& painter) {
  PaintDesk(painter, kSlateDesk, 104, {532, 42, 234, 472});
}

void PaintEmberDeck(QPainter& painter) {
  const Style& style = kEmber;
  PaintDesk(painter, kEmberDesk, 106, {694, 44, 306, 456});
  // The desk's front edge, riveted.
  Plate(painter, {-10, 668, 1044, 40}, style, 107, 3);
  for (double x = 20; x < 1024; x += 41) Rivet(painter, {x, 680}, 2, style);
}

}  // namespace kv::datafile
