// A match in sentences: somebody who only hears them knows every card on both tables and every total.
#include <gtest/gtest.h>

#include <regex>

#include "ai/clsAI_Ember.h"
#include "ai/clsAI_Normal.h"
#include "match/Dealing.h"
#include "match/HeadlessMatch.h"
#include "match/MatchSentences.h"
#include "support/MatchTable.h"

namespace kv {
namespace {

using test::MatchTable;
using Lines = std::vector<std::string>;

struct Spoken {
  explicit Spoken(const test::Deal& deal) : table(deal) {
    table.game.OppName = "Orrin Vaal";
    table.engine->setObserver(&sentences);
    table.Start();
  }
  Lines Said() { return std::exchange(said, {}); }

  Lines said;
  MatchSentences sentences{[this](const std::string& sentence) { said.push_back(sentence); }};
  MatchTable table;
};

TEST(Sentences, ASetIsHeardFromItsFirstCardToItsResult) {
  Spoken match({.hand = {"fp2", "s299", "s399", "ps4"}, .opponentHand = {"ms-3"}, .draws = {7, 4, 6, 9}});
  match.table.engine->person().FirstFlip(1);
  match.table.Play(1);
  match.table.strategy.turns = {[](AiOperations& side) {
                                  side.AI_PlayCard(1);
                                  side.AI_EndTurn();
                                },
                                test::StandOpponent};
  match.table.EndTurn();
  match.table.Play(3);
  match.table.Stand();
  EXPECT_EQ(
      match.Said(),
      (Lines{"The match against Orrin Vaal begins, for 10 credits.", "Set 1. You begin.",
             "Your turn. You draw 7, total 7.", "You flip to minus 2.", "You play minus 2, total 5.",
             "You end your turn.", "Orrin Vaal draws 4, plays minus 3, total 1.",
             "Your turn. You draw 6, total 11.", "You play 2 and 4 card, card 2 is now 2, total 15.",
             "You stand on 15.", "Orrin Vaal draws 9, total 10, stands.", "You win the set, 15 to 10."}));
  EXPECT_EQ(TableText(match.table.engine->shown(), "Orrin Vaal"),
            "Your table: 7, 2, 6, 0, total 15, stands. Orrin Vaal's table: 4, minus 3, 9, total 10, stands. "
            "0 cards in hand. Sets 1 to 0. Hand: double; plus 4.");
}

TEST(Sentences, AMatchThatIsGivenUpInTheMiddleOfATurn) {
  Spoken match({.draws = {9, 5}, .mode = std::string(kModeNetwork), .hosting = true});
  match.table.PeerReady();
  match.table.EndTurn();
  match.table.engine->peer().OppDraw(4);
  match.said.clear();
  match.table.engine->peer().OppForfeit();
  EXPECT_EQ(match.Said(), (Lines{"Orrin Vaal draws 4, total 4.", "Orrin Vaal gives up the match.",
                                 "You win the match, 3 to 0."}));
  match.table.engine->peer().Gone();
  EXPECT_EQ(match.Said(), Lines{"Orrin Vaal has left the match."});
}

std::string Reason(SetRule rule, GameStep result, event::Both totals) {
  return ReasonText({{rule, Seat::Player, result, false}, totals});
}

TEST(Sentences, AReasonIsGivenForEveryRule) {
  EXPECT_EQ(Reason(SetRule::HigherTotal, GameStep::OpponentWins, {12, 18}), "18 to 12")
      << "the winner's first";
  EXPECT_EQ(Reason(SetRule::PlayerOver, GameStep::OpponentWins, {22, 18}), "over 20");
  EXPECT_EQ(Reason(SetRule::OpponentNine, GameStep::OpponentWins, {9, 18}), "nine cards on the table");
  EXPECT_EQ(Reason(SetRule::Tiebreaker, GameStep::PlayerWins, {18, 18}), "the tiebreaker wins the tie");
  EXPECT_EQ(Reason(SetRule::Equal, GameStep::SetTied, {18, 18}), "18 to 18");
}

TEST(Sentences, CardsOfTheHandAreNamedSoThatTheyCanBeToldApart) {
  const auto words = [](const char* code) { return CardWords(CardCode(code)); };
  EXPECT_EQ(words("ps3"), "plus 3");
  EXPECT_EQ(words("fm2"), "minus 2");
  EXPECT_EQ(words("s1-1"), "tiebreaker minus 1");
  EXPECT_EQ(words("s52"), "one or two, plus 2");
  EXPECT_EQ(words("s299"), "double");
  EXPECT_EQ(words("s499"), "3 and 6 card");
  MatchTable empty({});
  EXPECT_EQ(HandText(empty.engine->shown()), "Hand: empty.");
}

/// Plays a match again from what is said: numbers on two tables.
class Listener {
 public:
  std::array<std::vector<int>, 2> tables;
  std::array<int, 2> heard{};  // totals

  void Hear(const std::string& sentence) {
    if (sentence.starts_with("Set ")) tables = {};
    const std::size_t who = sentence.starts_with("You") ? 0 : 1;
    for (const std::string& part : Parts(sentence)) Take(part, who);
  }

 private:
  static std::vector<std::string> Parts(const std::string& sentence) {
    static const std::regex kPart(
        "(draw|play)s? [^,.]*(, (plus|minus)? ?[0-9]+)?|card \\d is now [^,.]*|total [^,.]*");
    return {std::sregex_token_iterator(sentence.begin(), sentence.end(), kPart), {}};
  }
  /// The last number of the words; the card that changes others counts nothing.
  static int Number(const std::string& words) {
    static const std::regex kLast("(minus )?(\\d+)$");
    std::smatch found;
    if (words.ends_with(" card") || !std::regex_search(words, found, kLast)) return 0;
    return std::stoi(found[2]) * (found[1].matched ? -1 : 1);
  }
  void Take(const std::string& part, std::size_t who) {
    if (part.starts_with("total")) {
      heard.at(who) = Number(part);
    } else if (part.starts_with("card")) {
      tables.at(who).at(static_cast<std::size_t>(part[5] - '1')) = Number(part);
    } else {
      tables.at(who).push_back(Number(part));
    }
  }
};

TEST(Sentences, AMatchCanBePlayedAgainFromWhatIsSaid) {
  clsAI_Normal standard;
  clsAI_Ember ember;
  SeededRandom random(17);
  const clsDeckArray special = OpponentDeck("H6-J8");
  for (int match = 0; match < 100; ++match) {
    Listener listener;
    Lines story;
    MatchSentences sentences([&](const std::string& sentence) {
      story.push_back(sentence);
      listener.Hear(sentence);
    });
    const auto compare = [&](const MatchEngine& engine) {
      if (!engine.peer().betweenSets()) return;
      for (const Seat seat : {Seat::Player, Seat::Opponent}) {
        std::vector<int> lies;
        for (const CardCode& card : engine.shown().Table(seat)) lies.push_back(card.cardValue());
        ASSERT_EQ(listener.tables.at(static_cast<std::size_t>(seat)), lies) << testing::PrintToString(story);
        ASSERT_EQ(listener.heard.at(static_cast<std::size_t>(seat)), engine.shown().Total(seat));
      }
    };
    static_cast<void>(PlayHeadless({standard, ember, special, special, {}, &sentences}, random, compare));
    ASSERT_FALSE(HasFatalFailure()) << match;
  }
}

}  // namespace
}  // namespace kv
