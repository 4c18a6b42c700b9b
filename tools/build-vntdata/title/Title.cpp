#include "title/Title.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "brush/Brush.h"

namespace kv::datafile {
namespace {

constexpr QSizeF kArea(440, 90);
constexpr int kColumns = 8;
constexpr int kRows = 12;

/// Strokes as pairs of digits, x then y (a, b, c go on after 9); a blank lifts the pen. The gaps are the
/// stencil's.
struct StencilLetter {
  char sign;
  std::string_view strokes;
};
constexpr std::array kTitleAlphabet = {
    StencilLetter{'K', "000c 80368c"},
    StencilLetter{'E', "80000c8c 2676"},
    StencilLetter{'L', "000c8c"},
    StencilLetter{'M', "0c0047808c"},
    StencilLetter{'V', "004c80"},
    StencilLetter{'A', "0c408c"},
    StencilLetter{'N', "0c008c80"},
    StencilLetter{'T', "0080 424c"},
    StencilLetter{'R', "0c006082846626 588c"},
    StencilLetter{'I', "000c"},
};

int Digit(char sign) {
  return sign >= 'a' ? sign - 'a' + 10 : sign - '0';
}

QPainterPath StrokesOf(char sign, QSizeF size) {
  QPainterPath path;
  const auto letter = std::ranges::find(kTitleAlphabet, sign, &StencilLetter::sign);
  if (letter == kTitleAlphabet.end()) return path;
  bool down = false;
  for (std::size_t i = 0; i + 1 < letter->strokes.size();) {
    if (letter->strokes[i] == ' ') {
      down = false;
      ++i;
      continue;
    }
    const QPointF point(Digit(letter->strokes[i]) * size.width() / kColumns,
                        Digit(letter->strokes[i + 1]) * size.height() / kRows);
    down ? path.lineTo(point) : path.moveTo(point);
    down = true;
    i += 2;
  }
  return path;
}

struct Word {
  const char* text;
  QSizeF letter;
  double stroke;
  double gap;
  double middle;  // of its height
  QColor colour;
};
const Word kSmall{"KELM", {17, 15}, 3.6, 26, 18.5, kAmber};
const Word kLarge{"VANTRI", {38, 42}, 8.4, 22, 61, kSlate.accent};

QPainterPath PathOf(const Word& word) {
  QPainterPath path;
  double left = 0;
  for (const char* sign = word.text; *sign != '\0'; ++sign) {
    QPainterPath letter = TitleLetter(*sign, word.letter, word.stroke);
    path.addPath(letter.translated(left - letter.boundingRect().left(), 0));
    left += letter.boundingRect().width() + word.gap - word.stroke;
  }
  return path.translated(QPointF(kArea.width() / 2, word.middle) - path.boundingRect().center());
}

/// Light seen in polished metal: the sky above, the dark ground, and what it throws back.
QLinearGradient Metal(QRectF area, QColor colour, bool lit) {
  const auto tone = [&](double white, double black) {
    const QColor mixed = Mix(Mix(colour, Qt::white, white), Qt::black, black);
    return lit ? mixed : Mix(Mix(mixed, QColor(70, 84, 104), 0.35), Qt::black, 0.42);
  };
  QLinearGradient metal(area.topLeft(), area.bottomLeft());
  metal.setColorAt(0, tone(0.85, 0));
  metal.setColorAt(0.46, tone(0.3, 0));
  metal.setColorAt(0.5, tone(0, 0.48));
  metal.setColorAt(0.72, tone(0, 0.22));
  metal.setColorAt(1, tone(0.45, 0));
  return metal;
}

void PaintWord(QPainter& painter, const QPainterPath& path, QColor colour, double stroke, bool lit) {
  const QRectF area = path.boundingRect();
  if (lit) {
    for (double spread = 10; spread > 1; spread *= 0.8) {
      painter.strokePath(path,
                         QPen(Faint(colour, 0.035), spread * 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
  }
  for (double depth = stroke * 0.35; depth > 0; depth -= 0.5) {  // its thickness, seen from above
    painter.fillPath(path.translated(depth * 0.4, depth), Mix(colour, Qt::black, 0.86));
  }
  painter.fillPath(path, Metal(area, colour, lit));
  painter.save();
  painter.setClipPath(path);
  QLinearGradient edge(area.topLeft(), area.bottomLeft());
  edge.setColorAt(0, Faint(Qt::white, lit ? 0.95 : 0.4));
  edge.setColorAt(0.5, Faint(Qt::white, lit ? 0.4 : 0.15));
  edge.setColorAt(1, Faint(Qt::black, 0.5));
  painter.strokePath(path.translated(0.3, 0.4), QPen(edge, stroke * 0.2));
  painter.restore();
  painter.strokePath(path, QPen(Faint(Mix(colour, Qt::black, 0.8), 0.9), 0.7));
}

/// The arcs that hold the word, and the fine lines beside the small one.
void PaintBraces(QPainter& painter, bool lit) {
  const QPointF middle(kArea.width() / 2, kLarge.middle);
  for (const double radius : {172.0, 180.0}) {
    const QRectF round(middle.x() - radius, middle.y() - radius, 2 * radius, 2 * radius);
    for (const double start : {-8.5, 171.5}) {
      QPainterPath arc;
      arc.arcMoveTo(round, start);
      arc.arcTo(round, start, 17);
      const QColor colour = lit ? kSlate.accent : kSlate.accentShade;
      if (lit) Glow(painter, arc, colour, 1.8, 6);
      painter.strokePath(arc, QPen(lit ? Mix(colour, Qt::white, 0.4) : colour, 1.8));
    }
  }
  for (const double side : {-1.0, 1.0}) {
    const QPointF from(middle.x() + side * 96, kSmall.middle);
    const QPointF to(middle.x() + side * 186, kSmall.middle);
    const QColor colour = lit ? kAmber : Mix(kAmber, Qt::black, 0.55);
    QLinearGradient fading(from, to);
    fading.setColorAt(0, colour);
    fading.setColorAt(1, Faint(colour, 0));
    painter.setPen(QPen(QBrush(fading), 1.2));
    painter.drawLine(from, to);
    painter.fillPath(Polygon(from, 3.2, 4), colour);
  }
}

}  // namespace

QPainterPath TitleLetter(char letter, QSizeF size, double stroke) {
  QPainterPathStroker stroker;
  stroker.setWidth(stroke);
  stroker.setCapStyle(Qt::FlatCap);
  stroker.setJoinStyle(Qt::MiterJoin);
  stroker.setMiterLimit(6);
  QPainterPath outline = stroker.createStroke(StrokesOf(letter, size)).simplified();
  // Sharp corners end at the line that the flat letters end at.
  QPainterPath band;
  const double half = stroke / 2;
  band.addRect(-size.width(), -half, 3 * size.width(), size.height() + stroke);
  outline = outline.intersected(band);
  if (letter == 'A') {
    outline.addPath(Polygon({size.width() / 2, size.height() * 0.74}, stroke * 0.62, 4));
  }
  return outline;
}

void PaintTitle(QPainter& painter, bool lit) {
  PaintBraces(painter, lit);
  for (const Word* word : {&kSmall, &kLarge}) {
    PaintWord(painter, PathOf(*word), word->colour, word->stroke, lit);
  }
}

}  // namespace kv::datafile
