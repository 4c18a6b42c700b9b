// Small whole modules from which the fuzzing of the resource reader starts.
#pragma once

#include <map>
#include <string>

#include "packing/ModuleWriter.h"

namespace kv::datafile {

[[nodiscard]] std::map<std::string, Bytes> SeedModules();

}  // namespace kv::datafile
