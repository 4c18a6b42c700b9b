#include "vantri-strength/FitBetween.h"

#include <cmath>
#include <utility>
#include <vector>

#include "ai/clsAI_Normal.h"
#include "match/Dealing.h"
#include "match/PlayFrom.h"
#include "match/UnseenHand.h"
#include "vantri-strength/Tournament.h"

namespace kv {
namespace {

constexpr std::array kDecks = {"arcade", "arcade",  "campaign",   "network",
                               "Tamsen", "Brummox", "Orrin Vaal", "H6-J8"};

struct Sample {
  BetweenTerms terms;
  double won;
};

class Samples {
 public:
  Samples(int own, int other, std::uint64_t seed) : own_(own), other_(other), random_(seed) {}

  Sample Next() {
    BetweenSets at{own_, other_, SomeHand(), SomeHand(), Below(2) == 0};
    const Seat seat = Below(2) == 0 ? Seat::Player : Seat::Opponent;
    MatchPosition position;
    position.turn = at.ownStarts ? seat : OtherSeat(seat);
    position.startsNext = OtherSeat(position.turn);
    SitDown(position.side(seat), at.own, own_);
    SitDown(position.side(OtherSeat(seat)), at.other, other_);
    Sort(position.side(Seat::Opponent).hand);
    const int first = Below(10) + 1;
    ++position.drawn.at(static_cast<std::size_t>(first));
    position.side(position.turn).table = {CardCode(CardType::MainDeck, first)};
    return {TermsOf(at), match_.Play(position, nullptr) == seat ? 1.0 : 0.0};
  }

 private:
  int Below(int limit) { return static_cast<int>(random_.Rnd() * limit); }

  CardCode SomeCard() {
    const int number = Below(6) + 1;
    switch (Below(8)) {
      case 0:
      case 1:
        return {CardType::Plus, number};
      case 2:
        return {CardType::Minus, -number};
      case 3:
      case 4:
        return {CardType::FlipPlus, number};
      case 5:
        return Below(2) == 0 ? CardCode(CardType::Tiebreaker, 1) : CardCode(CardType::Double, kNotChosen);
      case 6:
        return {Below(2) == 0 ? CardType::Flip24 : CardType::Flip36, kNotChosen};
      default:
        return {CardType::OneOrTwo, 1};
    }
  }

  /// Of a deck that is played with, or of any cards; some of the four are played already.
  HandCards SomeHand() {
    const auto which = static_cast<std::size_t>(Below(2 * static_cast<int>(kDecks.size())));
    clsDeckArray deck;
    for (int i = 1; i <= kDeckSize; ++i) deck.setValue(i, SomeCard());
    if (which < kDecks.size()) static_cast<void>(FindDeck(kDecks.at(which), deck));
    const auto dealt = DealHand(deck, random_);
    HandCards hand;
    const int cards = Below(kHandSize + 1);
    for (int slot = 1; slot <= cards; ++slot) {
      hand.at(static_cast<std::size_t>(slot) - 1) = Signed(dealt->Value(slot));
    }
    return hand;
  }

  static void SitDown(PositionSide& side, const HandCards& hand, int wins) {
    side.hand = hand;
    side.setWins = wins;
  }

  static void Sort(HandCards& hand) {
    clsDeckArray deck;
    for (int slot = 1; slot <= kHandSize; ++slot)
      deck.setValue(slot, hand.at(static_cast<std::size_t>(slot) - 1));
    AI_SortDeck(deck);
    for (int slot = 1; slot <= kHandSize; ++slot)
      hand.at(static_cast<std::size_t>(slot) - 1) = deck.Value(slot);
  }

  int own_;
  int other_;
  SeededRandom random_;
  clsAI_Normal player_;
  clsAI_Normal opponent_;
  MatchFrom match_{{player_, opponent_}, MatchOptions().turnMode, random_};
};

double Chance(const BetweenTerms& weights, const BetweenTerms& terms) {
  double sum = 0;
  for (std::size_t i = 0; i < kBetweenTerms; ++i) sum += weights[i] * terms[i];
  return 1 / (1 + std::exp(-sum));
}

using Square = std::array<BetweenTerms, kBetweenTerms>;

/// Solves a x = b, a positive definite.
BetweenTerms Solve(Square a, BetweenTerms b) {
  for (std::size_t i = 0; i < kBetweenTerms; ++i) {
    for (std::size_t row = i + 1; row < kBetweenTerms; ++row) {
      const double factor = a[row][i] / a[i][i];
      for (std::size_t column = i; column < kBetweenTerms; ++column) a[row][column] -= factor * a[i][column];
      b[row] -= factor * b[i];
    }
  }
  for (std::size_t i = kBetweenTerms; i-- > 0;) {
    for (std::size_t column = i + 1; column < kBetweenTerms; ++column) b[i] -= a[i][column] * b[column];
    b[i] /= a[i][i];
  }
  return b;
}

/// One step of Newton's method, held back a little so that it always has an answer.
BetweenTerms Step(const std::vector<Sample>& samples, const BetweenTerms& weights) {
  constexpr double kHold = 1;
  Square curvature{};
  BetweenTerms slope{};
  for (const Sample& sample : samples) {
    const double chance = Chance(weights, sample.terms);
    for (std::size_t i = 0; i < kBetweenTerms; ++i) {
      slope[i] += (sample.won - chance) * sample.terms[i];
      for (std::size_t j = 0; j < kBetweenTerms; ++j) {
        curvature[i][j] += chance * (1 - chance) * sample.terms[i] * sample.terms[j];
      }
    }
  }
  for (std::size_t i = 0; i < kBetweenTerms; ++i) {
    curvature[i][i] += kHold;
    slope[i] -= kHold * weights[i];
  }
  return Solve(curvature, slope);
}

}  // namespace

BetweenTerms FitBetween(int own, int other, int matches, std::uint64_t seed) {
  constexpr int kSteps = 8;
  Samples source(own, other, seed);
  std::vector<Sample> samples;
  for (int i = 0; i < matches; ++i) samples.push_back(source.Next());
  BetweenTerms weights{};
  for (int i = 0; i < kSteps; ++i) {
    const BetweenTerms step = Step(samples, weights);
    for (std::size_t term = 0; term < kBetweenTerms; ++term) weights[term] += step[term];
  }
  return weights;
}

}  // namespace kv
