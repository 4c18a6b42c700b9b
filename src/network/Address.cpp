#include "network/Address.h"

#include <algorithm>
#include <charconv>

namespace kv {
namespace {

constexpr std::string_view kDigits = "0123456789";
constexpr std::size_t kMostRows = 6;  // of the machine's table of addresses
constexpr std::size_t kMostPortDigits = 5;
constexpr int kHighestPort = 65535;

bool IsDigit(char c) {
  return kDigits.find(c) != std::string_view::npos;
}

}  // namespace

bool IsValidIP(std::string_view text) {
  if (text.empty() || text.find_first_not_of("0123456789.") != std::string_view::npos) return false;
  if (!IsDigit(text.front()) || !IsDigit(text.back())) return false;
  if (std::count(text.begin(), text.end(), '.') != 3) return false;
  // Between two dots stands at least the digit that follows the first of them.
  return text.find("..") == std::string_view::npos;
}

std::optional<int> PortOf(std::string_view answer) {
  const std::size_t first = answer.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  answer = answer.substr(first, answer.find_last_not_of(' ') + 1 - first);
  if (answer.size() > kMostPortDigits || answer.find_first_not_of(kDigits) != std::string_view::npos)
    return {};
  int port = 0;
  std::from_chars(answer.data(), answer.data() + answer.size(), port);
  if (port < 1 || port > kHighestPort) return {};
  return port;
}

std::vector<std::string> UsableAddresses(const std::vector<std::string>& addresses) {
  std::vector<std::string> usable;
  for (std::size_t row = 0; row < std::min(addresses.size(), kMostRows); ++row) {
    if (addresses[row] != "0.0.0.0" && addresses[row] != "127.0.0.1") usable.push_back(addresses[row]);
  }
  return usable;
}

}  // namespace kv
