// The card screen without its window: agrees upon a stake, fills the deck from what the player owns, and goes
// on to the match.
#pragma once

#include "campaign/CardDesk.h"
#include "campaign/WagerView.h"
#include "vantri-peer/PeerScreen.h"

namespace kv {

class PeerCards final : public PeerScreen, public WagerView {
 public:
  explicit PeerCards(const PeerServices& services);

  void Open() override;
  void Proposed(std::int32_t amount) override;
  [[nodiscard]] bool awaitsAnswer() const override { return proposed_; }
  void Accepted() override;

 protected:
  void Closing() override;

 private:
  void NetWaitTick();
  void Act();
  void NegotiateStake();
  /// The panel's button, with what it means for the peer.
  void PressWager();
  void Propose(std::int32_t amount);
  void Settle(const WagerPress& press);
  void FillDeck();
  void Continue();

  CardDesk desk_;
  WagerEntry entry_;
  std::unique_ptr<Timer> tmrNetWait_;
  std::unique_ptr<Timer> tmrAct_;
  bool proposed_ = false;  // and not yet answered
};

}  // namespace kv
