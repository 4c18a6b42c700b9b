#include "brush/Lettering.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <string_view>

namespace kv::datafile {
namespace {

/// Strokes as pairs of digits, x then y, on a grid 4 wide and 6 high; a blank lifts the pen.
struct Letter {
  char sign;
  std::string_view strokes;
};

constexpr std::array kAlphabet = {
    Letter{'A', "0602204246 0444"},
    Letter{'B', "00063645433303 33413000"},
    Letter{'C', "40000646"},
    Letter{'D', "00063645413000"},
    Letter{'E', "40000646 0333"},
    Letter{'F', "400006 0333"},
    Letter{'G', "400006464323"},
    Letter{'H', "0006 4046 0343"},
    Letter{'I', "0006"},
    Letter{'J', "2040460604"},
    Letter{'K', "0006 400346"},
    Letter{'L', "000646"},
    Letter{'M', "0600234046"},
    Letter{'N', "06004640"},
    Letter{'O', "0040460600"},
    Letter{'P', "0600404303"},
    Letter{'R', "0600404303 2346"},
    Letter{'S', "400003434606"},
    Letter{'T', "0040 2026"},
    Letter{'U', "00064640"},
    Letter{'V', "002640"},
    Letter{'W', "0016233640"},
    Letter{'X', "0046 4006"},
    Letter{'Y', "002340 2326"},
    Letter{'Z', "00400646"},
    Letter{'0', "0040460600"},
    Letter{'1', "022026 0646"},
    Letter{'2', "004043030646"},
    Letter{'3', "00404606 0343"},
    Letter{'4', "000343 4046"},
    Letter{'5', "400003434606"},
    Letter{'6', "400006464303"},
    Letter{'7', "00404126"},
    Letter{'8', "0040460600 0343"},
    Letter{'9', "434000034346"},
    Letter{'-', "1333"},
    Letter{'+', "0343 2125"},
};

/// Adds one letter and gives its width in grid units.
double AddLetter(QPainterPath& path, char sign, double left, double unit) {
  const auto letter = std::ranges::find(kAlphabet, sign, &Letter::sign);
  if (letter == kAlphabet.end()) return 2;
  bool down = false;
  double width = 0;
  for (std::size_t i = 0; i < letter->strokes.size();) {
    if (letter->strokes[i] == ' ') {
      down = false;
      ++i;
      continue;
    }
    const double x = letter->strokes[i] - '0';
    const double y = letter->strokes[i + 1] - '0';
    const QPointF point(left + x * unit, y * unit);
    down ? path.lineTo(point) : path.moveTo(point);
    down = true;
    width = std::max(width, x);
    i += 2;
  }
  return width;
}

}  // namespace

QPainterPath LetteringPath(const QString& text, double height, double spacing) {
  const double unit = height / 6;
  QPainterPath path;
  double left = 0;
  for (const QChar sign : text) {
    left += AddLetter(path, sign.toLatin1(), left, unit) * unit + spacing * height;
  }
  return path;
}

void DrawLettering(QPainter& painter, const QString& text, QRectF area, double height, QColor colour) {
  QPainterPath path = LetteringPath(text, height);
  path.translate(area.center() - path.boundingRect().center());
  painter.strokePath(path, QPen(colour, height / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

}  // namespace kv::datafile
