// A socket in front of another one, which greets as whatever version it is told to. It connects from
// any free port: the host it joins is often on the same machine and has the port. All else passes through,
// and can be listened to.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/TcpSocket.h"

namespace kv {

class PeerSocket final : public TcpSocket {
 public:
  /// `inner` must outlive it; its events are this one's from now on.
  PeerSocket(TcpSocket& inner, std::string version) : inner_(inner), version_(std::move(version)) {
    inner_.ConnectionRequest = [this] { ConnectionRequest(); };
    inner_.Connected = [this] { Connected(); };
    inner_.DataArrival = [this] { DataArrival(); };
    inner_.Error = [this](int number, const std::string& description) { Error(number, description); };
  }
  ~PeerSocket() override {
    inner_.ConnectionRequest = inner_.Connected = inner_.DataArrival = {};
    inner_.Error = {};
  }
  PeerSocket(const PeerSocket&) = delete;
  PeerSocket& operator=(const PeerSocket&) = delete;

  /// Told of all that goes out and comes in, as bytes of the wire; may be empty.
  std::function<void(bool sent, std::string_view bytes)> Tap;

  void setRemoteHost(const std::string& host) override { inner_.setRemoteHost(host); }
  void setRemotePort(int port) override { inner_.setRemotePort(port); }
  void setLocalPort(int port) override { localPort_ = port; }
  [[nodiscard]] std::string RemoteHost() const override { return inner_.RemoteHost(); }
  [[nodiscard]] int LocalPort() const override { return localPort_; }
  void Listen() override {
    inner_.setLocalPort(localPort_);
    inner_.Listen();
  }
  void Connect() override {
    inner_.setLocalPort(0);
    inner_.Connect();
  }
  void Accept() override { inner_.Accept(); }
  void Bind(int localPort, const std::string& localIP) override {
    localPort_ = localPort;
    inner_.Bind(localPort, localIP);
  }
  void SendData(std::string_view bytes) override {
    constexpr std::string_view kVersion = "[Vers]";
    std::string told(bytes);
    if (bytes.starts_with(kVersion)) told = std::string(kVersion) + version_ + bytes.back();
    if (Tap) Tap(true, told);
    inner_.SendData(told);
  }
  [[nodiscard]] std::string GetData() override {
    std::string bytes = inner_.GetData();
    if (Tap) Tap(false, bytes);
    return bytes;
  }
  void Close() override { inner_.Close(); }
  [[nodiscard]] Status State() const override { return inner_.State(); }
  [[nodiscard]] std::string LocalIP() const override { return inner_.LocalIP(); }

 private:
  TcpSocket& inner_;
  std::string version_;
  int localPort_ = 0;
};

}  // namespace kv
