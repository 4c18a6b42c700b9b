// Whom the engine speaks to besides its screen: the peer of a network match, and the book that takes the
// result. Each is one small interface, so that a match runs in tests without either.
#pragma once

#include <functional>
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
  /// Whether the peer has come as far as this side's next step needs: its "[Play]" has arrived.
  [[nodiscard]] virtual bool peerReady() const { return false; }
  /// A set is decided, by the last move of either side.
  virtual void SetDecided() {}
  /// Starts repeating "[Turn]" until the peer answers.
  virtual void startTurnRepeat() {}

  /// Adds a line to this side's chat log; the peer is told nothing.
  virtual void AddChatLine(const std::string& line) { static_cast<void>(line); }
  /// A line that the person sends with Enter: said to both sides, or one of the chat commands "/quit" and
  /// "/disconnect". The screen may be closed when this returns.
  virtual void SubmitChat(const std::string& line) { static_cast<void>(line); }
  /// Tells `mirror` the whole chat log now and after every change; one at a time, an empty one to end it. The
  /// log is plain text in UTF-8.
  using ChatMirror = std::function<void(const std::string& log)>;
  virtual void MirrorChat(ChatMirror mirror) { static_cast<void>(mirror); }
};

/// Books the end of a match: credits, counters, the player file. Each match is booked exactly once.
class MatchBooking {
 public:
  virtual ~MatchBooking() = default;
  virtual void SaveWin() = 0;
  virtual void SaveLoss() = 0;
  /// The last match, booked as lost, is won after all.
  virtual void TurnLossIntoWin() {}
  /// What the last win has brought besides credits, in a few words ("3 of 10 wins"); empty for nothing.
  [[nodiscard]] virtual std::string Progress() const { return {}; }
};

}  // namespace kv
