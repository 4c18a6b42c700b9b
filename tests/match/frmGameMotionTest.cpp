// What moves on the match screen: it changes nothing of the match, ends where the controls stand, and can be
// cut off at any moment.
#include <QApplication>

#include "ai/clsAI_Ember.h"
#include "ai/clsAI_Normal.h"
#include "match/MatchScreenTest.h"
#include "platform/QtStillStyle.h"
#include "support/EventLog.h"

namespace kv::test {
namespace {

using frmGameMotionTest = MatchScreenTest;

INSTANTIATE_TEST_SUITE_P(Styles, frmGameMotionTest, testing::Values("Slate", "Ember"),
                         [](const auto& style) { return std::string(style.param); });

constexpr int kLongestScene = 1500;  // milliseconds

/// A desktop on which nothing is to move, while it lives.
class StillDesktop {
 public:
  StillDesktop() : style_(QApplication::style()->objectName()) { QApplication::setStyle(new QtStillStyle); }
  StillDesktop(const StillDesktop&) = delete;
  StillDesktop& operator=(const StillDesktop&) = delete;
  ~StillDesktop() { QApplication::setStyle(style_); }

 private:
  QString style_;
};

/// Writes down each event with its moment and with all that the screen shows then.
class ScreenLog final : public MatchObserver {
 public:
  explicit ScreenLog(MatchScreen& match) : match_(match) { match.screen->observers().Add(*this); }
  void Happened(const MatchEvent& event) override {
    events_.Happened(event);
    Note(events_.lines.back());
  }
  void Note(const std::string& what) {
    std::string line = std::to_string(match_.scheduler.timeGetTime()) + " " + what + " |";
    for (const QWidget* each : match_.screen->findChildren<QWidget*>()) {
      const ctlGuide* guide = match_.screen->guide();
      if (each == &match_.screen->motionLayer()) continue;
      if (guide != nullptr && (each == guide || guide->isAncestorOf(each))) continue;
      line += each->isHidden() ? '-' : each->isEnabled() ? '+' : '.';
      line +=
          std::to_string(each->x()) + "," + std::to_string(each->y()) + each->accessibleName().toStdString();
    }
    lines.push_back(line);
  }
  std::vector<std::string> lines;

 private:
  MatchScreen& match_;
  EventLog events_;
};

/// The click that accepts them is the person's own.
void AcceptHints(MatchScreen& match) {
  ASSERT_TRUE(match.screen->guide()->isVisible());
  ScreenHand(*match.screen).Key(Qt::Key_F5);
  ASSERT_EQ(match.sound.played.back(), "click");
  match.sound.played.pop_back();
}

/// All that can be noticed of a match between two strategies, from its chance alone.
std::vector<std::string> Trace(const std::string& style, std::uint64_t seed, bool pulsing,
                               bool newcomer = false) {
  static constexpr std::array kCards = {"ps3", "ms-4", "fp2", "s11", "s299", "s399", "s499", "s51", "fp6"};
  SeededRandom chance(seed);
  MatchScreenSetup setup{.style = style};
  setup.newcomer = newcomer;
  for (auto* hand : {&setup.hand, &setup.opponentHand}) {
    for (const char*& card : *hand) card = kCards.at(static_cast<std::size_t>(chance.Rnd() * kCards.size()));
  }
  setup.options = [pulsing, seed](clsPlayer& player) {
    player.LightPulse_Opt = pulsing;
    player.GameSpeed_Opt = static_cast<std::int16_t>(seed % 3);
    player.AutoDialogs_Opt = seed % 4 == 0;
  };
  MatchScreen match(setup);
  for (int i = 0; i < 3000; ++i) match.random.Add(chance.Rnd());
  clsAI_Normal person;
  clsAI_Ember opponent;
  match.game.AI = std::shared_ptr<Strategy>(std::shared_ptr<Strategy>(), &opponent);
  match.engine().person().setStrategy(&person);
  ScreenLog log(match);
  match.screen->Open();
  for (int i = 0; i < 60000 && match.recorded.Count("LeaveMatch") == 0; ++i) {
    match.scheduler.Advance(7);
    if (newcomer && i == 0) AcceptHints(match);
    if (i % 13 == 0) log.Note("at rest");
    if (match.engine().shown().banner.visible) match.engine().Continue();
  }
  EXPECT_EQ(match.recorded.Count("LeaveMatch"), 1) << "the match has come to its end";
  for (const int pause : match.scheduler.pauses) log.lines.push_back("pause " + std::to_string(pause));
  for (const std::string& sound : match.sound.played) log.lines.push_back(sound);
  return log.lines;
}

TEST_P(frmGameMotionTest, AMatchTakesTheSameCourseToTheMillisecondWhetherThingsMoveOrNot) {
  const char* more = std::getenv("KV_MOTION_MATCHES");
  const std::uint64_t matches = more != nullptr ? std::stoull(more) : 10;
  for (std::uint64_t seed = 1; seed <= matches; ++seed) {
    const std::vector<std::string> moving = Trace(GetParam(), seed, true);
    EXPECT_GT(moving.size(), 100u);
    EXPECT_EQ(moving, Trace(GetParam(), seed, false)) << seed;
    EXPECT_EQ(moving, Trace(GetParam(), seed, true, true)) << "with the hints of a first match, " << seed;
    const StillDesktop still;
    EXPECT_EQ(moving, Trace(GetParam(), seed, true)) << seed;
  }
}

/// One of each thing that moves.
struct MovingMoment {
  const char* name;
  std::vector<int> draws;
  std::function<void(MatchScreen& match)> act;
};
const std::vector<MovingMoment>& Moments() {
  static const std::vector<MovingMoment> moments = {
      {"draw and play", {2, 6, 8, 5}, [](MatchScreen& m) { m.engine().person().EndTurn(); }},
      {"play", {2}, [](MatchScreen& m) { m.engine().person().PlayHandCard(1); }},
      {"flip", {2}, [](MatchScreen& m) { m.engine().person().FirstFlip(2); }},
      {"turn others", {2}, [](MatchScreen& m) { m.engine().person().PlayHandCard(3); }},
      {"double", {2}, [](MatchScreen& m) { m.engine().person().PlayHandCard(4); }},
      {"stand", {2, 6}, [](MatchScreen& m) { m.engine().person().Stand(); }},
      {"win", {2}, [](MatchScreen& m) { m.engine().peer().OppForfeit(); }},
      {"let go",
       {2},
       [](MatchScreen& m) {
         ctlCard& card = m.screen->hand().ctlYourDeck(2);
         card.MouseDown(Qt::LeftButton, {}, {5, 5});
         card.MouseMove(Qt::LeftButton, {}, {60, -70});
         card.MouseUp(Qt::LeftButton, {}, {5, 5});
       }},
  };
  return moments;
}

struct Played {
  Played(const MovingMoment& each, const char* style)
      : match({.style = style, .hand = {"ps3", "fp2", "s399", "s299"}, .draws = each.draws}) {
    match.strategy.turns = {PlayFirstAndStand};
    match.Begin();
    each.act(match);
  }
  MatchScreen match;
};

TEST_P(frmGameMotionTest, WhatIsCutOffStandsWhereItWouldWithoutMoving) {
  for (const MovingMoment& each : Moments()) {
    for (const int moment : {16, 128, 900}) {
      Played moving(each, GetParam());
      moving.match.scheduler.Advance(moment);
      moving.match.screen->motionLayer().FinishAll();
      const StillDesktop still;
      Played plain(each, GetParam());
      plain.match.scheduler.Advance(moment);
      EXPECT_FALSE(plain.match.screen->motionLayer().moving());
      EXPECT_EQ(moving.match.screen->grab().toImage(), plain.match.screen->grab().toImage())
          << each.name << " at " << moment;
    }
  }
}

TEST_P(frmGameMotionTest, EachThingMovesAndThenNothingDoes) {
  for (const MovingMoment& each : Moments()) {
    Played played(each, GetParam());
    MatchScreen& match = played.match;
    for (int i = 0; i < 100 && !match.screen->motionLayer().moving(); ++i) match.scheduler.Advance(16);
    EXPECT_TRUE(match.screen->motionLayer().moving()) << each.name;
    const QImage before = match.screen->grab().toImage();
    match.scheduler.Advance(48);
    EXPECT_NE(match.screen->grab().toImage(), before) << each.name;
    match.Settle();
    EXPECT_FALSE(match.screen->motionLayer().moving()) << each.name;
    match.globals.effects.StopFade();
    EXPECT_EQ(match.scheduler.RunningTimers(), 0) << each.name;
  }
}

TEST_P(frmGameMotionTest, TheScreenClosesInTheMiddleOfEachMotion) {
  for (const MovingMoment& each : Moments()) {
    for (int moment = 0; moment < 400; moment += 80) {
      Played played(each, GetParam());
      played.match.scheduler.Advance(moment);
      played.match.screen->grab();
      played.match.screen->CloseScreen();
      EXPECT_FALSE(played.match.screen->motionLayer().moving());
      EXPECT_EQ(played.match.scheduler.RunningTimers(), 0) << each.name << " at " << moment;
      played.match.screen.reset();
      played.match.Settle(2000);
    }
  }
}

/// The scene of a win, ended by a key that still does what it does.
TEST_P(frmGameMotionTest, AKeyEndsTheSceneOfAWinAndGoesOn) {
  for (const bool autoDialogs : {false, true}) {
    MatchScreen& match =
        BeginWith([autoDialogs](clsPlayer& player) { player.AutoDialogs_Opt = autoDialogs; }, {2});
    match.engine().peer().OppForfeit();
    match.scheduler.Advance(680);
    EXPECT_EQ(match.screen->motionLayer().moving(), !autoDialogs) << "longer than marker and banner need";
    if (autoDialogs) continue;
    ScreenHand(*match.screen).Key(Qt::Key_F2);
    EXPECT_FALSE(match.screen->motionLayer().moving());
    EXPECT_TRUE(match.screen->banner().isVisible());
    EXPECT_FALSE(match.announcer.told.empty());
    ScreenHand(*match.screen).Key(Qt::Key_Return);
    EXPECT_EQ(match.recorded.Count("LeaveMatch"), 1);
  }
}

TEST_P(frmGameMotionTest, AnOpenedPlaceOfTheCircuitIsMoreThanAWin) {
  std::vector<QImage> scenes;
  for (const bool opens : {false, true}) {
    MatchScreenSetup setup = Setup({2});
    setup.mode = std::string(kModeCampaign);
    MatchScreen match(setup);
    if (opens) match.game.CampaignWinRef = match.player.Tamsen_Wins;
    match.Begin();
    match.engine().peer().OppForfeit();
    match.scheduler.Advance(900);
    scenes.push_back(match.screen->grab().toImage());
    match.scheduler.Advance(kLongestScene - 300);
    EXPECT_FALSE(match.screen->motionLayer().moving());
  }
  EXPECT_NE(scenes[0], scenes[1]);
}

TEST_P(frmGameMotionTest, ALossIsQuiet) {
  MatchScreen match(Setup({2}));
  match.dialogs.answers = {true};
  match.Begin();
  match.engine().person().Forfeit();
  match.scheduler.Advance(680);
  EXPECT_TRUE(match.screen->banner().isVisible());
  EXPECT_FALSE(match.screen->motionLayer().moving());
}

}  // namespace
}  // namespace kv::test
