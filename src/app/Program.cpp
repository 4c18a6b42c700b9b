#include "app/Program.h"

#include <QApplication>
#include <QScreen>
#include <algorithm>
#include <chrono>
#include <filesystem>

#include "campaign/Settlement.h"
#include "campaign/frmCampaign.h"
#include "campaign/frmCards.h"
#include "campaign/modSaveWin.h"
#include "history/frmRecord.h"
#include "history/frmReplay.h"
#include "history/frmReview.h"
#include "match/frmGame.h"
#include "network/frmNetwork.h"
#include "platform/Memory.h"
#include "platform/QtTcpSocket.h"
#include "presentation/LayoutText.h"
#include "presentation/Motion.h"
#include "presentation/PictureSizes.h"
#include "presentation/TipSkin.h"
#include "screens/frmHelp.h"
#include "screens/frmMenu.h"
#include "screens/frmOptions.h"
#include "screens/frmPortraits.h"
#include "screens/frmSplash.h"

namespace kv {
namespace {

// Milliseconds.
constexpr int kSweepInterval = 100;
constexpr int kSoundsDelay = 120;   // the first effect is due later than this
constexpr int kPeerFarewell = 300;  // three ticks of the link: enough for its last message

std::string BaseName(const std::string& path) {
  return std::filesystem::path(path).filename().string();
}

/// Seconds of UTC since 1970.
std::int64_t Now() {
  using std::chrono::seconds, std::chrono::system_clock;
  return std::chrono::duration_cast<seconds>(system_clock::now().time_since_epoch()).count();
}

}  // namespace

Program::Program(const ProgramServices& services, const ProgramFolders& folders)
    : services_(services),
      folders_(folders),
      settings_(services.settings == nullptr ? noSettings_ : *services.settings),
      stage_(services.sizes),
      dialogs_(services.dialogs),
      sounds_(services.sound),
      buttons_(sounds_),
      globals_(services.scheduler, buttons_),
      portraits_(pictures_, folders.portraits,
                 [this] {
                   return player_ == nullptr ? PortraitOwner{}
                                             : PortraitOwner{BaseName(player_->FileName), player_->Portrait};
                 }),
      tmrSweep_(services.scheduler.NewTimer(kSweepInterval,
                                            [this] {
                                              if (services_.scheduler.PauseDepth() > 0) return;
                                              if (dialogs_.open() > 0) return;
                                              tmrSweep_->setEnabled(false);
                                              // A screen goes before the records it stands on.
                                              while (!retired_.empty()) retired_.pop_front();
                                              ReturnCleanPages();
                                            })),
      tmrSounds_(services.scheduler.NewTimer(kSoundsDelay, [this] { LoadSounds(); })) {
  BuildStage();
  services_.sound.setVolume(settings_.volume());
  globals_.Off = [this] { EndProgram(); };
  globals_.ReloadCards = [this] { OpenCards(); };
}

void Program::BuildStage() {
  stage_.Help = [this] { OpenHelp(); };
  stage_.FactorChanged = [this] {
    double finest = 1;
    for (const QScreen* screen : QGuiApplication::screens()) {
      finest = std::max(finest, screen->devicePixelRatio());
    }
    pictures_.setPixelRatio(finest);
  };
  stage_.setSizePercent(settings_.size());
  if (const auto place = settings_.place()) stage_.setPlace({place->x, place->y});
  stage_.setFullScreen(settings_.fullScreen());
  stage_.Changed = [this] {
    for (const auto& screen : {screen_, behind_}) {
      if (screen != nullptr) screen->Resized();
    }
    settings_.setSize(stage_.sizePercent());
    settings_.setFullScreen(stage_.fullScreen());
    settings_.setPlace({stage_.place().x(), stage_.place().y()});
  };
}

Program::~Program() {
  CloseHelp();
  CloseCurrent();
  while (!retired_.empty()) retired_.pop_front();
}

void Program::Start() {
  // A missing picture stays empty: without its data file the game is plain, but it can be played.
  if (services_.ahead == nullptr) {
    static_cast<void>(pictures_.OpenDataFile(folders_.program + "/" + kDataFileName));
  } else {
    static_cast<void>(pictures_.OpenDataFile(*services_.ahead));
  }
  globals_.look.faces.LoadCardPictures([this](int number) { return pictures_.getPic(number); });
  OpenSplash();
  tmrSounds_->setEnabled(true);
}

void Program::LoadSounds() {
  tmrSounds_->setEnabled(false);
  sounds_.InitEffects(folders_.program);
  ReturnCleanPages();
}

ScreenServices Program::Services() {
  return {services_.scheduler,
          dialogs_,
          services_.random,
          buttons_,
          globals_.effects,
          globals_.look,
          [this](int number) { return pictures_.getPic(number); },
          portraits_,
          *this,
          stage_,
          services_.announcer == nullptr ? nobody_ : *services_.announcer};
}

// --- Opening and closing ---------------------------------------------------------------------------------

template <typename Make>
void Program::Show(Make make) {
  CloseCurrent();
  globals_.look.interfaceStyle = player_ == nullptr ? "Slate" : player_->Interface_Opt;
  dialogs_.setInterfaceStyle(globals_.look.interfaceStyle);
  stage_.setInterfaceStyle(globals_.look.interfaceStyle);
  SkinTips(globals_.look.interfaceStyle);
  screen_ = make();
  stage_.Show(*screen_);
  screen_->Open();
}

void Program::CloseCurrent() {
  if (network_ != nullptr) network_->ScreensClosed();
  for (std::shared_ptr<Screen>* screen : {&screen_, &behind_}) {
    if (*screen == nullptr) continue;
    (*screen)->CloseScreen();
    Retire(std::move(*screen));
  }
  if (kept_ == nullptr) return;
  kept_->Leave();
  Retire(std::move(kept_));
}

void Program::Retire(std::shared_ptr<void> what) {
  if (what == nullptr) return;
  retired_.push_back(std::move(what));
  tmrSweep_->setEnabled(true);
}

void Program::ClearGame() {
  Retire(std::move(booking_));
  Retire(std::move(game_));
}

void Program::OpenSplash() {
  CloseCurrent();
  ClearGame();
  history_.reset();
  sounds_.setPlayer(nullptr);
  buttons_.setPlayer(nullptr);
  Retire(std::move(player_));
  Show([this] {
    return std::make_shared<frmSplash>(
        Services(),
        frmSplashServices{folders_.player,
                          [this] { return std::make_unique<clsPlayer>(dialogs_, services_.random); },
                          settings_.lastPlayer(),
                          {services_.moveToTrash, HistoryFile::FilesOf,
                           [this](const std::string& from, const std::string& to) {
                             if (settings_.lastPlayer() == from) settings_.setLastPlayer(to);
                           }}});
  });
}

void Program::PlayerLoaded(std::unique_ptr<clsPlayer> player) {
  player_ = std::move(player);
  history_ = std::make_shared<HistoryFile>(HistoryFile::PathOf(player_->FileName));
  settings_.setLastPlayer(std::filesystem::path(player_->FileName).stem().string());
  sounds_.setPlayer(player_.get());
  buttons_.setPlayer(player_.get());
}

void Program::OpenMenu() {
  CloseCurrent();
  ClearGame();
  recordLook_ = {};
  Show([this] { return std::make_shared<frmMenu>(Services(), *player_); });
}

void Program::OpenOptions() {
  Show([this] {
    return std::make_shared<frmOptions>(
        Services(),
        frmOptionsServices{*player_, settings_, [this](int percent) { services_.sound.setVolume(percent); }});
  });
}

void Program::OpenRecord() {
  Show([this] {
    return std::make_shared<frmRecord>(Services(), frmRecordServices{*player_, *history_, recordLook_});
  });
}

void Program::OpenReview(std::int64_t match) {
  const auto record = history_->Load(match);
  if (!record) return;
  Show([&] { return std::make_shared<frmReview>(Services(), frmReviewServices{*player_, *record}); });
}

void Program::OpenReplay(std::int64_t match) {
  const auto record = history_->Load(match);
  if (!record) return;
  Show([&] { return std::make_shared<frmReplay>(Services(), frmReplayServices{*player_, *record}); });
}

void Program::OpenCampaign() {
  Show([this] { return std::make_shared<frmCampaign>(Services(), *player_, *game_); });
}

void Program::OpenCards() {
  Show([this] {
    auto cards =
        std::make_shared<frmCards>(Services(), frmCardsServices{*player_, *game_, Network(), networkStake_});
    if (game_->isNetwork()) network_->CardsOpened(cards->round());
    return cards;
  });
}

void Program::OpenLobby() {
  Show([this] {
    auto lobby = std::make_shared<frmNetwork>(
        Services(),
        frmNetworkServices{*player_, *network_,
                           services_.localAddresses ? services_.localAddresses : LocalIPv4Addresses});
    network_->LobbyOpened(lobby->lobby());
    return lobby;
  });
}

void Program::OpenMatch() {
  Show([this] {
    auto match = std::make_shared<frmGame>(
        frmGameServices{Services(), *player_, *game_, Network(), *booking_, &settings_});
    if (game_->isNetwork()) network_->MatchOpened(match->engine());
    KeepMatch(*match);
    return match;
  });
  // Now, while the cards are being dealt, and not at the end of the match.
  static_cast<void>(history_->Open());
}

void Program::KeepMatch(frmGame& match) {
  kept_ = std::make_shared<KeptMatch>(history_, RecordOf(*game_, Now()), [this](const std::string& notice) {
    if (services_.announcer != nullptr) services_.announcer->Announce(notice, Urgency::Polite);
  });
  match.observers().Add(*kept_);
}

void Program::OpenPortraits(PortraitCaller& caller) {
  if (behind_ != nullptr) return;
  auto picker = std::make_shared<frmPortraits>(
      Services(), *player_, caller, frmPortraitsServices{folders_.portraits, services_.openFolder});
  screen_->hide();
  behind_ = std::move(screen_);
  screen_ = std::move(picker);
  stage_.Show(*screen_);
  screen_->Open();
}

void Program::ClosePortraits() {
  if (behind_ == nullptr) return;
  screen_->CloseScreen();
  Retire(std::move(screen_));
  screen_ = std::move(behind_);
  stage_.Show(*screen_);
  screen_->Open();
}

void Program::OpenHelp() {
  CloseHelp();
  const std::string style = player_ == nullptr ? "Slate" : player_->Interface_Opt;
  helpEffects_ = std::make_unique<Effects>(services_.scheduler, buttons_, globals_.pictures);
  ScreenServices services = Services();
  help_ = std::make_shared<frmHelp>(
      ScreenServices{services.scheduler, services.dialogs, services.random, services.buttons, *helpEffects_,
                     services.look, services.getPic, services.portraits, services.navigator, services.window,
                     services.announcer},
      style, HelpPages(LayoutText("README"), player_.get()),
      player_ == nullptr ? DesktopMoves() : MotionWanted(*player_));
  help_->setParent(&stage_, Qt::Window | Qt::FramelessWindowHint);
  help_->move(stage_.geometry().center() - help_->rect().center());
  help_->Open();
  help_->activateWindow();
}

void Program::CloseHelp() {
  if (help_ == nullptr) return;
  help_->CloseScreen();
  Retire(std::move(help_));
  Retire(std::shared_ptr<void>(std::move(helpEffects_)));
  stage_.activateWindow();
}

// --- Matches ---------------------------------------------------------------------------------------------

void Program::NewGame(std::string_view mode) {
  ClearGame();
  game_ = std::make_shared<clsGame>(*player_, [this](int number, const std::string& name) {
    bool found = false;
    return portraits_.GetPortrait(number, name, found);
  });
  game_->Mode = mode;
  booking_ = std::make_shared<SaveBooking>(*game_, *player_, dialogs_);
  if (game_->isNetwork()) StartNetwork();
}

void Program::StartNetwork() {
  if (network_ == nullptr) {
    socket_ = services_.newSocket ? services_.newSocket() : std::make_unique<QtTcpSocket>();
    network_ = std::make_unique<NetworkGame>(
        NetworkServices{services_.scheduler, dialogs_, *this, networkStake_,
                        [this](std::string_view effect) { buttons_.PlayEffect(effect); },
                        [this] { globals_.effects.StopEffects(); },
                        [this](int number, const std::string& name, bool& found) {
                          return portraits_.GetPortrait(number, name, found);
                        },
                        [this](bool locked) {
                          if (screen_ != nullptr) screen_->setEnabled(!locked);
                        },
                        [this] { stage_.hide(); }},
        *socket_);
  }
  network_->Begin(*player_, *game_, *booking_);
}

MatchNetwork& Program::Network() {
  return game_->isNetwork() ? static_cast<MatchNetwork&>(*network_) : noNetwork_;
}

void Program::LeaveMatch() {
  if (game_->Mode == kModeCampaign) {
    OpenCampaign();
  } else if (game_->isNetwork()) {
    OpenLobby();
  } else {
    OpenCards();
  }
}

void Program::ReloadCards() {
  stage_.Keep();
  CloseCurrent();
  globals_.tmrReloadCards->setEnabled(true);
}

void Program::CallPlayer() {
  QApplication::alert(&stage_);
}

// --- The end ---------------------------------------------------------------------------------------------

void Program::EndProgramSoon() {
  globals_.tmrOff->setEnabled(true);
}

void Program::EndProgram() {
  globals_.tmrOff->setEnabled(false);
  globals_.tmrReloadCards->setEnabled(false);
  CloseHelp();
  CloseCurrent();
  // Whoever closes the window has ended the run as well: a record must not be lost by that.
  if (game_ != nullptr && game_->Mode == kModeArcade) EndArcadeRun(*game_, *player_);
  stage_.hide();
  services_.quit();
}

void Program::EndAtOnce() {
  dialogs_.Silence();
  if (game_ != nullptr && game_->isNetwork()) {
    const bool heard = network_->connected();
    network_->SubmitChat("/quit");
    globals_.tmrOff->setInterval(kPeerFarewell);
    if (heard) return;
  }
  EndProgram();
}

}  // namespace kv
