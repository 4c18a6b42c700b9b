#include "platform/StandardOptions.h"

#include <algorithm>
#include <iostream>
#include <span>

#include "platform/Version.h"

namespace kv {
namespace {

std::span<char* const> Arguments(int count, char* const* words) {
  const std::span all(words, static_cast<std::size_t>(std::max(count, 0)));
  return all.empty() ? all : all.subspan(1);
}

}  // namespace

bool AnswersStandardOption(int count, char* const* words, std::string_view name, std::string_view help) {
  for (const std::string_view word : Arguments(count, words)) {
    if (word == "--version") {
      std::cout << name << ' ' << kProgramVersion << std::endl;
      return true;
    }
    if (word == "--help" || word == "-h") {
      std::cout << help << std::flush;
      return true;
    }
  }
  return false;
}

std::optional<std::string_view> FindOption(int count, char* const* words) {
  for (const std::string_view word : Arguments(count, words)) {
    if (word.size() > 1 && word.starts_with('-')) return word;
  }
  return {};
}

}  // namespace kv
