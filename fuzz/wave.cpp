// Wave files from anybody's hand: whatever they hold, they sound for at most a minute or not at all.
#include <cstdlib>
#include <memory>

#include "platform/SdlLibrary.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::unique_ptr<kv::SdlLibrary> library = kv::SdlLibrary::Load();
  std::string why;
  const auto samples = library->Decode({reinterpret_cast<const char*>(data), size}, why);
  if (samples.size() > 2U * 44100 * 61 || samples.empty() == why.empty()) std::abort();
  return 0;
}
