#include "match/MatchSentences.h"

#include <cstdlib>

#include "ai/HandSearch.h"

namespace kv {
namespace {

std::string NumberWords(int number) {
  return (number < 0 ? "minus " : "") + std::to_string(std::abs(number));
}

std::string SignedWords(int number) {
  return (number < 0 ? "minus " : "plus ") + std::to_string(std::abs(number));
}

std::string To(int first, int second) {
  return std::to_string(first) + " to " + std::to_string(second);
}

std::string Total(int total) {
  return "total " + NumberWords(total);
}

/// "plus 3", or for a card that becomes something else or changes others: what, and which.
std::string PlayWords(const event::Played& played) {
  std::string words = CardWords(played.card);
  if (played.card.type() == CardType::Double) words += ", " + NumberWords(played.landed.cardValue());
  for (const event::TurnedCard& turned : played.turned) {
    words += ", card " + std::to_string(turned.index) + " is now " + NumberWords(turned.card.cardValue());
  }
  return words;
}

std::string StandWords(StandReason why) {
  switch (why) {
    case StandReason::OverTwenty:
      return "over 20";
    case StandReason::NineCards:
      return "stands, nine cards on the table";
    default:
      return "stands";
  }
}

std::string SideText(const MatchSide& side) {
  std::string text;
  for (const CardCode& card : side.table) text += NumberWords(card.cardValue()) + ", ";
  return (text.empty() ? "empty, " : text) + Total(side.total) + (side.stood ? ", stands." : ".");
}

}  // namespace

std::string ReasonText(const event::SetDecided& decided) {
  switch (decided.decision.rule) {
    case SetRule::PlayerOver:
    case SetRule::OpponentOver:
      return "over 20";
    case SetRule::PlayerNine:
    case SetRule::OpponentNine:
      return "nine cards on the table";
    case SetRule::Tiebreaker:
      return "the tiebreaker wins the tie";
    case SetRule::Equal:
    case SetRule::HigherTotal:
      break;
  }
  const bool lost = decided.decision.result == GameStep::OpponentWins;
  return To(decided.totals.at(lost ? 1 : 0), decided.totals.at(lost ? 0 : 1));
}

std::string CardWords(const CardCode& card) {
  const bool chosen = card.number() != kNotChosen;
  switch (card.type()) {
    case CardType::MainDeck:
      return NumberWords(card.cardValue());
    case CardType::Tiebreaker:
      return chosen ? "tiebreaker " + SignedWords(card.cardValue()) : "tiebreaker";
    case CardType::Double:
      return "double";
    case CardType::Flip24:
      return "2 and 4 card";
    case CardType::Flip36:
      return "3 and 6 card";
    case CardType::OneOrTwo:
      return chosen ? "one or two, " + SignedWords(card.cardValue()) : "one or two";
    default:
      return SignedWords(card.cardValue());
  }
}

std::string HandText(const MatchShown& shown) {
  std::string text;
  for (int slot = 1; slot <= kHandSize; ++slot) {
    const CardCode& card = shown.HandCard(Seat::Player, slot);
    if (!IsEmptySlot(card)) text += (text.empty() ? "" : "; ") + CardWords(card);
  }
  return "Hand: " + (text.empty() ? "empty" : text) + ".";
}

std::string LeftText(const MatchShown& shown) {
  int left = 0;
  for (int slot = 1; slot <= kHandSize; ++slot) {
    if (!IsEmptySlot(shown.HandCard(Seat::Opponent, slot))) ++left;
  }
  return std::to_string(left) + (left == 1 ? " card in hand." : " cards in hand.");
}

std::string TableText(const MatchShown& shown, const std::string& opponent) {
  return "Your table: " + SideText(shown.side(Seat::Player)) + " " + opponent +
         "'s table: " + SideText(shown.side(Seat::Opponent)) + " " + LeftText(shown) + " Sets " +
         To(shown.SetWins(Seat::Player), shown.SetWins(Seat::Opponent)) + ". " + HandText(shown) +
         (shown.Light(Seat::Player) ? " Your turn." : "");
}

void MatchSentences::Happened(const MatchEvent& event) {
  std::visit([this](const auto& each) { Tell(each); }, event);
}

void MatchSentences::SayTurn(const std::string& end) {
  if (!turn_.empty()) say_(turn_ + ", " + Total(total_) + end + ".");
  turn_.clear();
}

std::string MatchSentences::Does(Seat seat, const std::string& verb) const {
  return seat == Seat::Player ? "You " + verb : opponent_ + " " + verb + "s";
}

void MatchSentences::Tell(const event::MatchBegun& begun) {
  if (!begun.opponent.empty()) opponent_ = begun.opponent;
  say_("The match against " + (begun.opponent.empty() ? "the opponent" : opponent_) + " begins, for " +
       std::to_string(begun.stake) + " credits.");
}

void MatchSentences::Tell(const event::SetBegun& begun) {
  SayTurn();
  say_("Set " + std::to_string(begun.number) + ". " + Does(begun.starts, "begin") + ".");
}

void MatchSentences::Tell(const event::Drew& drew) {
  const std::string card = CardWords(drew.card);
  if (drew.seat == Seat::Player) {
    say_("Your turn. You draw " + card + ", " + Total(drew.total) + ".");
    return;
  }
  turn_ = opponent_ + " draws " + card;
  total_ = drew.total;
}

void MatchSentences::Tell(const event::Flipped& flipped) {
  say_("You flip to " + NumberWords(flipped.card.cardValue()) + ".");
}

void MatchSentences::Tell(const event::Played& played) {
  if (played.seat == Seat::Player) {
    say_("You play " + PlayWords(played) + ", " + Total(played.total) + ".");
    return;
  }
  turn_ += (turn_.empty() ? opponent_ : ",") + " plays " + PlayWords(played);
  total_ = played.total;
}

void MatchSentences::Tell(const event::EndedTurn& ended) {
  if (ended.seat == Seat::Player) {
    say_("You end your turn.");
  } else {
    SayTurn();
  }
}

void MatchSentences::Tell(const event::Stood& stood) {
  if (stood.seat == Seat::Opponent) {
    SayTurn(", " + StandWords(stood.why));
  } else if (stood.why == StandReason::OverTwenty) {
    say_("You are over 20.");
  } else {
    say_("You stand on " + NumberWords(stood.total) +
         (stood.why == StandReason::NineCards ? ", nine cards on the table." : "."));
  }
}

void MatchSentences::Tell(const event::SetDecided& decided) {
  SayTurn();
  const auto& [yours, theirs] = decided.totals;
  if (decided.decision.result == GameStep::SetTied) {
    say_("The set is tied, " + ReasonText(decided) + ".");
    return;
  }
  const bool won = decided.decision.result == GameStep::PlayerWins;
  const std::string totals = won ? To(yours, theirs) : To(theirs, yours);
  const bool plain = decided.decision.rule == SetRule::HigherTotal;
  say_(Does(won ? Seat::Player : Seat::Opponent, "win") + " the set, " + totals +
       (plain ? "" : ": " + ReasonText(decided)) + ".");
}

void MatchSentences::Tell(const event::MatchDecided& decided) {
  const auto& [yours, theirs] = decided.setWins;
  say_(Does(decided.winner, "win") + " the match, " +
       (decided.winner == Seat::Player ? To(yours, theirs) : To(theirs, yours)) + ".");
}

void MatchSentences::Tell(const event::Booked& booked) {
  if (booked.after != booked.before) say_("You have " + std::to_string(booked.after) + " credits.");
}

void MatchSentences::Tell(const event::Forfeited& forfeited) {
  SayTurn();
  say_(Does(forfeited.seat, "give") + " up the match.");
}

void MatchSentences::Tell(const event::PeerGone&) {
  SayTurn();
  say_(opponent_ + " has left the match.");
}

}  // namespace kv
