// The campaign screen at the start, on the way and at the end of the circuit.
#include "Gallery.h"
#include "campaign/frmCampaign.h"
#include "match/clsGame.h"
#include "support/ScreenHand.h"

namespace kv {
namespace {

struct Progress {
  const char* name;
  int credits;
  std::array<std::int16_t, 6> wins;
  int hovered;  // the tile under the pointer, -1 for none
};
constexpr Progress kProgress[] = {{"campaign-new", 100, {0, 0, 0, 0, 0, 0}, -1},
                                  {"campaign", 240, {14, 11, 12, 3, 0, 0}, 2},
                                  {"campaign-finished", 600, {18, 13, 12, 16, 11, 2}, 5},
                                  {"campaign-long", 2'000'000'000, {9999, 9999, 9999, 999, 999, 99}, 6}};

void SetProgress(clsPlayer& player, const Progress& progress) {
  player.Credits->Value = progress.credits;
  int total = 0;
  for (std::size_t i = 0; i < progress.wins.size(); ++i) {
    (player.*(CircuitOpponents().at(i).wins))->Value = progress.wins.at(i);
    total += progress.wins.at(i);
  }
  player.Wins->Value = static_cast<std::int16_t>(total);
  player.Losses->Value = static_cast<std::int16_t>(total / 2);
}

}  // namespace

void RenderCampaign(Gallery& gallery) {
  for (const Progress& progress : kProgress) {
    test::ScreenStage stage(gallery.style(), gallery.scale());
    FillSamplePlayer(stage.player);
    SetProgress(stage.player, progress);
    if (progress.credits == kMostCredits) stage.player.Name = "Alexandra Hohenstein";
    clsGame game(stage.player, {});
    frmCampaign campaign(stage.services(), stage.player, game);
    campaign.Open();
    stage.Settle();
    if (progress.hovered >= 0) {
      test::ScreenHand hand(campaign);
      hand.MoveTo(hand.CentreOf(*campaign.cmdOpp(progress.hovered)));
    }
    gallery.Save(campaign, progress.name);
  }
}

}  // namespace kv
