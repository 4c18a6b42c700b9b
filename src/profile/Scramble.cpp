#include "profile/Scramble.h"

#include <cstddef>

namespace kv {
namespace {

constexpr char kKeySuffix = '7';  // keeps the key from being empty when there is no PIN
constexpr std::size_t kPadBefore = 1;
constexpr std::size_t kPadAfter = 2;
constexpr int kFirstPadCode = 37;  // "%" to "/"
constexpr int kPadCodes = 11;

std::string FullKey(std::string_view key) {
  return std::string(key) + kKeySuffix;
}

/// A whole number from 0 to count - 1.
int Draw(Random& random, int count) {
  return static_cast<int>(random.Rnd() * count);
}

}  // namespace

std::string CipherBytes(std::string_view text, std::string_view key) {
  std::string result(text);
  for (std::size_t i = 0; i < result.size(); ++i) {
    const unsigned mask = key.empty() ? 0xFFU : static_cast<unsigned char>(key[i % key.size()]);
    result[i] = static_cast<char>(static_cast<unsigned char>(result[i]) ^ mask);
  }
  return result;
}

std::string EncodeBytes(std::string_view text, std::string_view key, Random& random) {
  std::string plain(kPadBefore, static_cast<char>(kFirstPadCode + Draw(random, kPadCodes)));
  plain += text;
  const int digits = Draw(random, 100);
  plain += static_cast<char>('0' + digits / 10);
  plain += static_cast<char>('0' + digits % 10);
  return CipherBytes(plain, FullKey(key));
}

std::optional<std::string> DecodeBytes(std::string_view text, std::string_view key) {
  if (text.size() < kPadBefore + kPadAfter) return std::nullopt;
  const std::string plain = CipherBytes(text, FullKey(key));
  return plain.substr(kPadBefore, plain.size() - kPadBefore - kPadAfter);
}

}  // namespace kv
