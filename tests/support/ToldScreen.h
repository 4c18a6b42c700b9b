// What a match screen would show: it knows only what it was told, so a change that nobody tells it stays
// unseen. Each change is a line of the story, in the game's words; it decides nothing.
#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "match/MatchEngine.h"

namespace kv::test {

class ToldScreen {
 public:
  MatchControls controls;
  MatchBanner banner;
  std::array<bool, 2> lights{};
  std::vector<std::string> story;

  void Tell(std::string line) { story.push_back(std::move(line)); }
  void TellControls(const MatchControls& now) {
    Change("end turn", controls.endTurn, now.endTurn);
    Change("stand", controls.stand, now.stand);
    Change("forfeit", controls.forfeit, now.forfeit);
    Change("flips", controls.flips, now.flips);
    Change("hand", controls.hand, now.hand);
    Change("their hand", controls.opponentHand, now.opponentHand);
    Change("title bar", controls.titlebar, now.titlebar);
    Change("your table", controls.table[0], now.table[0]);
    Change("their table", controls.table[1], now.table[1]);
  }
  void TellLights(bool yours, bool theirs) {
    Change("your light", lights[0], yours);
    Change("their light", lights[1], theirs);
  }
  void TellBanner(const MatchBanner& now) {
    Change("banner", banner.visible, now.visible);
    banner = now;
  }
  /// Nothing shines and nothing of the match can be used.
  [[nodiscard]] bool AllDark() const {
    MatchControls dark;
    dark.opponentHand = false;
    dark.table = {false, false};
    dark.titlebar = controls.titlebar;
    return controls == dark && lights == std::array<bool, 2>{};
  }
  /// The lines in which one of `words` occurs, in order.
  [[nodiscard]] std::vector<std::string> Lines(const std::vector<std::string>& words) const {
    std::vector<std::string> found;
    std::copy_if(story.begin(), story.end(), std::back_inserter(found), [&](const std::string& line) {
      return std::any_of(words.begin(), words.end(),
                         [&](const std::string& word) { return line.find(word) != std::string::npos; });
    });
    return found;
  }

 private:
  void Change(const std::string& what, bool& was, bool now) {
    if (was != now) Tell(what + (now ? " on" : " off"));
    was = now;
  }
};

}  // namespace kv::test
