#include "match/frmGameStrip.h"

#include "platform/QtText.h"

namespace kv {
namespace {

constexpr std::size_t kMostSentences = 6;

}  // namespace

frmGameStrip::frmGameStrip(QLabel& label) : label_(label) {
  label_.setWordWrap(true);
}

void frmGameStrip::Tell(const std::string& sentence) {
  last_.push_back(ToQString(sentence));
  if (last_.size() > kMostSentences) last_.pop_front();
  QString shown = last_.back();
  for (auto older = std::next(last_.rbegin()); older != last_.rend(); ++older) {
    const QString longer = *older + QStringLiteral("  ") + shown;
    if (!Fits(longer)) break;
    shown = longer;
  }
  label_.setText(shown);
  label_.setAccessibleName(QStringLiteral("Last moves: ") + shown);
}

bool frmGameStrip::Fits(const QString& text) const {
  const QRect room = label_.contentsRect();
  const QFontMetrics metrics(label_.font());
  return metrics.boundingRect(room, Qt::TextWordWrap, text).height() <= room.height();
}

}  // namespace kv
