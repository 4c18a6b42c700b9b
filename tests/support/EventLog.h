// Writes down what happens in a match, a short line for each event, and lays the cards on two tables of its
// own. It knows the match from its events alone.
#pragma once

#include <array>
#include <string>
#include <variant>
#include <vector>

#include "match/MatchObserver.h"

namespace kv::test {

/// Whose seat the first word names; a mirrored log calls the player "opponent", as the peer does.
class EventLog final : public MatchObserver {
 public:
  explicit EventLog(bool mirrored = false) : mirrored_(mirrored) {}

  std::vector<std::string> lines;
  std::vector<MatchEvent> events;
  std::array<std::vector<CardCode>, 2> tables;  // by Seat
  int wrongTotals = 0;                          // told totals that are not those of the tables

  void Happened(const MatchEvent& event) override {
    events.push_back(event);
    std::visit([this](const auto& each) { Note(each); }, event);
  }
  [[nodiscard]] int Total(Seat seat) const {
    int total = 0;
    for (const CardCode& card : tables.at(static_cast<std::size_t>(seat))) total += card.cardValue();
    return total;
  }

 private:
  [[nodiscard]] std::string Name(Seat seat) const {
    return (seat == Seat::Player) != mirrored_ ? "player" : "opponent";
  }
  [[nodiscard]] std::string Pair(const event::Both& both) const {
    const std::size_t first = mirrored_ ? 1 : 0;
    return std::to_string(both.at(first)) + ":" + std::to_string(both.at(1 - first));
  }
  void Add(Seat seat, const std::string& what) { lines.push_back(Name(seat) + " " + what); }
  void Check(Seat seat, int total) { wrongTotals += total == Total(seat) ? 0 : 1; }
  std::vector<CardCode>& Table(Seat seat) { return tables.at(static_cast<std::size_t>(seat)); }

  void Note(const event::MatchBegun& e) { lines.push_back("match for " + std::to_string(e.stake)); }
  void Note(const event::SetBegun& e) {
    tables = {};
    Add(e.starts, "begins set " + std::to_string(e.number) + " at " + Pair(e.setWins));
  }
  void Note(const event::Drew& e) {
    Table(e.seat).push_back(e.card);
    Check(e.seat, e.total);
    Add(e.seat, "draws " + e.card.text() + " = " + std::to_string(e.total));
  }
  void Note(const event::Flipped& e) {
    Add(Seat::Player, "flips " + std::to_string(e.slot) + " to " + e.card.text());
  }
  void Note(const event::Played& e) {
    std::string line = "plays " + std::to_string(e.slot) + " " + e.card.text();
    if (!(e.landed == e.card)) line += " as " + e.landed.text();
    for (const event::TurnedCard& turned : e.turned) {
      Table(e.seat).at(static_cast<std::size_t>(turned.index) - 1) = turned.card;
      line += " turns " + std::to_string(turned.index) + " to " + turned.card.text();
    }
    Table(e.seat).push_back(e.landed);
    Check(e.seat, e.total);
    Add(e.seat, line + " = " + std::to_string(e.total));
  }
  void Note(const event::EndedTurn& e) {
    Check(e.seat, e.total);
    Add(e.seat, "ends");
  }
  void Note(const event::Stood& e) {
    static constexpr std::array kWhy = {"", " on twenty", " on nine cards", " over twenty"};
    Check(e.seat, e.total);
    Add(e.seat, std::string("stands") + kWhy.at(static_cast<std::size_t>(e.why)));
  }
  void Note(const event::SetDecided& e) {
    Check(Seat::Player, e.totals[0]);
    Check(Seat::Opponent, e.totals[1]);
    const GameStep won = e.decision.result;
    const std::string who = won == GameStep::SetTied
                                ? "nobody"
                                : Name(won == GameStep::PlayerWins ? Seat::Player : Seat::Opponent);
    lines.push_back(who + " wins the set " + Pair(e.totals) + (e.decision.endsMatch ? ", the last" : ""));
  }
  void Note(const event::MatchDecided& e) { Add(e.winner, "wins the match " + Pair(e.setWins)); }
  void Note(const event::Booked& e) {
    static constexpr std::array kResults = {"won ", "lost ", "broken off "};
    lines.push_back("booked " + std::string(kResults.at(static_cast<std::size_t>(e.result))) +
                    std::to_string(e.stake) + ": " + std::to_string(e.before) + " to " +
                    std::to_string(e.after));
  }
  void Note(const event::Forfeited& e) { Add(e.seat, "gives up"); }
  void Note(const event::PeerGone&) { lines.emplace_back("peer gone"); }

  bool mirrored_;
};

}  // namespace kv::test
