#include <gmock/gmock.h>

#include "presentation/Fonts.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"

namespace kv::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Remembers each step of an installation.
class StepLog final : public FontSystem {
 public:
  std::optional<std::string> FontsFolder() override { return folder; }
  bool IsInstalled(const std::string& in, const std::string& fileName) override {
    steps.push_back("installed? " + in + fileName);
    return installed;
  }
  void CopyAndRegister(const std::string& path, const std::string& to) override {
    steps.push_back("copy " + path + " to " + to);
  }
  void Record(const std::string& title, const std::string& fileName) override {
    steps.push_back("record " + title + " = " + fileName);
  }
  void Announce() override { steps.push_back("announce"); }

  std::optional<std::string> folder = "/fonts/";
  bool installed = false;
  std::vector<std::string> steps;
};

class InstallFontTest : public testing::Test {
 protected:
  void SetUp() override { files.Put("face.ttf", "a font"); }

  /// The boxes of one installation with messages; without messages nothing may be told or done differently.
  std::vector<std::string> Told(const std::string& path) {
    fonts.steps.clear();
    InstallFont(path, "Some Face", true, fonts, dialogs);
    std::vector<std::string> told;
    for (const auto& box : std::exchange(dialogs.boxes, {})) {
      EXPECT_EQ(box.title, "Kelm Vantri");
      EXPECT_EQ(box.icon, DialogIcon::Information);
      told.push_back(box.text);
    }
    const std::vector<std::string> steps = std::exchange(fonts.steps, {});
    testing::internal::CaptureStderr();
    InstallFont(path, "Some Face", false, fonts, dialogs);
    noted = testing::internal::GetCapturedStderr();
    EXPECT_EQ(dialogs.boxes.size(), 0U);
    EXPECT_EQ(fonts.steps, steps);
    return told;
  }

  const TempFolder files;
  StepLog fonts;
  ScriptedDialogs dialogs;
  std::string noted;
};

TEST_F(InstallFontTest, GoesThroughItsStepsInOrder) {
  fonts.folder = "/fonts";  // the slash at its end is added
  EXPECT_THAT(Told(files / "face.ttf"), IsEmpty());
  EXPECT_THAT(fonts.steps,
              ElementsAre("installed? /fonts/face.ttf", "copy " + (files / "face.ttf") + " to /fonts/",
                          "record Some Face (TrueType) = face.ttf", "announce"));
  EXPECT_EQ(noted, "");
}

TEST_F(InstallFontTest, WantsAFontsExtensionInAnyCase) {
  const std::string wanted = "You must specify a .TTF or .FON file, including extension";
  for (const char* path : {"", "ttf", "face", "face.otf", "face.ttf ", "face.ttf/x"}) {
    EXPECT_THAT(Told(path), ElementsAre(wanted)) << path;
    EXPECT_THAT(fonts.steps, IsEmpty());
  }
  files.Put("FACE.FON", "a font");
  EXPECT_THAT(Told(files / "FACE.FON"), IsEmpty());
  files.Put("Mixed.tTf", "a font");
  EXPECT_THAT(Told(files / "Mixed.tTf"), IsEmpty());
}

TEST_F(InstallFontTest, SaysWhatIsMissingAndNotesItWhenItMayNotSay) {
  EXPECT_THAT(Told(files / "gone.ttf"), ElementsAre("gone.ttf not found in " + CurrentFolder() + "."));
  EXPECT_NE(noted.find("gone.ttf"), std::string::npos);
  EXPECT_THAT(Told("gone.ttf"), ElementsAre("gone.ttf not found in " + CurrentFolder() + "."));
  EXPECT_THAT(fonts.steps, IsEmpty());
}

TEST_F(InstallFontTest, StopsWithoutAFontsFolderAndAtAnInstalledFont) {
  fonts.installed = true;
  EXPECT_THAT(Told(files / "face.ttf"), ElementsAre("Some Face (face.ttf) is already installed."));
  EXPECT_THAT(fonts.steps, ElementsAre("installed? /fonts/face.ttf"));
  fonts.steps.clear();
  fonts.folder.reset();
  EXPECT_THAT(Told(files / "face.ttf"), ElementsAre("Sorry, can't retrieve Font Folder."));
  EXPECT_THAT(fonts.steps, IsEmpty());
}

TEST_F(InstallFontTest, TheCurrentFolderEndsInOneSlash) {
  EXPECT_EQ(CurrentFolder(), std::filesystem::current_path().string() + "/");
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path("/");
  EXPECT_EQ(CurrentFolder(), "/");
  std::filesystem::current_path(before);
}

}  // namespace
}  // namespace kv::test
