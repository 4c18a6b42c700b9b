#include "profile/FileEntries.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <memory>
#include <utility>
#include <variant>

#include "platform/Text.h"

namespace kv {
namespace {

using Deck = const std::shared_ptr<clsDeckArray> PlayerFields::*;
using Table = const std::shared_ptr<clsCardArray> PlayerFields::*;
using Field = std::variant<std::string PlayerFields::*, bool PlayerFields::*, std::uint8_t PlayerFields::*,
                           std::int16_t PlayerFields::*, std::int32_t PlayerFields::*,
                           const std::shared_ptr<clsInteger> PlayerFields::*,
                           const std::shared_ptr<clsLong> PlayerFields::*, Deck, Table>;

}  // namespace

/// One field of the file: a single record, or one for each entry of a deck or table.
struct FieldRow {
  enum class Form : std::uint8_t {
    Plain,   // scrambled under the PIN alone
    Marked,  // each entry has a marker in front and a key of its own
    Keys,    // plain, and only the entries that are key bindings
  };

  Field field;
  int since = 0;  // the first version that writes it
  Form form = Form::Plain;
};

namespace {

// The records between the two version records and the save time, in file order; one table for reading and
// writing. A new field goes where a reader of its version expects it, with that version's number.
constexpr std::array kRows = {
    FieldRow{&PlayerFields::Name},
    FieldRow{&PlayerFields::Credits},
    FieldRow{&PlayerFields::Wins},
    FieldRow{&PlayerFields::Losses},
    FieldRow{&PlayerFields::Arcade_Best},
    FieldRow{&PlayerFields::Brannock_Wins},
    FieldRow{&PlayerFields::Tamsen_Wins},
    FieldRow{&PlayerFields::Velir_Wins},
    FieldRow{&PlayerFields::Brummox_Wins},
    FieldRow{&PlayerFields::Orrin_Wins},
    FieldRow{&PlayerFields::H6J8_Wins, 101},
    FieldRow{&PlayerFields::TurnMode_Opt},
    FieldRow{&PlayerFields::GameSpeed_Opt, 114},
    FieldRow{&PlayerFields::AutoTurn_Opt},
    FieldRow{&PlayerFields::AutoDialogs_Opt},
    FieldRow{&PlayerFields::LightPulse_Opt},
    FieldRow{&PlayerFields::ShowPortrait_Opt},
    FieldRow{&PlayerFields::Interface_Opt},
    FieldRow{&PlayerFields::ShowMinimize_Opt, 110},
    FieldRow{&PlayerFields::KeysEn, 123},
    FieldRow{&PlayerFields::Keys, 123, FieldRow::Form::Keys},
    FieldRow{&PlayerFields::Mute_Highlight_Opt},
    FieldRow{&PlayerFields::Mute_Buttons_Opt},
    FieldRow{&PlayerFields::Mute_Cards_Opt},
    FieldRow{&PlayerFields::Mute_Events_Opt},
    FieldRow{&PlayerFields::ArcadeOpp_Opt, 120},
    FieldRow{&PlayerFields::ArcadeAI_Opt, 120},
    FieldRow{&PlayerFields::ArcadeDeck, 103},
    FieldRow{&PlayerFields::Deck, 0, FieldRow::Form::Marked},
    FieldRow{&PlayerFields::Cards, 0, FieldRow::Form::Marked},
    FieldRow{&PlayerFields::Portrait},
    FieldRow{&PlayerFields::Credits_MP},
    FieldRow{&PlayerFields::Wins_MP},
    FieldRow{&PlayerFields::Losses_MP},
    FieldRow{&PlayerFields::Disconnects},
    FieldRow{&PlayerFields::LastIP},
    FieldRow{&PlayerFields::LastPort},
    FieldRow{&PlayerFields::Deck_MP, 0, FieldRow::Form::Marked},
    FieldRow{&PlayerFields::Cards_MP, 0, FieldRow::Form::Marked},
};

int RowsOf(const FieldRow& row) {
  if (std::holds_alternative<Deck>(row.field)) return kDeckSize;
  return std::holds_alternative<Table>(row.field) ? kCardKinds : 1;
}

int ColumnsOf(const FieldRow& row, int index) {
  if (!std::holds_alternative<Table>(row.field)) return 1;
  if (row.form != FieldRow::Form::Keys) return kCardNumbers;
  return index == 1 ? 2 : kHandSize;
}

/// Marked entries begin with "B" in the first slot or row and every second letter after it.
FileEntry MakeEntry(const FieldRow& row, int index, int column) {
  if (row.form != FieldRow::Form::Marked) return {&row, index, column, "", ""};
  return {&row, index, column, std::string(1, static_cast<char>('@' + 2 * index)),
          std::to_string(2 * index * index)};
}

template <typename Number>
bool ReadNumber(std::string_view text, Number& number) {
  std::int32_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || !std::in_range<Number>(value)) return false;
  number = static_cast<Number>(value);
  return true;
}

bool ReadBoolean(std::string_view text, bool& flag) {
  flag = text == "True";
  return flag || text == "False";
}

/// Converts `text` into the entry's place in `fields`; false when it does not convert.
struct Reader {
  PlayerFields& fields;
  const FileEntry& entry;
  std::string_view text;

  bool operator()(std::string PlayerFields::*field) const {
    fields.*field = FromWindows1252(text);
    return true;
  }
  bool operator()(bool PlayerFields::*field) const { return ReadBoolean(text, fields.*field); }
  template <typename Number>
  bool operator()(Number PlayerFields::*field) const {
    return ReadNumber(text, fields.*field);
  }
  template <typename Box>
  bool operator()(const std::shared_ptr<Box> PlayerFields::*field) const {
    return ReadNumber(text, (fields.*field)->Value);
  }
  bool operator()(const std::shared_ptr<clsDeckArray> PlayerFields::*field) const {
    if (!IsValidCardCode(text)) return false;
    (fields.*field)->setValue(entry.index, CardCode(FromWindows1252(text)));
    return true;
  }
  bool operator()(const std::shared_ptr<clsCardArray> PlayerFields::*field) const {
    std::int16_t count = 0;
    if (!ReadNumber(text, count)) return false;
    (fields.*field)->setValue(entry.index, entry.column, count);
    return true;
  }
};

/// The text of the entry's value, in Windows-1252.
struct Writer {
  const PlayerFields& fields;
  const FileEntry& entry;

  std::string operator()(std::string PlayerFields::*field) const { return ToWindows1252(fields.*field); }
  std::string operator()(bool PlayerFields::*field) const { return fields.*field ? "True" : "False"; }
  template <typename Number>
  std::string operator()(Number PlayerFields::*field) const {
    return std::to_string(fields.*field);
  }
  template <typename Box>
  std::string operator()(const std::shared_ptr<Box> PlayerFields::*field) const {
    return std::to_string((fields.*field)->Value);
  }
  std::string operator()(const std::shared_ptr<clsDeckArray> PlayerFields::*field) const {
    return ToWindows1252((fields.*field)->Value(entry.index).text());
  }
  std::string operator()(const std::shared_ptr<clsCardArray> PlayerFields::*field) const {
    return std::to_string((fields.*field)->Value(entry.index, entry.column));
  }
};

}  // namespace

std::vector<FileEntry> EntriesOf(int versionNumber) {
  std::vector<FileEntry> entries;
  for (const FieldRow& row : kRows) {
    if (row.since > versionNumber) continue;
    for (int index = 1; index <= RowsOf(row); ++index) {
      for (int column = 1; column <= ColumnsOf(row, index); ++column) {
        entries.push_back(MakeEntry(row, index, column));
      }
    }
  }
  return entries;
}

bool ReadEntry(PlayerFields& fields, const FileEntry& entry, std::string_view text) {
  return std::visit(Reader{fields, entry, text}, entry.row->field);
}

std::string WriteEntry(const PlayerFields& fields, const FileEntry& entry) {
  return std::visit(Writer{fields, entry}, entry.row->field);
}

bool IsNumeric(std::string_view text) {
  if (!text.empty() && text.front() == '-') text.remove_prefix(1);
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

bool IsValidCardCode(std::string_view code) {
  static constexpr std::array<std::string_view, 6> kTypes = {"fm", "fp", "fl", "ms", "ps", "no"};
  if (code.size() < 2) return false;
  const bool known =
      code[0] == 's' || std::find(kTypes.begin(), kTypes.end(), code.substr(0, 2)) != kTypes.end();
  return known && IsNumeric(code.substr(2));
}

}  // namespace kv
