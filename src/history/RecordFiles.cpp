#include "history/RecordFiles.h"

#include <filesystem>

#include "history/MatchReplay.h"
#include "history/RecordText.h"
#include "platform/Files.h"

namespace kv {

std::string FileBeside(const std::string& playerFile, std::string_view ending) {
  return std::filesystem::path(playerFile).replace_extension("." + std::string(ending)).string();
}

std::string SaveBytes(const std::string& path, std::string_view bytes) {
  const std::string error = AtomicWrite(path, bytes);
  return error.empty() ? "Saved as " + path + "." : "Not saved: " + error + ".";
}

std::string ExportMatch(HistoryFile& history, std::int64_t id, const std::string& playerFile) {
  const auto record = history.Load(id);
  if (!record) return "This match cannot be read.";
  return SaveBytes(FileBeside(playerFile, "match-" + std::to_string(id) + ".txt"), FormatRecord(*record));
}

std::string ImportMatch(HistoryFile& history, const std::string& name, const std::string& playerFile) {
  const std::string path = (std::filesystem::path(playerFile).parent_path() / name).string();
  const FileBytes file = ReadWhole(path, kMostRecordText);
  if (!file.bytes) return "Not read: " + file.error + ".";
  const ParsedRecord parsed = ParseRecord(*file.bytes);
  if (!parsed.record) return "Not read: line " + std::to_string(parsed.line) + ": " + parsed.fault + ".";
  if (!PlayAgain(*parsed.record)) return "Not read: these moves are not those of a match.";
  history.Store(*parsed.record, true);
  return history.Waiting() == 0 ? "The match is in the list." : "The match could not be stored.";
}

}  // namespace kv
