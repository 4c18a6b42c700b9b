#include "Contrast.h"

#include <QCoreApplication>
#include <QLabel>
#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>

#include "cards/ctlCard.h"
#include "presentation/ctlButton.h"
#include "presentation/ctlTitlebar.h"

namespace kv {
namespace {

constexpr int kLetters = 24;         // a pixel that changes by more than this belongs to a letter
constexpr double kOddPixels = 0.02;  // share of the ground left out: a star, a rivet

double Linear(int channel) {
  const double value = channel / 255.0;
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(QRgb colour) {
  return 0.2126 * Linear(qRed(colour)) + 0.7152 * Linear(qGreen(colour)) + 0.0722 * Linear(qBlue(colour));
}

double Ratio(QRgb a, QRgb b) {
  const auto [low, high] = std::minmax({Luminance(a), Luminance(b)});  // values, not references to them
  return (high + 0.05) / (low + 0.05);
}

int Distance(QRgb a, QRgb b) {
  return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
}

QImage Render(QWidget& screen) {
  return screen.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// The ink is the pixel that changed most; the ground is what lies under all that changed.
std::optional<double> RatioBetween(const QImage& with, const QImage& without, const QRect& area) {
  QRgb ink = 0;
  int most = kLetters;
  std::vector<QRgb> ground;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) {
      const int change = Distance(with.pixel(x, y), without.pixel(x, y));
      if (change > kLetters) ground.push_back(without.pixel(x, y));
      if (change > most) {
        most = change;
        ink = with.pixel(x, y);
      }
    }
  }
  if (ground.empty()) return std::nullopt;
  std::vector<double> ratios(ground.size());
  std::ranges::transform(ground, ratios.begin(), [ink](QRgb under) { return Ratio(ink, under); });
  const auto odd = static_cast<std::ptrdiff_t>(kOddPixels * static_cast<double>(ratios.size()));
  std::ranges::nth_element(ratios, ratios.begin() + odd);
  return ratios.at(static_cast<std::size_t>(odd));
}

/// Takes the text off a control and gives back what restores it; nothing for a control without text.
std::function<void()> WithoutText(QWidget& control) {
  if (auto* label = qobject_cast<QLabel*>(&control); label != nullptr && !label->text().isEmpty()) {
    const QString text = label->text();
    label->setText({});
    return [label, text] { label->setText(text); };
  }
  if (auto* card = dynamic_cast<ctlCard*>(&control); card != nullptr && !card->Caption().isEmpty()) {
    const QString caption = card->Caption();
    card->setCaption(QStringLiteral(" "));
    return [card, caption] { card->setCaption(caption); };
  }
  if (auto* button = dynamic_cast<ctlButton*>(&control); button != nullptr && !button->Caption().isEmpty()) {
    const QString caption = button->Caption();
    button->setCaption(QStringLiteral(" "));  // its pane stays that of a button with a caption
    return [button, caption] { button->setCaption(caption); };
  }
  if (auto* bar = dynamic_cast<ctlTitlebar*>(&control); bar != nullptr) {
    const QString caption = bar->Caption();
    bar->setCaption({});
    return [bar, caption] { bar->setCaption(caption); };
  }
  if (const QString sheet = control.styleSheet(); sheet.contains(u'{')) {  // a skinned box, list or mark
    control.setStyleSheet(sheet + QStringLiteral("*{color:transparent;selection-color:transparent}"
                                                 "*::item:selected{color:transparent}"
                                                 "*:disabled{color:transparent}*:focus{color:transparent}"
                                                 "QTableView,QTableView::item:selected,QHeaderView::section"
                                                 "{color:transparent}"));
    return [&control, sheet] { control.setStyleSheet(sheet); };
  }
  return {};
}

/// Whether a later sibling of the control, or of what holds it, lies over it.
bool Covered(const QWidget& screen, const QWidget& control) {
  const QRect area(control.mapTo(&screen, QPoint(0, 0)), control.size());
  for (const QWidget* at = &control; at != &screen; at = at->parentWidget()) {
    const QObjectList& siblings = at->parentWidget()->children();
    for (qsizetype i = siblings.indexOf(at) + 1; i < siblings.size(); ++i) {
      const auto* above = qobject_cast<const QWidget*>(siblings.at(i));
      if (above == nullptr || above->isWindow() || !above->isVisible()) continue;
      const QRect over(above->mapTo(&screen, QPoint(0, 0)), above->size());
      if (over.intersects(area) && !above->testAttribute(Qt::WA_TransparentForMouseEvents)) return true;
    }
  }
  return false;
}

}  // namespace

std::vector<TextContrast> MeasureContrast(QWidget& screen) {
  std::vector<TextContrast> measured;
  const QImage with = Render(screen);
  for (QWidget* control : screen.findChildren<QWidget*>()) {
    if (!control->isVisible() || control->isWindow() || Covered(screen, *control)) continue;
    const std::function<void()> restore = WithoutText(*control);
    if (!restore) continue;
    const QImage without = Render(screen);
    restore();
    const double ratio = with.devicePixelRatio();
    const QRectF place(control->mapTo(&screen, QPoint(0, 0)), control->size());
    const QRect area = QRectF(place.topLeft() * ratio, place.size() * ratio).toRect() & with.rect();
    if (const auto contrast = RatioBetween(with, without, area)) {
      const QString name = control->objectName();
      measured.push_back({name.isEmpty() ? control->accessibleName() : name, *contrast});
    }
  }
  return measured;
}

}  // namespace kv
