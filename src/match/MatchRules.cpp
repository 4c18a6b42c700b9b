#include "match/MatchRules.h"

namespace kv {
namespace {

constexpr int kLowTotal = 10;  // below it the turn may end by itself

GameStep ResultOf(const MatchShown& shown, Seat closing) {
  const MatchSide& player = shown.side(Seat::Player);
  const MatchSide& opponent = shown.side(Seat::Opponent);
  if (player.total > kTargetTotal) return GameStep::OpponentWins;
  if (opponent.total > kTargetTotal) return GameStep::PlayerWins;
  if (shown.TableFull(Seat::Player)) return GameStep::PlayerWins;
  if (shown.TableFull(Seat::Opponent)) return GameStep::OpponentWins;
  if (player.total == opponent.total) {
    const auto& table = shown.Table(closing);
    const bool broken = !table.empty() && table.back().type() == CardType::Tiebreaker;
    if (!broken) return GameStep::SetTied;
    return closing == Seat::Player ? GameStep::PlayerWins : GameStep::OpponentWins;
  }
  return player.total > opponent.total ? GameStep::PlayerWins : GameStep::OpponentWins;
}

}  // namespace

bool StandsByItself(const MatchShown& shown) {
  return shown.TableFull(Seat::Player) || shown.Total(Seat::Player) == kTargetTotal;
}

bool EndsTurnByItself(const MatchShown& shown, const MatchOptions& options) {
  const int total = shown.Total(Seat::Player);
  const bool opponentBehind = shown.Stood(Seat::Opponent) && shown.Total(Seat::Opponent) <= total;
  return options.autoTurn && total < kLowTotal && !opponentBehind;
}

bool SetIsOver(const MatchShown& shown, Seat closing) {
  return shown.TableFull(closing) || (shown.Stood(Seat::Player) && shown.Stood(Seat::Opponent));
}

SetDecision DecideSet(const MatchShown& shown, Seat closing) {
  const GameStep result = ResultOf(shown, closing);
  const bool last = (result == GameStep::PlayerWins && shown.SetWins(Seat::Player) == kSetsToWin - 1) ||
                    (result == GameStep::OpponentWins && shown.SetWins(Seat::Opponent) == kSetsToWin - 1);
  return {closing, result, last};
}

}  // namespace kv
