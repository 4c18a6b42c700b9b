// The screen, the dialogs and the way to the book of a match that nobody watches: it turns the engine's crank
// and notes who won. It decides nothing.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>

#include "match/HeadlessMatch.h"
#include "platform/Dialogs.h"

namespace kv {

inline constexpr std::int32_t kAnyStake = 10;  // credits that nobody has

/// A book that nobody reads.
class NoBook final : public MatchBooking {
 public:
  explicit NoBook(clsGame& game) : game_(game) {}
  void SaveWin() override { game_.Wager = -1; }
  void SaveLoss() override { game_.Wager = -1; }

 private:
  clsGame& game_;
};

class NobodyWatches final : public MatchView, public MatchBooking, public Dialogs {
 public:
  NobodyWatches(MatchBooking& book, const MatchWatch& watch) : book_(book), watch_(watch) {}

  HeadlessResult Play(MatchEngine& engine) {
    engine_ = &engine;
    engine.Activate();
    return PlayOn(engine);
  }

  /// The match goes on from a position; what is counted begins there.
  HeadlessResult Play(MatchEngine& engine, const MatchPosition& position) {
    GoOn(engine, position);
    return PlayOn(engine);
  }

  /// Only to the end of the set, or of the match with it.
  void PlaySet(MatchEngine& engine, const MatchPosition& position) {
    GoOn(engine, position);
    while (!engine.shown().banner.visible) {
      if (!timerRuns_) StandsStill();
      engine.GameTick();
    }
  }

 private:
  void GoOn(MatchEngine& engine, const MatchPosition& position) {
    engine_ = &engine;
    result_ = {};
    timerRuns_ = bannerShown_ = left_ = false;
    engine.Resume(position);
  }

  [[noreturn]] static void StandsStill() { throw std::logic_error("the match stands still"); }

  HeadlessResult PlayOn(MatchEngine& engine) {
    while (!left_) {
      if (timerRuns_) {
        engine.GameTick();
      } else if (engine.shown().banner.visible) {
        engine.Continue();
      } else {
        StandsStill();
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

}  // namespace kv
