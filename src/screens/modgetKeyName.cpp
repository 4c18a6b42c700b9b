#include "screens/modgetKeyName.h"

#include "platform/QtKeys.h"

namespace kv {

QString getKeyName(std::int16_t keyCode) {
  return KeyName(keyCode);
}

}  // namespace kv
