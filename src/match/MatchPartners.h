// Whom the engine speaks to besides its screen: the peer of a network match, and the book that takes the
// result. Each is one small interface, so that a match runs in tests without either.
#pragma once

#include <string>

namespace kv {

/// The network as a match sees it. The default form is the match without a network: nobody listens.
class MatchNetwork {
 public:
  virtual ~MatchNetwork() = default;
  /// Queues a message for the peer; without a connection nothing is transmitted.
  virtual void NetSend(const std::string& message) { static_cast<void>(message); }
  /// True on the side that hosts the match and draws its first starter.
  [[nodiscard]] virtual bool hosting() const { return false; }
  /// Whether the peer's "[Play]" has arrived, and forgetting that it has.
  [[nodiscard]] virtual bool peerReady() const { return false; }
  virtual void clearPeerReady() {}
  /// Starts repeating "[Turn]" until the peer answers.
  virtual void startTurnRepeat() {}
};

/// Books the end of a match: credits, counters, the player file. Each match is booked exactly once.
class MatchBooking {
 public:
  virtual ~MatchBooking() = default;
  virtual void SaveWin() = 0;
  virtual void SaveLoss() = 0;
};

}  // namespace kv
