#include "history/RecordWords.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace kv::words {
namespace {

constexpr std::int64_t kDay = 86400;              // seconds
constexpr std::int64_t kLastTime = 253402300799;  // the last second of the year 9999

bool IsControl(char c) {
  return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

bool IsCodeLetter(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '-';
}

}  // namespace

std::string_view Cut(std::string_view& text, std::string_view mark) {
  const std::size_t at = text.find(mark);
  const std::string_view front = text.substr(0, at);
  text.remove_prefix(at == std::string_view::npos ? text.size() : at + mark.size());
  return front;
}

std::string LineOf(std::string_view name) {
  std::string line(name.substr(0, kMostRecordedName));
  // Not in the middle of a letter.
  if (line.size() < name.size()) {
    while (!line.empty() && (static_cast<unsigned char>(name[line.size()]) & 0xC0) == 0x80) line.pop_back();
  }
  std::replace_if(line.begin(), line.end(), IsControl, ' ');
  return line;
}

bool IsLine(std::string_view text) {
  return text.size() <= kMostRecordedName && std::none_of(text.begin(), text.end(), IsControl);
}

std::string TimeText(std::int64_t seconds) {
  seconds = std::clamp<std::int64_t>(seconds, 0, kLastTime);
  const std::chrono::year_month_day day{std::chrono::sys_days{std::chrono::days{seconds / kDay}}};
  const auto clock = static_cast<int>(seconds % kDay);
  std::array<char, 40> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02u-%02u %02d:%02d:%02d", static_cast<int>(day.year()),
                static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()), clock / 3600,
                clock / 60 % 60, clock % 60);
  return text.data();
}

std::optional<std::int64_t> TimeIn(std::string_view text) {
  constexpr std::string_view form = "0000-00-00 00:00:00";
  if (text.size() != form.size()) return {};
  const auto part = [&](std::size_t at, std::size_t count, int most) {
    return NumberIn<int>(text.substr(at, count), 0, most).value_or(-1);
  };
  const std::array parts = {part(0, 4, 9999), part(5, 2, 12),  part(8, 2, 31),
                            part(11, 2, 23),  part(14, 2, 59), part(17, 2, 59)};
  const std::chrono::year_month_day day{std::chrono::year(parts[0]),
                                        std::chrono::month(static_cast<unsigned>(parts[1])),
                                        std::chrono::day(static_cast<unsigned>(parts[2]))};
  if (std::find(parts.begin(), parts.end(), -1) != parts.end() || !day.ok()) return {};
  const std::int64_t days = std::chrono::sys_days(day).time_since_epoch().count();
  const std::int64_t seconds = days * kDay + parts[3] * 3600 + parts[4] * 60 + parts[5];
  return seconds >= 0 && TimeText(seconds) == text ? std::optional(seconds) : std::nullopt;
}

std::string CodesText(const CardCode* first, std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) {
    if (i > 0) text += ' ';
    const std::string code = first[i].text();
    text += CodeIn(code) ? std::string_view(code) : kUnknownCard;
  }
  return text;
}

bool CodesIn(std::string_view text, CardCode* first, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    const std::string_view word = Cut(text, " ");
    const auto code = CodeIn(word);
    if (!code) return false;
    first[i] = word == kUnknownCard ? CardCode() : *code;
  }
  return text.empty();
}

std::optional<CardCode> CodeIn(std::string_view text) {
  const bool code = !text.empty() && text.size() <= kMostRecordedCode &&
                    std::all_of(text.begin(), text.end(), IsCodeLetter);
  return code ? std::optional(CardCode(text)) : std::nullopt;
}

}  // namespace kv::words
