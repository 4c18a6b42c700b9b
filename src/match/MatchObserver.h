// Who is told what happens in a match. An observer only looks: it must not call the engine, which is in the
// middle of a rule.
#pragma once

#include <algorithm>
#include <vector>

#include "match/MatchEvent.h"

namespace kv {

class MatchObserver {
 public:
  virtual ~MatchObserver() = default;
  virtual void Happened(const MatchEvent& event) = 0;
};

/// Several observers of one match, told in the order in which they came. It owns none of them; each must be
/// removed before it goes. None may be added or removed while an event is told.
class MatchObservers final : public MatchObserver {
 public:
  void Add(MatchObserver& observer) { all_.push_back(&observer); }
  void Remove(MatchObserver& observer) { std::erase(all_, &observer); }
  void Happened(const MatchEvent& event) override {
    for (MatchObserver* each : all_) each->Happened(event);
  }

 private:
  std::vector<MatchObserver*> all_;
};

}  // namespace kv
