#include "match/Weigh.h"

#include <algorithm>
#include <cmath>

#include "ai/clsAI_Normal.h"
#include "match/PlayFrom.h"
#include "match/PossibleMoves.h"
#include "match/UnseenHand.h"

namespace kv {
namespace {

constexpr double kSeeds = 9007199254740992.0;  // 2^53, all that Rnd tells apart

class Weighing {
 public:
  Weighing(const WeighTask& task, Random& random)
      : task_(task), random_(random), position_(task.position), unseen_(task.position) {
    for (CardCode& card : position_.side(position_.turn).hand) card = Signed(card);
    for (const TurnMove& move : PossibleMoves(task.position)) moves_.push_back({move});
    if (!task.made) return;
    const auto made = std::find_if(moves_.begin(), moves_.end(),
                                   [&](const WeighedMove& each) { return SameMove(each.move, *task.made); });
    if (made != moves_.end()) moves_.erase(made);
    moves_.insert(moves_.begin(), {*task.made});
  }

  std::vector<WeighedMove> Run() {
    std::size_t inQuestion = moves_.size();
    int left = task_.matches;
    for (int rounds = Rounds(inQuestion); rounds > 0 && !Stopped(); --rounds) {
      const int deals = std::max(1, left / rounds / static_cast<int>(inQuestion));
      for (int i = 0; i < deals && !Stopped(); ++i) PlayDeal(inQuestion);
      left -= deals * static_cast<int>(inQuestion);
      inQuestion = DropTheWorse(inQuestion);
    }
    // What dropped out early has had its luck: it stays behind.
    std::stable_sort(moves_.begin(), moves_.begin() + static_cast<std::ptrdiff_t>(inQuestion), Better);
    return moves_;
  }

 private:
  [[nodiscard]] static bool Better(const WeighedMove& a, const WeighedMove& b) {
    return a.Chance() > b.Chance();
  }
  [[nodiscard]] bool Stopped() const { return task_.stop != nullptr && task_.stop->load(); }

  [[nodiscard]] static int Rounds(std::size_t moves) {
    int rounds = 1;
    for (std::size_t left = moves; left > 2; left = (left + 1) / 2) ++rounds;
    return rounds;
  }

  void PlayDeal(std::size_t inQuestion) {
    unseen_.Deal(position_, random_);
    const auto seed = static_cast<std::uint64_t>(random_.Rnd() * kSeeds);
    double first = 0;
    for (std::size_t i = 0; i < inQuestion && !Stopped(); ++i) {
      WeighedMove& each = moves_[i];
      course_ = SeededRandom(seed);
      const double won = Won(each.move);
      if (i == 0) first = won;
      ++each.matches;
      each.wins += won;
      each.lead += won - first;
      each.leadSquares += (won - first) * (won - first);
    }
  }

  double Won(const TurnMove& move) {
    if (task_.toTheSetOnly) return match_.PlaySet(position_, &move);
    return match_.Play(position_, &move) == position_.turn ? 1 : 0;
  }

  /// The better half stays in question, and the move that was made, which stands first.
  std::size_t DropTheWorse(std::size_t inQuestion) {
    if (inQuestion <= 2) return inQuestion;
    const std::ptrdiff_t made = task_.made ? 1 : 0;
    std::stable_sort(moves_.begin() + made, moves_.begin() + static_cast<std::ptrdiff_t>(inQuestion), Better);
    return std::max<std::size_t>(2, (inQuestion + 1) / 2);
  }

  const WeighTask& task_;
  Random& random_;
  MatchPosition position_;
  UnseenHand unseen_;
  std::vector<WeighedMove> moves_;
  SeededRandom course_{0};
  clsAI_Normal player_;
  clsAI_Normal opponent_;
  MatchFrom match_{{player_, opponent_}, position_.turnMode, course_};
};

}  // namespace

double WeighedMove::Ahead() const {
  if (matches == 0 || lead == 0) return 0;
  const auto deals = static_cast<double>(matches);
  const double spread = std::sqrt(std::max(leadSquares - lead * lead / deals, 0.0));
  return lead / std::max(spread, 1e-9);
}

std::vector<WeighedMove> Weigh(const WeighTask& task, Random& random) {
  return Weighing(task, random).Run();
}

}  // namespace kv
