// The names of keys on the options screen. Knows nothing of what a key is bound to.
#pragma once

#include <QString>
#include <cstdint>

namespace kv {

/// What the key with this code is called; empty for a code without a key, and for no key (-1).
[[nodiscard]] QString getKeyName(std::int16_t keyCode);

}  // namespace kv
