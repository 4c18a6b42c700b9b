#include "packing/Seeds.h"

#include <QColor>

#include "packing/Encode.h"

namespace kv::datafile {

std::map<std::string, Bytes> SeedModules() {
  QImage dot(3, 2, QImage::Format_RGB32);
  dot.fill(QColor(0, 169, 251));
  constexpr std::size_t kSize = 0x2000;
  std::map<std::string, Bytes> seeds;
  const auto add = [&](const char* name, const Groups& groups) {
    if (const auto module = WriteModule(groups, kSize)) seeds[name] = *module;
  };
  add("empty", {});
  add("two-groups",
      {{"GIF", {{201, EncodeGif(dot)}, {400, EncodeGif(dot)}}}, {"JPG", {{105, EncodeJpeg(dot, 50)}}}});
  add("no-picture", {{"GIF", {{201, Bytes{'G', 'I', 'F'}}}}, {"JPG", {{1, Bytes{0}}, {65535, Bytes{1, 2}}}}});
  return seeds;
}

}  // namespace kv::datafile
