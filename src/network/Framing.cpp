#include "network/Framing.h"

#include <utility>

namespace kv {

std::vector<std::string> Framing::Feed(std::string_view bytes) {
  std::vector<std::string> messages;
  while (!broken_ && !bytes.empty()) {
    const std::size_t end = bytes.find(kSeparatorByte);
    const std::string_view part = bytes.substr(0, end);
    if (tail_.size() + part.size() > kMostFrame) {
      broken_ = true;
      tail_ = {};
      break;
    }
    tail_ += part;
    if (end == std::string_view::npos) break;
    messages.push_back(std::exchange(tail_, {}));
    bytes.remove_prefix(end + 1);
  }
  return messages;
}

void Framing::Reset() {
  tail_.clear();
  broken_ = false;
}

}  // namespace kv
