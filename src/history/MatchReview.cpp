#include "history/MatchReview.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "history/MatchReplay.h"
#include "match/Dealing.h"
#include "match/TurnCollector.h"

namespace kv {
namespace {

/// TurnMode_Opt as the sets of the match show it.
int TurnModeOf(const MatchRecord& record) {
  constexpr int kAlternating = 2;
  if (record.sets.size() < 2 || record.sets[0].starts != record.sets[1].starts) return kAlternating;
  return record.sets[0].starts == Seat::Player ? 1 : 3;
}

/// The ten side cards of the opponent, where the record tells.
std::optional<clsDeckArray> DeckOfOpponent(const MatchRecord& record) {
  if (record.strategy.empty()) return {};  // a peer: its deck is its own affair
  clsDeckArray deck = OpponentDeck(record.opponent);
  if (deck.Value(1).type() != CardType::Other) return deck;
  // It plays the player's own hand.
  const bool known =
      std::none_of(record.deck.begin(), record.deck.end(), [](const CardCode& card) { return card.empty(); });
  if (record.opponent != "Yourself" || !known) return {};
  for (int i = 1; i <= kDeckSize; ++i) deck.setValue(i, record.deck.at(static_cast<std::size_t>(i) - 1));
  return deck;
}

std::string Whole(double part) {
  return std::to_string(std::lround(100 * part));
}

std::string RangeText(const Interval& interval) {
  return Whole(interval.low) + " to " + Whole(interval.high) + " %";
}

}  // namespace

std::vector<PlayedTurn> TurnsOf(const MatchRecord& record) {
  std::array<std::optional<clsDeckArray>, 2> decks;
  decks[1] = DeckOfOpponent(record);
  TurnCollector collector;
  collector.Tell(decks, TurnModeOf(record));
  static_cast<void>(
      PlayAgain(record, [&](const MatchEvent& event, const MatchShown&) { collector.Happened(event); }));
  std::vector<PlayedTurn> turns = collector.turns();
  for (PlayedTurn& turn : turns) {
    // A hand that the record does not have cannot be played from.
    for (CardCode& card : turn.position.side(Seat::Player).hand) {
      if (card.type() == CardType::FaceDown) card = CardCode();
    }
  }
  return turns;
}

std::string AssumptionText(const MatchRecord& record) {
  if (DeckOfOpponent(record)) return {};
  return "The opponent's deck is not known: +1 to +6 and -1 to -4 are taken for it, less what it has played.";
}

std::size_t DecisionsIn(const std::vector<PlayedTurn>& turns) {
  return static_cast<std::size_t>(std::count_if(
      turns.begin(), turns.end(), [](const PlayedTurn& each) { return each.position.turn == Seat::Player; }));
}

std::string DecisionText(const MatchPosition& position, const ReviewedTurn& turn) {
  std::string text = "Set " + std::to_string(position.set) + ". " + ReviewWords(position, turn) +
                     (turn.made != 0 ? " 95 % intervals: " : " 95 % interval: ") +
                     RangeText(turn.Made().Within());
  if (turn.made != 0) text += ", " + RangeText(turn.Best().Within());
  return text + ".";
}

std::string CostText(const ReviewedTurn& turn) {
  if (turn.made == 0) return "none";
  return Whole(turn.Cost()) + " %" + (turn.Dear() ? "" : ", within chance");
}

std::vector<std::size_t> ByCost(const std::vector<ReviewedTurn>& turns) {
  std::vector<std::size_t> rows(turns.size());
  std::iota(rows.begin(), rows.end(), std::size_t{0});
  std::stable_sort(rows.begin(), rows.end(), [&](std::size_t a, std::size_t b) {
    if (turns[a].Dear() != turns[b].Dear()) return turns[a].Dear();
    return turns[a].Cost() > turns[b].Cost();
  });
  return rows;
}

BackgroundReview::BackgroundReview(std::vector<PlayedTurn> turns, int matches)
    : thread_([this, matches, played = std::move(turns)] {
        const auto keep = [this](const ReviewedTurn& turn) {
          const std::lock_guard lock(mutex_);
          weighed_.push_back(turn);
        };
        static_cast<void>(ReviewMatch(played, {.matches = matches, .stop = &stop_, .weighed = keep}));
        done_ = true;
      }) {}

std::vector<ReviewedTurn> BackgroundReview::Take() {
  const std::lock_guard lock(mutex_);
  return std::exchange(weighed_, {});
}

}  // namespace kv
