// The layout files of the screens, compiled in, which only Layout reads; and the read-me ("README"), whose
// chapters are the rules inside the program.
#pragma once

#include <string_view>

namespace kv {

/// The JSON text of the layout file named after `screen` ("frmGame"), or an empty view when there is none.
[[nodiscard]] std::string_view LayoutText(std::string_view screen);

}  // namespace kv
