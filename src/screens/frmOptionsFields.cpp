#include "screens/frmOptionsFields.h"

#include <QApplication>
#include <QCheckBox>
#include <QListWidget>
#include <QMouseEvent>
#include <QRadioButton>
#include <limits>

#include "presentation/ChoiceList.h"
#include "presentation/WidgetSkin.h"
#include "screens/SkinnedBox.h"

namespace kv {
namespace {

struct CheckField {
  QStringView control;
  bool PlayerFields::*field;
};
constexpr std::array<CheckField, kOptionChecks> kChecks = {{
    {u"chkAutoTurn", &PlayerFields::AutoTurn_Opt},
    {u"chkAutoDialogs", &PlayerFields::AutoDialogs_Opt},
    {u"chkPulse", &PlayerFields::LightPulse_Opt},
    {u"chkShowPortrait", &PlayerFields::ShowPortrait_Opt},
    {u"chkShowMini", &PlayerFields::ShowMinimize_Opt},
    {u"chkMuteHighlight", &PlayerFields::Mute_Highlight_Opt},
    {u"chkMuteButtons", &PlayerFields::Mute_Buttons_Opt},
    {u"chkMuteCards", &PlayerFields::Mute_Cards_Opt},
    {u"chkMuteEvents", &PlayerFields::Mute_Events_Opt},
    {u"chkKeys", &PlayerFields::KeysEn},
}};
constexpr int kFirstMute = 5;
constexpr int kKeysCheck = 9;

/// A list edits either a number, its item's index, or the style, its item's text.
struct ListField {
  QStringView control;
  std::uint8_t PlayerFields::*index;
  std::array<QStringView, 3> items;  // unused places are empty
};
constexpr std::array<ListField, kOptionLists> kLists = {{
    {u"lstArcadeOpp", &PlayerFields::ArcadeOpp_Opt, {u"Orrin Vaal", u"H6-J8"}},
    {u"lstArcadeAI", &PlayerFields::ArcadeAI_Opt, {u"Kelm Vantri", u"Ember"}},
    {u"lstSpeed", &PlayerFields::GameSpeed_Opt, {u"Slow", u"Normal", u"Fast!"}},
    {u"lstInterface", nullptr, {u"Slate", u"Ember"}},
}};
enum { kArcadeOpp, kArcadeAI, kSpeed, kInterface };

constexpr QStringView kTurnSystemControls[kTurnSystems] = {u"optTurnSystem(0)", u"optTurnSystem(1)",
                                                           u"optTurnSystem(2)"};

/// A list that tells every click, also one that is dragged from row to row before the button is let go.
class OptionList final : public QListWidget {
 public:
  using QListWidget::QListWidget;
  std::function<void()> Click;

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override {
    QListWidget::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton) Click();
  }
};

}  // namespace

frmOptionsFields::frmOptionsFields(QWidget& frame, Layout& layout, std::function<void()> clicked)
    : clicked_(std::move(clicked)) {
  // Column by column, which is the order of Tab.
  AddList(kArcadeOpp, frame, layout);
  AddList(kArcadeAI, frame, layout);
  AddChecks(0, kFirstMute, frame, layout);
  AddList(kSpeed, frame, layout);
  AddList(kInterface, frame, layout);
  AddChecks(kFirstMute, kKeysCheck, frame, layout);
  AddTurnSystems(frame, layout);
  AddChecks(kKeysCheck, kOptionChecks, frame, layout);
}

void frmOptionsFields::AddChecks(int first, int last, QWidget& frame, Layout& layout) {
  for (auto i = static_cast<std::size_t>(first); i < static_cast<std::size_t>(last); ++i) {
    checks_[i] = NewBox<QCheckBox>(kChecks[i].control, frame, layout);
    QObject::connect(checks_[i], &QCheckBox::clicked, &frame, [this] { clicked_(); });
  }
}

void frmOptionsFields::AddTurnSystems(QWidget& frame, Layout& layout) {
  for (int i = 0; i < kTurnSystems; ++i) {
    auto* button = NewBox<QRadioButton>(kTurnSystemControls[i], frame, layout);
    optTurnSystem_.at(static_cast<std::size_t>(i)) = button;
    QObject::connect(button, &QRadioButton::clicked, &frame, [this, i] {
      turnSystem_ = i;
      clicked_();
    });
  }
}

void frmOptionsFields::AddList(int index, QWidget& frame, Layout& layout) {
  const ListField& field = kLists.at(static_cast<std::size_t>(index));
  auto* list = new OptionList(&frame);
  list->Click = clicked_;
  lists_.at(static_cast<std::size_t>(index)) = list;
  for (const QStringView item : field.items) {
    if (!item.isEmpty()) list->addItem(item.toString());
  }
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  SkinWidget(*list, layout.bag(field.control));
  layout.Place(field.control, *list);
  LetCurrentFollowSelection(*list);
  const int rowHeight = (list->height() - 2 * list->frameWidth()) / list->count();
  for (int row = 0; row < list->count(); ++row) list->item(row)->setSizeHint(QSize(0, rowHeight));
  QObject::connect(list, &QListWidget::currentRowChanged, &frame, [this, list] {
    // The pointer's changes are told by the click.
    if (list->hasFocus() && QApplication::mouseButtons() == Qt::NoButton) clicked_();
  });
}

void frmOptionsFields::Read(const PlayerFields& fields) {
  for (std::size_t i = 0; i < kChecks.size(); ++i) checks_[i]->setChecked(fields.*kChecks[i].field);
  turnSystem_ = fields.TurnMode_Opt;
  if (turnSystem_ < kTurnSystems) optTurnSystem_.at(static_cast<std::size_t>(turnSystem_))->setChecked(true);
  for (std::size_t i = 0; i < kLists.size(); ++i) {
    if (kLists[i].index != nullptr) {
      lists_[i]->setCurrentRow(fields.*kLists[i].index);
    } else {
      const QList<QListWidgetItem*> found =
          lists_[i]->findItems(QString::fromStdString(fields.Interface_Opt), Qt::MatchExactly);
      if (!found.isEmpty()) lists_[i]->setCurrentItem(found.front());
    }
  }
}

void frmOptionsFields::Write(PlayerFields& fields) const {
  for (std::size_t i = 0; i < kChecks.size(); ++i) fields.*kChecks[i].field = checks_[i]->isChecked();
  fields.TurnMode_Opt = static_cast<std::uint8_t>(turnSystem_);
  for (std::size_t i = 0; i < kLists.size(); ++i) {
    if (lists_[i]->currentRow() < 0) continue;
    if (kLists[i].index != nullptr) {
      fields.*kLists[i].index = static_cast<std::uint8_t>(lists_[i]->currentRow());
    } else {
      fields.Interface_Opt = lists_[i]->currentItem()->text().toStdString();
    }
  }
}

}  // namespace kv
