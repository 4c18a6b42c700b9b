#include "match/HeadlessMatch.h"

#include <stdexcept>

#include "match/Dealing.h"
#include "platform/Dialogs.h"

namespace kv {
namespace {

constexpr std::int32_t kAnyStake = 10;

/// A book that nobody reads.
class NoBook final : public MatchBooking {
 public:
  explicit NoBook(clsGame& game) : game_(game) {}
  void SaveWin() override { game_.Wager = -1; }
  void SaveLoss() override { game_.Wager = -1; }

 private:
  clsGame& game_;
};

/// The screen and the dialogs of a match that nobody watches; notes who won on the way to the book.
class NobodyWatches final : public MatchView, public MatchBooking, public Dialogs {
 public:
  NobodyWatches(MatchBooking& book, const MatchWatch& watch) : book_(book), watch_(watch) {}

  HeadlessResult Play(MatchEngine& engine) {
    engine_ = &engine;
    engine.Activate();
    while (!left_) {
      if (timerRuns_) {
        engine.GameTick();
      } else if (engine.shown().banner.visible) {
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
    const bool shown = engine_->shown().banner.visible;
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

  void SaveWin() override {
    result_.winner = Seat::Player;
    book_.SaveWin();
  }
  void SaveLoss() override {
    result_.winner = Seat::Opponent;
    book_.SaveLoss();
  }

  void Message(const std::string&, const std::string&, DialogIcon) override {}
  bool AskYesNo(const std::string&, const std::string&, DialogIcon) override { return false; }
  std::optional<std::string> AskText(const std::string&, const std::string&, const std::string&) override {
    return {};
  }

 private:
  void Observe() const {
    if (watch_) watch_(*engine_);
  }

  void CountSet() {
    ++result_.sets;
    result_.ties = result_.sets - result_.setWins[0] - result_.setWins[1];
    for (const Seat seat : {Seat::Player, Seat::Opponent}) {
      if (engine_->shown().Total(seat) > kTargetTotal) ++result_.busts[static_cast<std::size_t>(seat)];
    }
  }

  MatchBooking& book_;
  const MatchWatch& watch_;
  MatchEngine* engine_ = nullptr;
  HeadlessResult result_;
  bool timerRuns_ = false;
  bool bannerShown_ = false;
  bool left_ = false;
};

}  // namespace

HeadlessResult PlayHeadless(const HeadlessSetup& setup, Random& random, const MatchWatch& watch) {
  clsGame game;
  game.Wager = kAnyStake;
  game.SideDeck = DealHand(setup.playerDeck, random);
  game.CompDeck = DealHand(setup.opponentDeck, random);
  AI_SortDeck(*game.CompDeck);
  // The strategy is lent for the length of the match; the record does not own it.
  game.AI = std::shared_ptr<Strategy>(std::shared_ptr<Strategy>(), &setup.opponent);
  NoBook book(game);
  return PlayPrepared(game, setup.player, book, setup.options, random, watch, setup.observer);
}

HeadlessResult PlayPrepared(clsGame& game, Strategy& player, MatchBooking& booking,
                            const MatchOptions& options, Random& random, const MatchWatch& watch,
                            MatchObserver* observer) {
  NobodyWatches screen(booking, watch);
  MatchNetwork network;
  MatchEngine engine(game, options, screen, network, screen, screen, random);
  engine.setObserver(observer);
  engine.person().setStrategy(&player);
  return screen.Play(engine);
}

}  // namespace kv
