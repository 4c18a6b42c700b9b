#include "network/Link.h"

#include <algorithm>
#include <utility>

#include "platform/Text.h"

namespace kv {
namespace {

// Milliseconds.
constexpr int kNetInterval = 100;
constexpr int kTimeOutInterval = 10000;
constexpr int kTurnInterval = 5000;
constexpr int kLeaveInterval = 50;
constexpr int kMostLeaveTicks = 20;  // a second

constexpr std::size_t kMostWaiting = 1000;  // messages: a peer cannot be that far ahead of the pump
constexpr const char* kQuit = "[Quit]";

bool IsQuit(const std::string& entry) {
  return entry == std::string(kQuit) + kSeparatorByte;
}

}  // namespace

Link::Link(Scheduler& scheduler, TcpSocket& socket, LinkEvents events)
    : tcpSock_(socket),
      events_(std::move(events)),
      tmrNet_(scheduler.NewTimer(kNetInterval, [this] { Pump(); })),
      tmrNetTimeOut_(scheduler.NewTimer(kTimeOutInterval,
                                        [this] {
                                          tmrNetTimeOut_->setEnabled(false);
                                          if (!connected()) WinSockError(0, "Connection lost");
                                        })),
      tmrNetTurn_(scheduler.NewTimer(kTurnInterval, [this] { NetSend("[Turn]"); })),
      tmrLeave_(scheduler.NewTimer(kLeaveInterval, [this] { LeaveTick(); })) {
  tcpSock_.ConnectionRequest = [this] {
    if (tcpSock_.State() != TcpSocket::Status::Closed) CloseConnection();
    tcpSock_.Accept();
    Greet();
  };
  tcpSock_.Connected = [this] { Greet(); };
  tcpSock_.DataArrival = [this] { DataArrival(); };
  tcpSock_.Error = [this](int number, const std::string& description) { WinSockError(number, description); };
}

Link::~Link() {
  tcpSock_.ConnectionRequest = tcpSock_.Connected = tcpSock_.DataArrival = {};
  tcpSock_.Error = {};
  tcpSock_.Close();
}

void Link::NetSend(const std::string& message) {
  lstSend_.push_back(ToWindows1252(message) + kSeparatorByte);
}

void Link::QuitLink() {
  lstSend_.clear();
  NetSend(kQuit);
}

void Link::Leave() {
  if (!connected()) {
    CloseConnection();
    return;
  }
  QuitLink();
  tmrNetTurn_->setEnabled(false);
  leaveTicks_ = 0;
  tmrLeave_->setEnabled(true);
}

void Link::LeaveTick() {
  // The peer hangs up when it has read the message; it may be slow, or gone.
  if (connected() && ++leaveTicks_ < kMostLeaveTicks) return;
  CloseConnection();
}

void Link::CloseConnection() {
  // A farewell that still waits for its tick goes out before the door is shut; nothing follows one that has.
  if (tmrLeave_->Enabled() && connected() && !lstSend_.empty() && IsQuit(lstSend_.front())) {
    tcpSock_.SendData(lstSend_.front());
  }
  ++connection_;
  tcpSock_.Close();
  for (const auto* timer : {&tmrNet_, &tmrNetTimeOut_, &tmrNetTurn_, &tmrLeave_}) (*timer)->setEnabled(false);
  lstSend_.clear();
  lstReceive_.clear();
  framing_.Reset();
  if (std::exchange(interrupted_, false)) events_.Interrupted(false);
}

void Link::Open(int port, const std::string& remoteHost) {
  CloseConnection();
  tcpSock_.setLocalPort(port);
  tcpSock_.setRemotePort(port);
  tcpSock_.setRemoteHost(remoteHost);
}

void Link::Listen(int port, const std::string& remoteHost) {
  Open(port, remoteHost);
  tcpSock_.Listen();
}

void Link::Connect(int port, const std::string& remoteHost) {
  Open(port, remoteHost);
  tcpSock_.Connect();
}

void Link::Greet() {
  tmrNet_->setEnabled(true);
  events_.Greet();
}

void Link::DataArrival() {
  const std::string bytes = tcpSock_.GetData();
  // After "[Quit]" nobody handles what still comes: it must not pile up.
  if (!pumping()) return;
  for (std::string& message : framing_.Feed(bytes)) lstReceive_.push_back(std::move(message));
  if (framing_.broken()) {
    WinSockError(0, "The other side sent a message that is too long");
  } else if (lstReceive_.size() > kMostWaiting) {
    WinSockError(0, "The other side sent too many messages");
  }
}

void Link::Pump() {
  if (!connected()) {
    // Who said goodbye and hung up is not lost: what came before the goodbye counts, and so does it.
    if (tmrLeave_->Enabled() || !QuitWaits()) {
      Interrupt();
    } else {
      HandleNext();
    }
    return;
  }
  if (std::exchange(interrupted_, false)) events_.Interrupted(false);
  SendNext();
  if (pumping()) HandleNext();
}

void Link::SendNext() {
  if (lstSend_.empty()) return;
  const std::string entry = std::move(lstSend_.front());
  lstSend_.pop_front();
  tcpSock_.SendData(entry);
  if (!IsQuit(entry)) return;
  lstSend_.clear();
  lstReceive_.clear();
  tmrNet_->setEnabled(false);
}

bool Link::QuitWaits() const {
  return std::ranges::find(lstReceive_, kQuit) != lstReceive_.end();
}

bool Link::Unsent(std::string_view command) const {
  return std::ranges::any_of(lstSend_, [&](const std::string& each) { return each.starts_with(command); });
}

void Link::HandleNext() {
  // A handler that shows a box is still at its message: the next one waits.
  if (handling_ || lstReceive_.empty()) return;
  const std::uint32_t connection = connection_;
  std::string entry = std::move(lstReceive_.front());
  lstReceive_.pop_front();
  handling_ = true;
  const bool handled = events_.Message(FromWindows1252(entry));
  handling_ = false;
  if (!handled && connection == connection_) lstReceive_.push_front(std::move(entry));
}

void Link::Interrupt() {
  if (tmrNetTimeOut_->Enabled() || tmrLeave_->Enabled()) return;
  tmrNetTimeOut_->setEnabled(true);
  interrupted_ = true;
  events_.Interrupted(true);
}

void Link::WinSockError(int number, const std::string& description) {
  const bool leaving = tmrLeave_->Enabled();
  CloseConnection();
  if (!leaving) events_.Failed(number, description);
}

}  // namespace kv
