// Paints every picture of the game and writes the data file.
//   build-vntdata OUT.dat              the data file
//   build-vntdata --sheet OUT.png      a contact sheet of all pictures with their numbers
//   build-vntdata --picture N OUT.png  one picture in its stored size
//   build-vntdata --sizes              how many bytes each picture takes
//   build-vntdata --seeds FOLDER       small whole modules to start the fuzzing of the reader from
#include <QGuiApplication>
#include <cstdio>
#include <cstring>
#include <string>

#include "packing/Catalogue.h"
#include "packing/Seeds.h"
#include "packing/Sheet.h"
#include "platform/Files.h"
#include "presentation/PictureSizes.h"

namespace kv::datafile {
namespace {

int Fail(const std::string& what) {
  std::fprintf(stderr, "build-vntdata: %s\n", what.c_str());
  return 1;
}

int Write(const std::string& path, const Bytes& bytes) {
  const std::string error = AtomicWrite(path, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  return error.empty() ? 0 : Fail(error);
}

int WriteDataFile(const std::string& path) {
  const Groups groups = PaintAll();
  for (const auto& [type, entries] : groups) {
    for (const auto& [number, bytes] : entries) {
      if (bytes.empty()) return Fail("picture " + std::to_string(number) + " is missing");
    }
  }
  const auto module = WriteModule(groups, kDataFileSize);
  if (!module) {
    return Fail("the pictures need " + std::to_string(SmallestSize(groups)) + " bytes, the file has " +
                std::to_string(kDataFileSize));
  }
  return Write(path, *module);
}

int PrintSizes() {
  const Groups groups = PaintAll();
  for (const auto& [type, entries] : groups) {
    for (const auto& [number, bytes] : entries) {
      std::printf("%s %d %zu\n", type.c_str(), number, bytes.size());
    }
  }
  std::printf("all %zu of %lld\n", SmallestSize(groups), static_cast<long long>(kDataFileSize));
  return 0;
}

int WriteSeeds(const std::string& folder) {
  for (const auto& [name, bytes] : SeedModules()) {
    if (const int failed = Write(folder + "/" + name, bytes); failed != 0) return failed;
  }
  return 0;
}

int Run(int count, char** arguments) {
  const auto is = [&](int wanted, const char* option) {
    return count == wanted && std::strcmp(arguments[1], option) == 0;
  };
  if (is(3, "--seeds")) return WriteSeeds(arguments[2]);
  if (is(2, "--sizes")) return PrintSizes();
  if (is(3, "--sheet"))
    return ContactSheet().save(QString::fromUtf8(arguments[2])) ? 0 : Fail("cannot write");
  if (is(4, "--picture")) {
    const int number = std::atoi(arguments[2]);
    if (LayoutSizeOf(number) == LayoutSize{}) return Fail("no such picture");
    return Paint(number).save(QString::fromUtf8(arguments[3])) ? 0 : Fail("cannot write");
  }
  if (count == 2 && arguments[1][0] != '-') return WriteDataFile(arguments[1]);
  return Fail("say where the data file goes");
}

}  // namespace
}  // namespace kv::datafile

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");  // it paints, but shows nothing
  const QGuiApplication application(argc, argv);
  return kv::datafile::Run(argc, argv);
}
