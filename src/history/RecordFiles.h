// The files that the record screen writes beside the player file, and the text of one match that it reads.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "history/HistoryFile.h"

namespace kv {

/// "zoe.matches.csv" beside "zoe.vnt".
[[nodiscard]] std::string FileBeside(const std::string& playerFile, std::string_view ending);

/// Each returns a sentence for the person: where the file is, or what went wrong.
[[nodiscard]] std::string SaveBytes(const std::string& path, std::string_view bytes);
[[nodiscard]] std::string ExportMatch(HistoryFile& history, std::int64_t id, const std::string& playerFile);
/// `name` is looked for beside the player file, unless it begins with "/". What is no match is refused.
[[nodiscard]] std::string ImportMatch(HistoryFile& history, const std::string& name,
                                      const std::string& playerFile);

}  // namespace kv
