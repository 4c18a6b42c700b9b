// What a side concludes of its peer, and that the document tells the same table as the code.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <vector>

#include "network/PeerPlace.h"

namespace kv {
namespace {

std::string Word(Verdict verdict) {
  static constexpr std::array kWords = {"take", "keep", "late", "ahead", "fault"};
  return kWords.at(static_cast<std::size_t>(verdict));
}

/// The cells of a table row of the document, without blanks and code marks.
std::vector<std::string> Cells(const std::string& line) {
  std::vector<std::string> cells;
  std::istringstream row(line.substr(1));
  for (std::string cell; std::getline(row, cell, '|');) {
    std::erase_if(cell, [](char c) { return c == ' ' || c == '`'; });
    cells.push_back(cell);
  }
  return cells;
}

TEST(PeerPlace, TheDocumentTellsTheSameTable) {
  std::ifstream document(KV_SOURCE_DIR "/docs/protocol.md");
  std::size_t kind = 0;
  bool inTable = false;
  for (std::string line; std::getline(document, line);) {
    if (line.starts_with("| message | lobby |")) inTable = true;
    if (!inTable || !line.starts_with("| `[")) continue;
    const std::vector<std::string> cells = Cells(line);
    ASSERT_EQ(cells.size(), static_cast<std::size_t>(kPlaces) + 1) << line;
    // A message with this command is the kind of this row.
    static constexpr std::array kExamples = {"",        "",  "no7", "1", "hello", "", "1ps3",  "Ann", "",
                                             "ann.vnt", "7", "",    "",  "",      "", "1.2.4", "5",   "True"};
    const auto message = ParseMessage(cells[0] + kExamples.at(kind));
    ASSERT_TRUE(message.has_value()) << line;
    ASSERT_EQ(message->index(), kind) << line;
    for (int place = 0; place < kPlaces; ++place) {
      EXPECT_EQ(cells.at(static_cast<std::size_t>(place) + 1),
                Word(TableVerdict(kind, static_cast<Place>(place))))
          << line << " column " << place;
    }
    ++kind;
    if (kind == std::variant_size_v<Message>) return;
  }
  FAIL() << "rows found: " << kind;
}

TEST(PeerPlace, ConcludesFromTheOrderOfMessages) {
  PeerPlace peer;
  EXPECT_FALSE(peer.Ready(Place::Lobby));
  peer.SaysStart();
  peer.Plays(false);
  EXPECT_TRUE(peer.Ready(Place::Lobby)) << "it has pressed Start";
  EXPECT_FALSE(peer.Ready(Place::Cards));
  peer.Plays(false);
  EXPECT_TRUE(peer.Ready(Place::Cards));
  EXPECT_FALSE(peer.Ready(Place::Opening));
  peer.OwnTable();
  peer.Plays(false);
  EXPECT_TRUE(peer.Ready(Place::Opening));
  peer.OwnSetDecided();
  EXPECT_FALSE(peer.Ready(Place::Banner)) << "it has not gone on from the first set yet";
  peer.Plays(false);
  EXPECT_TRUE(peer.Ready(Place::Banner));
  peer.OwnSetDecided();
  EXPECT_FALSE(peer.Ready(Place::Over));
  peer.InLobby();
  EXPECT_TRUE(peer.Ready(Place::Over)) << "it has left the table";
}

TEST(PeerPlace, WhatWasSaidBeforeAReturnIsLate) {
  PeerPlace peer;
  peer.SaysStart();
  peer.Plays(true);
  peer.OwnLobby(Place::Desk);  // back from the cards while the peer is on its way there
  EXPECT_EQ(peer.at(), PeerPlace::At::Returning);
  EXPECT_EQ(peer.PlayMeans(), PeerPlace::Play::Nothing);
  EXPECT_FALSE(peer.Ready(Place::Lobby)) << "its Start is used up";
  const auto card = ParseMessage("[Card]no7")->index();
  EXPECT_EQ(peer.CourseOf(card, Place::Lobby, false), Course::Ignore);
  peer.InLobby();
  EXPECT_EQ(peer.CourseOf(card, Place::Lobby, false), Course::Refuse) << "now it should know";
  peer.SaysStart();
  peer.Plays(true);
  EXPECT_TRUE(peer.Ready(Place::Lobby));
  peer.OwnModeChange();
  EXPECT_FALSE(peer.Ready(Place::Lobby)) << "a mode change takes both Starts back";
  peer.InLobby();
  peer.SaysStart();
  peer.OwnModeChange();
  peer.Plays(true);
  EXPECT_FALSE(peer.Ready(Place::Lobby)) << "also one that had only been announced";
  peer.SaysStart();
  peer.Plays(true);
  EXPECT_TRUE(peer.Ready(Place::Lobby));
}

TEST(PeerPlace, AnEndOutOfOrderWaitsForTheRightPlay) {
  PeerPlace before;
  for (int play = 0; play < 3; ++play) {
    if (play == 0) before.SaysStart();
    before.Plays(false);
  }
  before.OwnTable();
  before.OwnSetDecided();
  PeerPlace forfeited = before;  // at the first banner, from which the peer may still go on
  forfeited.OwnForfeit(Place::Banner);
  forfeited.Plays(false);
  EXPECT_FALSE(forfeited.Ready(Place::Over)) << "that may have been the set's";
  forfeited.Plays(false);
  EXPECT_TRUE(forfeited.Ready(Place::Over));
  PeerPlace won = before;  // the peer forfeits: its next one leaves
  won.Forfeits();
  EXPECT_FALSE(won.Ready(Place::Over));
  won.Plays(false);
  EXPECT_TRUE(won.Ready(Place::Over));
}

TEST(PeerPlace, WhatIsEarlyWaitsOnlyForWhatThisSideIsAboutToDo) {
  PeerPlace peer;
  const auto card = ParseMessage("[Card]no7")->index();
  EXPECT_EQ(peer.CourseOf(card, Place::Handover, false), Course::Wait);
  EXPECT_EQ(peer.CourseOf(card, Place::Theirs, false), Course::Act);
  EXPECT_EQ(peer.CourseOf(card, Place::Ours, false), Course::Refuse);
  peer.OwnTable();
  peer.OwnSetDecided();
  EXPECT_EQ(peer.CourseOf(card, Place::Banner, true), Course::Refuse) << "the peer has not gone on";
  peer.SaysStart();
  for (int play = 0; play < 4; ++play) peer.Plays(false);
  EXPECT_EQ(peer.CourseOf(card, Place::Banner, true), Course::Wait);
  EXPECT_EQ(peer.CourseOf(card, Place::Banner, false), Course::Refuse) << "this side has not gone on";
}

}  // namespace
}  // namespace kv
