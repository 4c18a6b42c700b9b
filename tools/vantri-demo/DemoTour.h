// The way of the demonstration through the whole game, from the start screen to the farewell.
#pragma once

#include <string>

#include "DemoPerson.h"

namespace kv {

class DemoTour {
 public:
  /// The start screen is open or about to be. `style` is "Slate" or "Ember".
  DemoTour(DemoPerson& person, std::string style) : person_(person), style_(std::move(style)) {}

  /// DemoFailure when something does not happen that should.
  void CreatePlayer();
  void ChooseOptions();
  /// One match of an arcade run, and its end.
  void Arcade();
  /// Matches against the first opponent until the player can afford a card, and the card.
  void Campaign();
  /// Leaves the program by the menu.
  void Farewell();

 private:
  void Match(const std::string& pictures);
  /// Puts another card into the deck in place of one that is there.
  void ChangeDeck();
  void CampaignMatch(bool first);
  void BuyCard();

  DemoPerson& person_;
  const std::string style_;
};

}  // namespace kv
