#include "vantri-peer/PeerReport.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>

#include "network/Framing.h"
#include "platform/Text.h"

namespace kv {
namespace {

constexpr std::string_view kRefusal = "<< Unknown command: ";
constexpr std::size_t kRemembered = 300;  // bytes: enough to find the end of a log again
constexpr double kHour = 3600;

}  // namespace

void PeerReport::Message(const std::string& text, const std::string&, DialogIcon) {
  if (text == lastMessage_) return;
  lastMessage_ = text;
  Note(text);
}

void PeerReport::Note(const std::string& text) {
  std::fprintf(stderr, "vantri-peer: %s\n", text.c_str());
}

void PeerReport::Trace(bool sent, std::string_view bytes) const {
  const double seconds = scheduler_.timeGetTime() / 1000.0;
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find(kSeparatorByte), bytes.size());
    const std::string text = FromWindows1252(bytes.substr(0, end));
    std::fprintf(stderr, "%9.2f %s %s\n", seconds, sent ? ">" : "<", text.c_str());
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
}

void PeerReport::Chat(const std::string& log) {
  const std::string_view fresh = std::string_view(log).substr(Known(log));
  for (std::size_t at = fresh.find(kRefusal); at != fresh.npos; at = fresh.find(kRefusal, at + 1)) ++refused_;
  if (chat_) std::fprintf(stderr, "%.*s", static_cast<int>(fresh.size()), fresh.data());
  lastLog_ = log;
}

void PeerReport::MatchBegins() {
  open_ = true;
  creditsBefore_ = player_.Credits_MP->Value;
  matchSince_ = scheduler_.timeGetTime();
  if (!since_) since_ = matchSince_;
}

/// How much of the log was seen before. A long log loses its oldest lines now and then.
std::size_t PeerReport::Known(const std::string& log) const {
  if (log.starts_with(lastLog_)) return lastLog_.size();
  const std::string end = lastLog_.substr(lastLog_.size() - std::min(lastLog_.size(), kRemembered));
  const std::size_t at = log.rfind(end);
  return at == log.npos ? 0 : at + end.size();
}

std::string PeerReport::Credits() const {
  std::array<char, 96> text{};
  std::snprintf(text.data(), text.size(), "credits %d -> %d, %.1f s", creditsBefore_,
                player_.Credits_MP->Value, (scheduler_.timeGetTime() - matchSince_) / 1000.0);
  return text.data();
}

void PeerReport::MatchBooked(bool won, int ownSets, int peerSets, std::int32_t stake) {
  open_ = false;
  ++booked_;
  won_ += won ? 1 : 0;
  std::printf("match %d: %s %d-%d, stake %d, %s\n", booked_, won ? "won" : "lost", ownSets, peerSets, stake,
              Credits().c_str());
  std::fflush(stdout);
}

void PeerReport::MatchLeft(bool underWay) {
  if (open_ && underWay) {
    std::printf("match %d: broken off, %s\n", booked_ + 1, Credits().c_str());
    std::fflush(stdout);
  }
  open_ = false;
}

void PeerReport::Summary() {
  const double seconds = since_ ? (scheduler_.timeGetTime() - *since_) / 1000.0 : 0;
  std::printf("%d matches: %d won, %d lost; %d messages refused; %.0f s", booked_, won_, booked_ - won_,
              refused_, seconds);
  if (seconds > 0) std::printf(", %.1f matches an hour", booked_ / seconds * kHour);
  std::printf("\n");
  std::fflush(stdout);
}

void PeerBooking::Save(bool won) {
  const std::int32_t stake = game_.Wager;
  if (won) {
    book_.SaveWin();
  } else {
    book_.SaveLoss();
  }
  if (stake != -1) report_.MatchBooked(won, sets_(true), sets_(false), stake);
}

}  // namespace kv
