// A match record from outside, as text or packed: whatever is read is within its limits, survives being
// written again, and can be played without end or fault.
#include <cstdint>
#include <cstdlib>

#include "history/MatchReplay.h"
#include "history/RecordPack.h"
#include "history/RecordText.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

void CheckLimits(const kv::MatchRecord& record) {
  Require(record.sets.size() <= kv::kMostRecordedSets);
  for (const kv::RecordedSet& set : record.sets) {
    Require(set.moves.size() <= kv::kMostRecordedMoves);
    for (const kv::RecordedMove& move : set.moves) Require(move.card.text().size() <= kv::kMostRecordedCode);
  }
  static_cast<void>(kv::PlayAgain(record));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  if (const auto parsed = kv::ParseRecord(bytes); parsed.record) {
    CheckLimits(*parsed.record);
    const std::string text = kv::FormatRecord(*parsed.record);
    if (text.size() <= kv::kMostRecordText) Require(kv::ParseRecord(text).record == parsed.record);
  }
  kv::MatchRecord unpacked;
  if (kv::UnpackCourse(bytes, unpacked)) {
    CheckLimits(unpacked);
    kv::MatchRecord again;
    Require(kv::UnpackCourse(kv::PackCourse(unpacked), again) && again == unpacked);
  }
  return 0;
}
