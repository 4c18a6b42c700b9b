// build-sounds: writes the game's wave files, or measures the ones that are there.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

#include "Effects.h"
#include "Master.h"
#include "platform/Files.h"
#include "platform/WaveFile.h"

namespace {

using kv::sound::Effect;
using kv::sound::Stereo;

constexpr std::size_t kLargestWave = 16U << 20U;

int Build(const std::filesystem::path& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  for (const Effect& effect : kv::sound::Effects()) {
    Stereo sound = effect.make();
    if (!Master(sound, effect.loudness, effect.fadeOut)) {
      std::cerr << effect.name << ": cannot be brought to " << effect.loudness
                << " LUFS without clipping (is " << Loudness(sound) << ")\n";
      return 1;
    }
    const std::filesystem::path path = folder / (std::string(effect.name) + ".wav");
    const std::string trouble = kv::AtomicWrite(path.string(), WaveBytes(sound));
    if (!trouble.empty()) {
      std::cerr << path.string() << ": " << trouble << '\n';
      return 1;
    }
  }
  return 0;
}

Stereo Samples(const kv::WaveFile& wave) {
  Stereo sound;
  for (std::size_t i = 0; i + 4 <= wave.samples.size(); i += 4) {
    const auto at = [&](std::size_t k) { return static_cast<unsigned char>(wave.samples[i + k]); };
    sound.left.push_back(static_cast<std::int16_t>(at(0) | at(1) << 8) / 32767.0);
    sound.right.push_back(static_cast<std::int16_t>(at(2) | at(3) << 8) / 32767.0);
  }
  return sound;
}

/// A Markdown table of what a listener would measure.
int Table(const std::filesystem::path& folder) {
  std::cout << "| sound | length (s) | peak (dBFS) | loudness (LUFS) | spectrum centre (Hz) |\n"
            << "|---|---|---|---|---|\n";
  for (const Effect& effect : kv::sound::Effects()) {
    const kv::FileBytes file =
        kv::ReadWhole((folder / (std::string(effect.name) + ".wav")).string(), kLargestWave);
    const auto wave = file.bytes ? kv::ReadWave(*file.bytes) : std::nullopt;
    if (!wave || wave->bits != 16 || wave->channels != 2) {
      std::cerr << effect.name << ": no 16-bit stereo wave file in " << folder.string() << '\n';
      return 1;
    }
    const Stereo sound = Samples(*wave);
    std::ostringstream line;
    line.setf(std::ios::fixed);
    line.precision(2);
    line << "| " << effect.name << " | " << wave->seconds();
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
  if (count == 2) return Build(arguments[1]);
  if (count == 3 && std::string(arguments[1]) == "--table") return Table(arguments[2]);
  std::cerr << "build-sounds FOLDER          writes the wave files\n"
               "build-sounds --table FOLDER  measures them\n";
  return 2;
}
