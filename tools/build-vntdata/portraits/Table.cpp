#include "portraits/Table.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <algorithm>

#include "platform/Files.h"
#include "portraits/Names.h"

namespace kv::datafile {
namespace {

constexpr std::size_t kLargestTable = 1U << 20U;
constexpr int kHighestNumber = 99;  // pictures 301 to 399

/// One row on its way into a BustSpec. The first field that is wrong is the row's fault.
class Row {
 public:
  explicit Row(QJsonObject object) : object_(std::move(object)) {}

  template <class Choice>
  void Take(const char* key, Choice& choice) {
    const std::string name = Value(key).toString().toStdString();
    const auto names = NamesOf(choice);
    const auto found = std::ranges::find(names, name);
    if (found == names.end()) return Blame(key, "one of " + Joined(names));
    choice = static_cast<Choice>(found - names.begin());
  }

  void TakeColour(const char* key, QRgb& colour) {
    const QString text = Value(key).toString();
    const QColor read(text);
    if (text.size() != 7 || text[0] != '#' || !read.isValid())
      return Blame(key, "a colour such as \"#e8b48c\"");
    colour = read.rgb();
  }

  void TakeNumber(const char* key, double low, double high, double& number) {
    const QJsonValue value = Value(key);
    number = value.toDouble(low - 1);
    if (number < low || number > high)
      Blame(key, QString("a number from %1 to %2").arg(low).arg(high).toStdString());
  }

  /// The fault of the row; a field that nobody has taken is one.
  [[nodiscard]] std::string Fault() const {
    if (!fault_.empty()) return fault_;
    for (const QString& key : object_.keys()) {
      if (!taken_.contains(key)) return "\"" + key.toStdString() + "\" is no field of a portrait";
    }
    return "";
  }

 private:
  QJsonValue Value(const char* key) {
    taken_ << key;
    return object_.value(QLatin1String(key));
  }

  void Blame(const char* key, const std::string& expected) {
    if (!fault_.empty()) return;
    const QJsonValue value = object_.value(QLatin1String(key));
    const QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    const std::string is =
        value.isUndefined() ? "is missing" : "is " + text.mid(1, text.size() - 2).toStdString();
    fault_ = "\"" + std::string(key) + "\" " + is + "; it must be " + expected;
  }

  static std::string Joined(NameList names) {
    std::string text;
    for (const std::string_view name : names) text.append(text.empty() ? "" : ", ").append(name);
    return text;
  }

  QJsonObject object_;
  QStringList taken_;
  std::string fault_;
};

void TakePose(Row& row, BustSpec& spec) {
  row.TakeNumber("width", 0.5, 1.5, spec.width);
  row.TakeNumber("length", 0.5, 1.5, spec.length);
  row.TakeNumber("jaw", 0, 1, spec.jaw);
  row.TakeNumber("tilt", -30, 30, spec.tilt);
  row.TakeNumber("turn", -1, 1, spec.turn);
  row.TakeNumber("nod", -1, 1, spec.nod);
}

void TakeColours(Row& row, BustSpec& spec) {
  row.TakeColour("skin", spec.skin);
  row.TakeColour("cloth", spec.cloth);
  row.TakeColour("hair", spec.hair);
  row.TakeColour("back", spec.back);
  row.TakeColour("eye", spec.eye);
}

void TakeChoices(Row& row, BustSpec& spec) {
  row.Take("kind", spec.kind);
  row.Take("shape", spec.shape);
  row.Take("build", spec.build);
  row.Take("place", spec.place);
  row.Take("hairStyle", spec.hairStyle);
  row.Take("gear", spec.gear);
  row.Take("growth", spec.growth);
  row.Take("eyes", spec.eyes);
  row.Take("mood", spec.mood);
  row.Take("mouth", spec.mouth);
  row.Take("garment", spec.garment);
  row.Take("mark", spec.mark);
}

/// Fills `spec`, or tells what is wrong with the row.
std::string TakeRow(const QJsonObject& object, BustSpec& spec) {
  Row row(object);
  double number = 0;
  row.TakeNumber("number", 1, kHighestNumber, number);
  spec.number = static_cast<int>(number);
  if (spec.number != number) return "\"number\" must be whole";
  TakeChoices(row, spec);
  TakeColours(row, spec);
  TakePose(row, spec);
  return row.Fault();
}

BustTable Faulty(const std::string& what) {
  return {{}, "portraits.json: " + what};
}

}  // namespace

BustTable ParseBusts(std::string_view json) {
  QJsonParseError error;
  const QByteArray bytes(json.data(), static_cast<qsizetype>(json.size()));
  const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
  if (error.error != QJsonParseError::NoError) {
    const auto line = bytes.left(error.offset).count('\n') + 1;
    return Faulty("line " + std::to_string(line) + ": " + error.errorString().toStdString());
  }
  if (!document.isArray()) return Faulty("it is no list of rows");
  BustTable table;
  for (const QJsonValue& value : document.array()) {
    BustSpec spec{};
    const std::string fault = TakeRow(value.toObject(), spec);
    const std::string who =
        "row " + std::to_string(table.rows.size() + 1) + " (number " + std::to_string(spec.number) + "): ";
    if (!fault.empty()) return Faulty(who + fault);
    if (std::ranges::find(table.rows, spec.number, &BustSpec::number) != table.rows.end())
      return Faulty(who + "there is a row of that number already");
    table.rows.push_back(spec);
  }
  return table;
}

BustTable ReadBusts() {
  const FileBytes file = ReadWhole(KV_PORTRAIT_TABLE, kLargestTable);
  return file.bytes ? ParseBusts(*file.bytes) : Faulty(file.error);
}

}  // namespace kv::datafile
