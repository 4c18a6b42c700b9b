#include <gtest/gtest.h>

#include "app/StartCheck.h"
#include "presentation/PictureSizes.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"

namespace kv {
namespace {

TEST(StartCheck, OnlyADataFileOfItsExactSizeWillDo) {
  const test::TempFolder folder;
  test::ScriptedDialogs dialogs;
  EXPECT_FALSE(CheckDataFile(folder.path(), dialogs));
  EXPECT_EQ(dialogs.boxes.back().text, "Could not find file 'vntdata.dat'");
  EXPECT_EQ(dialogs.boxes.back().icon, DialogIcon::Critical);
  for (const int difference : {-1, 1}) {
    folder.Put("vntdata.dat", std::string(static_cast<std::size_t>(kDataFileSize + difference), 'x'));
    EXPECT_FALSE(CheckDataFile(folder.path(), dialogs));
    EXPECT_EQ(dialogs.boxes.back().text.substr(0, 45), "Data file size doesn't not match expected siz");
  }
  folder.Put("VntData.dat", "");  // names are matched without regard to case, the exact name first
  folder.Put("vntdata.dat", std::string(static_cast<std::size_t>(kDataFileSize), 'x'));
  EXPECT_TRUE(CheckDataFile(folder.path(), dialogs));
  EXPECT_EQ(dialogs.boxes.size(), 3U);
}

}  // namespace
}  // namespace kv
