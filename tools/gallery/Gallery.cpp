#include "Gallery.h"

#include <QPixmap>
#include <algorithm>
#include <filesystem>
#include <iomanip>
#include <sstream>

#include "Contrast.h"

namespace kv {
namespace {

constexpr auto kGroups = {RenderStart, RenderMenu,     RenderOptions, RenderPortraits,
                          RenderHelp,  RenderCampaign, RenderDesk,    RenderLobby,
                          RenderMatch, RenderMotion,   RenderRecord};

}  // namespace

std::vector<std::string> Gallery::Render() {
  for (const auto& group : kGroups) group(*this);
  return failed_;
}

void Gallery::Save(QWidget& screen, const std::string& name) {
  QCoreApplication::processEvents();
  const std::string file = style_ + "-" + name + "@" + std::to_string(scale_) + ".png";
  if (!screen.grab().save(QString::fromStdString(folder_ + "/" + file))) failed_.push_back(file);
  if (!measures_) return;
  for (const auto& [control, ratio] : MeasureContrast(screen)) {
    leastContrast_ = std::min(leastContrast_, ratio);
    if (ratio >= kLeastContrast) continue;
    std::ostringstream line;
    line << file << ' ' << control.toStdString() << ' ' << std::fixed << std::setprecision(2) << ratio;
    faintTexts_.push_back(line.str());
  }
}

void FillSamplePlayer(clsPlayer& player) {
  player.Name = "Mara Teth";
  // Settling a stake saves the player: somewhere out of the way.
  player.FileName = (std::filesystem::temp_directory_path() / "mara.vnt").string();
  player.Portrait = 22;
  player.Arcade_Best = 4200;
  player.Credits->Value = 1385;
  player.Wins->Value = 34;
  player.Losses->Value = 12;
  player.Credits_MP->Value = 410;
  player.Wins_MP->Value = 9;
  player.Losses_MP->Value = 6;
  player.Disconnects = 1;
  player.KeysEn = true;
}

}  // namespace kv
