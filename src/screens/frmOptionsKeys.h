// The key frame of the options screen: one button for each key binding; a key that two of them have is
// marked. It holds the bindings until they are written somewhere; catching the pressed key is the screen's
// business.
#pragma once

#include <QWidget>
#include <array>
#include <cstdint>
#include <functional>

#include "cards/clsCardArray.h"
#include "presentation/ButtonContext.h"
#include "presentation/Layout.h"
#include "presentation/ctlButton.h"
#include "screens/frmOptionsFrame.h"

class QLabel;

namespace kv {

inline constexpr int kKeyButtons = 14;
inline constexpr std::int16_t kNoKey = -1;

class frmOptionsKeys final : public QWidget {
 public:
  /// All lies in the layout under the names of the key frame's controls. `layout` is used here only,
  /// `context` must outlive the frame.
  frmOptionsKeys(QWidget* parent, Layout& layout, ButtonContext& context);

  /// A key button was clicked, and has disabled itself; `index` is 0 to 13.
  std::function<void(int index)> KeyClick;
  std::function<void()> DoneClick;
  /// The keys of a new player are bound.
  std::function<void()> DefaultsClick;

  /// Shows the bindings of a key table, and stores those that are shown.
  void Read(const clsCardArray& keys);
  void Write(clsCardArray& keys) const;
  /// Binds a key (16-bit code; kNoKey for none) to a button. `index` out of 0 to 13 throws std::out_of_range.
  void Bind(int index, std::int16_t keyCode);
  /// Binds the keys of a new player.
  void BindDefaults();
  /// Whether the key of button `index` is also that of another one.
  [[nodiscard]] bool Shared(int index) const;
  [[nodiscard]] std::int16_t KeyOf(int index) const { return keys_.at(static_cast<std::size_t>(index)).tag; }
  [[nodiscard]] ctlButton& cmdKey(int index) const {
    return *keys_.at(static_cast<std::size_t>(index)).button;
  }
  [[nodiscard]] ctlButton& cmdKeysDefaults() const { return *cmdKeysDefaults_; }
  [[nodiscard]] ctlButton& cmdKeysDone() const { return *cmdKeysDone_; }

  /// What the frame asks for at this moment.
  [[nodiscard]] QString Title() const;
  /// From now on button `index` waits for its key: the title asks for it, and nothing can be used.
  void BeginWaiting(int index);
  /// The wait is over: title and buttons are back, and the button that waited has the focus.
  void EndWaiting();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  struct KeyButton {
    ctlButton* button = nullptr;  // child
    QString what;                 // what the key does, for screen readers
    std::int16_t tag = kNoKey;
  };

  ctlButton* NewButton(QStringView control, Layout& layout, ButtonContext& context);

  void ShowKeys();
  void ShowTitle(const QString& title);

  std::array<KeyButton, kKeyButtons> keys_;
  ctlButton* cmdKeysDone_ = nullptr;  // children
  ctlButton* cmdKeysDefaults_ = nullptr;
  QLabel* lblKeysShared_ = nullptr;
  QLabel* title_ = nullptr;
  QString ownTitle_;
  Panel panel_;
  QColor accent_;
  QColor shared_;
  ctlButton* waiting_ = nullptr;  // which of them waits
};

}  // namespace kv
