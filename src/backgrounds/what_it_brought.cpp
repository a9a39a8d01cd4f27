#include "backgrounds/what_it_brought.h"

#include "rules/class_table.h"
#include "rules/proficiency_table.h"
#include "rules/quirk_table.h"
#include "rules/skill_table.h"
#include "rules/talent_table.h"
#include "steps/skills/proficiency_purchase.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

using Lines = std::vector<std::string>;

/// A number that a youth can change. Its text has a place for what was added or taken ("+2"), or is told with the
/// number itself as a price is.
struct YouthNumber {
  std::string_view Text;
  float (*Read)(const Game& game);
  bool TellsNumber = false;
};

template <auto Field>
float OfRun(const Game& game) {
  return static_cast<float>(game.run.*Field);
}
template <auto Field>
float OfSheet(const Game& game) {
  return static_cast<float>(game.sheet.*Field);
}

// clang-format off
constexpr YouthNumber kNumbers[] = {
  {"Honor %s",                            OfRun<&GenerationRun::HonorBackgroundModifier>},
  {"Honor %s",                            OfSheet<&CharacterSheet::Honor>},
  {"Honor is never above %g",             OfRun<&GenerationRun::HonorLimitFlag>, true},
  {"Starting money %s%%",                 OfRun<&GenerationRun::MoneyBonusPercent>},
  {"Starting money roll %s",              OfRun<&GenerationRun::InheritanceModifier>},
  {"Gold %s",                             OfSheet<&CharacterSheet::GoldPieces>},
  {"Gold %s",                             OfRun<&GenerationRun::ResidencyGold>},
  {"Age %s years",                        OfSheet<&CharacterSheet::Age>},
  {"Weight %s pounds",                    OfSheet<&CharacterSheet::WeightLbs>},
  {"Academic BP %s",                      OfRun<&GenerationRun::AcademicBP>},
  {"Arcane BP %s",                        OfRun<&GenerationRun::ArcaneBP>},
  {"Language BP %s",                      OfRun<&GenerationRun::LanguageBP>},
  {"Free skills %s",                      OfRun<&GenerationRun::VeteranFreeSkills>},
  {"Free scholarly skills %s",            OfRun<&GenerationRun::FreeSkillPicks>},
  {"Bonus skill points %s",               OfRun<&GenerationRun::BonusSkillPoints>},
  {"Bonus skill points %s",               OfRun<&GenerationRun::PackageBonusPoints>},
  {"Starting Honor roll %s",              OfRun<&GenerationRun::HonorTableModifier>},
  {"Free steps of Specialization %s",     OfSheet<&CharacterSheet::FreeWeaponProficiencySlots>},
  {"Bow Bonus costs %g BP",               OfRun<&GenerationRun::BowBonusDiscount>, true},
  {"Crossbow Bonus costs %g BP",          OfRun<&GenerationRun::CrossbowBonusDiscount>, true},
  {"Maintain Self-Discipline costs %g BP", OfRun<&GenerationRun::SelfDisciplinePrice>, true},
  {"Cantrips %s",                         OfRun<&GenerationRun::SpellListIndex>},
  {"Starting spells %s",                  OfRun<&GenerationRun::StartingSpells>},
  {"Starting spells of the 1st level %s", OfRun<&GenerationRun::FreeLevel1Spells>},
  {"Starting spells of the 3rd level %s", OfRun<&GenerationRun::FreeLevel3Spells>},
  {"Starting spells of any level %s",     OfRun<&GenerationRun::FreeAnySpells>},
  {"Chance to learn spells %s%%",         OfRun<&GenerationRun::SpellLearnBonusPermanent>},
  {"Chance to learn 1st level spells %s%%", OfRun<&GenerationRun::SpellLearnBonusFirstLevel>},
  {"Roll for the final results %s",       OfRun<&GenerationRun::EducationResultModifier>},
  {"Roll for the Honor modifier %s",      OfRun<&GenerationRun::SchoolHonorModifier>},
  {"Proficiency slots used %s",           OfSheet<&CharacterSheet::ProficiencySlotsUsed>},
};
// clang-format on
static_assert(std::size(kNumbers) == kYouthNumbers);

std::string Signed(double change) {
  return change > 0 ? Format("+%g", change) : Format("%g", change);
}

/// "Tracking 34" for what is new, "Tracking 46 (+12)" for what has grown or shrunk.
std::string ScoreText(std::string_view name, int score, int before) {
  const std::string_view shown = TrimRight(name);
  if (before == 0) return Format("%s %i", shown, score);
  return Format("%s %i (%s)", shown, score, Signed(static_cast<double>(score) - before));
}

/// Tells of each element of two arrays that differs.
template <typename Numbers, typename Tell>
void ForEachChange(const Numbers& now, const Numbers& before, Tell tell) {
  for (std::size_t row = 0; row < now.size(); ++row) {
    if (now[row] != before[row]) tell(row, now[row], before[row]);
  }
}

void TellAbilities(const Game& game, const SheetSnapshot& before, Lines& lines) {
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    const AbilityScore& now = AbilityAt(game.sheet, ability);
    const AbilityScore& was = before.Abilities[static_cast<std::size_t>(ability)];
    if (now == was) continue;
    lines.push_back(
        Format("%s %i/%i (was %i/%i)", AbilityName(ability), now.Whole, now.Percentile, was.Whole, was.Percentile));
  }
}

void TellSkills(const Game& game, const SheetSnapshot& before, Lines& lines) {
  ForEachChange(game.sheet.SkillScores, before.SkillScores, [&](std::size_t row, int now, int was) {
    lines.push_back(ScoreText(SkillTable()[row].Name, now, was));
  });
  for (std::size_t family = 0; family < kDetailRows; ++family) {
    const auto tell = [&](std::size_t slot, int now, int was) {
      const std::string_view name = game.sheet.SkillDetailNames[family][slot];
      lines.push_back(ScoreText(name.empty() ? SkillTable2()[family].Name : name, now, was));
    };
    ForEachChange(game.sheet.SkillDetailCounts[family], before.SkillDetailCounts[family], tell);
  }
}

std::string TalentText(std::string_view name, int count) {
  const std::string_view shown = TrimRight(name);
  if (count == 0) return Format("Talent lost: %s", shown);
  return count > 1 ? Format("Talent: %s x%i", shown, count) : Format("Talent: %s", shown);
}

void TellTalents(const Game& game, const SheetSnapshot& before, Lines& lines) {
  ForEachChange(game.sheet.TalentCounts, before.TalentCounts,
                [&](std::size_t row, int now, int) { lines.push_back(TalentText(TalentTable()[row].Name, now)); });
  for (std::size_t family = 0; family < kDetailRows; ++family) {
    const auto tell = [&](std::size_t slot, int now, int) {
      const std::string_view name = game.sheet.TalentDetailNames[family][slot];
      lines.push_back(TalentText(name.empty() ? TalentTable2()[family].Name : name, now));
    };
    ForEachChange(game.sheet.TalentDetailCounts[family], before.TalentDetailCounts[family], tell);
  }
}

std::string_view ProficiencyPattern(int level) {
  switch (level) {
    case ProficiencyMark::Untaught:
      return "Proficiency withheld: %s";
    case ProficiencyMark::Limited:
      return "Proficiency: %s, shoddy: -1 to hit";
    case ProficiencyMark::None:
      return "Proficiency lost: %s";
    case ProficiencyMark::Proficient:
      return "Proficiency: %s";
    default:
      return "Specialization: %s";
  }
}

void TellProficiencies(const Game& game, const SheetSnapshot& before, Lines& lines) {
  ForEachChange(game.sheet.ProficiencyLevels, before.ProficiencyLevels, [&](std::size_t row, int now, int) {
    lines.push_back(Format(ProficiencyPattern(now), TrimRight(ProficiencyTable()[row].Name)));
  });
}

void TellQuirks(const Game& game, const SheetSnapshot& before, Lines& lines) {
  ForEachChange(game.sheet.QuirkCounts, before.QuirkCounts, [&](std::size_t row, int now, int was) {
    const std::string_view name = TrimRight(ShownQuirkName(static_cast<int>(row)));
    if (now <= 0) {
      if (was > 0) lines.push_back(Format("No longer: %s", name));
    } else {
      lines.push_back(now > 1 ? Format("Quirk or flaw: %s x%i", name, now) : Format("Quirk or flaw: %s", name));
    }
  });
}

void TellSpells(const Game& game, const SheetSnapshot& before, Lines& lines) {
  ForEachChange(game.sheet.SpellsKnown, before.SpellsKnown, [&](std::size_t row, int now, int) {
    if (row >= kSpellRows) return;
    const std::string_view name = game.SpellTable[row].Name;
    lines.push_back(Format(now > 0 ? "Spell: %s" : "Spell lost: %s", TrimRight(name)));
  });
}

void TellExperience(const Game& game, const SheetSnapshot& before, Lines& lines) {
  ForEachChange(game.sheet.ClassExperience, before.ClassExperience, [&](std::size_t row, float now, float was) {
    lines.push_back(Format("Experience as %s %s", TrimRight(ClassTable()[row].Name), Signed(double{now} - was)));
  });
}

void TellNumbers(const Game& game, const SheetSnapshot& before, Lines& lines) {
  for (std::size_t i = 0; i < kYouthNumbers; ++i) {
    const float now = kNumbers[i].Read(game);
    if (now == before.Numbers[i]) continue;
    lines.push_back(kNumbers[i].TellsNumber ? Format(kNumbers[i].Text, now)
                                            : Format(kNumbers[i].Text, Signed(double{now} - before.Numbers[i])));
  }
}

}  // namespace

std::unique_ptr<SheetSnapshot> TakeSnapshot(const Game& game) {
  auto snapshot = std::make_unique<SheetSnapshot>();
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    snapshot->Abilities[static_cast<std::size_t>(ability)] = AbilityAt(game.sheet, ability);
  }
  snapshot->SkillScores = game.sheet.SkillScores;
  snapshot->SkillDetailCounts = game.sheet.SkillDetailCounts;
  snapshot->TalentCounts = game.sheet.TalentCounts;
  snapshot->TalentDetailCounts = game.sheet.TalentDetailCounts;
  snapshot->ProficiencyLevels = game.sheet.ProficiencyLevels;
  snapshot->QuirkCounts = game.sheet.QuirkCounts;
  snapshot->SpellsKnown = game.sheet.SpellsKnown;
  snapshot->ClassExperience = game.sheet.ClassExperience;
  for (std::size_t i = 0; i < kYouthNumbers; ++i) snapshot->Numbers[i] = kNumbers[i].Read(game);
  return snapshot;
}

std::vector<std::string> WhatItBrought(const Game& game, const SheetSnapshot& before) {
  Lines lines;
  TellAbilities(game, before, lines);
  TellNumbers(game, before, lines);
  TellSkills(game, before, lines);
  TellTalents(game, before, lines);
  TellProficiencies(game, before, lines);
  TellQuirks(game, before, lines);
  TellSpells(game, before, lines);
  TellExperience(game, before, lines);
  return lines;
}

}  // namespace veld
