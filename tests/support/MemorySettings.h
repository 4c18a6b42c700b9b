// Settings that last as long as the test, which may put into them whatever a hand could write into the file.
#pragma once

#include <map>
#include <string>

#include "platform/SettingsStore.h"

namespace kv::test {

class MemorySettings final : public SettingsStore {
 public:
  std::map<std::string, std::string, std::less<>> texts;

  [[nodiscard]] std::optional<std::string> Read(std::string_view key) const override {
    const auto found = texts.find(key);
    if (found == texts.end()) return {};
    return found->second;
  }
  void Write(std::string_view key, std::string_view text) override {
    texts.insert_or_assign(std::string(key), text);
  }
};

}  // namespace kv::test
