// Cuts the byte stream of a connection into messages. Whatever way the stream is cut into arrivals, the
// messages are the same; memory is bounded by the longest message that is allowed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kv {

/// The separator "\u2021" as it is on the wire.
inline constexpr char kSeparatorByte = '\x87';
/// Bytes of the longest message, without its separator.
inline constexpr std::size_t kMostFrame = 4096;

class Framing {
 public:
  /// Takes what has arrived; gives the messages that are whole now, without separators, as bytes of the wire.
  /// `broken` becomes true, for good, at a message that is too long; nothing is given from there on.
  [[nodiscard]] std::vector<std::string> Feed(std::string_view bytes);
  [[nodiscard]] bool broken() const { return broken_; }
  /// A new stream begins.
  void Reset();

 private:
  std::string tail_;  // of the message that is not whole yet
  bool broken_ = false;
};

}  // namespace kv
