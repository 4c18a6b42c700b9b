// The two match tables. Every rectangle is one of the match screen's layout, in layout pixels.
#include <array>

#include "boards/Boards.h"
#include "brush/Brush.h"

namespace kv::datafile {
namespace {

/// Where a style's match screen has what; the left half is the player's, the right half the opponent's.
struct MatchPlan {
  const Style& style;
  QRectF screen;
  double titleBar;
  QSizeF card;
  QPointF tableAt;
  QSizeF tableStep;
  double tableShift;  // from the player's table to the opponent's
  double handTop;
  double handStep;
  std::array<double, 2> handLeft;
  std::array<double, 2> flipTops;
  double flipHeight;
  QRectF stake;
};

const MatchPlan kSlatePlan{
    kSlate, {0, 0, 786, 540}, 24,         {48, 64}, {196, 172},        {53.7, 68}, 239, 393,
    53,     {159, 419},       {461, 484}, 20,       {293, 40, 200, 44}};
const MatchPlan kEmberPlan{
    kEmber, {0, 0, 1024, 690}, 30,         {83, 102}, {199, 129},        {96, 108}, 352, 487,
    96,     {116, 537},        {593, 618}, 22,        {412, 36, 200, 44}};

QRectF Mirrored(QRectF area, const MatchPlan& plan) {
  return {plan.screen.width() - area.right(), area.top(), area.width(), area.height()};
}

QRectF TableArea(const MatchPlan& plan, int side) {
  return {plan.tableAt.x() + side * plan.tableShift, plan.tableAt.y(),
          2 * plan.tableStep.width() + plan.card.width(), 2 * plan.tableStep.height() + plan.card.height()};
}

void PaintTable(QPainter& painter, const MatchPlan& plan, int side) {
  for (int i = 0; i < 9; ++i) {
    const QPointF at(plan.tableAt.x() + side * plan.tableShift + i % 3 * plan.tableStep.width(),
                     plan.tableAt.y() + i / 3 * plan.tableStep.height());
    CardSlot(painter, {at, plan.card}, plan.style);
  }
}

QRectF HandArea(const MatchPlan& plan, int side) {
  const double left = plan.handLeft.at(static_cast<std::size_t>(side));
  return {left, plan.handTop, 3 * plan.handStep + plan.card.width(),
          plan.flipTops[1] + plan.flipHeight - plan.handTop};
}

/// The four cards of a hand and what lies below them: the flip buttons' seats, or a grille at the opponent's.
void PaintHand(QPainter& painter, const MatchPlan& plan, int side) {
  const QRectF area = HandArea(plan, side);
  for (int i = 0; i < 4; ++i) {
    const double left = area.left() + i * plan.handStep;
    CardSlot(painter, {QPointF(left, plan.handTop), plan.card}, plan.style);
    for (const double top : plan.flipTops) {
      const QRectF seat(left, top, plan.card.width(), plan.flipHeight);
      if (side == 0) {
        Well(painter, seat, plan.style, 3);
        continue;
      }
      for (double y = seat.top() + 3; y < seat.bottom() - 2; y += 5) {
        Well(painter, QRectF(left + 2, y, seat.width() - 4, 2), plan.style, 1);
      }
    }
  }
}

void PaintStake(QPainter& painter, const MatchPlan& plan) {
  // The warm table's totals begin right below the stake.
  const bool tight = plan.style.worn;
  Plate(painter, tight ? plan.stake.adjusted(-8, -4, 8, 1) : plan.stake.adjusted(-14, -6, 14, 8), plan.style,
        5, 10);
  Well(painter, plan.stake.adjusted(-2, 0, 2, 0), plan.style, 6);
}

/// The strip of light between the two sides.
void PaintDivide(QPainter& painter, const MatchPlan& plan, double top, double bottom) {
  const double x = plan.screen.width() / 2;
  QPainterPath line;
  line.moveTo(x, top);
  line.lineTo(x, bottom);
  Well(painter, QRectF(x - 5, top - 5, 10, bottom - top + 10), plan.style, 4);
  Glow(painter, line, plan.style.accent, 1.2, 8);
  const QPointF middle(x, (top + bottom) / 2);
  const int sides = plan.style.worn ? 8 : 6;
  const double radius = plan.style.worn ? 22 : 15;
  const QPainterPath emblem = Polygon(middle, radius, sides, plan.style.worn ? 22.5 : 0);
  DropShadow(painter, emblem, 4, 0.6);
  painter.fillPath(emblem, Downward(emblem.boundingRect(), plan.style.plate, plan.style.plateShade));
  painter.strokePath(emblem, QPen(plan.style.edge, 1));
  Glow(painter, Emblem(middle, radius * 0.6), plan.style.accent, 1, 4);
}

void Seat(QPainter& painter, QRectF button, const Style& style) {
  Well(painter, button.adjusted(-3, -3, 3, 3), style, 4);
}

/// A pair of glowing lines from one place to another along the table, on both sides.
void Conduit(QPainter& painter, const MatchPlan& plan, std::initializer_list<QPointF> points) {
  QPainterPath path;
  QPainterPath mirror;
  for (const QPointF& point : points) {
    const QPointF other(plan.screen.width() - point.x(), point.y());
    path.elementCount() == 0 ? path.moveTo(point) : path.lineTo(point);
    mirror.elementCount() == 0 ? mirror.moveTo(other) : mirror.lineTo(other);
  }
  for (const QPainterPath& line : {path, mirror}) {
    painter.strokePath(line, QPen(Faint(Qt::black, 0.6), 5, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    Glow(painter, line, plan.style.accent, 0.9, 4);
  }
}

void TitleStrip(QPainter& painter, const MatchPlan& plan) {
  const QRectF bar(0, 0, plan.screen.width(), plan.titleBar);
  painter.fillRect(bar, Downward(bar, Mix(plan.style.plateShade, Qt::black, 0.2),
                                 Mix(plan.style.wellShade, Qt::black, 0.3)));
  painter.fillRect(QRectF(0, plan.titleBar - 1, bar.width(), 1), Faint(plan.style.edge, 0.35));
}

/// The house's sign, cut large and faint into the table's free corners.
void EngraveSign(QPainter& painter, const MatchPlan& plan, QPointF at, double radius) {
  for (const double x : {at.x(), plan.screen.width() - at.x()}) {
    Engrave(painter, Emblem({x, at.y()}, radius), plan.style, 2);
    Engrave(painter, Polygon({x, at.y()}, radius * 1.35, plan.style.worn ? 8 : 6, plan.style.worn ? 22.5 : 0),
            plan.style, 1.2);
  }
}

/// What both sides have alike; `paint` gets each rectangle once as it is and once mirrored.
template <typename Painter>
void OnBothSides(const MatchPlan& plan, std::initializer_list<QRectF> areas, Painter paint) {
  for (const QRectF& area : areas) {
    paint(area);
    paint(Mirrored(area, plan));
  }
}

}  // namespace

void PaintSlateMatch(QPainter& painter) {
  const MatchPlan& plan = kSlatePlan;
  const Style& style = plan.style;
  Board(painter, plan.screen, style, 105);
  // Facets of the table top, cut like a gem.
  OnBothSides(plan, {QRectF(0, 24, 200, 516)}, [&](QRectF area) {
    QPainterPath facet;
    const bool left = area.left() < 1;
    const double in = left ? area.right() : area.left();
    const double out = left ? area.left() : area.right();
    facet.addPolygon(QPolygonF({{out, 24},
                                {in, 24},
                                {out + (in - out) * 0.55, 150},
                                {out + (in - out) * 0.55, 400},
                                {in, 540},
                                {out, 540}}));
    painter.fillPath(facet, Faint(Qt::black, 0.22));
    painter.strokePath(facet, QPen(Faint(style.edge, 0.16), 1));
  });
  for (double y = 36; y < 540; y += 12) painter.fillRect(QRectF(0, y, 786, 0.5), Faint(Qt::black, 0.18));
  EngraveSign(painter, plan, {92, 94}, 34);
  Conduit(painter, plan, {{158, 225}, {172, 225}, {180, 233}, {190, 233}});
  Conduit(painter, plan, {{100, 312}, {100, 360}, {150, 387}, {160, 387}});
  Conduit(painter, plan, {{279, 62}, {240, 62}, {216, 86}, {216, 122}});
  OnBothSides(plan, {QRectF(186, 122, 173, 260)}, [&](QRectF area) {
    Plate(painter, area, style, 51, 10);
    Fasten(painter, area.adjusted(-4, -4, 4, 4), style);
  });
  OnBothSides(plan, {HandArea(plan, 0).adjusted(-7, -7, 7, 8)},
              [&](QRectF area) { Plate(painter, area, style, 52, 8); });
  OnBothSides(plan, {QRectF(16, 284, 168, 34)}, [&](QRectF area) { Plate(painter, area, style, 53, 8); });
  OnBothSides(plan, {QRectF(14, 386, 136, 80)}, [&](QRectF area) { Plate(painter, area, style, 54, 8); });
  OnBothSides(plan, {QRectF(44, 172, 112, 112)}, [&](QRectF area) { PictureFrame(painter, area, style); });
  OnBothSides(plan, {QRectF(24, 290, 152, 22), QRectF(286, 126, 66, 36)},
              [&](QRectF area) { Well(painter, area, style, 4); });
  OnBothSides(plan, {QRectF(20, 393, 124, 30)}, [&](QRectF area) { Seat(painter, area, style); });
  Seat(painter, {20, 429, 124, 30}, style);
  for (double y = 432; y < 460; y += 6)
    Well(painter, {642, y, 124, 2}, style, 1);  // the opponent has one button
  OnBothSides(plan, {QRectF(226, 137, 15, 15), QRectF(245, 137, 15, 15), QRectF(264, 137, 15, 15)},
              [&](QRectF area) { Socket(painter, area, style, false); });
  OnBothSides(plan, {QRectF(196, 132, 24, 24)}, [&](QRectF area) { Socket(painter, area, style, true); });
  for (const int side : {0, 1}) {
    PaintTable(painter, plan, side);
    PaintHand(painter, plan, side);
  }
  PaintDivide(painter, plan, 130, 374);
  PaintStake(painter, plan);
  TitleStrip(painter, plan);
}

void PaintEmberMatch(QPainter& painter) {
  const MatchPlan& plan = kEmberPlan;
  const Style& style = plan.style;
  Board(painter, plan.screen, style, 107);
  Spot(painter, {512, 240}, 420, kAmber, 0.16);
  QPainterPath rings;  // turned on a lathe, around the middle of the table
  for (int i = 0; i < 6; ++i) rings.addEllipse(QPointF(512, 300), 400.0 + i * 26, 400.0 + i * 26);
  Engrave(painter, rings, style, 1.2);
  // Bands of beaten metal along the table's edge.
  for (const QRectF& band : {QRectF(-10, 24, 1044, 20), QRectF(-10, 642, 1044, 60)})
    Plate(painter, band, style, 71, 3);
  for (double x = 20; x < 1024; x += 41) Rivet(painter, {x, 686}, 2, style);
  EngraveSign(painter, plan, {54, 560}, 30);
  EngraveSign(painter, plan, {50, 410}, 22);
  Conduit(painter, plan, {{80, 170}, {80, 278}, {96, 292}, {110, 300}});
  Conduit(painter, plan, {{160, 319}, {176, 319}, {190, 319}});
  OnBothSides(plan, {QRectF(12, 32, 470, 136)}, [&](QRectF area) {
    Plate(painter, QRectF(area.left(), area.top(), area.width(), 92), style, 72, 12);
  });
  for (const int side : {0, 1}) {
    Plate(painter, TableArea(plan, side).adjusted(-11, -7, 11, 9), style, 73, 12);
  }
  OnBothSides(plan, {QRectF(96, 166, 74, 196)}, [&](QRectF area) {
    Plate(painter, area, style, 74, 14);
    Fasten(painter, area, style);
  });
  OnBothSides(plan, {HandArea(plan, 0).adjusted(-10, -8, 10, 2)},
              [&](QRectF area) { Plate(painter, area, style, 75, 12); });
  OnBothSides(plan, {QRectF(24, 44, 112, 112)}, [&](QRectF area) { PictureFrame(painter, area, style); });
  OnBothSides(plan, {QRectF(150, 44, 230, 30), QRectF(374, 82, 100, 40)},
              [&](QRectF area) { Well(painter, area, style, 6); });
  OnBothSides(plan, {QRectF(122, 174, 22, 22), QRectF(122, 212, 22, 22), QRectF(122, 250, 22, 22)},
              [&](QRectF area) { Socket(painter, area, style, true); });
  OnBothSides(plan, {QRectF(106, 292, 54, 54)}, [&](QRectF area) { Socket(painter, area, style, true); });
  for (const int side : {0, 1}) {
    PaintTable(painter, plan, side);
    PaintHand(painter, plan, side);
  }
  for (const QRectF& button :
       {QRectF(116, 648, 150, 32), QRectF(276, 648, 150, 32), QRectF(758, 648, 150, 32)}) {
    Seat(painter, button, style);
  }
  PaintDivide(painter, plan, 150, 440);
  PaintStake(painter, plan);
  TitleStrip(painter, plan);
}

}  // namespace kv::datafile
