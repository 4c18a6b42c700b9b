// The wager panel without its window: what may stand in the amount box, when the main button may be pressed
// and what pressing it means. It settles nothing itself.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Dialogs.h"

namespace kv {

class clsGame;
struct PlayerFields;

/// The stake of the previous network match, -1 for none. One for the whole program: the card screen's
/// Continue sets it, the lobby resets it when it opens.
struct NetworkStake {
  std::int32_t last = -1;
};

/// The state of the panel: "wager", "propose", "(waiting)", "accept" on the main button.
enum class WagerCaption : std::uint8_t { Wager, Propose, Waiting, Accept };
[[nodiscard]] std::string_view CaptionText(WagerCaption caption);

/// What the amount box shows after a change; the cursor is counted in characters.
struct BoxText {
  std::string text;
  int cursor = 0;
};

enum class WagerAction : std::uint8_t {
  None,     // the amount is not permitted, or the warning was answered with no
  Propose,  // tell the peer (the panel waits already)
  Settle,   // settle `amount`
};

struct WagerPress {
  WagerAction action = WagerAction::None;
  std::int32_t amount = 0;
  bool acceptsPeer = false;  // tell the peer that its proposal is accepted
};

class WagerEntry {
 public:
  /// The panel as the card screen opens it: with the last stake against this opponent if it is permitted
  /// still, else with an empty box. In "Network" everything is disabled; `hosting` tells whose turn it is to
  /// propose. All three must outlive the entry.
  WagerEntry(const clsGame& game, const PlayerFields& player, const NetworkStake& networkStake, bool hosting);

  /// After every change of the box: what must stand in it now. Sets the button and its caption.
  [[nodiscard]] BoxText Change(std::string_view text, int cursor);
  /// Clicks on the credits label and on the info label: the new content of the box.
  BoxText FillFromCredits();
  BoxText FillFromInfo();
  /// The main button, the amount box and both labels together.
  void EnableButtons(bool enabled);
  /// The peer proposes this amount (decimal digits). False, and nothing changed, for any other text.
  [[nodiscard]] bool PeerProposes(std::string_view amount);
  /// The main button was pressed: normalises the box, warns of a stake that risks the campaign, and tells
  /// what is to be done. Afterwards show the panel's state again: after a no the button can be pressed anew.
  [[nodiscard]] WagerPress Press(Dialogs& dialogs);

  [[nodiscard]] const std::string& text() const { return text_; }
  [[nodiscard]] WagerCaption caption() const { return caption_; }
  [[nodiscard]] bool boxEnabled() const { return boxEnabled_; }  // and both labels
  [[nodiscard]] bool buttonEnabled() const { return buttonEnabled_; }
  /// "Credits: 100".
  [[nodiscard]] std::string CreditsText() const;
  /// The info label; empty where it is hidden.
  [[nodiscard]] std::string InfoText() const;
  /// What the main button does, or why it cannot be pressed now.
  [[nodiscard]] std::string ButtonTip() const;
  /// What a click on the info label does.
  [[nodiscard]] std::string InfoTip() const;
  /// What the end button does.
  [[nodiscard]] std::string EndTip() const;
  /// The run has passed the high score: the info label is red and bold.
  [[nodiscard]] bool InfoStandsOut() const;

 private:
  [[nodiscard]] bool Valid(std::string_view text) const;
  [[nodiscard]] bool Permitted(std::int64_t amount) const;
  void Judge();
  [[nodiscard]] std::string WhyNotPermitted(std::int64_t amount) const;
  void ProposeLast();
  BoxText Fill(std::int64_t amount);

  const clsGame& game_;
  const PlayerFields& player_;
  const NetworkStake& networkStake_;
  std::string text_;  // the last valid content of the box
  WagerCaption caption_ = WagerCaption::Wager;
  bool boxEnabled_ = true;
  bool buttonEnabled_ = false;
};

/// What both sides are told of a proposal: the messages for the peer, in order, and the line for the own
/// chat.
struct ProposalTexts {
  std::string wage;
  std::string chat;
  std::string ownLine;
};
[[nodiscard]] ProposalTexts TextsOfProposal(std::string_view playerName, std::int32_t amount);

}  // namespace kv
