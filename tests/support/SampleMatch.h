// Recorded matches that differ by a seed.
#pragma once

#include "ai/clsAI_Ember.h"
#include "ai/clsAI_Normal.h"
#include "history/MatchRecorder.h"
#include "history/MatchReplay.h"
#include "match/Dealing.h"
#include "match/HeadlessMatch.h"

namespace kv::test {

/// Played by ember against the standard strategy, an hour later for each seed; booked for 10 credits.
inline MatchRecord SampleMatch(std::uint64_t seed, const std::string& opponent = "H6-J8") {
  SeededRandom random(seed);
  clsAI_Normal standard;
  clsAI_Ember ember;
  clsDeckArray deck;
  deck.DefaultDeckMP();
  MatchRecord head;
  head.time = 1'700'000'000 + static_cast<std::int64_t>(seed) * 3600;
  head.version = "1.2.4";
  head.mode = "Campaign";
  head.strategy = "standard";
  head.deck = deck.getValue();
  MatchRecorder recorder(std::move(head));
  static_cast<void>(PlayHeadless({ember, standard, deck, OpponentDeck("H6-J8"), {}, &recorder}, random));
  MatchRecord record = recorder.record();
  record.opponent = opponent;
  record.booking->before = 90;
  record.booking->after = record.winner == Seat::Player ? 110 : 90;
  return record;
}

}  // namespace kv::test
