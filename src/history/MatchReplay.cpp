#include "history/MatchReplay.h"

#include <utility>

#include "ai/HandSearch.h"
#include "history/ReplayScript.h"
#include "match/MatchEngine.h"
#include "match/clsGame.h"
#include "platform/Dialogs.h"

namespace kv {
namespace {

// The turn modes in which the engine asks no chance who begins.
constexpr int kPlayerBegins = 1;
constexpr int kOpponentBegins = 3;

clsGame GameOf(const MatchRecord& record) {
  clsGame game;
  game.OppName = record.opponent;
  game.Wager = record.stake;
  const auto hand = [](const RecordedHand& codes) {
    auto made = std::make_shared<clsDeckArray>();
    for (int slot = 1; slot <= kHandSize; ++slot) {
      made->setValue(slot, codes.at(static_cast<std::size_t>(slot) - 1));
    }
    return made;
  };
  game.SideDeck = hand(record.hands[0]);
  game.CompDeck = hand(record.hands[1]);
  return game;
}

MatchOptions OptionsOf(const MatchRecord& record) {
  MatchOptions options;
  const bool player = record.sets.empty() || record.sets.front().starts == Seat::Player;
  options.turnMode = player ? kPlayerBegins : kOpponentBegins;
  return options;
}

/// Screen, book, chance and both sides of the engine, all of them from the script.
class Replayer final : public MatchView,
                       public MatchBooking,
                       public MatchObserver,
                       public Dialogs,
                       private ReplayActions {
 public:
  Replayer(const MatchRecord& record, const ReplayWatch& watch)
      : record_(record),
        watch_(watch),
        script_(record),
        game_(GameOf(record)),
        sides_{ScriptedSide(Seat::Player, script_, *this), ScriptedSide(Seat::Opponent, script_, *this)},
        engine_(game_, OptionsOf(record), *this, network_, *this, *this, script_) {
    game_.AI = std::shared_ptr<Strategy>(std::shared_ptr<Strategy>(), &sides_[1]);
    engine_.person().setStrategy(&sides_[0]);
    engine_.setObserver(this);
  }

  bool Play() {
    if (!record_.sets.empty()) {
      engine_.Activate();
      while (!script_.stopped() && Advance()) continue;
    }
    const bool undecided = record_.ending == MatchEnding::ThreeSets && decided_ != record_.winner;
    if (undecided || (!record_.sets.empty() && script_.left())) script_.Fail();
    if (!script_.failed()) TellEnding();
    return !script_.failed();
  }

  void TableChanged(Seat, int) override {}
  void HandChanged(Seat, int) override {}
  void SetWinAdded(Seat) override {}
  void ControlsChanged() override {}
  void LightsChanged() override {}
  void BannerChanged() override {}
  void RunTimer(MatchTimer timer, bool run) override {
    if (timer == MatchTimer::Game) timerRuns_ = run;
  }
  void PlaySound(std::string_view) override {}
  bool Pause(int) override {
    Flip();
    return true;
  }
  void Leave() override {}
  void SaveWin() override { game_.Wager = -1; }
  void SaveLoss() override { game_.Wager = -1; }
  void Message(const std::string&, const std::string&, DialogIcon) override {}
  bool AskYesNo(const std::string&, const std::string&, DialogIcon) override { return false; }
  std::optional<std::string> AskText(const std::string&, const std::string&, const std::string&) override {
    return {};
  }

  void Happened(const MatchEvent& event) override {
    if (script_.stopped() || std::holds_alternative<event::Booked>(event)) return;
    if (const auto* decided = std::get_if<event::MatchDecided>(&event)) {
      decided_ = decided->winner;
    } else if (script_.Take(event)) {
      Tell(event);
    }
  }

 private:
  /// One tick, or the next set; false when there is nothing more to do.
  bool Advance() {
    Flip();
    if (script_.atEnd()) return false;
    if (timerRuns_) {
      engine_.GameTick();
      return true;
    }
    if (!engine_.shown().banner.visible || game_.Wager == -1 || !script_.NextSet()) return false;
    engine_.peer().setPlayerStarts(script_.set().starts == Seat::Player);
    engine_.Continue();
    return true;
  }

  void Flip() override {
    while (const RecordedMove* move = script_.Next(MoveKind::Flip)) {
      if (!IsHandSlot(move->slot) || !move->card.hasFirstFlip() ||
          IsEmptySlot(engine_.shown().HandCard(Seat::Player, move->slot))) {
        script_.Fail();
        return;
      }
      // Written, not flipped: the buttons may be used where the engine of a replay has them disabled.
      engine_.board().hand(Seat::Player).setValue(move->slot, move->card);
      Happened(event::Flipped{move->slot, move->card});
    }
  }

  void TellEnding() {
    if (record_.ending == MatchEnding::GivenUp) Tell(event::Forfeited{record_.givenUpBy});
    if (record_.ending == MatchEnding::PeerGone) Tell(event::PeerGone{});
    if (record_.winner) Tell(event::MatchDecided{*record_.winner, record_.setWins});
    if (const auto& booking = record_.booking) {
      Tell(event::Booked{booking->result, record_.stake, booking->before, booking->after});
    }
  }
  void Tell(const MatchEvent& event) const {
    if (watch_) watch_(event, engine_.shown());
  }

  const MatchRecord& record_;
  const ReplayWatch& watch_;
  ReplayScript script_;
  clsGame game_;
  std::array<ScriptedSide, 2> sides_;
  MatchNetwork network_;
  MatchEngine engine_;
  std::optional<Seat> decided_;
  bool timerRuns_ = false;
};

}  // namespace

bool PlayAgain(const MatchRecord& record, const ReplayWatch& watch) {
  return Replayer(record, watch).Play();
}

std::vector<ReplayStep> StepsOf(const MatchRecord& record) {
  std::vector<ReplayStep> steps;
  const bool whole = PlayAgain(record, [&](const MatchEvent& event, const MatchShown& shown) {
    ReplayStep step{event, {}, {}, {}, {}};
    for (std::size_t seat = 0; seat < shown.sides.size(); ++seat) {
      const MatchSide& side = shown.sides.at(seat);
      step.tables.at(seat) = side.table;
      step.totals.at(seat) = side.total;
      step.setWins.at(seat) = side.setWins;
      for (int slot = 1; slot <= kHandSize; ++slot) {
        if (!IsEmptySlot(side.hand->Value(slot))) {
          step.hands.at(seat).at(static_cast<std::size_t>(slot) - 1) = side.hand->Value(slot);
        }
      }
    }
    steps.push_back(std::move(step));
  });
  static_cast<void>(whole);
  return steps;
}

}  // namespace kv
