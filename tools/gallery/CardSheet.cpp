#include "CardSheet.h"

#include <QLabel>
#include <QPalette>
#include <array>

#include "cards/ctlCard.h"

namespace kv {
namespace {

constexpr std::array kCodes = {"no7",  "no-4", "ps3",  "ms-3", "pi3",  "mi3",  "fl3", "fp3",  "fm3",
                               "fi3",  "fj3",  "s199", "s11",  "s1-1", "s299", "s27", "s399", "s499",
                               "s300", "s599", "s51",  "s5-2", "s6",   "un",   "--",  ""};
constexpr int kRowTitle = 22;
constexpr int kGap = 6;
constexpr int kPulse = 200;  // the strongest light of a pulse
constexpr int kPerLine = 13;

enum Row { kPlain, kDisabled, kPulsing, kCounted, kRows };
constexpr const char* kTitles[] = {"plain", "disabled", "pulsing", "with its count"};

}  // namespace

CardSheet::CardSheet(const frmGlobals& globals) : globals_(globals) {
  // As dark as the wells that cards lie in.
  setPalette(QPalette(QColor(230, 230, 230), QColor(14, 15, 18)));
  setAutoFillBackground(true);
  for (int row = 0; row < kRows; ++row) AddRow(kTitles[row], row);
  setFixedSize(childrenRect().size() + QSize(2 * kGap, 2 * kGap));
}

void CardSheet::AddRow(const char* title, int row) {
  const QSize cell = ctlCard(nullptr, globals_.look).size() + QSize(kGap, kGap);
  const int lines = (static_cast<int>(kCodes.size()) + kPerLine - 1) / kPerLine;
  const int top = kGap + row * (kRowTitle + lines * cell.height());
  auto* label = new QLabel(QString::fromUtf8(title), this);
  label->setGeometry(kGap, top, kPerLine * cell.width(), kRowTitle);
  for (std::size_t i = 0; i < kCodes.size(); ++i) {
    const int index = static_cast<int>(i);
    auto* card = new ctlCard(this, globals_.look);
    card->setCard(kCodes.at(i));
    card->move(kGap + index % kPerLine * cell.width(), top + kRowTitle + index / kPerLine * cell.height());
    if (row == kDisabled) card->setEnabled(false);
    if (row == kPulsing) card->Alpha(globals_.pictures.picHighlight(), kPulse);
    if (row == kCounted) {
      card->setCount(std::to_string(index));
      card->setShow_Count(true);
    }
  }
}

}  // namespace kv
