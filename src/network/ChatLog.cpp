#include "network/ChatLog.h"

#include <utility>

#include "network/Message.h"

namespace kv {
namespace {

constexpr std::size_t kMostText = 16384;  // bytes
constexpr std::string_view kLineBreak = "\r\n";

}  // namespace

void ChatLog::Reset(std::string text) {
  text_ = std::move(text);
  if (mirror_) mirror_(text_);
}

void ChatLog::AddLine(const std::string& line) {
  std::string text = text_ + std::string(kLineBreak) + WireText(line);
  if (text.size() > kMostText) {
    std::size_t cut = text.find(kLineBreak, text.size() - kMostText / 2);
    if (cut == std::string::npos) cut = text.rfind(kLineBreak);  // the last line alone is longer than that
    text.erase(0, cut);
  }
  Reset(std::move(text));
}

void ChatLog::setMirror(MatchNetwork::ChatMirror mirror) {
  mirror_ = std::move(mirror);
  if (mirror_) mirror_(text_);
}

}  // namespace kv
