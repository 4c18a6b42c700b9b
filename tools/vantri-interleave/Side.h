// One of the two programs without its windows: the network game, its three places, and the person in front of
// it as far as boxes go. It notes what was booked; what it should have been is not its business.
#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "campaign/modSaveWin.h"
#include "match/MatchView.h"
#include "network/NetworkGame.h"
#include "presentation/Navigator.h"
#include "profile/clsPlayer.h"
#include "vantri-interleave/Rooms.h"
#include "vantri-interleave/Wire.h"

namespace kv::interleave {

enum class Where : std::uint8_t { Menu, Lobby, Cards, Match, Ended };

enum class Outcome : std::uint8_t { Open, Win, Loss, Half, Withdrawn };
[[nodiscard]] const char* Name(Outcome outcome);

/// A settled stake and what became of it.
struct Stake {
  int number;  // the same on both sides for the same match
  std::int32_t amount;
  Outcome outcome = Outcome::Open;
  bool gaveUp = false;  // this side's person left or forfeited before it was back in the lobby
};

/// How the person answers the next boxes.
struct Answering {
  int milliseconds = 0;  // how long a box stays open
  bool yes = false;
};

/// What two sides share: numbers of matches.
struct Shared {
  int lastMatch = 0;
};

class Side final : public Navigator, public Dialogs {
 public:
  Side(Timeline& timeline, Wire& wire, Shared& shared, int seat, std::uint64_t seed);
  ~Side() override;
  Side(const Side&) = delete;
  Side& operator=(const Side&) = delete;

  [[nodiscard]] int seat() const { return seat_; }
  [[nodiscard]] Where where() const { return where_; }
  /// The place that is open, by its kind; null elsewhere.
  [[nodiscard]] LobbyRoom* lobby() { return where_ == Where::Lobby ? lobby_.get() : nullptr; }
  [[nodiscard]] CardRoom* cards() { return where_ == Where::Cards ? cards_.get() : nullptr; }
  [[nodiscard]] MatchRoom* match() { return where_ == Where::Match ? match_.get() : nullptr; }
  [[nodiscard]] NetworkGame& network() { return network_; }
  [[nodiscard]] clsGame& game() { return *game_; }
  [[nodiscard]] clsPlayer& player() { return player_; }
  [[nodiscard]] WireSocket& socket() { return socket_; }
  [[nodiscard]] SideScheduler& scheduler() { return scheduler_; }
  /// The person can press something: no box is open, the screen is neither locked nor being left.
  [[nodiscard]] bool free() const { return boxes_ == 0 && !locked_ && (!leaving_ || where_ == Where::Ended); }
  [[nodiscard]] int boxes() const { return boxes_; }

  void EnterNetwork();
  /// What the person says in the chat, commands included.
  void Say(const std::string& line);
  /// Marks an open stake as given up by the person.
  void GivesUp();

  /// To be called behind every event: notes settled stakes and their ends, buries closed places.
  void Note();

  Answering answering;
  int failSaves = 0;  // so many saves to come fail
  const std::string* log = nullptr;

  [[nodiscard]] const std::vector<Stake>& stakes() const { return stakes_; }
  [[nodiscard]] bool stakeOpen() const { return !stakes_.empty() && stakes_.back().outcome == Outcome::Open; }
  /// The titles of all boxes shown, in order.
  [[nodiscard]] const std::vector<std::string>& told() const { return told_; }
  /// A chat line of this program's own that reports a message it could not make sense of; empty for none.
  [[nodiscard]] std::string Complaint() const;
  /// What the record should hold, by the stakes and their ends.
  struct Account {
    std::int64_t credits;
    int wins;
    int losses;
    int disconnects;
    friend bool operator==(const Account&, const Account&) = default;
  };
  [[nodiscard]] Account Expected() const;
  [[nodiscard]] Account Held() const;

  // Navigator
  void OpenCards() override;
  void OpenLobby() override;
  void OpenMatch() override;
  void OpenMenu() override;
  void LeaveMatch() override { OpenLobby(); }
  void EndProgram() override;
  void EndProgramSoon() override;
  void OpenSplash() override {}
  void PlayerLoaded(std::unique_ptr<clsPlayer>) override {}
  void OpenOptions() override {}
  void OpenCampaign() override {}
  void OpenPortraits(PortraitCaller&) override {}
  void ClosePortraits() override {}
  void NewGame(std::string_view) override {}
  void ReloadCards() override {}

  // Dialogs
  void Message(const std::string& text, const std::string& title, DialogIcon icon) override;
  [[nodiscard]] bool AskYesNo(const std::string& text, const std::string& title, DialogIcon icon) override;
  [[nodiscard]] std::optional<std::string> AskText(const std::string&, const std::string&,
                                                   const std::string&) override {
    return {};
  }

 private:
  [[nodiscard]] NetworkServices Services();
  [[nodiscard]] RoomServices Room();
  void CloseCurrent();
  void Bury();
  void Reverse();

  int seat_;
  Shared& shared_;
  Fiber fiber_;
  Timeline& timeline_;
  SideScheduler scheduler_;
  SeededRandom random_;
  clsPlayer player_;
  Account start_{};
  int traded_ = 0;
  bool proposed_ = false;  // a proposal of this side's was open behind the last event
  std::unique_ptr<clsGame> game_;
  std::unique_ptr<SaveBooking> booking_;
  NetworkStake networkStake_;
  WireSocket socket_;
  NetworkGame network_;
  Where where_ = Where::Menu;
  std::shared_ptr<LobbyRoom> lobby_;
  std::shared_ptr<CardRoom> cards_;
  std::shared_ptr<MatchRoom> match_;
  std::deque<std::shared_ptr<void>> retired_;  // in the order in which they may go
  std::vector<Stake> stakes_;
  std::vector<std::string> told_;
  int boxes_ = 0;
  bool locked_ = false;
  bool leaving_ = false;
};

}  // namespace kv::interleave
