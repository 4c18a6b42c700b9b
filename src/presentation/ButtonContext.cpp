#include "presentation/ButtonContext.h"

#include "presentation/Sounds.h"
#include "presentation/ctlButton.h"
#include "profile/clsPlayer.h"

namespace kv {

void ButtonContext::PlayEffect(std::string_view name) {
  sounds_.PlayEffect(name);
}

void ButtonContext::PlayEffectOnce(std::string_view name) {
  sounds_.PlayEffectOnce(name);
}

void ButtonContext::PlayHover() {
  if (player_ == nullptr || !player_->Mute_Highlight_Opt) PlayEffect("hover");
}

ctlButton* ButtonContext::RememberedButton() const {
  return static_cast<ctlButton*>(remembered_.data());  // only Remember sets it
}

void ButtonContext::Remember(ctlButton* button) {
  remembered_ = button;
}

void ButtonContext::unColor() {
  if (remembered_) RememberedButton()->unColor();
}

}  // namespace kv
