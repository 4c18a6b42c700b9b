#include "presentation/Sounds.h"

#include <algorithm>

#include "profile/clsPlayer.h"

namespace kv {
namespace {

// The names of a category joined: a name belongs to it when it occurs in the string.
constexpr std::string_view kHighlightNames = "hover";
constexpr std::string_view kButtonNames = "clickcheckacceptbuypanel";
constexpr std::string_view kCardNames = "turnturndrawplaycard";
constexpr std::string_view kEventNames = "bustlosesetwinsetlosematchwinmatchtieproposelevelup";

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

}  // namespace

Sounds::Sounds(SoundDevice& device) : device_(device) {}

std::string Sounds::WavePath(std::string_view name) const {
  return programFolder_ + "/Sounds/" + std::string(name) + ".wav";
}

void Sounds::InitEffects(const std::string& programFolder) {
  programFolder_ = programFolder;
  for (std::size_t i = 0; i < kSoundNames.size(); ++i) {
    buffers_[i] = device_.LoadBuffer(WavePath(kSoundNames[i]));
  }
  turn_ = 1;
  ready_ = true;
}

bool Sounds::Muted(const std::string& name) const {
  if (player_ == nullptr) return false;
  const auto among = [&name](std::string_view names) { return names.find(name) != names.npos; };
  return (player_->Mute_Highlight_Opt && among(kHighlightNames)) ||
         (player_->Mute_Cards_Opt && among(kCardNames)) ||
         (player_->Mute_Buttons_Opt && among(kButtonNames)) ||
         (player_->Mute_Events_Opt && among(kEventNames));
}

void Sounds::PlayEffect(std::string_view name) {
  const std::string lower = LowerCase(name);
  if (!ready_ || Muted(lower)) return;
  const auto found = std::find(kSoundNames.begin(), kSoundNames.end(), lower);
  if (found == kSoundNames.end()) return;
  int number = static_cast<int>(found - kSoundNames.begin()) + 1;
  if (number == 1) {
    number = 2 - turn_;
    turn_ = static_cast<unsigned char>(1 - turn_);
  }
  device_.PlayBuffer(buffers_[static_cast<std::size_t>(number - 1)]);
}

// The program folder, not the current one: the current folder is the person's own and holds no sounds.
void Sounds::PlayEffectOnce(std::string_view name) {
  device_.PlayOnce(WavePath(name));
}

}  // namespace kv
