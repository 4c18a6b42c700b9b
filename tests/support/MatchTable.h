// A match on the test's own table: named hands, named draws, a clock that jumps. One line deals a situation:
//
//   MatchTable table({.hand = {"ps3", "fp2"}, .opponentHand = {"ms-2"}, .draws = {7, 4, 10}});
//
// The table records everything the engine asks of its screen, its peer, its book and its dialogs.
#pragma once

#include <algorithm>
#include <array>
#include <deque>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "match/MatchEngine.h"
#include "platform/Dialogs.h"
#include "support/DealtHand.h"
#include "support/RecordingNetwork.h"
#include "support/ToldScreen.h"

namespace kv::test {

/// What a scripted opponent does in a turn.
inline void StandOpponent(AiOperations& side) {
  side.AI_Stand();
}
inline void EndOpponent(AiOperations& side) {
  side.AI_EndTurn();
}
inline void PlayFirst(AiOperations& side) {
  side.AI_PlayCard(1);
  side.AI_EndTurn();
}
inline void PlayFirstAndStand(AiOperations& side) {
  side.AI_PlayCard(1);
  side.AI_Stand();
}

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
                         public RecordingNetwork,
                         public MatchBooking,
                         public Dialogs,
                         public Random {
 public:
  explicit MatchTable(const Deal& deal) : deal_(deal), draws_(deal.draws.begin(), deal.draws.end()) {
    game.Mode = deal.mode;
    game.Wager = 10;
    game.SideDeck = DealtHand(deal.hand);
    game.CompDeck = DealtHand(deal.opponentHand, EmptiedSlot());
    host = deal.hosting;
    game.AI = std::shared_ptr<Strategy>(std::shared_ptr<Strategy>(), &strategy);
    if (!deal.playerStarts) deal_.options.turnMode = 3;  // any other option: the opponent begins
    engine = std::make_unique<MatchEngine>(game, deal_.options, *this, *this, *this, *this, *this);
  }

  /// Runs the timers until nothing moves any more: the player is to act, or the banner waits.
  void Run() {
    while (gameTimer || (quietTimer && pausesOpen == 0)) {
      if (quietTimer && pausesOpen == 0) {
        engine->pauses().QuietTick();  // the faster of the two
      } else {
        engine->GameTick();
      }
    }
  }
  void Start() {
    engine->Activate();
    Run();
  }
  /// The player's moves, each followed by all that happens until the player is asked again.
  void Play(int slot) {
    engine->person().PlayHandCard(slot);
    Run();
  }
  void EndTurn() {
    engine->person().EndTurn();
    Run();
  }
  void Stand() {
    engine->person().Stand();
    Run();
  }
  void Continue() {
    engine->Continue();
    Run();
  }
  /// The peer has come as far as this side, which goes on.
  void PeerReady() {
    ready = true;
    engine->peer().NetWaitTick();
    ready = false;
    Run();
  }
  /// The peer draws `draw`, if its turn has come, and stands.
  void PeerStands(int draw) {
    if (engine->peer().peerTurn() != PeerTurn::Theirs) return;
    engine->peer().OppDraw(draw);
    engine->peer().OppStand();
    engine->peer().AI_EndTurn();
    Run();
  }
  /// Lays cards on a table that nobody has drawn.
  void LoadTable(Seat seat, const std::vector<const char*>& codes) {
    for (const char* code : codes) engine->board().LoadNextCard(CardCode(code), seat == Seat::Opponent);
  }

  [[nodiscard]] std::string Cards(Seat seat) const {
    std::string text;
    for (const CardCode& card : engine->shown().Table(seat)) text += (text.empty() ? "" : " ") + card.text();
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
  bool quietTimer = false;
  bool left = false;
  bool closing = false;  // every pause ends at once with false
  bool answer = true;    // to the forfeit question
  int booked = 0;        // +1 a win, -1 a loss, kept as a sum of bookings
  int bookings = 0;
  int turned = 0;      // losses that were turned into wins
  int pausesOpen = 0;  // one in another
  std::vector<std::string> sounds;
  std::vector<int> pauses;
  std::vector<std::string> questions;
  ToldScreen screen;
  std::function<void()> inPause;     // runs inside every pause
  std::function<void()> inQuestion;  // runs while the forfeit question is open

  // MatchView
  void TableChanged(Seat, int) override {}
  void HandChanged(Seat, int) override {}
  void SetWinAdded(Seat) override {}
  void ControlsChanged() override { screen.TellControls(engine->shown().controls); }
  void LightsChanged() override {
    screen.TellLights(engine->shown().Light(Seat::Player), engine->shown().Light(Seat::Opponent));
  }
  void BannerChanged() override { screen.TellBanner(engine->shown().banner); }
  void RunTimer(MatchTimer timer, bool run) override {
    *std::array{&gameTimer, &autoTimer, &netTimer, &quietTimer}.at(static_cast<std::size_t>(timer)) = run;
  }
  void PlaySound(std::string_view effect) override {
    sounds.emplace_back(effect);
    screen.Tell("sound " + sounds.back());
  }
  bool Pause(int milliseconds) override {
    pauses.push_back(milliseconds);
    screen.Tell("pause " + std::to_string(milliseconds));
    ++pausesOpen;
    if (inPause) inPause();
    --pausesOpen;
    return !closing;
  }
  void Leave() override { left = true; }
  // MatchBooking
  void SaveWin() override { Book(1); }
  void SaveLoss() override { Book(-1); }
  void TurnLossIntoWin() override { ++turned; }
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
  void Book(int result) {
    booked += result;
    ++bookings;
    game.Wager = -1;
  }

  Deal deal_;
  std::deque<int> draws_;
};

}  // namespace kv::test
