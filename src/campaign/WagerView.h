// The card screen as the negotiation of a network stake sees it.
#pragma once

#include <cstdint>

namespace kv {

class WagerView {
 public:
  virtual ~WagerView() = default;
  /// The peer proposes this stake, in credits.
  virtual void Proposed(std::int32_t amount) = 0;
  /// Whether a proposal of this side's waits for the peer's answer.
  [[nodiscard]] virtual bool awaitsAnswer() const = 0;
  /// The peer agrees to it: it is settled.
  virtual void Accepted() = 0;
};

}  // namespace kv
