#include "ai/clsAI_Normal.h"

#include <cstdlib>

namespace kv {
namespace {

/// One turn of the standard strategy. Each rule returns true when it has closed the turn.
class Turn {
 public:
  Turn(AiOperations& side, int total, int oppTotal, int uWins, bool uStand,
       clsAI_Normal::AfterRescue afterRescue)
      : side_(side),
        total_(total),
        oppTotal_(oppTotal),
        uWins_(uWins),
        uStand_(uStand),
        afterRescue_(afterRescue) {}

  void Play() {
    const bool considersCards = side_.AI_CardCount() != 0 && total_ >= 10;
    if (considersCards &&
        (StandAtOnce() || InvertLongTable() || ExactTwenty() || NinthCard() || BeatStandingHuman() ||
         TieWithTiebreaker() || OverTwenty() || SettleOnNineteen())) {
      return;
    }
    Default();
  }

 private:
  bool Stand() {
    side_.AI_Stand();
    return true;
  }

  bool EndTurn() {
    side_.AI_EndTurn();
    return true;
  }

  bool PlayAndStand(int slot) {
    side_.AI_PlayCard(slot);
    return Stand();
  }

  /// The first slot found for a change from `from` to `to`, in steps of `step`; 0 if none.
  int FindFirst(int from, int to, int step) {
    for (int change = from; step > 0 ? change <= to : change >= to; change += step) {
      if (const int slot = side_.AI_FindCard(change); slot != 0) return slot;
    }
    return 0;
  }

  // Rule 2: ahead of a human who has stood, a full table, or twenty.
  bool StandAtOnce() {
    const bool ahead = total_ > oppTotal_ && total_ < kTarget && uStand_;
    return (ahead || side_.TableCount() == kFullTable || total_ == kTarget) && Stand();
  }

  // Rule 3: on a long table, turn the signs when that leaves under a third; the ninth card then wins.
  bool InvertLongTable() {
    if (side_.TableCount() < 5 || total_ < 17) return false;
    const int limit = static_cast<int>(0.3 * total_);
    return PlayInverter("s3", side_.AI_TestInvert(2, 4), limit) ||
           PlayInverter("s4", side_.AI_TestInvert(3, 6), limit);
  }

  bool PlayInverter(const char* type, int totalAfter, int limit) {
    if (totalAfter > limit) return false;
    const int slot = side_.AI_FindCardType(type);
    if (slot == 0) return false;
    side_.AI_PlayCard(slot);
    return EndTurn();
  }

  // Rule 4: a card that makes twenty; against a human on twenty the tiebreaker goes first.
  bool ExactTwenty() {
    int slot = side_.AI_FindCard(kTarget - total_);
    if (slot == 0) return false;
    if (const int tiebreaker = side_.AI_FindCardType("s1");
        tiebreaker != 0 && std::abs(kTarget - total_) == 1 && oppTotal_ == kTarget) {
      side_.SetHandCode(tiebreaker, CardCode(CardType::Tiebreaker, oppTotal_ - total_));
      slot = tiebreaker;
    }
    return PlayAndStand(slot);
  }

  // Rule 5: any card that keeps the ninth at twenty or less wins the set.
  bool NinthCard() {
    if (side_.TableCount() != kFullTable - 1 || total_ < 15 || total_ >= kTarget) return false;
    const int slot = FindFirst(-6, kTarget - total_, 1);
    return slot != 0 && PlayAndStand(slot);
  }

  // Rule 6: the lowest total that beats a human who stands on less than twenty.
  bool BeatStandingHuman() {
    if (total_ < 15 || oppTotal_ < 15 || oppTotal_ >= kTarget || !uStand_) return false;
    const int slot = FindFirst(oppTotal_ + 1 - total_, kTarget - total_, 1);
    return slot != 0 && PlayAndStand(slot);
  }

  // Rule 7: equal totals with a tiebreaker as the last card win.
  bool TieWithTiebreaker() {
    const int slot = side_.AI_FindCardType("s1");
    if (slot == 0 || oppTotal_ - total_ != 1 || oppTotal_ < 17 || !uStand_) return false;
    side_.SetHandCode(slot, CardCode(CardType::Tiebreaker, 1));
    return PlayAndStand(slot);
  }

  // Rule 8: over twenty, back to nineteen, or to anything when the human needs only one more set.
  bool OverTwenty() {
    if (total_ <= kTarget) return false;
    if (const int slot = side_.AI_FindCard(19 - total_); slot != 0 && oppTotal_ != kTarget)
      return PlayAndStand(slot);
    if (uWins_ != 2) return false;
    const int slot = FindFirst(kTarget - total_, -24, -1);
    if (slot == 0) return false;
    side_.AI_PlayCard(slot);
    return StandsAfterRescue() ? Stand() : EndTurn();
  }

  bool StandsAfterRescue() const {
    if (side_.TableCount() == kFullTable) return true;
    switch (afterRescue_) {
      case clsAI_Normal::AfterRescue::EndTurn:
        return false;
      case clsAI_Normal::AfterRescue::Stand:
        return true;
      case clsAI_Normal::AfterRescue::StandWhenAhead:
        break;
    }
    return side_.Total() >= 18 && side_.Total() >= oppTotal_;
  }

  // Rule 9: nineteen is good enough when no big minus card is left to save a later bust.
  bool SettleOnNineteen() {
    bool minusLeft = false;
    for (const int change : {-6, -5, -4}) minusLeft = side_.AI_FindCard(change) != 0 || minusLeft;
    const int slot = side_.AI_FindCard(19 - total_);
    if (slot == 0 || minusLeft || total_ < 15 || oppTotal_ == kTarget || uWins_ < 1) return false;
    if (slot == side_.AI_FindCardType("s3") || slot == side_.AI_FindCardType("s4")) return false;
    return PlayAndStand(slot);
  }

  // Rule 10.
  void Default() {
    const bool nineteen = uWins_ <= 1 && total_ == 19 && oppTotal_ <= 19;
    const bool nothingToGain = (side_.AI_CardCount() == 0 || uStand_) && total_ >= 17 && total_ >= oppTotal_;
    if (nineteen || nothingToGain) {
      Stand();
    } else {
      EndTurn();
    }
  }

  AiOperations& side_;
  int total_;
  int oppTotal_;
  int uWins_;
  bool uStand_;
  clsAI_Normal::AfterRescue afterRescue_;
};

}  // namespace

void clsAI_Normal::AI(AiOperations& side, int total, int oppTotal, int uWins, int /*oWins*/, bool uStand,
                      bool /*oStand*/) {
  Turn(side, total, oppTotal, uWins, uStand, afterRescue_).Play();
}

}  // namespace kv
