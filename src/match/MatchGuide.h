// What a newcomer is told in the first arcade match: an offer, and when it is taken, each of five hints in
// the turn in which it matters, gone with the move that it speaks of. It only looks at the match, and
// remembers in the settings what was seen; a player file knows nothing of it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "match/MatchObserver.h"
#include "match/MatchShown.h"

namespace kv {

class Settings;
class clsGame;
class clsPlayer;

enum class Guidance : std::uint8_t { None, Offer, Turn, SideCard, Sign, Stand, Special };

/// What is said of it now; empty for None.
[[nodiscard]] std::string GuideText(Guidance guidance, const MatchShown& shown);

class MatchGuide final : public MatchObserver {
 public:
  /// `settings` may be null: then there is never anything. All must outlive it.
  MatchGuide(const clsGame& game, const clsPlayer& player, Settings* settings, const MatchShown& shown);

  /// What is to be said has changed.
  std::function<void()> Changed;

  /// Whether anything may come in this match; never against a peer.
  [[nodiscard]] bool active() const { return active_; }
  [[nodiscard]] Guidance now() const { return now_; }
  [[nodiscard]] std::string text() const { return GuideText(now_, shown_); }

  void Happened(const MatchEvent& event) override;
  /// What the person may use has changed: the moment of a hint may have come.
  void Look();
  /// The offer is taken.
  void Accept();
  /// No more of it, for good.
  void Decline();

 private:
  void See(const event::MatchBegun& begun);
  void See(const event::Flipped& flipped);
  void See(const event::Played& played);
  void See(const event::EndedTurn& ended);
  void See(const event::Stood& stood);
  void See(const event::SetDecided& decided);
  void See(const event::MatchDecided& decided);
  template <typename Other>
  void See(const Other&) {}
  [[nodiscard]] bool Seen(Guidance guidance) const;
  void MarkSeen(Guidance guidance);
  [[nodiscard]] std::string NameOf(Guidance guidance) const;
  [[nodiscard]] bool Matters(Guidance guidance) const;
  /// It was followed, or its moment has passed.
  void Done();
  void Say(Guidance guidance);

  const MatchShown& shown_;
  Settings* const settings_;
  const std::string player_;  // as a part of a setting's name
  bool active_ = false;
  Guidance now_ = Guidance::None;
};

}  // namespace kv
