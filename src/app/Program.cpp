#include "app/Program.h"

#include <filesystem>

#include "match/Dealing.h"
#include "platform/Files.h"
#include "presentation/PictureSizes.h"

namespace kv {
namespace {

constexpr std::int32_t kArcadeStake = 10;  // credits
constexpr int kSweepInterval = 100;        // milliseconds
constexpr int kSoundsDelay = 120;          // milliseconds; the first effect is due later than this
constexpr const char* kPlayerName = "Player";
constexpr const char* kPlayerExtension = ".vnt";
constexpr const char* kPortraitFolder = "/Portraits";

std::string BaseName(const std::string& path) {
  return std::filesystem::path(path).filename().string();
}

}  // namespace

Program::Program(const ProgramServices& services, const ProgramFolders& folders)
    : services_(services),
      folders_(folders),
      sounds_(services.sound),
      buttons_(sounds_),
      globals_(services.scheduler, buttons_),
      player_(services.dialogs, services.random),
      portraits_(pictures_, folders.program + kPortraitFolder,
                 [this] {
                   return PortraitOwner{BaseName(player_.FileName), player_.Portrait};
                 }),
      tmrSweep_(services.scheduler.NewTimer(kSweepInterval,
                                            [this] {
                                              if (services_.scheduler.PauseDepth() > 0) return;
                                              closed_.clear();
                                              tmrSweep_->setEnabled(false);
                                            })),
      tmrSounds_(services.scheduler.NewTimer(kSoundsDelay, [this] {
        tmrSounds_->setEnabled(false);
        sounds_.InitEffects(folders_.program);
      })) {}

Program::~Program() {
  CloseMatch();
}

void Program::Start() {
  // A missing picture stays empty: without its data file the game is plain, but it can be played.
  static_cast<void>(pictures_.OpenDataFile(folders_.program + "/" + kDataFileName));
  globals_.look.faces.LoadCardPictures([this](int number) { return pictures_.getPic(number); });
  LoadPlayer();
  sounds_.setPlayer(&player_);
  buttons_.setPlayer(&player_);
  globals_.look.interfaceStyle = player_.Interface_Opt;
  StartRun();
  OpenMatch(std::optional<QPoint>());
  tmrSounds_->setEnabled(true);
}

void Program::LoadPlayer() {
  const std::string folder = folders_.player.empty() ? std::string() : folders_.player + "/";
  // A file that cannot be loaded is left alone; the next name is tried, so that there is always a player.
  for (int number = 1;; ++number) {
    const std::string path =
        folder + kPlayerName + (number == 1 ? std::string() : std::to_string(number)) + kPlayerExtension;
    if (!FileExists(path)) {
      player_.Name = kPlayerName;
      player_.FileName = path;
      player_.KeysEn = true;  // a newcomer may use both hands
      player_.WritePlayerFile();
      return;
    }
    if (!player_.LoadPlayerFile(path)) return;
    services_.dialogs.Message(
        "The player file '" + BaseName(path) + "' could not be loaded. It stays as it is.",
        "Kelm Vantri: Error", DialogIcon::Critical);
  }
}

void Program::StartRun() {
  game_ = std::make_unique<clsGame>(player_, [this](int number, const std::string& name) {
    bool found = false;
    return portraits_.GetPortrait(number, name, found);
  });
  booking_ = std::make_unique<ArcadeBooking>(*game_, player_);
}

void Program::SettleStake() {
  game_->Wager = kArcadeStake;
  game_->CreditsRef->Value -= kArcadeStake;
}

void Program::OpenMatch(std::optional<QPoint> centre) {
  if (game_->CreditsRef->Value < kArcadeStake) StartRun();
  SettleStake();
  DealYourHand(*game_, services_.random);
  SetupCompHand(*game_, services_.random);
  const ScreenServices screen{services_.scheduler,
                              services_.dialogs,
                              services_.random,
                              buttons_,
                              globals_.effects,
                              globals_.look,
                              [this](int number) { return pictures_.getPic(number); },
                              portraits_,
                              *this};
  match_ = std::make_unique<frmGame>(frmGameServices{screen, player_, *game_, noNetwork_, *booking_});
  match_->Open(centre);
}

void Program::CloseMatch() {
  if (match_ == nullptr) return;
  match_->CloseScreen();
  closed_.push_back(std::move(match_));
  tmrSweep_->setEnabled(true);
}

void Program::LeaveMatch() {
  const QPoint centre = match_->Centre();
  CloseMatch();
  OpenMatch(centre);
}

void Program::EndProgram() {
  CloseMatch();
  services_.quit();
}

}  // namespace kv
