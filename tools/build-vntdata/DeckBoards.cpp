// The tables of the side-deck screen: one broad quiet well for the cards, in the material of each style.
#include "Backgrounds.h"
#include "Brush.h"

namespace kv::datafile {
namespace {

void PaintDeckTable(QPainter& painter, QRectF screen, double titleBar, const Style& style,
                    std::uint64_t seed) {
  Board(painter, screen, style, seed);
  const QRectF table = screen.adjusted(12, titleBar + 10, -12, -12);
  Plate(painter, table, style, seed + 1, 14);
  Fasten(painter, table, style);
  const double split = table.left() + table.width() * 0.68;
  const QRectF cards(table.left() + 18, table.top() + 18, split - table.left() - 27, table.height() - 36);
  const QRectF side(split + 9, table.top() + 18, table.right() - split - 27, table.height() - 36);
  Well(painter, cards, style, 10);
  Well(painter, side, style, 10);
  Spot(painter, cards.center(), cards.height() * 0.7, style.accentShade, 0.18);
  QPainterPath rule;
  rule.moveTo(split, table.top() + 26);
  rule.lineTo(split, table.bottom() - 26);
  Glow(painter, rule, style.accent, 0.8, 4);
  const QRectF bar(0, 0, screen.width(), titleBar);
  painter.fillRect(bar, Downward(bar, style.plateShade, style.wellShade));
  painter.fillRect(QRectF(0, titleBar - 1, bar.width(), 1), Faint(style.edge, 0.35));
}

}  // namespace

void PaintSlateDeck(QPainter& painter) {
  PaintDeckTable(painter, {0, 0, 786, 540}, 24, kSlate, 104);
}

void PaintEmberDeck(QPainter& painter) {
  PaintDeckTable(painter, {0, 0, 1024, 690}, 30, kEmber, 106);
}

}  // namespace kv::datafile
