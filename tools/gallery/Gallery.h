// Every screen with sample data, rendered into picture files. It plays on a clock of its own and leaves
// nothing but the files.
#pragma once

#include <string>
#include <vector>

#include "support/MatchScreen.h"

namespace kv {

class Gallery {
 public:
  /// Files are named <folder>/<style>-<screen>@<scale>.png; the folder must exist.
  Gallery(std::string folder, std::string style, int scale);

  /// Renders everything; the names of files that could not be written.
  [[nodiscard]] std::vector<std::string> Render();

 private:
  void MatchStart();
  void MatchTurn();
  void MatchOpponent();
  void MatchSetWon();
  void MatchWon();
  void MatchNetwork();
  void Cards();
  [[nodiscard]] test::MatchScreenSetup Setup(std::vector<int> draws) const;
  void Save(QWidget& screen, const std::string& name);

  std::string folder_;
  std::string style_;
  int scale_;
  std::vector<std::string> failed_;
};

}  // namespace kv
