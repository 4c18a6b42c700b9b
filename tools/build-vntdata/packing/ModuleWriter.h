// Writes the data file: a module image with nothing in it but named groups of numbered resources. The same
// groups always give the same bytes: no time stamp, no padding from memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kv::datafile {

using Bytes = std::vector<std::uint8_t>;
/// Groups by type name (upper-case ASCII), resources by number; both are written in their order here.
using Groups = std::map<std::string, std::map<std::uint16_t, Bytes>>;

/// The image, padded to `size` bytes (a multiple of 4096); nothing when the groups do not fit.
[[nodiscard]] std::optional<Bytes> WriteModule(const Groups& groups, std::size_t size);
/// The smallest size that the groups fit in.
[[nodiscard]] std::size_t SmallestSize(const Groups& groups);

}  // namespace kv::datafile
