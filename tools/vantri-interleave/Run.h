// One run of the explorer: two programs meet, their persons do what can be done, and everything is checked at
// every step; at the end both go home, and must arrive.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "vantri-interleave/Actions.h"

namespace kv::interleave {

enum class Fault : std::uint8_t {
  None,
  Stuck,      // at the end the two did not come back to the lobby, or were not told why
  TwoTurns,   // both had the turn for too long
  NoTurn,     // nobody had it for too long
  Books,      // the two sides booked what does not fit
  Credits,    // a record holds what its bookings do not explain
  Complaint,  // a message of an honest peer was not understood
  Exception,
};
inline constexpr int kFaults = static_cast<int>(Fault::Exception) + 1;
[[nodiscard]] const char* Name(Fault fault);

struct Plan {
  std::uint64_t seed = 1;
  int actions = 200;
  int mostDelay = -1;                           // milliseconds in either direction; -1: by the seed
  const std::vector<Action>* script = nullptr;  // instead of chance
  bool trace = false;  // writes down all that is sent and arrives, on standard output
};

struct Report {
  Fault fault = Fault::None;
  std::string words;            // what was seen, for a person
  std::vector<Action> actions;  // what was done
  int mostDelay = 0;
  int matches = 0;             // stakes settled on both sides
  std::int64_t simulated = 0;  // milliseconds
};

/// Equal plans give equal reports.
[[nodiscard]] Report Explore(const Plan& plan);
/// The shortest list of actions found that still shows the same fault.
[[nodiscard]] Report Shrink(const Plan& plan, const Report& found);
/// The report as it is printed: fault, words, and a script that can be read again.
[[nodiscard]] std::string Text(const Report& report);

}  // namespace kv::interleave
