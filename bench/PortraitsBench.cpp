// What a photo costs that a player puts into the portrait folder: time, and what it adds to the process at
// its peak.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <QImage>
#include <QImageWriter>
#include <fstream>
#include <random>
#include <string>

#include "presentation/Portraits.h"
#include "support/TempFolder.h"

namespace {

struct Photo {
  const char* format;
  int width;
  int height;
  bool progressive;
};
constexpr Photo kPhotos[] = {
    {"jpg", 8000, 6000, false}, {"jpg", 4000, 3000, true}, {"bmp", 3840, 2160, false}};

/// Grainy, as a photo is, so that it is not packed into nothing.
QImage Grain(int width, int height) {
  std::mt19937 random(1);
  QImage image(width, height, QImage::Format_RGB32);
  for (int y = 0; y < height; ++y) {
    auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < width; ++x) {
      const int grain = static_cast<int>(random() % 24);
      row[x] = qRgb(x * 200 / width + grain, y * 200 / height + grain, 120 + grain);
    }
  }
  return image;
}

/// Megabytes; the kernel counts anew from a call of ForgetPeak on.
double Peak() {
  std::ifstream status("/proc/self/status");
  std::string word;
  double kilobytes = 0;
  while (status >> word && word != "VmHWM:") continue;
  status >> kilobytes;
  return kilobytes / 1024;
}

void ForgetPeak() {
  malloc_trim(0);  // what made the photo is not what is measured
  std::ofstream("/proc/self/clear_refs") << "5";
}

void OwnPhoto(benchmark::State& state) {
  const Photo& photo = kPhotos[state.range(0)];
  const kv::test::TempFolder folder;
  {
    QImageWriter writer(QString::fromStdString(folder / (std::string("photo.") + photo.format)));
    writer.setProgressiveScanWrite(photo.progressive);
    writer.setQuality(90);
    if (!writer.write(Grain(photo.width, photo.height))) state.SkipWithError("no such picture");
  }
  kv::Pictures pictures(1);
  const kv::Portraits portraits(pictures, folder.path(), [] { return kv::PortraitOwner{}; });
  ForgetPeak();
  const double before = Peak();
  for (auto _ : state) {
    if (portraits.LookUp("photo").picture.empty()) state.SkipWithError("refused");
  }
  state.counters["peak_MB"] = Peak();
  state.counters["added_MB"] = Peak() - before;
}
BENCHMARK(OwnPhoto)
    ->Name("own photo")  // JPEG of 48 million pixels, a progressive one of 12, BMP of 8
    ->DenseRange(0, 2)
    ->Unit(benchmark::kMillisecond);

}  // namespace
