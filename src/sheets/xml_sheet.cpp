#include "sheets/xml_sheet.h"

#include <initializer_list>
#include <string_view>

#include "rules/proficiency_table.h"
#include "rules/race_table.h"
#include "sheets/sheet_content.h"
#include "sheets/sheet_facts.h"
#include "sheets/xml_parts.h"
#include "steps/skills/proficiency_purchase.h"
#include "steps/skills/tattoo.h"
#include "store/sheet_accessors.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

using Sheet = CharacterSheet;

std::string Number(int number) {
  return Format("%i", number);
}

// ---- Source and person ----

void AddSource(XmlWriter& xml) {
  const auto source = xml.Open("SOURCE");
  {
    const auto game = xml.Open("GAME");
    AddXmlName(xml, "Quellmarch", "QM");
    xml.Leaf("COPYRIGHT", "The rights in Quellmarch are its publisher's.");
  }
  const auto program = xml.Open("PROGRAM");
  AddXmlName(xml, "Quellmarch Character Generator", "VELD");
  xml.Leaf("VERSION", FileVersion);
  xml.Leaf("COPYRIGHT", "Made with VELD, Tolmar's Plain Quellmarch Toolkit.");
  xml.Leaf("AUTHOR", "The makers of VELD");
}

/// Readers know the race as it stands in the table, unescaped. A file can bring any text as a race; one that is in no
/// table is escaped after all, or it could break the document.
void AddRace(XmlWriter& xml, std::string_view race) {
  if (FindRace(race)) {
    xml.RawLeaf("RACE", race);
  } else {
    xml.Leaf("RACE", race);
  }
}

void AddPerson(XmlWriter& xml, const Sheet& s) {
  const auto information = xml.Open("BIOGRAPHICAL_INFORMATION");
  xml.Leaf("CHARACTER_NAME", s.CharacterName);
  xml.Leaf("PLAYER_NAME", s.PlayerName);
  AddRace(xml, s.RaceName);
  xml.Leaf("CLASS_LONG_NAME", s.ClassName);
  xml.Leaf("LEVEL", s.LevelText);
  if (!s.PackageName.Empty()) {
    const auto package = xml.Open("PACKAGE");
    {
      const auto name = xml.Open("NAME");
      xml.Leaf("FULL", s.PackageName);
    }
    if (s.PackageName == "Hermit") xml.Leaf("HERMIT_TABOO", s.HermitTaboo);
  }
  xml.Leaf("ALIGNMENT", s.Alignment);
  xml.Leaf("SOCIAL_CLASS", s.SocialClassName);
  xml.Leaf("CHARACTER_HEIGHT", s.HeightInches);
  xml.Leaf("CHARACTER_WEIGHT", "UNIT", "lbs.", Number(s.WeightLbs));
  xml.Leaf("HAIR_COLOR", s.HairColor);
  xml.Leaf("EYE_COLOR", s.EyeColor);
  xml.Leaf("SEX", s.Gender);
  xml.Leaf("HANDEDNESS", s.Handedness);
  xml.Leaf("AGE", s.Age);
}

// ---- Abilities, saving throws ----

struct Modifier {
  std::string_view Type;
  std::string Value;
};

void AddAbility(XmlWriter& xml, std::string_view name, std::string_view abbreviation, std::string_view element,
                AbilityScore score, std::initializer_list<Modifier> modifiers) {
  const auto ability = xml.Open("ABILITY_SCORE");
  AddXmlName(xml, name, abbreviation);
  {
    const auto block = xml.Open("SCORE");
    xml.Leaf(Format("%s_BASE", element), score.Whole);
    xml.Leaf(Format("%s_PERC", element), score.Percentile);
  }
  for (const Modifier& modifier : modifiers) {
    const auto block = xml.Open("MODIFIER");
    xml.Leaf("TYPE", modifier.Type);
    xml.Leaf("VALUE", modifier.Value);
  }
}

void AddHonor(XmlWriter& xml, const Sheet& s) {
  const auto ability = xml.Open("ABILITY_SCORE");
  AddXmlName(xml, "Honor", "HON");
  {
    const auto block = xml.Open("SCORE");
    xml.Leaf("HONOR_BASE", s.Honor);
  }
  const auto block = xml.Open("MODIFIER");
  xml.Leaf("VALUE", s.HonorCategory);
}

/// From Constitution on leaves take three lines each: see XmlWriter::SetSpread.
void AddAbilities(XmlWriter& xml, const Sheet& s) {
  const auto text = [](std::string_view value) { return std::string(value); };
  const auto attributes = xml.Open("ATTRIBUTES");
  // clang-format off
  AddAbility(xml, "Strength", "STR", "STRENGTH", s.Strength, {
      {"Hit Prob.", text(s.StrengthHitAdj)},
      {"Dam Adj.", text(s.StrengthDamageAdj)},
      {"WT. All.", Number(s.WeightAllowanceLight)},
      {"Max. Press", Number(s.MaxPress)},
      {"Open Doors", text(s.OpenDoors)},
      {"Bend Bars Lift Gates", Number(s.BendBars)}});
  AddAbility(xml, "Dexterity", "DEX", "DEXTERITY", s.Dexterity, {
      {"Defense Adj.", text(s.DefenseAdj)},
      {"Reaction Adj.", text(s.ReactionAdj)},
      {"Missile Adj.", text(s.MissileAdj)}});
  xml.SetSpread(true);
  AddAbility(xml, "Constitution", "CON", "CONSTITUTION", s.Constitution, {
      {"HP Adj.", text(s.ConstitutionHPAdjText)},
      {"System Shock", Number(s.SystemShock)},
      {"Resurrect Survival", Number(s.ResurrectionSurvival)},
      {"Poison Save", text(s.PoisonSave)},
      {"Imm. to Dis./Alc.", text(s.ImmuneToDisease)},
      {"Regen./ Heal", text(s.RegenHeal)}});
  AddAbility(xml, "Intelligence", "INT", "INTELLIGENCE", s.Intelligence, {
      {"# of Lang.", Number(s.LanguageSlots)},
      {"Spell Lvl.", text(s.MaxSpellLevelText)},
      {"Learn Ability", Number(s.LearnAbility)},
      {"Max. # Spells/Lvl", text(s.MaxSpellsText)},
      {"Illus. Imm.", text(s.IllusionImmunity)},
      {"Spell Mis.", Number(s.SpellMishap)}});
  AddAbility(xml, "Wisdom", "WIS", "WISDOM", s.Wisdom, {
      {"Magical Def. Adj.", text(s.MagicalDefenseAdj)},
      {"Bonus Spells", text(s.BonusSpells)},
      {"Spell Fail", Number(s.SpellFailure)},
      {"Spell Imm.", text(s.SpellImmunity)},
      {"Chance Imp. Skill", Number(s.ImproveSkillChance)}});
  AddAbility(xml, "Charisma", "CHA", "CHARISMA", s.Charisma, {
      {"Max. # Hench.", Number(s.MaxHenchmen)},
      {"Loyalty Base", text(s.LoyaltyBase)},
      {"React. Adj.", text(s.CharismaReactionAdj)},
      {"COM. Mod.", text(s.ComelinessMod)},
      {"Hon. Mod.", text(s.HonorMod)}});
  AddAbility(xml, "Comeliness", "COM", "COMELINESS", s.Comeliness, {});
  // clang-format on
  AddHonor(xml, s);
}

struct SaveRow {
  std::string_view Name;
  std::string_view Abbreviation;
  SaveNumbers Sheet::*Save;
};
constexpr SaveRow kSaveRows[] = {
    {"Paralyzation", "Paralyz", &Sheet::SaveParalyzation},
    {"Poison", "Psn", &Sheet::SavePoison},
    {"Death Magic", "Dth Mgc", &Sheet::SaveDeathMagic},
    {"Petrification", "Petrif", &Sheet::SavePetrification},
    {"Polymorph", "Poly", &Sheet::SavePolymorph},
    {"Rods", "Rod", &Sheet::SaveRod},
    {"Staff", "Stf", &Sheet::SaveRod},  // one number serves rods and staves, as on the other sheets
    {"Wand", "Wnd", &Sheet::SaveWand},
    {"QuellFrenzy", "QuellFr", &Sheet::SaveQuellFrenzy},
    {"QuellLust", "QuellLu", &Sheet::SaveQuellLust},
    {"Breath Weapon", "Brt Wpn", &Sheet::SaveBreathWeapon},
    {"Apology", "Apgy", &Sheet::SaveApology},
    {"Spells", "Spl", &Sheet::SaveSpells},
};

void AddSaves(XmlWriter& xml, const Sheet& sheet) {
  const auto saves = xml.Open("SAVING_THROWS");
  for (const SaveRow& row : kSaveRows) {
    const auto save = xml.Open("THROW");
    AddXmlName(xml, row.Name, row.Abbreviation);
    xml.Leaf("VALUE", BestSave(sheet.*row.Save));
  }
}

// ---- Weapons, movement, race ----

void AddWeapon(XmlWriter& xml, const HeldWeapon& held) {
  const auto weapon = xml.Open("WEAPON");
  {
    const auto name = xml.Open("NAME");
    xml.Leaf("FULL", TrimRight(held.Weapon->Name));
  }
  {
    const auto adjustments = xml.Open("ADJUSTMENTS");
    xml.Leaf("TO_HIT", HitAdjustment(held));
    xml.Leaf("TO_DAMAGE", DamageAdjustment(held));
  }
  xml.Leaf("SPEED_FACTOR", held.Weapon->HitModifier);
  xml.Leaf("TYPE", held.Weapon->DamageType);
  const auto data = xml.Open("DAMAGE_DATA");
  constexpr std::string_view kSizes[] = {"T", "S", "M", "L", "H", "G"};
  for (std::size_t size = 0; size < std::size(kSizes); ++size) {
    xml.Leaf("DAMAGE", "SIZE", kSizes[size], held.Weapon->Damage[size]);
  }
}

/// The weapons of a kind with a mark up to Specialization: Mastery has no line here, and who has none no group.
void AddWeapons(XmlWriter& xml, const Sheet& sheet, int kind, std::string_view type) {
  std::vector<HeldWeapon> weapons;
  for (std::size_t row = 0; row < kProficiencyRows; ++row) {
    const ProficiencyRecord& record = ProficiencyTable()[row];
    const int mark = sheet.ProficiencyLevels[row];
    const bool isShown = !MarkName(mark).empty() && mark <= ProficiencyMark::Specialized;
    if (isShown && record.Kind == kind && !record.Name.empty()) weapons.push_back({&record, mark});
  }
  if (weapons.empty()) return;
  const auto data = xml.Open("WEAPON_DATA");
  const auto group = xml.Open("WEAPON_GROUP", "TYPE", type);
  for (const HeldWeapon& held : weapons) AddWeapon(xml, held);
}

void AddMovement(XmlWriter& xml, const Sheet& sheet) {
  struct Category {
    std::string_view Name;
    std::string_view Abbreviation;
    int Rate;
  };
  const Category categories[] = {{"Unencumbered", "Unenc", sheet.BaseMovement},
                                 {"Light", "Lgt", sheet.MovementLight},
                                 {"Moderate", "Mod", sheet.MovementModerate},
                                 {"Heavy", "Hvy", sheet.MovementHeavy},
                                 {"Severe", "Svr", 1}};
  const auto limits = EncumbranceLimits(sheet);
  const auto rates = xml.Open("MOVEMENT_RATES");
  for (std::size_t i = 0; i < std::size(categories); ++i) {
    const auto category = xml.Open("MOVE_CATEGORY");
    AddXmlName(xml, categories[i].Name, categories[i].Abbreviation);
    xml.Leaf("LOW_ENCUMBRANCE", limits[i]);
    xml.Leaf("HIGH_ENCUMBRANCE", limits[i + 1]);
    xml.Leaf("RATE", categories[i].Rate);
  }
  xml.Leaf("CURRENT_ENCUMBRANCE", "");  // for the player to fill in
}

void AddRaceNotes(XmlWriter& xml, const Sheet& sheet) {
  const auto attributes = xml.Open("RACIAL_ATTRIBUTES");
  const int row = FindRaceRow(sheet.RaceName, sheet.Gender);
  if (row < 0) return;
  constexpr std::string_view kLists[] = {"RACIAL_BONUS", "RACIAL_TALENT", "RACIAL_DOWNSIDE"};
  const auto& notes = RaceTable()[static_cast<std::size_t>(row)].Notes;
  const std::size_t listLength = notes.size() / std::size(kLists);
  for (std::size_t i = 0; i < notes.size(); ++i) {
    if (notes[i].size() > 2) xml.Leaf(kLists[i / listLength], notes[i]);
  }
}

/// The tattoos in the order of this sheet, with their short names; all else stands in their own table.
struct TattooName {
  std::string_view Name;
  std::string_view Abbreviation;
};
constexpr TattooName kTattooNames[] = {
    {"Ardkrin", "Ardk"},  {"Shewkrin", "Shew"}, {"Yiskrin", "Yisk"},  {"Tarkrin", "Tark"}, {"Fakrin", "Fakr"},
    {"Emphkrin", "Emph"}, {"Shunkrin", "Shun"}, {"Hurdkrin", "Hurd"}, {"Grekrin", "Grek"}, {"Gorkrink", "Gork"}};

void AddTattoos(XmlWriter& xml, const Sheet& sheet) {
  if (!HasTrait(sheet.RaceName, RaceTrait::Tattooed)) return;
  const auto tattoos = xml.Open("PIXIE_FAIRY_TATTOOS");
  for (const TattooName& name : kTattooNames) {
    const TattooRecord& record = *FindTattoo(name.Name);
    const std::string_view place = TattooPlaceName(sheet.*record.Location);
    if (place.empty()) continue;
    const auto tattoo = xml.Open("TATTOO");
    AddXmlName(xml, name.Name, name.Abbreviation);
    xml.Leaf("LOCATION", place);
    xml.Leaf("EFFECT", record.Effect);
  }
}

// ---- Family ----

void AddFamily(XmlWriter& xml, const Sheet& s) {
  const auto information = xml.Open("FAMILY_INFORMATION");
  xml.Leaf("FAMILY_HERITAGE", s.FamilyHeritage);
  xml.Leaf("LEGITAMACY_OF_BIRTH", s.BirthCircumstance);
  xml.Leaf("CIRCUMSTANCE_OF_BIRTH", s.IllegitimacyNature);
  {
    const auto father = xml.Open("PARENT", "TYPE", "Father");
    xml.Leaf("FATHER_STATUS", s.FatherStatus);
    xml.Leaf("FATHER_QUALITY", s.FatherQuality);
  }
  {
    const auto mother = xml.Open("PARENT", "TYPE", "Mother");
    xml.Leaf("MOTHER_STATUS", s.MotherStatus);
    xml.Leaf("MOTHER_QUALITY", s.MotherQuality);
  }
  if (!s.StepParent.Empty() && !Contains(s.StepParent, "N/A")) {
    const auto stepParent = xml.Open("PARENT", "TYPE", "Step-Parent");
    xml.Leaf("STEPPARENT", s.StepParent);
  }
  xml.Leaf("BIRTH_ORDER", s.BirthOrder);
  xml.Leaf("SIBLINGS", s.SiblingCount);
  int number = 0;
  for (const auto& line : s.SiblingLines) {
    ++number;
    if (HasText(line)) xml.Leaf("SIBLING", "NUMBER", Number(number), line);
  }
}

}  // namespace

void AddXmlName(XmlWriter& xml, std::string_view full, std::string_view abbreviation) {
  const auto name = xml.Open("NAME");
  xml.Leaf("FULL", full);
  xml.Leaf("ABBR", abbreviation);
}

bool HasText(std::string_view text) {
  return !TrimRight(text).empty();
}

std::string XmlSheet(Game& game) {
  BringUpToDate(game);
  const Sheet& sheet = game.sheet;
  XmlWriter xml;
  xml.Line("<?xml version=\"1.0\"?>");
  {
    const auto root = xml.Open("QUELLMARCH_CHARACTER");
    AddSource(xml);
    AddPerson(xml, sheet);
    AddAbilities(xml, sheet);
    AddClassData(xml, sheet);
    xml.Leaf("HIT_POINTS", sheet.HitPoints);
    AddSaves(xml, sheet);
    xml.SetSpread(false);
    AddWeapons(xml, sheet, ProficiencyKind::Melee, "Melee");
    AddWeapons(xml, sheet, ProficiencyKind::Missile, "Missile");
    AddMovement(xml, sheet);
    AddRaceNotes(xml, sheet);
    AddTattoos(xml, sheet);
    AddBackgrounds(xml, game);
    AddSkillLists(xml, sheet);
    AddHoldings(xml, game);
    AddFamily(xml, sheet);
    if (HasText(sheet.Notes)) xml.Leaf("HISTORY", sheet.Notes);
  }
  return xml.Take();
}

}  // namespace veld
