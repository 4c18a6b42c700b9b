// The two options that every program has, --help (-h) and --version. They are answered before a program
// starts anything: it needs no display for them and touches no file.
#pragma once

#include <optional>
#include <string_view>

namespace kv {

/// Looks for the two among the words of main (the first word is the program). Writes `help`, or `name` and
/// the version, to standard output; true: that was all there is to do, and the program ends with 0.
[[nodiscard]] bool AnswersStandardOption(int count, char* const* words, std::string_view name,
                                         std::string_view help);

/// The first word that looks like an option, for programs that have none; "-" alone is a name.
[[nodiscard]] std::optional<std::string_view> FindOption(int count, char* const* words);

}  // namespace kv
