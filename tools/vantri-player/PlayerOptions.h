// The options of a player as words of a command line: "--style Ember", "--speed fast". It changes fields of a
// record in memory; loading and saving are the caller's.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "profile/clsPlayer.h"

namespace kv {

/// The names and values of all options, one line each.
[[nodiscard]] std::string PlayerOptionsHelp();
/// One line for each option with its present value.
[[nodiscard]] std::string PlayerOptionsText(const clsPlayer& player);

/// Applies every "--name value" of the words and returns the words that are none. Nothing, with `error` set,
/// when a name or value is unknown; the record may then be changed in part.
[[nodiscard]] std::optional<std::vector<std::string>> ApplyPlayerOptions(std::span<const std::string> words,
                                                                         clsPlayer& player,
                                                                         std::string& error);

}  // namespace kv
