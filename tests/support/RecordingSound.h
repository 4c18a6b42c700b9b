// A sound device that plays nothing and remembers everything, by the wave files' base names.
#pragma once

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "platform/SoundDevice.h"

namespace kv::test {

class RecordingSound final : public SoundDevice {
 public:
  std::vector<std::string> loaded;  // "click": the buffer's number is its place here
  std::vector<std::string> played;  // in order; from buffers and once alike
  std::vector<int> buffers;         // the numbers played from buffers
  std::set<std::string> missing;    // names whose files are as good as absent
  int volume = 100;                 // percent

  int LoadBuffer(const std::string& wavePath) override {
    const std::string name = std::filesystem::path(wavePath).stem().string();
    if (missing.contains(name)) return -1;
    loaded.push_back(name);
    return static_cast<int>(loaded.size()) - 1;
  }
  void PlayBuffer(int buffer) override {
    if (buffer < 0 || buffer >= static_cast<int>(loaded.size())) return;
    buffers.push_back(buffer);
    played.push_back(loaded[static_cast<std::size_t>(buffer)]);
  }
  void PlayOnce(const std::string& wavePath) override {
    played.push_back(std::filesystem::path(wavePath).stem().string());
  }
  void setVolume(int percent) override { volume = percent; }
  [[nodiscard]] int Count(const std::string& name) const {
    return static_cast<int>(std::count(played.begin(), played.end(), name));
  }
};

}  // namespace kv::test
