// Who is who: portraits.json, a row a portrait, read with every field checked. It knows nothing of paint, and
// never guesses at a row that is wrong.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "portraits/Spec.h"

namespace kv::datafile {

struct BustTable {
  std::vector<BustSpec> rows;
  std::string fault;  // what is wrong with the table, for people; then there are no rows
};

/// The table in JSON. Each row has every field, and no two have one number.
[[nodiscard]] BustTable ParseBusts(std::string_view json);
/// The table of the source tree.
[[nodiscard]] BustTable ReadBusts();

}  // namespace kv::datafile
