// The match screen: shows what the match engine holds and hands back what the person did. It decides nothing
// about the rules, and whatever it has started (timers, pauses, fades, a drag) ends when it closes.
#pragma once

#include <memory>

#include "match/MatchEngine.h"
#include "match/MatchHint.h"
#include "match/MatchReasons.h"
#include "match/MatchSentences.h"
#include "match/ctlBust.h"
#include "match/ctlChat.h"
#include "match/ctlGuide.h"
#include "match/frmGameHand.h"
#include "match/frmGameMotion.h"
#include "match/frmGameServices.h"
#include "match/frmGameSide.h"
#include "match/frmGameStrip.h"
#include "presentation/Screen.h"

namespace kv {

class frmGame final : public Screen, private MatchView {
 public:
  /// In the player's interface style. The hands of the match record must be dealt. The match begins once the
  /// screen is shown.
  explicit frmGame(const frmGameServices& services);
  ~frmGame() override;

  /// Leaving the program (the window system's close): a match that is not booked yet must be given up
  /// first.
  void LeaveProgram() override;

  [[nodiscard]] MatchEngine& engine() { return engine_; }
  /// Who is told what happens in the match.
  [[nodiscard]] MatchObservers& observers() { return observers_; }
  [[nodiscard]] int StyleIndex() const { return styleIndex_; }
  /// The panel of the style in use, on which cards, names and portraits lie; the other one is null.
  [[nodiscard]] FadeTarget* picSlate() const { return styleIndex_ == 0 ? panel_ : nullptr; }
  [[nodiscard]] FadeTarget* picEmber() const { return styleIndex_ == 1 ? panel_ : nullptr; }
  [[nodiscard]] frmGameHand& hand() { return *hand_; }
  [[nodiscard]] frmGameSide& side(Seat seat) { return seat == Seat::Player ? *player_ : *opponent_; }
  [[nodiscard]] ctlButton& cmdTurn() { return *cmdTurn_; }
  [[nodiscard]] ctlButton& cmdStand() { return *cmdStand_; }
  [[nodiscard]] ctlButton& cmdForfeit() { return *cmdForfeit_; }
  [[nodiscard]] ctlBust& banner() { return *ctlBust_; }
  [[nodiscard]] ctlTitlebar& titlebar() { return *ctlTitlebar_; }
  [[nodiscard]] MotionLayer& motionLayer() { return *motionLayer_; }
  [[nodiscard]] QLabel& lblWager() { return *lblWager_; }
  /// Null where nothing can be said.
  [[nodiscard]] ctlGuide* guide() { return ctlGuide_; }

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void Shown() override;
  void Closing() override;
  void PlainHighlights() override;

 private:
  // What the engine says
  void TableChanged(Seat seat, int index) override;
  void HandChanged(Seat seat, int slot) override;
  void SetWinAdded(Seat seat) override;
  void ControlsChanged() override;
  void LightsChanged() override;
  void BannerChanged() override;
  void RunTimer(MatchTimer timer, bool run) override;
  void PlaySound(std::string_view effect) override;
  [[nodiscard]] bool Pause(int milliseconds) override;
  void Leave() override;

  void BuildTimers();
  void BuildPanel();
  void BuildControls();
  void LeaveNetwork();
  void BuildMotion();
  void ConnectHand();
  ctlButton* NewMatchButton(QStringView control, std::function<void()> click);
  /// Says the best move of this turn, and gives the focus to what makes it. Never against a peer.
  void Hint();
  [[nodiscard]] QString TipFor(const QObject* watched) const;
  [[nodiscard]] QString WithKey(const std::string& tip, int row, int column) const;
  /// True when the key was one of the player's game keys; nothing else is done with it then.
  bool GameKey(const QKeyEvent& event);
  /// The keys by which everything is reached without a mouse or a look: arrows, Escape to give up the match,
  /// F2 and F3 to hear table and hand, F4 for a hint.
  bool FocusKey(const QKeyEvent& event);

  frmGameServices services_;
  const int styleIndex_;
  MatchSentences sentences_;  // what happens, in words
  MatchReasons reasons_;
  MatchHint hint_;
  MatchObservers observers_;
  MatchEngine engine_;
  MatchGuide guide_;
  clsCardArray keys_;                             // the player's, as they were when the screen was activated
  std::array<std::unique_ptr<Timer>, 4> timers_;  // by MatchTimer
  std::unique_ptr<frmGameHand> hand_;
  std::unique_ptr<frmGameSide> player_;
  std::unique_ptr<frmGameSide> opponent_;
  std::unique_ptr<frmGameMotion> motion_;
  MotionLayer* motionLayer_ = nullptr;  // children, all that follow
  FadeTarget* panel_ = nullptr;
  ctlButton* cmdTurn_ = nullptr;
  ctlButton* cmdStand_ = nullptr;
  ctlButton* cmdForfeit_ = nullptr;
  ctlTitlebar* ctlTitlebar_ = nullptr;
  ctlBust* ctlBust_ = nullptr;
  QLabel* lblWager_ = nullptr;
  std::unique_ptr<frmGameStrip> strip_;
  ctlGuide* ctlGuide_ = nullptr;  // in a newcomer's match only
  ctlChat* chat_ = nullptr;       // in a network match only
};

}  // namespace kv
