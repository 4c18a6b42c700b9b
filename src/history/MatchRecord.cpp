#include "history/MatchRecord.h"

#include "ai/clsAI_Ember.h"
#include "match/clsGame.h"
#include "platform/Version.h"

namespace kv {
namespace {

std::string StrategyName(const clsGame& game) {
  if (game.isNetwork() || game.AI == nullptr) return {};
  return dynamic_cast<const clsAI_Ember*>(game.AI.get()) != nullptr ? "ember" : "standard";
}

}  // namespace

std::optional<Seat> WinnerOf(const RecordedResult& result) {
  switch (result.rule) {
    case SetRule::PlayerOver:
    case SetRule::OpponentNine:
      return Seat::Opponent;
    case SetRule::OpponentOver:
    case SetRule::PlayerNine:
      return Seat::Player;
    case SetRule::Tiebreaker:
      return result.closing;
    case SetRule::HigherTotal:
      return result.totals[0] > result.totals[1] ? Seat::Player : Seat::Opponent;
    case SetRule::Equal:
      break;
  }
  return {};
}

MatchRecord RecordOf(const clsGame& game, std::int64_t time) {
  MatchRecord record;
  record.time = time;
  record.version = kProgramVersion;
  record.mode = game.Mode;
  record.strategy = StrategyName(game);
  if (game.DeckRef != nullptr) record.deck = game.DeckRef->getValue();
  return record;
}

}  // namespace kv
