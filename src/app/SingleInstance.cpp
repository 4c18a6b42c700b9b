#include "app/SingleInstance.h"

#include <QCryptographicHash>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QString>
#include <algorithm>

namespace kv {
namespace {

constexpr const char* kLockFile = "/.kelm-vantri.lock";
constexpr int kPatience = 250;       // milliseconds, for each of two steps
constexpr qint64 kLongestAsk = 256;  // bytes
// With it a Wayland desktop lets the window that is raised take the keys.
constexpr const char* kActivation = "XDG_ACTIVATION_TOKEN";

/// A socket's path may have a hundred bytes or so: a name from the folder's own, where such things belong.
QString AddressOf(const std::string& dataFolder) {
  const QByteArray folder = QByteArray::fromStdString(dataFolder);
  const QByteArray name = QCryptographicHash::hash(folder, QCryptographicHash::Sha1).toHex().left(16);
  QString place = qEnvironmentVariable("XDG_RUNTIME_DIR");
  if (place.isEmpty()) place = QString::fromStdString(dataFolder);
  return place + QStringLiteral("/kelm-vantri-") + QString::fromLatin1(name);
}

bool IsToken(const QByteArray& bytes) {
  return !bytes.isEmpty() &&
         std::all_of(bytes.begin(), bytes.end(), [](char c) { return c > ' ' && c < 127; });
}

}  // namespace

SingleInstance::SingleInstance(const std::string& dataFolder)
    : lock_(QString::fromStdString(dataFolder + kLockFile)),
      address_(AddressOf(dataFolder)),
      otherRuns_(false) {
  // However long a copy has been running, only the end of its process frees the folder.
  lock_.setStaleLockTime(0);
  otherRuns_ = !lock_.tryLock(0) && lock_.error() == QLockFile::LockFailedError;
}

void SingleInstance::Listen(std::function<void()> raise) {
  if (otherRuns_ || !lock_.isLocked()) return;
  raise_ = std::move(raise);
  QLocalServer::removeServer(address_);  // of a copy that was killed: the lock is ours
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
    while (QLocalSocket* socket = server_.nextPendingConnection()) {
      QObject::connect(socket, &QLocalSocket::readyRead, socket, [this, socket] { Asked(*socket); });
      QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    }
  });
  server_.listen(address_);
}

void SingleInstance::Asked(QLocalSocket& socket) {
  const QByteArray ask = socket.read(kLongestAsk).trimmed();
  socket.abort();
  if (IsToken(ask)) qputenv(kActivation, ask);
  raise_();
}

bool SingleInstance::RaiseOther() const {
  QLocalSocket socket;
  socket.connectToServer(address_);
  if (!socket.waitForConnected(kPatience)) return false;
  socket.write(qgetenv(kActivation) + '\n');
  return socket.waitForBytesWritten(kPatience);
}

}  // namespace kv
