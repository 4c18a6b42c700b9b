#include "screens/frmSplashCreation.h"

#include <QLabel>
#include <QLineEdit>

#include "presentation/SpokenValue.h"
#include "screens/NameValidator.h"
#include "screens/PinBox.h"
#include "screens/PlayerFiles.h"
#include "screens/TextBoxes.h"
#include "screens/TextLink.h"
#include "screens/modShowPIN.h"

namespace kv {
namespace {

constexpr int kNameLength = 20;   // characters of a player name and of a file name
constexpr int kMostRefused = 10;  // letters that are named: one line

QString MaxLengthLine(const QLineEdit& box) {
  if (box.text().size() < box.maxLength()) return {};
  return QStringLiteral("- max length reached (%1)\n").arg(box.maxLength());
}

}  // namespace

frmSplashCreation::frmSplashCreation(QWidget& screen, Layout& layout, const Services& services)
    : screen_(screen), layout_(layout), services_(services) {
  lblHeader_ = layout_.NewLabel(u"lblHeader", &screen_);
  BuildName();
  BuildFile();
  cmdBack_ = NewButton(u"cmdBack", [this] { Back(); });
  lblCreateInfo_ = layout_.NewLabel(u"lblCreateInfo", &screen_);
  lblCreateInfo_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  Show(Step::None);
}

ctlButton* frmSplashCreation::NewButton(QStringView control, std::function<void()> click) {
  auto* button = new ctlButton(&screen_, services_.buttons);
  button->ReadProperties(layout_.bag(control));
  layout_.Place(control, *button);
  button->Click = std::move(click);
  return button;
}

void frmSplashCreation::BuildName() {
  txtPlayer_ = new QLineEdit(&screen_);
  txtPlayer_->setMaxLength(kNameLength);
  auto* validator = new NameValidator(txtPlayer_);
  validator->Refused = [this](const QString& letters) { NoteRefused(letters); };
  txtPlayer_->setValidator(validator);
  PlaceBox(layout_, u"txtPlayer", *txtPlayer_);
  QObject::connect(txtPlayer_, &QLineEdit::textChanged, &context_, [this] { CheckPlayerName(); });
  cmdNewName_ = NewButton(u"cmdNewName", [this] { NewName(); });
}

void frmSplashCreation::BuildFile() {
  txtName_ = new QLineEdit(&screen_);
  txtName_->setMaxLength(kNameLength);
  PlaceBox(layout_, u"txtName", *txtName_);
  QObject::connect(txtName_, &QLineEdit::textChanged, &context_, [this] { CheckFileName(); });
  QObject::connect(txtName_, &QLineEdit::editingFinished, &context_, [this] { TrimFileName(); });
  lblNewPIN_ = layout_.NewLabel(u"lblNewPIN", &screen_);
  txtNewPIN_ = new PinBox(&screen_);
  PlaceBox(layout_, u"txtNewPIN", *txtNewPIN_);
  auto* reveal = new TextLink(&screen_, layout_.bag(u"lblPINReveal"));
  layout_.Place(u"lblPINReveal", *reveal);
  QObject::connect(reveal, &QAbstractButton::clicked, &context_,
                   [this] { RevealPIN(*txtNewPIN_, services_.scheduler, services_.lifetime); });
  lblPINReveal_ = reveal;
  cmdNewFile_ = NewButton(u"cmdNewFile", [this] { NewFile(); });
}

void frmSplashCreation::Show(Step step) {
  step_ = step;
  screen_.setFocus();  // what has it may be hidden now: it must not wander through the link on its way
  for (QWidget* part : std::initializer_list<QWidget*>{lblHeader_, lblCreateInfo_, cmdBack_}) {
    part->setVisible(step != Step::None);
  }
  for (QWidget* part : std::initializer_list<QWidget*>{txtPlayer_, cmdNewName_}) {
    part->setVisible(step == Step::PlayerName);
  }
  for (QWidget* part :
       std::initializer_list<QWidget*>{txtName_, lblNewPIN_, txtNewPIN_, lblPINReveal_, cmdNewFile_}) {
    part->setVisible(step == Step::FileName);
  }
  cmdBack_->setEnabled(true);
}

ctlButton* frmSplashCreation::StepButton() const {
  if (step_ == Step::None) return nullptr;
  return step_ == Step::PlayerName ? cmdNewName_ : cmdNewFile_;
}

void frmSplashCreation::Begin() {
  refused_.clear();
  ShowPlayerName();
}

void frmSplashCreation::Back() {
  if (step_ == Step::FileName) {
    txtNewPIN_->setRevealed(false);
    ShowPlayerName();
    return;
  }
  End();
  GivenUp();
}

void frmSplashCreation::Next() {
  const ctlButton* button = StepButton();
  if (button == nullptr || !button->Enabled()) return;
  if (step_ == Step::PlayerName) {
    NewName();
  } else {
    NewFile();
  }
}

// --- The player's name -----------------------------------------------------------------------------------

void frmSplashCreation::ShowPlayerName() {
  lblHeader_->setText(QStringLiteral("Enter a player name:"));
  Show(Step::PlayerName);
  CheckPlayerName();
  txtPlayer_->setFocus();
}

// Comes in the middle of the box's change, which is undone afterwards: its text says nothing now.
void frmSplashCreation::NoteRefused(const QString& letters) {
  for (const char32_t code : letters.toUcs4()) {
    const QString letter = QString::fromUcs4(&code, 1);
    if (!refused_.contains(letter) && refused_.size() < kMostRefused) refused_ += letter;
  }
  if (step_ == Step::PlayerName) ShowNameInfo();
}

void frmSplashCreation::CheckPlayerName() {
  if (RemoveLeadingBlanks(*txtPlayer_)) return;  // the change has been looked at already
  cmdNewName_->setEnabled(!txtPlayer_->text().isEmpty());
  maxLength_ = MaxLengthLine(*txtPlayer_);
  ShowNameInfo();
  StepChanged();
}

void frmSplashCreation::ShowNameInfo() {
  // The line stays while the name is typed on: whoever looks at the keys sees it when they look up.
  const QString refused =
      refused_.isEmpty() ? QString() : QStringLiteral("- cannot be stored: %1\n").arg(refused_);
  ShowInfo(refused + maxLength_);
}

void frmSplashCreation::ShowInfo(const QString& info) {
  if (info != lblCreateInfo_->text()) services_.announcer.Announce(info.toStdString(), Urgency::Assertive);
  ShowValue(*lblCreateInfo_, u"Notes", info, info.isEmpty() ? QStringLiteral("none") : info.trimmed());
}

// --- The file's name and PIN -----------------------------------------------------------------------------

void frmSplashCreation::NewName() {
  const QString name = Trimmed(*txtPlayer_);
  refused_.clear();
  txtPlayer_->setText(name);
  lblHeader_->setText(QStringLiteral("Enter a filename for your player:"));
  Show(Step::FileName);
  txtName_->setText(name.toLower());
  CheckFileName();
  txtName_->setFocus();
  txtName_->deselect();
  txtName_->end(false);
}

void frmSplashCreation::CheckFileName() {
  if (RemoveLeadingBlanks(*txtName_)) return;  // the change has been looked at already
  // Blanks at the end are on their way to a further word, and go when the name is used.
  const std::string name = Trimmed(*txtName_).toStdString();
  const bool valid = IsValidFileName(name);
  const bool exists = valid && !name.empty() && PlayerExists(services_.splash.workingFolder, name);
  cmdNewFile_->setEnabled(valid && !name.empty() && !exists);
  QString info;
  if (exists) info += QStringLiteral("- file of already exists\n");
  if (!valid) info += QStringLiteral("- invalid char: \\  /  :  *  ?  \"  <  >  |\n");
  ShowInfo(info + MaxLengthLine(*txtName_));
  StepChanged();
}

void frmSplashCreation::TrimFileName() {
  if (const QString name = Trimmed(*txtName_); name != txtName_->text()) txtName_->setText(name);
}

void frmSplashCreation::NewFile() {
  TrimFileName();
  screen_.setFocus();  // else it would wander to the link
  for (ctlButton* button : {cmdNewFile_, cmdBack_}) button->setEnabled(false);  // while a box is open
  StepChanged();
  const std::string name = txtName_->text().toStdString();
  std::unique_ptr<clsPlayer> player = services_.splash.newPlayer();
  player->Name = txtPlayer_->text().toStdString();
  player->PIN = txtNewPIN_->PIN();
  const PlayerCreation created = CreatePlayerFile(*player, services_.splash.workingFolder, name);
  if (services_.lifetime.closing()) return;
  if (created == PlayerCreation::Exists) {  // it has appeared since the name was looked at
    cmdBack_->setEnabled(true);
    CheckFileName();
    txtName_->setFocus();
    return;
  }
  const std::string pin = player->PIN;
  End();
  Done(name, pin);
}

void frmSplashCreation::End() {
  Show(Step::None);
  for (QLineEdit* box : {txtPlayer_, txtName_, static_cast<QLineEdit*>(txtNewPIN_)}) box->clear();
  txtNewPIN_->setRevealed(false);
}

}  // namespace kv
