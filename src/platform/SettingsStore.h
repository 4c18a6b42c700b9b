// What the program remembers of itself beside the players' files: texts under keys. It must never fail its
// caller: what cannot be kept is kept until the program ends. The real form is FileSettings; this one
// remembers nothing.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kv {

class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  /// The text under a key, or nothing. It may come from anybody's hand: whoever reads it checks it.
  [[nodiscard]] virtual std::optional<std::string> Read(std::string_view key) const {
    static_cast<void>(key);
    return {};
  }
  /// Keys are of letters, digits, "_" and "."; a text with a control character is not kept.
  virtual void Write(std::string_view key, std::string_view text) {
    static_cast<void>(key);
    static_cast<void>(text);
  }
};

}  // namespace kv
