#include "history/MatchLine.h"

#include <algorithm>
#include <cstdlib>

#include "history/RecordWords.h"

namespace kv {
namespace {

EndStyle StyleOfRule(SetRule rule) {
  switch (rule) {
    case SetRule::PlayerOver:
    case SetRule::OpponentOver:
      return EndStyle::OverTwenty;
    case SetRule::PlayerNine:
    case SetRule::OpponentNine:
      return EndStyle::NineCards;
    case SetRule::Tiebreaker:
      return EndStyle::TieBroken;
    default:
      return EndStyle::HigherTotal;
  }
}

EndStyle StyleOf(const MatchRecord& record) {
  switch (record.ending) {
    case MatchEnding::GivenUp:
      return EndStyle::GivenUp;
    case MatchEnding::PeerGone:
      return EndStyle::PeerGone;
    case MatchEnding::Left:
      return EndStyle::Left;
    case MatchEnding::ThreeSets:
      break;
  }
  const bool known = !record.sets.empty() && record.sets.back().result;
  return known ? StyleOfRule(record.sets.back().result->rule) : EndStyle::HigherTotal;
}

std::string PlayedCards(const MatchRecord& record) {
  std::vector<std::string> cards;
  for (const RecordedSet& set : record.sets) {
    for (const RecordedMove& move : set.moves) {
      if (move.kind == MoveKind::Play && move.seat == Seat::Player) cards.push_back(InDeck(move.card).text());
    }
  }
  std::sort(cards.begin(), cards.end());
  cards.erase(std::unique(cards.begin(), cards.end()), cards.end());
  std::string text;
  for (const std::string& card : cards) text += (text.empty() ? "" : " ") + card;
  return text;
}

}  // namespace

CardCode InDeck(const CardCode& card) {
  switch (card.type()) {
    case CardType::FlipPlus:
    case CardType::FlipMinus:
      return {CardType::Flip, std::abs(card.number())};
    case CardType::Tiebreaker:
    case CardType::OneOrTwo:
      return {card.type(), kNotChosen};
    default:
      return card;
  }
}

MatchLine LineOf(const MatchRecord& record) {
  MatchLine line;
  line.time = record.time;
  line.version = words::LineOf(record.version);
  line.mode = words::LineOf(record.mode);
  line.opponent = words::LineOf(record.opponent);
  line.strategy = words::LineOf(record.strategy);
  line.stake = record.stake;
  line.deck = words::CodesText(record.deck.data(), record.deck.size());
  line.cards = PlayedCards(record);
  line.style = StyleOf(record);
  line.setWins = record.setWins;
  if (const auto& booking = record.booking) {
    line.outcome = static_cast<MatchOutcome>(booking->result);
    line.before = booking->before;
    line.after = booking->after;
  }
  return line;
}

}  // namespace kv
