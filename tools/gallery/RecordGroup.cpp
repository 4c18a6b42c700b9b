// The record screen: with nothing in it, and with an evening's matches.
#include <QComboBox>
#include <utility>

#include "Gallery.h"
#include "history/frmRecord.h"
#include "history/frmReplay.h"
#include "history/frmReview.h"
#include "support/SampleMatch.h"
#include "support/TempFolder.h"

namespace kv {
namespace {

constexpr std::array kOpponents = {"Tamsen", "Orrin Vaal", "H6-J8", "Brummox"};
constexpr std::uint64_t kMatches = 60;

/// Credits that go up and down with the matches.
void Fill(HistoryFile& history) {
  std::int32_t credits = 100;
  for (std::uint64_t i = 1; i <= kMatches; ++i) {
    MatchRecord record = test::SampleMatch(i, kOpponents.at(i % kOpponents.size()));
    if (i % 5 == 0) record.mode = "Arcade";
    const bool won = i % 7 < 4;
    record.booking->result = won ? event::Result::Won : event::Result::Lost;
    if (won != (record.winner == Seat::Player)) std::swap(record.setWins[0], record.setWins[1]);
    credits += won ? 20 : -25;
    record.booking->after = credits;
    history.Store(record, i == kMatches - 2);
  }
}

void RenderReview(Gallery& gallery, test::ScreenStage& stage) {
  MatchRecord played = test::SampleMatch(12, "Tamsen");
  for (const char* name : {"review", "review-peer"}) {
    frmReview review(stage.services(), {stage.player, played, 1000});
    review.Open();
    if (review.running() != nullptr) review.running()->Wait();
    stage.Settle();
    gallery.Save(review, name);
    played.strategy.clear();
  }
  MatchRecord left;
  left.mode = "Campaign";
  left.opponent = "Tamsen";
  left.time = test::SampleMatch(12).time;
  frmReview nothing(stage.services(), {stage.player, left});
  nothing.Open();
  stage.Settle();
  gallery.Save(nothing, "review-empty");
}

void RenderReplay(Gallery& gallery, test::ScreenStage& stage) {
  const MatchRecord record = test::SampleMatch(12, "Tamsen");
  frmReplay replay(stage.services(), {stage.player, record});
  replay.Open();
  const auto click = [&](const char* name, int times) {
    for (auto* button = static_cast<ctlButton*>(replay.findChild<QWidget*>(QString::fromUtf8(name)));
         times > 0; --times) {
      button->Click();
    }
  };
  click("cmdNextSet", 3);
  click("cmdForward", 8);
  stage.Settle(50);
  gallery.Save(replay, "replay");
}

}  // namespace

void RenderRecord(Gallery& gallery) {
  const test::TempFolder folder;
  test::ScreenStage stage(gallery.style(), gallery.scale());
  FillSamplePlayer(stage.player);
  stage.player.FileName = folder / "mara.vnt";
  HistoryFile history(folder / "mara.history.sqlite");
  RecordLook look;
  for (const char* name : {"record-empty", "record"}) {
    frmRecord record(stage.services(), {stage.player, history, look});
    record.Open();
    stage.Settle();
    gallery.Save(record, name);
    if (history.Lines().empty()) Fill(history);
  }
  frmRecord record(stage.services(), {stage.player, history, look});
  record.Open();
  record.findChild<QComboBox*>(QStringLiteral("cmbRates"))->setCurrentIndex(3);
  stage.Settle();
  gallery.Save(record, "record-cards");
  RenderReview(gallery, stage);
  RenderReplay(gallery, stage);
}

}  // namespace kv
