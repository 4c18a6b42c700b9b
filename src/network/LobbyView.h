// The lobby as the protocol drives it; it decides nothing about the messages.
#pragma once

namespace kv {

/// The lobby while it is open.
class LobbyView {
 public:
  virtual ~LobbyView() = default;
  /// A connection was made: the connection buttons are disabled, the entry line is emptied and gets the
  /// focus, and Start and mode appear after their time.
  virtual void Greet() = 0;
  /// The versions differ: Start stays hidden.
  virtual void RefuseStart() = 0;
  /// The host plays this mode now: a pending Start is taken back, and Start can be pressed again.
  virtual void ModeReceived(bool arcade) = 0;
  /// The peer used this side's Start up and has come back: it can be pressed again.
  virtual void TakeStartBack() = 0;
  /// Start was pressed and the peer's is awaited.
  [[nodiscard]] virtual bool waiting() const = 0;
};

}  // namespace kv
