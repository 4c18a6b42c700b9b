// Two whole programs in one process, host and guest, each with a player, a folder and a person who plays by
// chance; they reach each other over the loop-back network, on one clock turned by hand.
//
//   TwoPrograms both;
//   both.Meet();          // connected, Start is shown
//   both.PlayMatch(50);   // from Start back to the lobby
#pragma once

#include <QCoreApplication>
#include <array>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/Program.h"
#include "campaign/frmCards.h"
#include "match/frmGame.h"
#include "network/frmNetwork.h"
#include "support/LoopbackSocket.h"
#include "support/RecordingSound.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"

namespace kv::test {

class NetworkPlayer {
 public:
  NetworkPlayer(HandScheduler& clock, LoopbackNet& net, const std::string& name, const std::string& address,
                std::uint64_t seed)
      : random(seed), chance_(seed + 1000), clock_(clock) {
    program = std::make_unique<Program>(
        ProgramServices{clock,
                        dialogs,
                        random,
                        sound,
                        [this] { ++quits; },
                        {},
                        [&net, address, this] {
                          auto made = std::make_unique<LoopbackSocket>(net, address);
                          socket = made.get();
                          return made;
                        },
                        [address] {
                          return std::vector<std::string>{"127.0.0.1", address};
                        }},
        ProgramFolders{"no-such-folder", folder.path(), folder / "Portraits"});
    program->Start();
    auto player = std::make_unique<clsPlayer>(dialogs, random);
    player->Name = name;
    player->FileName = folder / (name + ".vnt");
    player->Credits_MP->Value = 100;
    player->LightPulse_Opt = false;  // nothing to see here
    player->AutoDialogs_Opt = chance_.Rnd() < 0.5;
    player->AutoTurn_Opt = chance_.Rnd() < 0.5;
    player->TurnMode_Opt =
        static_cast<std::uint8_t>(chance_.Rnd() * 3);  // random, the host begins, alternating
    player->GameSpeed_Opt = static_cast<std::uint8_t>(chance_.Rnd() * 3);  // slow, normal, fast
    player->Interface_Opt = chance_.Rnd() < 0.5 ? "Slate" : "Ember";
    program->PlayerLoaded(std::move(player));
    OpenLobby();
  }
  void OpenLobby() {
    program->NewGame(kModeNetwork);
    program->OpenLobby();
  }

  template <typename Kind>
  [[nodiscard]] Kind* Find(const char* name) {
    Screen* screen = program->screen();
    return screen == nullptr ? nullptr
                             : dynamic_cast<Kind*>(screen->findChild<QWidget*>(QString::fromUtf8(name)));
  }
  /// Clicks a button that can be clicked; false when it cannot be.
  bool Click(const char* name) {
    auto* button = Find<ctlButton>(name);
    if (button == nullptr || !button->isVisible() || !button->isEnabled()) return false;
    button->click();
    return true;
  }
  void Say(const char* line) {
    auto* txtSend = Find<QLineEdit>("txtSend");
    txtSend->setText(QString::fromUtf8(line));
    emit txtSend->returnPressed();
  }
  [[nodiscard]] std::string ScreenName() const {
    return program->screen() == nullptr ? "" : program->screen()->objectName().toStdString();
  }
  [[nodiscard]] bool Saw(const std::string& line) const {
    return program->network()->chatLog().find(line) != std::string::npos;
  }
  [[nodiscard]] clsPlayer& record() { return *program->player(); }
  [[nodiscard]] frmGame* match() { return program->screenAs<frmGame>(); }

  /// Gives up the match and says yes to the question.
  void GiveUp() {
    dialogs.answers = {true};
    match()->engine().person().Forfeit();
  }
  /// Does one thing that a person could do now on the card or match screen.
  void Act(int stake) {
    if (!acts) return;
    if (auto* cards = program->screenAs<frmCards>()) ActOnCards(*cards, stake);
    if (frmGame* screen = match()) ActInMatch(screen->engine());
  }

  ScriptedDialogs dialogs;
  TempFolder folder;
  SeededRandom random;
  RecordingSound sound;
  LoopbackSocket* socket = nullptr;
  int quits = 0;
  bool acts = true;                         // at all
  bool continues = true;                    // from the card screen once it can
  bool plays = true;                        // when it is its turn in a match
  std::vector<std::array<int, 2>> results;  // won sets of each match: own, peer's
  std::unique_ptr<Program> program;

 private:
  void ActOnCards(frmCards& cards, int stake) {
    ctlButton& wager = cards.wager().getcmdWager();
    if (cards.wager().isVisible() && wager.Caption() == QStringLiteral("propose")) {
      cards.wager().gettxtWager().setText(QString::number(stake));
    }
    if (cards.wager().isVisible() && wager.isEnabled()) {
      wager.click();
    } else if (continues) {
      Click("cmdContinue");
    }
  }
  void ActInMatch(MatchEngine& engine) {
    if (engine.shown().banner.visible) {
      const std::array<int, 2> sets = {engine.shown().SetWins(Seat::Player),
                                       engine.shown().SetWins(Seat::Opponent)};
      if (engine.shown().banner.buttonEnabled && program->game()->Wager == -1) results.push_back(sets);
      if (program->game()->Wager == -1 && !engine.shown().banner.buttonEnabled && told_ != &engine) {
        results.push_back(sets);  // the banner continues by itself
      }
      if (program->game()->Wager == -1) told_ = &engine;
      engine.Continue();
      return;
    }
    told_ = nullptr;
    if (!engine.shown().controls.endTurn || !plays) return;
    const double what = chance_.Rnd();
    const int slot = 1 + static_cast<int>(chance_.Rnd() * kHandSize);
    if (what < 0.25) engine.person().FirstFlip(slot);
    if (what < 0.4) {
      engine.person().PlayHandCard(slot);
    } else if (what < 0.55 && engine.shown().Total(Seat::Player) > 14) {
      engine.person().Stand();
    } else {
      engine.person().EndTurn();
    }
  }

  SeededRandom chance_;
  const MatchEngine* told_ = nullptr;
  HandScheduler& clock_;
};

class TwoPrograms {
 public:
  explicit TwoPrograms(std::uint64_t seed = 1)
      : net(clock),
        host(clock, net, "Hanna", "10.0.0.1", seed),
        guest(clock, net, "Gus", "10.0.0.2", seed + 1) {
    Pass(200);
  }
  ~TwoPrograms() {
    host.program.reset();
    guest.program.reset();
  }

  void Pass(int milliseconds) {
    clock.Advance(milliseconds);
    // Painting is nearly all that the desktop's own events do here, and nearly all that a match costs.
    if (milliseconds >= kLongPass || ++shortPasses_ % 20 == 0) QCoreApplication::processEvents();
  }
  /// Host and guest connect; both wait until Start is shown.
  void Meet() {
    host.Click("cmdConnect");
    guest.Click("cmdJoin");
    guest.Find<QLineEdit>("txtIP")->setText(QStringLiteral("10.0.0.1"));
    guest.Click("cmdConnect");
    Pass(4000);
  }
  /// Both do what can be done until `done`; throws when it does not come to that within `seconds`.
  void PlayUntil(const std::function<bool()>& done, int stake = 10, int seconds = 3600) {
    for (int tick = 0; tick < seconds * 20; ++tick) {
      Pass(50);
      if (eachTick) eachTick();
      if (done()) return;
      for (NetworkPlayer* each : {&host, &guest}) {
        each->Act(stake);
        NetworkGame& network = *each->program->network();
        if (repeatTurns != nullptr && network.link().turnRepeats() && repeatTurns->Rnd() < 0.05) {
          network.NetSend("[Turn]");
        }
      }
    }
    throw std::logic_error("stuck: host " + host.ScreenName() + ", guest " + guest.ScreenName() +
                           host.program->network()->chatLog() + "\nGUEST" +
                           guest.program->network()->chatLog());
  }
  [[nodiscard]] bool BothOn(const char* screen) const {
    return host.ScreenName() == screen && guest.ScreenName() == screen;
  }
  void Start() {
    if (!host.Click("cmdStart") || !guest.Click("cmdStart")) throw std::logic_error("no Start");
    for (int wait = 0; wait < 1000 && !BothOn("frmCards"); ++wait) Pass(50);
    if (!BothOn("frmCards")) throw std::logic_error("no card screen");
  }
  void PlayMatch(int stake) {
    Start();
    PlayUntil([this] { return BothOn("frmNetwork"); }, stake);
    Pass(3000);
  }

  static constexpr int kLongPass = 200;  // milliseconds
  std::function<void()> eachTick;        // while both play
  Random* repeatTurns = nullptr;         // by its chance "[Turn]" is repeated before its time
  HandScheduler clock;
  LoopbackNet net;
  NetworkPlayer host;
  NetworkPlayer guest;

 private:
  int shortPasses_ = 0;
};

}  // namespace kv::test
