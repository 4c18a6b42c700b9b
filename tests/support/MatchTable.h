// A match on the test's own table: named hands, named draws, a clock that jumps. One line deals a situation:
//
//   MatchTable table({.hand = {"ps3", "fp2"}, .opponentHand = {"ms-2"}, .draws = {7, 4, 10}});
//
// The table records everything the engine asks of its screen, its peer, its book and its dialogs.
#pragma once

#include <algorithm>
#include <deque>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "match/MatchEngine.h"

namespace kv::test {

/// A strategy that the test writes itself; without a script it ends every turn.
class ScriptedStrategy final : public Strategy {
 public:
  std::deque<std::function<void(AiOperations&)>> turns;
  int asked = 0;

  void AI(AiOperations& side, int, int, int, int, bool, bool) override {
    ++asked;
    if (turns.empty()) {
      side.AI_EndTurn();
      return;
    }
    const auto turn = turns.front();
    turns.pop_front();
    turn(side);
  }
};

struct Deal {
  std::vector<const char*> hand{};
  std::vector<const char*> opponentHand{};
  std::vector<int> draws{};  // main-deck cards in the order in which both sides draw them
  bool playerStarts = true;
  MatchOptions options{.turnMode = 1};
  std::string mode{kModeArcade};
  bool hosting = false;
};

class MatchTable final : public MatchView,
                         public MatchNetwork,
                         public MatchBooking,
                         public Dialogs,
                         public Random {
 public:
  explicit MatchTable(const Deal& deal) : deal_(deal), draws_(deal.draws.begin(), deal.draws.end()) {
    game.Mode = deal.mode;
    game.Wager = 10;
    game.SideDeck = Hand(deal.hand, CardCode());
    game.CompDeck = Hand(deal.opponentHand, EmptiedSlot());
    game.AI = std::shared_ptr<Strategy>(std::shared_ptr<Strategy>(), &strategy);
    if (!deal.playerStarts) deal_.options.turnMode = 3;  // any other option: the opponent begins
    engine = std::make_unique<MatchEngine>(game, deal_.options, *this, *this, *this, *this, *this);
  }

  /// Runs the timers until nothing moves any more: the player is to act, or the banner waits.
  void Run() {
    while (gameTimer) engine->GameTick();
  }
  void Start() {
    engine->Activate();
    Run();
  }
  /// The player's moves, each followed by all that happens until the player is asked again.
  void Play(int slot) {
    engine->PlayHandCard(slot);
    Run();
  }
  void EndTurn() {
    engine->EndTurn();
    Run();
  }
  void Stand() {
    engine->Stand();
    Run();
  }
  void Continue() {
    engine->Continue();
    Run();
  }
  /// Wins or loses the set at once by standing over 20 or letting the opponent stand over 20.
  void LoadTable(Seat seat, const std::vector<const char*>& codes) {
    for (const char* code : codes) engine->LoadNextCard(CardCode(code), seat == Seat::Opponent);
  }

  [[nodiscard]] std::string Cards(Seat seat) const {
    std::string text;
    for (const CardCode& card : engine->Table(seat)) text += (text.empty() ? "" : " ") + card.text();
    return text;
  }
  [[nodiscard]] bool Heard(const std::string& sound) const {
    return std::find(sounds.begin(), sounds.end(), sound) != sounds.end();
  }

  clsGame game;
  ScriptedStrategy strategy;
  std::unique_ptr<MatchEngine> engine;

  bool gameTimer = false;
  bool autoTimer = false;
  bool netTimer = false;
  bool left = false;
  bool closing = false;  // every pause ends at once with false
  bool ready = false;    // the peer's "[Play]" has arrived
  bool answer = true;    // to the forfeit question
  int booked = 0;        // +1 a win, -1 a loss, kept as a sum of bookings
  int bookings = 0;
  std::vector<std::string> sounds;
  std::vector<int> pauses;
  std::vector<std::string> sent;
  std::vector<std::string> questions;
  std::function<void()> inPause;     // runs inside every pause
  std::function<void()> inQuestion;  // runs while the forfeit question is open

  // MatchView
  void TableChanged(Seat, int) override {}
  void HandChanged(Seat, int) override {}
  void SetWinAdded(Seat) override {}
  void ControlsChanged() override {}
  void LightsChanged() override {}
  void BannerChanged() override {}
  void RunTimer(MatchTimer timer, bool run) override {
    (timer == MatchTimer::Game ? gameTimer : timer == MatchTimer::AutoDialogs ? autoTimer : netTimer) = run;
  }
  void PlaySound(std::string_view effect) override { sounds.emplace_back(effect); }
  bool Pause(int milliseconds) override {
    pauses.push_back(milliseconds);
    if (inPause) inPause();
    return !closing;
  }
  void Leave() override { left = true; }
  // MatchNetwork
  void NetSend(const std::string& message) override { sent.push_back(message); }
  bool hosting() const override { return deal_.hosting; }
  bool peerReady() const override { return ready; }
  void startTurnRepeat() override { sent.emplace_back("(repeat)"); }
  // MatchBooking
  void SaveWin() override { Book(1); }
  void SaveLoss() override { Book(-1); }
  // Dialogs
  void Message(const std::string&, const std::string&, DialogIcon) override {}
  bool AskYesNo(const std::string& text, const std::string& title, DialogIcon icon) override {
    questions.push_back(title + "|" + text + (icon == DialogIcon::Exclamation ? "|!" : "|"));
    if (inQuestion) inQuestion();
    return answer;
  }
  std::optional<std::string> AskText(const std::string&, const std::string&, const std::string&) override {
    return {};
  }
  // Random: the starter first where it is drawn, then the named cards
  void Randomize() override {}
  double Rnd() override {
    if (draws_.empty()) throw std::logic_error("the test named too few draws");
    const int card = draws_.front();
    draws_.pop_front();
    return (card - 0.5) / 10.0;
  }

 private:
  static std::shared_ptr<clsDeckArray> Hand(const std::vector<const char*>& codes, const CardCode& none) {
    auto hand = std::make_shared<clsDeckArray>();
    for (int slot = 1; slot <= kHandSize; ++slot) {
      const auto index = static_cast<std::size_t>(slot) - 1;
      hand->setValue(slot, index < codes.size() ? CardCode(codes[index]) : none);
    }
    return hand;
  }
  void Book(int result) {
    booked += result;
    ++bookings;
    game.Wager = -1;
  }

  Deal deal_;
  std::deque<int> draws_;
};

}  // namespace kv::test
