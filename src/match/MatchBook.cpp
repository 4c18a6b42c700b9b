#include "match/MatchBook.h"

#include "match/clsGame.h"

namespace kv {

std::int32_t MatchBook::Credits() const {
  return game_.CreditsRef == nullptr ? 0 : game_.CreditsRef->Value;
}

template <typename Settle>
void MatchBook::Book(event::Result result, const Settle& settle) {
  if (game_.Wager != -1) stake_ = game_.Wager;
  const std::int32_t before = Credits();
  settle();
  teller_.Tell(event::Booked{result, stake_, before, Credits()});
}

void MatchBook::Result(Seat winner) {
  if (winner == Seat::Player) {
    Book(event::Result::Won, [this] { booking_.SaveWin(); });
  } else {
    Book(event::Result::Lost, [this] { booking_.SaveLoss(); });
  }
}

void MatchBook::TurnLossIntoWin() {
  Book(event::Result::Won, [this] { booking_.TurnLossIntoWin(); });
}

void MatchBook::BrokenOff(const std::function<void()>& settle) {
  Book(event::Result::BrokenOff, settle);
}

}  // namespace kv
