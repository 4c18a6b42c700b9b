#include "match/Review.h"

#include <algorithm>
#include <cmath>

#include "match/PossibleMoves.h"

namespace kv {
namespace {

ReviewedTurn Reviewed(std::size_t turn, std::vector<WeighedMove> moves, const TurnMove& made) {
  const auto found = std::find_if(moves.begin(), moves.end(),
                                  [&](const WeighedMove& each) { return SameMove(each.move, made); });
  const auto index = static_cast<std::size_t>(found - moves.begin());
  return {turn, std::move(moves), index};
}

std::vector<std::size_t> Dearest(const std::vector<ReviewedTurn>& turns) {
  std::vector<std::size_t> dearest;
  for (std::size_t i = 0; i < turns.size(); ++i) {
    if (turns[i].Dear()) dearest.push_back(i);
  }
  std::stable_sort(dearest.begin(), dearest.end(),
                   [&](std::size_t a, std::size_t b) { return turns[a].Cost() > turns[b].Cost(); });
  return dearest;
}

std::string Percent(const WeighedMove& move) {
  return std::to_string(std::lround(100 * move.Chance())) + " %";
}

std::string CardText(const CardCode& card) {
  switch (card.type()) {
    case CardType::Double:
      return "the double";
    case CardType::Flip24:
      return "2&4";
    case CardType::Flip36:
      return "3&6";
    case CardType::Tiebreaker:
      return card.cardValue() > 0 ? "+1T" : "-1T";
    default:
      return (card.cardValue() > 0 ? "+" : "") + std::to_string(card.cardValue());
  }
}

std::string MadeWords(const MatchPosition& position, const TurnMove& made) {
  const int total = TotalAfter(position, made);
  const std::string with = made.slot == 0 ? "" : "Played " + CardText(made.card) + " and ";
  if (total > kTargetTotal) return (with.empty() ? "Went over 20" : with + "went over 20");
  const std::string close = made.stands ? "stood on " : "ended on ";
  std::string words = with + close + std::to_string(total);
  words.front() = with.empty() ? (made.stands ? 'S' : 'E') : 'P';
  return words;
}

std::string AgainstWords(const PositionSide& other) {
  if (other.table.empty()) return "";
  return std::string(" against a ") + (other.stood ? "standing " : "total of ") +
         std::to_string(other.Total());
}

std::string BetterWords(const TurnMove& best) {
  const std::string close = best.stands ? "standing" : "ending the turn";
  return best.slot == 0 ? close : "playing " + CardText(best.card) + " and " + close;
}

}  // namespace

Review ReviewMatch(const std::vector<PlayedTurn>& match, const ReviewPlan& plan) {
  Review review;
  SeededRandom random(plan.seed);
  for (std::size_t i = 0; i < match.size(); ++i) {
    const PlayedTurn& played = match[i];
    if (played.position.turn != plan.seat) continue;
    std::vector<WeighedMove> moves =
        Weigh({.position = played.position, .matches = plan.matches, .made = played.made, .stop = plan.stop},
              random);
    if (plan.stop != nullptr && plan.stop->load()) break;
    review.turns.push_back(Reviewed(i, std::move(moves), played.made));
    if (plan.weighed) plan.weighed(review.turns.back());
  }
  review.whole = plan.stop == nullptr || !plan.stop->load();
  review.dearest = Dearest(review.turns);
  return review;
}

std::string ReviewWords(const MatchPosition& position, const ReviewedTurn& turn) {
  std::string words =
      MadeWords(position, turn.Made().move) + AgainstWords(position.other()) + ": " + Percent(turn.Made());
  if (turn.made != 0) words += "; " + BetterWords(turn.Best().move) + " wins " + Percent(turn.Best());
  return words + ".";
}

}  // namespace kv
