// Data files made of anything. Whatever is listed can be asked for, every span lies inside the file, and
// small resources go through the picture decoder.
#include <QLoggingCategory>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>

#include "platform/ModuleImage.h"
#include "presentation/PictureDecoder.h"

namespace {

constexpr std::size_t kMaxDecoded = 4096;  // bytes; larger pictures only slow the search down
constexpr int kMaxPictures = 4;            // of one input

void Check(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  QLoggingCategory::setFilterRules(
      QStringLiteral("qt.gui.imageio*=false"));  // every broken picture has a word to say
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto bytes = std::as_bytes(std::span(data, size));
  const kv::ModuleResult result = kv::ModuleImage::Read(bytes);
  Check(result.image.has_value() == result.error.empty());
  if (!result.image) return 0;
  std::size_t count = 0;
  int decoded = 0;
  for (const std::string& type : result.image->EnumTypes()) {
    for (const std::string& name : result.image->EnumNames(type)) {
      if (++count > kv::ModuleImage::kMaxResources) std::abort();
      if (count > 64) continue;  // names are looked up one by one: a few are enough
      const auto found = result.image->FindResource(name, type);
      if (found.empty()) continue;
      Check(found.data() >= bytes.data() && found.data() + found.size() <= bytes.data() + bytes.size());
      if (found.size() <= kMaxDecoded && decoded++ < kMaxPictures)
        (void)kv::DecodePicture(found, QSize(32, 32));
    }
  }
  return 0;
}
