#include "platform/StillDesktop.h"

#include <algorithm>
#include <fstream>
#include <string_view>

#include "platform/Text.h"

namespace kv {
namespace {

struct StillSetting {
  const char* file;
  std::string_view key;
};
constexpr StillSetting kStillSettings[] = {
    {"/gtk-3.0/settings.ini", "gtk-enable-animations="},
    {"/gtk-4.0/settings.ini", "gtk-enable-animations="},
    {"/kdeglobals", "animationdurationfactor="},
};

bool SaysNo(std::string_view value) {
  return value == "false" || (!value.empty() && value.find_first_not_of("0.") == std::string_view::npos);
}

}  // namespace

bool DesktopWishesStillness(const std::string& configFolder) {
  for (const StillSetting& setting : kStillSettings) {
    std::ifstream file(configFolder + setting.file);
    for (std::string line; std::getline(file, line);) {
      std::erase_if(line, [](char c) { return c == ' ' || c == '\t' || c == '\r'; });
      line = LowerAscii(line);
      if (line.starts_with(setting.key) && SaysNo(std::string_view(line).substr(setting.key.size())))
        return true;
    }
  }
  return false;
}

}  // namespace kv
