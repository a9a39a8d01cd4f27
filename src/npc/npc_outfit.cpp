#include <algorithm>

#include "npc/npc_player.h"
#include "rules/ability_effects.h"
#include "rules/class_table.h"
#include "rules/equipment_catalogue.h"
#include "rules/proficiency_table.h"
#include "steps/finish/equip.h"
#include "steps/finish/equipment_purchase.h"
#include "text/search.h"

// What the player carries: the weapons that he means to learn and buy, and the shop.

namespace veld {

namespace {

constexpr std::int64_t kCopperPerBP = 2'500;

std::size_t At(int number) {
  return static_cast<std::size_t>(number);
}

}  // namespace

void NpcPlayer::LearnGoods(const Game& game) {
  goods_.clear();
  // The first of a name is the one that a purchase takes.
  for (const EquipmentRecord& good : game.EquipmentTable) {
    if (!good.Name.Empty()) goods_.emplace(good.Name.View(), &good);
  }
}

const EquipmentRecord* NpcPlayer::GoodNamed(std::string_view name) const {
  const auto found = goods_.find(name);
  return found == goods_.end() ? nullptr : found->second;
}

float NpcPlayer::Allowance() const {
  return static_cast<float>(StrengthEffectOf(game_->sheet.Strength).WeightAllowance);
}

bool NpcPlayer::MayUseAny() const {
  return std::ranges::any_of(calling_->Classes, [](int row) {
    return std::ranges::none_of(ClassAt(row).WeaponAllowed, [](int flag) { return flag != 0; });
  });
}

/// True of a weapon of a book in use that one of his classes may learn.
bool NpcPlayer::MayUse(int proficiency) const {
  if (!game_->IsOn(At(ProficiencyTable()[At(proficiency)].Book))) return false;
  const auto allows = [&](int row) { return ClassAt(row).WeaponAllowed[At(proficiency)] != 0; };
  return MayUseAny() || std::ranges::any_of(calling_->Classes, allows);
}

/// What he may use and somebody sells: first what his class wants, then the rest, the cheapest first.
std::vector<NpcWeapon> NpcPlayer::UsableWeapons() const {
  std::vector<NpcWeapon> weapons;
  const auto add = [&](int row) {
    const ProficiencyRecord& record = ProficiencyTable()[At(row)];
    const bool isWeapon = record.Kind == ProficiencyKind::Melee || record.Kind == ProficiencyKind::Missile;
    const EquipmentRecord* good = isWeapon && !record.Name.empty() ? GoodNamed(TrimRight(record.Name)) : nullptr;
    if (good && good->Category == kWeaponCategory && MayUse(row)) weapons.push_back({row, good});
  };
  for (const std::string_view name : wants_->Weapons) {
    const int row = FindProficiencyRow(name);
    if (row >= 0 && TrimRight(ProficiencyTable()[At(row)].Name) == name) add(row);
  }
  const auto wanted = static_cast<std::ptrdiff_t>(weapons.size());
  for (int row = 0; row < kProficiencyTableRows; ++row) add(row);
  std::ranges::stable_sort(weapons.begin() + wanted, weapons.end(), {},
                           [](const NpcWeapon& weapon) { return PriceInCopper(*weapon.Good); });
  return weapons;
}

/// What he has, and what the BP that he may keep will bring.
std::int64_t NpcPlayer::MoneyToCome() const {
  const float bp = std::clamp(game_->run.BuildingPoints - 1, 0.0F, kMostKeptBP);
  return PurseWorth(game_->sheet) + static_cast<std::int64_t>(bp) * kCopperPerBP;
}

/// The weapons that he will learn and buy: the first of his class that he can pay and carry, and others for the slots
/// beside it.
void NpcPlayer::ChooseWeapons() {
  constexpr int kMostWeapons = 3;
  constexpr std::int64_t kForClothes = 300;
  const auto most = At(std::clamp(game_->sheet.ProficiencySlots, 1, kMostWeapons));
  std::int64_t money = MoneyToCome();
  float carried = 0.5F;  // his shirt
  // The first one may take most of his purse and strength, the others what armor leaves.
  const auto fits = [&](const NpcWeapon& weapon) {
    const bool isFirst = weapons_.empty();
    const float room = Allowance() * (isFirst ? 0.6F : 0.3F);
    const std::int64_t kept = isFirst ? kForClothes : money / 2;
    return PriceInCopper(*weapon.Good) + kept <= money && carried + weapon.Good->Weight < room;
  };
  const std::vector<NpcWeapon> usable = UsableWeapons();
  const auto take = [&](const NpcWeapon& weapon) {
    weapons_.push_back(weapon);
    money -= PriceInCopper(*weapon.Good);
    carried += weapon.Good->Weight;
  };
  for (const NpcWeapon& weapon : usable) {
    if (weapons_.size() >= std::min(most, wants_->Weapons.size())) break;
    const bool isHeld = std::ranges::find(weapons_, weapon.Proficiency, &NpcWeapon::Proficiency) != weapons_.end();
    if (!isHeld && fits(weapon)) take(weapon);
  }
  if (!weapons_.empty()) return;
  // Too poor or too weak for any of them: the lightest that he can pay.
  const NpcWeapon* lightest = nullptr;
  for (const NpcWeapon& weapon : usable) {
    if (PriceInCopper(*weapon.Good) <= money && (!lightest || weapon.Good->Weight < lightest->Good->Weight))
      lightest = &weapon;
  }
  if (lightest) take(*lightest);
}

// --- The shop ---

/// Buys one of a good that he can pay and carry without a burden; `keptRoom` pounds and `keptCopper` are for others.
bool NpcPlayer::Buy(Form& form, std::string_view name, float keptRoom, std::int64_t keptCopper) {
  const EquipmentRecord* good = GoodNamed(name);
  if (!good || PriceInCopper(*good) + keptCopper > PurseWorth(game_->sheet)) return false;
  const float weight = IsCarried(*good) ? good->Weight : 0;
  if (game_->sheet.CarriedWeightLbs + weight + keptRoom >= Allowance()) return false;
  const int owned = good->Quantity;
  form.Type(EquipControl::Search, name);
  // A search tells behind the name which category the good stands in.
  const std::vector<std::string>& lines = form.Items(EquipControl::Goods);
  const std::string found = std::string(name) + " (";
  const auto line =
      std::ranges::find_if(lines, [&](const std::string& text) { return text == name || text.starts_with(found); });
  if (!form.Choose(EquipControl::Goods, static_cast<int>(line - lines.begin()))) return false;
  form.Press(EquipControl::Add);
  return good->Quantity > owned;
}

bool NpcPlayer::BuyFirst(Form& form, const std::vector<std::string_view>& names, float keptRoom,
                         std::int64_t keptCopper) {
  return std::ranges::any_of(names, [&](std::string_view name) { return Buy(form, name, keptRoom, keptCopper); });
}

void NpcPlayer::BuyWeapons(Form& form) {
  struct Ammunition {
    std::string_view Weapon;
    std::string_view Good;
  };
  constexpr Ammunition kAmmunition[] = {
      {"Bow: Daikyu", "Daikyu arrows, dozen"},
      {"Bow", "Arrow, flight, dozen"},
      {"Crossbow: Hand", "Bolt, hand crossbow, dozen"},
      {"Crossbow: Heavy", "Bolt, heavy crossbow, dozen"},
      {"Crossbow: Light", "Bolt, light crossbow, dozen"},
      {"Staff Sling", "Stones, staff-slinging, ten"},
      {"Sling", "Pellets, baked clay, twenty"},
      {"Blowgun", "Needle, blowgun, dozen"},
  };
  bool isArmed = false;
  for (const NpcWeapon& weapon : weapons_) {
    const std::string_view name = weapon.Good->Name.View();
    if (!Buy(form, name)) continue;
    isArmed = true;
    const auto shots =
        std::ranges::find_if(kAmmunition, [&](const auto& kind) { return name.starts_with(kind.Weapon); });
    if (shots != std::end(kAmmunition)) Buy(form, shots->Good);
    // What is thrown is gone.
    if (name == "Dart" || name == "Javelin") {
      for (int more = 0; more < 3; ++more) Buy(form, name, 10, 500);
    }
  }
  if (isArmed) return;
  for (const NpcWeapon& weapon : UsableWeapons()) {
    if (Buy(form, weapon.Good->Name.View())) return;
  }
}

void NpcPlayer::PlayShop(Form& form) {
  const bool isTiny = game_->sheet.WeaponSizeClass == 0;
  const bool isFemale = game_->sheet.Gender == "Female";
  using Names = std::vector<std::string_view>;
  const Names shirts = isTiny          ? Names{"Pixie-sized wardrobe", "Shift, linen", "Kerchief, linen"}
                       : !WearsArmor() ? Names{"Robe, plain", "Tunic, peasant", "Shift, linen"}
                       : isFemale      ? Names{"Dress, peasant", "Tunic, peasant", "Shift, linen"}
                                       : Names{"Tunic, peasant", "Shift, linen"};
  // The dearer and heavier shirt only where the weapon stays within reach.
  const std::int64_t weaponPrice = weapons_.empty() ? 0 : PriceInCopper(*weapons_.front().Good);
  const float weaponWeight = weapons_.empty() ? 0 : weapons_.front().Good->Weight;
  if (!BuyFirst(form, shirts, weaponWeight, weaponPrice)) BuyFirst(form, {"Shift, linen", "Kerchief, linen"});
  BuyWeapons(form);
  const float roomForPack = Allowance() > 30 ? 12.0F : 1.0F;
  constexpr std::int64_t kForPack = 500;
  BuyFirst(form, wants_->Armor, roomForPack, kForPack);
  const bool oneHand = !weapons_.empty() && ProficiencyTable()[At(weapons_.front().Proficiency)].WeaponSize != "L";
  if (oneHand) BuyFirst(form, wants_->Shields, roomForPack, kForPack);
  if (!isTiny) {
    for (const std::string_view garment : {"Boots, soft", "Belt, plain", "Cloak, peasant"}) Buy(form, garment, 5, 300);
    if (!isFemale && WearsArmor()) Buy(form, "Breeches, peasant", 5, 300);
  }
  constexpr std::size_t kMostTools = 3;
  std::size_t tools = 0;
  for (const std::string_view good : wants_->Goods) {
    if (tools < kMostTools && Buy(form, good, 6, 400)) ++tools;
  }
  if (BuyFirst(form, isTiny ? Names{"Pre-pack: Pixie fairy traveler"} : wants_->Packs, 0, 50)) return Leave(form);
  BuyFirst(form, {"Backpack, small", "Sack, small"});
  BuyFirst(form, {"Rations, iron, one week", "Rations, orcish, one week", "Rations, standard, one day"});
  for (const std::string_view good : {"Waterskin, half gallon", "Flint and steel", "Torch"}) Buy(form, good);
  Leave(form);
}

}  // namespace veld
