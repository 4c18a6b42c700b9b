// A network game as one of its two programs sees it: what the peer's messages mean, the chat log, and what is
// booked when a game ends before its time. It knows screens only through small interfaces, and trusts nothing
// that the peer sends: what makes no sense at the moment it arrives changes nothing.
#pragma once

#include <string>

#include "network/ChatLog.h"
#include "network/Link.h"
#include "network/Message.h"
#include "network/NetworkServices.h"
#include "network/OwnSide.h"

namespace kv {

class NetworkGame final : public MatchNetwork {
 public:
  NetworkGame(const NetworkServices& services, TcpSocket& socket);
  NetworkGame(NetworkGame&&) = delete;

  /// A fresh network game: nothing is connected, this side hosts, the log holds the help text. All three must
  /// outlive what follows, up to the next call.
  void Begin(clsPlayer& player, clsGame& game, MatchBooking& booking);

  // --- The screens, while they are open; none of them is owned ---------------------------------------------
  void LobbyOpened(LobbyView& lobby);
  void CardsOpened(WagerView& cards) { side_.cards = &cards; }
  /// Tells the engine what the peer has said of the first starter meanwhile.
  void MatchOpened(MatchEngine& match);
  void ScreensClosed();

  // --- What the lobby does ---------------------------------------------------------------------------------
  void setHosting(bool hosting) { hosting_ = hosting; }
  /// Listens or connects, by the side this is.
  void Open(int port, const std::string& remoteHost);
  /// Closes what is open; from now on this address of the machine is used.
  void Bind(int port, const std::string& address);
  [[nodiscard]] std::string LocalAddress() const { return link_.tcpSock().LocalIP(); }
  [[nodiscard]] bool connected() const { return link_.connected(); }
  /// False once the peer's version has turned out to be another one.
  [[nodiscard]] bool versionMatches() const { return peer_.versionMatches; }
  /// The game mode of the matches to come.
  [[nodiscard]] bool arcade() const { return arcade_; }
  /// Switches it, says so in the log and, on the host, tells the peer. Forgets that the peer was ready.
  void ToggleMode();
  /// Tells the peer that this side is ready: the chat notice and "[Play]".
  void PressStart();
  /// Sets the match record up for the mode; the card screen comes next.
  void PrepareMatch();
  /// The lobby is shown while connected: both sides see this player's statistics.
  void TellStats();
  void SendStats() { NetSend("[Chat]" + StatsLine()); }
  /// The lobby is left for the main menu by its title bar.
  void LeaveLobby();

  [[nodiscard]] const std::string& chatLog() const { return chat_.text(); }
  /// "[name: 100 credits, 3 wins, 2 losses, 0 disconnects]".
  [[nodiscard]] std::string StatsLine() const;
  [[nodiscard]] const Link& link() const { return link_; }
  /// Where this side is, and what it knows of the peer.
  [[nodiscard]] Place place() const { return side_.place(); }
  [[nodiscard]] const PeerPlace& peer() const { return peer_; }

  /// One entry of the incoming queue. False: not yet, hand it over again on a later tick.
  [[nodiscard]] bool ProcessMessage(const std::string& entry);

  // --- What the screens of a match do ----------------------------------------------------------------------
  void NetSend(const std::string& message) override;
  [[nodiscard]] bool hosting() const override { return hosting_; }
  [[nodiscard]] bool peerReady() const override { return peer_.Ready(place()); }
  void SetDecided() override { peer_.OwnSetDecided(); }
  void startTurnRepeat() override { link_.StartTurnRepeat(); }
  void AddChatLine(const std::string& line) override { chat_.AddLine(line); }
  void SubmitChat(const std::string& line) override;
  void MirrorChat(ChatMirror mirror) override { chat_.setMirror(std::move(mirror)); }

 private:
  /// What a message does; one specialization for each. False when it makes no sense after all.
  template <typename Kind>
  bool Handle(const Kind& message);
  [[nodiscard]] Course CourseOf(const Message& message);

  void PeerIsInLobby();
  void SendHello();
  void Interrupted(bool interrupted);
  void ConnectionFailed(int number, const std::string& description);
  void Leave();
  void StartFresh();

  NetworkServices services_;
  Link link_;
  OwnSide side_;
  bool hosting_ = true;
  bool arcade_ = false;
  PeerPlace peer_;
  ChatLog chat_;
};

}  // namespace kv
