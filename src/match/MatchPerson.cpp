#include "match/MatchPerson.h"

#include <string>

#include "ai/HandSearch.h"
#include "match/MatchEngine.h"
#include "platform/Dialogs.h"

namespace kv {
namespace {

constexpr int kHandCardPause = 125;  // before an automatic stand, so that the card is seen

constexpr bool IsHandSlot(int slot) {
  return slot >= 1 && slot <= kHandSize;
}

}  // namespace

void MatchPerson::Ask() {
  if (strategy_ != nullptr) operations_.Ask(*strategy_);
}

void MatchPerson::EndTurn() {
  if (!engine_.shown_.controls.endTurn) return;
  engine_.teller_.EndedTurn(Seat::Player);
  engine_.EndPlayerTurn();
}

void MatchPerson::Stand() {
  if (engine_.shown_.controls.stand) engine_.StandPlayer(false);
}

void MatchPerson::PlayHandCard(int slot) {
  MatchShown& shown = engine_.shown_;
  if (!shown.controls.hand || !IsHandSlot(slot) || IsEmptySlot(shown.HandCard(Seat::Player, slot))) return;
  const CardCode code = shown.HandCard(Seat::Player, slot);
  shown.controls.hand = false;
  engine_.view_.ControlsChanged();
  engine_.board_.EmptyHandSlot(Seat::Player, slot);
  engine_.view_.PlaySound("playcard");
  engine_.net_.NetSend("[Hand]" + std::to_string(slot) + code.text());
  engine_.board_.PlayFromHand(Seat::Player, slot, code);
  if (!StandsByItself(engine_.shown_)) return;
  // The turn is decided: nothing may be pressed while the card is being looked at.
  engine_.SetTurnControls(false);
  if (engine_.pauses_.Wait(kHandCardPause)) engine_.StandPlayer(true);
}

bool MatchPerson::MayFlip(int slot) const {
  return engine_.shown_.controls.flips && IsHandSlot(slot);
}

void MatchPerson::FirstFlip(int slot) {
  if (!MayFlip(slot) || !engine_.shown_.HandCard(Seat::Player, slot).hasFirstFlip()) return;
  engine_.board_.hand(Seat::Player).setValue(slot, engine_.shown_.HandCard(Seat::Player, slot).FirstFlip());
  engine_.view_.HandChanged(Seat::Player, slot);
  engine_.view_.PlaySound("click");
  engine_.teller_.Flipped(slot);
}

void MatchPerson::SecondFlip(int slot) {
  if (!MayFlip(slot) || !engine_.shown_.HandCard(Seat::Player, slot).hasSecondFlip()) return;
  engine_.board_.hand(Seat::Player).setValue(slot, engine_.shown_.HandCard(Seat::Player, slot).SecondFlip());
  engine_.view_.HandChanged(Seat::Player, slot);
  engine_.view_.PlaySound("click");
  engine_.teller_.Flipped(slot);
}

void MatchPerson::Forfeit() {
  if (engine_.pauses_.closed()) return;
  if (engine_.game_.Wager != -1) {
    engine_.pauses_.WhenQuiet([this] { AskForfeit(); });
    return;
  }
  if (!engine_.shown_.banner.buttonEnabled) return;
  engine_.view_.PlaySound("click");
  engine_.Continue();
}

void MatchPerson::AskForfeit() {
  if (engine_.game_.Wager == -1) return;  // it ended in the pause that the question waited for
  const bool sure = dialogs_.AskYesNo("Are you sure you wish to forfeit this match?",
                                      "Kelm Vantri: Forfeit Match", DialogIcon::Exclamation);
  // The match went on behind the question: it may be over, or the screen gone. One that is decided is no
  // longer given up, for the peer knows the result already.
  if (engine_.pauses_.closed() || engine_.game_.Wager == -1) return;
  if (!sure || (engine_.decision_ && engine_.decision_->endsMatch)) {
    engine_.view_.ControlsChanged();  // the Forfeit button disabled itself when it was clicked
    return;
  }
  stopped_ = true;
  engine_.teller_.Tell(event::Forfeited{Seat::Player});
  engine_.StopMatch();
  if (engine_.network_) engine_.net_.NetSend("[Forf]");
  engine_.LoseMatch(Seat::Player);
}

void MatchPerson::LoseByLeaving() {
  engine_.StopMatch();
  engine_.teller_.Tell(event::Forfeited{Seat::Player});
  engine_.teller_.MatchDecided(Seat::Opponent);
  engine_.book_.Result(Seat::Opponent);
}

}  // namespace kv
