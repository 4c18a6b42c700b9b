#include "vantri-interleave/Run.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <sstream>
#include <stdexcept>

namespace kv::interleave {
namespace {

// Milliseconds.
constexpr int kMeeting = 4000;
constexpr int kLongestPause = 3000;  // of the rules and of the link together, generously
constexpr int kHomeTime = 120000;
constexpr int kLastWaits = 30000;  // for what was still going on: an open box, a line that stands still
constexpr int kHomeStep = 250;
constexpr int kHomeDelay = 300;
constexpr std::array kDelays = {2, 40, 300, 300, 2000};

struct Failure {
  Fault fault;
  std::string words;
};

class Runner {
 public:
  explicit Runner(const Plan& plan)
      : plan_(plan),
        chance_(plan.seed * 2654435761U + 17),
        wire_(timeline_, chance_),
        host_(timeline_, wire_, shared_, 0, plan.seed * 4 + 1),
        guest_(timeline_, wire_, shared_, 1, plan.seed * 4 + 2) {
    const auto pick = static_cast<std::size_t>(chance_.Rnd() * kDelays.size());
    if (plan.trace) {
      wire_.tap = [this](int seat, bool sent, std::string_view bytes) { Trace(seat, sent, bytes); };
    }
    report_.mostDelay = plan.mostDelay >= 0 ? plan.mostDelay : kDelays.at(pick);
  }

  Report Run() {
    try {
      Meet();
      wire_.mostDelay = report_.mostDelay;
      if (plan_.script != nullptr) {
        for (const Action& action : *plan_.script) Act(action);
      } else {
        for (int step = 0; step < plan_.actions; ++step) ActByChance();
      }
      GoHome();
      report_.words = Situation();
    } catch (const Failure& failure) {
      report_.fault = failure.fault;
      report_.words = failure.words;
    } catch (const std::exception& error) {
      report_.fault = Fault::Exception;
      report_.words = error.what();
    }
    report_.simulated = timeline_.now();
    report_.matches = static_cast<int>(host_.stakes().size());
    return std::move(report_);
  }

 private:
  [[nodiscard]] std::array<Side*, 2> Sides() { return {&host_, &guest_}; }
  [[nodiscard]] Side& Of(int seat) { return seat == 0 ? host_ : guest_; }

  void Trace(int seat, bool sent, std::string_view bytes) {
    Side& side = Of(seat);
    std::printf("%9.3f %-5s %s %.*s   (place %d, peer %s)\n", static_cast<double>(timeline_.now()) / 1000.0,
                seat == 0 ? "host" : "guest", sent ? "->" : "  <-", static_cast<int>(bytes.size()),
                bytes.data(), static_cast<int>(side.network().place()), side.network().peer().Text().c_str());
  }
  void Meet() {
    for (Side* side : Sides()) side->scheduler().After(0, [side] { side->EnterNetwork(); });
    Pass(10);
    for (Side* side : Sides()) Begin({.after = 50, .seat = side->seat(), .deed = Deed::Connect});
    Pass(kMeeting);
  }
  void ActByChance() {
    const double pace = chance_.Rnd();
    const int after = pace < 0.3   ? static_cast<int>(chance_.Rnd() * 60)
                      : pace < 0.8 ? static_cast<int>(chance_.Rnd() * 600)
                                   : static_cast<int>(chance_.Rnd() * 3000);
    Pass(after);
    Action action = Draw(Of(chance_.Rnd() < 0.5 ? 0 : 1), chance_);
    action.after = after;
    if (action.deed == Deed::Nothing) {
      idle_ += after;
      return;
    }
    action.after += std::exchange(idle_, 0);
    report_.actions.push_back(action);
    Begin(action);
  }
  void Act(const Action& action) {
    report_.actions.push_back(action);
    Pass(action.after);
    Begin(action);
  }
  /// The person starts it now; a box that it opens stays open while time goes on.
  void Begin(const Action& action) {
    Side& side = Of(action.seat);
    side.scheduler().After(0, [&side, action, this] { Do(side, wire_, action); });
    Pass(0);
  }
  void Pass(int milliseconds) {
    timeline_.Pass(milliseconds, [this] { Check(); });
  }

  // --- What must hold at every step
  void Check() {
    for (Side* side : Sides()) side->Note();
    CheckTurns();
  }
  [[nodiscard]] static bool HasTurn(Side& side) {
    return side.match()->engine().peer().begun() && side.match()->engine().shown().Light(Seat::Player);
  }
  [[nodiscard]] static bool Plays(Side& side) {
    if (side.match() == nullptr || side.boxes() > 0) return false;
    const MatchEngine& engine = side.match()->engine();
    return engine.peer().begun() && !engine.shown().banner.visible && side.game().Wager != -1;
  }
  void CheckTurns() {
    const bool playing = Plays(host_) && Plays(guest_) && host_.network().connected() &&
                         guest_.network().connected() && !wire_.stalled();
    const bool one = playing && HasTurn(host_) != HasTurn(guest_);
    if (!playing || one) {
      lastOrder_ = timeline_.now();
      return;
    }
    if (timeline_.now() - lastOrder_ < kLongestPause + 6 * std::int64_t{wire_.mostDelay}) return;
    throw Failure{HasTurn(host_) ? Fault::TwoTurns : Fault::NoTurn, Situation()};
  }

  // --- The end
  void GoHome() {
    wire_.mostDelay = std::min(wire_.mostDelay, kHomeDelay);
    for (Side* side : Sides()) side->failSaves = 0;
    const std::int64_t start = timeline_.now();
    // At home is who stays there.
    for (std::int64_t since = start; timeline_.now() - since < kMeeting;) {
      if (!Home()) since = timeline_.now();
      if (since - start > kHomeTime + kLastWaits) throw Failure{Fault::Stuck, Situation()};
      for (Side* side : Sides()) {
        const Deed deed = WayBack(*side);
        if (deed != Deed::Nothing) Begin({.seat = side->seat(), .deed = deed, .box = {300, true}});
      }
      Pass(kHomeStep);
    }
    CheckBooks();
  }
  [[nodiscard]] bool Home() {
    for (Side* side : Sides()) {
      const bool there =
          side->where() == Where::Lobby || side->where() == Where::Menu || side->where() == Where::Ended;
      if (!there || side->boxes() > 0) return false;
    }
    // Either both are connected, or neither thinks that it is.
    const bool host = host_.where() == Where::Lobby && host_.network().connected();
    const bool guest = guest_.where() == Where::Lobby && guest_.network().connected();
    if (host != guest) return false;
    return host || (!Waits(host_) && !Waits(guest_));
  }
  /// A line that is lost and not yet told.
  [[nodiscard]] static bool Waits(Side& side) {
    return side.where() == Where::Lobby && side.socket().State() == TcpSocket::Status::Closing;
  }

  void CheckBooks() {
    for (Side* side : Sides()) {
      if (side->stakeOpen()) throw Failure{Fault::Books, "a stake is still open\n" + Situation()};
      if (side->Held() == side->Expected()) continue;
      const auto held = side->Held();
      const auto expected = side->Expected();
      std::ostringstream words;
      words << (side->seat() == 0 ? "host" : "guest") << " holds " << held.credits << " credits, "
            << held.wins << " wins, " << held.losses << " losses, " << held.disconnects
            << " disconnects; expected " << expected.credits << ", " << expected.wins << ", "
            << expected.losses << ", " << expected.disconnects << "\n"
            << Situation();
      throw Failure{Fault::Credits, words.str()};
    }
    for (int match = 1; match <= shared_.lastMatch; ++match) {
      const Stake host = StakeOf(host_, match);
      const Stake guest = StakeOf(guest_, match);
      if (Fits(host, guest)) continue;
      throw Failure{Fault::Books, "match " + std::to_string(match) + ": host " +
                                      kv::interleave::Name(host.outcome) + ", guest " +
                                      kv::interleave::Name(guest.outcome) + "\n" + Situation()};
    }
    for (Side* side : Sides()) {
      if (const std::string words = side->Complaint(); !words.empty()) {
        throw Failure{Fault::Complaint, words + "\n" + Situation()};
      }
    }
  }
  [[nodiscard]] static Stake StakeOf(Side& side, int match) {
    const auto found = std::ranges::find(side.stakes(), match, &Stake::number);
    return found == side.stakes().end() ? Stake{.number = match, .amount = -1} : *found;
  }
  [[nodiscard]] bool Fits(const Stake& a, const Stake& b) const {
    // One had settled, and the other had gone back, or left the game, before it heard of that.
    for (const auto& [one, other] : {std::pair(a, b), std::pair(b, a)}) {
      if (other.amount != -1) continue;
      return one.outcome == Outcome::Withdrawn || one.outcome == Outcome::Win ||
             (one.outcome == Outcome::Loss && one.gaveUp) || wire_.breaks() > 0;
    }
    if (a.amount != b.amount) return false;
    const auto both = [&](Outcome x, Outcome y) {
      return (a.outcome == x && b.outcome == y) || (a.outcome == y && b.outcome == x);
    };
    if (both(Outcome::Win, Outcome::Loss) || both(Outcome::Withdrawn, Outcome::Withdrawn)) return true;
    // Both gave up before either knew of the other.
    if (both(Outcome::Loss, Outcome::Loss)) return a.gaveUp && b.gaveUp;
    // A line that broke leaves one side without the last word of the other.
    if (wire_.breaks() > 0) return true;
    return false;
  }

  [[nodiscard]] std::string Situation() {
    std::ostringstream words;
    for (Side* side : Sides()) {
      words << (side->seat() == 0 ? "host " : "guest ");
      static constexpr std::array kPlaces = {"menu", "lobby", "cards", "match", "ended"};
      words << kPlaces.at(static_cast<std::size_t>(side->where()));
      if (MatchRoom* match = side->match()) {
        const MatchEngine& engine = match->engine();
        words << (engine.peer().begun() ? "" : " opening") << " sets " << engine.shown().SetWins(Seat::Player)
              << ':' << engine.shown().SetWins(Seat::Opponent) << " totals "
              << engine.shown().Total(Seat::Player) << ':' << engine.shown().Total(Seat::Opponent);
        if (engine.shown().banner.visible) words << " banner " << engine.shown().banner.caption;
        if (engine.shown().Light(Seat::Player)) words << " own-light";
        if (engine.shown().Light(Seat::Opponent)) words << " peer-light";
      }
      if (side->game().Wager != -1) words << " wager " << side->game().Wager;
      words << (side->network().connected() ? " connected" : " not connected") << ", boxes " << side->boxes()
            << ", at " << timeline_.now() << "\n";
      const std::string& log = side->network().chatLog();
      words << "  log: ..." << log.substr(log.size() > 300 ? log.size() - 300 : 0) << "\n";
    }
    return words.str();
  }

  Plan plan_;
  Report report_;
  SeededRandom chance_;
  Timeline timeline_;
  Wire wire_;
  Shared shared_;
  Side host_;
  Side guest_;
  int idle_ = 0;                // milliseconds in which nothing was done
  std::int64_t lastOrder_ = 0;  // when the turn was last exactly one side's
};

}  // namespace

const char* Name(Fault fault) {
  static constexpr std::array kNames = {"none",  "stuck",   "two turns", "no turn",
                                        "books", "credits", "complaint", "exception"};
  return kNames.at(static_cast<std::size_t>(fault));
}

Report Explore(const Plan& plan) {
  return Runner(plan).Run();
}

Report Shrink(const Plan& plan, const Report& found) {
  Report best = found;
  // Ever smaller stretches are left out as long as the fault stays.
  for (std::size_t size = std::max<std::size_t>(best.actions.size() / 2, 1); size > 0; size /= 2) {
    for (std::size_t at = 0; at < best.actions.size();) {
      std::vector<Action> fewer = best.actions;
      const auto first = fewer.begin() + static_cast<std::ptrdiff_t>(at);
      fewer.erase(first, first + static_cast<std::ptrdiff_t>(std::min(size, fewer.size() - at)));
      Plan shorter = plan;
      shorter.script = &fewer;
      shorter.mostDelay = found.mostDelay;
      Report report = Explore(shorter);
      if (report.fault == found.fault) {
        best = std::move(report);
      } else {
        at += size;
      }
    }
  }
  return best;
}

std::string Text(const Report& report) {
  std::string text = std::string(Name(report.fault)) + ", delays up to " + std::to_string(report.mostDelay) +
                     " ms: " + report.words;
  for (const Action& action : report.actions) text += "  " + Text(action) + "\n";
  return text;
}

}  // namespace kv::interleave
