// What is on a portrait, in a few words, for who does not see it. The table is PortraitWords.json: a row for
// every portrait of the data file.
#pragma once

#include <QString>

namespace kv {

/// "a round robot with a single eye and antennae"; empty for a number without a portrait.
[[nodiscard]] QString PortraitWords(int number);
/// "portrait 13, a round robot with a single eye and antennae".
[[nodiscard]] QString SpokenPortrait(int number);

}  // namespace kv
