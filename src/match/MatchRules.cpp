#include "match/MatchRules.h"

namespace kv {
namespace {

constexpr int kLowTotal = 10;  // below it the turn may end by itself

SetRule RuleOf(const MatchShown& shown, Seat closing) {
  if (shown.Total(Seat::Player) > kTargetTotal) return SetRule::PlayerOver;
  if (shown.Total(Seat::Opponent) > kTargetTotal) return SetRule::OpponentOver;
  if (shown.TableFull(Seat::Player)) return SetRule::PlayerNine;
  if (shown.TableFull(Seat::Opponent)) return SetRule::OpponentNine;
  if (shown.Total(Seat::Player) != shown.Total(Seat::Opponent)) return SetRule::HigherTotal;
  const auto& table = shown.Table(closing);
  const bool broken = !table.empty() && table.back().type() == CardType::Tiebreaker;
  return broken ? SetRule::Tiebreaker : SetRule::Equal;
}

bool PlayerWins(SetRule rule, const MatchShown& shown, Seat closing) {
  switch (rule) {
    case SetRule::OpponentOver:
    case SetRule::PlayerNine:
      return true;
    case SetRule::Tiebreaker:
      return closing == Seat::Player;
    case SetRule::HigherTotal:
      return shown.Total(Seat::Player) > shown.Total(Seat::Opponent);
    default:
      return false;
  }
}

}  // namespace

bool EndsTurnByItself(const MatchShown& shown, const MatchOptions& options) {
  const int total = shown.Total(Seat::Player);
  if (!options.autoTurn || total >= kLowTotal) return false;
  return !shown.Stood(Seat::Opponent) || shown.Total(Seat::Opponent) > total;
}

StandReason StandReasonOf(const MatchShown& shown, Seat seat) {
  if (shown.Total(seat) > kTargetTotal) return StandReason::OverTwenty;
  if (shown.TableFull(seat)) return StandReason::NineCards;
  return shown.Total(seat) == kTargetTotal ? StandReason::Twenty : StandReason::Choice;
}

SetDecision DecideSet(const MatchShown& shown, Seat closing) {
  const SetRule rule = RuleOf(shown, closing);
  if (rule == SetRule::Equal) return {rule, closing, GameStep::SetTied, false};
  const bool won = PlayerWins(rule, shown, closing);
  const bool last = shown.SetWins(won ? Seat::Player : Seat::Opponent) == kSetsToWin - 1;
  return {rule, closing, won ? GameStep::PlayerWins : GameStep::OpponentWins, last};
}

}  // namespace kv
