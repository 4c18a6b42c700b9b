#include "history/KeptMatch.h"

#include <utility>

namespace kv {

KeptMatch::KeptMatch(std::shared_ptr<HistoryFile> history, MatchRecord head,
                     std::function<void(const std::string& notice)> tell)
    : history_(std::move(history)),
      recorder_(std::move(head), [this](const MatchRecord& record) { Keep(record); }),
      tell_(std::move(tell)) {}

void KeptMatch::Leave() {
  if (recorder_.unbooked() && !ticket_) Keep(recorder_.record());
}

void KeptMatch::Keep(const MatchRecord& record) {
  if (ticket_) {
    history_->Replace(*ticket_, record);
  } else {
    ticket_ = history_->Store(record);
  }
  const std::string notice = history_->TakeNotice();
  if (tell_ && !notice.empty()) tell_(notice);
}

}  // namespace kv
