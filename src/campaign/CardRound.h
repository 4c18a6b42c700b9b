// The card screen without its window, beside its desk: agrees upon the stake (in "Network" with the peer),
// goes on to the match, and leaves. It decides; how that looks is its screen's.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "campaign/CardDesk.h"
#include "campaign/WagerEntry.h"
#include "campaign/WagerView.h"
#include "match/MatchPartners.h"
#include "platform/Random.h"
#include "platform/Scheduler.h"

namespace kv {

class Navigator;
class clsPlayer;

/// How the card screen shows the round.
class CardRoundView {
 public:
  virtual ~CardRoundView() = default;
  /// CardRound::entry() has changed.
  virtual void ShowWager() = 0;
  /// The stake is settled: the deck view is open.
  virtual void ShowSettled() = 0;
  virtual void PlaySound(std::string_view effect) = 0;
};

/// All outlive the round. `life` is that of its screen.
struct CardRoundServices {
  Scheduler& scheduler;
  Dialogs& dialogs;
  Random& random;
  Navigator& navigator;
  clsPlayer& player;
  clsGame& game;
  MatchNetwork& network;
  NetworkStake& networkStake;
  const Lifetime& life;
};

class CardRound final : public WagerView {
 public:
  CardRound(const CardRoundServices& services, CardRoundView& view);

  /// The screen stands: in "Network" the peer is told, and the host may propose once the peer is there too.
  void Open();
  /// Its timer stands still from now on.
  void Close();

  /// The panel's main button: proposes, accepts or settles what stands in the amount box.
  void ctlWager_WagerClick();
  /// Continue: stores the desk, deals, and opens the match.
  void Continue();
  /// The panel's end button: asks first when an arcade run has won credits. False when the person stays.
  bool EndClick();
  /// The title bar's close: asks first when a settled stake, a changed deck or a run with won credits would
  /// be lost. A key, which may be pressed `inPassing`, asks before it ends any run that has begun. False when
  /// the person stays.
  bool TitlebarQuit(bool inPassing = false);
  /// The window system's close; the same question.
  void LeaveProgram();

  void Proposed(std::int32_t amount) override;
  [[nodiscard]] bool awaitsAnswer() const override { return proposed_; }
  void Accepted() override;

  [[nodiscard]] CardDesk& desk() { return desk_; }
  [[nodiscard]] const CardDesk& desk() const { return desk_; }
  [[nodiscard]] WagerEntry& entry() { return entry_; }

 private:
  void NetWaitTick();
  void Propose(std::int32_t amount);
  void Settle(const WagerPress& press);
  void Leave();
  [[nodiscard]] bool AskForfeit();
  /// True when no arcade run is lost that is worth a question, or may be.
  [[nodiscard]] bool AskEndRun(bool inPassing);
  /// True when nothing unstored would be lost, or may be.
  [[nodiscard]] bool AskDiscard();

  CardRoundServices services_;
  CardRoundView& view_;
  CardDesk desk_;
  WagerEntry entry_;
  std::unique_ptr<Timer> tmrNetWait_;
  bool proposed_ = false;  // and the peer has not answered yet
};

}  // namespace kv
