#include "ArtSounds.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <set>

#include "Effects.h"
#include "SoundFile.h"

namespace kv::sound {
namespace {

namespace fs = std::filesystem;

constexpr std::array kEndings = {".wav", ".flac", ".ogg"};

std::string Names() {
  std::string names;
  for (const Effect& effect : Effects()) names.append(names.empty() ? "" : ", ").append(effect.name);
  return names;
}

/// Puts the file's sound among the others, or tells why it cannot be.
std::string Add(const fs::path& path, std::map<std::string, Stereo>& sounds) {
  const std::string name = path.stem().string();
  if (std::ranges::find(kEndings, path.extension()) == kEndings.end())
    return "it must end in .wav, .flac or .ogg";
  if (std::ranges::none_of(Effects(), [&](const Effect& effect) { return effect.name == name; }))
    return "the game has no sound of that name; it has " + Names();
  if (sounds.contains(name)) return "there is another file for the sound " + name;
  SoundFile file = ReadSound(path.string());
  if (!file.fault.empty()) return file.fault;
  const double seconds = static_cast<double>(file.sound.left.size()) / kRate;
  if (seconds == 0 || seconds > kLongestArt)
    return "it lasts " + std::to_string(seconds) + " seconds; up to " +
           std::to_string(static_cast<int>(kLongestArt)) + " are played";
  sounds[name] = std::move(file.sound);
  return "";
}

}  // namespace

ArtSounds ReadArt(const std::string& folder) {
  std::set<fs::path> files;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(fs::path(folder) / "sounds", error)) {
    const std::string name = entry.path().filename().string();
    if (entry.is_regular_file() && name[0] != '.' && !name.starts_with("README")) files.insert(entry.path());
  }
  ArtSounds art;
  for (const fs::path& file : files) {
    if (const std::string fault = Add(file, art.sounds); !fault.empty())
      return {{}, file.string() + ": " + fault};
  }
  return art;
}

}  // namespace kv::sound
