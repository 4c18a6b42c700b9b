// A match that is recorded and played again is the same match at every step; a record that was tampered with
// is not played beyond the place.
#include <gtest/gtest.h>

#include <cstdlib>

#include "ai/clsAI_Ember.h"
#include "ai/clsAI_Normal.h"
#include "match/Dealing.h"
#include "support/EventLog.h"
#include "support/MatchTable.h"
#include "support/SampleMatch.h"

namespace kv::test {
namespace {

/// KV_HISTORY_MATCHES: how many.
int Matches() {
  const char* text = std::getenv("KV_HISTORY_MATCHES");
  return text == nullptr ? 2000 : std::atoi(text);
}

std::vector<std::string> Again(const MatchRecord& record, int& different) {
  EventLog log;
  different = 0;
  const bool whole = PlayAgain(record, [&](const MatchEvent& event, const MatchShown& shown) {
    log.Happened(event);
    for (const Seat seat : {Seat::Player, Seat::Opponent}) {
      const bool same = log.tables.at(static_cast<std::size_t>(seat)) == shown.Table(seat) &&
                        log.Total(seat) == shown.Total(seat);
      different += same ? 0 : 1;
    }
  });
  EXPECT_TRUE(whole);
  return log.lines;
}

TEST(Replay, GivesEveryMatchAgainAtEveryStep) {
  SeededRandom random(12);
  clsAI_Normal standard;
  clsAI_Ember ember;
  const std::array decks = {OpponentDeck("H6-J8"), OpponentDeck("Orrin Vaal"), OpponentDeck("Tamsen")};
  for (int match = 0; match < Matches(); ++match) {
    EventLog log;
    MatchRecorder recorder({});
    MatchObservers both;
    both.Add(log);
    both.Add(recorder);
    const auto deck = [&] { return decks.at(static_cast<std::size_t>(random.Rnd() * 3)); };
    const MatchOptions options{.turnMode = match % 3, .autoTurn = match % 2 == 0};
    const auto played = PlayHeadless({ember, standard, deck(), deck(), options, &both}, random);
    int different = 0;
    ASSERT_EQ(Again(recorder.record(), different), log.lines) << match;
    ASSERT_EQ(different, 0) << match;
    ASSERT_EQ(recorder.record().winner, played.winner);
    ASSERT_EQ(recorder.record().setWins, played.setWins);
  }
}

void PlayFirst(AiOperations& side) {
  side.AI_PlayCard(1);
  side.AI_EndTurn();
}

TEST(Replay, KnowsThePersonsFlipsAndAMatchThatIsGivenUp) {
  EventLog log;
  MatchRecorder recorder({});
  MatchObservers both;
  both.Add(log);
  both.Add(recorder);
  MatchTable table({.hand = {"fp2", "s299", "s399", "s51"},
                    .opponentHand = {"ms-2"},
                    .draws = {7, 10, 6, 9, 10, 5, 10, 10, 10, 4}});
  table.engine->setObserver(&both);
  table.Start();
  table.engine->person().FirstFlip(1);
  table.Play(1);
  table.engine->person().SecondFlip(4);
  table.strategy.turns = {PlayFirst, StandOpponent};
  table.EndTurn();
  table.engine->person().FirstFlip(4);
  table.Play(3);
  table.Stand();
  table.engine->person().SecondFlip(4);  // the set is over
  table.Continue();
  table.EndTurn();
  table.engine->person().Forfeit();
  int different = 0;
  EXPECT_EQ(Again(recorder.record(), different), log.lines);
  EXPECT_EQ(different, 0);
  EXPECT_EQ(recorder.record().ending, MatchEnding::GivenUp);
  EXPECT_EQ(recorder.record().hands[0][0], CardCode("fp2")) << "as it was dealt";
}

TEST(Replay, StopsAtWhatTheRulesDoNotLetHappen) {
  const MatchRecord whole = SampleMatch(3);
  ASSERT_TRUE(PlayAgain(whole));
  const auto refused = [&](const char* what, const std::function<void(MatchRecord&)>& change) {
    MatchRecord changed = whole;
    change(changed);
    EXPECT_FALSE(PlayAgain(changed)) << what;
  };
  const auto move = [](MatchRecord& record, MoveKind kind) -> RecordedMove& {
    for (RecordedSet& set : record.sets) {
      for (RecordedMove& each : set.moves) {
        if (each.kind == kind) return each;
      }
    }
    throw std::logic_error("the sample has no such move");
  };
  refused("a card out of the main deck",
          [&](MatchRecord& r) { move(r, MoveKind::Draw).card = CardCode("no11"); });
  refused("another draw", [&](MatchRecord& r) {
    CardCode& card = move(r, MoveKind::Draw).card;
    card = CardCode(card == CardCode("no3") ? "no4" : "no3");
  });
  refused("five of one value", [&](MatchRecord& r) {
    for (RecordedMove& each : r.sets.front().moves) each.card = CardCode(each.card.empty() ? "" : "no1");
    r.sets.front().moves.insert(r.sets.front().moves.begin(), 5,
                                {MoveKind::Draw, Seat::Player, 0, CardCode("no1")});
  });
  refused("a slot that is none", [&](MatchRecord& r) { move(r, MoveKind::Play).slot = 11; });
  refused("a turn out of order", [&](MatchRecord& r) {
    Seat& seat = move(r, MoveKind::End).seat;
    seat = seat == Seat::Player ? Seat::Opponent : Seat::Player;
  });
  refused("a turn that is not closed", [&](MatchRecord& r) { r.sets.front().moves.pop_back(); });
  refused("a move after the last", [&](MatchRecord& r) { r.sets.back().moves.push_back({}); });
  refused("a flip of what cannot be flipped", [&](MatchRecord& r) {
    r.sets.back().moves.push_back({MoveKind::Flip, Seat::Player, 1, CardCode("ps3")});
  });
  refused("another starter", [&](MatchRecord& r) {
    r.sets[1].starts = r.sets[1].starts == Seat::Player ? Seat::Opponent : Seat::Player;
  });
  refused("another total", [&](MatchRecord& r) { ++r.sets.front().result->totals[0]; });
  refused("another rule", [&](MatchRecord& r) { r.sets.front().result->rule = SetRule::OpponentNine; });
  refused("a set too few", [&](MatchRecord& r) { r.sets.pop_back(); });
  refused("a set too many", [&](MatchRecord& r) { r.sets.push_back(r.sets.front()); });
  refused("another winner",
          [&](MatchRecord& r) { r.winner = *r.winner == Seat::Player ? Seat::Opponent : Seat::Player; });
}

TEST(Recorder, TellsOfABookingAgainWhenItIsCorrected) {
  std::vector<MatchRecord> told;
  MatchRecorder recorder({}, [&](const MatchRecord& record) { told.push_back(record); });
  recorder.Happened(event::SetBegun{});
  EXPECT_TRUE(recorder.unbooked());
  recorder.Happened(event::MatchDecided{Seat::Opponent, {1, 3}});
  recorder.Happened(event::Booked{event::Result::Lost, 10, 90, 90});
  recorder.Happened(event::Forfeited{Seat::Opponent});
  recorder.Happened(event::MatchDecided{Seat::Player, {1, 2}});
  recorder.Happened(event::Booked{event::Result::Won, 10, 90, 111});
  ASSERT_EQ(told.size(), 2u);
  EXPECT_EQ(told[0].ending, MatchEnding::ThreeSets);
  EXPECT_EQ(told[1].ending, MatchEnding::GivenUp);
  EXPECT_EQ(told[1].winner, Seat::Player);
  EXPECT_EQ(told[1].booking->after, 111);
  EXPECT_FALSE(recorder.unbooked());
}

TEST(Recorder, KeepsWithinItsLimitsWhateverIsTold) {
  MatchRecorder recorder({});
  for (std::size_t set = 0; set < kMostRecordedSets + 5; ++set) {
    recorder.Happened(event::SetBegun{});
    for (std::size_t i = 0; i < 2 * kMostRecordedMoves; ++i) {
      recorder.Happened(event::Flipped{1, CardCode("fp1")});
      recorder.Happened(event::Drew{Seat::Player, CardCode("no1"), 1});
    }
  }
  EXPECT_EQ(recorder.record().sets.size(), kMostRecordedSets);
  EXPECT_EQ(recorder.record().sets.back().moves.size(), kMostRecordedMoves);
  recorder.Happened(event::MatchBegun{});
  recorder.Happened(event::SetBegun{});
  recorder.Happened(event::Played{Seat::Opponent, 1, CardCode(std::string(5000, 'p')), {}, {}, 0});
  recorder.Happened(event::Drew{Seat::Player, CardCode("no1"), 1});
  ASSERT_EQ(recorder.record().sets.size(), 1u) << "nothing is left of the match before";
  EXPECT_EQ(recorder.record().sets[0].moves.size(), 1u) << "no code of that length";
}

}  // namespace
}  // namespace kv::test
