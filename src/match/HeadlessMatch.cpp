#include "match/HeadlessMatch.h"

#include <stdexcept>

#include "match/Dealing.h"

namespace kv {
namespace {

constexpr std::int32_t kAnyStake = 10;

/// The screen, the book and the dialogs of a match that nobody watches.
class NobodyWatches final : public MatchView, public MatchBooking, public Dialogs {
 public:
  NobodyWatches(clsGame& game, const MatchObserver& observer) : game_(game), observer_(observer) {}

  HeadlessResult Play(MatchEngine& engine) {
    engine_ = &engine;
    engine.Activate();
    while (!left_) {
      if (timerRuns_) {
        engine.GameTick();
      } else if (engine.banner().visible) {
        engine.Continue();
      } else {
        throw std::logic_error("the match stands still");
      }
    }
    return result_;
  }

  void TableChanged(Seat, int) override { Observe(); }
  void HandChanged(Seat, int) override { Observe(); }
  void SetWinAdded(Seat seat) override {
    ++result_.setWins[static_cast<std::size_t>(seat)];
    Observe();
  }
  void ControlsChanged() override {}
  void LightsChanged() override {}
  void BannerChanged() override {
    const bool shown = engine_->banner().visible;
    if (shown && !bannerShown_) CountSet();
    bannerShown_ = shown;
    Observe();
  }
  void RunTimer(MatchTimer timer, bool run) override {
    if (timer == MatchTimer::Game) timerRuns_ = run;
  }
  void PlaySound(std::string_view) override {}
  bool Pause(int) override { return true; }
  void Leave() override { left_ = true; }

  void SaveWin() override { Book(Seat::Player); }
  void SaveLoss() override { Book(Seat::Opponent); }

  void Message(const std::string&, const std::string&, DialogIcon) override {}
  bool AskYesNo(const std::string&, const std::string&, DialogIcon) override { return false; }
  std::optional<std::string> AskText(const std::string&, const std::string&, const std::string&) override {
    return {};
  }

 private:
  void Observe() const {
    if (observer_) observer_(*engine_);
  }

  void Book(Seat winner) {
    result_.winner = winner;
    game_.Wager = -1;
  }

  void CountSet() {
    ++result_.sets;
    result_.ties = result_.sets - result_.setWins[0] - result_.setWins[1];
    for (const Seat seat : {Seat::Player, Seat::Opponent}) {
      if (engine_->Total(seat) > kTargetTotal) ++result_.busts[static_cast<std::size_t>(seat)];
    }
  }

  clsGame& game_;
  const MatchObserver& observer_;
  MatchEngine* engine_ = nullptr;
  HeadlessResult result_;
  bool timerRuns_ = false;
  bool bannerShown_ = false;
  bool left_ = false;
};

}  // namespace

HeadlessResult PlayHeadless(const HeadlessSetup& setup, Random& random, const MatchObserver& observer) {
  clsGame game;
  game.Wager = kAnyStake;
  game.SideDeck = DealHand(setup.playerDeck, random);
  game.CompDeck = DealHand(setup.opponentDeck, random);
  AI_SortDeck(*game.CompDeck);
  // The strategy is lent for the length of the match; the record does not own it.
  game.AI = std::shared_ptr<Strategy>(std::shared_ptr<Strategy>(), &setup.opponent);
  NobodyWatches screen(game, observer);
  MatchNetwork network;
  MatchEngine engine(game, setup.options, screen, network, screen, screen, random);
  engine.setPlayerStrategy(&setup.player);
  return screen.Play(engine);
}

}  // namespace kv
