// The socket object over the toolkit's network classes.
#pragma once

#include <QTcpServer>
#include <QTcpSocket>
#include <memory>
#include <string>
#include <vector>

#include "platform/TcpSocket.h"

namespace kv {

class QtTcpSocket final : public TcpSocket {
 public:
  QtTcpSocket();
  ~QtTcpSocket() override;

  void setRemoteHost(const std::string& host) override { remoteHost_ = host; }
  void setRemotePort(int port) override { remotePort_ = port; }
  void setLocalPort(int port) override { localPort_ = port; }
  [[nodiscard]] std::string RemoteHost() const override { return remoteHost_; }
  [[nodiscard]] int LocalPort() const override { return localPort_; }
  void Listen() override;
  void Connect() override;
  void Accept() override;
  void Bind(int localPort, const std::string& localIP) override;
  void SendData(std::string_view bytes) override;
  [[nodiscard]] std::string GetData() override;
  void Close() override;
  [[nodiscard]] Status State() const override;
  [[nodiscard]] std::string LocalIP() const override;

 private:
  /// From this port, or from any when it is 0.
  void Dial(int localPort);
  void Watch();
  void Failed(QAbstractSocket::SocketError error);
  /// Tells it in the event loop's own time, unless the socket is closed meanwhile.
  void Post(std::function<void()> event);
  void Fail(QAbstractSocket::SocketError error, const QString& description);
  [[nodiscard]] QHostAddress ListenAddress() const;
  /// Lets go of a connection; what was written to it still goes out, for a while.
  static void Release(QTcpSocket* socket);

  std::string remoteHost_;
  int remotePort_ = 0;
  int localPort_ = 0;
  std::string localIP_;  // empty until an address was chosen
  QTcpServer server_;
  QTcpSocket* socket_ = nullptr;   // children of the server; one that is let go deletes itself
  QTcpSocket* request_ = nullptr;  // asked to be accepted
  bool failed_ = false;
  bool dialledFromPort_ = false;  // connecting from a port of our own choice
  std::uint32_t uses_ = 0;        // counts closings
};

/// The machine's own IPv4 addresses in the system's order, loop-back included.
[[nodiscard]] std::vector<std::string> LocalIPv4Addresses();

}  // namespace kv
