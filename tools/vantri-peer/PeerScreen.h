// The places of a network game (lobby, card table, match) as a peer without windows has them: each has one
// life that can end at any moment, and asks the navigator for the next.
#pragma once

#include <functional>
#include <memory>

#include "ai/Strategy.h"
#include "campaign/WagerEntry.h"
#include "match/MatchPartners.h"
#include "match/clsGame.h"
#include "network/NetworkGame.h"
#include "platform/Random.h"
#include "platform/Scheduler.h"
#include "presentation/Navigator.h"
#include "profile/clsPlayer.h"
#include "vantri-peer/PeerOptions.h"
#include "vantri-peer/PeerReport.h"

namespace kv {

/// All outlive the places.
struct PeerServices {
  const PeerOptions& options;
  Scheduler& scheduler;
  Random& random;
  PeerReport& report;
  Navigator& navigator;
  NetworkGame& network;
  clsPlayer& player;
  clsGame& game;
  MatchBooking& booking;
  NetworkStake& stake;
  Strategy& strategy;
};

class PeerScreen {
 public:
  explicit PeerScreen(const PeerServices& services) : services_(services) {}
  virtual ~PeerScreen() = default;
  PeerScreen(const PeerScreen&) = delete;
  PeerScreen& operator=(const PeerScreen&) = delete;

  /// It is in front now.
  virtual void Open() = 0;
  /// For good: its timers stand still, its pauses end.
  void Close() {
    life_.Close();
    Closing();
  }

 protected:
  virtual void Closing() = 0;
  [[nodiscard]] const PeerServices& services() const { return services_; }
  [[nodiscard]] const Lifetime& life() const { return life_; }
  [[nodiscard]] std::unique_ptr<Timer> NewTimer(int milliseconds, std::function<void()> tick) const {
    return services_.scheduler.NewTimer(milliseconds, std::move(tick));
  }

 private:
  PeerServices services_;
  Lifetime life_;
};

}  // namespace kv
