#include "vantri-peer/PeerOptions.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "match/clsGame.h"
#include "network/Address.h"
#include "network/Message.h"
#include "vantri-player/PlayerOptions.h"

namespace kv {
namespace {

constexpr int kMostHurry = 100;

/// One option. `take` answers whether the word is one that it can take.
struct Row {
  std::string_view name;
  std::string_view argument;  // empty: a switch; in brackets: may be left out
  std::string_view help;
  bool (*take)(PeerOptions& options, const std::string& word);
};

bool TakeNumber(const std::string& word, int least, int most, int& number) {
  int read = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), read);
  if (error != std::errc() || end != word.data() + word.size() || read < least || read > most) return false;
  number = read;
  return true;
}

/// "ADDRESS", ":PORT" or "ADDRESS:PORT".
bool TakePlace(PeerOptions& options, const std::string& word) {
  const std::size_t colon = word.find(':');
  options.address = word.substr(0, colon);
  if (!options.address.empty() && !IsValidIP(options.address)) return false;
  if (colon == std::string::npos) return true;
  const auto port = PortOf(word.substr(colon + 1));
  if (port) options.port = *port;
  return port.has_value();
}

bool TakeMode(PeerOptions& options, const std::string& word) {
  options.arcade = word == kModeNetworkArcade;
  return options.arcade || word == kModeNetwork;
}

const std::array kRows = {
    Row{"--host", "[ADDRESS:PORT]", "waits for a player to join (the default)",
        [](PeerOptions& o, const std::string& word) { return word.empty() || TakePlace(o, word); }},
    Row{"--join", "ADDRESS:PORT", "joins a host",
        [](PeerOptions& o, const std::string& word) {
          o.hosting = false;
          return TakePlace(o, word) && !o.address.empty();
        }},
    Row{"--from", "ADDRESS", "joins from this address of the machine",
        [](PeerOptions& o, const std::string& word) {
          o.from = word;
          return IsValidIP(word);
        }},
    Row{"--name", "NAME", "the name it bears: Practice",
        [](PeerOptions& o, const std::string& word) {
          o.name = word;
          return !word.empty() && word.size() <= kMostNameCharacters;
        }},
    Row{"--player", "FILE|FOLDER", "a player file, made where there is none; without it one for this run",
        [](PeerOptions& o, const std::string& word) {
          o.player = word;
          return !word.empty();
        }},
    Row{"--pin", "PIN", "of the player file",
        [](PeerOptions& o, const std::string& word) {
          o.pin = word;
          return !word.empty();
        }},
    Row{"--mode", "Network|Network_Arcade", "what a host plays: Network", TakeMode},
    Row{"--stake", "N", "credits it proposes, in answer to more than it has as well: 10",
        [](PeerOptions& o, const std::string& word) { return TakeNumber(word, 0, kMostCredits, o.stake); }},
    Row{"--matches", "N", "leaves after so many matches; 0: never",
        [](PeerOptions& o, const std::string& word) { return TakeNumber(word, 0, 1000000, o.matches); }},
    Row{"--once", "", "a host ends with its first guest",
        [](PeerOptions& o, const std::string&) { return o.once = true; }},
    Row{"--chat", "", "writes the chat to standard error",
        [](PeerOptions& o, const std::string&) { return o.chat = true; }},
    Row{"--trace", "", "writes each message and its time to standard error",
        [](PeerOptions& o, const std::string&) { return o.trace = true; }},
    Row{"--greet-as", "VERSION", "greets as another version than its own",
        [](PeerOptions& o, const std::string& word) {
          o.version = word;
          return !word.empty() && word.size() <= 16;
        }},
    Row{"--misplay", "HOW", "does something wrong on purpose (below)",
        [](PeerOptions& o, const std::string& word) {
          o.misplay = FindMisplay(word);
          return o.misplay != nullptr;
        }},
    Row{"--hurry", "N", "its clock runs N times as fast, for tests between two such peers: 1",
        [](PeerOptions& o, const std::string& word) { return TakeNumber(word, 1, kMostHurry, o.hurry); }},
};

std::string Padded(std::string text, std::size_t width) {
  text.resize(std::max(text.size() + 1, width), ' ');
  return text;
}

std::string CheckTogether(const PeerOptions& options, std::span<const std::string_view> given) {
  const auto has = [given](std::string_view name) { return std::ranges::find(given, name) != given.end(); };
  if (has("--host") && has("--join")) return "it either hosts or joins";
  if (has("--mode") && !options.hosting) return "--mode is the host's to choose";
  if (has("--from") && options.hosting) return "--from goes with --join";
  return {};
}

}  // namespace

std::optional<PeerOptions> ParsePeerOptions(std::span<const std::string> words, std::string& error) {
  PeerOptions options;
  std::vector<std::string_view> given;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string& name = words[i];
    const auto* row = std::ranges::find(kRows, name, &Row::name);
    if (row == kRows.end()) {
      options.playerOptions.push_back(name);
      continue;
    }
    const bool another = i + 1 < words.size() && !words[i + 1].starts_with("--");
    const bool takes = !row->argument.empty() && another;
    const bool lacks = !row->argument.empty() && !another && !row->argument.starts_with('[');
    if (lacks || !row->take(options, takes ? words[i + 1] : std::string())) {
      error = name + " takes " + std::string(row->argument);
      return {};
    }
    given.push_back(row->name);
    if (takes) ++i;
  }
  error = CheckTogether(options, given);
  if (!error.empty()) return {};
  return options;
}

std::string PeerHelp() {
  std::string text =
      "usage: vantri-peer [--host [ADDRESS:PORT] | --join ADDRESS:PORT] [option]...\n"
      "Plays network matches by a strategy, without a window, and writes a line for each to standard "
      "output.\n";
  constexpr std::size_t kWidth = 34;
  for (const Row& row : kRows) {
    const std::string left = "  " + std::string(row.name) + " " + std::string(row.argument);
    text += Padded(left, kWidth) + std::string(row.help) + "\n";
  }
  text += Padded("  --help, --version", kWidth) + "this text, its own version\n";
  text += "\nThe options of its player, kept in the player file; --strategy is the one it plays by:\n" +
          PlayerOptionsHelp() + "\nWhat it can do wrong:\n";
  for (const Misplay& misplay : Misplays()) {
    text += Padded("  " + std::string(misplay.name), kWidth) + std::string(misplay.help) + "\n";
  }
  return text;
}

}  // namespace kv
