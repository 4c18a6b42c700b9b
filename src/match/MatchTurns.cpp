// One turn of either side: the draw, the side card, ending the turn and standing.
#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "ai/HandSearch.h"
#include "match/MatchEngine.h"

namespace kv {
namespace {

constexpr int kHandCardPause = 125;   // before an automatic stand, so that the card is seen
constexpr int kThinkingPause = 250;   // before the strategy moves
constexpr int kLowTotal = 10;         // below it the turn may end by itself
constexpr int kCopiesInMainDeck = 4;  // of each value 1 to 10

}  // namespace

void MatchEngine::PlayerTurn() {
  gameState_ = GameStep::None;
  if (PlayerStood()) {
    EndPlayerTurn();
    return;
  }
  SetLights(true, false);
  view_.PlaySound("turn");
  if (!Wait(turnDelay_)) return;
  DrawFor(Seat::Player);
  if (Total(Seat::Player) > kTargetTotal) view_.PlaySound("bust");
  if (TableFull(Seat::Player) || Total(Seat::Player) == kTargetTotal) {
    AutoStood = true;
    StandPlayer();
  } else if (EndsTurnByItself()) {
    if (Wait(turnDelay_ * 0.85)) EndPlayerTurn();
  } else {
    OpenPlayerTurn();
  }
}

void MatchEngine::OpenPlayerTurn() {
  controls_.flips = true;
  SetTurnControls(true);
  if (playerStrategy_ != nullptr) RunStrategy(*playerStrategy_, Seat::Player);
}

/// A low total ends the turn by itself, unless the opponent stands on no more than the player has.
bool MatchEngine::EndsTurnByItself() const {
  const bool opponentBehind = OpponentStood() && Total(Seat::Opponent) <= Total(Seat::Player);
  return options_.autoTurn && Total(Seat::Player) < kLowTotal && !opponentBehind;
}

void MatchEngine::PlayHandCard(int slot) {
  if (!controls_.hand || slot < 1 || slot > kHandSize || IsEmptySlot(HandCard(Seat::Player, slot))) return;
  const CardCode code = HandCard(Seat::Player, slot);
  controls_.hand = false;
  view_.ControlsChanged();
  EmptyHandSlot(Seat::Player, slot);
  view_.PlaySound("playcard");
  net_.NetSend("[Hand]" + std::to_string(slot) + code.text());
  PlayCard(code, false);
  if (TableFull(Seat::Player) || Total(Seat::Player) == kTargetTotal) {
    // The turn is decided: nothing may be pressed while the card is being looked at.
    SetTurnControls(false);
    if (!Wait(kHandCardPause)) return;
    AutoStood = true;
    StandPlayer();
  }
}

void MatchEngine::FirstFlip(int slot) {
  if (!controls_.flips || slot < 1 || slot > kHandSize || !HandCard(Seat::Player, slot).hasFirstFlip())
    return;
  side(Seat::Player).hand->setValue(slot, HandCard(Seat::Player, slot).FirstFlip());
  view_.HandChanged(Seat::Player, slot);
  view_.PlaySound("click");
}

void MatchEngine::SecondFlip(int slot) {
  if (!controls_.flips || slot < 1 || slot > kHandSize || !HandCard(Seat::Player, slot).hasSecondFlip())
    return;
  side(Seat::Player).hand->setValue(slot, HandCard(Seat::Player, slot).SecondFlip());
  view_.HandChanged(Seat::Player, slot);
  view_.PlaySound("click");
}

void MatchEngine::EndTurn() {
  if (controls_.endTurn) EndPlayerTurn();
}

void MatchEngine::Stand() {
  if (controls_.stand) StandPlayer();
}

void MatchEngine::EndPlayerTurn() {
  turn_ = Seat::Opponent;
  if (isNetwork()) {
    net_.NetSend("[Turn]");
    net_.startTurnRepeat();
  }
  SetLights(false, Light(Seat::Opponent));
  SetTurnControls(false);
  SettleBust(Seat::Player);
  if (CheckSetEnd(Seat::Player, TableFull(Seat::Player))) return;
  if (AutoStood && !Wait(turnDelay_)) return;
  AutoStood = false;
  StartGameTimer(GameStep::OpponentTurn);
}

void MatchEngine::StandPlayer() {
  controls_.table[0] = false;
  if (isNetwork()) net_.NetSend("[Stnd]");
  side(Seat::Player).stood = true;
  EndPlayerTurn();
}

void MatchEngine::OpponentTurn() {
  gameState_ = GameStep::None;
  if (OpponentStood()) {
    if (isNetwork()) {
      SetLights(false, Light(Seat::Opponent));
      opponentActs_ = true;
    } else {
      StartGameTimer(GameStep::PlayerTurn);
    }
    return;
  }
  SetLights(false, true);
  view_.PlaySound("turn");
  if (!Wait(turnDelay_)) return;
  if (!isNetwork()) DrawFor(Seat::Opponent);
  if (Total(Seat::Opponent) > kTargetTotal) view_.PlaySound("bust");
  if (isNetwork()) {
    opponentActs_ = true;
    return;
  }
  if (!Wait(kThinkingPause - speedOffset_ / 2.0)) return;
  if (game_.AI != nullptr) RunStrategy(*game_.AI, Seat::Opponent);
}

void MatchEngine::RunStrategy(Strategy& strategy, Seat seat) {
  const Seat other = seat == Seat::Player ? Seat::Opponent : Seat::Player;
  strategyEpoch_ = epoch_;
  strategyRuns_ = true;
  strategy.AI(operations(seat), Total(seat), Total(other), SetWins(other), SetWins(seat), side(other).stood,
              side(seat).stood);
  strategyRuns_ = false;
}

void MatchEngine::OppStand() {
  side(Seat::Opponent).stood = true;
  controls_.table[1] = false;
  view_.ControlsChanged();
  if (!isNetwork()) OppEndTurn();
}

void MatchEngine::OppPlayHand(int slot, const CardCode& code) {
  EmptyHandSlot(Seat::Opponent, slot);
  view_.PlaySound("playcard");
  PlayCard(code, true);
}

PeerTurn MatchEngine::peerTurn() const {
  if (closed_ || stopped_ || game_.Wager == -1) return PeerTurn::NotTheirs;
  if (!begun_ || decision_ || betweenSets_) return PeerTurn::NotTheirs;
  if (opponentActs_) return PeerTurn::Theirs;
  return turn_ == Seat::Opponent ? PeerTurn::Soon : PeerTurn::NotTheirs;
}

void MatchEngine::OppEndTurn() {
  turn_ = Seat::Player;
  opponentActs_ = false;
  SetLights(Light(Seat::Player), false);
  if (!CheckSetEnd(Seat::Opponent, TableFull(Seat::Opponent))) StartGameTimer(GameStep::PlayerTurn);
}

void MatchEngine::PlayCard(const CardCode& code, bool isOpponent) {
  const Seat seat = SeatOf(isOpponent);
  const bool unchosen = code.number() == kNotChosen;
  if (unchosen && code.type() == CardType::Double && !side(seat).table.empty()) {
    LoadNextCard(CardCode("s2" + std::string(side(seat).table.back().numericPart())), isOpponent);
  } else if (unchosen && (code.type() == CardType::Flip24 || code.type() == CardType::Flip36)) {
    const bool is24 = code.type() == CardType::Flip24;
    InvertTable(seat, is24 ? 2 : 3, is24 ? 4 : 6);
    LoadNextCard(CardCode(is24 ? "s300" : "s400"), isOpponent);
  } else {
    LoadNextCard(code, isOpponent);
  }
}

void MatchEngine::InvertTable(Seat seat, int a, int b) {
  auto& table = side(seat).table;
  for (std::size_t i = 0; i < table.size(); ++i) {
    const int size = std::abs(table[i].cardValue());
    if (size != a && size != b) continue;
    table[i] = table[i].Inverted();
    view_.TableChanged(seat, static_cast<int>(i) + 1);
  }
}

void MatchEngine::LoadNextCard(const CardCode& code, bool isOpponent) {
  Side& owner = side(SeatOf(isOpponent));
  if (owner.table.size() == kTableSize) return;
  owner.table.push_back(code);
  owner.total = TableTotal(owner.table);
  view_.TableChanged(SeatOf(isOpponent), static_cast<int>(owner.table.size()));
}

int MatchEngine::TableTotal(std::span<const CardCode> table) {
  int total = 0;
  for (const CardCode& card : table) total += card.cardValue();
  return total;
}

void MatchEngine::DrawFor(Seat seat) {
  const CardCode code = DrawMainCard();
  LoadNextCard(code, seat == Seat::Opponent);
  view_.PlaySound("draw");
  if (isNetwork() && seat == Seat::Player) net_.NetSend("[Card]" + code.text());
}

CardCode MatchEngine::DrawMainCard() {
  random_.Randomize();
  // A peer that reports more draws than there are cards must not leave this side without any.
  const bool empty = std::all_of(mainDeckCount_.begin() + 1, mainDeckCount_.end(),
                                 [](std::uint8_t drawn) { return drawn >= kCopiesInMainDeck; });
  if (empty) mainDeckCount_.fill(0);
  int value = 0;
  do {
    value = static_cast<int>(random_.Rnd() * 10) + 1;
  } while (mainDeckCount_.at(static_cast<std::size_t>(value)) >= kCopiesInMainDeck);
  DeductDrawCard(value);
  return {CardType::MainDeck, value};
}

void MatchEngine::DeductDrawCard(int value) {
  if (value < 1 || value > 10) throw std::out_of_range("a main-deck card is 1 to 10");
  ++mainDeckCount_.at(static_cast<std::size_t>(value));
}

void MatchEngine::EmptyHandSlot(Seat seat, int slot) {
  side(seat).hand->setValue(slot, seat == Seat::Opponent ? EmptiedSlot() : CardCode());
  view_.HandChanged(seat, slot);
}

}  // namespace kv
