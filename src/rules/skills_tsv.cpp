#include "rules/skills_tsv.h"

#include <cstddef>
#include <iterator>
#include <string_view>

#include "rules/skill_table.h"
#include "text/format.h"

namespace veld {

namespace {

// From the fourth on, the books stand one place behind their numbers: a row of book 3 prints "DVA" and one of book 4
// "BG". Sheets have always been written so, and whoever reads them counts on it.
constexpr std::string_view kBookTexts[] = {"ADC",   "HXA",   "WMA",          "DVA",  "BG",  "Empty", "Empty",
                                           "Empty", "Empty", "Posted Fixes", "TG12", "SFM", "TTM"};

std::string_view BookText(int book) {
  const auto index = static_cast<std::size_t>(book);
  return book >= 0 && index < std::size(kBookTexts) ? kBookTexts[index] : std::string_view{};
}

void AppendLink(int link, std::string& sheet) {
  if (const SkillRecord* skill = LinkedSkill(link)) sheet.append(skill->Name).append(" ");
}

void AppendSkill(const SkillRecord& skill, std::string& sheet) {
  sheet += Format("%s\t%s\t%s\t%s\t%i\t%s\t%i\t%id%i\t%i%%\t", skill.Name, skill.Page, skill.MasteryAbilities,
                  SkillCategoryText(skill.Category), skill.BP, BookText(skill.Book), skill.CourseCost,
                  skill.CourseDieCount, skill.CourseDieSides, skill.Difficulty);
  for (const int link : skill.Prerequisites) AppendLink(link, sheet);
  for (const int link : skill.SuiteMembers) AppendLink(link, sheet);
  AppendLink(skill.Spare, sheet);
  sheet += '\n';
}

}  // namespace

std::string SkillsTsv() {
  std::string sheet =
      "Name \tPage\tMastery Abilities\tCategory\tBP\tBook\tCourse Cost\tCourse Die\tDificulty\t"
      "Course Pre-reqs/Suite Skills \n";
  for (const SkillRecord& skill : SkillTable()) AppendSkill(skill, sheet);
  for (const SkillRecord& skill : SkillTable2()) AppendSkill(skill, sheet);
  return sheet;
}

}  // namespace veld
