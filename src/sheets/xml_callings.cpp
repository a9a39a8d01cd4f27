#include <array>
#include <string>

#include "rules/class_table.h"
#include "sheets/sheet_facts.h"
#include "sheets/xml_parts.h"
#include "store/sheet_accessors.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr std::array<std::string_view, kAbilityCount> kGrowths{"CLASS_STR_GROW_", "CLASS_DEX_GROW_", "CLASS_CON_GROW_",
                                                               "CLASS_INT_GROW_", "CLASS_WIS_GROW_", "CLASS_CHR_GROW_",
                                                               "CLASS_COM_GROW_"};
constexpr std::array<std::string_view, kThiefAbilities> kThiefGrowths{
    "CLASS_PICK_POCKETS_", "CLASS_OPEN_LOCKS_",    "CLASS_FIND_TRAPS_",
    "CLASS_REMOVE_TRAPS_", "CLASS_MOVE_SILENTLY_", "CLASS_HIDE_IN_SHADOWS_",
    "CLASS_DETECT_NOISE_", "CLASS_CLIMB_WALLS_",   "CLASS_READ_LANGUAGES_"};

void AddSpellData(XmlWriter& xml, const Game& game) {
  const auto data = xml.Open("SPELL_DATA", "TYPE", "Magic-User");
  {
    const auto progression = xml.Open("SPELL_PROGRESSION");
    int level = 0;
    for (const int slots : game.run.SpellsPerLevel) {
      xml.Leaf("SLOT", "LEVEL", Format("%i", ++level), Format("%i", slots));
    }
  }
  const auto known = xml.Open("SPELLS_KNOWN");
  for (std::size_t row = 0; row < kSpellRows; ++row) {
    if (game.sheet.SpellsKnown[row] <= 0) continue;
    const SpellRecord& record = game.SpellTable[row];
    const auto spell = xml.Open("SPELL");
    {
      const auto name = xml.Open("NAME");
      xml.Leaf("FULL", TrimRight(record.Name));
    }
    xml.Leaf("TYPE", record.Type);
    xml.Leaf("SPELL_SPECIALIZE", record.Specialization);
    xml.Leaf("COMPONENT", record.Component);
    xml.Leaf("DURATION", record.Duration);
    xml.Leaf("CASTING_TIME", record.CastingTime);
    xml.Leaf("AREA_OF_EFFECT", record.AreaOfEffect);
    xml.Leaf("SPELL_SAVING_THROW", record.SavingThrow);
    xml.Leaf("SPELL_CATEGORY", record.Category);
  }
}

void AddMage(XmlWriter& xml, const Game& game) {
  const CharacterSheet& s = game.sheet;
  const auto background = xml.Open("BACKGROUND", "TYPE", "Magic-User");
  if (s.UsesMageBackground == 1) {
    xml.Leaf("SCHOOL_LOCATION", s.SchoolLocation);
    xml.Leaf("SCHOOL_TYPE", s.SchoolType);
    xml.Leaf("MASTER_QUALITY_NURTURE", s.MasterNurture);
    xml.Leaf("MASTER_QUALITY_EDUCATION", s.MasterEducation);
    xml.Leaf("CLASS_SIZE", s.GraduatingClassSize);
    xml.Leaf("CLASS_EQUIPMENT", s.ClassroomEquipment);
    xml.Leaf("CLASS_RANK", s.GraduatingRank);
  }
  AddSpellData(xml, game);
}

void AddFighter(XmlWriter& xml, const CharacterSheet& s) {
  const auto background = xml.Open("BACKGROUND", "TYPE", "Fighter");
  const auto addTold = [&](std::string_view name, std::string_view type, std::string_view text) {
    if (HasText(text)) xml.Leaf(name, "TYPE", type, text);
  };
  {
    const auto training = xml.Open("TRAINING", "TYPE", "Basic");
    xml.Leaf("CAMP_TYPE", s.TrainingCampType);
    xml.Leaf("CAMP_QUALITY", s.BasicTrainingQuality);
    xml.Leaf("CAMP_RESULTS", s.BasicTrainingResults);
    for (const auto& accident : s.TrainingAccidents) addTold("ACCIDENT_EVENT", "Accident", accident);
  }
  xml.Leaf("SPECIALTY_ASSIGNMENT", s.SpecialtyAssignment);
  {
    const auto training = xml.Open("TRAINING", "TYPE", "Advanced");
    xml.Leaf("AIT_QUALITY", s.AdvancedTrainingQuality);
  }
  xml.Leaf("STATE_OF_HOSTILITIES", s.HostilitiesState);
  for (const auto& war : s.Wars) addTold("WAR_EVENT", "War", war);
  xml.Leaf("OCCUPYING_FORCE_ATTITUDE", s.OccupationAttitude);
  xml.Leaf("OCCUPATION_EVENT", "TYPE", "During Occupation", s.OccupationEvents);
  xml.Leaf("GUERILLA_EVENT", "TYPE", "Quell Guerilla Movement", s.GuerillaEvents);
  for (std::size_t tour = 0; tour < kToursShown; ++tour) {
    addTold("NONCOMBAT_EVENT", "Non-combat Tour", s.NonCombatTourEvents[tour]);
  }
}

void AddCleric(XmlWriter& xml, const CharacterSheet& s) {
  const auto background = xml.Open("BACKGROUND", "TYPE", "Cleric");
  xml.Leaf("DVA_THE_CALL", s.TheCall);
  xml.Leaf("DVA_SCHOOL_TYPE", s.EcclesiasticalTraining);
  xml.Leaf("DVA_REVEREND_SUPERIOR_COMPETENCY", s.SuperiorCompetency);
  xml.Leaf("DVA_REVEREND_SUPERIOR_PERSONALITY", s.SuperiorPersonality);
  xml.Leaf("DVA_ACCOUTREMENTS", s.ReligiousAccoutrements);
  xml.Leaf("DVA_RESIDENCY_LOCATION", s.ResidencyLocation);
  xml.Leaf("DVA_RESIDENCY_RESULTS", s.ResidencyResults);
  xml.Leaf("DVA_FINAL_RESULTS", s.EducationResults);
}

/// The TYPE of the thieves' list. It is the class's own name for those whom readers of the sheet know, the plain
/// illusionist among them, who becomes a standard specialist and whose name then comes after the thief's; for all other
/// thieves it is the list's. A bounty hunter's has run into that of the list and stays so.
std::string_view ThiefListType(std::string_view className) {
  constexpr std::string_view kKnown[] = {"Cleric/Thief",    "Fighter/Magic-User/Thief", "Fighter/Thief",
                                         "Berserker/Thief", "Magic-User/Thief",         "Illusionist/Thief"};
  for (const std::string_view name : kKnown) {
    if (className == name) return name;
  }
  if (className == "Standard Specialist: Illusionist/Thief") return "Illusionist/Thief";
  if (className == "Thief/Standard Specialist: Illusionist") return "Illusionist/Thief";
  return className == "Bounty Hunter" ? "Bounty HunterThief" : "Thief";
}

void AddSkill(XmlWriter& xml, const ClassAbility& ability, std::string_view abbreviation) {
  const ClassAbilityRow& row = *ability.Row;
  const auto skill = xml.Open("SKILL");
  AddXmlName(xml, row.Name, abbreviation);
  const auto add = [&](std::string_view type, int change) {
    xml.Leaf("RATING", "TYPE", type, Format("%i", AddSaturated(ability.Base, change)));
  };
  add("Base", 0);
  add("Unarmored", row.NoArmor);
  add("ElvenChain", row.ElvenChain);
  add("MediumArmor", row.Studded);
}

}  // namespace

void AddClassData(XmlWriter& xml, const CharacterSheet& sheet) {
  for (std::size_t row = 0; row < kClassRows; ++row) {
    if (sheet.ClassLevels[row] <= 0) continue;
    const auto data = xml.Open("CLASS_DATA");
    xml.Leaf("CLASS_NAME", TrimRight(ClassTable()[row].Name));
    xml.Leaf("CLASS_LEVEL", sheet.ClassLevels[row]);
    xml.Leaf("CLASS_EXP", Format("%.0f", sheet.ClassExperience[row]));
    for (std::size_t level = 0; level < kLevels; ++level) {
      const std::string number = std::to_string(level);
      const auto add = [&](std::string_view name, int value) { xml.Leaf(std::string(name) + number, value); };
      add("CLASS_HITPOINTS_", sheet.LevelHitPoints[level][row]);
      for (std::size_t i = 0; i < kGrowths.size(); ++i) {
        add(kGrowths[i], LevelGainAt(sheet, static_cast<int>(i))[row][level]);
      }
      for (std::size_t i = 0; i < kThiefGrowths.size(); ++i) add(kThiefGrowths[i], ThiefAbilityAt(sheet, i)[level]);
    }
  }
}

void AddBackgrounds(XmlWriter& xml, const Game& game) {
  const CharacterSheet& sheet = game.sheet;
  if (IsShownAsMage(sheet)) AddMage(xml, game);
  if (sheet.IsFighterClass == 1 && sheet.UsesFighterBackground == 1) AddFighter(xml, sheet);
  if (sheet.IsClericClass == 1 && sheet.UsesClericBackground == 1) AddCleric(xml, sheet);
}

void AddSkillLists(XmlWriter& xml, const CharacterSheet& sheet) {
  for (const ClassAbilityList& held : ClassAbilityLists(sheet)) {
    const bool isThief = held.Calling == "Thief";
    const auto list = xml.Open("SKILL_LIST", "TYPE", isThief ? ThiefListType(sheet.ClassName) : held.Calling);
    for (const ClassAbility& ability : held.Abilities) {
      const std::string_view name = ability.Row->Name;
      // Only the monks' list has the right letters, and the thieves' has a row twice: readers know them so.
      const bool isMisnamed = name == "Climb Walls" && held.Calling != "Monk";
      AddSkill(xml, ability, isMisnamed ? "DW" : ability.Row->Short);
      if (isThief && name == "Hide in Shadows") AddSkill(xml, ability, ability.Row->Short);
    }
  }
}

}  // namespace veld
