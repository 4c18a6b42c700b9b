#include "history/RecordPack.h"

#include <algorithm>
#include <utility>

#include "history/RecordWords.h"

namespace kv {
namespace {

// A move is one byte: its kind in the upper three bits, the seat, and a value or slot in the lower four. Flip
// and Play are followed by a code.
constexpr unsigned kKindShift = 5;
constexpr unsigned kSeatBit = 0x10;
constexpr unsigned kLowBits = 0x0F;
constexpr unsigned kEndOfMoves = 0xFF;
constexpr unsigned kNoResult = 0xFE;
constexpr int kTotalOffset = 0x4000;  // totals lie between its negative and it

class Writer {
 public:
  void Byte(unsigned value) { bytes += static_cast<char>(static_cast<unsigned char>(value)); }
  void Code(const CardCode& code) {
    const std::string text = code.text().substr(0, kMostRecordedCode);
    Byte(static_cast<unsigned>(text.size()));
    bytes += text;
  }
  void Total(int total) {
    const auto value = static_cast<unsigned>(std::clamp(total, -kTotalOffset, kTotalOffset) + kTotalOffset);
    Byte(value >> 8U);
    Byte(value & 0xFFU);
  }
  void Set(const RecordedSet& set) {
    Byte(static_cast<unsigned>(set.starts));
    for (const RecordedMove& move : set.moves) Move(move);
    Byte(kEndOfMoves);
    if (!set.result) {
      Byte(kNoResult);
      return;
    }
    Byte(static_cast<unsigned>(set.result->rule) | (set.result->closing == Seat::Opponent ? kSeatBit : 0U));
    for (const int total : set.result->totals) Total(total);
  }

  std::string bytes;

 private:
  void Move(const RecordedMove& move) {
    const int low = move.kind == MoveKind::Draw ? move.card.number() : move.slot;
    Byte(static_cast<unsigned>(move.kind) << kKindShift | (move.seat == Seat::Opponent ? kSeatBit : 0U) |
         (static_cast<unsigned>(low) & kLowBits));
    if (move.kind == MoveKind::Flip || move.kind == MoveKind::Play) Code(move.card);
  }
};

class Reader {
 public:
  explicit Reader(std::string_view bytes) : bytes_(bytes) {}

  [[nodiscard]] bool failed() const { return failed_; }
  [[nodiscard]] bool done() const { return failed_ || bytes_.empty(); }

  unsigned Byte() {
    if (bytes_.empty()) {
      failed_ = true;
      return 0;
    }
    const auto value = static_cast<unsigned char>(bytes_.front());
    bytes_.remove_prefix(1);
    return value;
  }
  CardCode Code() {
    const std::size_t size = Byte();
    failed_ = failed_ || size > kMostRecordedCode || size > bytes_.size();
    if (failed_) return {};
    const std::string_view text = bytes_.substr(0, size);
    bytes_.remove_prefix(size);
    const auto code = words::CodeIn(text);
    failed_ = !text.empty() && !code;
    return code.value_or(CardCode());
  }
  RecordedSet Set() {
    RecordedSet set;
    const unsigned starts = Byte();
    failed_ = failed_ || starts > 1;
    set.starts = starts == 1 ? Seat::Opponent : Seat::Player;
    for (unsigned byte = Byte(); !failed_ && byte != kEndOfMoves; byte = Byte()) {
      failed_ = set.moves.size() == kMostRecordedMoves;
      if (!failed_) set.moves.push_back(Move(byte));
    }
    const unsigned result = Byte();
    if (!failed_ && result != kNoResult) set.result = Result(result);
    return set;
  }

 private:
  static Seat SeatIn(unsigned byte) { return (byte & kSeatBit) != 0 ? Seat::Opponent : Seat::Player; }

  RecordedMove Move(unsigned byte) {
    RecordedMove move{MoveKind::End, SeatIn(byte), 0, {}};
    const unsigned kind = byte >> kKindShift;
    const int low = static_cast<int>(byte & kLowBits);
    failed_ = failed_ || kind > static_cast<unsigned>(MoveKind::Stand);
    if (failed_) return move;
    move.kind = static_cast<MoveKind>(kind);
    if (move.kind == MoveKind::Draw) {
      move.card = CardCode(CardType::MainDeck, low);
    } else {
      move.slot = low;
    }
    if (move.kind == MoveKind::Flip || move.kind == MoveKind::Play) move.card = Code();
    return move;
  }
  RecordedResult Result(unsigned byte) {
    const unsigned rule = byte & kLowBits;
    failed_ =
        failed_ || rule > static_cast<unsigned>(SetRule::HigherTotal) || (byte & ~(kSeatBit | kLowBits)) != 0;
    RecordedResult result{failed_ ? SetRule::Equal : static_cast<SetRule>(rule), SeatIn(byte), {}};
    for (int& total : result.totals) {
      const unsigned high = Byte();
      total = static_cast<int>(high << 8U | Byte()) - kTotalOffset;
      failed_ = failed_ || total > kTotalOffset;
    }
    return result;
  }

  std::string_view bytes_;
  bool failed_ = false;
};

}  // namespace

std::string PackCourse(const MatchRecord& record) {
  Writer writer;
  for (const RecordedHand& hand : record.hands) {
    for (const CardCode& code : hand) writer.Code(code);
  }
  for (const RecordedSet& set : record.sets) writer.Set(set);
  return std::move(writer.bytes);
}

bool UnpackCourse(std::string_view bytes, MatchRecord& record) {
  Reader reader(bytes);
  std::array<RecordedHand, 2> hands;
  std::vector<RecordedSet> sets;
  for (RecordedHand& hand : hands) {
    for (CardCode& code : hand) code = reader.Code();
  }
  while (!reader.done() && sets.size() < kMostRecordedSets) sets.push_back(reader.Set());
  if (reader.failed() || !reader.done()) return false;
  record.hands = hands;
  record.sets = std::move(sets);
  return true;
}

}  // namespace kv
