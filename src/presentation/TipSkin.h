// Tooltips in the style of the screens.
#pragma once

#include <string_view>

namespace kv {

/// For all tooltips from now on; `style` is "Slate" or "Ember".
void SkinTips(std::string_view style);

}  // namespace kv
