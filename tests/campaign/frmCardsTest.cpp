// The card screen through pointer and keys: stake, deck, shop and every way out, in both styles.
#include <gtest/gtest.h>

#include <QRegularExpression>

#include "campaign/Circuit.h"
#include "campaign/frmCards.h"
#include "match/clsGame.h"
#include "support/OneScreen.h"
#include "support/RecordingNetwork.h"
#include "support/Rows.h"

namespace kv::test {
namespace {

class CardsScreenTest : public testing::TestWithParam<const char*>, protected OneScreen<frmCards> {
 protected:
  CardsScreenTest() : OneScreen(GetParam()), game(player, {}) {
    peer.host = true;
    player.FileName = folder / "ann.vnt";
    player.Cards->Fill(2);
    player.Credits->Value = 700;
    player.Credits_MP->Value = 80;
    player.Brannock_Wins->Value = kWinsToUnlock;
    for (int card = 0; card < 2 * kHandSize; ++card) random.Add(0.05 + 0.1 * (card % kHandSize));
  }
  ~CardsScreenTest() override { screen.reset(); }

  void Open(std::string_view mode) {
    game.Mode = mode;
    if (mode == kModeCampaign) {
      Circuit circuit(game, player);
      EXPECT_TRUE(circuit.Choose(1));
    }
    if (mode == kModeDeckConfig) {
      game.CreditsRef = player.Credits;
      game.DeckRef = player.Deck;
      game.CardsRef = player.Cards;
    }
    if (mode == kModeNetwork) {
      game.CreditsRef = player.Credits_MP;
      game.DeckRef = player.Deck_MP;
      game.CardsRef = player.Cards_MP;
      game.MaxWager = 80;
    }
    Show(std::make_unique<frmCards>(services(), frmCardsServices{player, game, peer, networkStake}), 50);
  }
  void SetStake(const char* text) {
    screen->wager().gettxtWager().setText(QString::fromUtf8(text));
    Click(screen->wager().getcmdWager());
  }
  /// A campaign match for 20 credits.
  void OpenAtStake() {
    Open(kModeCampaign);
    SetStake("20");
  }
  [[nodiscard]] const std::vector<std::string>& asked() const { return recorded.calls; }

  RecordingNetwork peer;
  NetworkStake networkStake;
  clsGame game;
};

TEST_P(CardsScreenTest, TheAmountBoxTakesWhatMayBeStakedAndNothingElse) {
  Open(kModeArcade);
  QLineEdit& box = screen->wager().gettxtWager();
  for (const char* text : {"12", "101", "12a"}) {
    box.setText(QString::fromUtf8(text));
    EXPECT_EQ(box.text(), text == std::string("12") ? "12" : "101");
    EXPECT_EQ(screen->wager().getcmdWager().Enabled(), text == std::string("12")) << text;
  }
  Click(screen->wager().getlblCredits());
  EXPECT_EQ(box.text(), "100");
  box.setText("0050");
  Key(Qt::Key_Return);  // the box has the focus: the stake is set, and Continue behind it is not pressed
  EXPECT_EQ(game.Wager, 50);
  EXPECT_TRUE(screen->wager().isHidden());
  EXPECT_TRUE(asked().empty());
  EXPECT_FALSE(Button("cmdBuy").isVisible());
  Key(Qt::Key_Return);
  EXPECT_EQ(asked(), std::vector<std::string>{"OpenMatch"});
  EXPECT_NE(game.SideDeck, nullptr);
}

TEST_P(CardsScreenTest, TheWagerPanelTellsOfClicksAndTakesTheLayoutOfItsStyle) {
  Open(kModeArcade);
  ctlWager& panel = screen->wager();
  EXPECT_EQ(panel.Style(), QString::fromLatin1(GetParam()));
  std::string clicks;
  panel.CreditsClick = [&clicks] { clicks += "credits "; };
  panel.WagerInfoClick = [&clicks] { clicks += "info"; };
  Click(panel.getlblCredits());
  Click(panel.getlblWagerInfo());
  EXPECT_EQ(clicks, "credits info");
  EXPECT_TRUE(panel.gettxtWager().text().isEmpty()) << "the panel decides nothing";
  panel.gettxtWager().setText("12");
  const bool ember = panel.Style() == "Ember";
  panel.setStyle("Marble");
  panel.setStyle(ember ? "Slate" : "Ember");
  EXPECT_EQ(panel.width(), Layout("frmCards", ember ? "Slate" : "Ember").rect(u"ctlWager").width());
  EXPECT_EQ(panel.gettxtWager().text(), "12");
}

TEST_P(CardsScreenTest, CardsGoIntoTheDeckAndBackAndOnlyAFullOneContinues) {
  Open(kModeArcade);
  Click(*screen->Bank({1, 1}));  // no stake yet: nothing happens, and the amount is still what is typed
  Key(Qt::Key_7);
  EXPECT_EQ(screen->wager().gettxtWager().text(), "7");
  hand->Drag(screen->wager(), {40, 12}, {-50, -50});
  EXPECT_EQ(screen->wager().pos(), QPoint(0, screen->titlebar().height())) << "the title bar stays free";
  SetStake("10");
  EXPECT_EQ(sound.Count("draw"), 0);
  const std::string before = screen->Bank({1, 1})->count();
  Click(screen->ctlDeck(4));
  EXPECT_TRUE(screen->ctlDeck(4).isHidden());
  Key(Qt::Key_Return);
  EXPECT_TRUE(asked().empty());
  Click(*screen->Bank({1, 1}));
  EXPECT_EQ(screen->ctlDeck(4).Card(), "ps1");
  EXPECT_EQ(std::stoi(screen->Bank({1, 1})->count()), std::stoi(before) - 1);
  EXPECT_EQ(sound.Count("draw"), 1);
  Click(*screen->Bank({1, 1}));  // the deck is full
  EXPECT_EQ(std::stoi(screen->Bank({1, 1})->count()), std::stoi(before) - 1);
  EXPECT_TRUE(Button("cmdContinue").Enabled());
}

TEST_P(CardsScreenTest, ASpentCardIsDimThoughThePointerRestsOnIt) {
  OpenAtStake();
  Click(screen->ctlDeck(1));
  Click(screen->ctlDeck(2));
  ctlCard& card = *screen->Bank({2, 6});
  for (int copy = 0; copy < 2; ++copy) Click(card);
  EXPECT_FALSE(card.Enabled());
  Settle(200);
  EXPECT_EQ(globals.effects.pulsingCard(), nullptr);
  dialogs.answers = {false};
  Key(Qt::Key_Escape);
  EXPECT_EQ(dialogs.boxes.size(), 1u) << "a stake is open: the key asks first";
}

TEST_P(CardsScreenTest, TheShopTradesWithTheWorkingCopiesUntilContinue) {
  OpenAtStake();
  EXPECT_EQ(player.Losses->Value, 1);
  EXPECT_EQ(player.Credits->Value, 700);
  Key(Qt::Key_Space);  // the trade button is hidden
  Key(Qt::Key_2);
  EXPECT_FALSE(screen->Bank({3, 1})->isVisible()) << "a card that costs more than the credits is not offered";
  screen->Bank({1, 1})->setFocus();
  Key(Qt::Key_Return);
  Key(Qt::Key_Space);  // trades what is picked, though the card still has the focus
  EXPECT_EQ(sound.Count("buy"), 1);
  EXPECT_EQ(game.CreditsRef->Value, 80);
  Key(Qt::Key_3);
  Click(*screen->Bank({4, 5}));
  Click(Button("cmdTrade"));
  EXPECT_EQ(game.CreditsRef->Value, 80 + 1750);
  EXPECT_FALSE(Button("cmdContinue").Enabled());
  EXPECT_EQ(player.Cards->Value(1, 1), 2) << "nothing is stored yet";
  Key(Qt::Key_1);
  screen->Bank({2, 1})->setFocus();
  Key(Qt::Key_Return);  // no card goes into a full deck: the key continues
  EXPECT_EQ(asked(), std::vector<std::string>{"OpenMatch"});
  EXPECT_EQ(player.Credits->Value, 80 + 1750);
  EXPECT_EQ(player.Cards->Value(1, 1), 3);
  EXPECT_EQ(player.Cards->Value(4, 5), 1);
}

TEST_P(CardsScreenTest, ACardThatTheDeckNeedsIsNotSoldAndTheScreenSaysWhy) {
  player.Cards->Fill(0);
  player.Credits->Value = 40;
  for (int slot = 1; slot <= kDeckSize; ++slot) player.Deck->setValue(slot, CardCode("ps6"));
  OpenAtStake();
  Key(Qt::Key_3);
  Click(screen->ctlDeck(1));
  Click(*screen->Bank({1, 6}));
  EXPECT_FALSE(Button("cmdTrade").Enabled());
  EXPECT_EQ(Text("lblRefusal"), "the deck needs this card");
  Key(Qt::Key_Space);
  Key(Qt::Key_1);
  Click(*screen->Bank({1, 6}));
  EXPECT_TRUE(Button("cmdContinue").Enabled());
}

TEST_P(CardsScreenTest, TheTitleBarAsksOnlyWhenAMatchIsAtStake) {
  OpenAtStake();
  dialogs.answers = {false, true};
  screen->titlebar().Quit();
  EXPECT_TRUE(asked().empty());
  screen->titlebar().Quit();
  EXPECT_EQ(dialogs.boxes.back().title, "Kelm Vantri: Forfeit Match");
  EXPECT_EQ(asked(), std::vector<std::string>{"OpenCampaign"});
  EXPECT_EQ(player.Credits->Value, 700) << "the working copies are dropped";
  EXPECT_EQ(player.Losses->Value, 1) << "what was booked in advance stands";

  recorded.calls.clear();
  Open(kModeDeckConfig);
  EXPECT_EQ(Button("cmdContinue").Caption(), "ok");
  EXPECT_TRUE(screen->wager().isHidden());
  Click(Button("cmdContinue"));
  EXPECT_EQ(asked(), std::vector<std::string>{"OpenCampaign"});
}

TEST_P(CardsScreenTest, WhatTheDeskDoesIsTold) {
  Open(kModeCampaign);
  EXPECT_EQ(announcer.Last(), "How much do you wager? Credits: 700. Min Wager: 0, Max Wager: 50.");
  SetStake("20");
  EXPECT_EQ(announcer.Last(), "Stake 20.");
  Click(screen->ctlDeck(1));
  EXPECT_EQ(announcer.Last(), "plus 1 removed. 9 of 10 cards.");
  Click(*screen->Bank({2, 6}));
  EXPECT_EQ(announcer.Last(), "minus 6 added. 10 of 10 cards.");
  Key(Qt::Key_2);
  Click(*screen->Bank({1, 1}));
  EXPECT_EQ(announcer.Last(), "plus 1. Price 600. 4 owned.");
  EXPECT_EQ(Find("lblCost").accessibleName(), "Price: 600");
  Click(Button("cmdTrade"));
  EXPECT_EQ(announcer.Last(), "Bought plus 1. 80 credits.");
  EXPECT_EQ(Find("lblCredits").accessibleName(), "Credits: 80");
  EXPECT_EQ(Find("lblDeck").accessibleName(), "Cards in the deck: 10 of 10");
}

TEST_P(CardsScreenTest, AnArcadeRunIsAskedAboutOnceAndOnlyForWhatItHasWon) {
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"end", [this] { Click(screen->wager().getcmdEnd()); }},
      {"title bar", [this] { screen->titlebar().Quit(); }},
      {"Escape", [this] { Key(Qt::Key_Escape); }},
  };
  const std::int32_t start = ArcadeStartCredits(player.Arcade_Best);
  for (const auto& [name, leave] : ways) {
    const bool key = std::string_view(name) == "Escape";
    for (const auto& [played, credits, asks] : {std::tuple{false, start, false},
                                                {true, start, key},
                                                {true, start - 1, key},
                                                {true, start + 1, true}}) {
      SCOPED_TRACE(std::string(name) + " with " + std::to_string(credits));
      dialogs.boxes.clear();
      recorded.calls.clear();
      game.LastWagers.clear();
      if (played) game.LastWagers["Orrin Vaal"] = 10;
      game.CreditsRef->Value = credits;
      Open(kModeArcade);
      recorded.calls.clear();
      if (asks) {
        dialogs.answers = {false, true};
        leave();
        EXPECT_TRUE(asked().empty());
        EXPECT_TRUE(screen->titlebar().isEnabled() && screen->wager().getcmdEnd().Enabled());
      }
      leave();
      EXPECT_EQ(dialogs.boxes.size(), asks ? 2U : 0U);
      EXPECT_EQ(asked(), std::vector<std::string>{"OpenMenu"});
      EXPECT_EQ(std::exchange(player.Arcade_Best, 0), credits) << "a high score";
    }
  }
}

TEST_P(CardsScreenTest, TabGoesFromTheCollectionOverItsButtonsToTheDeckAndOn) {
  OpenAtStake();
  Click(screen->ctlDeck(10));
  Click(*screen->Bank({2, 6}));
  screen->setFocus();
  std::vector<std::string> stops;
  for (int step = 0; step < 60; ++step) {
    Key(Qt::Key_Tab);
    QWidget* focus = screen->focusWidget();
    EXPECT_NE(focus, screen.get()) << "the bare window is no stop";
    const std::string kind = focus->objectName().remove(QRegularExpression("\\d+$")).toStdString();
    if (stops.empty() || stops.back() != kind) stops.push_back(kind);
    if (kind == "cmdContinue") break;
  }
  const std::vector<std::string> order = {"cmdBuy", "cmdSell", "ctlDeck", "cmdContinue"};
  ASSERT_GE(stops.size(), order.size());
  EXPECT_EQ(std::vector(stops.end() - static_cast<std::ptrdiff_t>(order.size()), stops.end()), order);
}

/// Every way out while a stake is open: a no changes nothing, a yes gives the match up.
TEST_P(CardsScreenTest, EveryWayOutAsksWhileAStakeIsOpen) {
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"title bar", [this] { screen->titlebar().Quit(); }},
      {"Escape", [this] { Key(Qt::Key_Escape); }},
      {"window", [this] { screen->close(); }},
  };
  for (const auto& [mode, leads, ends] :
       Rows<std::string_view, const char*, const char*>{{kModeArcade, "ReloadCards", "EndProgram"},
                                                        {kModeCampaign, "OpenCampaign", "EndProgram"},
                                                        {kModeNetwork, "/disconnect", "/quit"}}) {
    for (const auto& [way, leave] : ways) {
      SCOPED_TRACE(std::string(mode) + ", " + way);
      const bool closes = std::string_view(way) == "window";
      game = clsGame(player, {});
      Open(mode);
      ASSERT_TRUE(screen->round().entry().PeerProposes("20"));
      screen->wager().Refresh();
      Click(screen->wager().getcmdWager());
      ASSERT_EQ(game.Wager, 20);
      recorded.calls.clear();
      peer.sent.clear();
      sound.played.clear();
      dialogs.answers = {false, true};
      leave();
      EXPECT_EQ(dialogs.boxes.back().text, "Are you sure you wish to forfeit this match?");
      EXPECT_TRUE(asked().empty() && peer.sent.empty());
      EXPECT_EQ(game.Wager, 20);
      EXPECT_TRUE(screen->isVisible() && screen->titlebar().isEnabled());
      EXPECT_EQ(sound.Count("losematch"), 0);
      leave();
      EXPECT_TRUE(dialogs.answers.empty()) << "it is asked again";
      const std::vector<std::string>& heard = mode == kModeNetwork ? peer.sent : asked();
      EXPECT_EQ(heard, std::vector<std::string>{closes ? ends : leads});
      EXPECT_EQ(sound.Count("losematch"), closes ? 0 : 1);
    }
  }
}

TEST_P(CardsScreenTest, TheDeckViewAsksBeforeItDropsWhatIsNotStored) {
  Open(kModeDeckConfig);
  Click(screen->ctlDeck(3));
  dialogs.answers = {false, false, true};
  Key(Qt::Key_Escape);
  screen->LeaveProgram();
  EXPECT_TRUE(asked().empty());
  EXPECT_TRUE(screen->titlebar().Enabled());
  EXPECT_EQ(dialogs.boxes.back().title, "Kelm Vantri: Discard Changes");
  EXPECT_EQ(dialogs.boxes.back().icon, DialogIcon::Exclamation);
  screen->titlebar().Quit();
  EXPECT_EQ(asked(), std::vector<std::string>{"OpenCampaign"});

  const auto leaveAfter = [this](const std::vector<std::pair<Qt::Key, QWidget*>>& clicks) {
    for (const auto& [view, card] : clicks) {
      Key(view);
      Click(*card);
      Key(Qt::Key_Space);
    }
    recorded.calls.clear();
    dialogs.boxes.clear();
    dialogs.answers = {true};
    Key(Qt::Key_Escape);
    EXPECT_EQ(asked(), std::vector<std::string>{"OpenCampaign"});
    return dialogs.boxes.size();
  };
  Open(kModeDeckConfig);
  EXPECT_EQ(leaveAfter({}), 0U) << "nothing was changed";
  Open(kModeDeckConfig);
  EXPECT_EQ(leaveAfter({{Qt::Key_2, screen->Bank({1, 6})}}), 1U) << "a purchase would be lost";
  Open(kModeDeckConfig);
  const std::string code = screen->ctlDeck(3).Card();
  Click(screen->ctlDeck(3));
  EXPECT_EQ(leaveAfter({{Qt::Key_1, screen->Bank(CardKindValue(CardCode(code)))}}), 0U) << "all as it was";
}

TEST_P(CardsScreenTest, AWarningThatIsAnsweredNoLeavesTheButtonInUse) {
  player.Cards->Fill(0);
  player.Credits->Value = 40;
  Open(kModeCampaign);
  dialogs.answers = {false};
  SetStake("40");
  EXPECT_EQ(dialogs.boxes.size(), 1u);
  EXPECT_EQ(game.Wager, -1);
  EXPECT_TRUE(screen->wager().getcmdWager().Enabled());
  dialogs.answers = {true};
  dialogs.whileOpen = [this] { screen->CloseScreen(); };  // the window goes while the box is open
  Click(screen->wager().getcmdWager());
  EXPECT_EQ(game.Wager, -1);
}

TEST_P(CardsScreenTest, TheAmountHasTheFocusOnceItIsAskedForUnlessThePersonIsWriting) {
  for (const bool host : {true, false}) {
    for (const bool writing : {false, true}) {
      SCOPED_TRACE(std::string(host ? "host" : "guest") + (writing ? ", writing" : ""));
      peer.host = host;
      peer.ready = false;
      Open(kModeNetwork);
      QLineEdit& box = screen->wager().gettxtWager();
      auto& line = Find<QLineEdit>("txtSend");
      if (writing) line.setFocus();
      Settle(200);
      EXPECT_FALSE(box.hasFocus());
      if (host) {
        peer.ready = true;
      } else {
        screen->round().Proposed(30);
      }
      Settle(200);
      EXPECT_EQ(box.hasFocus(), !writing);
      EXPECT_EQ(line.hasFocus(), writing);
      const ctlButton& button = screen->wager().getcmdWager();
      EXPECT_EQ(button.Caption(), host ? "propose" : "accept");
      EXPECT_EQ(button.Enabled(), !host) << "there is nothing to propose yet";
      for (const char* amount : {"5", ""}) {
        box.setText(QString::fromUtf8(amount));
        EXPECT_EQ(button.Enabled(), *amount != 0) << amount;
        EXPECT_EQ(button.Caption(), "propose");
      }
      box.setText("50");
      Click(screen->wager().getcmdWager());
      EXPECT_EQ(peer.Sent("[Wage]50"), 1);
      peer.sent.clear();
      EXPECT_EQ(button.Caption(), "(waiting)");
      EXPECT_FALSE(button.Enabled());
      EXPECT_EQ(game.Wager, -1);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Styles, CardsScreenTest, testing::Values("Slate", "Ember"),
                         [](const auto& style) { return std::string(style.param); });

}  // namespace
}  // namespace kv::test
