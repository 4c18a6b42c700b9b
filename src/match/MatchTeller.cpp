#include "match/MatchTeller.h"

#include "match/Dealing.h"
#include "match/clsGame.h"

namespace kv {
namespace {

std::vector<event::TurnedCard> Turned(const std::vector<CardCode>& before, const std::vector<CardCode>& now) {
  std::vector<event::TurnedCard> turned;
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (!(before[i] == now.at(i))) turned.push_back({static_cast<int>(i) + 1, now[i]});
  }
  return turned;
}

}  // namespace

void MatchTeller::Tell(const MatchEvent& event) const {
  if (heard()) observer_->Happened(event);
}

void MatchTeller::MatchBegun() const {
  if (!heard()) return;
  Tell(event::MatchBegun{
      game_.OppName, game_.Wager, {HandOf(*shown_.sides[0].hand), HandOf(*shown_.sides[1].hand)}});
}

void MatchTeller::SetBegun(Seat starts) {
  ++set_;
  if (heard()) Tell(event::SetBegun{set_, starts, SetWins()});
}

void MatchTeller::Drew(Seat seat) const {
  if (heard()) Tell(event::Drew{seat, shown_.Table(seat).back(), shown_.Total(seat)});
}

void MatchTeller::Flipped(int slot) const {
  if (heard()) Tell(event::Flipped{slot, shown_.HandCard(Seat::Player, slot)});
}

void MatchTeller::TellPlayed(Seat seat, int slot, const CardCode& card,
                             const std::vector<CardCode>& table) const {
  const auto& now = shown_.Table(seat);
  Tell(event::Played{seat, slot, card, now.back(), Turned(table, now), shown_.Total(seat)});
}

void MatchTeller::TellEnd(Seat seat) const {
  if (shown_.Total(seat) > kTargetTotal) {
    TellStood(seat);
  } else {
    Tell(event::EndedTurn{seat, shown_.Total(seat)});
  }
}

void MatchTeller::TellStood(Seat seat) const {
  Tell(event::Stood{seat, StandReasonOf(shown_, seat), shown_.Total(seat)});
}

void MatchTeller::SetDecided(const SetDecision& decision) const {
  if (heard()) Tell(event::SetDecided{decision, Totals()});
}

void MatchTeller::MatchDecided(Seat winner, int more) const {
  if (!heard()) return;
  event::Both sets = SetWins();
  sets.at(static_cast<std::size_t>(winner)) += more;
  Tell(event::MatchDecided{winner, sets});
}

}  // namespace kv
