#include "platform/SdlSoundDevice.h"

#include <iostream>
#include <string_view>
#include <utility>

#include "platform/Files.h"
#include "platform/SdlLibrary.h"

namespace kv {
namespace {

constexpr std::size_t kLargestWave = 16U << 20U;
constexpr std::size_t kWaveHead = 12;  // "RIFF", size, "WAVE"
constexpr int kOnceVoice = -1;         // the others are the buffers' numbers

constexpr int kWakeEarlyMs = 400;  // after the first buffer is loaded: the first window stands by then
constexpr int kRestMs = 5000;      // without a new sound, then the device is closed
constexpr std::uint32_t kRetryMs = 30000;  // after a failed opening

void Note(const std::string& text) {
  std::cerr << "Kelm Vantri: " << text << '\n';
}

}  // namespace

SdlSoundDevice::SdlSoundDevice(Scheduler& scheduler)
    : scheduler_(scheduler),
      wakeEarly_(scheduler.NewTimer(kWakeEarlyMs,
                                    [this] {
                                      wakeEarly_->setEnabled(false);
                                      Wake();
                                    })),
      rest_(scheduler.NewTimer(kRestMs, [this] {
        if (!mix_.Sounding()) Sleep();
      })) {}

SdlSoundDevice::~SdlSoundDevice() {
  Sleep();
}

// --- Buffers ---------------------------------------------------------------------------------------------

std::unique_ptr<SdlSoundDevice::Buffer> SdlSoundDevice::Read(const std::string& wavePath, std::string& why) {
  FileBytes file = ReadWhole(ResolvePath(wavePath), kLargestWave);
  if (!file.bytes) {
    why = file.error;
    return {};
  }
  const std::string_view head = std::string_view(*file.bytes).substr(0, kWaveHead);
  if (!head.starts_with("RIFF") || !head.ends_with("WAVE")) {
    why = "it is not a wave file";
    return {};
  }
  return std::make_unique<Buffer>(Buffer{wavePath, std::move(*file.bytes), {}});
}

void SdlSoundDevice::Prepare(Buffer& buffer) const {
  if (buffer.bytes.empty()) return;
  std::string why;
  buffer.samples = library_->Decode(buffer.bytes, why);
  std::string().swap(buffer.bytes);
  if (buffer.samples.empty()) Note("no sound from " + buffer.path + ": " + why);
}

int SdlSoundDevice::LoadBuffer(const std::string& wavePath) {
  std::string why;
  std::unique_ptr<Buffer> buffer = Read(wavePath, why);
  if (buffer == nullptr) {
    Note("no sound from " + wavePath + ": " + why);
    return -1;
  }
  buffers_.push_back(std::move(buffer));
  wakeEarly_->setEnabled(true);
  return static_cast<int>(buffers_.size()) - 1;
}

// --- Playing ---------------------------------------------------------------------------------------------

void SdlSoundDevice::PlayBuffer(int buffer) {
  if (buffer < 0 || buffer >= static_cast<int>(buffers_.size()) || !Wake()) return;
  Play(buffer, *buffers_[static_cast<std::size_t>(buffer)]);
}

void SdlSoundDevice::PlayOnce(const std::string& wavePath) {
  std::string why;
  std::unique_ptr<Buffer> buffer = Read(wavePath, why);
  if (buffer == nullptr || !Wake()) return;
  mix_.Stop(kOnceVoice);  // before its samples go with the old buffer
  once_ = std::move(buffer);
  Play(kOnceVoice, *once_);
}

void SdlSoundDevice::Play(int voice, Buffer& buffer) {
  Prepare(buffer);
  if (buffer.samples.empty()) return;
  mix_.Start(voice, buffer.samples);
  rest_->setEnabled(true);
}

void SdlSoundDevice::setVolume(int percent) {
  mix_.setVolume(percent);
}

// --- The device ------------------------------------------------------------------------------------------

bool SdlSoundDevice::Wake() {
  if (awake_ && library_->Lost()) Sleep();
  if (awake_) return true;
  if (failed_ && scheduler_.timeGetTime() - lastFailure_ < kRetryMs) return false;
  if (library_ == nullptr) library_ = SdlLibrary::Load();
  awake_ = library_ != nullptr && library_->Open(mix_);
  failed_ = !awake_;
  if (awake_) {
    wakeEarly_->setEnabled(false);
    rest_->setEnabled(true);
    for (const auto& buffer : buffers_) Prepare(*buffer);
  } else {
    lastFailure_ = scheduler_.timeGetTime();
    if (!std::exchange(noted_, true)) Note("no sound device, so the game is silent");
  }
  return awake_;
}

void SdlSoundDevice::Sleep() {
  if (!std::exchange(awake_, false)) return;
  rest_->setEnabled(false);
  mix_.StopAll();
  library_->Close();
}

}  // namespace kv
