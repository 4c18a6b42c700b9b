#include "vantri-interleave/Wire.h"

#include <algorithm>
#include <utility>

namespace kv::interleave {
namespace {

constexpr int kRefused = 10061;
constexpr int kReset = 10054;

}  // namespace

void Wire::Stall(int milliseconds) {
  stalledUntil_ = std::max(stalledUntil_, timeline_.now() + milliseconds);
}

void Wire::Break() {
  if (ends_[0] == nullptr || ends_[0]->pipe_ == nullptr || ends_[0]->pipe_ != ends_[1]->pipe_) return;
  ++breaks_;
  for (WireSocket* end : ends_) {
    end->side_.After(Delay(), [end, pipe = end->pipe_] {
      if (end->pipe_ != pipe) return;
      end->pipe_.reset();
      const bool connecting = end->state_ == TcpSocket::Status::Connecting;
      end->state_ = connecting ? TcpSocket::Status::Failed : TcpSocket::Status::Closing;
      if (connecting) end->Error(kReset, "Connection reset");
    });
  }
}

int Wire::Delay() {
  return 1 + static_cast<int>(chance_.Rnd() * mostDelay);
}

std::size_t Wire::Piece() {
  // Whole mostly: a cut now and then finds what cuts everywhere find.
  return chance_.Rnd() < 0.85 ? std::string::npos : 1 + static_cast<std::size_t>(chance_.Rnd() * 8);
}

WireSocket::WireSocket(Wire& wire, SideScheduler& side, int seat) : wire_(wire), side_(side), seat_(seat) {
  wire_.ends_.at(seat) = this;
}

WireSocket::~WireSocket() {
  Close();
  wire_.ends_.at(seat_) = nullptr;
}

void WireSocket::Connect() {
  state_ = Status::Connecting;
  side_.After(wire_.Delay(), [this] {
    if (state_ != Status::Connecting) return;
    WireSocket* host = peer();
    if (host == nullptr || host->state_ != Status::Listening) {
      state_ = Status::Failed;
      Error(kRefused, "Connection refused");
      return;
    }
    pipe_ = host->request_ = std::make_shared<Pipe>();
    host->side_.After(0, [host, pipe = pipe_] {
      if (host->state_ == Status::Listening && host->request_ == pipe) host->ConnectionRequest();
    });
  });
}

void WireSocket::Accept() {
  pipe_ = std::exchange(request_, {});
  if (pipe_ == nullptr) return;
  // Who asked may have hung up meanwhile.
  state_ = peer() != nullptr && peer()->pipe_ == pipe_ ? Status::Connected : Status::Closing;
  due_ = 0;
  // Before anything that is sent.
  Via([](WireSocket& guest) {
    guest.state_ = Status::Connected;
    guest.due_ = 0;
    guest.Connected();
  });
}

void WireSocket::SendData(std::string_view bytes) {
  if (pipe_ == nullptr) return;
  if (wire_.tap) wire_.tap(seat_, true, bytes);
  while (!bytes.empty()) {
    const std::string_view piece = bytes.substr(0, wire_.Piece());
    Via([text = std::string(piece)](WireSocket& to) {
      if (to.wire_.tap) to.wire_.tap(to.seat_, false, text);
      to.arrived_ += text;
      to.DataArrival();
    });
    bytes.remove_prefix(piece.size());
  }
}

void WireSocket::Close() {
  state_ = Status::Closed;
  if (pipe_ == nullptr) return;
  Via([](WireSocket& to) {
    to.pipe_.reset();
    to.state_ = Status::Closing;
  });
  pipe_.reset();
}

void WireSocket::Via(std::function<void(WireSocket& peer)> act) {
  WireSocket* to = peer();
  if (to == nullptr) return;
  const std::int64_t now = wire_.timeline_.now();
  due_ = std::max({due_, now + wire_.Delay(), wire_.stalledUntil_});
  to->side_.After(static_cast<int>(due_ - now), [to, pipe = pipe_, act = std::move(act)] {
    if (to->pipe_ == pipe) act(*to);
  });
}

}  // namespace kv::interleave
