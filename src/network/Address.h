// The addresses and ports that a person types in the lobby, and the list of the machine's own.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kv {

/// Four groups of digits with dots between them, a digit first and last. How large the numbers are is not
/// looked at.
[[nodiscard]] bool IsValidIP(std::string_view text);

/// A port, 1 to 65535, of one to five digits with blanks around them.
[[nodiscard]] std::optional<int> PortOf(std::string_view answer);

/// Of the machine's addresses those that another machine can use: at most six are looked at.
[[nodiscard]] std::vector<std::string> UsableAddresses(const std::vector<std::string>& addresses);

}  // namespace kv
