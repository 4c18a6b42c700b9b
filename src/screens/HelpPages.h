// The pages of the rules inside the program. Their source is the read-me's own chapters, so that the two
// cannot differ; the cards and the player's keys are added.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kv {

class clsPlayer;

struct HelpPage {
  std::string title;
  std::string text;  // Markdown in UTF-8; the images "card:CODE" and
                     // "scene:CODE" are a card's picture and the table of its example
};

/// The chapter under the heading of this title, up to the next heading, without pictures and links; empty if
/// there is none.
[[nodiscard]] std::string Chapter(std::string_view readMe, std::string_view title);

/// `player` is null before one is chosen: then there is no page of keys of one's own.
[[nodiscard]] std::vector<HelpPage> HelpPages(std::string_view readMe, const clsPlayer* player);

}  // namespace kv
