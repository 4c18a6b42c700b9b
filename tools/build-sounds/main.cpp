// build-sounds: writes the game's wave files, or measures the ones that are there.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

#include "ArtSounds.h"
#include "Effects.h"
#include "Master.h"
#include "SoundFile.h"
#include "platform/Files.h"
#include "platform/StandardOptions.h"

namespace {

constexpr const char* kUsage =
    "usage: build-sounds [--art ART] FOLDER  writes the wave files; those of ART/sounds take the effects'\n"
    "                                        places\n"
    "       build-sounds --table FOLDER      measures them\n";

using kv::sound::Effect;
using kv::sound::Stereo;

/// The effect as it is shipped: someone's own sound as it stands, or the effect brought to its loudness.
bool Make(const Effect& effect, const kv::sound::ArtSounds& art, Stereo& sound) {
  if (const auto own = art.sounds.find(effect.name); own != art.sounds.end()) {
    sound = own->second;
    return true;
  }
  sound = effect.make();
  if (Master(sound, effect.loudness, effect.fadeOut)) return true;
  std::cerr << effect.name << ": cannot be brought to " << effect.loudness << " LUFS without clipping (is "
            << Loudness(sound) << ")\n";
  return false;
}

int Build(const std::filesystem::path& folder, const std::string& artFolder) {
  const auto art = artFolder.empty() ? kv::sound::ArtSounds{} : kv::sound::ReadArt(artFolder);
  if (!art.fault.empty()) {
    std::cerr << "build-sounds: " << art.fault << '\n';
    return 1;
  }
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  for (const Effect& effect : kv::sound::Effects()) {
    Stereo sound;
    if (!Make(effect, art, sound)) return 1;
    const std::filesystem::path path = folder / (std::string(effect.name) + ".wav");
    const std::string trouble = kv::AtomicWrite(path.string(), WaveBytes(sound));
    if (!trouble.empty()) {
      std::cerr << path.string() << ": " << trouble << '\n';
      return 1;
    }
  }
  return 0;
}

/// A Markdown table of what a listener would measure.
int Table(const std::filesystem::path& folder) {
  std::cout << "| sound | length (s) | peak (dBFS) | loudness (LUFS) | spectrum centre (Hz) |\n"
            << "|---|---|---|---|---|\n";
  for (const Effect& effect : kv::sound::Effects()) {
    const auto [sound, fault] = kv::sound::ReadSound((folder / (std::string(effect.name) + ".wav")).string());
    if (!fault.empty()) {
      std::cerr << effect.name << ": " << fault << '\n';
      return 1;
    }
    std::ostringstream line;
    line.setf(std::ios::fixed);
    line.precision(2);
    line << "| " << effect.name << " | " << static_cast<double>(sound.left.size()) / kv::sound::kRate;
    line.precision(1);
    line << " | " << Peak(sound) << " | " << Loudness(sound);
    line.precision(0);
    line << " | " << SpectrumCentre(sound) << " |\n";
    std::cout << line.str();
  }
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  const std::string first = count > 1 ? arguments[1] : "";
  if (kv::AnswersStandardOption(count, arguments, "build-sounds", kUsage)) return 0;
  if (count == 2 && !first.starts_with('-')) return Build(first, "");
  if (count == 4 && first == "--art") return Build(arguments[3], arguments[2]);
  if (count == 3 && first == "--table") return Table(arguments[2]);
  std::cerr << kUsage;
  return 2;
}
