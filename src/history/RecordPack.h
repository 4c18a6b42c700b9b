// The course of a match in as few bytes as a history of very many matches needs: hands, sets, moves, results.
// What is unpacked comes from a file: everything is bounded and checked.
#pragma once

#include <string>
#include <string_view>

#include "history/MatchRecord.h"

namespace kv {

[[nodiscard]] std::string PackCourse(const MatchRecord& record);
/// Writes hands and sets of `record`; false, and nothing written, when the bytes are no packed course.
[[nodiscard]] bool UnpackCourse(std::string_view bytes, MatchRecord& record);

}  // namespace kv
