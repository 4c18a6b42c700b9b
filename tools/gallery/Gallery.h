// The pictures of every screen with sample data, in one style and at one scale. They are played on a clock of
// its own, and nothing but the picture files is left.
#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "support/ScreenStage.h"

namespace kv {

class Gallery {
 public:
  /// Files are named <folder>/<style>-<screen>@<scale>.png; the folder must exist.
  Gallery(std::string folder, std::string style, int scale)
      : folder_(std::move(folder)), style_(std::move(style)), scale_(scale) {}

  /// Renders everything; the names of files that could not be written.
  [[nodiscard]] std::vector<std::string> Render();

  void Save(QWidget& screen, const std::string& name);
  /// From now on also measures how well the texts of each screen can be read.
  void MeasureTexts() { measures_ = true; }
  /// One line for each text that cannot be read well enough, and the least contrast of all.
  [[nodiscard]] const std::vector<std::string>& faintTexts() const { return faintTexts_; }
  [[nodiscard]] double leastContrast() const { return leastContrast_; }
  [[nodiscard]] const std::string& style() const { return style_; }
  [[nodiscard]] int scale() const { return scale_; }

 private:
  const std::string folder_;
  const std::string style_;
  const int scale_;
  std::vector<std::string> failed_;
  bool measures_ = false;
  std::vector<std::string> faintTexts_;
  double leastContrast_ = 21;
};

/// Each renders one group of screens.
void RenderStart(Gallery& gallery);
void RenderMenu(Gallery& gallery);
void RenderOptions(Gallery& gallery);
void RenderPortraits(Gallery& gallery);
void RenderHelp(Gallery& gallery);
void RenderCampaign(Gallery& gallery);
void RenderDesk(Gallery& gallery);
void RenderMatch(Gallery& gallery);
void RenderMotion(Gallery& gallery);
void RenderLobby(Gallery& gallery);
void RenderRecord(Gallery& gallery);

/// A player a good way into the game, in this style.
void FillSamplePlayer(clsPlayer& player);

}  // namespace kv
