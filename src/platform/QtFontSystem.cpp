#include "platform/QtFontSystem.h"

#include <fontconfig/fontconfig.h>

#include <QFont>
#include <QFontDatabase>
#include <QStringList>
#include <iostream>

namespace kv {
namespace {

// What Record's title ends in; the rest is the name that the layouts use.
constexpr std::string_view kTitleEnd = " (TrueType)";

// There is no folder: a font taken in lives in this program only. The name merely tells the two steps apart.
constexpr const char* kPrivateFolder = "fonts:/";

std::string FileName(const std::string& path) {
  const std::size_t slash = path.find_last_of("/\\");
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

std::string FileKey(const std::string& fileName) {
  return QString::fromStdString(fileName).toLower().toStdString();
}

}  // namespace

void QtFontSystem::ReadSystemFonts() {
  static_cast<void>(::FcInit());
}

std::optional<std::string> QtFontSystem::FontsFolder() {
  return kPrivateFolder;
}

bool QtFontSystem::IsInstalled(const std::string&, const std::string& fileName) {
  return families_.contains(FileKey(fileName));
}

void QtFontSystem::CopyAndRegister(const std::string& path, const std::string&) {
  const int font = QFontDatabase::addApplicationFont(QString::fromStdString(path));
  const QStringList families = font < 0 ? QStringList() : QFontDatabase::applicationFontFamilies(font);
  if (families.isEmpty()) {
    std::cerr << "Kelm Vantri: " << path << " is no font, so the system's typeface stands in for it\n";
    return;
  }
  families_[FileKey(FileName(path))] = families.first().toStdString();
}

void QtFontSystem::Record(const std::string& title, const std::string& fileName) {
  const auto family = families_.find(FileKey(fileName));
  if (family == families_.end() || !title.ends_with(kTitleEnd)) return;
  const QString name = QString::fromStdString(title.substr(0, title.size() - kTitleEnd.size()));
  const QString loaded = QString::fromStdString(family->second);
  if (name.compare(loaded, Qt::CaseInsensitive) != 0) QFont::insertSubstitution(name, loaded);
}

// Nothing to tell: fonts are installed before the first window is made.
void QtFontSystem::Announce() {}

}  // namespace kv
