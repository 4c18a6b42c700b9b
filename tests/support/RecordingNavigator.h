// A navigator that opens nothing: it remembers, by name and in order, what the screens asked for.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "presentation/Navigator.h"
#include "profile/clsPlayer.h"

namespace kv::test {

class RecordingNavigator : public Navigator {
 public:
  void OpenSplash() override { calls.emplace_back("OpenSplash"); }
  void PlayerLoaded(std::unique_ptr<clsPlayer> player) override {
    calls.emplace_back("PlayerLoaded");
    loaded = std::move(player);
  }
  void OpenMenu() override { calls.emplace_back("OpenMenu"); }
  void OpenOptions() override { calls.emplace_back("OpenOptions"); }
  void OpenRecord() override { calls.emplace_back("OpenRecord"); }
  void OpenReview(std::int64_t match) override { calls.emplace_back("OpenReview " + std::to_string(match)); }
  void OpenReplay(std::int64_t match) override { calls.emplace_back("OpenReplay " + std::to_string(match)); }
  void OpenCampaign() override { calls.emplace_back("OpenCampaign"); }
  void OpenCards() override { calls.emplace_back("OpenCards"); }
  void OpenLobby() override { calls.emplace_back("OpenLobby"); }
  void OpenMatch() override { calls.emplace_back("OpenMatch"); }
  void OpenPortraits(PortraitCaller&) override { calls.emplace_back("OpenPortraits"); }
  void ClosePortraits() override { calls.emplace_back("ClosePortraits"); }
  void OpenHelp() override { calls.emplace_back("OpenHelp"); }
  void NewGame(std::string_view mode) override { calls.emplace_back("NewGame " + std::string(mode)); }
  void LeaveMatch() override { calls.emplace_back("LeaveMatch"); }
  void ReloadCards() override { calls.emplace_back("ReloadCards"); }
  void EndProgram() override { calls.emplace_back("EndProgram"); }
  void EndProgramSoon() override { calls.emplace_back("EndProgramSoon"); }

  [[nodiscard]] int Count(std::string_view call) const {
    int count = 0;
    for (const std::string& made : calls) count += made == call ? 1 : 0;
    return count;
  }

  std::vector<std::string> calls;
  std::unique_ptr<clsPlayer> loaded;
};

}  // namespace kv::test
