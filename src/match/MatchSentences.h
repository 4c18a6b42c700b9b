// A match in short English sentences, for speech and for a list of the last moves. They are made from what
// happened and from what is shown, with all that is needed to follow a match without seeing it; nothing here
// works out a rule.
#pragma once

#include <functional>
#include <string>

#include "match/MatchObserver.h"
#include "match/MatchShown.h"

namespace kv {

/// Why the set ended as it did, whoever won it: "18 to 12" (the winner's total first), "over 20", "nine cards
/// on the table", "the tiebreaker wins the tie".
[[nodiscard]] std::string ReasonText(const event::SetDecided& decided);

/// "7", "plus 3", "minus 2", "tiebreaker minus 1", "double", "2 and 4 card", "one or two, plus 2".
[[nodiscard]] std::string CardWords(const CardCode& card);

/// "Hand: plus 3, minus 2." or "Hand: empty."
[[nodiscard]] std::string HandText(const MatchShown& shown);
/// "4 cards in hand.", of the opponent
[[nodiscard]] std::string LeftText(const MatchShown& shown);
/// "Your table: 7, 4, minus 2, total 9. Orrin Vaal's table: 10, total 10, stands. 4 cards in hand. Sets 1
/// to 2. Hand: plus 3. Your turn."
[[nodiscard]] std::string TableText(const MatchShown& shown, const std::string& opponent);

/// Says each sentence as soon as it is complete: what the person does at once, a turn of the opponent when it
/// ends ("Orrin Vaal draws 4, plays minus 3, total 18, stands.").
class MatchSentences final : public MatchObserver {
 public:
  explicit MatchSentences(std::function<void(const std::string& sentence)> say) : say_(std::move(say)) {}

  void Happened(const MatchEvent& event) override;

 private:
  void Tell(const event::MatchBegun& begun);
  void Tell(const event::SetBegun& begun);
  void Tell(const event::Drew& drew);
  void Tell(const event::Flipped& flipped);
  void Tell(const event::Played& played);
  void Tell(const event::EndedTurn& ended);
  void Tell(const event::Stood& stood);
  void Tell(const event::SetDecided& decided);
  void Tell(const event::MatchDecided& decided);
  void Tell(const event::Booked& booked);
  void Tell(const event::Forfeited& forfeited);
  void Tell(const event::PeerGone& gone);
  /// What is left of a turn of the opponent's that was cut off.
  void SayTurn(const std::string& end = {});
  /// "You win" or "Orrin Vaal wins".
  [[nodiscard]] std::string Does(Seat seat, const std::string& verb) const;

  std::function<void(const std::string& sentence)> say_;
  std::string opponent_ = "The opponent";
  std::string turn_;  // of the opponent, as far as it has come
  int total_ = 0;     // of the opponent
};

}  // namespace kv
