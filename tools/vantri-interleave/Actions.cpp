#include "vantri-interleave/Actions.h"

#include <algorithm>
#include <array>
#include <sstream>

namespace kv::interleave {
namespace {

struct DeedRow {
  std::string_view name;
  int weight;  // how often it is drawn where it is possible
};
// In the order of Deed.
constexpr std::array<DeedRow, kDeeds> kRows = {{
    {"Nothing", 300},  {"EnterNetwork", 2000}, {"Connect", 2000}, {"Start", 1500},    {"Mode", 120},
    {"LeaveLobby", 6}, {"Wager", 1500},        {"End", 50},       {"CloseCards", 30}, {"Continue", 1500},
    {"EndTurn", 1000}, {"Stand", 600},         {"Play", 400},     {"Flip", 100},      {"Forfeit", 40},
    {"Banner", 1500},  {"LeaveProgram", 4},    {"Chat", 40},      {"Disconnect", 10}, {"Quit", 2},
    {"FailSaves", 25}, {"Stall", 25},          {"Break", 5},
}};
constexpr std::array<std::string_view, 2> kSeats = {"host", "guest"};

constexpr int kMostStake = 60;
constexpr int kLongBox = 20000;    // milliseconds
constexpr int kLongStall = 30000;  // milliseconds
constexpr int kStandingTotal = 14;

int Between(Random& chance, int least, int most) {
  return least + static_cast<int>(chance.Rnd() * (most - least + 1));
}

bool PossibleInLobby(Side& side, Deed deed) {
  const LobbyPlay& play = side.lobby()->lobby().play();
  switch (deed) {
    case Deed::Connect:
      return side.socket().State() == TcpSocket::Status::Closed;
    case Deed::Start:
      return play.startShown && play.startEnabled;
    case Deed::Mode:
      return play.modeShown && play.modeEnabled;
    default:
      return deed == Deed::LeaveLobby || deed == Deed::LeaveProgram;
  }
}

bool PossibleAtCards(Side& side, Deed deed) {
  CardRound& round = side.cards()->round();
  const bool panel = round.desk().view() == CardView::Null;
  switch (deed) {
    case Deed::Wager:
      return panel && (round.entry().buttonEnabled() || round.entry().boxEnabled());
    case Deed::End:
      return panel;
    case Deed::Continue:
      return round.desk().Buttons().next;
    default:
      return deed == Deed::CloseCards || deed == Deed::LeaveProgram;
  }
}

bool PossibleInMatch(Side& side, Deed deed) {
  const MatchEngine& engine = side.match()->engine();
  const MatchControls& controls = engine.shown().controls;
  switch (deed) {
    case Deed::EndTurn:
      return controls.endTurn;
    case Deed::Stand:
      return controls.stand;
    case Deed::Play:
      return controls.hand;
    case Deed::Flip:
      return controls.flips;
    case Deed::Forfeit:
      return controls.titlebar;
    case Deed::Banner:
      return engine.shown().banner.visible && engine.shown().banner.buttonEnabled;
    default:
      return deed == Deed::LeaveProgram;
  }
}

void DoAtCards(Side& side, const Action& action) {
  CardRound& round = side.cards()->round();
  switch (action.deed) {
    case Deed::Wager:
      if (round.entry().caption() == WagerCaption::Propose || action.value % 7 == 0) {
        static_cast<void>(round.entry().Change(std::to_string(action.value), 0));
      }
      if (round.entry().buttonEnabled()) round.ctlWager_WagerClick();
      break;
    case Deed::End:
      round.EndClick();
      break;
    case Deed::CloseCards:
      static_cast<void>(round.TitlebarQuit());
      break;
    case Deed::Continue:
      round.Continue();
      break;
    default:
      round.LeaveProgram();
  }
}

void DoInMatch(Side& side, const Action& action) {
  MatchEngine& engine = side.match()->engine();
  switch (action.deed) {
    case Deed::EndTurn:
      engine.person().EndTurn();
      break;
    case Deed::Stand:
      engine.person().Stand();
      break;
    case Deed::Play:
      engine.person().PlayHandCard(action.value);
      break;
    case Deed::Flip:
      engine.person().FirstFlip(action.value);
      break;
    case Deed::Forfeit:
      engine.person().Forfeit();
      break;
    case Deed::Banner:
      engine.Continue();
      break;
    default:
      side.match()->LeaveProgram();
  }
}

void DoInLobby(Side& side, const Action& action) {
  Lobby& lobby = side.lobby()->lobby();
  switch (action.deed) {
    case Deed::Connect:
      side.network().setHosting(side.seat() == 0);
      lobby.Opening();
      side.network().Open(6000, "10.0.0.1");
      break;
    case Deed::Start:
      lobby.PressStart();
      break;
    case Deed::Mode:
      lobby.PressMode();
      break;
    case Deed::LeaveLobby:
      side.network().LeaveLobby();
      break;
    default:
      if (side.network().connected()) {
        side.Say("/quit");
      } else {
        side.EndProgram();
      }
  }
}

int ValueFor(Deed deed, Random& chance) {
  switch (deed) {
    case Deed::Wager:
      return Between(chance, 0, kMostStake);
    case Deed::Play:
    case Deed::Flip:
      return Between(chance, 1, kHandSize);
    case Deed::FailSaves:
      return Between(chance, 1, 3);
    case Deed::Stall:
      return Between(chance, 100, chance.Rnd() < 0.7 ? kLongStall / 10 : kLongStall);
    default:
      return 0;
  }
}

}  // namespace

std::string Text(const Action& action) {
  std::ostringstream text;
  text << action.after << ' ' << kSeats.at(static_cast<std::size_t>(action.seat)) << ' '
       << kRows.at(static_cast<std::size_t>(action.deed)).name << ' ' << action.value << " box "
       << action.box.milliseconds << (action.box.yes ? " yes" : " no");
  return text.str();
}

std::optional<Action> ParseAction(std::string_view line) {
  std::istringstream text{std::string(line)};
  Action action;
  std::string seat;
  std::string deed;
  std::string box;
  std::string answer;
  text >> action.after >> seat >> deed >> action.value >> box >> action.box.milliseconds >> answer;
  const auto who = std::ranges::find(kSeats, seat);
  const auto row = std::ranges::find(kRows, deed, &DeedRow::name);
  if (!text || box != "box" || who == kSeats.end() || row == kRows.end()) return {};
  action.seat = static_cast<int>(who - kSeats.begin());
  action.deed = static_cast<Deed>(row - kRows.begin());
  action.box.yes = answer == "yes";
  return action;
}

bool Possible(Side& side, Deed deed) {
  if (deed == Deed::Nothing) return true;
  if (deed == Deed::FailSaves || deed == Deed::Stall || deed == Deed::Break) return true;
  if (!side.free()) return false;
  const bool chats = deed == Deed::Chat || deed == Deed::Disconnect || deed == Deed::Quit;
  switch (side.where()) {
    case Where::Menu:
    case Where::Ended:
      return deed == Deed::EnterNetwork;
    case Where::Lobby:
      return chats || PossibleInLobby(side, deed);
    case Where::Cards:
      return chats || PossibleAtCards(side, deed);
    case Where::Match:
      return chats || PossibleInMatch(side, deed);
  }
  return false;
}

void Do(Side& side, Wire& wire, const Action& action) {
  if (!Possible(side, action.deed)) return;
  side.answering = action.box;
  switch (action.deed) {
    case Deed::Nothing:
      return;
    case Deed::EnterNetwork:
      return side.EnterNetwork();
    case Deed::FailSaves:
      side.failSaves = action.value;
      return;
    case Deed::Stall:
      return wire.Stall(action.value);
    case Deed::Break:
      return wire.Break();
    case Deed::Chat:
      return side.Say("hello");
    case Deed::Disconnect:
      return side.Say("/disconnect");
    case Deed::Quit:
      return side.Say("/quit");
    default:
      break;
  }
  if (side.lobby() != nullptr) return DoInLobby(side, action);
  if (side.cards() != nullptr) return DoAtCards(side, action);
  if (side.match() != nullptr) return DoInMatch(side, action);
}

Action Draw(Side& side, Random& chance) {
  std::array<int, kDeeds> weights{};
  int sum = 0;
  for (int deed = 0; deed < kDeeds; ++deed) {
    const auto at = static_cast<std::size_t>(deed);
    weights.at(at) = Possible(side, static_cast<Deed>(deed)) ? kRows.at(at).weight : 0;
    sum += weights.at(at);
  }
  Action action{.seat = side.seat()};
  int left = Between(chance, 0, std::max(sum - 1, 0));
  for (int deed = 0; deed < kDeeds; ++deed) {
    left -= weights.at(static_cast<std::size_t>(deed));
    if (left >= 0) continue;
    action.deed = static_cast<Deed>(deed);
    break;
  }
  action.value = ValueFor(action.deed, chance);
  action.box.milliseconds = Between(chance, 0, chance.Rnd() < 0.7 ? 1500 : kLongBox);
  action.box.yes = chance.Rnd() < 0.35;
  return action;
}

Deed WayBack(Side& side) {
  if (!side.free()) return Deed::Nothing;
  if (side.cards() != nullptr) {
    // Whoever can still go back does; a settled match is played.
    for (const Deed deed : {Deed::End, Deed::Continue}) {
      if (Possible(side, deed)) return deed;
    }
    return Deed::Nothing;
  }
  if (side.match() == nullptr) return Deed::Nothing;
  const MatchEngine& engine = side.match()->engine();
  if (Possible(side, Deed::Banner)) return Deed::Banner;
  if (!engine.shown().controls.endTurn) return Deed::Nothing;
  return engine.shown().Total(Seat::Player) >= kStandingTotal ? Deed::Stand : Deed::EndTurn;
}

}  // namespace kv::interleave
