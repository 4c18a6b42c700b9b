// The scrambling of player-file records under the player's PIN. It keeps a curious reader out, no more: never
// use it for a secret.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/Random.h"

namespace kv {

/// XOR of each byte with the key, repeated from its first byte; with 255 when the key is empty.
[[nodiscard]] std::string CipherBytes(std::string_view text, std::string_view key);

/// One random character, the text and two random digits, enciphered: always three bytes longer than `text`.
[[nodiscard]] std::string EncodeBytes(std::string_view text, std::string_view key, Random& random);

/// The reverse of EncodeBytes; nothing when `text` is shorter than the three bytes of padding.
[[nodiscard]] std::optional<std::string> DecodeBytes(std::string_view text, std::string_view key);

}  // namespace kv
