// Reading a record's text. Each line is taken apart by itself and refused as a whole.
#include <limits>

#include "history/RecordText.h"
#include "history/RecordWords.h"

namespace kv {
namespace {

using namespace words;

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr int kMostTotal = 999;  // either sign
constexpr std::size_t kLongestLine = 20000;

std::optional<event::Both> PairIn(std::string_view text, int least, int most) {
  const auto first = NumberIn<int>(Cut(text, ":"), least, most);
  const auto second = NumberIn<int>(text, least, most);
  return first && second ? std::optional(event::Both{*first, *second}) : std::nullopt;
}

std::optional<RecordedMove> MoveIn(Seat seat, std::string_view text) {
  RecordedMove move{MoveKind::End, seat, 0, {}};
  if (text == "ends") return move;
  move.kind = MoveKind::Stand;
  if (text == "stands") return move;
  const std::string_view verb = Cut(text, " ");
  if (verb == "draws") {
    const auto value = NumberIn<int>(text, 1, 10);
    return value ? std::optional(RecordedMove{MoveKind::Draw, seat, 0, CardCode(CardType::MainDeck, *value)})
                 : std::nullopt;
  }
  const auto slot = NumberIn<int>(Cut(text, verb == "flips" ? " to " : " "), 1, kHandSize);
  const auto code = CodeIn(text);
  if (!slot || !code || (verb != "flips" && verb != "plays")) return {};
  if (verb == "flips" && seat == Seat::Opponent) return {};
  return RecordedMove{verb == "flips" ? MoveKind::Flip : MoveKind::Play, seat, *slot, *code};
}

class Parser {
 public:
  ParsedRecord Parse(std::string_view text) {
    if (text.size() > kMostRecordText) return {{}, 0, "the text is too long"};
    if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
    while (!text.empty()) {
      std::string_view line = Cut(text, "\n");
      if (line.ends_with('\r')) line.remove_suffix(1);
      ++line_;
      if (line.size() > kLongestLine) return Fault("the line is too long");
      if (!line.empty() && !Take(line)) return Fault("the line is not understood");
    }
    ++line_;
    if (!begun_) return Fault("the text is empty");
    if (!ended_) return Fault("the line \"end: …\" is missing");
    return {std::move(record_), 0, {}};
  }

 private:
  [[nodiscard]] ParsedRecord Fault(const char* what) const { return {{}, line_, what}; }

  bool Take(std::string_view line) {
    if (!begun_) {
      begun_ = line == kFirstLine;
      return begun_;
    }
    std::string_view key = Cut(line, ": ");
    if (line.empty() && key.ends_with(':')) key.remove_suffix(1);
    if (ended_) return key == "credits" && !record_.booking && Credits(line);
    if (key.starts_with("set ")) return Set(key.substr(4), line);
    if (key == "end") return End(line);
    return record_.sets.empty() ? Head(key, line) : Turn(key, line);
  }

  bool Text(std::string& into, std::string_view value) {
    into = value;
    return IsLine(value);
  }

  bool Head(std::string_view key, std::string_view value) {
    if (key == "version") return Text(record_.version, value);
    if (key == "mode") return Text(record_.mode, value);
    if (key == "opponent") return Text(record_.opponent, value);
    if (key == "strategy") return Text(record_.strategy, value);
    if (key == "deck") return CodesIn(value, record_.deck.data(), record_.deck.size());
    if (key == "hand") return CodesIn(value, record_.hands[0].data(), kHandSize);
    if (key == "opponent's hand") return CodesIn(value, record_.hands[1].data(), kHandSize);
    if (key == "time") {
      const auto time = TimeIn(value);
      record_.time = time.value_or(0);
      return time.has_value();
    }
    const auto stake = NumberIn<std::int32_t>(value, -1, kMost);
    record_.stake = stake.value_or(0);
    return key == "stake" && stake;
  }

  bool Set(std::string_view number, std::string_view value) {
    const std::size_t next = record_.sets.size() + 1;
    const auto starts = ValueOf(kSeats, Cut(value, " "));
    if (next > kMostRecordedSets || number != std::to_string(next) || !starts || value != "starts")
      return false;
    record_.sets.push_back({*starts, {}, {}});
    return true;
  }

  bool Turn(std::string_view key, std::string_view value) {
    RecordedSet& set = record_.sets.back();
    if (key == "result") return !set.result && Result(set, value);
    const auto seat = ValueOf(kSeats, key);
    if (!seat) return false;
    while (!value.empty()) {
      auto move = MoveIn(*seat, Cut(value, ", "));
      if (!move || set.moves.size() == kMostRecordedMoves) return false;
      set.moves.push_back(std::move(*move));
    }
    return true;
  }

  static bool Result(RecordedSet& set, std::string_view value) {
    const auto totals = PairIn(Cut(value, ", "), -kMostTotal, kMostTotal);
    const auto rule = ValueOf(kRules, Cut(value, ", closed by "));
    const auto closing = ValueOf(kSeats, value);
    if (!totals || !rule || !closing) return false;
    set.result = {*rule, *closing, *totals};
    return true;
  }

  bool End(std::string_view value) {
    ended_ = true;
    const std::string_view how = Cut(value, ", ");
    if (how == "three sets") record_.ending = MatchEnding::ThreeSets;
    if (how == "peer gone") record_.ending = MatchEnding::PeerGone;
    if (how.ends_with(" gave up")) {
      const auto seat = ValueOf(kSeats, how.substr(0, how.size() - std::string_view(" gave up").size()));
      if (!seat) return false;
      record_.ending = MatchEnding::GivenUp;
      record_.givenUpBy = *seat;
    }
    if (record_.ending == MatchEnding::Left && how != "left") return false;
    if (value.empty()) return true;
    record_.winner = ValueOf(kSeats, Cut(value, " won "));
    const auto wins = PairIn(value, 0, kSetsToWin);
    record_.setWins = wins.value_or(event::Both{});
    return record_.winner && wins;
  }

  bool Credits(std::string_view value) {
    const auto before = NumberIn<std::int32_t>(Cut(value, " to "), -kMost, kMost);
    const auto after = NumberIn<std::int32_t>(Cut(value, ", "), -kMost, kMost);
    const auto result = ValueOf(kResults, value);
    if (!before || !after || !result) return false;
    record_.booking = {*result, *before, *after};
    return true;
  }

  MatchRecord record_;
  int line_ = 0;
  bool begun_ = false;
  bool ended_ = false;
};

}  // namespace

ParsedRecord ParseRecord(std::string_view text) {
  return Parser().Parse(text);
}

}  // namespace kv
