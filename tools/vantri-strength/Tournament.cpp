#include "vantri-strength/Tournament.h"

#include <charconv>
#include <exception>
#include <stdexcept>
#include <thread>

#include "ai/clsAI_Ember.h"
#include "ai/clsAI_Normal.h"
#include "match/Dealing.h"
#include "match/OracleSeat.h"
#include "vantri-strength/MatchInvariants.h"

namespace kv {
namespace {

/// A careless player: never looks at the hand and stands on 17 or more.
class Careless final : public Strategy {
 public:
  void AI(AiOperations& side, int total, int, int, int, bool, bool) override {
    if (total >= 17 || side.TableCount() == kTableSize) {
      side.AI_Stand();
    } else {
      side.AI_EndTurn();
    }
  }
};

template <typename Made, auto... Arguments>
std::unique_ptr<Strategy> Make() {
  return std::make_unique<Made>(Arguments...);
}

struct StrategyRow {
  std::string_view name;
  std::unique_ptr<Strategy> (*make)();
};

using Rescue = clsAI_Normal::AfterRescue;

constexpr std::array<StrategyRow, 5> kStrategies = {{
    {"standard", &Make<clsAI_Normal, Rescue::StandWhenAhead>},
    {"ember", &Make<clsAI_Ember>},
    {"careless", &Make<Careless>},
    {"standard-rescue-ends", &Make<clsAI_Normal, Rescue::EndTurn>},
    {"standard-rescue-stands", &Make<clsAI_Normal, Rescue::Stand>},
}};

constexpr std::array<const char*, kDeckSize> kArcadeDeck = {"s199", "s199", "s599", "s599", "fl3",
                                                            "fl3",  "fl4",  "fl4",  "fp5",  "s299"};

/// "oracle" thinks over so many simulated matches, "oracle-50" over fifty; 0 for any other name.
constexpr int kOracleMatches = 1000;
int OracleMatches(std::string_view name) {
  constexpr std::string_view kOracle = "oracle";
  if (name == kOracle) return kOracleMatches;
  if (!name.starts_with("oracle-")) return 0;
  name.remove_prefix(kOracle.size() + 1);
  int matches = 0;
  const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), matches);
  return error == std::errc() && end == name.data() + name.size() && matches > 0 ? matches : 0;
}

/// An oracle as a strategy among others.
class Oracle final : public Strategy {
 public:
  explicit Oracle(int matches) : seat(matches) {}
  void AI(AiOperations& side, int total, int oppTotal, int uWins, int oWins, bool uStand,
          bool oStand) override {
    seat.strategy().AI(side, total, oppTotal, uWins, oWins, uStand, oStand);
  }
  OracleSeat seat;
};

int MostCards(std::string_view strategy) {
  return strategy == "ember" ? 2 : 1;
}

constexpr std::uint64_t kOracleSeed = 0xA0761D6478BD642FU;  // what it simulates is no part of the match

/// The matches with the numbers first, first + step, … of a plan.
class Share {
 public:
  explicit Share(const TournamentPlan& plan)
      : plan_(plan), strategies_{MakeStrategy(plan.first.strategy), MakeStrategy(plan.second.strategy)} {
    if (!strategies_[0] || !strategies_[1] || !FindDeck(plan.first.deck, decks_[0]) ||
        !FindDeck(plan.second.deck, decks_[1])) {
      throw std::invalid_argument("unknown strategy or deck");
    }
    for (std::size_t who = 0; who < oracles_.size(); ++who) {
      oracles_.at(who) = OracleIn(*strategies_.at(who));
      if (oracles_.at(who) == nullptr) continue;
      observers_.Add(*oracles_.at(who));
      observer_ = &observers_;
    }
  }

  TournamentResult Play(std::int64_t first, std::int64_t step) {
    TournamentResult sum;
    for (std::int64_t i = first; i < plan_.matches; i += step) PlayOne(i, sum);
    return sum;
  }

 private:
  void PlayOne(std::int64_t index, TournamentResult& sum) {
    SeededRandom random(plan_.seed * 0x9E3779B97F4A7C15U +
                        static_cast<std::uint64_t>(index) * 0xD1B54A32D192ED03U);
    const std::size_t atPlayer = static_cast<std::size_t>(index % 2);  // who sits in the player's seat
    SeatOracles(atPlayer, plan_.seed * kOracleSeed + static_cast<std::uint64_t>(index));
    const HeadlessResult result =
        plan_.checkInvariants ? PlayChecked(atPlayer, random) : PlayPlain(atPlayer, random);
    const std::size_t winner = result.winner == Seat::Player ? atPlayer : 1 - atPlayer;
    ++sum.matches;
    ++sum.wins.at(winner);
    if (result.winner == Seat::Player) ++sum.winsAsPlayer.at(winner);
    sum.sets += result.sets;
    sum.ties += result.ties;
    sum.busts.at(atPlayer) += result.busts[0];
    sum.busts.at(1 - atPlayer) += result.busts[1];
  }

  void SeatOracles(std::size_t atPlayer, std::uint64_t seed) {
    if (observer_ == nullptr) return;
    for (std::size_t who = 0; who < oracles_.size(); ++who) {
      const Seat seat = who == atPlayer ? Seat::Player : Seat::Opponent;
      if (oracles_.at(who) == nullptr) continue;
      oracles_.at(who)->SitDown(seat, decks_.at(1 - who), MatchOptions().turnMode, seed + who);
    }
  }

  HeadlessResult PlayPlain(std::size_t atPlayer, Random& random) {
    return PlayHeadless({*strategies_.at(atPlayer),
                         *strategies_.at(1 - atPlayer),
                         decks_.at(atPlayer),
                         decks_.at(1 - atPlayer),
                         {},
                         observer_},
                        random);
  }

  HeadlessResult PlayChecked(std::size_t atPlayer, Random& random) {
    const std::array<const Contestant*, 2> who{&plan_.first, &plan_.second};
    CheckedStrategy player(*strategies_.at(atPlayer), MostCards(who.at(atPlayer)->strategy));
    CheckedStrategy opponent(*strategies_.at(1 - atPlayer), MostCards(who.at(1 - atPlayer)->strategy));
    return PlayHeadless({player, opponent, decks_.at(atPlayer), decks_.at(1 - atPlayer), {}, observer_},
                        random, CheckMatchState);
  }

  const TournamentPlan& plan_;
  std::array<std::unique_ptr<Strategy>, 2> strategies_;
  std::array<clsDeckArray, 2> decks_;
  std::array<OracleSeat*, 2> oracles_{};  // null for any other strategy
  MatchObservers observers_;              // the oracles
  MatchObserver* observer_ = nullptr;     // without one nobody is told anything
};

}  // namespace

void TournamentResult::Add(const TournamentResult& other) {
  matches += other.matches;
  sets += other.sets;
  ties += other.ties;
  for (const std::size_t i : {std::size_t{0}, std::size_t{1}}) {
    wins.at(i) += other.wins.at(i);
    busts.at(i) += other.busts.at(i);
    winsAsPlayer.at(i) += other.winsAsPlayer.at(i);
  }
}

std::vector<std::string> StrategyNames() {
  std::vector<std::string> names;
  for (const StrategyRow& row : kStrategies) names.emplace_back(row.name);
  return names;
}

std::unique_ptr<Strategy> MakeStrategy(std::string_view name) {
  if (const int matches = OracleMatches(name); matches > 0) return std::make_unique<Oracle>(matches);
  for (const StrategyRow& row : kStrategies) {
    if (row.name == name) return row.make();
  }
  return nullptr;
}

OracleSeat* OracleIn(Strategy& strategy) {
  auto* oracle = dynamic_cast<Oracle*>(&strategy);
  return oracle == nullptr ? nullptr : &oracle->seat;
}

bool FindDeck(std::string_view name, clsDeckArray& deck) {
  if (name == "arcade") {
    deck.setAll(kArcadeDeck);
  } else if (name == "campaign") {
    deck.DefaultDeckSP();
  } else if (name == "network") {
    deck.DefaultDeckMP();
  } else {
    deck = OpponentDeck(name);
  }
  return !(deck == clsDeckArray());
}

TournamentResult PlayTournament(const TournamentPlan& plan) {
  const unsigned cores = std::max(1U, plan.threads != 0 ? plan.threads : std::thread::hardware_concurrency());
  std::vector<TournamentResult> results(cores);
  std::vector<std::exception_ptr> faults(cores);
  std::vector<std::thread> threads;
  for (unsigned i = 0; i < cores; ++i) {
    threads.emplace_back([&, i] {
      try {
        results[i] = Share(plan).Play(i, cores);
      } catch (...) {
        faults[i] = std::current_exception();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  TournamentResult sum;
  for (unsigned i = 0; i < cores; ++i) {
    if (faults[i]) std::rethrow_exception(faults[i]);
    sum.Add(results[i]);
  }
  return sum;
}

}  // namespace kv
