#include <gtest/gtest.h>

#include <QFont>
#include <QFontInfo>

#include "platform/QtFontSystem.h"
#include "support/TempFolder.h"

namespace kv::test {
namespace {

QString Drawn(const QString& name) {
  return QFontInfo(QFont(name)).family();
}

TEST(QtFontSystem, DrawsAFileUnderTheNameItIsRecordedFor) {
  const char* assets = std::getenv("KV_ASSETS");
  ASSERT_NE(assets, nullptr);
  const TempFolder folder;
  std::filesystem::copy(std::string(assets) + "/bnkgothicM.ttf", folder / "Some Font.TTF");

  QtFontSystem fonts;
  const std::string fontsFolder = fonts.FontsFolder().value();
  EXPECT_FALSE(fonts.IsInstalled(fontsFolder, "Some Font.TTF"));
  const QString before = Drawn(QStringLiteral("Name Of Layouts"));
  fonts.CopyAndRegister(folder / "Some Font.TTF", fontsFolder);
  fonts.Record("Name Of Layouts (TrueType)", "Some Font.TTF");
  EXPECT_TRUE(fonts.IsInstalled(fontsFolder, "some font.ttf"));
  EXPECT_NE(Drawn(QStringLiteral("Name Of Layouts")), before);
  EXPECT_EQ(Drawn(QStringLiteral("Name Of Layouts")), QStringLiteral("Kelm Gothic Md"));
}

TEST(QtFontSystem, ABrokenFileLeavesTheSystemsFontAndANote) {
  const TempFolder folder;
  folder.Put("broken.ttf", "no font at all");
  QtFontSystem fonts;
  testing::internal::CaptureStderr();
  fonts.CopyAndRegister(folder / "broken.ttf", fonts.FontsFolder().value());
  fonts.Record("Broken Name (TrueType)", "broken.ttf");
  EXPECT_NE(testing::internal::GetCapturedStderr().find("broken.ttf"), std::string::npos);
  EXPECT_FALSE(fonts.IsInstalled("", "broken.ttf"));
  EXPECT_EQ(Drawn(QStringLiteral("Broken Name")), Drawn(QStringLiteral("Name That Nobody Has")));
}

}  // namespace
}  // namespace kv::test
