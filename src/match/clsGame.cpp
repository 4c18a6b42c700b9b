#include "match/clsGame.h"

#include "ai/clsAI_Ember.h"
#include "ai/clsAI_Normal.h"
#include "cards/modCards.h"
#include "match/MatchState.h"
#include "profile/clsPlayer.h"

namespace kv {
namespace {

constexpr std::int32_t kLeastArcadeCredits = 100;
constexpr std::int16_t kArcadeCopies = 10;  // of every card in the arcade collection

struct ArcadeOpponent {
  const char* name;
  int portrait;
};
// By ArcadeOpp_Opt.
constexpr std::array<ArcadeOpponent, 2> kArcadeOpponents = {{{"Orrin Vaal", 5}, {"H6-J8", 45}}};

}  // namespace

clsGame::clsGame(clsPlayer& player, PortraitSource portraits)
    : player_(&player), portraits_(std::move(portraits)) {
  InitArcadeCards();
  CreditsRef = std::make_shared<clsLong>(clsLong{ArcadeStartCredits(player.Arcade_Best)});
  if (player.ArcadeAI_Opt == 1) {
    AI = std::make_shared<clsAI_Ember>();
  } else {
    AI = std::make_shared<clsAI_Normal>();
  }
  if (player.ArcadeOpp_Opt < kArcadeOpponents.size()) {
    const ArcadeOpponent& opponent = kArcadeOpponents.at(player.ArcadeOpp_Opt);
    OppName = opponent.name;
    LoadPortraits(player.Portrait, opponent.portrait);
  }
}

void clsGame::InitArcadeCards() {
  arcadeCards_ = std::make_shared<clsCardArray>();
  arcadeCards_->Fill(kArcadeCopies);
  arcadeDeck_ = player_ != nullptr && player_->ArcadeDeck != nullptr ? player_->ArcadeDeck
                                                                     : std::make_shared<clsDeckArray>();
  DeckRef = arcadeDeck_;
  CardsRef = arcadeCards_;
}

void clsGame::LoadPortraits(int yourPicture, int opponentPicture) {
  if (!portraits_) return;
  YourPic = portraits_(yourPicture, "");
  OppPic = portraits_(opponentPicture, OppFileName);
}

std::int32_t ArcadeStartCredits(std::int32_t arcadeBest) {
  std::int32_t quarter = arcadeBest / 4;
  const std::int32_t rest = arcadeBest % 4;
  if (rest == 3 || (rest == 2 && quarter % 2 != 0)) ++quarter;
  return Max(kLeastArcadeCredits, quarter);
}

MatchOptions MatchOptionsOf(const clsPlayer& player) {
  return {.speed = player.GameSpeed_Opt,
          .emberStyle = player.Interface_Opt == "Ember",
          .turnMode = player.TurnMode_Opt,
          .autoTurn = player.AutoTurn_Opt,
          .autoDialogs = player.AutoDialogs_Opt};
}

}  // namespace kv
