#include "screens/HelpPages.h"

#include <QRegularExpression>
#include <array>

#include "cards/CardFaces.h"
#include "cards/CardMeaning.h"
#include "platform/QtText.h"
#include "profile/clsPlayer.h"
#include "screens/HelpExamples.h"
#include "screens/modgetKeyName.h"

namespace kv {
namespace {

struct Source {
  const char* title;    // of the page
  const char* chapter;  // of the read-me
};
constexpr std::array kSources = {
    Source{"The rules", "The rules on one page"},
    Source{"Modes and stakes", "The modes"},
    Source{"Against a friend", "A match against a friend"},
    Source{"Mouse and keys", "Playing a match with mouse and keys"},
    Source{"The window", "The size of the window"},
};
constexpr std::size_t kCardsBehind = 1;  // the page of the cards comes after the rules

/// What the picture of it shows.
std::string SceneWords(const HelpExample& example) {
  return std::to_string(SumOf(TableBefore(example))) + " becomes " +
         std::to_string(SumOf(TableAfter(example)));
}

HelpPage CardsPage() {
  std::string text = "| card | what it does | for example |\n|---|---|---|\n";
  for (const HelpExample& each : HelpExamples()) {
    const CardCode code(each.code);
    // The toolkit leaves out a picture without a name.
    text += "| ![" + SpokenCard(code) + "](card:" + each.code + ") | " + CardMeaning(code) + " | ![" +
            SceneWords(each) + "](scene:" + each.code + ") " + each.text + " |\n";
  }
  return {"The cards", text};
}

/// Entries of the key table: one, or one for each hand card from column 1 on.
struct KeyUse {
  const char* what;
  int row;
  int first;
  int last;
};
constexpr std::array kKeyUses = {
    KeyUse{"end the turn", 1, 1, 1},
    KeyUse{"stand", 1, 2, 2},
    KeyUse{"play hand card 1 to 4", 2, 1, 4},
    KeyUse{"choose the sign of card 1 to 4", 3, 1, 4},
    KeyUse{"change 1 and 2 on card 1 to 4", 4, 1, 4},
};

/// As they are bound now.
HelpPage KeysPage(const clsPlayer& player) {
  std::string text = player.KeysEn ? "" : "The hotkeys are switched off in the options.\n\n";
  text += "| what | key |\n|---|---|\n";
  for (const KeyUse& use : kKeyUses) {
    text += std::string("| ") + use.what + " |";
    for (int column = use.first; column <= use.last; ++column) {
      text +=
          (column == use.first ? " " : ", ") + getKeyName(player.Keys->Value(use.row, column)).toStdString();
    }
    text += " |\n";
  }
  return {"Your keys", text};
}

}  // namespace

std::string Chapter(std::string_view readMe, std::string_view title) {
  static const QRegularExpression pictureRows(
      QStringLiteral("(^|\n)\\|? ?!\\[[^\n]*\n(\\|---[^\n]*\n\\|[^\n]*\n)?"));
  static const QRegularExpression links(QStringLiteral("\\[([^\\]]*)\\]\\([^)]*\\)"));
  std::size_t begin = readMe.find("# " + std::string(title) + "\n");
  if (begin == std::string_view::npos) return {};
  begin = readMe.find('\n', begin) + 1;
  std::string_view chapter = readMe.substr(begin);
  chapter = chapter.substr(0, chapter.find("\n#"));
  QString text = ToQString(chapter);
  text.replace(pictureRows, QStringLiteral("\n"));
  text.replace(links, QStringLiteral("\\1"));
  return text.toStdString();
}

std::vector<HelpPage> HelpPages(std::string_view readMe, const clsPlayer* player) {
  std::vector<HelpPage> pages;
  for (const Source& source : kSources) pages.push_back({source.title, Chapter(readMe, source.chapter)});
  pages.insert(pages.begin() + kCardsBehind, CardsPage());
  if (player != nullptr) pages.push_back(KeysPage(*player));
  return pages;
}

}  // namespace kv
