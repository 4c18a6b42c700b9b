// Sockets of a network that exists only in the test: connections between them carry bytes on the test's own
// clock, cut anywhere and as late as the test wants.
//
//   LoopbackNet net(scheduler);
//   LoopbackSocket host(net, "10.0.0.1"), guest(net, "10.0.0.2");
#pragma once

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/Random.h"
#include "platform/TcpSocket.h"
#include "support/HandScheduler.h"

namespace kv::test {

class LoopbackSocket;

class LoopbackNet {
 public:
  explicit LoopbackNet(HandScheduler& schedule) : scheduler(schedule) {}

  HandScheduler& scheduler;
  Random* chance = nullptr;  // cuts and delays come from it; without it nothing is cut
  int mostDelay = 1;         // milliseconds
  std::vector<LoopbackSocket*> sockets;
  std::function<void(const std::string& from, std::string_view bytes)> tap;  // hears what is sent

  [[nodiscard]] int Delay() const {
    return chance == nullptr ? mostDelay : 1 + static_cast<int>(chance->Rnd() * mostDelay);
  }
};

class LoopbackSocket final : public TcpSocket {
 public:
  LoopbackSocket(LoopbackNet& net, std::string address) : net_(net), address_(std::move(address)) {
    net_.sockets.push_back(this);
  }
  ~LoopbackSocket() override {
    std::erase(net_.sockets, this);
    Close();
  }

  void setRemoteHost(const std::string& host) override { remoteHost_ = host; }
  void setRemotePort(int port) override { remotePort_ = port; }
  void setLocalPort(int port) override { localPort_ = port; }
  [[nodiscard]] std::string RemoteHost() const override { return remoteHost_; }
  [[nodiscard]] int LocalPort() const override { return localPort_; }
  void Bind(int localPort, const std::string& localIP) override {
    localPort_ = localPort;
    address_ = localIP;
  }
  [[nodiscard]] std::string LocalIP() const override { return address_; }
  [[nodiscard]] Status State() const override { return state_; }

  void Listen() override { state_ = Status::Listening; }
  void Connect() override {
    state_ = Status::Connecting;
    Later([this] {
      if (state_ != Status::Connecting) return;
      for (LoopbackSocket* host : net_.sockets) {
        const bool there = host->address_ == remoteHost_ && host->localPort_ == remotePort_;
        if (!there || host->state_ != Status::Listening) continue;
        auto pipe = std::make_shared<Pipe>();
        pipe_ = host->request_ = pipe;
        pipe->ends = {this, host};
        host->ConnectionRequest();
        return;
      }
      state_ = Status::Failed;
      Error(10061, "Connection refused");
    });
  }
  void Accept() override {
    pipe_ = std::exchange(request_, {});
    state_ = Status::Connected;
    LoopbackSocket* guest = pipe_->ends[0];
    guest->state_ = Status::Connected;
    Via(pipe_, [](LoopbackSocket& peer) { peer.Connected(); });  // before anything that is sent
  }
  void SendData(std::string_view bytes) override {
    sent += bytes;
    if (net_.tap) net_.tap(address_, bytes);
    while (!bytes.empty()) {
      const std::size_t size =
          net_.chance == nullptr ? bytes.size() : 1 + static_cast<std::size_t>(net_.chance->Rnd() * 12);
      Deliver(std::string(bytes.substr(0, size)));
      bytes.remove_prefix(std::min(size, bytes.size()));
    }
  }
  [[nodiscard]] std::string GetData() override { return std::exchange(arrived_, {}); }
  void Close() override {
    state_ = Status::Closed;
    if (pipe_ == nullptr) return;
    const std::shared_ptr<Pipe> pipe = std::exchange(pipe_, {});
    Via(pipe, [](LoopbackSocket& peer) { peer.state_ = Status::Closing; });
  }
  /// Bytes that nobody asked for, as if the peer had sent them.
  void Receive(const std::string& bytes) {
    arrived_ += bytes;
    DataArrival();
  }

  std::string sent;  // everything, in the order in which it was sent

 private:
  struct Pipe {
    std::array<LoopbackSocket*, 2> ends{};
  };

  void Later(std::function<void()> call) { net_.scheduler.At(net_.Delay(), std::move(call)); }
  /// To the other end of the pipe, after everything that was sent before.
  void Via(const std::shared_ptr<Pipe>& pipe, std::function<void(LoopbackSocket&)> act) {
    LoopbackSocket* peer = pipe->ends[0] == this ? pipe->ends[1] : pipe->ends[0];
    const int now = static_cast<int>(net_.scheduler.timeGetTime());
    due_ = std::max(due_, now + net_.Delay());
    net_.scheduler.At(due_ - now, [pipe, peer, act = std::move(act), &net = net_] {
      const bool alive = std::find(net.sockets.begin(), net.sockets.end(), peer) != net.sockets.end();
      if (alive && peer->pipe_ == pipe) act(*peer);
    });
  }
  void Deliver(std::string piece) {
    Via(pipe_, [piece = std::move(piece)](LoopbackSocket& peer) { peer.Receive(piece); });
  }

  LoopbackNet& net_;
  std::string address_;
  std::string remoteHost_;
  int remotePort_ = 0;
  int localPort_ = 0;
  Status state_ = Status::Closed;
  std::shared_ptr<Pipe> pipe_;
  std::shared_ptr<Pipe> request_;
  std::string arrived_;
  int due_ = 0;  // when the last piece arrives
};

}  // namespace kv::test
