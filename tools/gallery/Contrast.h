// How well the texts of a screen can be read: each is compared with nearly all pixels that lie under its own
// letters, which are found by rendering the screen once with the text and once without it.
#pragma once

#include <QString>
#include <QWidget>
#include <vector>

namespace kv {

/// The least that any text must have (luminance ratio, 1 to 21).
inline constexpr double kLeastContrast = 4.5;

struct TextContrast {
  QString control;
  double ratio;
};

/// Every visible text of a screen that nothing covers. The screen looks afterwards as it did before.
[[nodiscard]] std::vector<TextContrast> MeasureContrast(QWidget& screen);

}  // namespace kv
