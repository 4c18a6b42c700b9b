// A match on its way into the history: stored when it is booked, stored again when the booking is corrected,
// and stored as it is when its screen goes without one.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "history/HistoryFile.h"
#include "history/MatchRecorder.h"

namespace kv {

class KeptMatch final : public MatchObserver {
 public:
  /// `head` from RecordOf. `tell` hears what the person should know of the history, a sentence at a time.
  KeptMatch(std::shared_ptr<HistoryFile> history, MatchRecord head,
            std::function<void(const std::string& notice)> tell);

  void Happened(const MatchEvent& event) override { recorder_.Happened(event); }
  /// The screen is closed.
  void Leave();

 private:
  void Keep(const MatchRecord& record);

  std::shared_ptr<HistoryFile> history_;
  MatchRecorder recorder_;
  std::function<void(const std::string& notice)> tell_;
  std::optional<std::int64_t> ticket_;
};

}  // namespace kv
