// A set that passes through every pause a match knows, played to its end against a strategy or a peer. A test
// may break in at any of them (MatchTable::inPause): the course then goes only as far as the match allows.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "support/MatchTable.h"

namespace kv::test {

class MatchCourse {
 public:
  explicit MatchCourse(const std::string& mode = std::string(kModeArcade), MatchOptions options = {})
      : network(mode != kModeArcade), table(TheDeal(mode, options)) {
    table.strategy.turns = {PlayFirst, StandOpponent};
  }

  /// The pauses of the course at normal speed, in Slate or in a network match, in milliseconds.
  static std::vector<int> Pauses(const std::string& mode) {
    if (mode != kModeArcade) return {350, 210, 178, 210, 210, 125, 210, 210, 140};
    return {350, 380, 323, 380, 250, 175, 380, 125, 380, 380, 250, 253};
  }
  /// 4 ends the first turn by itself; 10 and "ps6" make twenty in the second; the other side stands on 10.
  void Play() {
    table.Start();
    if (network) {
      table.PeerReady();
      if (table.engine->peer().peerTurn() == PeerTurn::Theirs) {
        table.engine->peer().OppDraw(7);
        table.engine->peer().AI_EndTurn();
        table.Run();
      }
    }
    table.Play(1);
    if (network) table.PeerStands(3);
  }
  /// Calls `act` in the pause of this number, counted from 1.
  void InPause(int number, std::function<void()> act) {
    table.inPause = [this, number, act = std::move(act)] {
      if (static_cast<int>(table.pauses.size()) == number) act();
    };
  }
  /// Whatever could still move is tried.
  void TryEverything() {
    MatchEngine& engine = *table.engine;
    engine.GameTick();
    engine.pauses().QuietTick();
    for (int slot = 1; slot <= kHandSize; ++slot) {
      engine.person().PlayHandCard(slot);
      engine.person().FirstFlip(slot);
      engine.person().SecondFlip(slot);
    }
    engine.person().EndTurn();
    engine.person().Stand();
    table.Run();
  }

  const bool network;
  MatchTable table;

 private:
  static Deal TheDeal(const std::string& mode, MatchOptions options) {
    options.turnMode = 1;
    options.autoTurn = true;
    Deal deal{.hand = {"ps6", "fp1"}, .opponentHand = {"ps2"}, .draws = {4, 5, 10, 3}, .options = options};
    deal.mode = mode;
    if (mode != kModeArcade) {
      deal.draws = {9, 4, 10};  // the first one lets the player begin
      deal.hosting = true;
    }
    return deal;
  }
};

/// Three sets in which both stand at once, on `yours` and `theirs`.
[[nodiscard]] inline Deal ThreeSets(int yours, int theirs) {
  return {.hand = {"ps1"}, .draws = {yours, theirs, yours, theirs, yours, theirs}};
}

/// The first `sets` of them, up to the last one's banner.
inline void PlaySets(MatchTable& table, int sets) {
  for (int set = 1; set <= sets; ++set) {
    if (set == 1) table.Start();
    table.strategy.turns = {StandOpponent};
    table.Stand();
    if (set < sets) table.Continue();
  }
}

}  // namespace kv::test
