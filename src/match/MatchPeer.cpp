#include "match/MatchPeer.h"

#include <utility>

#include "ai/HandSearch.h"
#include "match/MatchEngine.h"

namespace kv {
namespace {

constexpr int kPlayedCardPause = 175;  // milliseconds, so that the move can be seen

}  // namespace

void MatchPeer::setPlayerStarts(bool starts) {
  engine_.playerStarts_ = starts;
}

// --- Moves -----------------------------------------------------------------------------------------------

void MatchPeer::OppDraw(int value) {
  engine_.board_.DeductDrawCard(value);
  engine_.board_.Draw(Seat::Opponent, CardCode(CardType::MainDeck, value));
}

void MatchPeer::OppPlayHand(int slot, const CardCode& code) {
  engine_.board_.EmptyHandSlot(Seat::Opponent, slot);
  engine_.view_.PlaySound("playcard");
  engine_.board_.PlayFromHand(Seat::Opponent, slot, code);
}

void MatchPeer::AI_PlayCard(int slot) {
  const CardCode code = engine_.shown_.HandCard(Seat::Opponent, slot);
  if (IsEmptySlot(code)) return;
  engine_.view_.PlaySound("playcard");
  engine_.board_.EmptyHandSlot(Seat::Opponent, slot);
  engine_.board_.PlayFromHand(Seat::Opponent, slot, code);
  // A pause cut short needs no answer here: the calls that follow find that they may not act any more.
  static_cast<void>(engine_.pauses_.Wait(kPlayedCardPause));
}

void MatchPeer::AI_EndTurn() {
  if (engine_.pauses_.closed()) return;
  // Who has stood before only lets the turn pass.
  if (!engine_.shown_.Stood(Seat::Opponent)) engine_.teller_.EndedTurn(Seat::Opponent);
  engine_.SettleBust(Seat::Opponent);
  OppEndTurn();
}

void MatchPeer::AI_Stand() {
  if (engine_.pauses_.closed()) return;
  engine_.SettleBust(Seat::Opponent);
  OppStand();
}

void MatchPeer::OppStand() {
  engine_.shown_.side(Seat::Opponent).stood = true;
  engine_.teller_.Stood(Seat::Opponent);
  engine_.shown_.controls.table[1] = false;
  engine_.view_.ControlsChanged();
  if (!engine_.network_) OppEndTurn();
}

void MatchPeer::OppEndTurn() {
  engine_.turn_ = Seat::Player;
  acts_ = false;
  engine_.SetLights(engine_.shown_.Light(Seat::Player), false);
  if (!engine_.CheckSetEnd(Seat::Opponent)) engine_.StartGameTimer(GameStep::PlayerTurn);
}

void MatchPeer::OppForfeit() {
  if (engine_.pauses_.closed() || engine_.game_.Wager == -1) return;
  engine_.teller_.Tell(event::Forfeited{Seat::Opponent});
  engine_.StopMatch();
  engine_.shown_.controls.titlebar = false;
  engine_.view_.ControlsChanged();
  engine_.LoseMatch(Seat::Opponent);
}

// --- Where the match stands ------------------------------------------------------------------------------

PeerTurn MatchPeer::peerTurn() const {
  if (engine_.pauses_.closed() || engine_.person_.Stopped() || engine_.game_.Wager == -1)
    return PeerTurn::NotTheirs;
  if (!begun() || decision() || betweenSets()) return PeerTurn::NotTheirs;
  if (acts_) return PeerTurn::Theirs;
  return engine_.turn_ == Seat::Opponent ? PeerTurn::Soon : PeerTurn::NotTheirs;
}

const std::optional<SetDecision>& MatchPeer::decision() const {
  return engine_.decision_;
}

bool MatchPeer::begun() const {
  return engine_.stage_ != MatchStage::Opening;
}

bool MatchPeer::betweenSets() const {
  return engine_.stage_ == MatchStage::BetweenSets;
}

// --- A match that ends before its time --------------------------------------------------------------------

bool MatchPeer::LostByPlay() const {
  return begun() && !engine_.person_.Stopped() && engine_.game_.Wager == -1 &&
         engine_.shown_.SetWins(Seat::Opponent) == kSetsToWin;
}

void MatchPeer::WinAfterAll() {
  if (!LostByPlay()) return;
  engine_.shown_.side(Seat::Opponent).setWins = kSetsToWin - 1;  // its last one does not count
  engine_.teller_.Tell(event::Forfeited{Seat::Opponent});
  engine_.teller_.MatchDecided(Seat::Player);
  engine_.book_.TurnLossIntoWin();
  if (engine_.pauses_.closed()) return;
  engine_.view_.PlaySound("winmatch");
  engine_.shown_.banner.text = "You have defeated your opponent!";
  engine_.view_.BannerChanged();
}

bool MatchPeer::BookDecision() {
  if (!decision() || !decision()->endsMatch) return false;
  const Seat winner = decision()->result == GameStep::PlayerWins ? Seat::Player : Seat::Opponent;
  engine_.StopMatch();
  engine_.teller_.MatchDecided(winner, 1);
  engine_.book_.Result(winner);
  return true;
}

void MatchPeer::WinByItsLeaving() {
  engine_.StopMatch();
  engine_.teller_.MatchDecided(Seat::Player);
  engine_.book_.Result(Seat::Player);
}

void MatchPeer::Gone() {
  engine_.teller_.Tell(event::PeerGone{});
}

void MatchPeer::BrokenOff(const std::function<void()>& book) {
  Gone();
  engine_.book_.BrokenOff(book);
}

// --- Both go on together ----------------------------------------------------------------------------------

void MatchPeer::WaitForPlay(Then next) {
  then_ = next;
  engine_.net_.NetSend("[Play]");
  engine_.view_.RunTimer(MatchTimer::NetWait, true);
}

void MatchPeer::NetWaitTick() {
  if (engine_.pauses_.closed() || !engine_.net_.peerReady()) return;
  engine_.view_.RunTimer(MatchTimer::NetWait, false);
  const Then next = std::exchange(then_, Then::Nothing);
  if (next == Then::NextSet) engine_.Reset();
  if (next == Then::Leave) engine_.view_.Leave();
}

void MatchPeer::Stop() {
  acts_ = false;
  then_ = Then::Nothing;
}

}  // namespace kv
