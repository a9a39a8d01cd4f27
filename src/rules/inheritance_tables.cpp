#include "rules/inheritance_tables.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

// clang-format off

constexpr InheritedGood kWeapons[] = {
    {    1,  2000, "Hand Axe"},
    { 2001,  2450, "Short Sword"},
    { 2451,  2850, "Voulge"},
    { 2851,  3250, "Military Fork"},
    { 3251,  3625, "Footman's Mace"},
    { 3626,  3965, "Sling"},
    { 3966,  4300, "Broad sword"},
    { 4301,  4635, "Halberd"},
    { 4636,  4955, "Long sword"},
    { 4956,  5275, "Knife"},
    { 5276,  5575, "Bastard sword"},
    { 5576,  5850, "Spear"},
    { 5851,  6100, "Warhammer"},
    { 6101,  6267, "Sickle"},
    { 6268,  6417, "Dagger"},
    { 6418,  6567, "Battle axe"},
    { 6568,  6717, "Bardiche"},
    { 6718,  6867, "Khopesh"},
    { 6868,  7007, "Morning star"},
    { 7008,  7132, "Scimitar"},
    { 7133,  7257, "Guisarme"},
    { 7258,  7382, "Glaive"},
    { 7383,  7507, "Footman's flail"},
    { 7508,  7632, "Fauchard"},
    { 7633,  7752, "Staff sling"},
    { 7753,  7872, "Spear, Great"},
    { 7873,  7992, "Scourge"},
    { 7993,  8112, "Quarter staff"},
    { 8113,  8232, "Javelin"},
    { 8233,  8352, "Dart"},
    { 8353,  8472, "Club"},
    { 8473,  8572, "Short bow"},
    { 8573,  8672, "Long bow"},
    { 8673,  8772, "Whip"},
    { 8773,  8847, "Spetum"},
    { 8848,  8922, "Ranseur"},
    { 8923,  8992, "Light crossbow"},
    { 8993,  9062, "Heavy crossbow"},
    { 9063,  9120, "Stilleto, Bloodthorn"},
    { 9121,  9177, "Trident"},
    { 9178,  9233, "Rapier, Petite"},
    { 9234,  9283, "Hand crossbow"},
    { 9284,  9333, "Partisan"},
    { 9334,  9383, "Lucern hammer"},
    { 9384,  9433, "Light lance"},
    { 9434,  9483, "Footman's pick"},
    { 9484,  9530, "Horseman's mace"},
    { 9531,  9577, "Awl Pike"},
    { 9578,  9622, "Horseman's pick"},
    { 9623,  9667, "Bill-guisarme"},
    { 9668,  9710, "Horseman's flail"},
    { 9711,  9753, "Guisarme-voulge"},
    { 9754,  9796, "Fauchard fork"},
    { 9797,  9839, "Bec de corbin"},
    { 9840,  9879, "Two-handed sword"},
    { 9880,  9919, "Hook fauchard"},
    { 9920,  9939, "Mancatcher"},
    { 9940,  9959, "Blowgun"},
    { 9960,  9969, "Medium lance"},
    { 9970,  9979, "Glaive-guisarme"},
    { 9980,  9986, "Heavy lance"},
    { 9987,  9991, "Jousting lance"},
    { 9992,  9996, "Harpoon"},
    { 9997,  9997, "Composite short bow"},
    { 9998,  9998, "Peashooter crossbow"},
    { 9999,  9999, "Great long bow"},
    {10000, 10000, "Composite long bow"},
};

constexpr InheritedGood kArmors[] = {
    {   1, 1500, "Padded"},
    {1501, 3000, "Leather"},
    {3001, 3400, "Studded Leather"},
    {3401, 3565, "Ring mail"},
    {3566, 3715, "Hide"},
    {3716, 3835, "Scale mail"},
    {3836, 3910, "Brigandine"},
    {3911, 3960, "Chain mail"},
    {3911, 3960, "Elven chain mail", "Elf"},
    {3961, 3975, "Splint mail"},
    {3976, 3985, "Banded mail"},
    {3986, 3993, "Bronze plate mail"},
    {3994, 3997, "Plate mail"},
    {3998, 3999, "Field plate"},
    {4000, 4000, "Full plate"},
};

constexpr InheritedGood kShields[] = {
    {  1, 210, "Helmet, Leather"},
    {211, 265, "Shield, Small"},
    {266, 308, "Helmet, chainmail"},
    {309, 338, "Shield, Buckler"},
    {339, 363, "Helmet, Basinet"},
    {364, 377, "Shield, Buckler, Spiked"},
    {378, 390, "Helmet, Great"},
    {391, 399, "Shield, Medium"},
    {400, 400, "Shield, Body"},
};

constexpr InheritedGood kMounts[] = {
    {   1, 1000, "Mule"},
    {1001, 2000, "Donkey"},
    {2001, 3000, "Horse, riding"},
    {3001, 3800, "Goat, Pack (trained)"},
    {3801, 4333, "Ox"},
    {4334, 4733, "Bull"},
    {4734, 5000, "Elven pony", "Elf"},
    {4734, 5000, "Pony"},
    {5001, 5160, "Camel"},
    {5161, 5308, "Horse, light war"},
    {5309, 5448, "Horse, draft"},
    {5449, 5584, "Horse, medium war"},
    {5585, 5704, "Horse, heavy war"},
    {5585, 5704, "Horse, dwarven war", "Dwarf"},
    {5705, 5784, "Llama"},
    {5785, 5864, "Ape, Pack (untrained)"},
    {5865, 5904, "Camel, Carrion"},
    {5905, 5944, "Elephant, Labor"},
    {5945, 5960, "Elephant, War"},
    {5961, 5965, "Lizard, Red Bellied Armored"},
    {5966, 5970, "Ape, Pack (trained)"},
    {5971, 5976, "Elephant, Sabre-toothed"},
    {5977, 5981, "Eagle, Giant"},
    {5982, 5985, "Dolphin, mount"},
    {5986, 5989, "Griffin"},
    {5990, 5993, "Hippogriff"},
    {5994, 5996, "Horse, Shirkmare"},
    {5997, 5998, "Killer Whale, mount"},
    {5999, 5999, "Centisteed"},
    {6000, 6000, "Eagle, Gargantuan"},
};

constexpr std::string_view kDeeds[] = {
    "Parcel of land in wilderness - harsh climate",
    "Parcel of land in wilderness inhabited by monsters",
    "Parcel of land in wilderness inhabited by humanoids or savages",
    "Parcel of land in territory of country - farming",
    "Parcel of land in territory of country - rugged terrain",
    "Parcel of land in territory of country - forest",
    "Parcel of land in territory of country - hamlet",
    "Parcel of land in territory of country - village",
    "Parcel of land in territory of country - village, home",
    "Parcel of land in territory of country - village, business",
    "Parcel in country borders - farm",
    "Parcel in country borders - forest",
    "Parcel in country borders - hamlet, home",
    "Parcel in country borders - hamlet, business",
    "Parcel in country borders - village, home",
    "Parcel in country borders - village, business",
    "Parcel in country borders - town, home",
    "Parcel in country borders - town, business",
    "Parcel in country borders - city, home",
    "Parcel in country borders - city, business",
};

struct TierModifiers {
  int SocialClass;
  std::array<int, 4> ByKind;
};

constexpr TierModifiers kTierModifiers[] = {
    // class   weapon  armor shield  mount
    { 1,      {-1000,  -500,  -200,  -500}},
    { 2,      {-1000,  -500,  -200,  -500}},
    { 3,      {-1000,  -500,  -200,  -500}},
    { 4,      { -500,  -200,  -100,  -200}},
    { 5,      { -200,  -100,  -100,  -100}},
    { 6,      { -100,   -50,   -10,   -50}},
    { 7,      {  -50,   -25,    -5,   -25}},
    { 9,      {   50,    25,     5,    25}},
    {10,      {  100,    50,    10,    50}},
    {11,      {  200,   100,    20,   100}},
    {12,      {  500,   200,   100,   200}},
};

// clang-format on

constexpr int kNumbersPerDeed = 5;

}  // namespace

std::span<const InheritedGood> InheritanceTable(InheritanceKind kind) {
  switch (kind) {
    case InheritanceKind::Weapon:
      return kWeapons;
    case InheritanceKind::Armor:
      return kArmors;
    case InheritanceKind::Shield:
      return kShields;
    case InheritanceKind::Mount:
      break;
  }
  return kMounts;
}

int InheritanceDie(InheritanceKind kind) {
  return InheritanceTable(kind).back().High;
}

int InheritanceTierModifier(int socialClass, InheritanceKind kind) {
  for (const TierModifiers& tier : kTierModifiers) {
    if (tier.SocialClass == socialClass) return tier.ByKind[static_cast<std::size_t>(kind)];
  }
  return 0;
}

InheritanceResult ReadInheritance(InheritanceKind kind, int total, std::string_view race) {
  if (total < 1) return {{}, -1};
  if (total > InheritanceDie(kind)) return {{}, 1};
  InheritanceResult plain;
  for (const InheritedGood& good : InheritanceTable(kind)) {
    if (total < good.Low || total > good.High) continue;
    if (Contains(race, good.Race)) return {good.Name, 0};
    if (good.Race.empty()) plain.Name = good.Name;
  }
  return plain;
}

std::string InheritedText(std::string_view name, int enchantment) {
  if (enchantment == 0) return std::string(name);
  return enchantment < 0 ? Format("%s-%i", name, -enchantment) : Format("%s+%i", name, enchantment);
}

std::string_view InheritedDeed(int roll) {
  return kDeeds[static_cast<std::size_t>((std::clamp(roll, 1, 100) - 1) / kNumbersPerDeed)];
}

}  // namespace veld
