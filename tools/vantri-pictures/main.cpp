// Opens the viewer on a data file: the one given, or the one beside the program.
#include <QApplication>
#include <cstdio>

#include "presentation/PictureSizes.h"
#include "presentation/frmResViewer.h"

int main(int argc, char** argv) {
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
