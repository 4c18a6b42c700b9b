#include "screens/modShowPIN.h"

#include <QPointer>
#include <algorithm>

#include "screens/PinBox.h"

namespace kv {
namespace {

constexpr int kRevealTime = 1000;  // milliseconds

}  // namespace

bool PINIsDigits(std::string_view text) {
  return !text.empty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

bool PINIsValid(std::string_view text) {
  return text.empty() || PINIsDigits(text);
}

void RevealPIN(PinBox& box, Scheduler& scheduler, const Lifetime& owner) {
  if (box.text().isEmpty() || box.revealed()) return;
  const QPointer<PinBox> kept = &box;
  box.setRevealed(true);
  if (scheduler.Pause(kRevealTime, owner) && kept) kept->setRevealed(false);
}

}  // namespace kv
