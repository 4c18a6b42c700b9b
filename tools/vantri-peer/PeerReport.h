// What the peer says on the console: a line for each match on standard output, everything else on standard
// error. As a person's stand-in it answers every question with yes.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "match/MatchPartners.h"
#include "match/clsGame.h"
#include "platform/Dialogs.h"
#include "platform/Scheduler.h"
#include "profile/PlayerFields.h"

namespace kv {

class PeerReport final : public Dialogs {
 public:
  /// All must outlive it. A line of the chat is written only when `chat` is set.
  PeerReport(const Scheduler& scheduler, const PlayerFields& player, bool chat)
      : scheduler_(scheduler), player_(player), chat_(chat) {}

  // A text that repeats the last one is not said again.
  void Message(const std::string& text, const std::string& title, DialogIcon icon) override;
  bool AskYesNo(const std::string&, const std::string&, DialogIcon) override { return true; }
  std::optional<std::string> AskText(const std::string&, const std::string&, const std::string&) override {
    return {};
  }
  void Note(const std::string& text);
  /// What went over the line, in bytes of the wire: one line for each message.
  void Trace(bool sent, std::string_view bytes) const;
  /// The whole chat log as it stands: what is new in it is looked at. A message that this side refused
  /// counts.
  void Chat(const std::string& log);

  /// The match begins: its cards are being chosen.
  void MatchBegins();
  /// It is booked. `sets` are this side's and the peer's.
  void MatchBooked(bool won, int ownSets, int peerSets, std::int32_t stake);
  /// It may have ended without a booking.
  void MatchLeft(bool underWay);
  /// How many matches were booked, and what is to be said of all of them.
  [[nodiscard]] int booked() const { return booked_; }
  void Summary();

 private:
  [[nodiscard]] std::size_t Known(const std::string& log) const;
  [[nodiscard]] std::string Credits() const;

  const Scheduler& scheduler_;
  const PlayerFields& player_;
  bool chat_;
  std::string lastMessage_;
  std::string lastLog_;
  int booked_ = 0;
  int won_ = 0;
  int refused_ = 0;
  bool open_ = false;
  std::int32_t creditsBefore_ = 0;
  std::uint32_t matchSince_ = 0;  // milliseconds of the scheduler's clock
  std::optional<std::uint32_t> since_;
};

/// Books as the program does, and tells `report`.
class PeerBooking final : public MatchBooking {
 public:
  using Sets = std::function<int(bool own)>;
  /// All must outlive it. `sets` gives the won sets of the open match.
  PeerBooking(MatchBooking& book, const clsGame& game, PeerReport& report, Sets sets)
      : book_(book), game_(game), report_(report), sets_(std::move(sets)) {}
  void SaveWin() override { Save(true); }
  void SaveLoss() override { Save(false); }
  void TurnLossIntoWin() override { book_.TurnLossIntoWin(); }

 private:
  void Save(bool won);

  MatchBooking& book_;
  const clsGame& game_;
  PeerReport& report_;
  Sets sets_;
};

}  // namespace kv
