// The line between the two programs: bytes are cut anywhere and come as late as it is told, in order; it can
// stand still for a while, or break for good.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>

#include "platform/Random.h"
#include "platform/TcpSocket.h"
#include "vantri-interleave/Timeline.h"

namespace kv::interleave {

class WireSocket;

class Wire {
 public:
  Wire(Timeline& timeline, Random& chance) : timeline_(timeline), chance_(chance) {}

  int mostDelay = 2;  // milliseconds
  /// Hears what is sent and what arrives; may be empty.
  std::function<void(int seat, bool sent, std::string_view bytes)> tap;
  /// For so long nothing comes through; it comes afterwards.
  void Stall(int milliseconds);
  /// The connection breaks: each end sees it after a delay of its own.
  void Break();
  [[nodiscard]] bool stalled() const { return timeline_.now() < stalledUntil_; }
  /// How often a connection broke that neither side had closed.
  [[nodiscard]] int breaks() const { return breaks_; }

 private:
  friend class WireSocket;
  [[nodiscard]] int Delay();
  [[nodiscard]] std::size_t Piece();

  Timeline& timeline_;
  Random& chance_;
  std::array<WireSocket*, 2> ends_{};
  std::int64_t stalledUntil_ = 0;
  int breaks_ = 0;
};

class WireSocket final : public TcpSocket {
 public:
  /// `seat`: 0 listens, 1 connects.
  WireSocket(Wire& wire, SideScheduler& side, int seat);
  ~WireSocket() override;

  void setRemoteHost(const std::string&) override {}
  void setRemotePort(int) override {}
  void setLocalPort(int) override {}
  [[nodiscard]] std::string RemoteHost() const override { return "10.0.0.1"; }
  [[nodiscard]] int LocalPort() const override { return 6000; }
  [[nodiscard]] std::string LocalIP() const override { return "10.0.0.1"; }
  void Bind(int, const std::string&) override {}
  void Listen() override { state_ = Status::Listening; }
  void Connect() override;
  void Accept() override;
  void SendData(std::string_view bytes) override;
  [[nodiscard]] std::string GetData() override { return std::exchange(arrived_, {}); }
  void Close() override;
  [[nodiscard]] Status State() const override { return state_; }

 private:
  friend class Wire;
  /// What belongs to one connection and no later one.
  struct Pipe {};

  [[nodiscard]] WireSocket* peer() const { return wire_.ends_.at(seat_ == 0 ? 1 : 0); }
  /// At the other end of the present connection, behind everything that was sent before.
  void Via(std::function<void(WireSocket& peer)> act);

  Wire& wire_;
  SideScheduler& side_;
  int seat_;
  Status state_ = Status::Closed;
  std::shared_ptr<Pipe> pipe_;
  std::shared_ptr<Pipe> request_;
  std::string arrived_;
  std::int64_t due_ = 0;  // when the last piece arrives
};

}  // namespace kv::interleave
