// Opens the viewer on a data file: the one given, or the one beside the program.
#include <QApplication>
#include <cstdio>

#include "platform/StandardOptions.h"
#include "presentation/PictureSizes.h"
#include "presentation/frmResViewer.h"

namespace {

constexpr const char* kUsage =
    "usage: vantri-pictures [FILE]\n"
    "Shows the pictures of a data file by number: of FILE, or of the one beside the program.\n";

}  // namespace

int main(int argc, char** argv) {
  if (kv::AnswersStandardOption(argc, argv, "vantri-pictures", kUsage)) return 0;
  if (argc > 2 || kv::FindOption(argc, argv)) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  const QApplication application(argc, argv);
  const std::string beside = QCoreApplication::applicationDirPath().toStdString() + "/" + kv::kDataFileName;
  const std::string path = argc > 1 ? argv[1] : beside;
  kv::frmResViewer viewer;
  if (!viewer.LoadFile(path)) {
    std::fprintf(stderr, "vantri-pictures: '%s' holds no pictures\n", path.c_str());
    return 1;
  }
  viewer.show();
  return QApplication::exec();
}
