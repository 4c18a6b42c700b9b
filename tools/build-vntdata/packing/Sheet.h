// A contact sheet of every picture with its number, to look at after each change of the art.
#pragma once

#include <QImage>

#include "packing/Catalogue.h"

namespace kv::datafile {

[[nodiscard]] QImage ContactSheet(const Catalogue& catalogue);

}  // namespace kv::datafile
