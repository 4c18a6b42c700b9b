// The card screen without its window, and the one who sits in front of it: agrees upon a stake, fills the
// deck from what the player owns, and goes on to the match.
#pragma once

#include "campaign/CardRound.h"
#include "vantri-peer/PeerScreen.h"

namespace kv {

class PeerCards final : public PeerScreen, private CardRoundView {
 public:
  explicit PeerCards(const PeerServices& services);

  [[nodiscard]] CardRound& round() { return round_; }
  void Open() override;

 protected:
  void Closing() override;

 private:
  void ShowWager() override {}
  void ShowSettled() override {}
  void PlaySound(std::string_view) override {}

  void Act();
  void NegotiateStake();
  void FillDeck();

  CardRound round_;
  std::unique_ptr<Timer> tmrAct_;
};

}  // namespace kv
