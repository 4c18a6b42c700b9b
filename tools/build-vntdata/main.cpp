// Paints every picture of the game and writes the data file; --help tells the rest.
#include <QGuiApplication>
#include <cstdio>
#include <string>
#include <vector>

#include "packing/Art.h"
#include "packing/Catalogue.h"
#include "packing/Seeds.h"
#include "packing/Sheet.h"
#include "platform/Files.h"
#include "platform/StandardOptions.h"
#include "portraits/Table.h"
#include "presentation/PictureSizes.h"

namespace kv::datafile {
namespace {

constexpr const char* kUsage =
    "usage: build-vntdata OUT.dat              the data file\n"
    "       build-vntdata --sheet OUT.png      a contact sheet of all pictures with their numbers\n"
    "       build-vntdata --picture N OUT.png  one picture in its stored size\n"
    "       build-vntdata --sizes              how many bytes each picture takes\n"
    "       build-vntdata --seeds FOLDER       small whole modules to start the fuzzing of the reader from\n"
    "With --art FOLDER in front, the pictures of FOLDER/pictures take their painters' places.\n";

using Arguments = std::vector<std::string>;

int Fail(const std::string& what) {
  std::fprintf(stderr, "build-vntdata: %s\n", what.c_str());
  return 1;
}

int Write(const std::string& path, const Bytes& bytes) {
  const std::string error = AtomicWrite(path, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  return error.empty() ? 0 : Fail(error);
}

int WriteDataFile(const Catalogue& catalogue, const std::string& path) {
  const Groups groups = catalogue.PaintAll(kDataFileSize);
  for (const auto& [type, entries] : groups) {
    for (const auto& [number, bytes] : entries) {
      if (bytes.empty()) return Fail("picture " + std::to_string(number) + " is missing");
    }
  }
  const auto module = WriteModule(groups, kDataFileSize);
  if (!module) {
    return Fail("the pictures need " + std::to_string(SmallestSize(groups)) + " bytes, the file has " +
                std::to_string(kDataFileSize) + " (--sizes tells what each takes)");
  }
  return Write(path, *module);
}

int PrintSizes(const Catalogue& catalogue) {
  const Groups groups = catalogue.PaintAll(kDataFileSize);
  for (const auto& [type, entries] : groups) {
    for (const auto& [number, bytes] : entries) {
      std::printf("%s %d %zu\n", type.c_str(), number, bytes.size());
    }
  }
  std::printf("all %zu of %lld\n", SmallestSize(groups), static_cast<long long>(kDataFileSize));
  return 0;
}

int Save(const QImage& image, const std::string& path) {
  return image.save(QString::fromStdString(path)) ? 0 : Fail("cannot write " + path);
}

int WriteSeeds(const std::string& folder) {
  for (const auto& [name, bytes] : SeedModules()) {
    if (const int failed = Write(folder + "/" + name, bytes); failed != 0) return failed;
  }
  return 0;
}

int Do(const Catalogue& catalogue, const Arguments& wanted) {
  const auto is = [&](std::size_t count, const char* option) {
    return wanted.size() == count && wanted[0] == option;
  };
  if (is(2, "--seeds")) return WriteSeeds(wanted[1]);
  if (is(1, "--sizes")) return PrintSizes(catalogue);
  if (is(2, "--sheet")) return Save(ContactSheet(catalogue), wanted[1]);
  if (is(3, "--picture")) {
    const int number = std::atoi(wanted[1].c_str());
    if (LayoutSizeOf(number) == LayoutSize{}) return Fail("no such picture");
    return Save(catalogue.Paint(number), wanted[2]);
  }
  if (wanted.size() == 1 && wanted[0][0] != '-') return WriteDataFile(catalogue, wanted[0]);
  std::fputs(kUsage, stderr);
  return 2;
}

int Run(Arguments arguments) {
  Art art;
  if (arguments.size() > 2 && arguments[0] == "--art") {
    art = ReadArt(arguments[1]);
    if (!art.fault.empty()) return Fail(art.fault);
    arguments.erase(arguments.begin(), arguments.begin() + 2);
  }
  BustTable table = ReadBusts();
  if (!table.fault.empty()) return Fail(table.fault);
  const Catalogue catalogue(std::move(table.rows), std::move(art.pictures));
  if (const std::string fault = catalogue.Fault(); !fault.empty()) return Fail(fault);
  return Do(catalogue, arguments);
}

}  // namespace
}  // namespace kv::datafile

int main(int argc, char** argv) {
  if (kv::AnswersStandardOption(argc, argv, "build-vntdata", kv::datafile::kUsage)) return 0;
  qputenv("QT_QPA_PLATFORM", "offscreen");  // it paints, but shows nothing
  const QGuiApplication application(argc, argv);
  return kv::datafile::Run({argv + 1, argv + argc});
}
