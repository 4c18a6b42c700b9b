// The card screen: the stake is set, the side deck is filled from the collection, cards are bought and sold,
// and Continue leads on. It shows what the desk and the wager entry hold and hands back what the person did.
#pragma once

#include <array>

#include "campaign/CardRound.h"
#include "campaign/ctlWager.h"
#include "campaign/frmCardsTrade.h"
#include "cards/clsDeckArray.h"
#include "cards/ctlCard.h"
#include "match/ctlChat.h"
#include "presentation/Screen.h"
#include "profile/clsPlayer.h"

namespace kv {

/// All four outlive the screen.
struct frmCardsServices {
  clsPlayer& player;
  clsGame& game;
  MatchNetwork& network;
  NetworkStake& networkStake;
};

class frmCards final : public Screen, private CardRoundView {
 public:
  /// In the player's interface style, for the mode of the match record.
  frmCards(const ScreenServices& services, const frmCardsServices& cards);
  ~frmCards() override;

  /// A match whose stake is settled must be given up first.
  void LeaveProgram() override { round_.LeaveProgram(); }

  [[nodiscard]] CardRound& round() { return round_; }
  [[nodiscard]] ctlWager& wager() { return *ctlWager_; }
  [[nodiscard]] ctlTitlebar& titlebar() { return *ctlTitlebar_; }
  /// The card on a place of the collection; null for a place that holds none.
  [[nodiscard]] ctlCard* Bank(const CardPlace& place);
  /// The card of a deck slot, 1 to 10.
  [[nodiscard]] ctlCard& ctlDeck(int slot) { return *slots_.at(static_cast<std::size_t>(slot) - 1); }

 protected:
  void Activate() override;
  void Shown() override;
  void Closing() override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void BuildBanks();
  void BuildDeck();
  void BuildShop();
  void BuildButtons();
  ctlCard* NewCard(const QRect& place, std::function<void()> click);

  // What the desk holds is shown
  void Refresh();
  void RefreshBanks();
  void RefreshDeck();
  void RefreshShop();
  void RefreshButtons();

  // What the person does
  void ClickBank(const CardPlace& place);
  void RemoveCard(int slot);
  void SwitchView(CardView view);
  void Trade();
  void TitlebarQuit(bool inPassing = false);
  void FocusAmount();

  // What the round says
  void ShowWager() override;
  void ShowSettled() override;
  void PlaySound(std::string_view effect) override { PlayEffect(effect); }

  frmCardsServices cards_;
  CardRound round_;
  std::array<std::array<ctlCard*, kCardNumbers>, kCardKinds> banks_{};  // children, as all that follow
  std::array<ctlCard*, kDeckSize> slots_{};
  ctlWager* ctlWager_ = nullptr;
  ctlTitlebar* ctlTitlebar_ = nullptr;
  ctlButton* cmdDeck_ = nullptr;
  ctlButton* cmdBuy_ = nullptr;
  ctlButton* cmdSell_ = nullptr;
  ctlButton* cmdTrade_ = nullptr;
  ctlButton* cmdContinue_ = nullptr;
  frmCardsTrade trade_;
  QLabel* lblWagerHeader_ = nullptr;
  QLabel* lblWager_ = nullptr;
  QLabel* lblCreditHeader_ = nullptr;
  QLabel* lblCredits_ = nullptr;
  QLabel* lblDeckCount_ = nullptr;
  ctlChat* chat_ = nullptr;  // in a network mode only
};

}  // namespace kv
