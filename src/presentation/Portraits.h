// The picture a player is shown with: the own picture in the portrait folder when there is one, else a
// built-in portrait. It only ever reads, and what lies in the folder is trusted in nothing.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Picture.h"
#include "presentation/Pictures.h"

namespace kv {

inline constexpr int kOwnPortrait = -1;
inline constexpr int kDefaultPortrait = 7;

/// What GetPortrait takes when it is not told: the current player's file name (with extension) and number.
struct PortraitOwner {
  std::string fileName;
  int portrait = kDefaultPortrait;
};

/// What a player's own picture comes to.
struct OwnPicture {
  Picture picture;
  /// Why the file of that name is not shown, as a sentence for the player; empty when it is or there is none.
  std::string refusal;
};

class Portraits {
 public:
  /// `folder` is where own pictures lie; `owner` is asked at every call.
  Portraits(Pictures& pictures, std::string folder, std::function<PortraitOwner()> owner);

  /// The portrait for a player file named `name` (without extension): the first file name.* of the folder,
  /// without regard to case, when it is a .jpeg, .jpg, .gif or .bmp that can be read, and then `found` is
  /// true; otherwise built-in portrait `number`. kOwnPortrait and an empty name stand for the current player.
  [[nodiscard]] Picture GetPortrait(int number, std::string_view name, bool& found);

  /// The same for many numbers at once, each reduced to `side` layout pixels. They are decoded afresh and not
  /// kept, so that a sheet of all portraits costs no more than it shows.
  [[nodiscard]] std::vector<Picture> GetReduced(std::span<const int> numbers, std::string_view name,
                                                int side) const;

  /// The own picture for a player file named `name` (without extension; the current player's when empty), or
  /// why it is refused.
  [[nodiscard]] OwnPicture LookUp(std::string_view name) const;

 private:
  [[nodiscard]] OwnPicture ReadOwn(const std::string& file) const;

  Pictures& pictures_;
  std::string folder_;
  std::function<PortraitOwner()> owner_;
};

}  // namespace kv
