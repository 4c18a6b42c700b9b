// Where the game looks for its own files and for the player's, whatever the system says or leaves out; and
// what the desktop's settings say against motion, as its programs write them.
#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <optional>

#include "platform/Folders.h"
#include "platform/StillDesktop.h"
#include "support/Rows.h"
#include "support/TempFolder.h"

namespace kv::test {
namespace {

namespace fs = std::filesystem;

/// A variable of the environment that gets its value back.
class Variable {
 public:
  Variable(const char* name, const char* value) : name_(name) {
    if (const char* old = std::getenv(name)) old_ = old;
    Set(value);
  }
  ~Variable() { Set(old_ ? old_->c_str() : nullptr); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  void Set(const char* value) const {
    if (value == nullptr) {
      unsetenv(name_);
    } else {
      setenv(name_, value, 1);
    }
  }

  const char* name_;
  std::optional<std::string> old_;
};

TEST(UserFolder, FollowsTheConventionAndElseTheListOfUsers) {
  const std::string listed = getpwuid(getuid())->pw_dir;
  for (const auto& [dataHome, userHome, folder] : Rows<const char*, const char*, std::string>{
           {"/data", "/home/mara", "/data/kelm-vantri"},
           {"data", "/home/mara", "/home/mara/.local/share/kelm-vantri"},  // relative: as if it were not set
           {nullptr, "/home/mara", "/home/mara/.local/share/kelm-vantri"},
           {nullptr, nullptr, listed + "/.local/share/kelm-vantri"},
           {nullptr, "", listed + "/.local/share/kelm-vantri"},
           {"", "mara", listed + "/.local/share/kelm-vantri"}}) {
    const Variable data("XDG_DATA_HOME", dataHome);
    const Variable home("HOME", userHome);
    EXPECT_EQ(UserFolder(), folder);
  }
}

TEST(DataFolder, IsBesideTheProgramOrWhereItWasInstalledWhereverThatWasMovedTo) {
  const TempFolder folder;
  const fs::path prefix = fs::path(folder.path()) / "moved";
  const fs::path bin = prefix / "bin";
  const fs::path share = prefix / "share" / "kelm-vantri";
  for (const fs::path& made : {bin, share}) fs::create_directories(made);
  const auto put = [](const fs::path& file) { std::ofstream(file) << "pictures"; };

  EXPECT_EQ(DataFolder(bin.string(), "vntdata.dat"), bin.string());
  put(share / "vntdata.dat");
  EXPECT_EQ(DataFolder(bin.string(), "vntdata.dat"), share.string());
  put(bin / "vntdata.dat");
  EXPECT_EQ(DataFolder(bin.string(), "vntdata.dat"), bin.string());
}

TEST(StillDesktopTest, OnlyAClearNoAsksForStillness) {
  for (const auto& [file, text, still] : Rows<const char*, const char*, bool>{
           {"gtk-3.0/settings.ini", "[Settings]\ngtk-theme-name=Breeze\ngtk-enable-animations=false\n", true},
           {"gtk-4.0/settings.ini", "[Settings]\r\ngtk-enable-animations = 0\r\n", true},
           {"gtk-3.0/settings.ini", "[Settings]\ngtk-enable-animations=true\n", false},
           {"gtk-3.0/settings.ini", "gtk-enable-animations=", false},
           {"kdeglobals", "[KDE]\nAnimationDurationFactor=0\n", true},
           {"kdeglobals", "[KDE]\nAnimationDurationFactor=0.0", true},
           {"kdeglobals", "[KDE]\nAnimationDurationFactor=0.5\n", false},
           {"settings.ini", "gtk-enable-animations=0\n", false}}) {
    const TempFolder config;
    for (const char* folder : {"gtk-3.0", "gtk-4.0"}) std::filesystem::create_directory(config / folder);
    EXPECT_FALSE(DesktopWishesStillness(config.path()));
    config.Put(file, text);
    EXPECT_EQ(DesktopWishesStillness(config.path()), still) << file << ": " << text;
  }
}

}  // namespace
}  // namespace kv::test
