// One TCP socket object that listens, accepts, connects, sends and receives, with events. It is closed and
// used again, and carries bytes: what they mean is not its business. The real form is QtTcpSocket.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace kv {

class TcpSocket {
 public:
  enum class Status : std::uint8_t {
    Closed = 0,
    Listening = 2,
    Connecting = 6,
    Connected = 7,
    Closing = 8,  // the peer has gone
    Failed = 9,
  };

  virtual ~TcpSocket() = default;

  // Events, on the user-interface thread and never inside a call of this object: whoever calls need not fear
  // that it is gone afterwards. A handler may close the socket and may take as long as it likes.
  std::function<void()> ConnectionRequest;  // somebody asks to be accepted
  std::function<void()> Connected;
  std::function<void()> DataArrival;  // GetData has something
  std::function<void(int number, const std::string& description)> Error;

  /// For the next Listen or Connect; ports are 1 to 65535. LocalPort is also the one to connect from, where
  /// the system allows it.
  virtual void setRemoteHost(const std::string& host) = 0;
  virtual void setRemotePort(int port) = 0;
  virtual void setLocalPort(int port) = 0;
  [[nodiscard]] virtual std::string RemoteHost() const = 0;
  [[nodiscard]] virtual int LocalPort() const = 0;

  /// Waits for one connection. A failure is an Error event.
  virtual void Listen() = 0;
  virtual void Connect() = 0;
  /// Takes the connection that was asked for; closing meanwhile does not lose it. The socket then no longer
  /// listens.
  virtual void Accept() = 0;
  /// From now on this local address and port are used.
  virtual void Bind(int localPort, const std::string& localIP) = 0;
  virtual void SendData(std::string_view bytes) = 0;
  /// All bytes that have arrived since the last call.
  [[nodiscard]] virtual std::string GetData() = 0;
  /// What was sent still goes out, unless the peer takes longer than a second to read it. Never waits. Safe
  /// in any state; an event that is under way is dropped.
  virtual void Close() = 0;
  [[nodiscard]] virtual Status State() const = 0;
  /// The address in use, or the first of the machine's own.
  [[nodiscard]] virtual std::string LocalIP() const = 0;
};

}  // namespace kv
