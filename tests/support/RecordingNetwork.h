// A peer that only listens: it remembers what it is told and is as far as the test says. It answers nothing.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "match/MatchPartners.h"

namespace kv::test {

class RecordingNetwork : public MatchNetwork {
 public:
  void NetSend(const std::string& message) override { sent.push_back(message); }
  [[nodiscard]] bool hosting() const override { return host; }
  [[nodiscard]] bool peerReady() const override { return ready; }
  void SetDecided() override { ++setsDecided; }
  void startTurnRepeat() override { sent.emplace_back("(repeat)"); }
  void SubmitChat(const std::string& line) override { sent.push_back(line); }
  [[nodiscard]] int Sent(const std::string& message) const {
    return static_cast<int>(std::count(sent.begin(), sent.end(), message));
  }

  std::vector<std::string> sent;  // messages, chat lines and "(repeat)", in order
  bool host = false;
  bool ready = false;  // the peer's "[Play]" has arrived
  int setsDecided = 0;
};

}  // namespace kv::test
