#include "sheets/tab_sheet.h"

#include "sheets/sheet_content.h"
#include "steps/skills/proficiency_purchase.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

// Blanks around the tabs and at line ends are part of the format: spreadsheets in use were made for it.

class Cells {
 public:
  template <typename... Values>
  void Add(std::string_view pattern, const Values&... values) {
    text_ += Format(pattern, values...);
  }
  std::string Take() { return std::move(text_); }

 private:
  std::string text_;
};

void AddFacts(Cells& cells, const CharacterSheet& sheet) {
  const auto add = [&](std::string_view label, std::string_view value) {
    cells.Add("%s \t %s \n", label, OneLine(value));
  };
  // For the player to fill in.
  const auto addOpen = [&](std::string_view label) { add(label, ""); };
  add("Name", sheet.CharacterName);
  add("Alignment", sheet.Alignment);
  add("Race", sheet.RaceName);
  add("Class", sheet.ClassName);
  add("Level", sheet.LevelText);
  add("Player Name", sheet.PlayerName);
  addOpen("Family Clan");
  addOpen("Homeland");
  addOpen("Patron Gawd");
  addOpen("Liege/Patron");
  add("Social Class", sheet.SocialClassName);
  addOpen("Appearance");
  addOpen("Birth Date");
  addOpen("Birth Rank");
  addOpen("Siblings");
  add("Sex", sheet.Gender);
  cells.Add("Age \t %i \n", sheet.Age);
  cells.Add("Height \t %i\" \n", sheet.HeightInches);
  addOpen("Family History");
  add("Hair", sheet.HairColor);
  add("Eyes", sheet.EyeColor);
  cells.Add("Weight \t %i lbs \n", sheet.WeightLbs);
  add("Handeness", sheet.Handedness);
  addOpen("Quirks");
  addOpen("Quirks2");
}

void AddAbilities(Cells& cells, const CharacterSheet& s) {
  cells.Add("STR \t %-2i \t %-3i  \t %s  \t %s \t %i \t %s \t %i\n", s.Strength.Whole, s.Strength.Percentile,
            s.StrengthHitAdj, s.StrengthDamageAdj, s.WeightAllowanceLight, s.OpenDoors, s.BendBars);
  cells.Add("DEX \t %-2i \t %-3i  \t %s  \t %s \t %s \n", s.Dexterity.Whole, s.Dexterity.Percentile, s.DefenseAdj,
            s.ReactionAdj, s.MissileAdj);
  cells.Add("CON \t %-2i \t %-3i  \t %s  \t %i \t %i \t %s \t %s \t %s \n", s.Constitution.Whole,
            s.Constitution.Percentile, s.ConstitutionHPAdjText, s.SystemShock, s.ResurrectionSurvival, s.PoisonSave,
            s.ImmuneToDisease, s.RegenHeal);
  cells.Add("INT \t %-2i \t %-3i  \t %i  \t %s \t %i \t %s \t %s \t %i \n", s.Intelligence.Whole,
            s.Intelligence.Percentile, s.LanguageSlots, s.MaxSpellLevelText, s.LearnAbility, s.MaxSpellsText,
            s.IllusionImmunity, s.SpellMishap);
  cells.Add("WIS \t %-2i \t %-3i  \t %s  \t %s \t %i \t %s \t %i \n", s.Wisdom.Whole, s.Wisdom.Percentile,
            s.MagicalDefenseAdj, s.BonusSpells, s.SpellFailure, s.SpellImmunity, s.ImproveSkillChance);
  cells.Add("CHR \t %-2i \t %-3i  \t %i  \t %s \t %s \t %s \t %s \n", s.Charisma.Whole, s.Charisma.Percentile,
            s.MaxHenchmen, s.LoyaltyBase, s.CharismaReactionAdj, s.ComelinessMod, s.HonorMod);
  cells.Add("COM \t %-2i \t %-3i  \n", s.Comeliness.Whole, s.Comeliness.Percentile);
  cells.Add("Hon \t %-3i \t %s \n", s.Honor, s.HonorCategory);
}

void AddSaves(Cells& cells, const CharacterSheet& s) {
  // Rods and staves share a number; quelling has no column.
  const SaveNumbers* const kShown[] = {&s.SaveParalyzation, &s.SavePoison,  &s.SaveDeathMagic, &s.SavePetrification,
                                       &s.SavePolymorph,    &s.SaveRod,     &s.SaveRod,        &s.SaveWand,
                                       &s.SaveBreathWeapon, &s.SaveApology, &s.SaveSpells};
  cells.Add("Saves");
  for (const SaveNumbers* save : kShown) cells.Add(" \t %i", (*save)[kBestSave]);
  cells.Add(" \n");
  cells.Add("Hit Points: \t %-5i \n", s.HitPoints);
}

/// The weapons held, a column each. Range and BSL are for the player to fill in.
void AddWeapons(Cells& cells, const CharacterSheet& sheet) {
  std::vector<const ProficiencyRecord*> weapons;
  for (std::size_t row = 0; row < kProficiencyRows; ++row) {
    const ProficiencyRecord& weapon = ProficiencyTable()[row];
    const int mark = sheet.ProficiencyLevels[row];
    const bool isHeld = mark != ProficiencyMark::None && mark != ProficiencyMark::Untaught;
    if (isHeld && weapon.Kind <= ProficiencyKind::Missile && !weapon.Name.empty()) {
      weapons.push_back(&weapon);
    }
  }
  cells.Add("Weapon Name \t");
  for (const auto* weapon : weapons) cells.Add("%s \t", TrimRight(weapon->Name));
  cells.Add(" \t \t \t \t \t \t \n Weapon Spd \t");
  for (const auto* weapon : weapons) cells.Add("%i \t", weapon->HitModifier);
  cells.Add(" \t \t \t \t \t \t \t \n Weapon Range \t");
  for (std::size_t i = 0; i < weapons.size(); ++i) cells.Add(" \t");
  cells.Add(" \t \t \t \t \t \t \t \n Weapon Type \t");
  for (const auto* weapon : weapons) cells.Add("%s \t", weapon->DamageType);
  cells.Add(" \t \t \t \t \t \t \t \n BSL \t");
  for (std::size_t i = 0; i < weapons.size(); ++i) cells.Add(" \t");
  cells.Add(" \t \t \t \t \t \t \t \n Weapon Dam \t");
  for (const auto* weapon : weapons) {
    const auto& damage = weapon->Damage;
    cells.Add("%s - %s - %s - %s - %s - %s \t", damage[0], damage[1], damage[2], damage[3], damage[4], damage[5]);
  }
  cells.Add(" \t \t \t \t \t \t \t \n");
}

/// Two rows in matching columns: what the character can do, and how well. Proficiencies beyond specialization have no
/// column here.
void AddAccomplishments(Cells& cells, const SheetContent& content) {
  std::string names = "STP \t";
  std::string values = "Value \t";
  for (const SheetWeapon& held : content.Proficiencies) {
    if (held.Mark > ProficiencyMark::Specialized) continue;
    names += Format(held.Mark == ProficiencyMark::Specialized ? "%s  \t" : "%s \t", TrimRight(held.Weapon->Name));
    values += Format("%s \t", MarkName(held.Mark).substr(0, 1));
  }
  for (const SheetFact& pick : content.Picks) {
    names += Format("%s: %s \t", pick.Label, pick.Value);
    values += Format("%s \t", pick.Value);
  }
  for (const SheetTalent& talent : content.Talents) {
    names += Format("%s \t", talent.Name);
    values += Format("%s \t", talent.Rating.empty() ? talent.Name : talent.Rating);
  }
  for (const SheetItem& skill : content.Skills) {
    names += Format("%s \t", skill.Name);
    values += Format("%i \t", skill.Count);
  }
  cells.Add("%s\n%s\n", names, values);
}

void AddClasses(Cells& cells, const SheetContent& content) {
  cells.Add("Class \t");
  for (const SheetClass& held : content.Classes) cells.Add("%s \t", held.Name);
  cells.Add("\n XP \t");
  for (const SheetClass& held : content.Classes) cells.Add("%.0f \t", held.Experience);
  cells.Add("\n Next Level \t");
  for (const SheetClass& held : content.Classes) cells.Add("%i \t", held.NextLevel);
  cells.Add("\n");
}

void AddBurden(Cells& cells, const CharacterSheet& sheet, const SheetContent& content) {
  const auto& limits = content.EncumbranceLimits;
  cells.Add("Encumbrance \t %i \t %i \t %i \t %i \t %i \n", limits[0], limits[1], limits[2], limits[3], limits[4]);
  cells.Add("Move \t %.2f \t %i \t %i \t %i \t %i \t 1 \n", sheet.CarriedWeightLbs, sheet.BaseMovement,
            sheet.MovementLight, sheet.MovementModerate, sheet.MovementHeavy);
}

void AddBelongings(Cells& cells, const SheetContent& content) {
  cells.Add("\n Quirks/Flaws \t");
  for (const SheetItem& quirk : content.Quirks)
    cells.Add(quirk.Count == 1 ? "%s \t" : "%s x%i\t", quirk.Name, quirk.Count);
  cells.Add("\n Coins \t");
  for (const SheetCoin& coin : content.Coins) cells.Add("\n %s \t %i %s", coin.Name, coin.Count, coin.Sign);
  cells.Add("\n Inventory");
  constexpr int kFirstWeaponCategory = 20;  // weapons and ammunition end without the blank
  for (const SheetGoods& goods : content.Goods) {
    for (const SheetGood& good : goods.Goods) {
      const std::string name = good.Quantity == 1 ? good.Name : Format("%s x%i", good.Name, good.Quantity);
      cells.Add("\t %s \t %.2f lbs", name, good.Weight);
      if (goods.Category < kFirstWeaponCategory) cells.Add(" ");
    }
  }
}

void AddClassAbilities(Cells& cells, const SheetContent& content) {
  for (const SheetAbilityTable& table : content.ClassAbilities) {
    if (table.Title == "Assassin Abilities") continue;  // the sheet has no rows for them
    cells.Add("\n %s SKILL \t", table.Title);
    for (std::size_t i = 0; i < table.Rows.size(); ++i) cells.Add(i == 0 ? "%s" : " \t %s", table.Rows[i].Name);
    cells.Add(" \n%s RATING", table.Title);
    for (const SheetPercents& row : table.Rows) cells.Add(" \t %i", row.Values[0]);
  }
}

}  // namespace

std::string TabSheet(Game& game) {
  BringUpToDate(game);
  const CharacterSheet& sheet = game.sheet;
  const SheetContent content = GatherSheet(game);
  Cells cells;
  AddFacts(cells, sheet);
  AddAbilities(cells, sheet);
  AddSaves(cells, sheet);
  AddWeapons(cells, sheet);
  AddAccomplishments(cells, content);
  AddClasses(cells, content);
  AddBurden(cells, sheet, content);
  AddBelongings(cells, content);
  AddClassAbilities(cells, content);
  return cells.Take();
}

}  // namespace veld
