// The chat log of a network game: plain lines of text, bounded, shown by whichever screen is open. It never
// holds what cannot be shown, wherever a line comes from.
#pragma once

#include <string>

#include "match/MatchPartners.h"

namespace kv {

class ChatLog {
 public:
  /// Starts afresh with this text, which may have line breaks.
  void Reset(std::string text);
  /// Appends a line break and the line. The oldest lines go when the log has become too long.
  void AddLine(const std::string& line);
  /// Tells `mirror` the text now and after every change; an empty one ends it.
  void setMirror(MatchNetwork::ChatMirror mirror);
  [[nodiscard]] const std::string& text() const { return text_; }

 private:
  std::string text_;  // lines separated by CR LF, in UTF-8
  MatchNetwork::ChatMirror mirror_;
};

}  // namespace kv
