// A contact sheet of every picture with its number, to look at after each change of the art.
#pragma once

#include <QImage>

namespace kv::datafile {

[[nodiscard]] QImage ContactSheet();

}  // namespace kv::datafile
