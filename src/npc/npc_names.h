#pragma once

#include <span>
#include <string_view>

namespace veld {

/// The names of a people. Those without surnames go by one name.
struct NpcNames {
  std::span<const std::string_view> Men;
  std::span<const std::string_view> Women;
  std::span<const std::string_view> Surnames;
};

/// The names of the people that a race belongs to. A half-elf was named by one of the parents: `takesAfterHumans`. A
/// race that no people is known of has human names.
const NpcNames& NamesOfRace(std::string_view race, bool takesAfterHumans);

}  // namespace veld
