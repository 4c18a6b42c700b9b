// UTF-8 text as the toolkit takes it.
#pragma once

#include <QString>
#include <string_view>

namespace kv {

[[nodiscard]] inline QString ToQString(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

}  // namespace kv
