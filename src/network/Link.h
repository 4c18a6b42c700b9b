// The transport of a network game: one connection, two queues of messages and one timer that paces both
// directions, so that each message is handled between other events. It watches the connection; what a message
// means it never knows.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "network/Framing.h"
#include "platform/Scheduler.h"
#include "platform/TcpSocket.h"

namespace kv {

/// What the link tells its owner.
struct LinkEvents {
  /// A connection stands: the greeting is due.
  std::function<void()> Greet;
  /// One message in UTF-8. False: not yet, it comes again on a later tick.
  std::function<bool(const std::string& message)> Message;
  /// The connection is interrupted (or stands again): the screen is shut off meanwhile.
  std::function<void(bool interrupted)> Interrupted;
  /// The connection is lost, by an error or after its time of grace. The link is closed already.
  std::function<void(int number, const std::string& description)> Failed;
};

class Link {
 public:
  /// Both must outlive it. The socket's events are the link's from now on.
  Link(Scheduler& scheduler, TcpSocket& socket, LinkEvents events);
  ~Link();
  Link(const Link&) = delete;
  Link& operator=(const Link&) = delete;

  /// Queues a message in UTF-8 of one line. Never blocks, never fails; what is queued without a connection is
  /// dropped when the link is closed.
  void NetSend(const std::string& message);
  /// "[Quit]" becomes the next and the last message that is sent.
  void QuitLink();
  /// The game is left: QuitLink, and the link is closed when the peer has hung up, after a second at the
  /// latest. The owner is told nothing of it.
  void Leave();
  /// Closes the socket, stops all timers and empties both queues. Safe in any state.
  void CloseConnection();

  void Listen(int port, const std::string& remoteHost);
  void Connect(int port, const std::string& remoteHost);

  /// Repeats "[Turn]" until it is stopped or the link is closed.
  void StartTurnRepeat() { tmrNetTurn_->setEnabled(true); }
  void StopTurnRepeat() { tmrNetTurn_->setEnabled(false); }
  [[nodiscard]] bool turnRepeats() const { return tmrNetTurn_->Enabled(); }

  [[nodiscard]] bool connected() const { return tcpSock_.State() == TcpSocket::Status::Connected; }
  /// Messages go in and out. False once "[Quit]" has been sent.
  [[nodiscard]] bool pumping() const { return tmrNet_->Enabled(); }
  [[nodiscard]] TcpSocket& tcpSock() const { return tcpSock_; }
  /// A message with this command has not left yet.
  [[nodiscard]] bool Unsent(std::string_view command) const;
  [[nodiscard]] std::size_t waiting() const { return lstReceive_.size(); }

 private:
  void Open(int port, const std::string& remoteHost);
  void Greet();
  void DataArrival();
  void Pump();
  void SendNext();
  void HandleNext();
  /// The peer's "[Quit]" has arrived and was not handled yet.
  [[nodiscard]] bool QuitWaits() const;
  void Interrupt();
  void LeaveTick();
  void WinSockError(int number, const std::string& description);

  TcpSocket& tcpSock_;
  LinkEvents events_;
  Framing framing_;
  std::deque<std::string> lstSend_;     // bytes of the wire, each with its separator
  std::deque<std::string> lstReceive_;  // bytes of the wire
  std::uint32_t connection_ = 0;        // counts closings: tells whether a handler has closed the link
  int leaveTicks_ = 0;                  // since Leave
  bool handling_ = false;
  bool interrupted_ = false;
  std::unique_ptr<Timer> tmrNet_;
  std::unique_ptr<Timer> tmrNetTimeOut_;
  std::unique_ptr<Timer> tmrNetTurn_;
  std::unique_ptr<Timer> tmrLeave_;  // runs from Leave until the link is closed
};

}  // namespace kv
