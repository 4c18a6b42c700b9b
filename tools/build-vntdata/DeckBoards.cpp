// The tables of the side-deck screen: quiet wells for the collection and the shop, in the material of each
// style; the large one has a tray of its own for the deck.
#include "Backgrounds.h"
#include "Brush.h"

namespace kv::datafile {
namespace {

constexpr QRectF kEmberTray(36, 504, 952, 148);  // as the screen's layout places the deck
constexpr double kTrayGap = 10;

/// A `tray` that is not empty takes the lower part of the table from the two wells.
void PaintDeckTable(QPainter& painter, QRectF screen, double titleBar, const Style& style, std::uint64_t seed,
                    const QRectF& tray = {}) {
  Board(painter, screen, style, seed);
  const QRectF table = screen.adjusted(12, titleBar + 10, -12, -12);
  Plate(painter, table, style, seed + 1, 14);
  Fasten(painter, table, style);
  const double split = table.left() + table.width() * 0.68;
  const double top = table.top() + 18;
  const double bottom = tray.isEmpty() ? table.bottom() - 18 : tray.top() - kTrayGap;
  const QRectF cards(table.left() + 18, top, split - table.left() - 27, bottom - top);
  const QRectF side(split + 9, top, table.right() - split - 27, bottom - top);
  Well(painter, cards, style, 10);
  Well(painter, side, style, 10);
  if (!tray.isEmpty()) Well(painter, tray.adjusted(-2, -2, 2, 2), style, 10);
  Spot(painter, cards.center(), cards.height() * 0.7, style.accentShade, 0.18);
  QPainterPath rule;
  rule.moveTo(split, top + 8);
  rule.lineTo(split, bottom - 8);
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
  PaintDeckTable(painter, {0, 0, 1024, 690}, 30, kEmber, 106, kEmberTray);
}

}  // namespace kv::datafile
