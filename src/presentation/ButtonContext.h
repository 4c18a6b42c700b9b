// What all skinned controls of the program share: their sounds, the player's options, and which button is
// highlighted. One for the whole program.
#pragma once

#include <QPointer>
#include <QWidget>
#include <string_view>

#include "platform/Random.h"

namespace kv {

class clsPlayer;
class ctlButton;
class Sounds;

class ButtonContext {
 public:
  /// `sounds` must outlive it.
  explicit ButtonContext(Sounds& sounds) : sounds_(sounds) {}

  /// Whose options count; not owned, null before a player is loaded.
  void setPlayer(const clsPlayer* player) { player_ = player; }
  [[nodiscard]] const clsPlayer* player() const { return player_; }

  void PlayEffect(std::string_view name);
  /// Past buffers and mute options: the last sound before the program ends.
  void PlayEffectOnce(std::string_view name);
  /// "hover", unless the player has muted highlights.
  void PlayHover();

  /// The button that was highlighted last, null when there is none (any more).
  [[nodiscard]] ctlButton* RememberedButton() const;
  void Remember(ctlButton* button);
  /// The pointer moved over a background or a heading: takes the highlight from the remembered button.
  void unColor();

  /// A number that tells buttons apart. Cosmetic chance of its own: never the game's.
  [[nodiscard]] double NewButtonId() { return identities_.Rnd(); }

 private:
  Sounds& sounds_;
  const clsPlayer* player_ = nullptr;
  QPointer<QWidget> remembered_;
  SystemRandom identities_;
};

}  // namespace kv
