// The sound library: reads wave files and hands what sounds to the desktop's sound device. It is loaded by
// name when it is first needed; without it, without a device, or with a damaged file there is no sound, and
// never a fault.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/SoundMix.h"

namespace kv {

class SdlLibrary {
 public:
  /// Null when the library is not installed. It stays loaded to the end of the program: what it has loaded in
  /// turn keeps threads and exit handlers.
  [[nodiscard]] static std::unique_ptr<SdlLibrary> Load();
  ~SdlLibrary();
  SdlLibrary(const SdlLibrary&) = delete;
  SdlLibrary& operator=(const SdlLibrary&) = delete;

  /// The sound of a wave file in the form that a SoundMix takes: 16 bits, two channels, 44.1 kHz. Empty, with
  /// the reason in `why`, for what is no wave file, is damaged, or would sound longer than a minute. A file
  /// that is cut off sounds as far as it goes.
  [[nodiscard]] std::vector<std::int16_t> Decode(std::string_view wave, std::string& why) const;

  /// From now on the device plays what the mix has, which must stay until Close. False when there is none.
  [[nodiscard]] bool Open(SoundMix& mix);
  void Close();
  /// The open device is there no more: it was pulled out, or its server has ended.
  [[nodiscard]] bool Lost() const;

 private:
  struct Functions;

  explicit SdlLibrary(std::unique_ptr<Functions> functions);

  std::unique_ptr<Functions> sdl_;
  std::uint32_t device_ = 0;  // 0: none is open
};

}  // namespace kv
