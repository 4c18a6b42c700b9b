#include "vantri-interleave/Side.h"

#include <algorithm>

namespace kv::interleave {
namespace {

constexpr int kFarewell = 2500;  // milliseconds until the program ends
constexpr std::int32_t kTradedCredits = 10;
constexpr std::int32_t kBonusDivisor = 10;
constexpr std::string_view kComplaint = "<< Unknown command";

}  // namespace

const char* Name(Outcome outcome) {
  switch (outcome) {
    case Outcome::Open:
      return "open";
    case Outcome::Win:
      return "win";
    case Outcome::Loss:
      return "loss";
    case Outcome::Half:
      return "half";
    case Outcome::Withdrawn:
      return "withdrawn";
  }
  return "?";
}

Side::Side(Timeline& timeline, Wire& wire, Shared& shared, int seat, std::uint64_t seed)
    : seat_(seat),
      shared_(shared),
      timeline_(timeline),
      scheduler_(timeline, fiber_),
      random_(seed),
      player_(*this, random_),
      socket_(wire, scheduler_, seat),
      network_(Services(), socket_) {
  timeline.Add(scheduler_);
  SeededRandom chance(seed + 1);
  player_.Name = seat == 0 ? "Hanna" : "Gus";
  player_.FileName = player_.Name + ".vnt";
  player_.setFileStore([this](const std::string&, const std::string&) {
    if (failSaves == 0) return true;
    --failSaves;
    return false;
  });
  const bool poor = chance.Rnd() < 0.1;
  player_.Credits_MP->Value = poor ? 0 : 1000;
  player_.Wins_MP->Value = poor ? 3 : 0;
  player_.AutoDialogs_Opt = chance.Rnd() < 0.3;
  player_.AutoTurn_Opt = chance.Rnd() < 0.3;
  player_.GameSpeed_Opt = static_cast<std::uint8_t>(chance.Rnd() * 3);
  player_.TurnMode_Opt = static_cast<std::uint8_t>(chance.Rnd() * 3);
  player_.Interface_Opt = chance.Rnd() < 0.5 ? "Slate" : "Ember";
  start_ = Held();
}

Side::~Side() {
  leaving_ = true;
  fiber_.End();  // what waits here goes on to its end
  CloseCurrent();
  retired_.clear();
}

NetworkServices Side::Services() {
  return {scheduler_,
          *this,
          *this,
          networkStake_,
          [](std::string_view) {},
          [] {},
          [](int, const std::string&, bool& found) {
            found = false;
            return Picture();
          },
          [this](bool locked) { locked_ = locked; },
          [this] { leaving_ = true; }};
}

RoomServices Side::Room() {
  return {scheduler_, *this, random_, *this, network_, player_, *game_, *booking_, networkStake_};
}

// --- From place to place ---------------------------------------------------------------------------------

void Side::EnterNetwork() {
  leaving_ = false;  // a program that had ended was started anew
  if (booking_ != nullptr) retired_.push_back(std::move(booking_));
  if (game_ != nullptr) retired_.push_back(std::move(game_));
  game_ = std::make_unique<clsGame>(player_, PortraitSource());
  game_->Mode = kModeNetwork;
  booking_ = std::make_unique<SaveBooking>(*game_, player_, *this);
  network_.Begin(player_, *game_, *booking_);
  OpenLobby();
}

void Side::CloseCurrent() {
  network_.ScreensClosed();
  locked_ = false;
  if (lobby_) {
    lobby_->Close();
    retired_.push_back(std::move(lobby_));
  }
  if (cards_) {
    cards_->Close();
    retired_.push_back(std::move(cards_));
  }
  if (match_) {
    match_->Close();
    retired_.push_back(std::move(match_));
  }
}

void Side::Bury() {
  if (fiber_.waits()) return;
  retired_.clear();
}

void Side::OpenLobby() {
  CloseCurrent();
  where_ = Where::Lobby;
  lobby_ = std::make_shared<LobbyRoom>(Room(), [this] { ++traded_; });
  network_.LobbyOpened(lobby_->lobby());
  lobby_->lobby().Open();
}

void Side::OpenCards() {
  CloseCurrent();
  where_ = Where::Cards;
  cards_ = std::make_shared<CardRoom>(Room());
  network_.CardsOpened(cards_->round());
  // The screen stands a moment later.
  scheduler_.After(1, [room = cards_, this] {
    if (cards_ == room) room->round().Open();
  });
}

void Side::OpenMatch() {
  CloseCurrent();
  where_ = Where::Match;
  match_ = std::make_shared<MatchRoom>(Room());
  network_.MatchOpened(match_->engine());
  scheduler_.After(1, [room = match_, this] {
    if (match_ == room) room->engine().Activate();
  });
}

void Side::OpenMenu() {
  CloseCurrent();
  where_ = Where::Menu;
}

void Side::EndProgramSoon() {
  leaving_ = true;
  scheduler_.After(kFarewell, [this] { EndProgram(); });
}

void Side::EndProgram() {
  CloseCurrent();
  network_.Bind(0, "");  // the process is gone, and its connection with it
  where_ = Where::Ended;
}

void Side::Say(const std::string& line) {
  if (line == "/quit" || line == "/disconnect") GivesUp();
  network_.SubmitChat(line);
}

void Side::GivesUp() {
  // Also from the banner of its last set: whoever has left by then hears no more of the other.
  if (stakeOpen() || (where_ == Where::Match && !stakes_.empty())) stakes_.back().gaveUp = true;
}

// --- Boxes -----------------------------------------------------------------------------------------------

void Side::Message(const std::string& text, const std::string&, DialogIcon) {
  told_.push_back(text);
  ++boxes_;
  scheduler_.Box(answering.milliseconds);
  --boxes_;
}

bool Side::AskYesNo(const std::string& text, const std::string&, DialogIcon) {
  told_.push_back(text);
  ++boxes_;
  const bool yes = answering.yes;
  scheduler_.Box(answering.milliseconds);
  --boxes_;
  if (yes && text.find("forfeit") != std::string::npos) GivesUp();
  return yes;
}

// --- Books -----------------------------------------------------------------------------------------------

void Side::Note() {
  if (!retired_.empty()) Bury();
  if (game_ == nullptr) return;
  const int halves = static_cast<int>(
      std::ranges::count_if(stakes_, [](const Stake& each) { return each.outcome == Outcome::Half; }));
  if (!stakeOpen()) {
    Reverse();
    const bool settled =
        game_->Mode == kModeNetwork && game_->Wager >= 0 && player_.Disconnects == halves + 1;
    if (!settled) proposed_ = cards_ != nullptr && cards_->round().awaitsAnswer();
    if (game_->Mode != kModeNetwork || game_->Wager < 0 || player_.Disconnects != halves + 1) return;
    // Who accepts settles first; the other, who had proposed, settles the same match.
    if (!proposed_) ++shared_.lastMatch;
    proposed_ = false;
    stakes_.push_back({shared_.lastMatch, game_->Wager});
    return;
  }
  if (game_->Wager >= 0) return;
  const Account held = Held();
  const Account before = Expected();
  Outcome outcome = player_.Disconnects == halves + 1 ? Outcome::Half : Outcome::Withdrawn;
  if (held.wins > before.wins) outcome = Outcome::Win;
  if (held.losses > before.losses) outcome = Outcome::Loss;
  stakes_.back().outcome = outcome;
}

/// A match that was booked as lost may turn out to be won.
void Side::Reverse() {
  if (stakes_.empty() || stakes_.back().outcome != Outcome::Loss || Held() == Expected()) return;
  stakes_.back().outcome = Outcome::Win;
  if (!(Held() == Expected())) stakes_.back().outcome = Outcome::Loss;
}

Side::Account Side::Held() const {
  return {player_.Credits_MP->Value, player_.Wins_MP->Value, player_.Losses_MP->Value, player_.Disconnects};
}

Side::Account Side::Expected() const {
  Account account = start_;
  account.credits += std::int64_t{traded_} * kTradedCredits;
  account.wins -= traded_;
  for (const Stake& stake : stakes_) {
    switch (stake.outcome) {
      case Outcome::Win:
        account.credits += stake.amount + stake.amount / kBonusDivisor;
        ++account.wins;
        break;
      case Outcome::Loss:
        account.credits -= stake.amount;
        ++account.losses;
        break;
      case Outcome::Half:
        account.credits += stake.amount / 2 - stake.amount;
        ++account.disconnects;
        break;
      case Outcome::Withdrawn:
      case Outcome::Open:
        break;
    }
  }
  return account;
}

std::string Side::Complaint() const {
  const std::string& text = network_.chatLog();
  const std::size_t at = text.find(kComplaint);
  return at == std::string::npos ? std::string() : text.substr(at, text.find("\r\n", at) - at);
}

}  // namespace kv::interleave
