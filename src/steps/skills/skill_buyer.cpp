#include "steps/skills/skill_buyer.h"

#include "rules/race_table.h"

namespace veld {

SkillBuyer MakeSkillBuyer(const Game& game) {
  const CharacterSheet& sheet = game.sheet;
  SkillBuyer buyer;
  buyer.RaceName = sheet.RaceName;
  buyer.ClassName = sheet.ClassName;
  buyer.PackageName = sheet.PackageName;
  buyer.ClassIsCleric = sheet.IsClericClass;
  buyer.ClassIsMage = sheet.IsMageClass;
  buyer.ClassIsThief = sheet.IsThiefClass;
  buyer.Intelligence = sheet.Intelligence.Whole;
  buyer.Charisma = sheet.Charisma.Whole;
  buyer.SelfDisciplinePrice = game.run.SelfDisciplinePrice;
  buyer.BowBonusDiscount = game.run.BowBonusDiscount;
  buyer.CrossbowBonusDiscount = game.run.CrossbowBonusDiscount;
  buyer.AmazonDoubleRoll = game.run.AmazonDoubleRoll;
  buyer.ClassLevels = sheet.ClassLevels;
  buyer.SkillScores = sheet.SkillScores;
  buyer.FamilyScores = sheet.SkillDetailCounts;
  buyer.RuleSwitches = game.RuleSwitches;
  if (const int row = FindRaceRow(sheet.RaceName, sheet.Gender); row >= 0) {
    const RaceRecord& race = RaceTable()[static_cast<std::size_t>(row)];
    buyer.TalentFlags = race.TalentFlags;
    buyer.Talent2Flags = race.Talent2Flags;
  }
  return buyer;
}

}  // namespace veld
