// Remembers every sentence that was told.
#pragma once

#include <string>
#include <vector>

#include "platform/Announcer.h"

namespace kv::test {

class RecordingAnnouncer final : public Announcer {
 public:
  std::vector<std::string> told;

  void Announce(const std::string& text, Urgency) override { told.push_back(text); }
  /// The last sentence, empty before the first.
  [[nodiscard]] std::string Last() const { return told.empty() ? std::string() : told.back(); }
};

}  // namespace kv::test
