#include "campaign/WagerEntry.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

#include "campaign/Settlement.h"
#include "match/clsGame.h"
#include "profile/PlayerFields.h"

namespace kv {
namespace {

constexpr std::string_view kUnknown = "?";  // the amount that only the peer knows yet
constexpr std::array<std::string_view, 4> kCaptions = {"wager", "propose", "(waiting)", "accept"};

bool AllDigits(std::string_view text) {
  return text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// What passes 64 bits becomes the largest number, and what is not all digits is 0.
std::int64_t AmountOf(std::string_view digits) {
  if (!AllDigits(digits)) return 0;
  std::int64_t amount = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), amount);
  return error == std::errc::result_out_of_range ? std::numeric_limits<std::int64_t>::max() : amount;
}

}  // namespace

std::string_view CaptionText(WagerCaption caption) {
  return kCaptions.at(static_cast<std::size_t>(caption));
}

WagerEntry::WagerEntry(const clsGame& game, const PlayerFields& player, const NetworkStake& networkStake,
                       bool hosting)
    : game_(game), player_(player), networkStake_(networkStake) {
  if (game_.Mode != kModeNetwork) {
    ProposeLast();
    return;
  }
  boxEnabled_ = false;
  caption_ = hosting ? WagerCaption::Propose : WagerCaption::Waiting;
  if (!hosting) text_ = kUnknown;
}

/// Who plays on for the same stake only presses Enter.
void WagerEntry::ProposeLast() {
  const auto last = game_.LastWagers.find(game_.OppName);
  if (last == game_.LastWagers.end() || !Permitted(last->second)) return;
  text_ = std::to_string(last->second);
  Judge();
}

bool WagerEntry::Valid(std::string_view text) const {
  return AllDigits(text) || (game_.Mode == kModeNetwork && text == kUnknown);
}

bool WagerEntry::Permitted(std::int64_t amount) const {
  return amount >= 0 && amount <= game_.CreditsRef->Value && amount <= game_.MaxWager &&
         amount >= game_.MinWager && !(game_.Mode == kModeArcade && amount == 0);
}

void WagerEntry::Judge() {
  if (!boxEnabled_) return;
  buttonEnabled_ = !text_.empty() && text_ != kUnknown && Permitted(AmountOf(text_));
  if (game_.Mode == kModeNetwork) {
    // An edited amount is a new proposal, even when one of the peer was on view.
    caption_ = WagerCaption::Propose;
  } else if (game_.Mode == kModeArcade || game_.Mode == kModeCampaign) {
    caption_ = WagerCaption::Wager;
  }
}

BoxText WagerEntry::Change(std::string_view text, int cursor) {
  if (Valid(text)) {
    text_ = text;
  } else {
    // The remembered text holds one-byte characters only.
    cursor = std::clamp(cursor - 1, 0, static_cast<int>(text_.size()));
  }
  Judge();
  return {text_, cursor};
}

BoxText WagerEntry::Fill(std::int64_t amount) {
  text_ = std::to_string(amount);
  Judge();
  return {text_, static_cast<int>(text_.size())};
}

BoxText WagerEntry::FillFromCredits() {
  const std::int32_t credits = game_.CreditsRef->Value;
  if (game_.Mode == kModeArcade) return Fill(credits);
  const bool again = game_.Mode == kModeNetwork && networkStake_.last != -1;
  return Fill(std::min(credits, again ? networkStake_.last : game_.MaxWager));
}

BoxText WagerEntry::FillFromInfo() {
  const std::int64_t credits = game_.CreditsRef->Value;
  if (game_.Mode != kModeArcade) return Fill(std::min<std::int64_t>(credits, game_.MaxWager));
  return Fill(std::max<std::int64_t>(0, std::min(credits, player_.Arcade_Best - credits)));
}

void WagerEntry::EnableButtons(bool enabled) {
  boxEnabled_ = enabled;
  // There is nothing to propose before an amount stands in the box.
  buttonEnabled_ = enabled && !text_.empty();
}

bool WagerEntry::PeerProposes(std::string_view amount) {
  if (amount.empty() || !AllDigits(amount)) return false;
  EnableButtons(true);
  static_cast<void>(Change(amount, 0));
  caption_ = WagerCaption::Accept;
  return true;
}

WagerPress WagerEntry::Press(Dialogs& dialogs) {
  // Writing the plain number into the box counts as an edit; what was pressed is the button as it stood.
  const WagerCaption pressed = caption_;
  const std::int64_t entered = AmountOf(text_);
  Fill(entered);
  if (!Permitted(entered)) return {};
  const auto amount = static_cast<std::int32_t>(entered);
  if (StakeRisksCampaign(game_, amount) && !AskRiskCampaign(dialogs)) return {};
  if (game_.Mode == kModeNetwork && game_.Wager == -1 && pressed != WagerCaption::Accept) {
    EnableButtons(false);
    caption_ = WagerCaption::Waiting;
    return {.action = WagerAction::Propose, .amount = amount};
  }
  return {.action = WagerAction::Settle,
          .amount = amount,
          .acceptsPeer = game_.Mode == kModeNetwork && pressed == WagerCaption::Accept};
}

std::string WagerEntry::CreditsText() const {
  return "Credits: " + std::to_string(game_.CreditsRef->Value);
}

std::string WagerEntry::InfoText() const {
  if (game_.Mode == kModeArcade) return "Highscore: " + std::to_string(player_.Arcade_Best);
  if (game_.Mode != kModeCampaign) return "";
  return "Min Wager: " + std::to_string(game_.MinWager) + ", Max Wager: " + std::to_string(game_.MaxWager);
}

bool WagerEntry::InfoStandsOut() const {
  return game_.Mode == kModeArcade && game_.CreditsRef->Value > player_.Arcade_Best;
}

std::string WagerEntry::ButtonTip() const {
  if (!boxEnabled_) return "The other side has the word.";
  if (text_.empty() || text_ == kUnknown) return "Say first what you play for.";
  if (!buttonEnabled_) return WhyNotPermitted(AmountOf(text_));
  switch (caption_) {
    case WagerCaption::Propose:
      return "Tells the other side what you would play for. (Enter)";
    case WagerCaption::Accept:
      return "Plays for what the other side proposes. (Enter)";
    default:
      return "The stake leaves your credits; the winner gets it back twice. (Enter)";
  }
}

std::string WagerEntry::WhyNotPermitted(std::int64_t amount) const {
  if (amount > game_.CreditsRef->Value) {
    return "You have only " + std::to_string(game_.CreditsRef->Value) + " credits.";
  }
  if (amount > game_.MaxWager) return "The most in this match is " + std::to_string(game_.MaxWager) + ".";
  return "The least in this match is " + std::to_string(std::max<int>(game_.MinWager, 1)) + ".";
}

std::string WagerEntry::InfoTip() const {
  return game_.Mode == kModeArcade ? "A click fills in what would just reach the high score."
                                   : "A click fills in the most that you can play for.";
}

std::string WagerEntry::EndTip() const {
  return game_.Mode == kModeArcade ? "Ends the run: its credits become the high score if they beat it. (Esc)"
                                   : "Back, without a match. (Esc)";
}

ProposalTexts TextsOfProposal(std::string_view playerName, std::int32_t amount) {
  const std::string number = std::to_string(amount);
  return {.wage = "[Wage]" + number,
          .chat = "[Chat][" + std::string(playerName) + " proposes a wager of " + number + ".]",
          .ownLine = "[You propose a wager of " + number + ".]"};
}

}  // namespace kv
