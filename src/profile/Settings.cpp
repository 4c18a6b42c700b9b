#include "profile/Settings.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace kv {
namespace {

constexpr std::string_view kSizeKey = "size";
constexpr std::string_view kFullScreenKey = "full_screen";
constexpr std::string_view kPlaceXKey = "place.x";
constexpr std::string_view kPlaceYKey = "place.y";
constexpr std::string_view kVolumeKey = "volume";
constexpr std::string_view kLastPlayerKey = "last_player";
constexpr std::string_view kHintsKey = "hints";
constexpr std::string_view kHintSeenKey = "hint_seen.";  // with the hint's name behind it

constexpr std::string_view kFit = "fit";
constexpr std::string_view kYes = "yes";
constexpr std::string_view kNo = "no";
constexpr double kPlaceSteps = 10000;  // finer than the pixels of any desktop

/// The number that a text is from its first to its last character, within the bounds; a NaN is in no bounds.
template <typename Number>
std::optional<Number> NumberOf(const std::optional<std::string>& text, Number least, Number most) {
  if (!text) return {};
  Number number{};
  const char* const end = text->data() + text->size();
  const auto [stopped, error] = std::from_chars(text->data(), end, number);
  if (error != std::errc() || stopped != end || !(number >= least && number <= most)) return {};
  return number;
}

bool IsStep(int percent) {
  return percent == kFitSize ||
         (percent >= kLeastSize && percent <= kMostSize && (percent - kLeastSize) % kSizeStep == 0);
}

/// From 0 to 1 in steps, as a decimal fraction of at most four digits.
std::string PlaceText(double share) {
  const double inside = share >= 0 && share <= 1 ? share : 0.5;
  char text[32];
  const auto end = std::to_chars(text, text + sizeof text, std::round(inside * kPlaceSteps) / kPlaceSteps);
  return {text, end.ptr};
}

}  // namespace

std::optional<int> Settings::size() const {
  const std::optional<std::string> text = store_.Read(kSizeKey);
  if (text == kFit) return kFitSize;
  const std::optional<int> percent = NumberOf(text, kLeastSize, kMostSize);
  return percent && IsStep(*percent) ? percent : std::nullopt;
}

void Settings::setSize(std::optional<int> percent) {
  if (!percent || !IsStep(*percent)) {
    store_.Write(kSizeKey, "");
  } else {
    store_.Write(kSizeKey, *percent == kFitSize ? std::string(kFit) : std::to_string(*percent));
  }
}

bool Settings::fullScreen() const {
  return Flag(kFullScreenKey, false);
}

void Settings::setFullScreen(bool full) {
  store_.Write(kFullScreenKey, full ? kYes : kNo);
}

std::optional<WindowPlace> Settings::place() const {
  const auto x = NumberOf(store_.Read(kPlaceXKey), 0.0, 1.0);
  const auto y = NumberOf(store_.Read(kPlaceYKey), 0.0, 1.0);
  if (!x || !y) return {};
  return WindowPlace{*x, *y};
}

void Settings::setPlace(WindowPlace place) {
  store_.Write(kPlaceXKey, PlaceText(place.x));
  store_.Write(kPlaceYKey, PlaceText(place.y));
}

int Settings::volume() const {
  return NumberOf(store_.Read(kVolumeKey), 0, kFullVolume).value_or(kFullVolume);
}

void Settings::setVolume(int percent) {
  store_.Write(kVolumeKey, std::to_string(std::clamp(percent, 0, kFullVolume)));
}

std::string Settings::lastPlayer() const {
  return store_.Read(kLastPlayerKey).value_or("");
}

void Settings::setLastPlayer(std::string_view name) {
  store_.Write(kLastPlayerKey, name);
}

bool Settings::hints() const {
  return Flag(kHintsKey, true);
}

void Settings::setHints(bool on) {
  store_.Write(kHintsKey, on ? kYes : kNo);
}

bool Settings::hintSeen(std::string_view hint) const {
  return Flag(std::string(kHintSeenKey).append(hint), false);
}

void Settings::setHintSeen(std::string_view hint) {
  store_.Write(std::string(kHintSeenKey).append(hint), kYes);
}

bool Settings::Flag(std::string_view key, bool def) const {
  const std::optional<std::string> text = store_.Read(key);
  if (text == kYes) return true;
  if (text == kNo) return false;
  return def;
}

}  // namespace kv
