#include <gmock/gmock.h>

#include <QImage>
#include <array>
#include <cstdio>

#include "packing/Art.h"
#include "presentation/PictureSizes.h"
#include "presentation/Pictures.h"
#include "support/TempFolder.h"

namespace kv::test {
namespace {

namespace fs = std::filesystem;
using datafile::ReadArt;
using testing::HasSubstr;

constexpr QRgb kPink = 0xffff40a0;

/// What a command prints, and how it ended.
struct Ran {
  int status = 0;
  std::string printed;
};
Ran RunCommand(const std::string& command) {
  Ran ran;
  FILE* pipe = popen((command + " 2>&1").c_str(), "r");
  std::array<char, 4096> part{};
  while (const std::size_t count = std::fread(part.data(), 1, part.size(), pipe)) {
    ran.printed.append(part.data(), count);
  }
  ran.status = pclose(pipe);
  return ran;
}

std::string Tool(const char* name) {
  return std::string(std::getenv("KV_ASSETS")) + "/" + name + " ";
}

class ArtFolder : public testing::Test {
 protected:
  ArtFolder() {
    fs::create_directories(folder / "pictures");
    fs::create_directories(folder / "sounds");
  }
  [[nodiscard]] std::string In(const std::string& name) const { return folder / name; }
  void PutPicture(const char* name, int width, int height, QColor colour = QColor(kPink)) const {
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(colour);
    ASSERT_TRUE(image.save(QString::fromStdString(In("pictures/") + name))) << name;
  }
  /// The worst that a photo can be.
  void PutNoise(const char* name, int width, int height) const {
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x)
        image.setPixel(x, y, qRgb((x * 7919 + y * 104729) % 97, y % 64, x % 64));
    }
    ASSERT_TRUE(image.save(QString::fromStdString(In("pictures/") + name))) << name;
  }
  void PutDrawing(const char* name, int width, int height) const {
    folder.Put((std::string("pictures/") + name).c_str(),
               "<svg xmlns='http://www.w3.org/2000/svg' width='" + std::to_string(width) + "' height='" +
                   std::to_string(height) + "'><rect width='100%' height='100%' fill='#ff40a0'/></svg>");
  }
  /// A tone of one second in the form that the file's ending says.
  void PutSound(const char* name, const char* rate, const char* seconds = "1") const {
    const Ran made = RunCommand("sox -n -r " + std::string(rate) + " -c 1 " + In("sounds/") + name +
                                " synth " + seconds + " sine 440");
    ASSERT_EQ(made.status, 0) << made.printed;
  }
  /// The fault of the art folder, which is emptied for the next one.
  [[nodiscard]] std::string PictureFault() const {
    const std::string fault = ReadArt(folder.path()).fault;
    fs::remove_all(folder / "pictures");
    fs::create_directories(folder / "pictures");
    return fault;
  }

  const TempFolder folder;
};

TEST_F(ArtFolder, APictureOfEachKindTakesItsPaintersPlace) {
  PutPicture("103.png", 1280, 1040);
  PutPicture("301.jpg", 112, 112);
  PutNoise("105.png", 1572, 1080);
  PutDrawing("201.svg", 12, 16);
  folder.Put("pictures/README.md", "none of the pictures");
  const Ran built = RunCommand(Tool("build-vntdata") + "--art " + folder.path() + " " + In("own.dat"));
  ASSERT_EQ(built.status, 0) << built.printed;
  EXPECT_THAT(built.printed, HasSubstr("coarser")) << "noise needs more room than the file has";
  EXPECT_EQ(fs::file_size(In("own.dat")), static_cast<std::uintmax_t>(kDataFileSize));

  Pictures pictures(2);
  ASSERT_TRUE(pictures.OpenDataFile(In("own.dat")));
  for (const int number : {103, 301, 201}) {
    const Picture picture = pictures.getPic(number);
    ASSERT_FALSE(picture.empty()) << number;
    const LayoutSize size = LayoutSizeOf(number);
    EXPECT_EQ(picture.image()->deviceIndependentSize(), QSizeF(size.width, size.height)) << number;
    const QColor seen = picture.image()->pixelColor(picture.image()->rect().center());
    EXPECT_NEAR(seen.red(), qRed(kPink), 3) << number;
    EXPECT_NEAR(seen.green(), qGreen(kPink), 3) << number;
    EXPECT_NEAR(seen.blue(), qBlue(kPink), 3) << number;
  }
}

TEST_F(ArtFolder, TellsWhatIsWrongWithAPicture) {
  EXPECT_EQ(ReadArt(folder / "nowhere").fault, "");
  PutPicture("103.png", 640, 500);
  EXPECT_THAT(PictureFault(),
              HasSubstr("103.png: it is 640 x 500 pixels; this picture must be 1280 x 1040 (or 640 x 520)"));
  PutDrawing("103.svg", 100, 100);
  EXPECT_THAT(PictureFault(),
              HasSubstr("its shape is 100 x 100; this picture must have the shape of 640 x 520"));
  PutPicture("103.png", 640, 520, QColor(255, 0, 0, 128));
  EXPECT_THAT(PictureFault(), HasSubstr("cannot be see-through"));
  for (const char* name : {"lobby.png", "306.png", "103 new.png"}) {
    PutPicture(name, 640, 520);
    EXPECT_THAT(PictureFault(), HasSubstr("its name is no picture's number")) << name;
  }
  PutPicture("103.jpg", 640, 520);
  PutPicture("103.png", 640, 520);
  EXPECT_THAT(PictureFault(), HasSubstr("another file for picture 103"));
  folder.Put("pictures/103.png", "GIF89a, in truth");
  EXPECT_THAT(PictureFault(), HasSubstr("103.png: it is no PNG, JPEG or SVG"));
}

TEST_F(ArtFolder, ASoundOfEachKindTakesItsEffectsPlace) {
  PutSound("click.wav", "8000");
  PutSound("draw.flac", "48000");
  PutSound("buy.ogg", "44100");
  const Ran built = RunCommand(Tool("build-sounds") + "--art " + folder.path() + " " + In("Sounds"));
  ASSERT_EQ(built.status, 0) << built.printed;
  for (const char* name : {"click.wav", "draw.wav", "buy.wav"}) {
    EXPECT_EQ(RunCommand("soxi -r " + In("Sounds/") + name).printed, "44100\n");
    EXPECT_EQ(RunCommand("soxi -b " + In("Sounds/") + name).printed, "16\n");
    EXPECT_EQ(RunCommand("soxi -c " + In("Sounds/") + name).printed, "2\n");
    EXPECT_NEAR(std::stod(RunCommand("soxi -D " + In("Sounds/") + name).printed), 1, 0.05) << name;
  }
  EXPECT_TRUE(fs::exists(In("Sounds/turn.wav"))) << "the others are made as ever";
}

TEST_F(ArtFolder, TellsWhatIsWrongWithASound) {
  const auto fault = [this] {
    const Ran built = RunCommand(Tool("build-sounds") + "--art " + folder.path() + " " + In("Sounds"));
    EXPECT_NE(built.status, 0);
    fs::remove_all(folder / "sounds");
    fs::create_directories(folder / "sounds");
    return built.printed;
  };
  PutSound("clack.wav", "44100");
  EXPECT_THAT(fault(), HasSubstr("clack.wav: the game has no sound of that name; it has turn, click, hover"));
  PutSound("click.aiff", "44100");
  EXPECT_THAT(fault(), HasSubstr("it must end in .wav, .flac or .ogg"));
  PutSound("click.wav", "8000", "11");
  EXPECT_THAT(fault(), HasSubstr("it lasts 11"));
  folder.Put("sounds/click.wav", "this is not a sound");
  EXPECT_THAT(fault(), HasSubstr("click.wav: it is no WAV, FLAC or OGG sound"));
  PutSound("click.wav", "8000");
  PutSound("click.ogg", "8000");
  EXPECT_THAT(fault(), HasSubstr("another file for the sound click"));
}

}  // namespace
}  // namespace kv::test
