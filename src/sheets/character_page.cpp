#include "sheets/character_page.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "rules/ability_effects.h"
#include "rules/equipment_catalogue.h"
#include "rules/honor_tables.h"
#include "rules/quirk_table.h"
#include "sheets/sheet_facts.h"
#include "steps/classes/class_totals.h"
#include "store/sheet_accessors.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

using Page = std::vector<PageLine>;
using Kind = PageLine::Kind;

constexpr std::string_view kNotNamed = "name";          // as a record is made
constexpr std::string_view kNotChosen = "Please Pick";  // a class, an alignment
constexpr std::string_view kNoRace = "Unknown";
constexpr int kFirstWeaponCategory = 20;  // weapons, and after them their ammunition

bool IsNobody(const Game& game) {
  return !game.isFinished && game.sheet.RaceName == kNoRace && game.run.CurrentStep == 0;
}

/// Adds a fact that says anything.
void AddFact(Page& page, std::string_view label, std::string value) {
  if (!value.empty()) page.push_back({Kind::Fact, std::string(label), std::move(value)});
}

void AddSection(Page& page, std::string_view heading, std::string text) {
  if (text.empty()) return;
  page.push_back({.What = Kind::Heading, .Value = std::string(heading)});
  page.push_back({.What = Kind::Text, .Value = std::move(text)});
}

/// "a, b, c"
void AddToList(std::string& list, std::string_view item, std::string_view sign = ", ") {
  if (!list.empty()) list += sign;
  list += item;
}

/// "Liar, Skilled; Parley": catalogue names hold commas.
void AddName(std::string& names, std::string_view name) {
  AddToList(names, name, "; ");
}

std::string Trimmed(std::string_view text) {
  return OneLine(TrimRight(text));
}

// ---- Abilities ----

/// What a score brings: a name, and the value behind it. Blank values are nothing to tell.
struct Effect {
  std::string_view Name;
  std::string Value;
};

std::string Number(int number) {
  return Format("%i", number);
}

std::string Percent(int number) {
  return Format("%i%%", number);
}

std::string WithoutMarkup(std::string_view text) {
  std::string plain;
  bool isMarkup = false;
  for (const char c : text) {
    if (c == '<') isMarkup = true;
    if (!isMarkup) plain += c;
    if (c == '>') isMarkup = false;
  }
  return plain;
}

void AddAbility(Page& page, int ability, AbilityScore score, std::initializer_list<Effect> effects) {
  std::string told = Format("%i/%i", score.Whole, score.Percentile);
  bool isFirst = true;
  for (const Effect& effect : effects) {
    const std::string_view value = TrimRight(effect.Value);
    if (value.empty() || score.Whole < 1) continue;
    told += Format("%s%s %s", std::exchange(isFirst, false) ? ":  " : ", ", effect.Name, value);
  }
  AddFact(page, AbilityName(ability), std::move(told));
}

void AddAbilities(Page& page, const CharacterSheet& s) {
  const auto text = [](std::string_view value) { return std::string(value); };
  const StrengthEffect& strength = StrengthEffectOf(s.Strength);
  const DexterityEffect& dexterity = DexterityEffectOf(s.Dexterity);
  const ConstitutionEffect& constitution = ConstitutionEffectOf(s.Constitution);
  const IntelligenceEffect& intelligence = IntelligenceEffectOf(s.Intelligence);
  const WisdomEffect& wisdom = WisdomEffectOf(s.Wisdom);
  const CharismaEffect& charisma = CharismaEffectOf(s.Charisma);
  page.push_back({.What = Kind::Heading, .Value = "Abilities"});
  AddAbility(page, kStrength, s.Strength,
             {{"to hit", text(strength.StrengthHitAdj)},
              {"damage", text(strength.StrengthDamageAdj)},
              {"weight allowance", Number(strength.WeightAllowance)},
              {"open doors", text(strength.OpenDoors)},
              {"bend bars", Percent(strength.BendBars)}});
  AddAbility(page, kDexterity, s.Dexterity,
             {{"defense", text(dexterity.DefenseAdj)},
              {"reaction", text(dexterity.ReactionAdj)},
              {"missile", text(dexterity.MissileAdj)}});
  AddAbility(page, kConstitution, s.Constitution,
             {{"hit points", text(constitution.ConstitutionHPAdjText)},
              {"system shock", Percent(constitution.SystemShock)},
              {"resurrection survival", Percent(constitution.ResurrectionSurvival)},
              {"poison save", text(constitution.PoisonSave)},
              {"immune to disease/alcohol", text(constitution.ImmuneToDisease)},
              {"regenerate/heal", text(constitution.RegenHeal)}});
  AddAbility(page, kIntelligence, s.Intelligence,
             {{"languages", Number(intelligence.LanguageSlots)},
              {"spell level", text(intelligence.MaxSpellLevelText)},
              {"learn ability", Percent(intelligence.LearnAbility)},
              {"spells per level", text(intelligence.MaxSpellsText)},
              {"illusion immunity", WithoutMarkup(intelligence.IllusionImmunity)},
              {"spell mishap", Percent(intelligence.SpellMishap)}});
  AddAbility(page, kWisdom, s.Wisdom,
             {{"magical defense", text(wisdom.MagicalDefenseAdj)},
              {"bonus spells", text(wisdom.BonusSpells)},
              {"spell failure", Percent(wisdom.SpellFailure)},
              {"spell immunity", text(wisdom.SpellImmunity)},
              {"improve skill", Percent(wisdom.ImproveSkillChance)}});
  AddAbility(page, kCharisma, s.Charisma,
             {{"henchmen", Number(charisma.MaxHenchmen)},
              {"loyalty base", text(charisma.LoyaltyBase)},
              {"reaction", text(charisma.CharismaReactionAdj)},
              {"Comeliness", text(charisma.ComelinessMod)},
              {"Honor", text(charisma.HonorMod)}});
  AddAbility(page, kComeliness, s.Comeliness, {});
}

// ---- Who it is, and what he has ----

std::string RaceText(const CharacterSheet& sheet) {
  return sheet.RaceName == kNoRace ? std::string() : Format("%s, %s", Trimmed(sheet.RaceName), Trimmed(sheet.Gender));
}

std::string MoneyText(const CharacterSheet& sheet) {
  std::string money;
  for (auto coin = kCoins.rbegin(); coin != kCoins.rend(); ++coin) {
    const int count = sheet.*coin->Count;
    if (count <= 0) continue;
    const std::string_view name = coin->Name.substr(0, coin->Name.size() - (count == 1 ? 1 : 0));  // "1 Gold Piece"
    AddToList(money, Format("%i %s", count, name));
  }
  return money;
}

/// What is carried, and what a burden it is.
std::string BurdenText(const CharacterSheet& sheet) {
  constexpr std::array<std::string_view, 5> kBurdens{"light", "moderate", "heavy", "severe",
                                                     "more than can be carried"};
  const StrengthEffect& strength = StrengthEffectOf(sheet.Strength);
  const std::array<int, kBurdens.size()> limits{strength.WeightAllowance, strength.WeightLightLimit,
                                                strength.WeightModerateLimit, strength.WeightHeavyLimit,
                                                strength.WeightSevereLimit};
  std::string_view burden = "no burden";
  for (std::size_t i = 0; i < limits.size(); ++i) {
    if (sheet.CarriedWeightLbs >= static_cast<float>(limits[i])) burden = kBurdens[i];
  }
  std::string next;
  for (std::size_t i = 0; i + 1 < limits.size(); ++i) AddToList(next, Format("%s from %i", kBurdens[i], limits[i]));
  return Format("%.2f lbs, %s (%s)", sheet.CarriedWeightLbs, burden, next);
}

void AddWhoItIs(Page& page, const Game& game) {
  const CharacterSheet& s = game.sheet;
  const bool hasClass = s.ClassName != kNotChosen;
  AddFact(page, "Race", RaceText(s));
  const ClassTexts classes = ClassTextsOf(s);
  if (hasClass) AddFact(page, "Class and level", Format("%s %s", Trimmed(classes.Names), classes.Levels));
  if (s.Alignment != kNotChosen) AddFact(page, "Alignment", Trimmed(s.Alignment));
  if (hasClass) AddFact(page, "Hit points", Number(HitPointsOf(s)));
  if (s.Honor != 0 || game.isFinished) {
    AddFact(page, "Honor", Format("%i, %s", s.Honor, HonorCategoryText(s.Honor, AverageLevel(s))));
  }
  AddFact(page, "Money", MoneyText(s));
  if (s.CarriedWeightLbs > 0 || game.isFinished) AddFact(page, "Burden", BurdenText(s));
  if (!game.isFinished) AddFact(page, "Building Points", Number(TruncateToInt(game.run.BuildingPoints)));
}

std::string SavesText(const CharacterSheet& sheet) {
  const auto best = BestSaves(sheet);
  std::string text;
  for (std::size_t save = 0; save < best.size(); ++save) {
    if (best[save] < kNoSave) AddToList(text, Format("%s %i", kSaveNames[save], best[save]));
  }
  return text;
}

std::string ProficienciesText(const CharacterSheet& sheet) {
  std::string text;
  for (const HeldWeapon& held : HeldWeapons(sheet)) {
    AddName(text, Format("%s (%s)", TrimRight(held.Weapon->Name), MarkName(held.Mark)));
  }
  return text;
}

std::string WeaponsText(const Game& game) {
  std::string text;
  for (const auto* goods : {&game.EquipmentTable, &game.CustomEquipmentTable}) {
    for (const EquipmentRecord& good : *goods) {
      if (good.Quantity < 1 || good.Category < kFirstWeaponCategory) continue;
      const std::string name = Trimmed(good.Name);
      AddName(text, good.Quantity == 1 ? name : Format("%s x%i", name, good.Quantity));
    }
  }
  return text;
}

std::string SkillsText(const CharacterSheet& sheet) {
  std::string text;
  for (const HeldAbility& skill : HeldSkills(sheet)) AddName(text, Format("%s %i%%", skill.Name, skill.Amount));
  return text;
}

std::string TalentsText(const CharacterSheet& sheet) {
  std::string text;
  for (const HeldAbility& talent : HeldTalents(sheet)) {
    const std::string measure = Format(talent.Measure, talent.Amount);
    AddName(text, Format(measure.empty() ? "%s" : "%s %s", talent.Name, measure));
  }
  return text;
}

/// The spells known, a line for each level, cantrips first: who was dealt his spells sees them here.
void AddSpells(Page& page, const Game& game) {
  std::string shown;  // the level whose line is the last one
  for (const std::size_t row : KnownSpells(game)) {
    const SpellRecord& spell = game.SpellTable[row];
    const std::string level = spell.Level < 1 ? "Cantrips" : Format("Level %i", spell.Level);
    if (shown.empty()) page.push_back({.What = Kind::Heading, .Value = "Spells"});
    if (std::exchange(shown, level) == level) {
      AddName(page.back().Value, Trimmed(spell.Name));
    } else {
      AddFact(page, level, Trimmed(spell.Name));
    }
  }
}

std::string QuirksText(const CharacterSheet& sheet) {
  std::string text;
  for (int row = 0; row < kQuirkRows; ++row) {
    const int count = sheet.QuirkCounts[static_cast<std::size_t>(row)];
    if (count <= 0) continue;
    const std::string_view name = TrimRight(ShownQuirkName(row));
    if (!name.empty()) AddName(text, count == 1 ? std::string(name) : Format("%s x%i", name, count));
  }
  return text;
}

}  // namespace

std::vector<PageLine> NobodyPage() {
  const auto text = [](std::string_view line) { return PageLine{.What = Kind::Text, .Value = std::string(line)}; };
  return {
      {.What = Kind::Title, .Value = "Nobody is in memory yet"},
      text("File, New Character begins one: it rolls the seven abilities and leads from step to step."),
      text("File, Load takes a character from his file, File, Recover one that was not saved or not finished."),
      text("File, Input own character takes one over from a sheet of paper."),
      {.What = Kind::Heading, .Value = "And beside that"},
      text("Help, Options chooses the books and optional rules in use."),
      text("The GM menu has the referee's tools, which need no character: dice, Honor, critical hits and NPCs."),
  };
}

std::vector<PageLine> CharacterPage(const Game& game) {
  if (IsNobody(game)) return NobodyPage();
  const CharacterSheet& sheet = game.sheet;
  const bool isNamed = sheet.CharacterName != kNotNamed && !sheet.CharacterName.Empty();
  Page page{{.What = Kind::Title, .Value = isNamed ? Trimmed(sheet.CharacterName) : "A character without a name"}};
  AddWhoItIs(page, game);
  AddAbilities(page, sheet);
  AddSection(page, "Saving Throws", SavesText(sheet));
  AddSection(page, "Weapon Proficiencies", ProficienciesText(sheet));
  AddSection(page, "Weapons", WeaponsText(game));
  AddSection(page, "Talents", TalentsText(sheet));
  AddSection(page, "Skills", SkillsText(sheet));
  AddSpells(page, game);
  AddSection(page, "Quirks and Flaws", QuirksText(sheet));
  return page;
}

}  // namespace veld
