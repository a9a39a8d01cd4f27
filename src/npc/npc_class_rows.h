#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace veld {

// What a character that plays itself takes first. Lists have '|' between the names, the dearest wish first; what he
// may not have, can't pay or can't carry he passes over.

/// What the classes of one way of life have in common: it follows what the class itself wants.
struct NpcWayOfLife {
  std::string_view Name;
  std::string_view Armor;    ///< where the class names none
  std::string_view Shields;  ///< with a weapon for one hand
  std::string_view Skills;
  std::string_view Talents;
  std::string_view Goods;
  std::string_view Packs;  ///< of which he buys one
};

/// A single class: its way of life, and what it wants besides.
struct NpcClassRow {
  std::string_view Class;
  std::string_view WayOfLife;
  std::string_view Abilities;  ///< the short names, the most needed first
  std::string_view Weapons;
  std::string_view Armor;  ///< empty: that of the way of life; "none": he wears none
  std::string_view Skills;
  std::string_view Talents;
  std::string_view Styles;  ///< proficiencies beside weapons
  std::string_view Goods;
};

std::span<const NpcWayOfLife> NpcWaysOfLife();
/// A row for every single class, in the order of the class table.
std::span<const NpcClassRow> NpcClassRows();

/// What a class or a combination wants, each list in order and every name once. A combination takes turns among its
/// classes, but wears only what all of them wear.
struct NpcWants {
  std::vector<std::string_view> Abilities;
  std::vector<std::string_view> Weapons;
  std::vector<std::string_view> Armor;
  std::vector<std::string_view> Shields;
  std::vector<std::string_view> Skills;
  std::vector<std::string_view> Talents;
  std::vector<std::string_view> Styles;
  std::vector<std::string_view> Goods;
  std::vector<std::string_view> Packs;
};

/// The wants of a class name of the class table.
NpcWants NpcWantsOf(std::string_view className);

/// The names of the classes of a combination; a single class by itself.
std::vector<std::string_view> NpcSingleClasses(std::string_view className);

}  // namespace veld
