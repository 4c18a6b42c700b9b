#include "Effects.h"

#include <array>
#include <cmath>

#include "Instruments.h"

namespace kv::sound {
namespace {

// Loudness by mute category. Hover comes with every movement of the mouse, so it is barely there; the events
// carry the match and stand out. Within the buttons the aims differ a little, so that the short low ones and
// the long bright ones are alike both to the ear's measure and to the plain mean of the samples.
constexpr double kHighlight = -38;
constexpr double kButtons = -24;
constexpr double kLowButtons = kButtons - 1.5;
constexpr double kBrightButtons = kButtons + 1.4;
constexpr double kCards = -23.5;
constexpr double kEvents = -20;

// ---- cards

Stereo Turn() {
  Stereo sound;
  sound.Add(Strike(1850, 0.12, kTick, 0.0008), 0, 1, -0.1);
  sound.Add(Burst(0.02, 2500, 9000, 0.003, 11), 0, 0.5);
  sound.Add(Strike(1380, 0.1, kTick, 0.0008), 0.07, 0.6, 0.1);
  Room(sound, 0.35, 0.5, 0.14);
  sound.setSeconds(0.28);
  return sound;
}

Stereo Draw() {
  Stereo sound;
  Wave slide = Swish(0.24, 1500, 4800, 0.8, 0.7, 21);
  Roughen(slide, 160, 22);
  sound.Add(slide, 0, 1.1, -0.2);
  sound.Add(Burst(0.05, 1800, 9000, 0.009, 23), 0.225, 0.9, 0.15);
  sound.Add(Thump(260, 150, 0.08, 0.022), 0.225, 0.55, 0.15);
  Room(sound, 0.18, 0.5, 0.12);
  sound.setSeconds(0.4);
  return sound;
}

Stereo PlayCard() {
  Stereo sound;
  sound.Add(Swish(0.1, 900, 2600, 0.9, 0.85, 31), 0, 0.35, -0.3);
  sound.Add(Burst(0.14, 500, 4200, 0.016, 32), 0.09, 1.3);
  sound.Add(Thump(200, 92, 0.18, 0.05), 0.09, 1.0);
  sound.Add(Burst(0.06, 1500, 6500, 0.012, 33), 0.125, 0.35, 0.3);
  Room(sound, 0.2, 0.55, 0.18);
  sound.setSeconds(0.42);
  return sound;
}

// ---- buttons and the highlight

Stereo Click() {
  Stereo sound;
  sound.Add(Strike(310, 0.12, kSwitch, 0.0008), 0, 1);
  sound.Add(Burst(0.02, 1600, 8000, 0.0035, 41), 0, 0.8);
  sound.Add(Thump(150, 90, 0.08, 0.02), 0.001, 0.6);
  sound.Add(Burst(0.015, 2400, 9000, 0.0025, 42), 0.052, 0.35);
  Room(sound, 0.15, 0.5, 0.25);
  sound.setSeconds(0.36);
  return sound;
}

Stereo Hover() {
  Stereo sound;
  for (const double octave : {1.0, 2.0}) {
    Wave breath = Glide(900 * octave, 1080 * octave, 0.09);
    Swell(breath, 0.25);
    sound.Add(breath, 0, 1 / (octave * octave));
  }
  sound.setSeconds(0.1);
  return sound;
}

Stereo Check() {
  Stereo sound;
  sound.Add(Strike(980, 0.12, kSwitch, 0.0008), 0, 0.8, -0.1);
  sound.Add(Burst(0.02, 2200, 9000, 0.003, 51), 0, 0.7);
  sound.Add(Strike(1470, 0.1, kTick, 0.001), 0.045, 0.6, 0.1);
  Room(sound, 0.18, 0.5, 0.25);
  sound.setSeconds(0.36);
  return sound;
}

Stereo Accept() {
  Stereo sound;
  sound.Add(Strike(Pitch(0), 0.4, kWood, 0.001), 0, 1, -0.2);
  sound.Add(Strike(Pitch(7), 0.5, kWood, 0.001), 0.085, 1, 0.2);
  sound.Add(Strike(Pitch(19), 0.4, kGlass, 0.002), 0.085, 0.18, 0.2);
  Room(sound, 0.2, 0.7, 0.25);
  sound.setSeconds(0.55);
  return sound;
}

Stereo Buy() {
  struct Hit {
    double at, pitch, gain, pan;
  };
  constexpr std::array<Hit, 7> kHits = {{{0, 3150, 1, -0.3},
                                         {0.055, 3720, 0.75, 0.25},
                                         {0.1, 2890, 0.85, 0},
                                         {0.175, 4010, 0.6, -0.4},
                                         {0.225, 3350, 0.65, 0.4},
                                         {0.32, 3810, 0.4, 0.1},
                                         {0.37, 4170, 0.3, -0.1}}};
  Stereo sound;
  std::uint32_t seed = 61;
  for (const Hit& hit : kHits) {
    sound.Add(Strike(hit.pitch, 0.5, kCoin, 0.0006), hit.at, hit.gain, hit.pan);
    sound.Add(Burst(0.015, 3000, 12000, 0.003, seed++), hit.at, hit.gain * 0.6, hit.pan);
    sound.Add(Thump(420, 260, 0.05, 0.012), hit.at, hit.gain * 0.4, hit.pan);
  }
  // the till: its drawer slides home under the coins, and a bell says that it is done
  sound.Add(Swish(0.16, 500, 1500, 0.9, 0.8, 69), 0.22, 0.5, -0.2);
  sound.Add(Thump(170, 105, 0.12, 0.03), 0.37, 1.3, -0.1);
  sound.Add(Burst(0.04, 900, 5200, 0.007, 68), 0.37, 0.7, -0.1);
  sound.Add(Strike(Pitch(24), 0.6, kGlass, 0.001), 0.4, 0.5, 0.35);
  Room(sound, 0.4, 0.8, 0.3);
  sound.setSeconds(0.67);
  return sound;
}

Stereo Panel() {
  Stereo sound;
  Wave slide = Swish(0.3, 420, 1500, 0.9, 0.75, 71);
  Roughen(slide, 220, 72);
  sound.Add(slide, 0, 1, -0.25);
  Wave motor = Brass(120, 205, 0.28, 6, 1);
  Swell(motor, 0.6);
  LowPass(motor, 900);
  sound.Add(motor, 0, 0.3, 0.1);
  sound.Add(Strike(230, 0.15, kSwitch, 0.0008), 0.285, 0.9, 0.2);
  sound.Add(Burst(0.03, 900, 6000, 0.006, 73), 0.285, 0.8, 0.2);
  Room(sound, 0.2, 0.6, 0.2);
  sound.setSeconds(0.52);
  return sound;
}

// ---- events

Stereo Bust() {
  Stereo sound;
  sound.Add(Thump(170, 46, 0.7, 0.17), 0, 1.1);
  sound.Add(Burst(0.2, 300, 5000, 0.025, 81), 0, 1.1);
  Horn(sound, -18, -30, 0.02, 0.8, 0.45, 1500);
  Horn(sound, -17, -29.3, 0.02, 0.8, 0.35, 1300);
  Room(sound, 0.5, 1.1, 0.5);
  sound.setSeconds(1.1);
  return sound;
}

Stereo WinSet() {
  Stereo sound;
  Chime(sound, 0, 0, 0.8, -0.6);
  Chime(sound, 4, 0.12, 0.85, 0.6);
  Chime(sound, 7, 0.24, 0.9, -0.3);
  Chime(sound, 12, 0.36, 1, 0.1);
  Drum(sound, Pitch(-36), 0.36, 0.5);
  for (const double note : {-12.0, -5.0}) Horn(sound, note, note, 0.36, 0.7, 0.16, 1800);
  constexpr std::array<double, 3> kLights = {19, 24, 28};
  Sparkle(sound, kLights, 0.46, 0.09, 0.12);
  Room(sound, 0.8, 1.2, 0.8);
  sound.setSeconds(1.5);
  return sound;
}

Stereo LoseSet() {
  Stereo sound;
  DarkChime(sound, 7, 0, 1, 0.3);
  DarkChime(sound, 3, 0.19, 0.95, 0);
  DarkChime(sound, 0, 0.38, 1, -0.3);
  DarkChime(sound, -5, 0.38, 0.5, 0.1);
  Drum(sound, Pitch(-38), 0.38, 0.4);
  Room(sound, 0.7, 1.3, 0.7);
  sound.setSeconds(1.4);
  return sound;
}

Stereo WinMatch() {
  Stereo sound;
  constexpr std::array<double, 4> kRise = {0, 4, 7, 12};
  double at = 0;
  for (const double note : kRise) {
    Chime(sound, note, at, 0.7, at < 0.2 ? -0.5 : 0.5);
    Horn(sound, note - 12, note - 12, at, 0.3, 0.28, 2200);
    Drum(sound, Pitch(-36), at, 0.22 + at * 0.4);
    at += 0.15;
  }
  Cymbal(sound, 0.1, 1.5, 0.35, 0.16, 501);
  Drum(sound, Pitch(-36), 0.6, 0.9);
  for (const double note : {-24.0, -12.0, -5.0, 0.0, 4.0, 7.0}) Horn(sound, note, note, 0.6, 1.7, 0.2, 2800);
  constexpr std::array<double, 10> kLights = {19, 24, 28, 24, 31, 28, 36, 31, 40, 36};
  Sparkle(sound, kLights, 0.75, 0.1, 0.2);
  Room(sound, 0.8, 1.5, 1.0);
  sound.setSeconds(2.9);
  return sound;
}

Stereo LoseMatch() {
  Stereo sound;
  DarkChime(sound, 7, 0, 0.9, 0.3);
  DarkChime(sound, 5, 0.26, 0.9, 0.1);
  DarkChime(sound, 3, 0.52, 0.95, -0.1);
  DarkChime(sound, 0, 0.84, 1, -0.3);
  for (const double note : {-24.0, -17.0}) Horn(sound, note, note, 0, 0.9, 0.22, 900);
  for (const double note : {-26.0, -19.0, -9.0}) Horn(sound, note, note - 2, 0.84, 1.2, 0.24, 800);
  Drum(sound, Pitch(-38), 0.84, 0.7);
  Drum(sound, Pitch(-40), 1.24, 0.45);
  Room(sound, 0.7, 1.6, 0.9);
  sound.setSeconds(2.3);
  return sound;
}

Stereo Tie() {
  // The same two notes on one side, then on the other: neither leads.
  Stereo sound;
  for (const double note : {0.0, 5.0}) {
    Chime(sound, note, 0, 0.8, -0.8);
    Chime(sound, note, 0.22, 0.8, 0.8);
  }
  Room(sound, 0.6, 1.1, 0.7);
  sound.setSeconds(1.2);
  return sound;
}

Stereo Propose() {
  Stereo sound;
  Chime(sound, 2, 0, 0.8, -0.5);
  Chime(sound, 9, 0.16, 0.9, 0.5);
  Wave lift = Glide(Pitch(9), Pitch(11), 0.3);
  Swell(lift, 0.4);
  sound.Add(lift, 0.2, 0.25);
  Room(sound, 0.6, 1.1, 0.5);
  sound.setSeconds(0.95);
  return sound;
}

Stereo LevelUp() {
  Stereo sound;
  constexpr std::array<double, 8> kRun = {-12, -8, -5, 0, 4, 7, 12, 16};
  Wave riser = Swish(0.66, 500, 6500, 0.9, 0.92, 111);
  sound.Add(riser, 0, 0.22, 0);
  double at = 0;
  for (const double note : kRun) {
    Chime(sound, note, at, 0.55, std::sin(at * 12) * 0.8);
    at += 0.075;
  }
  Drum(sound, Pitch(-36), at, 0.8);
  Cymbal(sound, at, 1.2, 0.04, 0.18, 511);
  for (const double note : {-24.0, -12.0, -5.0, 0.0, 4.0, 11.0}) Horn(sound, note, note, at, 1.2, 0.17, 3200);
  for (const double note : {7.0, 12.0, 19.0}) Chime(sound, note, at, 0.5, note / 19 - 0.6);
  Chime(sound, 24, at + 0.22, 0.45, 0.4);  // one step more than one expects
  constexpr std::array<double, 8> kLights = {24, 31, 28, 36, 31, 40, 36, 43};
  Sparkle(sound, kLights, at + 0.3, 0.085, 0.16);
  Room(sound, 0.85, 1.4, 1.0);
  sound.setSeconds(2.45);
  return sound;
}

constexpr std::array<Effect, 17> kEffects = {{{"turn", Turn, kCards, 0.04},
                                              {"click", Click, kLowButtons, 0.08},
                                              {"hover", Hover, kHighlight, 0.02},
                                              {"draw", Draw, kCards, 0.04},
                                              {"bust", Bust, kEvents, 0.25},
                                              {"playcard", PlayCard, kCards, 0.05},
                                              {"loseset", LoseSet, kEvents, 0.35},
                                              {"winset", WinSet, kEvents, 0.35},
                                              {"losematch", LoseMatch, kEvents, 0.5},
                                              {"winmatch", WinMatch, kEvents, 0.5},
                                              {"tie", Tie, kEvents, 0.3},
                                              {"check", Check, kLowButtons, 0.08},
                                              {"propose", Propose, kEvents, 0.25},
                                              {"accept", Accept, kButtons, 0.12},
                                              {"buy", Buy, kBrightButtons, 0.15},
                                              {"levelup", LevelUp, kEvents, 0.5},
                                              {"panel", Panel, kButtons, 0.06}}};

}  // namespace

std::span<const Effect> Effects() {
  return kEffects;
}

}  // namespace kv::sound
