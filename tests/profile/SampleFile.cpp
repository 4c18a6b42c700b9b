#include "profile/SampleFile.h"

#include <sstream>

namespace kv {
namespace {

std::string Xor(std::string text, const std::string& key) {
  for (std::size_t i = 0; i < text.size(); ++i) text[i] = static_cast<char>(text[i] ^ key[i % key.size()]);
  return text;
}

}  // namespace

SampleFile::SampleFile() {
  Add({"1.2.4", "1.2.4"});
  Add({"Zo\xEB \x80", "2000000000", "301", "302", "54321"});
  Add({"11", "12", "13", "14", "15"});
  Add({"16"}, 101);
  Add({"1"});
  Add({"3"}, 114);
  Add({"True", "True", "False", "False", "Ember"});
  Add({"False"}, 110);
  Add({"True"}, 123);
  Add({"101", "102", "103", "104", "105", "106", "107", "108", "109", "110", "111", "112", "113", "114"},
      123);
  Add({"True", "False", "True", "True"});
  Add({"2", "1"}, 120);
  Add({"ps1", "ms2", "ms-3", "fl4", "fp5", "fm6", "no7", "s199", "s299", "s599"}, 103);
  AddMarkedDeck({"s399", "s499", "fl1", "fl2", "fl3", "fl4", "fl5", "fl6", "sp1", "s61"});
  AddMarkedTable(1000);
  Add({"312", "2222", "41", "42", "43", "10.20.30.40", "65535"});
  AddMarkedDeck({"ms1", "ms2", "ms3", "ms4", "ms5", "ms6", "ps2", "ps3", "ps4", "ps5"});
  AddMarkedTable(-32768);
  Add({"2024-02-29 18:05:00"});
}

void SampleFile::Add(std::initializer_list<std::string_view> texts, int since) {
  for (const std::string_view text : texts) records_.push_back({std::string(text), since, "", ""});
}

void SampleFile::AddMarkedDeck(std::initializer_list<std::string_view> codes) {
  static constexpr std::string_view kMarkers = "BDFHJLNPRT";
  static constexpr const char* kSuffixes[] = {"2", "8", "18", "32", "50", "72", "98", "128", "162", "200"};
  std::size_t slot = 0;
  for (const std::string_view code : codes) {
    records_.push_back({std::string(code), 0, std::string(1, kMarkers[slot]), kSuffixes[slot]});
    ++slot;
  }
}

void SampleFile::AddMarkedTable(int first) {
  static constexpr const char* kMarkers[] = {"B", "D", "F", "H"};
  static constexpr const char* kSuffixes[] = {"2", "8", "18", "32"};
  for (int i = 0; i < 24; ++i) {
    records_.push_back({std::to_string(first + i), 0, kMarkers[i / 6], kSuffixes[i / 6]});
  }
}

std::string SampleFile::RecordBytes(const std::string& content) {
  std::string bytes("\x08\0", 2);
  bytes += static_cast<char>(content.size() % 256);
  bytes += static_cast<char>(content.size() / 256);
  return bytes + content;
}

std::string SampleFile::Scrambled(int number, const std::string& pin) const {
  const SampleRecord& record = records_.at(static_cast<std::size_t>(number) - 1);
  const std::string plain = "*" + record.marker + record.text + "42";
  return Xor(plain, pin + (number == 2 ? "4916" : record.keySuffix) + "7");
}

std::string SampleFile::Bytes(const std::string& pin, int versionNumber) const {
  std::string bytes = RecordBytes(records_.front().text);
  for (std::size_t i = 1; i < records_.size(); ++i) {
    if (records_[i].since <= versionNumber) bytes += RecordBytes(Scrambled(static_cast<int>(i) + 1, pin));
  }
  return bytes;
}

namespace {

void Put(std::ostream& out, const clsDeckArray& deck) {
  for (const CardCode& code : deck.getValue()) out << code.text() << ' ';
  out << '\n';
}

void Put(std::ostream& out, const clsCardArray& table) {
  for (int i = 1; i <= 4; ++i) {
    for (int j = 1; j <= 6; ++j) out << table.Value(i, j) << ' ';
  }
  out << '\n';
}

}  // namespace

std::string Snapshot(const PlayerFields& p) {
  std::ostringstream out;
  out << p.FileName << '|' << p.PIN << '|' << p.Version << '|' << p.Name << '\n'
      << p.Credits->Value << ' ' << p.Wins->Value << ' ' << p.Losses->Value << ' ' << p.Arcade_Best << '\n'
      << p.Brannock_Wins->Value << ' ' << p.Tamsen_Wins->Value << ' ' << p.Velir_Wins->Value << ' '
      << p.Brummox_Wins->Value << ' ' << p.Orrin_Wins->Value << ' ' << p.H6J8_Wins->Value << '\n'
      << int{p.TurnMode_Opt} << ' ' << int{p.GameSpeed_Opt} << ' ' << p.AutoTurn_Opt << p.AutoDialogs_Opt
      << p.LightPulse_Opt << p.ShowPortrait_Opt << ' ' << p.Interface_Opt << ' ' << p.ShowMinimize_Opt
      << p.KeysEn << ' ' << p.Mute_Highlight_Opt << p.Mute_Buttons_Opt << p.Mute_Cards_Opt
      << p.Mute_Events_Opt << ' ' << int{p.ArcadeOpp_Opt} << ' ' << int{p.ArcadeAI_Opt} << '\n'
      << p.Portrait << ' ' << p.Credits_MP->Value << ' ' << p.Wins_MP->Value << ' ' << p.Losses_MP->Value
      << ' ' << p.Disconnects << ' ' << p.LastIP << ' ' << p.LastPort << '\n';
  for (const auto* table : {&p.Keys, &p.Cards, &p.Cards_MP}) Put(out, **table);
  for (const auto* deck : {&p.ArcadeDeck, &p.Deck, &p.Deck_MP}) Put(out, **deck);
  return out.str();
}

}  // namespace kv
