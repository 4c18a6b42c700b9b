// The index of a data file as a tree: the file, below it its resource types, below each type its names. It
// holds texts only; the pictures stay in the file until one is asked for.
#pragma once

#include <string>
#include <vector>

namespace kv {

/// Keys carry one character before the text, because a plain number cannot be a key.
inline constexpr char kTreeKeyPrefix = 'K';
inline constexpr const char* kTreePlaceholder = "Dummy";

struct NameNode {
  std::string key;   // prefix and text; empty for the placeholder
  std::string text;  // the resource's name
  int number = 0;    // the text read as a number; 0 for a text that is none
};

struct TypeNode {
  std::string key;
  std::string text;
  bool expanded = false;  // false while its only child is the placeholder
  std::vector<NameNode> names;
};

struct ResourceTree {
  std::string title;
  std::vector<TypeNode> types;
};

}  // namespace kv
