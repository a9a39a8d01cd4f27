#pragma once

#include <array>
#include <string_view>

namespace veld {

/// A spelling that one of the books' lists uses for a spell which the catalogue holds under another.
struct SpellAlias {
  std::string_view Printed;
  std::string_view Catalogue;
};

inline constexpr std::array<SpellAlias, 5> SpellAliases{{
    {"Deepockets", "Deeppockets"},
    {"Detect Invisibilty", "Detect Invisibility"},
    {"Diving Rod", "Divining Rod"},
    {"Noonan's Nonsensical Nulifier", "Noonan's Nonsensical Nullifier"},
    {"Phantsmal Force", "Phantasmal Force"},
}};

/// The name under which the catalogue holds a spell that a list prints as `name`.
constexpr std::string_view SpellNameInCatalogue(std::string_view name) {
  for (const SpellAlias& alias : SpellAliases) {
    if (alias.Printed == name) return alias.Catalogue;
  }
  return name;
}

}  // namespace veld
