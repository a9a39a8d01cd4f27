#include "steps/race/step_three_menu.h"

#include <string>

namespace veld {

namespace {

constexpr int kAdjustable = 6;  // Strength to Charisma
constexpr int kTargets = kAdjustable - 1;

std::string MenuText(int ability, const char* change) { return "&" + std::string(AbilityName(ability)) + " " + change; }

}  // namespace

bool IsAdjustCommand(int id) { return id >= kFirstAdjust && id < kFirstAdjust + kAdjustable * kTargets; }

AdjustCommand AdjustCommandOf(int id) {
  const int source = (id - kFirstAdjust) / kTargets;
  const int place = (id - kFirstAdjust) % kTargets;
  return {static_cast<Ability>(source), static_cast<Ability>(place < source ? place : place + 1)};
}

bool IsBurnCommand(int id) { return id >= kFirstBurn && id < kFirstBurn + kAbilityCount; }

Ability BurnCommandOf(int id) { return static_cast<Ability>(id - kFirstBurn); }

std::vector<MenuItem> StepThreeMenu() {
  MenuItem adjust{.Text = "&Adjust"};
  for (int id = kFirstAdjust; IsAdjustCommand(id); ++id) {
    const AdjustCommand command = AdjustCommandOf(id);
    if ((id - kFirstAdjust) % kTargets == 0) adjust.Items.push_back({.Text = MenuText(command.Source, "-2")});
    adjust.Items.back().Items.push_back({.Id = id, .Text = MenuText(command.Target, "+1")});
  }
  MenuItem burn{.Text = "&Burn for BP"};
  for (int id = kFirstBurn; IsBurnCommand(id); ++id) {
    burn.Items.push_back({.Id = id, .Text = MenuText(BurnCommandOf(id), "-1")});
  }
  return {adjust, burn, {.Id = kReroll, .Text = "&Re-roll"}, {.Id = kEnterStats, .Text = "&Enter Stats"}};
}

}  // namespace veld
