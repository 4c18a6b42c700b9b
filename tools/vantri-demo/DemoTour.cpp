#include "DemoTour.h"

#include <QLineEdit>
#include <QListWidget>

#include "DemoPlayer.h"
#include "campaign/Circuit.h"
#include "cards/ctlCard.h"

namespace kv {
namespace {

constexpr const char* kPlayerName = "Mara";
constexpr const char* kArcadeStake = "40";
constexpr int kStartCredits = 100;
constexpr int kMostMatches = 6;  // until the first card must have been bought
constexpr const char* kFirstBuy = "ps6";
constexpr int kFirstBuyPrice = 100;
constexpr int kSpeedRow = 2;  // "Fast!" in the options' list
constexpr int kLook = 600;    // milliseconds that a screen is looked at

bool StartsWith(const QWidget& widget, const char* text) {
  return widget.objectName().startsWith(QString::fromUtf8(text));
}

/// The first visible, usable card of a bank; with a `code`, that one.
const ctlCard& BankCardOf(Screen& screen, const std::string& code = {}) {
  for (const QWidget* widget : screen.findChildren<QWidget*>()) {
    const auto* card = dynamic_cast<const ctlCard*>(widget);
    if (card == nullptr || !card->isVisible() || !card->Enabled()) continue;
    if (StartsWith(*card, "ctlDeck") || StartsWith(*card, "ctlTrade")) continue;
    if (code.empty() || card->Card() == code) return *card;
  }
  throw DemoFailure("no bank card " + code);
}

}  // namespace

void DemoTour::CreatePlayer() {
  person_.WaitForScreen("frmSplash");
  person_.WaitFor("a player can be created", [&] { return person_.Sees("cmdCreate"); });
  person_.Wait(kLook);
  person_.TakePicture("start");
  person_.Click("cmdCreate");
  person_.Type(kPlayerName);
  person_.TakePicture("create-name");
  person_.Key(Qt::Key_Return);
  person_.WaitFor("a file name is asked for", [&] { return person_.Sees("txtName"); });
  person_.TakePicture("create-file");
  person_.Click("cmdNewFile");
  person_.WaitFor("the new player is listed", [&] {
    return person_.Sees("lstPlayers") && person_.Find<QListWidget>("lstPlayers").count() == 1;
  });
  person_.Click("cmdContinue");
  person_.WaitForScreen("frmMenu");
  person_.TakePicture("menu");
}

void DemoTour::ChooseOptions() {
  person_.Click("cmdOptions");
  person_.WaitForScreen("frmOptions");
  person_.ClickRow("lstSpeed", kSpeedRow);
  person_.ClickRow("lstInterface", style_ == "Ember" ? 1 : 0);
  person_.Click("chkKeys");
  person_.TakePicture("options");
  person_.Click("cmdKeys");
  person_.TakePicture("keys");
  person_.Click("cmdKeysDone");
  person_.Click("imgYourPic");
  person_.WaitForScreen("frmPortraits");
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Right}) person_.Key(key);
  person_.TakePicture("portraits");
  person_.Key(Qt::Key_Return);
  person_.WaitForScreen("frmOptions");
  person_.Click("cmdOK");
  person_.WaitForScreen("frmMenu");
  DemoPerson::Expect(person_.program().player()->Interface_Opt == style_, "the style is " + style_);
  person_.TakePicture("menu");
}

void DemoTour::Match(const std::string& pictures) {
  person_.WaitForScreen("frmGame");
  DemoPlayer player(person_);
  player.PlayMatch();
  person_.TakePicture(pictures + "-result");
  player.Continue();
}

void DemoTour::ChangeDeck() {
  person_.Click("ctlDeck1");
  DemoPerson::Expect(!person_.Sees("ctlDeck1"), "the card has left the deck");
  person_.TakePicture("deck-gap");
  person_.Click(BankCardOf(*person_.program().screen(), "ps5"));
  DemoPerson::Expect(person_.Sees("ctlDeck1"), "another card is in the deck");
}

void DemoTour::Arcade() {
  person_.Click("cmdArcade");
  person_.WaitForScreen("frmCards");
  person_.Type(kArcadeStake);
  person_.TakePicture("arcade-stake");
  person_.Click("cmdWager");
  const clsGame& game = *person_.program().game();
  DemoPerson::Expect(game.CreditsRef->Value == kStartCredits - std::stoi(kArcadeStake), "the stake is paid");
  ChangeDeck();
  person_.TakePicture("arcade-deck");
  person_.Click("cmdContinue");
  Match("arcade");
  person_.WaitForScreen("frmCards");
  person_.TakePicture("arcade-again");
  const int credits = game.CreditsRef->Value;
  DemoPerson::Expect(credits == kStartCredits + 40 || credits == kStartCredits - 40, "the match is booked");
  person_.ClickAndSayYes("cmdEnd");  // a run that has won credits asks
  person_.WaitForScreen("frmMenu");
  const int best = person_.program().player()->Arcade_Best;
  DemoPerson::Expect(best == credits, "the run's credits are the high score");
}

void DemoTour::CampaignMatch(bool first) {
  const clsPlayer& player = *person_.program().player();
  const int before = player.Credits->Value;
  const int played = player.Wins->Value + player.Losses->Value;
  person_.Hover("cmdOpp0");
  if (first) person_.TakePicture("campaign");
  person_.Click("cmdOpp0");
  person_.WaitForScreen("frmCards");
  person_.Click("lblWagerInfo");  // fills in the highest stake
  if (first) person_.TakePicture("campaign-stake");
  person_.Key(Qt::Key_Return);
  person_.WaitFor("the match can begin", [&] { return person_.Find("cmdContinue").isEnabled(); });
  if (first) person_.TakePicture("campaign-deck");
  person_.Key(Qt::Key_Return);
  Match("campaign");
  person_.WaitForScreen("frmCampaign");
  DemoPerson::Expect(player.Wins->Value + player.Losses->Value == played + 1, "one match more is counted");
  DemoPerson::Expect(player.Credits->Value != before, "the stake is won or lost");
}

void DemoTour::BuyCard() {
  clsPlayer& player = *person_.program().player();
  const int before = player.Credits->Value;
  person_.Click("cmdDeck");
  person_.WaitForScreen("frmCards");
  person_.TakePicture("deck-view");
  person_.Key(Qt::Key_2);
  person_.TakePicture("shop");
  person_.Click(BankCardOf(*person_.program().screen(), kFirstBuy));
  person_.TakePicture("shop-picked");
  person_.Key(Qt::Key_Space);
  person_.Key(Qt::Key_3);
  person_.TakePicture("shop-sell");
  person_.Click("cmdDeck");
  person_.Key(Qt::Key_Return);
  person_.WaitForScreen("frmCampaign");
  DemoPerson::Expect(player.Credits->Value == before - kFirstBuyPrice, "the card is paid");
  DemoPerson::Expect(CountCards(player.Cards->getValue()) == 1, "the card is in the collection");
  person_.TakePicture("campaign-after");
}

void DemoTour::Campaign() {
  person_.Click("cmdCampaign");
  person_.WaitForScreen("frmCampaign");
  const clsPlayer& player = *person_.program().player();
  for (int match = 0; match == 0 || player.Credits->Value < kFirstBuyPrice; ++match) {
    DemoPerson::Expect(match < kMostMatches, "the credits suffice for a card");
    CampaignMatch(match == 0);
  }
  BuyCard();
  person_.Click("cmdQuit");
  person_.WaitForScreen("frmMenu");
  person_.TakePicture("menu");
}

void DemoTour::Farewell() {
  person_.Click("cmdQuit");
  person_.WaitFor("the program ends", [&] { return person_.program().screen() == nullptr; });
}

}  // namespace kv
