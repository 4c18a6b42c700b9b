// The match screen under a real pointer and real keys, on the test's own clock.
#include <QApplication>

#include "match/MatchScreenTest.h"
#include "support/Rows.h"

namespace kv::test {
namespace {

using frmGameTest = MatchScreenTest;

INSTANTIATE_TEST_SUITE_P(Styles, frmGameTest, testing::Values("Slate", "Ember"),
                         [](const auto& style) { return std::string(style.param); });

TEST_P(frmGameTest, OpensAsItsLayoutSays) {
  MatchScreen match(Setup({7}));
  EXPECT_EQ(match.screen->size(), StyleIndex() == 0 ? QSize(786, 540) : QSize(1024, 690));
  EXPECT_FALSE(match.screen->cmdTurn().Enabled());
  match.Begin();
  EXPECT_EQ(match.screen->titlebar().Caption(), "Arcade Match");
  EXPECT_EQ(match.screen->lblWager().text(), "Wager: 10");
  EXPECT_TRUE(match.screen->cmdTurn().Enabled());
  EXPECT_EQ(match.screen->side(Seat::Player).lblTotal().text(), "7");
  const ctlCard& first = *match.screen->side(Seat::Player).table().at(0);
  EXPECT_EQ(first.pos(), QPoint(qRound(grid().table.left), qRound(grid().table.top)));
  EXPECT_EQ(first.accessibleName(), "7, your table card 1");
  EXPECT_EQ(match.screen->hand().ctlYourDeck(2).accessibleName(), "flip card, plus 2, hand card 2");
  EXPECT_EQ(match.screen->side(Seat::Opponent).ctlOppDeck(4).Card(), "un");
}

TEST_P(frmGameTest, NothingIsCutOffOrOutside) {
  MatchScreen match(Setup());
  for (const QWidget* child : match.screen->findChildren<QWidget*>()) {
    const QRect place(child->mapTo(match.screen.get(), QPoint(0, 0)), child->size());
    EXPECT_TRUE(match.screen->rect().contains(place)) << child->objectName().toStdString();
  }
  for (const QLabel* label : match.screen->findChildren<QLabel*>()) {
    EXPECT_LE(label->fontMetrics().height(), label->height() + 2) << label->objectName().toStdString();
  }
}

TEST_P(frmGameTest, ALongNameIsSetSmallerOrCutAtItsEndWithTheWholeToBeAskedFor) {
  for (const auto& [name, cut] :
       Rows<QString, bool>{{"Ann", false}, {"Alexandra Hohenstein", false}, {"WWWWWWWWWWWWWWWWWWW<", true}}) {
    MatchScreen& match = BeginWith([&name = name](clsPlayer& player) { player.Name = name.toStdString(); });
    const auto& label = *match.screen->findChild<QLabel*>("lblYourName");
    EXPECT_LE(label.fontMetrics().horizontalAdvance(label.text()), label.width()) << name.toStdString();
    EXPECT_EQ(label.text() != name, cut) << name.toStdString();
    EXPECT_EQ(label.text().front(), name.front());
    EXPECT_EQ(label.toolTip(), cut ? name.toHtmlEscaped() : QString());
    EXPECT_TRUE(label.accessibleName().endsWith(name));
  }
}

TEST_P(frmGameTest, CardsNamesAndPortraitsLieOnThePanelOfTheStyle) {
  MatchScreen& match = Begin({4});
  const FadeTarget* panel = StyleIndex() == 0 ? match.screen->picSlate() : match.screen->picEmber();
  ASSERT_NE(panel, nullptr);
  EXPECT_EQ(StyleIndex() == 0 ? match.screen->picEmber() : match.screen->picSlate(), nullptr);
  for (const QWidget* on : std::initializer_list<const QWidget*>{
           &match.screen->hand().ctlYourDeck(1), &match.screen->side(Seat::Opponent).ctlOppDeck(4),
           match.screen->side(Seat::Player).table().at(0), &match.screen->side(Seat::Opponent).portrait()}) {
    EXPECT_EQ(on->parentWidget(), panel) << on->objectName().toStdString();
  }
  // A card that is dragged goes over the buttons beside the panel, which are in front of it again afterwards.
  const ctlCard& card = match.screen->hand().ctlYourDeck(1);
  const QPoint over = Hand().CentreOf(match.screen->cmdStand());
  Hand().Press(Hand().CentreOf(card));
  Hand().MoveTo(over);
  EXPECT_EQ(match.screen->childAt(over), &card);
  Hand().Release(over);
  EXPECT_EQ(match.screen->childAt(over), &match.screen->cmdStand());
}

TEST_P(frmGameTest, AWholeSetWithTheMouse) {
  MatchScreen match(Setup({9, 5, 8, 6, 7}));
  match.strategy.turns = {EndOpponent, EndOpponent, StandOpponent};
  match.Begin();
  ScreenHand hand(*match.screen);

  hand.Click(match.screen->cmdTurn());
  EXPECT_FALSE(match.screen->cmdTurn().Enabled());
  match.Settle();
  hand.DoubleClick(match.screen->hand().ctlYourDeck(2));
  EXPECT_EQ(match.engine().shown().Total(Seat::Player), 9 + 8 + 2);
  EXPECT_FALSE(match.screen->hand().ctlYourDeck(2).isVisible());
  EXPECT_FALSE(match.screen->hand().ctlYourDeck(1).Enabled()) << "one side card a turn";
  EXPECT_EQ(match.sent, std::vector<std::string>{"[Hand]2fp2"});
  hand.Click(match.screen->cmdStand());
  match.Settle();  // the opponent plays on to 18 and stands
  EXPECT_TRUE(match.screen->banner().isVisible());
  EXPECT_EQ(match.screen->banner().lblBust().text(), "you win the set.");
  EXPECT_EQ(match.screen->side(Seat::Player).SetWinsShown(), 1);
  match.random.Add(0.25);
  hand.Click(match.screen->banner().cmdBust());
  match.Settle();
  EXPECT_FALSE(match.screen->banner().isVisible());
  EXPECT_EQ(match.screen->side(Seat::Player).table().size(), 1u);
  EXPECT_TRUE(match.screen->hand().ctlYourDeck(1).Enabled());
}

TEST_P(frmGameTest, DragAndDrop) {
  MatchScreen& match = Begin({4}, {"ps1", "ps2", "ps3", "ps4"});
  const ctlCard& card = match.screen->hand().ctlYourDeck(1);
  const QPoint home = card.pos();
  const QPoint half(card.width() / 2, card.height() / 2);

  Hand().Click(card);
  EXPECT_EQ(match.engine().shown().Total(Seat::Player), 4) << "a single click does nothing";
  // One pixel outside each edge it comes back.
  const double middleX = (grid().dropLeft + grid().dropRight) / 2;
  const double middleY = (grid().dropTop + grid().dropBottom) / 2;
  for (const QPointF outside :
       {QPointF(grid().dropLeft - 1, middleY), QPointF(grid().dropRight + 1.5, middleY),
        QPointF(middleX, grid().dropTop - 1), QPointF(middleX, grid().dropBottom + 1)}) {
    Hand().Drag(card, {3, 3}, outside.toPoint() - half);
    EXPECT_EQ(card.pos(), home);
    EXPECT_EQ(match.engine().shown().Total(Seat::Player), 4);
  }
  // The centre exactly on the corner of the area plays it.
  QPoint corner(static_cast<int>(grid().dropLeft), static_cast<int>(grid().dropTop));
  if (card.width() % 2 == 1) corner.rx() += 1;  // the centre lies between two pixels
  Hand().Drag(card, {3, 3}, corner - half);
  EXPECT_EQ(match.engine().shown().Total(Seat::Player), 5);
  EXPECT_FALSE(card.isVisible());
  EXPECT_EQ(card.pos(), home);
}

TEST_P(frmGameTest, TheEndOfTheTurnOrABoxInTheMiddleOfADragSendsTheCardHome) {
  for (const bool box : {false, true}) {
    MatchScreen& match = Begin({4, 5, 6});
    ctlCard& card = match.screen->hand().ctlYourDeck(1);
    const QPoint home = card.pos();
    Hand().Press(Hand().CentreOf(card) - QPoint(0, card.height() / 2 - 2));
    Hand().MoveTo({300, 200});
    EXPECT_NE(card.pos(), home);
    if (box) {  // a modal one blocks the window and swallows the release of the button
      QEvent blocked(QEvent::WindowBlocked);
      QCoreApplication::sendEvent(match.screen.get(), &blocked);
    } else {
      Hand().Key(Qt::Key_Space);
    }
    EXPECT_EQ(card.pos(), home);
    QMouseEvent hover(QEvent::MouseMove, QPointF(10, 10), QPointF(10, 10), Qt::NoButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(&card, &hover);
    EXPECT_EQ(card.pos(), home) << "the card does not stick to the pointer";
    Hand().Release({300, 200});
    EXPECT_EQ(match.engine().shown().Table(Seat::Player).size(), 1u);
    match.Settle();
    EXPECT_TRUE(card.isVisible() && card.Enabled());
  }
}

TEST_P(frmGameTest, FlipButtons) {
  MatchScreen& match = Begin({4}, {"ps3", "fp2", "s11", "s51"});
  frmGameHand& cards = match.screen->hand();
  EXPECT_FALSE(cards.imgFlip(1).isVisible());
  EXPECT_TRUE(cards.imgFlip(2).isVisible());
  EXPECT_FALSE(cards.imgFlip2(3).isVisible());
  EXPECT_TRUE(cards.imgFlip2(4).isVisible());
  EXPECT_TRUE(cards.imgFlipFooter().isVisible());

  Hand().MoveTo(Hand().CentreOf(cards.imgFlip(2)));
  EXPECT_TRUE(cards.imgFlip(2).hovered());
  // Without the rounded border, through which the panel shines.
  const auto shown = [](ctlFlip& flip) {
    return flip.grab(flip.rect().adjusted(3, 3, -3, -3)).toImage().convertToFormat(QImage::Format_RGB32);
  };
  const auto pictured = [](ctlFlip& flip, const Picture& picture) {
    return picture.image()->copy(flip.rect().adjusted(3, 3, -3, -3)).convertToFormat(QImage::Format_RGB32);
  };
  EXPECT_EQ(shown(cards.imgFlip(2)), pictured(cards.imgFlip(2), cards.imgFlip_On()));
  EXPECT_NE(shown(cards.imgFlip(3)), pictured(cards.imgFlip(3), cards.imgFlip_On())) << "a plain one";
  EXPECT_NE(shown(cards.imgFlip2(4)), pictured(cards.imgFlip2(4), cards.imgFlip2_On()));
  Hand().Click(cards.imgFlip(2));
  EXPECT_EQ(cards.ctlYourDeck(2).Card(), "fm2");
  Hand().Click(cards.imgFlip2(4));
  EXPECT_EQ(cards.ctlYourDeck(4).Card(), "s52");
  Hand().Key(Qt::Key_3, Qt::ShiftModifier);
  EXPECT_EQ(cards.ctlYourDeck(3).Card(), "s1-1");
  Hand().Key(Qt::Key_F);
  EXPECT_EQ(cards.ctlYourDeck(4).Card(), "s51");
  Hand().MoveTo({5, match.screen->height() / 2});
  EXPECT_FALSE(cards.imgFlip(2).hovered());

  Hand().Key(Qt::Key_4);
  EXPECT_FALSE(cards.imgFlip2Footer().isVisible()) << "no button of the row is left";
  EXPECT_FALSE(cards.imgFlip2(4).isVisible());
}

TEST_P(frmGameTest, KeysEndAndStandAndNothingElse) {
  MatchScreen& match = Begin({4, 5, 6});
  Hand().Key(Qt::Key_X);
  Hand().Key(Qt::Key_F5);
  EXPECT_TRUE(match.screen->cmdTurn().Enabled());
  Hand().Key(Qt::Key_Space);
  EXPECT_FALSE(match.screen->cmdTurn().Enabled());
  Hand().Key(Qt::Key_Space);  // not the player's turn
  Hand().Key(Qt::Key_1);
  EXPECT_EQ(match.engine().shown().Table(Seat::Player).size(), 1u);
  match.Settle();
  Hand().Key(Qt::Key_Tab);
  EXPECT_TRUE(match.engine().shown().Stood(Seat::Player));
}

TEST_P(frmGameTest, EverythingByFocusWhenTheGameKeysAreOff) {
  MatchScreen& match = BeginWith([](clsPlayer& player) { player.KeysEn = false; });
  std::vector<const QWidget*> reached;
  for (int i = 0; i < 14; ++i) {
    Hand().Key(Qt::Key_Tab);
    if (const QWidget* widget = QApplication::focusWidget()) reached.push_back(widget);
  }
  const auto has = [&](const QWidget& widget) {
    return std::find(reached.begin(), reached.end(), &widget) != reached.end();
  };
  EXPECT_TRUE(has(match.screen->cmdTurn()));
  EXPECT_TRUE(has(match.screen->cmdForfeit()));
  EXPECT_TRUE(has(match.screen->hand().ctlYourDeck(1)));
  EXPECT_TRUE(has(match.screen->hand().imgFlip(2)));
  match.screen->hand().ctlYourDeck(1).setFocus();
  Hand().Key(Qt::Key_Return);
  EXPECT_EQ(match.engine().shown().Total(Seat::Player), 7);
}

TEST_P(frmGameTest, NoKeyDoesAnythingInANetworkMatch) {
  MatchScreenSetup setup = Setup({4});
  setup.mode = std::string(kModeNetwork);
  MatchScreen match(setup);
  match.engine().peer().setPlayerStarts(true);
  match.ready = true;
  match.Begin();
  EXPECT_EQ(match.screen->lblWager().text(), "Wager: 10\nBonus: 1");
  EXPECT_EQ(match.screen->titlebar().Caption(), "Network Match");
  ScreenHand hand(*match.screen);
  // It is the player's turn: in any other match each of these would act.
  ASSERT_TRUE(match.engine().shown().controls.hand && match.engine().shown().controls.flips);
  hand.Key(Qt::Key_3, Qt::ShiftModifier);
  hand.Key(Qt::Key_E);
  EXPECT_EQ(match.screen->hand().ctlYourDeck(3).Card(), "s11");
  hand.Key(Qt::Key_1);
  hand.Key(Qt::Key_Space);
  hand.Key(Qt::Key_Tab);
  EXPECT_EQ(match.engine().shown().Total(Seat::Player), 4);
  EXPECT_TRUE(match.engine().shown().controls.endTurn);
  EXPECT_FALSE(match.engine().shown().Stood(Seat::Player));
}

TEST_P(frmGameTest, PortraitsAndLights) {
  MatchScreen& match = Begin({4});
  FadeTarget& yours = match.screen->side(Seat::Player).portrait();
  FadeTarget& theirs = match.screen->side(Seat::Opponent).portrait();
  Hand().Click(yours);
  EXPECT_TRUE(yours.isVisible());
  EXPECT_FALSE(match.screen->side(Seat::Player).shuttered());
  Hand().DoubleClick(yours);
  EXPECT_FALSE(yours.isVisible());
  EXPECT_TRUE(match.screen->side(Seat::Player).shuttered()) << "no lit frame stands empty";
  Hand().Click(theirs);
  EXPECT_FALSE(theirs.isVisible());
  EXPECT_TRUE(match.screen->side(Seat::Opponent).shuttered());

  EXPECT_TRUE(match.globals.effects.fading());
  Hand().Click(match.screen->cmdTurn());
  EXPECT_FALSE(match.globals.effects.fading()) << "both lights are off between the turns";
}

TEST_P(frmGameTest, CardsPulseInOneStyleOnly) {
  MatchScreen& match = Begin({4});
  const ctlCard& card = match.screen->hand().ctlYourDeck(1);
  Hand().MoveTo(Hand().CentreOf(card));
  EXPECT_EQ(match.globals.effects.pulsingCard() != nullptr, StyleIndex() == 1);
  Hand().MoveTo({5, match.screen->height() / 2});
  EXPECT_EQ(match.globals.effects.pulsingCard(), nullptr);
}

}  // namespace
}  // namespace kv::test
