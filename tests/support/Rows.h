// The rows of a table of cases; the loop over them names their columns:
//
//   for (const auto& [typed, left] : Rows<const char*, int>{{"12", 2}, {"a", 0}}) ...
#pragma once

#include <tuple>
#include <vector>

namespace kv::test {

template <typename... Columns>
using Rows = std::vector<std::tuple<Columns...>>;

}  // namespace kv::test
