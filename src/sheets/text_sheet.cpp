#include "sheets/text_sheet.h"

#include "sheets/sheet_content.h"
#include "text/format.h"
#include "text/search.h"
#include "text/utf8.h"

namespace veld {

namespace {

// Some lines end in a blank: the sheet's lay-out is a format that other programs read, and it is kept to the letter.

/// The text of a sheet in the making.
class Lines {
 public:
  template <typename... Values>
  void Add(std::string_view pattern, const Values&... values) {
    text_ += Format(pattern, values...);
  }
  void Blank() { text_ += '\n'; }
  /// A heading that the blanks before it bring to the middle.
  void Heading(int blanks, std::string_view heading) {
    text_.append(static_cast<std::size_t>(blanks), ' ');
    Add(" %s \n", heading);
  }
  void Facts(const std::vector<SheetFact>& facts) {
    for (const SheetFact& fact : facts) Add("%s: %s \n", fact.Label, fact.Value);
  }
  std::string Take() { return std::move(text_); }

 private:
  std::string text_;
};

void AddWhoItIs(Lines& lines, const CharacterSheet& sheet) {
  lines.Heading(35, "Character Information");
  lines.Add("Name: %-38s Player: %s \n", OneLine(sheet.CharacterName), OneLine(sheet.PlayerName));
  lines.Add("Race: %-38s Class: %-s %-s \n", OneLine(sheet.RaceName), OneLine(sheet.ClassName),
            OneLine(sheet.LevelText));
  lines.Add("Homeland:                                    Alignment: %s \n", OneLine(sheet.Alignment));
  lines.Add("Liege/Patron:                                Patron Gawd: \n");
  lines.Add("Social Class: %-18s             Family/Clan: \n", OneLine(sheet.SocialClassName));
  lines.Add("Height: %-15i Weight: %-15i lbs Age: %-15i \n", sheet.HeightInches, sheet.WeightLbs, sheet.Age);
  lines.Add("Hair: %-15s Eyes: %-15s \n", OneLine(sheet.HairColor), OneLine(sheet.EyeColor));
  lines.Add("Sex: %-10s Birth Date:                  Handeness:  %-15s \n", OneLine(sheet.Gender),
            OneLine(sheet.Handedness));
  lines.Add("Appearance: \n \n");
}

void AddAbilities(Lines& lines, const CharacterSheet& s) {
  lines.Heading(40, "Ability Scores");
  lines.Add("Strength:     %-2i/%-3i  to hit: %s  dam adj: %s weight all: %i open doors: %s Bend Bars: %i \n",
            s.Strength.Whole, s.Strength.Percentile, s.StrengthHitAdj, s.StrengthDamageAdj, s.WeightAllowanceLight,
            s.OpenDoors, s.BendBars);
  lines.Add("Dexterity:    %-2i/%-3i  defense adj: %s  reaction adj: %s missile adj: %s \n", s.Dexterity.Whole,
            s.Dexterity.Percentile, s.DefenseAdj, s.ReactionAdj, s.MissileAdj);
  lines.Add(
      "Constitution: %-2i/%-3i  HP adj: %s  sys shock: %i Resurrect surv: %i poison save: %s \n"
      "                      imm to dis/alc: %s regen/heal %s\n",
      s.Constitution.Whole, s.Constitution.Percentile, s.ConstitutionHPAdjText, s.SystemShock, s.ResurrectionSurvival,
      s.PoisonSave, s.ImmuneToDisease, s.RegenHeal);
  lines.Add(
      "Intelligence: %-2i/%-3i  # of lang: %i spell lvl: %s learn ability: %i max # spells: %s \n"
      "                      Ill imm: %s spell mishap %i \n",
      s.Intelligence.Whole, s.Intelligence.Percentile, s.LanguageSlots, s.MaxSpellLevelText, s.LearnAbility,
      s.MaxSpellsText, s.IllusionImmunity, s.SpellMishap);
  lines.Add(
      "Wisdom:       %-2i/%-3i  magical def adj: %s bonus spells: %s spell fail: %i spell imm: %s \n"
      "                      chance imp skill %i \n",
      s.Wisdom.Whole, s.Wisdom.Percentile, s.MagicalDefenseAdj, s.BonusSpells, s.SpellFailure, s.SpellImmunity,
      s.ImproveSkillChance);
  lines.Add("Charisma:     %-2i/%-3i  max # hench: %i loyalty base: %s react adj: %s COM mod: %s HON mod %s \n",
            s.Charisma.Whole, s.Charisma.Percentile, s.MaxHenchmen, s.LoyaltyBase, s.CharismaReactionAdj,
            s.ComelinessMod, s.HonorMod);
  lines.Add("Comeliness:   %-2i/%-3i  \n", s.Comeliness.Whole, s.Comeliness.Percentile);
  lines.Add("Honor:        %-3i %s  \n", s.Honor, s.HonorCategory);
  lines.Add("Fame: \n \n");
  lines.Add("Hit Points: %-5i \n\n", s.HitPoints);
}

void AddClasses(Lines& lines, const SheetContent& content) {
  for (const SheetClass& held : content.Classes) {
    lines.Add("%s lvl: %i EXP: %.0f Needed for next Level: %.0f \n \n", held.Name, held.Level, held.Experience,
              held.NextLevel);
  }
}

void AddSaves(Lines& lines, const CharacterSheet& s) {
  lines.Add("\n %-40s Saving Throws \n", "");
  lines.Add("Paralyzation: %-5i  Poison: %-5i  Death Magic: %i \n", s.SaveParalyzation[kBestSave],
            s.SavePoison[kBestSave], s.SaveDeathMagic[kBestSave]);
  lines.Add("Petrification: %-5i Polymorph: %-5i \n", s.SavePetrification[kBestSave], s.SavePolymorph[kBestSave]);
  // One number serves rods and staves.
  lines.Add("Rod: %-5i           Staff: %-5i   Wand: %-5i \n", s.SaveRod[kBestSave], s.SaveRod[kBestSave],
            s.SaveWand[kBestSave]);
  lines.Add("QuellFrenzy: %-5i    QuellLust: %-5i \n", s.SaveQuellFrenzy[kBestSave], s.SaveQuellLust[kBestSave]);
  lines.Add("Breath Weapon: %-5i Apology: %-5i Spells: %i \n \n", s.SaveBreathWeapon[kBestSave],
            s.SaveApology[kBestSave], s.SaveSpells[kBestSave]);
}

void AddWeapons(Lines& lines, const std::vector<SheetWeapon>& weapons) {
  const auto withBlank = [](std::string_view adjustment) {
    return adjustment.empty() ? std::string{} : Format(" %s", adjustment);
  };
  for (const SheetWeapon& held : weapons) {
    const ProficiencyRecord& weapon = *held.Weapon;
    lines.Add("%-25s|%3s|%-6s|%-3i|%-4s|", TrimRight(weapon.Name), withBlank(HitAdjustment(held)),
              withBlank(DamageAdjustment(held)), weapon.HitModifier, weapon.DamageType);
    for (const std::string_view damage : weapon.Damage) lines.Add("%-5s|", damage);
    lines.Add("   \n");
  }
}

void AddFight(Lines& lines, const SheetContent& content) {
  lines.Heading(30, "Melee Weapons");
  lines.Add("Weapon                   |Hit|Damage|Spd|Type|T dam|S dam|M dam|L dam|H dam|G dam|BSL\n");
  AddWeapons(lines, content.Melee);
  lines.Heading(29, "Missile Weapons");
  lines.Add("Weapon                   |Hit|Damage|ROF|Type|T dam|S dam|M dam|L dam|H dam|G dam|BSL\n");
  AddWeapons(lines, content.Missile);
  lines.Blank();
}

void AddMovement(Lines& lines, const CharacterSheet& sheet, const SheetContent& content) {
  const auto& limits = content.EncumbranceLimits;
  lines.Heading(20, "Movement and Encumbrance");
  lines.Add("Encumbrance (lbs) | Unencumbered |   Light    |  Moderate   |  Heavy   |   Severe  \n");
  lines.Add("                  |%-14i|%-12i|%-13i|%-10i|%-12i\n", limits[0], limits[1], limits[2], limits[3],
            limits[4]);
  lines.Add("%-18.2f|%-14i|%-12i|%-13i|%-10i|1           \n", sheet.CarriedWeightLbs, sheet.BaseMovement,
            sheet.MovementLight, sheet.MovementModerate, sheet.MovementHeavy);
}

void AddTattoos(Lines& lines, const SheetContent& content) {
  lines.Blank();
  lines.Heading(25, "Pixie Fairy Tattoos");
  lines.Blank();
  for (const std::string_view tattoo : content.Tattoos) lines.Add("%s\n", tattoo);
}

/// The heading of a calling, and the youth that led to it if there is one.
void AddCalling(Lines& lines, std::string_view heading, int blanks, std::string_view backgroundHeading,
                const std::vector<SheetFact>& background) {
  lines.Heading(25, heading);
  lines.Blank();
  if (background.empty()) return;
  lines.Heading(blanks, backgroundHeading);
  lines.Facts(background);
}

void AddSpells(Lines& lines, const Game& game, const SheetContent& content) {
  lines.Heading(25, "Spell Progression");
  lines.Add(" Lvl1 | Lvl2 | Lvl3 | Lvl4 | Lvl5 | Lvl6 | Lvl7 | Lvl8 | Lvl9 \n");
  for (std::size_t level = 0; level < kSpellLevels; ++level) {
    lines.Add(level == 0 ? " %-4i" : " | %-4i", game.run.SpellsPerLevel[level]);
  }
  lines.Add(" \n\n");
  lines.Heading(30, "Spell Planner");
  lines.Add(" Mem | Name \n");
  for (const std::string& spell : content.Spells) lines.Add("OOOOO| %s \n", spell);
}

void AddCallings(Lines& lines, const Game& game, const SheetContent& content) {
  if (content.IsMage) {
    AddCalling(lines, "Magic-User Information", 20, "Magic-User Background", content.MageBackground);
    AddSpells(lines, game, content);
  }
  if (content.IsCleric) AddCalling(lines, "Cleric Information", 25, "Cleric Background", content.ClericBackground);
  if (content.IsFighter) AddCalling(lines, "Fighter Information", 25, "Fighter Background", content.FighterBackground);
}

void AddClassAbilities(Lines& lines, const SheetContent& content) {
  for (const SheetAbilityTable& table : content.ClassAbilities) {
    lines.Heading(25, table.Title);
    lines.Add("                              |      |  No   | Elven | Studded Leather/\n");
    lines.Add("Ability                       | Base | Armor | Chain | Ring Mail/Padded\n");
    lines.Add("------------------------------|------|-------|-------|-----------------\n");
    for (const SheetPercents& row : table.Rows) {
      lines.Add("%-30s| %-5i| %-6i| %-6i| %i\n", row.Name, row.Values[0], row.Values[1], row.Values[2], row.Values[3]);
    }
  }
}

void AddQuirks(Lines& lines, const SheetContent& content) {
  if (content.Quirks.empty()) return;
  lines.Heading(25, "Quirks and Flaws");
  for (const SheetItem& quirk : content.Quirks) {
    lines.Add(quirk.Count == 1 ? "%s \n" : "%s x%i\n", quirk.Name, quirk.Count);
  }
}

void AddProficiencies(Lines& lines, const SheetContent& content) {
  lines.Heading(15, "Proficiencies, Talents & Skills");
  lines.Add("Weapon Proficiencies \n");
  for (const SheetWeapon& held : content.Proficiencies) {
    lines.Add("%s - %s \n", TrimRight(held.Weapon->Name), MarkName(held.Mark));
  }
  lines.Facts(content.Picks);
  lines.Blank();
  lines.Add("Talents \n");
  for (const SheetTalent& talent : content.Talents) {
    lines.Add("%s %s\n", talent.Name, talent.Rating);
  }
  lines.Blank();
  lines.Add("Skills \n");
  for (const SheetItem& skill : content.Skills) lines.Add("%s %i%% \n", skill.Name, skill.Count);
}

void AddInventory(Lines& lines, const SheetContent& content) {
  lines.Heading(25, "Inventory");
  lines.Blank();
  lines.Add("Coins & Money \n");
  for (const SheetCoin& coin : content.Coins) {
    if (coin.Count > 0) lines.Add("%i %s \n", coin.Count, coin.Name);
  }
  lines.Facts(content.Inheritance);
  for (const SheetGoods& goods : content.Goods) {
    if (goods.HasListedGood) lines.Add("%s \n", goods.Heading);
    for (const SheetGood& good : goods.Goods) {
      const std::string name = good.Quantity == 1 ? good.Name : Format("%s x%i", good.Name, good.Quantity);
      lines.Add("%s %.2f lbs \n", name, good.Weight);
    }
    lines.Blank();
  }
}

void AddFamily(Lines& lines, const CharacterSheet& sheet, const SheetContent& content) {
  lines.Heading(25, "Family Information");
  lines.Blank();
  lines.Add("Father: %s, %s \n", OneLine(sheet.FatherStatus), OneLine(sheet.FatherQuality));
  lines.Add("Mother: %s, %s \n", OneLine(sheet.MotherStatus), OneLine(sheet.MotherQuality));
  lines.Add("Step Parent: %s \n", OneLine(sheet.StepParent));
  lines.Add("Birth Order: %s \n", OneLine(sheet.BirthOrder));
  for (std::size_t i = 0; i < content.Siblings.size(); ++i) {
    lines.Add("Sibling %i: %s \n", i + 1, content.Siblings[i]);
  }
}

}  // namespace

std::string TextSheet(Game& game) {
  BringUpToDate(game);
  const CharacterSheet& sheet = game.sheet;
  const SheetContent content = GatherSheet(game);
  Lines lines;
  AddWhoItIs(lines, sheet);
  AddAbilities(lines, sheet);
  AddClasses(lines, content);
  AddSaves(lines, sheet);
  AddFight(lines, content);
  AddMovement(lines, sheet, content);
  if (sheet.RaceName == "Pixie Fairy") AddTattoos(lines, content);
  AddCallings(lines, game, content);
  AddClassAbilities(lines, content);
  AddQuirks(lines, content);
  AddProficiencies(lines, content);
  AddInventory(lines, content);
  AddFamily(lines, sheet, content);
  lines.Heading(35, "Notes");
  lines.Add("%s \n", DisplayText(sheet.Notes));
  return lines.Take();
}

}  // namespace veld
