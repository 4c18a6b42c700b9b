// A match that is recorded and played again is the same match at every step, and a record that was tampered
// with is not played beyond the place; records as text, which a person may have written, and packed, as the
// history keeps them.
#include <gtest/gtest.h>

#include <cstdlib>

#include "history/RecordPack.h"
#include "history/RecordText.h"
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
    ASSERT_EQ(log.wrongTotals, 0) << match;
    ASSERT_EQ(recorder.record().sets.size(), static_cast<std::size_t>(played.sets));
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

constexpr const char* kByHand =
    "Kelm Vantri match, form 1\r\n"
    "time: 2026-11-25 13:25:12\n"
    "version: 1.2.4\n"
    "mode: Network\n"
    "opponent: Zoë\n"
    "strategy:\n"
    "stake: 50\n"
    "hand: fp2 s299 s399 ps4\n"
    "opponent's hand: ms-2 -- -- --\n"
    "\n"
    "set 1: player starts\n"
    "player: draws 7, flips 1 to fm2, plays 1 fm2, ends\n"
    "opponent: draws 10, plays 1 ms-2, ends\n"
    "player: draws 6, plays 3 s399, stands\n"
    "opponent: draws 9, stands\n"
    "result: 15:17, higher total, closed by opponent\n"
    "set 2: opponent starts\n"
    "opponent: draws 3\n"
    "end: opponent gave up, player won 2:1\n"
    "credits: 50 to 155, won\n";

TEST(RecordText, IsReadAsAPersonWritesIt) {
  const ParsedRecord parsed = ParseRecord(kByHand);
  ASSERT_TRUE(parsed.record) << parsed.line << ": " << parsed.fault;
  const MatchRecord& record = *parsed.record;
  EXPECT_EQ(record.time, 1795613112);
  EXPECT_EQ(record.opponent, "Zoë");
  EXPECT_EQ(record.hands[1], (RecordedHand{CardCode("ms-2")}));
  ASSERT_EQ(record.sets.size(), 2u);
  EXPECT_EQ(record.sets[0].moves.size(), 12u);
  EXPECT_EQ(record.sets[0].moves[1], (RecordedMove{MoveKind::Flip, Seat::Player, 1, CardCode("fm2")}));
  EXPECT_EQ(record.ending, MatchEnding::GivenUp);
  EXPECT_EQ(record.givenUpBy, Seat::Opponent);
  EXPECT_TRUE(PlayAgain(record));
  const std::string again = FormatRecord(record);
  EXPECT_NE(again.find("player: draws 7, flips 1 to fm2, plays 1 fm2, ends\n"), std::string::npos) << again;
}

TEST(RecordText, AndThePackedFormGiveTheRecordBack) {
  for (std::uint64_t seed = 1; seed <= 200; ++seed) {
    const MatchRecord record = SampleMatch(seed);
    const ParsedRecord parsed = ParseRecord(FormatRecord(record));
    ASSERT_TRUE(parsed.record) << parsed.line << ": " << parsed.fault << "\n" << FormatRecord(record);
    ASSERT_EQ(*parsed.record, record) << FormatRecord(record);
    MatchRecord packed = record;
    packed.sets.clear();
    packed.hands = {};
    ASSERT_TRUE(UnpackCourse(PackCourse(record), packed));
    ASSERT_EQ(packed, record);
  }
}

TEST(RecordText, RefusesALineThatIsNotUnderstoodAndNamesIt) {
  const std::string whole = kByHand;
  const auto refused = [&](const char* line, const char* instead, int number) {
    std::string text = whole;
    const std::size_t at = text.find(line);
    ASSERT_NE(at, std::string::npos) << line;
    text.replace(at, std::string_view(line).size(), instead);
    const ParsedRecord parsed = ParseRecord(text);
    EXPECT_FALSE(parsed.record) << instead;
    EXPECT_EQ(parsed.line, number) << instead;
  };
  refused("form 1", "form 2", 1);
  refused("2026-11-25", "2026-02-30", 2);
  refused("2026-11-25 13:25:12", "2026-11-25 13:25:60", 2);
  refused("opponent: Zoë", ("opponent: " + std::string(90, 'z')).c_str(), 5);
  refused("opponent: Zoë", "opponent: Zo\te", 5);
  refused("stake: 50", "stake: 2147483648", 7);
  refused("ps4\n", "ps4 ps5\n", 8);
  refused("ps4\n", "psfourfour\n", 8);
  refused("set 1:", "set 2:", 11);
  refused("player starts", "nobody starts", 11);
  refused("draws 7", "draws 11", 12);
  refused("flips 1", "flips 5", 12);
  refused("opponent: draws 10, plays 1", "opponent: flips 1 to fm2, plays 1", 13);
  refused("ends\nopponent: draws 10", "waits\nopponent: draws 10", 12);
  refused("15:17,", "15:1717,", 16);
  refused("higher total", "fate", 16);
  refused("result: 15:17", "result: 1:2, tied, closed by player\nresult: 15:17", 17);
  refused("gave up", "ran off", 19);
  refused("won 2:1", "won 4:1", 19);
  refused("155, won", "155, drew", 20);
}

TEST(RecordText, IsBounded) {
  EXPECT_FALSE(ParseRecord(std::string(kMostRecordText + 1, '\n')).record);
  EXPECT_FALSE(ParseRecord("").record);
  std::string text = "Kelm Vantri match, form 1\n";
  for (int set = 1; set <= 100; ++set) text += "set " + std::to_string(set) + ": player starts\n";
  EXPECT_EQ(ParseRecord(text + "end: left\n").line, 101);
  text = "Kelm Vantri match, form 1\nset 1: player starts\n";
  for (std::size_t i = 0; i <= kMostRecordedMoves; ++i) text += "player: ends\n";
  EXPECT_EQ(ParseRecord(text + "end: left\n").line, 3 + static_cast<int>(kMostRecordedMoves));
}

TEST(RecordText, TakesNamesThatWouldBreakALine) {
  MatchRecord record;
  record.opponent = "a\nend: left\n" + std::string(66, 'x') + "ëë";
  const ParsedRecord parsed = ParseRecord(FormatRecord(record));
  ASSERT_TRUE(parsed.record) << parsed.fault;
  EXPECT_EQ(parsed.record->opponent, "a end: left " + std::string(66, 'x') + "ë") << "80 bytes";
}

TEST(RecordPack, RefusesBytesThatAreNoCourse) {
  const std::string bytes = PackCourse(SampleMatch(4));
  MatchRecord record;
  for (std::size_t size = 0; size < bytes.size(); ++size) {
    if (UnpackCourse(std::string_view(bytes).substr(0, size), record)) {
      EXPECT_LT(record.sets.size(), SampleMatch(4).sets.size()) << "cut between two sets";
    }
  }
  std::string wrong = bytes;
  wrong[0] = '\x7F';
  EXPECT_FALSE(UnpackCourse(wrong, record)) << "a code that is too long";
  wrong[0] = '\2';
  wrong[1] = '\n';
  EXPECT_FALSE(UnpackCourse(wrong, record)) << "a code that no text can hold";
}

}  // namespace
}  // namespace kv::test
