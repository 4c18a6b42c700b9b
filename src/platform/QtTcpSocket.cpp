#include "platform/QtTcpSocket.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <QNetworkInterface>
#include <array>
#include <utility>

namespace kv {
namespace {

constexpr qint64 kReadBuffer = 65536;  // bytes that the toolkit holds for us; the rest waits with the peer
constexpr int kLinger = 1000;          // milliseconds for what was sent to leave a closed connection
// A peer whose cable is pulled says nothing: asked after this many seconds of silence, then again as often,
// it is given up after as many questions.
constexpr int kSilence = 20;
constexpr int kAskAgain = 5;
constexpr int kMostQuestions = 4;
constexpr int kUnanswered = 40000;  // milliseconds for the peer's system to confirm what was sent
constexpr const char* kLoopback = "127.0.0.1";

struct ErrorRow {
  QAbstractSocket::SocketError error;
  int number;
};
// The numbers by which the desktop's own socket services call these errors.
constexpr std::array<ErrorRow, 8> kErrorNumbers = {{
    {QAbstractSocket::ConnectionRefusedError, 10061},
    {QAbstractSocket::RemoteHostClosedError, 10054},
    {QAbstractSocket::HostNotFoundError, 11001},
    {QAbstractSocket::SocketAccessError, 10013},
    {QAbstractSocket::SocketTimeoutError, 10060},
    {QAbstractSocket::NetworkError, 10051},
    {QAbstractSocket::AddressInUseError, 10048},
    {QAbstractSocket::SocketAddressNotAvailableError, 10049},
}};
constexpr int kOtherError = 10050;

int NumberOf(QAbstractSocket::SocketError error) {
  for (const ErrorRow& row : kErrorNumbers) {
    if (row.error == error) return row.number;
  }
  return kOtherError;
}

/// Lets the system ask a silent peer whether it is still there. Where it cannot, only its own limits hold.
void AskWhenSilent(QTcpSocket& socket) {
  socket.setSocketOption(QAbstractSocket::KeepAliveOption, 1);
  const auto handle = static_cast<int>(socket.socketDescriptor());
  const auto set = [handle](int option, int value) {
    static_cast<void>(setsockopt(handle, IPPROTO_TCP, option, &value, sizeof(value)));
  };
  set(TCP_KEEPIDLE, kSilence);
  set(TCP_KEEPINTVL, kAskAgain);
  set(TCP_KEEPCNT, kMostQuestions);
  set(TCP_USER_TIMEOUT, kUnanswered);
}

/// The toolkit has no name of its own for a port that cannot be used to connect from.
bool MayBePort(QAbstractSocket::SocketError error) {
  return error == QAbstractSocket::UnknownSocketError || error == QAbstractSocket::AddressInUseError ||
         error == QAbstractSocket::SocketAddressNotAvailableError;
}

}  // namespace

QtTcpSocket::QtTcpSocket() {
  tmrPosted_.setSingleShot(true);
  QObject::connect(&tmrPosted_, &QTimer::timeout, &tmrPosted_, [this] { TellNext(); });
  server_.setMaxPendingConnections(1);
  QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
    if (request_ != nullptr) return;
    request_ = server_.nextPendingConnection();
    if (request_ != nullptr && ConnectionRequest) ConnectionRequest();
  });
}

QtTcpSocket::~QtTcpSocket() {
  Close();
}

QHostAddress QtTcpSocket::ListenAddress() const {
  return localIP_.empty() ? QHostAddress(QHostAddress::AnyIPv4)
                          : QHostAddress(QString::fromStdString(localIP_));
}

void QtTcpSocket::Listen() {
  failed_ = false;
  if (!server_.listen(ListenAddress(), static_cast<quint16>(localPort_))) {
    Fail(server_.serverError(), server_.errorString());
  }
}

void QtTcpSocket::Connect() {
  failed_ = false;
  Dial(localPort_);
}

void QtTcpSocket::Dial(int localPort) {
  socket_ = new QTcpSocket(&server_);
  // The port to connect from is a wish: on the host's own machine it is taken. A refusal must not count as a
  // failed connection, so nobody listens to the socket yet.
  const auto reuse = QAbstractSocket::ShareAddress | QAbstractSocket::ReuseAddressHint;
  dialledFromPort_ = localPort != 0 && socket_->bind(ListenAddress(), static_cast<quint16>(localPort), reuse);
  if (!dialledFromPort_) {
    // One that was refused a port would tell of that again whenever the line breaks.
    delete std::exchange(socket_, new QTcpSocket(&server_));
    if (!localIP_.empty()) static_cast<void>(socket_->bind(ListenAddress(), 0));
  }
  Watch();
  socket_->connectToHost(QString::fromStdString(remoteHost_), static_cast<quint16>(remotePort_),
                         QIODevice::ReadWrite, QAbstractSocket::IPv4Protocol);
}

void QtTcpSocket::Accept() {
  if (request_ == nullptr) return;
  Close();
  failed_ = false;
  socket_ = std::exchange(request_, nullptr);
  server_.close();
  Watch();
  AskWhenSilent(*socket_);
  // The peer may have spoken before it was accepted.
  Post([this] {
    if (socket_->bytesAvailable() > 0 && DataArrival) DataArrival();
  });
}

void QtTcpSocket::Watch() {
  socket_->setReadBufferSize(kReadBuffer);
  socket_->setSocketOption(QAbstractSocket::LowDelayOption, 1);
  QObject::connect(socket_, &QTcpSocket::connected, socket_, [this] {
    dialledFromPort_ = false;
    AskWhenSilent(*socket_);
    if (Connected) Connected();
  });
  QObject::connect(socket_, &QTcpSocket::readyRead, socket_, [this] {
    if (DataArrival) DataArrival();
  });
  QObject::connect(socket_, &QTcpSocket::errorOccurred, socket_,
                   [this](QAbstractSocket::SocketError error) { Failed(error); });
}

void QtTcpSocket::Failed(QAbstractSocket::SocketError error) {
  // A peer that hangs up is seen by the state; the line may only be interrupted.
  if (error == QAbstractSocket::RemoteHostClosedError) return;
  if (std::exchange(dialledFromPort_, false) && MayBePort(error)) {
    // The system still holds the port for the last connection to the same host.
    Post([this] {
      Release(std::exchange(socket_, nullptr));
      Dial(0);
    });
    return;
  }
  Fail(error, socket_->errorString());
}

void QtTcpSocket::Post(std::function<void()> event) {
  posted_.push_back(std::move(event));
  tmrPosted_.start();
}

void QtTcpSocket::TellNext() {
  if (posted_.empty()) return;
  const std::function<void()> event = std::move(posted_.front());
  posted_.pop_front();
  if (!posted_.empty()) tmrPosted_.start();
  event();
}

void QtTcpSocket::Fail(QAbstractSocket::SocketError error, const QString& description) {
  failed_ = true;
  Post([this, number = NumberOf(error), text = description.toStdString()] {
    if (Error) Error(number, text);
  });
}

void QtTcpSocket::Bind(int localPort, const std::string& localIP) {
  localPort_ = localPort;
  localIP_ = localIP;
}

void QtTcpSocket::SendData(std::string_view bytes) {
  if (State() != Status::Connected) return;
  socket_->write(bytes.data(), static_cast<qint64>(bytes.size()));
  socket_->flush();
}

std::string QtTcpSocket::GetData() {
  return socket_ == nullptr ? std::string() : socket_->readAll().toStdString();
}

void QtTcpSocket::Release(QTcpSocket* socket) {
  if (socket == nullptr) return;
  QObject::disconnect(socket, nullptr, socket, nullptr);
  if (socket->state() == QAbstractSocket::ConnectedState) {
    socket->readAll();
    QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    socket->disconnectFromHost();
    if (socket->state() != QAbstractSocket::UnconnectedState) {
      // Bytes still go out; a peer that never reads must not hold them for ever.
      auto* patience = new QTimer(socket);
      QObject::connect(patience, &QTimer::timeout, socket, &QTcpSocket::abort);
      patience->start(kLinger);
      return;
    }
  } else {
    socket->abort();
  }
  socket->deleteLater();
}

void QtTcpSocket::Close() {
  posted_.clear();
  if (request_ == nullptr) server_.close();
  Release(std::exchange(socket_, nullptr));
  failed_ = false;
}

TcpSocket::Status QtTcpSocket::State() const {
  if (failed_) return Status::Failed;
  if (socket_ == nullptr) return server_.isListening() ? Status::Listening : Status::Closed;
  switch (socket_->state()) {
    case QAbstractSocket::ConnectedState:
      return Status::Connected;
    case QAbstractSocket::UnconnectedState:
    case QAbstractSocket::ClosingState:
      return Status::Closing;
    default:
      return Status::Connecting;
  }
}

std::string QtTcpSocket::LocalIP() const {
  if (socket_ != nullptr && socket_->state() == QAbstractSocket::ConnectedState) {
    return QHostAddress(socket_->localAddress().toIPv4Address()).toString().toStdString();
  }
  if (!localIP_.empty()) return localIP_;
  for (const std::string& address : LocalIPv4Addresses()) {
    if (address != kLoopback) return address;
  }
  return kLoopback;
}

std::vector<std::string> LocalIPv4Addresses() {
  std::vector<std::string> addresses;
  for (const QHostAddress& address : QNetworkInterface::allAddresses()) {
    if (address.protocol() == QAbstractSocket::IPv4Protocol) {
      addresses.push_back(address.toString().toStdString());
    }
  }
  return addresses;
}

}  // namespace kv
