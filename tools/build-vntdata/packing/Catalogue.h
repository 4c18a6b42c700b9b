// Which pictures there are, in which group each is stored, and who paints it.
#pragma once

#include <QImage>
#include <vector>

#include "packing/ModuleWriter.h"

namespace kv::datafile {

/// How many stored pixels stand for one layout pixel.
inline constexpr int kStoredRatio = 2;

/// All picture numbers, ascending.
[[nodiscard]] std::vector<int> AllNumbers();
/// The picture in its stored size. `number` must be one of AllNumbers().
[[nodiscard]] QImage Paint(int number);
/// Every picture painted and encoded, in its group.
[[nodiscard]] Groups PaintAll();

}  // namespace kv::datafile
