// How a screen asks for another one. Screens never know each other: the program opens what follows.
#pragma once

namespace kv {

class Navigator {
 public:
  virtual ~Navigator() = default;
  /// The match is over and booked, and its last continue was used: the match screen is closed, and what
  /// follows in the match's mode is opened.
  virtual void LeaveMatch() = 0;
  /// The person leaves the program from a screen that owes nothing any more.
  virtual void EndProgram() = 0;
};

}  // namespace kv
