#include "cli/json_sheet.h"

#include <array>
#include <nlohmann/json.hpp>

#include "rules/class_table.h"
#include "rules/equipment_catalogue.h"
#include "rules/quirk_table.h"
#include "sheets/sheet_content.h"
#include "sheets/sheet_facts.h"
#include "store/sheet_accessors.h"
#include "text/numbers.h"
#include "text/search.h"
#include "text/utf8.h"

namespace veld {

namespace {

using Json = nlohmann::ordered_json;

constexpr int kIndent = 2;

/// A text of the record: without the blanks that fixed texts end in, and readable whatever bytes a file brought.
std::string Text(std::string_view text) {
  return DisplayText(TrimRight(text));
}

/// Text, with null for one that says that nothing was decided or given.
Json Known(std::string_view text) {
  std::string known = Text(text);
  if (known.empty() || known == "Unknown" || known == "Please Pick" || known == "None" || known == "N/A")
    return nullptr;
  return known;
}

Json Abilities(const CharacterSheet& s) {
  constexpr std::array<const char*, kAbilityCount> kNames{"strength", "dexterity", "constitution", "intelligence",
                                                          "wisdom",   "charisma",  "comeliness"};
  Json abilities;
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    const AbilityScore& score = AbilityAt(s, ability);
    abilities[kNames[static_cast<std::size_t>(ability)]] = {{"score", score.Whole}, {"percentile", score.Percentile}};
  }
  abilities["strength"].update({{"hit", Text(s.StrengthHitAdj)},
                                {"damage", Text(s.StrengthDamageAdj)},
                                {"open_doors", Text(s.OpenDoors)},
                                {"bend_bars_percent", s.BendBars}});
  abilities["dexterity"].update(
      {{"defense", Text(s.DefenseAdj)}, {"reaction", Text(s.ReactionAdj)}, {"missile", Text(s.MissileAdj)}});
  abilities["constitution"].update({{"hit_points", Text(s.ConstitutionHPAdjText)},
                                    {"system_shock_percent", s.SystemShock},
                                    {"resurrection_survival_percent", s.ResurrectionSurvival},
                                    {"poison_save", Text(s.PoisonSave)}});
  abilities["intelligence"].update({{"languages", s.LanguageSlots},
                                    {"learn_spell_percent", s.LearnAbility},
                                    {"spell_mishap_percent", s.SpellMishap}});
  abilities["wisdom"].update({{"magical_defense", Text(s.MagicalDefenseAdj)},
                              {"bonus_spells", Text(s.BonusSpells)},
                              {"spell_failure_percent", s.SpellFailure},
                              {"improve_skill_percent", s.ImproveSkillChance}});
  abilities["charisma"].update(
      {{"henchmen", s.MaxHenchmen}, {"loyalty", Text(s.LoyaltyBase)}, {"reaction", Text(s.CharismaReactionAdj)}});
  return abilities;
}

Json Classes(const CharacterSheet& s) {
  Json classes = Json::array();
  for (std::size_t row = 0; row < kClassRows; ++row) {
    const int level = s.ClassLevels[row];
    if (level <= 0 || row == kBestSave) continue;
    const ClassRecord& record = ClassTable()[row];
    Json next = nullptr;
    if (level < kHighestLadderLevel) next = record.ExperienceForLevel[static_cast<std::size_t>(level) + 1];
    classes.push_back({{"name", Text(record.Name)},
                       {"level", level},
                       {"experience", TruncateToInt(s.ClassExperience[row])},
                       {"next_level_at", std::move(next)}});
  }
  return classes;
}

Json Saves(const CharacterSheet& s) {
  constexpr std::array<const char*, kSaves> kNames{
      "paralyzation", "poison",       "death_magic", "petrification", "polymorph", "rod",   "staff",
      "wand",         "quell_frenzy", "quell_lust",  "breath_weapon", "apology",   "spells"};
  Json saves;
  for (std::size_t save = 0; save < kSaves; ++save) saves[kNames[save]] = BestSave(SaveAt(s, save));
  return saves;
}

Json Movement(const CharacterSheet& s) {
  const auto limits = EncumbranceLimits(s);
  return {{"base", s.BaseMovement},        {"burden_lb", s.CarriedWeightLbs}, {"light_from_lb", limits[1]},
          {"moderate_from_lb", limits[2]}, {"heavy_from_lb", limits[3]},      {"severe_from_lb", limits[4]},
          {"most_lb", limits[5]}};
}

Json Money(const CharacterSheet& s) {
  return {{"platinum", s.PlatinumPieces}, {"hard_silver", s.HardSilverPieces}, {"gold", s.GoldPieces},
          {"electrum", s.ElectrumPieces}, {"silver", s.SilverPieces},          {"copper", s.CopperPieces},
          {"debt_gold", s.HereditaryDebt}};
}

Json Goods(const Game& game) {
  Json goods = Json::array();
  for (const auto* table : {&game.EquipmentTable, &game.CustomEquipmentTable}) {
    for (const EquipmentRecord& good : *table) {
      if (good.Quantity <= 0 || Text(good.Name).empty()) continue;
      goods.push_back({{"name", Text(good.Name)},
                       {"category", Text(EquipmentCategoryName(good.Category))},
                       {"quantity", good.Quantity},
                       {"weight_lb", good.Weight},
                       {"value_copper", good.CopperValue}});
    }
  }
  return goods;
}

Json Proficiencies(const CharacterSheet& s) {
  Json proficiencies = Json::array();
  for (const HeldWeapon& held : HeldWeapons(s)) {
    proficiencies.push_back({{"name", Text(held.Weapon->Name)}, {"mastery", Text(MarkName(held.Mark))}});
  }
  return proficiencies;
}

Json Held(const std::vector<HeldAbility>& abilities, const char* amount) {
  Json list = Json::array();
  for (const HeldAbility& held : abilities) list.push_back({{"name", Text(held.Name)}, {amount, held.Amount}});
  return list;
}

Json Quirks(const CharacterSheet& s) {
  Json quirks = Json::array();
  for (int row = 0; row < kQuirkRows; ++row) {
    const int count = s.QuirkCounts[static_cast<std::size_t>(row)];
    std::string name = Text(ShownQuirkName(row));
    if (count > 0 && !name.empty()) quirks.push_back({{"name", std::move(name)}, {"count", count}});
  }
  return quirks;
}

Json ClassAbilities(const CharacterSheet& s) {
  Json lists = Json::array();
  for (const ClassAbilityList& list : ClassAbilityLists(s)) {
    Json abilities;
    for (const ClassAbility& ability : list.Abilities) abilities[std::string(ability.Row->Name)] = ability.Base;
    lists.push_back({{"class", list.Calling}, {"percent", std::move(abilities)}});
  }
  return lists;
}

Json Spells(const Game& game) {
  Json spells = Json::array();
  for (std::size_t row = 0; row < kSpellRows; ++row) {
    if (game.sheet.SpellsKnown[row] <= 0) continue;
    const SpellRecord& spell = game.SpellTable[row];
    spells.push_back({{"name", Text(spell.Name)},
                      {"level", spell.Level},
                      {"school", Text(spell.Type)},
                      {"range", Text(spell.Range)},
                      {"components", Text(spell.Component)},
                      {"duration", Text(spell.Duration)},
                      {"casting_time", Text(spell.CastingTime)},
                      {"area", Text(spell.AreaOfEffect)},
                      {"saving_throw", Text(spell.SavingThrow)},
                      {"book_pages", game.sheet.SpellsKnown[row]}});
  }
  return spells;
}

Json Family(const CharacterSheet& s) {
  Json siblings = Json::array();
  for (const auto& line : s.SiblingLines) {
    if (!Text(line).empty()) siblings.push_back(Text(line));
  }
  return {{"social_class", Known(s.SocialClassName)}, {"birth", Known(s.BirthCircumstance)},
          {"mother", Known(s.MotherStatus)},          {"mother_quality", Known(s.MotherQuality)},
          {"father", Known(s.FatherStatus)},          {"father_quality", Known(s.FatherQuality)},
          {"heritage", Known(s.FamilyHeritage)},      {"birth_order", Known(s.BirthOrder)},
          {"siblings", std::move(siblings)}};
}

Json Inherited(const CharacterSheet& s) {
  return {{"weapon", Known(s.InheritedWeapon)},
          {"armor", Known(s.InheritedArmor)},
          {"shield_or_helmet", Known(s.InheritedShieldHelmet)},
          {"mount", Known(s.InheritedMount)},
          {"deed", Known(s.InheritedDeed)}};
}

}  // namespace

std::string JsonSheet(Game& game) {
  BringUpToDate(game);
  const CharacterSheet& s = game.sheet;
  const Json document = {
      {"format", "veld-character"},
      {"version", kJsonVersion},
      {"name", Text(s.CharacterName)},
      {"race", Known(s.RaceName)},
      {"gender", Known(s.Gender)},
      {"alignment", Known(s.Alignment)},
      {"package", Known(s.PackageName)},
      {"classes", Classes(s)},
      {"hit_points", s.HitPoints},
      {"honor", {{"points", s.Honor}, {"die_sides", s.HonorDie}}},
      {"age_years", s.Age},
      {"height_inches", s.HeightInches},
      {"weight_lb", s.WeightLbs},
      {"handedness", Known(s.Handedness)},
      {"eyes", Known(s.EyeColor)},
      {"hair", Known(s.HairColor)},
      {"abilities", Abilities(s)},
      {"saving_throws", Saves(s)},
      {"movement", Movement(s)},
      {"proficiencies", Proficiencies(s)},
      {"talents", Held(HeldTalents(s), "amount")},
      {"skills", Held(HeldSkills(s), "mastery_percent")},
      {"class_abilities", ClassAbilities(s)},
      {"quirks", Quirks(s)},
      {"money", Money(s)},
      {"goods", Goods(game)},
      {"inherited", Inherited(s)},
      {"spells", Spells(game)},
      {"family", Family(s)},
      {"notes", Text(s.Notes)},
  };
  return document.dump(kIndent, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace veld
