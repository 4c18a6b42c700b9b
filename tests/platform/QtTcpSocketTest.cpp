// The socket over real TCP, between two addresses of the loop-back range.
#include <gtest/gtest.h>

#include <QTest>

#include "platform/QtTcpSocket.h"

namespace kv {
namespace {

using Status = TcpSocket::Status;

class QtTcpSocketTest : public testing::Test {
 protected:
  QtTcpSocketTest() {
    host.Bind(kPort, "127.0.0.1");
    guest.Bind(kPort, "127.0.0.2");
    for (QtTcpSocket* socket : {&host, &guest}) {
      socket->setRemoteHost("127.0.0.1");
      socket->setRemotePort(kPort);
      socket->Error = [this](int number, const std::string&) { errors.push_back(number); };
      socket->Connected = [] {};
    }
    host.ConnectionRequest = [this] {
      if (host.State() != Status::Closed) host.Close();  // as the link does: the request is not lost
      host.Accept();
    };
    host.DataArrival = [this] { heard += host.GetData(); };
    guest.DataArrival = [this] { static_cast<void>(guest.GetData()); };
  }
  void Connect() {
    host.Listen();
    guest.Connect();
    ASSERT_TRUE(QTest::qWaitFor(
        [this] { return host.State() == Status::Connected && guest.State() == Status::Connected; }));
  }

  static constexpr int kPort = 46117;
  QtTcpSocket host;
  QtTcpSocket guest;
  std::string heard;
  std::vector<int> errors;
};

TEST_F(QtTcpSocketTest, CarriesBytesBothWaysAndIsUsedAgain) {
  for (int time = 0; time < 3; ++time) {
    heard.clear();
    Connect();
    EXPECT_EQ(host.LocalIP(), "127.0.0.1");
    EXPECT_EQ(guest.LocalIP(), "127.0.0.2");
    guest.SendData("[Quit]\x87");
    guest.Close();  // what was sent still arrives
    EXPECT_EQ(guest.State(), Status::Closed);
    ASSERT_TRUE(QTest::qWaitFor([this] { return host.State() == Status::Closing; }));
    EXPECT_EQ(heard, "[Quit]\x87");
    host.Close();
    EXPECT_EQ(host.State(), Status::Closed);
  }
  EXPECT_TRUE(errors.empty());
}

TEST_F(QtTcpSocketTest, TellsWhatCannotBeDone) {
  guest.Connect();
  ASSERT_TRUE(QTest::qWaitFor([this] { return !errors.empty(); }));
  EXPECT_EQ(errors.back(), 10061);
  EXPECT_EQ(guest.State(), Status::Failed);
  guest.Close();
  host.Listen();
  QtTcpSocket second;
  second.Error = [this](int number, const std::string&) { errors.push_back(number); };
  second.Bind(kPort, "127.0.0.1");
  second.Listen();
  EXPECT_EQ(second.State(), Status::Failed);
  EXPECT_EQ(errors.size(), 1u) << "no event inside the call";
  ASSERT_TRUE(QTest::qWaitFor([this] { return errors.size() == 2; }));
  EXPECT_EQ(errors.back(), 10048);
  second.Listen();
  second.Close();
  QTest::qWait(20);
  EXPECT_EQ(errors.size(), 2u) << "an event that is under way is dropped";
}

TEST_F(QtTcpSocketTest, ConnectsFromAnotherPortWhereItsOwnIsStillHeld) {
  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress("127.0.0.1"), kPort));
  guest.Connect();
  ASSERT_TRUE(QTest::qWaitFor([this] { return guest.State() == Status::Connected; }));
  QtTcpSocket again;
  again.Error = [this](int number, const std::string&) { errors.push_back(number); };
  again.Bind(kPort, "127.0.0.2");
  again.setRemoteHost("127.0.0.1");
  again.setRemotePort(kPort);
  again.Connect();
  EXPECT_TRUE(QTest::qWaitFor([&] { return again.State() == Status::Connected; }));
  EXPECT_TRUE(errors.empty());
}

TEST_F(QtTcpSocketTest, APeerThatNeverReadsDoesNotHoldAClosedConnection) {
  QTcpSocket deaf;
  deaf.setReadBufferSize(1);
  host.Listen();
  deaf.connectToHost(QStringLiteral("127.0.0.1"), kPort);
  ASSERT_TRUE(QTest::qWaitFor([this] { return host.State() == Status::Connected; }));
  const std::string much(1 << 20, 'x');
  constexpr qint64 kSent = 64 << 20;
  for (qint64 sent = 0; sent < kSent; sent += 1 << 20) host.SendData(much);
  host.Close();
  QTest::qWait(1200);
  qint64 read = 0;
  deaf.setReadBufferSize(0);
  const auto ended = [&] {
    read += deaf.readAll().size();
    return deaf.state() == QAbstractSocket::UnconnectedState;
  };
  EXPECT_TRUE(QTest::qWaitFor(ended));
  EXPECT_LT(read + deaf.readAll().size(), kSent) << "given up";
}

TEST_F(QtTcpSocketTest, ConnectsFromAnotherPortWhenItsOwnIsTheHosts) {
  host.Bind(kPort, "");
  guest.Bind(kPort, "");
  guest.Error = [this](int number, const std::string&) {
    errors.push_back(number);
    guest.Close();  // as the link does
  };
  Connect();
  host.Close();
  ASSERT_TRUE(QTest::qWaitFor([this] { return guest.State() != Status::Connected; }));
  EXPECT_EQ(guest.State(), Status::Closing) << "a lost line is told by the state, not as the port of before";
  EXPECT_TRUE(errors.empty());
}

TEST_F(QtTcpSocketTest, TakesOneConnectionAtATime) {
  Connect();
  QtTcpSocket third;
  third.Error = [this](int number, const std::string&) { errors.push_back(number); };
  third.Connected = [this] { errors.push_back(-1); };
  third.setRemoteHost("127.0.0.1");
  third.setRemotePort(kPort);
  third.Connect();
  ASSERT_TRUE(QTest::qWaitFor([this] { return !errors.empty(); }));
  EXPECT_EQ(errors.back(), 10061);
  EXPECT_EQ(host.State(), Status::Connected);
}

TEST(LocalAddresses, HaveTheLoopback) {
  const auto addresses = LocalIPv4Addresses();
  EXPECT_NE(std::find(addresses.begin(), addresses.end(), "127.0.0.1"), addresses.end());
}

}  // namespace
}  // namespace kv
