// The second line of the result banner: why the set ended as it did and by how much, and after the last one
// what the match has changed: "18 to 12", "over 20; +40 credits; new high score: 260".
#pragma once

#include <string>

#include "match/MatchObserver.h"
#include "match/MatchPartners.h"

namespace kv {

class MatchReasons final : public MatchObserver {
 public:
  /// It must outlive this.
  explicit MatchReasons(const MatchBooking& booking) : booking_(booking) {}

  void Happened(const MatchEvent& event) override;
  /// Empty while a set is played.
  [[nodiscard]] std::string text() const;

 private:
  void Tell(const event::MatchBegun& begun);
  void Tell(const event::SetBegun& begun);
  void Tell(const event::SetDecided& decided);
  void Tell(const event::Booked& booked);
  void Tell(const event::Forfeited& forfeited);
  void Tell(const event::PeerGone& gone);
  template <typename Other>
  void Tell(const Other&) {}

  const MatchBooking& booking_;
  std::string opponent_;
  std::string reason_;
  std::string credits_;
  std::string progress_;
};

}  // namespace kv
