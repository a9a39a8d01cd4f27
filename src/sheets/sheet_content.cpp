#include "sheets/sheet_content.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "rules/class_table.h"
#include "rules/equipment_catalogue.h"
#include "rules/proficiency_table.h"
#include "rules/quirk_table.h"
#include "rules/race_table.h"
#include "sheets/sheet_facts.h"
#include "steps/abilities/ability_effects_apply.h"
#include "steps/classes/class_chain.h"
#include "steps/classes/class_recalculation.h"
#include "steps/skills/proficiency_purchase.h"
#include "steps/skills/tattoo.h"
#include "store/sheet_accessors.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"
#include "text/utf8.h"

namespace veld {

namespace {

using enum SheetForm;
using Sheet = CharacterSheet;

constexpr std::size_t kSiblingsShown = 9;

constexpr SheetPart kLabelledLine{"%s: %s \n", true};

std::size_t At(int number) {
  return static_cast<std::size_t>(number);
}

std::string Number(int number) {
  return Format("%i", number);
}

/// A heading of the text sheet that the blanks before it bring to the middle.
std::string Headed(std::size_t blanks, std::string_view heading, std::string_view under = {}) {
  return Format("%s %s \n%s", std::string(blanks, ' '), heading, under);
}

SheetBlock& AddBlock(SheetContent& content, SheetBlock block) {
  return content.Blocks.emplace_back(std::move(block));
}

// ---- Who it is ----

/// Facts without a value have room for the player's own hand. The tab-separated sheet has them in an order of its own
/// and some more; one that is new there goes to its end, after the 25.
void AddWhoItIs(const Sheet& s, SheetContent& content) {
  constexpr TabRow kRow = TabRow::Facts;
  const std::string className = OneLine(s.ClassName);
  const std::string level = OneLine(s.LevelText);
  content.Name = OneLine(s.CharacterName);
  content.Subtitle = Format("%s %s %s", OneLine(s.RaceName), className, level);
  // clang-format off
  AddBlock(content, {"Character Information", SheetLevel::ShortSection, SheetShape::Facts,
                     Headed(35, "Character Information")}).Facts = {
      {"Name", content.Name, "Name: %-38s ", {kRow, "Name \t %s \n", 1}},
      {"Player", OneLine(s.PlayerName), "Player: %s \n", {kRow, "Player Name \t %s \n", 6}},
      {"Race", OneLine(s.RaceName), "Race: %-38s ", {kRow, "Race \t %s \n", 3}},
      {"Class", Format("%s %s", className, level), "", {}},
      {"", className, "Class: %s ", {kRow, "Class \t %s \n", 4}, Hidden},
      {"", level, "%s \n", {kRow, "Level \t %s \n", 5}, Hidden},
      {"Homeland", "", "Homeland:                                    ", {kRow, "Homeland \t %s \n", 8}},
      {"Alignment", OneLine(s.Alignment), "Alignment: %s \n", {kRow, "Alignment \t %s \n", 2}},
      {"Liege/Patron", "", "Liege/Patron:                                ", {kRow, "Liege/Patron \t %s \n", 10}},
      {"Patron Gawd", "", "Patron Gawd: \n", {kRow, "Patron Gawd \t %s \n", 9}},
      {"Social Class", OneLine(s.SocialClassName), "Social Class: %-18s             ",
       {kRow, "Social Class \t %s \n", 11}},
      {"Family/Clan", "", "Family/Clan: \n", {kRow, "Family Clan \t %s \n", 7}},
      {"Height", Number(s.HeightInches), "Height: %-15s ", {kRow, "Height \t %s\" \n", 18}, Fact, "%s inches"},
      {"Weight", Number(s.WeightLbs), "Weight: %-15s lbs ", {kRow, "Weight \t %s lbs \n", 22}, Fact, "%s lbs"},
      {"Age", Number(s.Age), "Age: %-15s \n", {kRow, "Age \t %s \n", 17}},
      {"Hair", OneLine(s.HairColor), "Hair: %-15s ", {kRow, "Hair \t %s \n", 20}},
      {"Eyes", OneLine(s.EyeColor), "Eyes: %-15s \n", {kRow, "Eyes \t %s \n", 21}},
      {"Sex", OneLine(s.Gender), "Sex: %-10s ", {kRow, "Sex \t %s \n", 16}},
      {"Birth Date", "", "Birth Date:                  ", {kRow, "Birth Date \t %s \n", 13}},
      {"Handedness", OneLine(s.Handedness), "Handeness:  %-15s \n", {kRow, "Handeness \t %s \n", 23}},
      {"Appearance", "", "Appearance: \n \n", {kRow, "Appearance \t %s \n", 12}},
      {"", "", "", {kRow, "Birth Rank \t %s \n", 14}, Hidden},
      {"", "", "", {kRow, "Siblings \t %s \n", 15}, Hidden},
      {"", "", "", {kRow, "Family History \t %s \n", 19}, Hidden},
      {"", "", "", {kRow, "Quirks \t %s \n", 24}, Hidden},
      {"", "", "", {kRow, "Quirks2 \t %s \n", 25}, Hidden},
  };
  // clang-format on
}

/// An ability's row: its head, the score and what the score brings.
void AddAbility(std::vector<SheetFact>& facts, std::string_view name, AbilityScore score, SheetPart text, SheetPart tab,
                std::initializer_list<SheetFact> effects) {
  constexpr SheetTab kPercentile{TabRow::Abilities, " \t %-3s  "};
  facts.push_back({"", std::string(name), "", {}, RowHead});
  facts.push_back({"", Format("%i/%i", score.Whole, score.Percentile), "", {}, Cell});
  facts.push_back({"", Number(score.Whole), text, {TabRow::Abilities, tab}, Hidden});
  facts.push_back({"", Number(score.Percentile), "%-3s  ", kPercentile, Hidden});
  facts.insert(facts.end(), effects);
}

void AddAbilities(const Sheet& s, SheetContent& content) {
  constexpr SheetTab kFirst{TabRow::Abilities, "\t %s "};
  constexpr SheetTab kNext{TabRow::Abilities, " \t %s"};
  constexpr SheetTab kLast{TabRow::Abilities, " \t %s \n"};
  constexpr SheetTab kEnd{TabRow::Abilities, "\n"};
  const auto text = [](std::string_view value) { return std::string(value); };
  SheetBlock& block = AddBlock(content, {"Ability Scores",
                                         SheetLevel::ShortSection,
                                         SheetShape::Table,
                                         Headed(40, "Ability Scores"),
                                         "",
                                         {"Ability", "Score", "Effects"},
                                         "Effects"});
  std::vector<SheetFact>& facts = block.Facts;
  // clang-format off
  AddAbility(facts, "Strength", s.Strength, "Strength:     %-2s/", "STR \t %-2s", {
      {"to hit", text(s.StrengthHitAdj), "to hit: %s  ", kFirst, Effect},
      {"damage", text(s.StrengthDamageAdj), "dam adj: %s ", kNext, Effect},
      {"weight allowance", Number(s.WeightAllowanceLight), "weight all: %s ", kNext, Effect},
      {"open doors", text(s.OpenDoors), "open doors: %s ", kNext, Effect},
      {"bend bars", Number(s.BendBars), "Bend Bars: %s \n", {TabRow::Abilities, " \t %s\n"}, Effect}});
  AddAbility(facts, "Dexterity", s.Dexterity, "Dexterity:    %-2s/", "DEX \t %-2s", {
      {"defense", text(s.DefenseAdj), "defense adj: %s  ", kFirst, Effect},
      {"reaction", text(s.ReactionAdj), "reaction adj: %s ", kNext, Effect},
      {"missile", text(s.MissileAdj), "missile adj: %s \n", kLast, Effect}});
  AddAbility(facts, "Constitution", s.Constitution, "Constitution: %-2s/", "CON \t %-2s", {
      {"hit points", text(s.ConstitutionHPAdjText), "HP adj: %s  ", kFirst, Effect},
      {"system shock", Number(s.SystemShock), "sys shock: %s ", kNext, Effect},
      {"resurrection survival", Number(s.ResurrectionSurvival), "Resurrect surv: %s ", kNext, Effect},
      {"poison save", text(s.PoisonSave), "poison save: %s \n", kNext, Effect},
      {"immune to disease/alcohol", text(s.ImmuneToDisease),
       "                      imm to dis/alc: %s ", kNext, Effect},
      {"regenerate/heal", text(s.RegenHeal), "regen/heal %s\n", kLast, Effect}});
  AddAbility(facts, "Intelligence", s.Intelligence, "Intelligence: %-2s/", "INT \t %-2s", {
      {"languages", Number(s.LanguageSlots), "# of lang: %s ", kFirst, Effect},
      {"spell level", text(s.MaxSpellLevelText), "spell lvl: %s ", kNext, Effect},
      {"learn ability", Number(s.LearnAbility), "learn ability: %s ", kNext, Effect},
      {"spells per level", text(s.MaxSpellsText), "max # spells: %s \n", kNext, Effect},
      {"illusion immunity", text(s.IllusionImmunity), "                      Ill imm: %s ", kNext, MarkupEffect},
      {"spell mishap", Number(s.SpellMishap), "spell mishap %s \n", kLast, Effect}});
  AddAbility(facts, "Wisdom", s.Wisdom, "Wisdom:       %-2s/", "WIS \t %-2s", {
      {"magical defense", text(s.MagicalDefenseAdj), "magical def adj: %s ", kFirst, Effect},
      {"bonus spells", text(s.BonusSpells), "bonus spells: %s ", kNext, Effect},
      {"spell failure", Number(s.SpellFailure), "spell fail: %s ", kNext, Effect},
      {"spell immunity", text(s.SpellImmunity), "spell imm: %s \n", kNext, Effect},
      {"improve skill", Number(s.ImproveSkillChance), "                      chance imp skill %s \n", kLast, Effect}});
  AddAbility(facts, "Charisma", s.Charisma, "Charisma:     %-2s/", "CHR \t %-2s", {
      {"henchmen", Number(s.MaxHenchmen), "max # hench: %s ", kFirst, Effect},
      {"loyalty base", text(s.LoyaltyBase), "loyalty base: %s ", kNext, Effect},
      {"reaction", text(s.CharismaReactionAdj), "react adj: %s ", kNext, Effect},
      {"Comeliness", text(s.ComelinessMod), "COM mod: %s ", kNext, Effect},
      {"Honor", text(s.HonorMod), "HON mod %s \n", kLast, Effect}});
  AddAbility(facts, "Comeliness", s.Comeliness, "Comeliness:   %-2s/", "COM \t %-2s", {{"", "", "\n", kEnd, Hidden}});
  facts.insert(facts.end(), {
      {"Honor", Format("%i %s", s.Honor, s.HonorCategory), "", {}},
      {"", Number(s.Honor), "Honor:        %-3s ", {TabRow::Abilities, "Hon \t %-3s"}, Hidden},
      {"", text(s.HonorCategory), "%s  \n", kLast, Hidden},
      {"Fame", "", "Fame: \n \n", {}},
      {"Hit Points", Number(s.HitPoints), "Hit Points: %-5s \n\n", {TabRow::HitPoints, "Hit Points: \t %-5s \n"}}});
  // clang-format on
}

// ---- Classes, saving throws, weapons, movement ----

void AddClasses(const Sheet& sheet, SheetContent& content) {
  std::vector<SheetFact> facts;
  for (std::size_t row = 0; row < sheet.ClassLevels.size(); ++row) {
    const int level = sheet.ClassLevels[row];
    if (level <= 0) continue;
    const ClassRecord& record = ClassTable()[row];
    const int next = record.ExperienceForLevel[At(std::min(level + 1, kHighestLadderLevel))];
    const std::string experience = Format("%.0f", sheet.ClassExperience[row]);
    facts.push_back({"", std::string(record.Name), "%s ", {TabRow::ClassNames, "%s \t"}, RowHead});
    facts.push_back({"", Number(level), "lvl: %s ", {}, Cell});
    facts.push_back({"", experience, "EXP: %s ", {TabRow::ClassExperience, "%s \t"}, Cell});
    facts.push_back({"", Number(next), "Needed for next Level: %s \n \n", {TabRow::ClassNextLevels, "%s \t"}, Cell});
  }
  if (facts.empty()) return;
  SheetBlock& block = AddBlock(content, {"Classes", SheetLevel::ShortSection, SheetShape::Table});
  block.Columns = {"Class", "Level", "Experience", "Needed for next level"};
  block.Facts = std::move(facts);
}

void AddSaves(const Sheet& s, SheetContent& content) {
  constexpr SheetTab kTab{TabRow::Saves, " \t %s"};  // quelling has no column there
  const auto best = [](const SaveNumbers& save) { return Number(BestSave(save)); };
  AddBlock(content, {"Saving Throws", SheetLevel::ShortSection, SheetShape::Facts, "\n" + Headed(41, "Saving Throws")})
      .Facts = {
      {"Paralyzation", best(s.SaveParalyzation), "Paralyzation: %-5s  ", kTab},
      {"Poison", best(s.SavePoison), "Poison: %-5s  ", kTab},
      {"Death Magic", best(s.SaveDeathMagic), "Death Magic: %s \n", kTab},
      {"Petrification", best(s.SavePetrification), "Petrification: %-5s ", kTab},
      {"Polymorph", best(s.SavePolymorph), "Polymorph: %-5s \n", kTab},
      {"Rod", best(s.SaveRod), "Rod: %-5s           ", kTab},
      {"Staff", best(s.SaveRod), "Staff: %-5s   ", kTab},  // one number serves rods and staves
      {"Wand", best(s.SaveWand), "Wand: %-5s \n", kTab},
      {"QuellFrenzy", best(s.SaveQuellFrenzy), "QuellFrenzy: %-5s    ", {}},
      {"QuellLust", best(s.SaveQuellLust), "QuellLust: %-5s \n", {}},
      {"Breath Weapon", best(s.SaveBreathWeapon), "Breath Weapon: %-5s ", kTab},
      {"Apology", best(s.SaveApology), "Apology: %-5s ", kTab},
      {"Spells", best(s.SaveSpells), "Spells: %s \n \n", kTab},
  };
}

SheetBlock& AddWeaponTable(SheetContent& content, std::string_view title, std::size_t blanks, std::string_view speed) {
  const std::string lead =
      Headed(blanks, title) +
      Format("Weapon                   |Hit|Damage|%s|Type|T dam|S dam|M dam|L dam|H dam|G dam|BSL\n", speed);
  SheetBlock& block = AddBlock(content, {title, SheetLevel::Section, SheetShape::Table, lead});
  block.Columns = {"Weapon", "Hit",   "Damage", speed,   "Type",  "T dam",
                   "S dam",  "M dam", "L dam",  "H dam", "G dam", "BSL"};
  return block;
}

void AddWeapon(std::vector<SheetFact>& facts, const HeldWeapon& held) {
  const ProficiencyRecord& weapon = *held.Weapon;
  const auto add = [&](std::string_view value, SheetPart text, SheetForm form = Cell) {
    facts.push_back({"", std::string(value), text, {}, form});
  };
  add(TrimRight(weapon.Name), "%-25s|", RowHead);
  add(HitAdjustment(held), "%3s|");
  add(DamageAdjustment(held), " %-5s|");
  add(Number(weapon.HitModifier), "%-3s|");
  add(weapon.DamageType, "%-4s|");
  for (const std::string_view damage : weapon.Damage) add(damage, "%-5s|");
  add("", "   \n");  // BSL
}

/// The weapons of the tab-separated sheet, in the order of their table and of any mark. Range and BSL are for the
/// player to fill in.
void AddWeaponColumns(const Sheet& sheet, SheetContent& content) {
  std::vector<SheetFact>& facts = AddBlock(content, {}).Facts;
  const auto add = [&](TabRow row, std::string_view value, SheetPart tab) {
    facts.push_back({"", std::string(value), "", {row, tab}, Hidden});
  };
  for (std::size_t row = 0; row < kProficiencyRows; ++row) {
    const ProficiencyRecord& weapon = ProficiencyTable()[row];
    const int mark = sheet.ProficiencyLevels[row];
    const bool isHeld = mark != ProficiencyMark::None && mark != ProficiencyMark::Untaught;
    if (!isHeld || weapon.Kind > ProficiencyKind::Missile || weapon.Name.empty()) continue;
    const auto& damage = weapon.Damage;
    add(TabRow::WeaponNames, TrimRight(weapon.Name), "%s \t");
    add(TabRow::WeaponSpeeds, Number(weapon.HitModifier), "%s \t");
    add(TabRow::WeaponRanges, "", " \t");
    add(TabRow::WeaponTypes, weapon.DamageType, "%s \t");
    add(TabRow::WeaponBsl, "", " \t");
    add(TabRow::WeaponDamages,
        Format("%s - %s - %s - %s - %s - %s", damage[0], damage[1], damage[2], damage[3], damage[4], damage[5]),
        "%s \t");
  }
}

void AddFight(const Sheet& sheet, SheetContent& content) {
  const std::vector<HeldWeapon> weapons = HeldWeapons(sheet);
  SheetBlock& melee = AddWeaponTable(content, "Melee Weapons", 30, "Spd");
  for (const HeldWeapon& held : weapons) {
    if (held.Weapon->Kind == ProficiencyKind::Melee) AddWeapon(melee.Facts, held);
  }
  SheetBlock& missile = AddWeaponTable(content, "Missile Weapons", 29, "ROF");
  missile.TextTail = "\n";
  for (const HeldWeapon& held : weapons) {
    // The table of missile weapons has no line for Mastery.
    const bool isShown = held.Weapon->Kind == ProficiencyKind::Missile && held.Mark <= ProficiencyMark::Specialized;
    if (isShown) AddWeapon(missile.Facts, held);
  }
  AddWeaponColumns(sheet, content);
}

void AddMovement(const Sheet& s, SheetContent& content) {
  constexpr SheetTab kLimit{TabRow::Encumbrance, " \t %s"};
  constexpr SheetTab kMove{TabRow::Movement, " \t %s"};
  const auto limits = EncumbranceLimits(s);
  const std::string carried = Format("%.2f", s.CarriedWeightLbs);
  SheetBlock& block = AddBlock(content, {"Movement and Encumbrance", SheetLevel::ShortSection, SheetShape::Table});
  block.TextLead = Headed(20, "Movement and Encumbrance",
                          "Encumbrance (lbs) | Unencumbered |   Light    |  Moderate   |  Heavy   |   Severe  \n");
  block.Columns = {"", "Unencumbered", "Light", "Moderate", "Heavy", "Severe"};
  block.Facts = {
      {"", "Encumbrance (lbs)", "                  |", {}, RowHead},
      {"", Number(limits[0]), "%-14s|", kLimit, Cell},
      {"", Number(limits[1]), "%-12s|", kLimit, Cell},
      {"", Number(limits[2]), "%-13s|", kLimit, Cell},
      {"", Number(limits[3]), "%-10s|", kLimit, Cell},
      {"", Number(limits[4]), "%-12s\n", kLimit, Cell},
      {"Carried", carried, "%-18s|", kMove, Fact, "%s lbs"},
      {"", "Movement", "", {}, RowHead},
      {"", Number(s.BaseMovement), "%-14s|", kMove, Cell},
      {"", Number(s.MovementLight), "%-12s|", kMove, Cell},
      {"", Number(s.MovementModerate), "%-13s|", kMove, Cell},
      {"", Number(s.MovementHeavy), "%-10s|", kMove, Cell},
      {"", "1", "%s           \n", kMove, Cell},
  };
}

// ---- Tattoos ----

/// What is printed of a tattoo on a place. One line begins with a stray bracket and some are a blank short: kept.
struct TattooLine {
  int CharacterSheet::*Tattoo;
  int Place;
  std::string_view Line;
};

// clang-format off
constexpr TattooLine kTattooLines[] = {
    {&Sheet::TattooArdkrin,  kLeftUpperArm,  "Ardkrin,      Left Upper Arm, +1AC against all melee attacks"},
    {&Sheet::TattooArdkrin,  kRightUpperArm, "Ardkrin,      Right Upper Arm, +1AC against all melee attacks"},
    {&Sheet::TattooShewkrin, kLeftLowerArm,  "Shewkrin,     Left Lower Arm, +1AC against all missile attacks"},
    {&Sheet::TattooShewkrin, kRightLowerArm, ">Shewkrin,    Right Lower Arm, +1AC against all missile attacks"},
    {&Sheet::TattooYiskrin,  kForehead,      "Yiskrin,      Forehead, +1 to Charisma"},
    {&Sheet::TattooTarkrin,  kForehead,      "Tarkrin,      Forehead, Diminish Evil"},
    {&Sheet::TattooTarkrin,  kLeftUpperArm,  "Tarkrin,      Left Upper Arm, Diminish Evil"},
    {&Sheet::TattooTarkrin,  kRightUpperArm, "Tarkrin,      Right Upper Arm, Diminish Evil"},
    {&Sheet::TattooTarkrin,  kLeftLowerArm,  "Tarkrin,      Left Lower Arm, Diminish Evil"},
    {&Sheet::TattooTarkrin,  kRightLowerArm, "Tarkrin,      Right Lower Arm, Diminish Evil"},
    {&Sheet::TattooFakrin,   kForehead,      "Fakrin,       Forehead, Detect Evil"},
    {&Sheet::TattooFakrin,   kLeftUpperArm,  "Fakrin,       Left Upper Arm, Detect Evil"},
    {&Sheet::TattooFakrin,   kRightUpperArm, "Fakrin,       Right Upper Arm, Detect Evil"},
    {&Sheet::TattooFakrin,   kLeftLowerArm,  "Fakrin,      Left Lower Arm, Detect Evil"},
    {&Sheet::TattooFakrin,   kRightLowerArm, "Fakrin,      Right Lower Arm, Detect Evil"},
    {&Sheet::TattooEmphkrin, kForehead,      "Emphkrin,    Forehead, Detect Living Creature"},
    {&Sheet::TattooShunkrin, kForehead,      "Shunkrin,    Forehead, +1 to all saves"},
    {&Sheet::TattooHurdkrin, kLeftUpperArm,  "Hurdkrin,    Left Upper Arm, +1 to Hit Points per level"},
    {&Sheet::TattooHurdkrin, kRightUpperArm, "Hurdkrin,    Right Upper Arm, +1 to Hit Points per level"},
    {&Sheet::TattooGrekrin,  kBothLowerArms, "Grekrin,     Both Lower Arms, +2 to Strength (2 slots)"},
    {&Sheet::TattooGorkrink, kLeftUpperArm,  "Gorkrink,    Left Upper Arm, +1 to damage"},
    {&Sheet::TattooGorkrink, kRightUpperArm, "Gorkrink,    Right Upper Arm, +1 to damage"},
};
// clang-format on

void AddTattoos(const Sheet& sheet, SheetContent& content) {
  if (!HasTrait(sheet.RaceName, RaceTrait::Tattooed)) return;
  SheetBlock& block = AddBlock(content, {"Pixie Fairy Tattoos", SheetLevel::ShortSection, SheetShape::WideList,
                                         "\n" + Headed(25, "Pixie Fairy Tattoos", "\n")});
  for (const TattooLine& tattoo : kTattooLines) {
    if (sheet.*tattoo.Tattoo == tattoo.Place) block.Facts.push_back({std::string(tattoo.Line), "", {"%s\n", true}, {}});
  }
}

// ---- Callings and youths ----

void AddLine(std::vector<SheetFact>& facts, std::string_view label, std::string_view value) {
  facts.push_back({std::string(label), OneLine(value), kLabelledLine, {}});
}

/// Adds the texts that say anything.
void AddTold(std::vector<SheetFact>& facts, std::string_view label, std::string_view value) {
  if (value.size() > 1) AddLine(facts, label, value);
}

/// Adds a text that says anything where there is room for more facts: the HTML sheet.
void AddHtmlOnly(std::vector<SheetFact>& facts, std::string_view label, std::string_view value) {
  if (value.size() > 1) facts.push_back({std::string(label), OneLine(value), {}, {}});
}

/// The heading of a calling, and the youth that led to it if there is one; the facts of the youth go to the result.
std::vector<SheetFact>* AddCalling(SheetContent& content, std::string_view title, std::string_view youthTitle,
                                   std::size_t blanks, bool hasYouth) {
  AddBlock(content, {title, SheetLevel::Section, SheetShape::Heading, Headed(25, title, "\n")});
  if (!hasYouth) return nullptr;
  return &AddBlock(content, {youthTitle, SheetLevel::Part, SheetShape::LongFacts, Headed(blanks, youthTitle)}).Facts;
}

void AddPackage(std::vector<SheetFact>& facts, const Sheet& sheet) {
  if (!sheet.PackageName.Empty()) AddLine(facts, "Package", sheet.PackageName);
}

void AddSpells(const Game& game, SheetContent& content) {
  SheetBlock& slots = AddBlock(content, {"Spell Progression", SheetLevel::Part, SheetShape::Table});
  slots.TextLead = Headed(25, "Spell Progression", " Lvl1 | Lvl2 | Lvl3 | Lvl4 | Lvl5 | Lvl6 | Lvl7 | Lvl8 | Lvl9 \n");
  slots.TextTail = " \n\n";
  slots.Columns = {"", "Lvl1", "Lvl2", "Lvl3", "Lvl4", "Lvl5", "Lvl6", "Lvl7", "Lvl8", "Lvl9"};
  slots.Facts.push_back({"", "Spells", "", {}, RowHead});
  for (const int count : game.run.SpellsPerLevel) {
    slots.Facts.push_back({"", Number(count), slots.Facts.size() == 1 ? " %-4s" : " | %-4s", {}, Cell});
  }
  SheetBlock& planner = AddBlock(
      content, {"Spell Planner", SheetLevel::Part, SheetShape::Heading, Headed(30, "Spell Planner", " Mem | Name \n")});
  for (std::size_t row = 0; row < kSpellRows; ++row) {
    if (game.sheet.SpellsKnown[row] <= 0) continue;
    planner.Facts.push_back({OneLine(TrimRight(game.SpellTable[row].Name)), "", {"OOOOO| %s \n", true}, {}});
    planner.Shape = SheetShape::CheckList;
  }
}

void AddMage(const Game& game, SheetContent& content) {
  const Sheet& s = game.sheet;
  if (!IsShownAsMage(s)) return;
  const bool hasYouth = s.UsesMageBackground == 1;
  if (auto* facts = AddCalling(content, "Magic-User Information", "Magic-User Background", 20, hasYouth)) {
    AddLine(*facts, "Location of School", s.SchoolLocation);
    AddLine(*facts, "Type of School", s.SchoolType);
    AddLine(*facts, "Quality of Master, Nurture", s.MasterNurture);
    AddLine(*facts, "Quality of Master, Education", s.MasterEducation);
    AddLine(*facts, "Graduating Class Size", s.GraduatingClassSize);
    AddLine(*facts, "Classroom Equipment", s.ClassroomEquipment);
    AddLine(*facts, "Graduating Rank", s.GraduatingRank);
    AddPackage(*facts, s);
    if (s.PackageName == "Hermit") {
      AddLine(*facts, "Hermit Taboo", s.HermitTaboo);
      AddHtmlOnly(*facts, "Hermit Field", s.HermitField);
    }
  }
  AddSpells(game, content);
}

void AddCleric(const Sheet& s, SheetContent& content) {
  if (s.IsClericClass != 1) return;
  const bool hasYouth = s.UsesClericBackground == 1;
  if (auto* facts = AddCalling(content, "Cleric Information", "Cleric Background", 25, hasYouth)) {
    AddLine(*facts, "The Call", s.TheCall);
    AddLine(*facts, "Type of Ecclesiastical Training", s.EcclesiasticalTraining);
    AddLine(*facts, "Competency of Reverend Superior", s.SuperiorCompetency);
    AddLine(*facts, "Personality of Reverend Superior", s.SuperiorPersonality);
    AddLine(*facts, "Religious Accoutrements", s.ReligiousAccoutrements);
    AddLine(*facts, "Location of Residency", s.ResidencyLocation);
    AddLine(*facts, "Results of Residency", s.ResidencyResults);
    AddLine(*facts, "Quality of Education Final Results", s.EducationResults);
    AddPackage(*facts, s);
  }
}

void AddFighter(const Sheet& s, SheetContent& content) {
  if (s.IsFighterClass != 1) return;
  const bool hasYouth = s.UsesFighterBackground == 1;
  if (auto* facts = AddCalling(content, "Fighter Information", "Fighter Background", 25, hasYouth)) {
    AddLine(*facts, "Type of Training Camp", s.TrainingCampType);
    AddLine(*facts, "Quality of Basic Training", s.BasicTrainingQuality);
    AddLine(*facts, "Results of Basic Training", s.BasicTrainingResults);
    for (const auto& accident : s.TrainingAccidents) AddTold(*facts, "Training Accident", accident);
    AddLine(*facts, "Specialty Assignment", s.SpecialtyAssignment);
    AddLine(*facts, "Quality of Advanced Individual Training", s.AdvancedTrainingQuality);
    AddLine(*facts, "State of Hostilities", s.HostilitiesState);
    for (const auto& war : s.Wars) AddTold(*facts, "War", war);
    AddTold(*facts, "Local Attitude to Occupying Force", s.OccupationAttitude);
    AddTold(*facts, "Notable Events During Occupation", s.OccupationEvents);
    AddTold(*facts, "Notable Events to Quell Guerilla Movement", s.GuerillaEvents);
    for (std::size_t tour = 0; tour < kToursShown; ++tour) {
      AddTold(*facts, "Notable Events During Non-Combat Tour of Duty", s.NonCombatTourEvents[tour]);
    }
    AddPackage(*facts, s);
  }
}

// ---- Class abilities ----

/// A table of percentile abilities. On the tab-separated sheet it is two lines, the abilities and the values without
/// any thought of armor; that sheet has none for the assassins.
class AbilityTable {
 public:
  AbilityTable(SheetContent& content, std::string_view title) : order_(2 * static_cast<int>(content.Blocks.size())) {
    isOnTab_ = title != "Assassin Abilities";
    block_ = &AddBlock(content, {title, SheetLevel::ShortSection, SheetShape::Table});
    block_->TextLead = Headed(25, title,
                              "                              |      |  No   | Elven | Studded Leather/\n"
                              "Ability                       | Base | Armor | Chain | Ring Mail/Padded\n"
                              "------------------------------|------|-------|-------|-----------------\n");
    block_->Columns = {"Ability", "Base", "No Armor", "Elven Chain", "Studded Leather/Ring Mail/Padded"};
    block_->Facts.push_back({"", std::string(title), "", Tab("\n %s SKILL \t", 0), Hidden});
    block_->Facts.push_back({"", std::string(title), "", Tab(" \n%s RATING", 1), Hidden});
  }

  void Add(const ClassAbility& ability) {
    constexpr std::size_t kLeads = 2;
    const ClassAbilityRow& row = *ability.Row;
    const int base = ability.Base;
    const bool isFirst = block_->Facts.size() == kLeads;
    const auto adjusted = [&](int change) { return Number(AddSaturated(base, change)); };
    block_->Facts.insert(block_->Facts.end(),
                         {{"", std::string(row.Name), "%-30s| ", Tab(isFirst ? "%s" : " \t %s", 0), RowHead},
                          {"", Number(base), "%-5s| ", Tab(" \t %s", 1), Cell},
                          {"", adjusted(row.NoArmor), "%-6s| ", {}, Cell},
                          {"", adjusted(row.ElvenChain), "%-6s| ", {}, Cell},
                          {"", adjusted(row.Studded), "%s\n", {}, Cell}});
  }

 private:
  SheetTab Tab(SheetPart part, int line) const {
    return isOnTab_ ? SheetTab{TabRow::ClassAbilities, part, order_ + line} : SheetTab{};
  }

  SheetBlock* block_;
  int order_;  ///< of the first of the two lines
  bool isOnTab_;
};

void AddClassAbilities(const Sheet& sheet, SheetContent& content) {
  for (const ClassAbilityList& list : ClassAbilityLists(sheet)) {
    AbilityTable table(content, list.Title);
    for (const ClassAbility& ability : list.Abilities) table.Add(ability);
  }
}

// ---- Quirks, proficiencies, talents, skills ----

void AddQuirks(const Sheet& sheet, SheetContent& content) {
  std::vector<SheetFact> facts;
  for (int row = 0; row < kQuirkRows; ++row) {
    const int count = sheet.QuirkCounts[At(row)];
    const std::string name(TrimRight(ShownQuirkName(row)));
    if (count <= 0 || name.empty()) continue;
    if (count == 1) {
      facts.push_back({name, "", {"%s \n", true}, {TabRow::Quirks, {"%s \t", true}}});
    } else {
      facts.push_back({name, Format("x%i", count), {"%s %s\n", true}, {TabRow::Quirks, {"%s %s\t", true}}});
    }
  }
  if (facts.empty()) return;
  SheetBlock& block =
      AddBlock(content, {"Quirks and Flaws", SheetLevel::Section, SheetShape::List, Headed(25, "Quirks and Flaws")});
  block.Facts = std::move(facts);
}

/// Adds what the character can do. It has a column of the tab-separated sheet: its name over how well, as that sheet
/// says it.
void AddAccomplishment(SheetBlock& block, SheetFact fact, std::string_view tabValue) {
  if (fact.Tab.Row == TabRow::None) fact.Tab = {TabRow::Accomplishments, {"%s \t", true}};
  block.Facts.push_back(std::move(fact));
  block.Facts.push_back({"", std::string(tabValue), "", {TabRow::AccomplishmentValues, "%s \t"}, Hidden});
}

void AddProficiencies(const Sheet& sheet, SheetContent& content) {
  SheetBlock& block =
      AddBlock(content, {"Weapon Proficiencies", SheetLevel::Part, SheetShape::List, "Weapon Proficiencies \n", "\n"});
  for (const HeldWeapon& held : HeldWeapons(sheet)) {
    const std::string_view mark = MarkName(held.Mark);
    SheetFact fact{std::string(TrimRight(held.Weapon->Name)), std::string(mark), {"%s - %s \n", true}, {}};
    if (held.Mark > ProficiencyMark::Specialized) {
      block.Facts.push_back(std::move(fact));  // beyond specialization there is no column
      continue;
    }
    const bool isSpecialized = held.Mark == ProficiencyMark::Specialized;
    fact.Tab = {TabRow::Accomplishments, {isSpecialized ? "%s  \t" : "%s \t", true}};
    AddAccomplishment(block, std::move(fact), mark.substr(0, 1));
  }
  for (std::size_t row = 0; row < sheet.ProficiencyPicks.size(); ++row) {
    for (const int pick : sheet.ProficiencyPicks[row]) {
      if (pick < 0 || pick >= kProficiencyTableRows) continue;
      const std::string_view weapon = TrimRight(ProficiencyTable()[At(pick)].Name);
      const std::string name = Format("%s: %s", ProficiencyTable2()[row].Name, weapon);
      AddAccomplishment(block, {name, "", {"%s \n", true}, {}}, weapon);
      ++content.Picks;
    }
  }
}

/// The rating of a talent says how much of it ("x2", "d6") where there is a measure of it, else it is empty.
void AddTalents(const Sheet& sheet, SheetContent& content) {
  SheetBlock& block = AddBlock(content, {"Talents", SheetLevel::Part, SheetShape::List, "Talents \n", "\n"});
  for (const HeldAbility& held : HeldTalents(sheet)) {
    const std::string rating = Format(held.Measure, held.Amount);
    AddAccomplishment(block, {held.Name, rating, {"%s %s\n", true}, {}}, rating.empty() ? held.Name : rating);
  }
}

void AddSkills(const Sheet& sheet, SheetContent& content) {
  SheetBlock& block = AddBlock(content, {"Skills", SheetLevel::Part, SheetShape::List, "Skills \n"});
  for (const HeldAbility& held : HeldSkills(sheet)) {
    const std::string percent = Number(held.Amount);
    AddAccomplishment(block, {held.Name, percent, {"%s %s%% \n", true}, {}, Fact, "%s%%"}, percent);
  }
}

void AddAccomplishments(const Sheet& sheet, SheetContent& content) {
  constexpr std::string_view kTitle = "Proficiencies, Talents & Skills";
  AddBlock(content, {kTitle, SheetLevel::Section, SheetShape::Heading, Headed(15, kTitle)});
  AddProficiencies(sheet, content);
  AddTalents(sheet, content);
  AddSkills(sheet, content);
}

// ---- Belongings, family, notes ----

// clang-format off
struct CoinParts {
  SheetPart Text;
  SheetPart Tab;
};
constexpr std::array<CoinParts, kCoins.size()> kCoinParts{{
    {"%s Copper Pieces \n",      "\n Copper Pieces \t %s cp"},
    {"%s Silver Pieces \n",      "\n Silver Pieces \t %s sp"},
    {"%s Electrum Pieces \n",    "\n Electrum Pieces \t %s ep"},
    {"%s Gold Pieces \n",        "\n Gold Pieces \t %s gp"},
    {"%s Hard Silver Pieces \n", "\n Hard Silver Pieces \t %s hsp"},
    {"%s Platinum Pieces \n",    "\n Platinum Pieces \t %s pp"},
}};
// clang-format on

void AddMoney(const Sheet& sheet, SheetContent& content) {
  SheetBlock& coins = AddBlock(content, {"Coins & Money", SheetLevel::Part, SheetShape::Facts, "Coins & Money \n"});
  for (std::size_t i = 0; i < kCoins.size(); ++i) {
    const int count = sheet.*kCoins[i].Count;
    const bool isOwned = count > 0;  // the tab-separated sheet has a line for every coin
    coins.Facts.push_back({std::string(kCoins[i].Name),
                           Number(count),
                           isOwned ? kCoinParts[i].Text : SheetPart{},
                           {TabRow::Coins, kCoinParts[i].Tab},
                           isOwned ? Fact : Hidden});
  }
  std::vector<SheetFact> facts;
  AddTold(facts, "Inherited Weapon", sheet.InheritedWeapon);
  AddTold(facts, "Inherited Armor", sheet.InheritedArmor);
  AddTold(facts, "Inherited Shield/Helmet", sheet.InheritedShieldHelmet);
  AddTold(facts, "Inherited Mount", sheet.InheritedMount);
  AddTold(facts, "Inherited Deed", sheet.InheritedDeed);
  if (sheet.HereditaryDebt != 0) AddLine(facts, "Hereditary Debt", Number(sheet.HereditaryDebt));
  if (facts.empty()) return;
  AddBlock(content, {"", SheetLevel::None, SheetShape::LongFacts}).Facts = std::move(facts);
}

/// The headings over the goods owned, by category. Some differ from the names in the shop, and so they are known.
constexpr std::array<std::string_view, EquipmentCategories.size()> kGoodsHeadings{
    "Alcohol/Beverages",
    "Clothing",
    "Containers: Packs, Bags, Bottles etc.",
    "Daily Food & Lodging",
    "Light Sources",
    "Livestock",
    "Miscellany",
    "Musical Instruments",
    "Outfitting Bundles",
    "Provisions: Rations",
    "Provisions: Outfitting",
    "Tools",
    "Religious Items and Accoutrements",
    "Scribe Materials",
    "Services",
    "Tack and Harness",
    "Transport, Land",
    "Transport, Water",
    "Armor and Related Items",
    "Weapons",
    "Weapons: Ammom",
};

using GoodsByCategory = std::array<std::vector<SheetFact>, kGoodsHeadings.size()>;

/// Adds the goods of a list that are owned once, or those that are owned more often.
void AddGoods(GoodsByCategory& goods, const std::array<EquipmentRecord, kEquipmentRows>& table, bool single) {
  constexpr int kFirstWeaponCategory = 20;  // weapons and ammunition end without the blank
  for (const EquipmentRecord& good : table) {
    if (good.Quantity < 1 || (good.Quantity == 1) != single) continue;
    if (good.Category < 1 || At(good.Category) > goods.size()) continue;
    const std::string name = OneLine(TrimRight(good.Name));
    const bool isWeapon = good.Category >= kFirstWeaponCategory;
    const SheetPart tab{isWeapon ? "\t %s \t %s lbs" : "\t %s \t %s lbs ", true};
    goods[At(good.Category) - 1].push_back({single ? name : Format("%s x%i", name, good.Quantity),
                                            Format("%.2f", good.Weight),
                                            {"%s %s lbs \n", true},
                                            {TabRow::Inventory, tab},
                                            Fact,
                                            "%s lbs"});
  }
}

/// The goods of a category: the single ones before those owned more than once, those of the list before the user's own.
/// Goods of the user's own alone have no heading on the text sheet.
void AddInventory(const Game& game, SheetContent& content) {
  AddBlock(content, {"Inventory", SheetLevel::Section, SheetShape::Heading, Headed(25, "Inventory", "\n")});
  AddMoney(game.sheet, content);
  GoodsByCategory listed;
  GoodsByCategory own;
  for (const bool single : {true, false}) {
    AddGoods(listed, game.EquipmentTable, single);
    AddGoods(own, game.CustomEquipmentTable, single);
  }
  for (std::size_t i = 0; i < kGoodsHeadings.size(); ++i) {
    std::vector<SheetFact>& goods = listed[i];
    const std::string lead = goods.empty() ? std::string{} : Format("%s \n", kGoodsHeadings[i]);
    goods.insert(goods.end(), own[i].begin(), own[i].end());
    if (goods.empty()) continue;
    AddBlock(content, {kGoodsHeadings[i], SheetLevel::Part, SheetShape::List, lead, "\n"}).Facts = std::move(goods);
  }
}

void AddFamily(const Sheet& s, SheetContent& content) {
  const auto both = [](std::string_view status, std::string_view quality) { return Format("%s, %s", status, quality); };
  std::vector<SheetFact>& facts = AddBlock(content, {"Family Information", SheetLevel::Section, SheetShape::LongFacts,
                                                     Headed(25, "Family Information", "\n")})
                                      .Facts;
  AddLine(facts, "Father", both(OneLine(s.FatherStatus), OneLine(s.FatherQuality)));
  AddLine(facts, "Mother", both(OneLine(s.MotherStatus), OneLine(s.MotherQuality)));
  AddLine(facts, "Step Parent", s.StepParent);
  AddLine(facts, "Birth Order", s.BirthOrder);
  std::size_t shown = 0;
  for (const auto& line : s.SiblingLines) {
    if (line.Length() > 2 && shown < kSiblingsShown) AddLine(facts, Format("Sibling %i", ++shown), line);
  }
}

void AddNotes(const Sheet& sheet, SheetContent& content) {
  AddBlock(content, {"Notes", SheetLevel::Section, SheetShape::Note, Headed(35, "Notes")}).Facts = {
      {"", DisplayText(sheet.Notes), "%s \n", {}}};
}

std::array<AbilityScore, kAbilityCount> Scores(const CharacterSheet& sheet) {
  std::array<AbilityScore, kAbilityCount> scores;
  for (int ability = 0; ability < kAbilityCount; ++ability) scores[At(ability)] = AbilityAt(sheet, ability);
  return scores;
}

}  // namespace

void BringUpToDate(Game& game) {
  CharacterSheet& sheet = game.sheet;
  if (!NamesKnownClass(sheet.ClassName)) return RefreshAbilityEffects(game);
  // The run that gains a level changes the abilities; the one after it only shows what they are then. Ability gains of
  // the last class rows are added on each run though nobody gained anything: those are taken out again.
  constexpr int kRuns = 2;
  for (int run = 0; run < kRuns; ++run) {
    const auto scores = Scores(sheet);
    RefreshAbilityEffects(game);
    game.run.SpellsPerLevel = {};  // a class without spells leaves what another character had
    if (RecomputeFromClasses(game)) continue;
    for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(sheet, ability) = scores[At(ability)];
    return;
  }
}

SheetContent GatherSheet(const Game& game) {
  const Sheet& sheet = game.sheet;
  SheetContent content;
  AddWhoItIs(sheet, content);
  AddAbilities(sheet, content);
  AddClasses(sheet, content);
  AddSaves(sheet, content);
  AddFight(sheet, content);
  AddMovement(sheet, content);
  AddTattoos(sheet, content);
  AddMage(game, content);
  AddCleric(sheet, content);
  AddFighter(sheet, content);
  AddClassAbilities(sheet, content);
  AddQuirks(sheet, content);
  AddAccomplishments(sheet, content);
  AddInventory(game, content);
  AddFamily(sheet, content);
  AddNotes(sheet, content);
  return content;
}

std::string PrintedPart(const SheetPart& part, const SheetFact& fact) {
  return part.ShowsLabel ? Format(part.Pattern, fact.Label, fact.Value) : Format(part.Pattern, fact.Value);
}

}  // namespace veld
