#include "history/RecordText.h"

#include "history/RecordWords.h"

namespace kv {
namespace {

using namespace words;

std::string Line(std::string_view key, std::string_view value) {
  return std::string(key) + ": " + std::string(value) + "\n";
}

std::string Pair(const event::Both& both) {
  return std::to_string(both[0]) + ":" + std::to_string(both[1]);
}

std::string MoveText(const RecordedMove& move) {
  switch (move.kind) {
    case MoveKind::Draw:
      return "draws " + std::to_string(move.card.number());
    case MoveKind::Flip:
      return "flips " + std::to_string(move.slot) + " to " + move.card.text();
    case MoveKind::Play:
      return "plays " + std::to_string(move.slot) + " " + move.card.text();
    case MoveKind::End:
      return "ends";
    case MoveKind::Stand:
      break;
  }
  return "stands";
}

std::string SetText(const RecordedSet& set, std::size_t number) {
  std::string text =
      "\n" + Line("set " + std::to_string(number), std::string(WordOf(kSeats, set.starts)) + " starts");
  const RecordedMove* before = nullptr;
  for (const RecordedMove& move : set.moves) {
    const bool goesOn = before != nullptr && before->seat == move.seat && before->kind != MoveKind::End &&
                        before->kind != MoveKind::Stand;
    if (goesOn) {
      text += ", ";
    } else {
      text += std::string(before == nullptr ? "" : "\n") + std::string(WordOf(kSeats, move.seat)) + ": ";
    }
    text += MoveText(move);
    before = &move;
  }
  if (before != nullptr) text += '\n';
  if (const auto& result = set.result) {
    text += Line("result", Pair(result->totals) + ", " + std::string(WordOf(kRules, result->rule)) +
                               ", closed by " + std::string(WordOf(kSeats, result->closing)));
  }
  return text;
}

std::string EndText(const MatchRecord& record) {
  std::string end;
  switch (record.ending) {
    case MatchEnding::ThreeSets:
      end = "three sets";
      break;
    case MatchEnding::GivenUp:
      end = std::string(WordOf(kSeats, record.givenUpBy)) + " gave up";
      break;
    case MatchEnding::PeerGone:
      end = "peer gone";
      break;
    case MatchEnding::Left:
      end = "left";
      break;
  }
  if (record.winner)
    end += ", " + std::string(WordOf(kSeats, *record.winner)) + " won " + Pair(record.setWins);
  return Line("end", end);
}

}  // namespace

std::string FormatRecord(const MatchRecord& record) {
  std::string text = std::string(kFirstLine) + "\n";
  text += Line("time", TimeText(record.time));
  text += Line("version", LineOf(record.version));
  text += Line("mode", LineOf(record.mode));
  text += Line("opponent", LineOf(record.opponent));
  text += Line("strategy", LineOf(record.strategy));
  text += Line("stake", std::to_string(record.stake));
  text += Line("deck", CodesText(record.deck.data(), record.deck.size()));
  text += Line("hand", CodesText(record.hands[0].data(), kHandSize));
  text += Line("opponent's hand", CodesText(record.hands[1].data(), kHandSize));
  for (std::size_t i = 0; i < record.sets.size(); ++i) text += SetText(record.sets[i], i + 1);
  text += "\n" + EndText(record);
  if (const auto& booking = record.booking) {
    text += Line("credits", std::to_string(booking->before) + " to " + std::to_string(booking->after) + ", " +
                                std::string(WordOf(kResults, booking->result)));
  }
  return text;
}

}  // namespace kv
