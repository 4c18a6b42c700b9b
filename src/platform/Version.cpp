#include "platform/Version.h"

namespace kv {
namespace {

constexpr std::string_view kText = KV_VERSION;
static_assert(kText.size() == 5, "player files count a version by its first, third and last character");

constexpr int Digit(std::size_t at) {
  return kText[at] - '0';
}

}  // namespace

// Constants, so that they are there before any other variable is made.
constinit const std::string_view kProgramVersion = kText;
constinit const int kProgramVersionNumber = 100 * Digit(0) + 10 * Digit(2) + Digit(4);

}  // namespace kv
