// A match that is given up, closed or decided in the middle of its pauses and questions.
#include <gtest/gtest.h>

#include "match/MatchCourse.h"

namespace kv::test {
namespace {

const std::string kModes[] = {std::string(kModeArcade), std::string(kModeNetwork)};

TEST(Pauses, ACourseThroughAllOfThem) {
  for (const std::string& mode : kModes) {
    MatchCourse course(mode);
    course.Play();
    EXPECT_EQ(course.table.pauses, MatchCourse::Pauses(mode)) << mode;
    EXPECT_EQ(course.table.screen.banner.text, "you win the set.");
    EXPECT_EQ(course.table.setsDecided, course.network ? 1 : 0);
  }
}

TEST(Pauses, AForfeitInAnyOfThemIsAskedForAfterItAndEndsTheMatchOnce) {
  for (const std::string& mode : kModes) {
    for (int at = 1; at <= static_cast<int>(MatchCourse::Pauses(mode).size()); ++at) {
      SCOPED_TRACE(mode + ", pause " + std::to_string(at));
      MatchCourse course(mode);
      MatchTable& table = course.table;
      course.InPause(at, [&] {
        table.engine->person().Forfeit();
        table.engine->pauses().QuietTick();
        EXPECT_TRUE(table.questions.empty()) << "a box would hold up the pause";
      });
      table.inQuestion = [&] { EXPECT_EQ(table.pausesOpen, 0); };
      course.Play();
      EXPECT_EQ(table.questions.size(), 1U);
      EXPECT_EQ(table.booked, -1);
      EXPECT_EQ(table.engine->shown().SetWins(Seat::Opponent), 3);
      EXPECT_EQ(table.screen.banner.text, "You have been defeated.");
      EXPECT_TRUE(table.screen.AllDark());
      EXPECT_TRUE(table.screen.controls.titlebar) << "which closes the match that was given up here";
      EXPECT_TRUE(table.Heard("losematch"));
      EXPECT_EQ(table.screen.story.back(), "banner on");
      EXPECT_EQ(table.Sent("[Forf]"), course.network ? 1 : 0);
      const std::vector<std::string> story = table.screen.story;
      course.TryEverything();
      EXPECT_EQ(table.screen.story, story) << "nothing runs on";
      EXPECT_EQ(table.bookings, 1);
      EXPECT_FALSE(table.gameTimer || table.netTimer || table.quietTimer);
    }
  }
}

TEST(Pauses, ThePeersForfeitInAnyOfThemWinsAtOnce) {
  for (int at = 1; at <= static_cast<int>(MatchCourse::Pauses(kModes[1]).size()); ++at) {
    SCOPED_TRACE(at);
    MatchCourse course{std::string(kModeNetwork)};
    MatchTable& table = course.table;
    std::vector<std::string> story;
    std::vector<std::string> sent;
    course.InPause(at, [&] {
      table.engine->peer().OppForfeit();
      story = table.screen.story;
      sent = table.sent;
    });
    course.Play();
    EXPECT_EQ(table.booked, 1);
    EXPECT_EQ(table.engine->shown().SetWins(Seat::Player), 3);
    EXPECT_EQ(table.screen.banner.text, "You have defeated your opponent!");
    EXPECT_TRUE(table.screen.AllDark());
    EXPECT_FALSE(table.screen.controls.titlebar);
    EXPECT_TRUE(table.Heard("winmatch"));
    course.TryEverything();
    EXPECT_EQ(table.screen.story, story) << "the turn that was cut short goes no step further";
    EXPECT_EQ(table.sent, sent);
    EXPECT_EQ(table.bookings, 1);
    EXPECT_FALSE(table.gameTimer || table.netTimer);
  }
}

TEST(Pauses, AScreenClosedInAnyOfThemStaysAsItIs) {
  for (const std::string& mode : kModes) {
    for (int at = 1; at <= static_cast<int>(MatchCourse::Pauses(mode).size()); ++at) {
      for (const bool cutShort : {true, false}) {
        SCOPED_TRACE(mode + ", pause " + std::to_string(at) + (cutShort ? ", cut short" : ""));
        MatchCourse course(mode);
        MatchTable& table = course.table;
        std::vector<std::string> story;
        std::vector<std::string> sent;
        course.InPause(at, [&] {
          table.engine->person().Forfeit();  // a question that will never open
          table.closing = cutShort;
          table.engine->Close();
          story = table.screen.story;
          sent = table.sent;
        });
        course.Play();
        EXPECT_FALSE(table.gameTimer || table.autoTimer || table.netTimer || table.quietTimer);
        table.engine->pauses().QuietTick();
        table.engine->person().Forfeit();
        table.engine->peer().OppForfeit();
        table.engine->Continue();
        table.engine->Reset();
        table.engine->GameTick();
        EXPECT_EQ(table.screen.story, story);
        EXPECT_EQ(table.sent, sent);
        EXPECT_EQ(table.bookings, 0);
        EXPECT_TRUE(table.questions.empty());
      }
    }
  }
}

TEST(Pauses, WhatWaitsForQuietIsDoneOnceAndAtOnceOutsideThem) {
  MatchCourse course;
  MatchTable& table = course.table;
  int done = 0;
  course.InPause(2, [&] {
    table.engine->pauses().WhenQuiet([&] { ++done; });
    table.engine->pauses().QuietTick();
    EXPECT_EQ(done, 0);
    EXPECT_TRUE(table.quietTimer);
  });
  course.Play();
  EXPECT_EQ(done, 1);
  EXPECT_FALSE(table.quietTimer);
  table.engine->pauses().QuietTick();
  EXPECT_EQ(done, 1);
  table.engine->pauses().WhenQuiet([&] { ++done; });
  EXPECT_EQ(done, 2);
}

TEST(Forfeit, ADecidedLastSetIsNoLongerGivenUp) {
  for (const int theirs : {5, 9}) {  // against the player's 7: three sets won, three sets lost
    MatchTable table(ThreeSets(7, theirs));
    table.inPause = [&] {
      const auto& decision = table.engine->peer().decision();
      if (decision && decision->endsMatch) table.engine->person().Forfeit();
    };
    // Decided in the pause before the question, and again while the result's tick is due.
    table.inQuestion = [&] { EXPECT_TRUE(table.engine->peer().decision().has_value()); };
    PlaySets(table, 3);
    EXPECT_EQ(table.questions.size(), 1U);
    EXPECT_EQ(table.booked, theirs == 5 ? 1 : -1);
    EXPECT_FALSE(table.engine->person().Stopped());
    EXPECT_EQ(table.engine->shown().SetWins(theirs == 5 ? Seat::Player : Seat::Opponent), 3);
  }
}

TEST(Forfeit, TheAnswerIsWeighedAgainstWhatHappenedBehindTheQuestion) {
  // The player's last move decides the set while the question is open: the last set counts, one before it
  // does not.
  for (const int won : {0, 2}) {
    MatchTable table(ThreeSets(9, 5));
    if (won > 0) {
      PlaySets(table, won);
      table.Continue();
    } else {
      table.Start();
    }
    table.strategy.turns = {StandOpponent};
    table.inQuestion = [&] {
      table.engine->person().Stand();
      table.engine->GameTick();
    };
    table.engine->person().Forfeit();
    table.Run();
    EXPECT_EQ(table.booked, won == 2 ? 1 : -1);
    EXPECT_EQ(table.engine->shown().SetWins(Seat::Player), won == 2 ? 3 : 0);
    EXPECT_EQ(table.bookings, 1);
  }
}

TEST(Forfeit, IsNotAskedForOnceThePauseHasEndedTheMatch) {
  MatchCourse course{std::string(kModeNetwork)};
  course.InPause(2, [&] {
    course.table.engine->person().Forfeit();
    course.table.engine->peer().OppForfeit();
  });
  course.Play();
  EXPECT_TRUE(course.table.questions.empty());
  EXPECT_EQ(course.table.booked, 1);
}

TEST(Forfeit, AnsweredNoChangesNothing) {
  MatchCourse course;
  course.table.answer = false;
  course.InPause(3, [&] { course.table.engine->person().Forfeit(); });
  course.Play();
  EXPECT_EQ(course.table.questions.size(), 1U);
  EXPECT_EQ(course.table.pauses, MatchCourse::Pauses(course.table.game.Mode));
  EXPECT_EQ(course.table.bookings, 0);
  EXPECT_EQ(course.table.engine->shown().SetWins(Seat::Player), 1);
}

TEST(Forfeit, AsABannerWaitsForThePeerGivesItsButtonBack) {
  for (const bool own : {true, false}) {
    MatchCourse course{std::string(kModeNetwork)};
    MatchTable& table = course.table;
    course.Play();
    table.Continue();
    EXPECT_EQ(table.screen.banner.caption, "(waiting)");
    EXPECT_FALSE(table.screen.banner.buttonEnabled);
    EXPECT_TRUE(table.engine->peer().waitsForPeer());
    own ? table.engine->person().Forfeit() : table.engine->peer().OppForfeit();
    EXPECT_EQ(table.screen.banner.caption, "continue");
    EXPECT_TRUE(table.screen.banner.buttonEnabled);
    EXPECT_TRUE(table.screen.AllDark());
    EXPECT_FALSE(table.engine->peer().waitsForPeer());
    table.PeerReady();
    EXPECT_FALSE(table.gameTimer || table.left) << "the set that was waited for never begins";
    table.Continue();
    EXPECT_EQ(table.screen.banner.caption, "(waiting)");
    EXPECT_FALSE(table.left);
    table.PeerReady();
    EXPECT_TRUE(table.left);
  }
}

}  // namespace
}  // namespace kv::test
