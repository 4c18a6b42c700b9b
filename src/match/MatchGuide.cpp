#include "match/MatchGuide.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdlib>
#include <filesystem>

#include "ai/HandSearch.h"
#include "match/clsGame.h"
#include "profile/Settings.h"
#include "profile/clsPlayer.h"

namespace kv {
namespace {

constexpr int kGoodTotal = 17;  // from here on standing is worth a thought
constexpr std::size_t kManyCards = 6;

// In a turn the first that matters is said. The turn itself comes before all others.
constexpr std::array kHints = {Guidance::Turn, Guidance::SideCard, Guidance::Sign, Guidance::Stand,
                               Guidance::Special};

const char* NameOfHint(Guidance guidance) {
  switch (guidance) {
    case Guidance::Offer:
      return "offer";
    case Guidance::Turn:
      return "turn";
    case Guidance::SideCard:
      return "side_card";
    case Guidance::Sign:
      return "sign";
    case Guidance::Stand:
      return "stand";
    case Guidance::Special:
      return "special";
    case Guidance::None:
      break;
  }
  return "";
}

/// Letters and digits as they are, every other byte as two hexadecimal digits behind a "_".
std::string SettingPart(const std::string& fileName) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string part;
  for (const char c : std::filesystem::path(fileName).stem().string()) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80 && std::isalnum(byte) != 0) {
      part += c;
    } else {
      part.append("_").append(1, kDigits[byte / 16]).append(1, kDigits[byte % 16]);
    }
  }
  return part;
}

bool GoodTotal(int total) {
  return total >= kGoodTotal && total <= kTargetTotal;
}

/// The hand card that a total asks for: as it is held now, or with its sign turned.
int WantedSlot(const MatchShown& shown, bool turned) {
  const int total = shown.Total(Seat::Player);
  for (int slot = 1; slot <= kHandSize; ++slot) {
    const CardCode& card = shown.HandCard(Seat::Player, slot);
    if (IsEmptySlot(card) || (turned && !card.hasFirstFlip())) continue;
    const int after = total + (turned ? card.FirstFlip() : card).cardValue();
    const bool better = total > kTargetTotal ? after <= kTargetTotal : after > total && GoodTotal(after);
    if (better) return slot;
  }
  return 0;
}

bool HoldsSpecial(const MatchShown& shown) {
  for (int slot = 1; slot <= kHandSize; ++slot) {
    const CardType type = shown.HandCard(Seat::Player, slot).type();
    if (type == CardType::Double || type == CardType::Tiebreaker) return true;
  }
  return false;
}

std::string SideCardText(const MatchShown& shown) {
  const int total = shown.Total(Seat::Player);
  const int slot = std::max(1, WantedSlot(shown, false));
  const std::string card = shown.HandCard(Seat::Player, slot).Caption();
  return (total > kTargetTotal ? std::to_string(total) + " loses, unless you play " + card + " now"
                               : card + " would bring you closer to 20") +
         ": double-click it, or drag it onto the table. It is gone then.";
}

std::string SignText(const MatchShown& shown) {
  const int slot = std::max(1, WantedSlot(shown, true));
  return "The button below " + shown.HandCard(Seat::Player, slot).Caption() +
         " turns its sign. Turn it, then play the card.";
}

}  // namespace

std::string GuideText(Guidance guidance, const MatchShown& shown) {
  switch (guidance) {
    case Guidance::Offer:
      return "Your first match. Shall I explain it as it goes, in five hints?";
    case Guidance::Turn:
      return "Your card came by itself. End Turn draws again next time, Stand keeps the total. Over 20 "
             "loses.";
    case Guidance::SideCard:
      return SideCardText(shown);
    case Guidance::Sign:
      return SignText(shown);
    case Guidance::Stand:
      return std::to_string(shown.Total(Seat::Player)) +
             " is close to 20. Stand keeps it: you draw no more, and the other side must beat it.";
    case Guidance::Special:
      return "Nine cards not over 20 win a set. D repeats the card just drawn. T wins a tie as the last "
             "card.";
    case Guidance::None:
      break;
  }
  return {};
}

MatchGuide::MatchGuide(const clsGame& game, const clsPlayer& player, Settings* settings,
                       const MatchShown& shown)
    : shown_(shown), settings_(settings), player_(SettingPart(player.FileName)) {
  if (settings == nullptr || !settings->hints() || game.Mode != kModeArcade) return;
  if (Seen(Guidance::Offer)) {
    active_ = std::ranges::any_of(kHints, [this](Guidance hint) { return !Seen(hint); });
  } else {
    active_ = player.Arcade_Best == 0;
  }
}

void MatchGuide::Happened(const MatchEvent& event) {
  if (active_) std::visit([this](const auto& each) { See(each); }, event);
}

void MatchGuide::See(const event::MatchBegun&) {
  if (!Seen(Guidance::Offer)) Say(Guidance::Offer);
}

void MatchGuide::See(const event::Flipped&) {
  if (now_ == Guidance::Sign) Done();
}

void MatchGuide::See(const event::Played& played) {
  if (played.seat != Seat::Player) return;
  if (now_ == Guidance::SideCard || now_ == Guidance::Sign || now_ == Guidance::Special) Done();
  if (now_ == Guidance::Stand && !Matters(Guidance::Stand)) Say(Guidance::None);
  Look();
}

void MatchGuide::See(const event::EndedTurn& ended) {
  if (ended.seat == Seat::Player) Done();
}

void MatchGuide::See(const event::Stood& stood) {
  if (stood.seat == Seat::Player) Done();
}

/// Whoever plays a whole set without an answer has answered.
void MatchGuide::See(const event::SetDecided&) {
  if (now_ == Guidance::Offer) Decline();
}

void MatchGuide::See(const event::MatchDecided&) {
  now_ == Guidance::Offer ? Decline() : Say(Guidance::None);
}

void MatchGuide::Look() {
  const bool turn = shown_.controls.endTurn && !shown_.TableFull(Seat::Player);
  if (!active_ || now_ != Guidance::None || !turn || !Seen(Guidance::Offer)) return;
  for (const Guidance hint : kHints) {
    if (Seen(hint)) continue;
    if (Matters(hint)) return Say(hint);
  }
}

void MatchGuide::Accept() {
  if (now_ != Guidance::Offer) return;
  MarkSeen(Guidance::Offer);
  Say(Guidance::None);
  Look();
}

void MatchGuide::Decline() {
  if (!active_) return;
  MarkSeen(Guidance::Offer);
  for (const Guidance hint : kHints) MarkSeen(hint);
  active_ = false;
  Say(Guidance::None);
}

bool MatchGuide::Seen(Guidance guidance) const {
  return settings_->hintSeen(NameOf(guidance));
}

void MatchGuide::MarkSeen(Guidance guidance) {
  if (!Seen(guidance)) settings_->setHintSeen(NameOf(guidance));
}

std::string MatchGuide::NameOf(Guidance guidance) const {
  return std::string("first_") + NameOfHint(guidance) + "_" + player_;
}

bool MatchGuide::Matters(Guidance guidance) const {
  const MatchControls& controls = shown_.controls;
  switch (guidance) {
    case Guidance::Turn:
      return true;
    case Guidance::SideCard:
      return controls.hand && WantedSlot(shown_, false) != 0;
    case Guidance::Sign:
      return controls.hand && controls.flips && WantedSlot(shown_, true) != 0;
    case Guidance::Stand:
      // At 20 the side stands by itself.
      return GoodTotal(shown_.Total(Seat::Player)) && shown_.Total(Seat::Player) != kTargetTotal;
    case Guidance::Special:
      return HoldsSpecial(shown_) || shown_.Table(Seat::Player).size() >= kManyCards ||
             shown_.SetWins(Seat::Player) + shown_.SetWins(Seat::Opponent) > 0;
    default:
      return false;
  }
}

void MatchGuide::Done() {
  if (now_ == Guidance::None || now_ == Guidance::Offer) return;
  MarkSeen(now_);
  Say(Guidance::None);
}

void MatchGuide::Say(Guidance guidance) {
  if (now_ == guidance) return;
  now_ = guidance;
  if (Changed) Changed();
}

}  // namespace kv
