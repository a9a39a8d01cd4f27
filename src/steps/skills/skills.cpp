#include "steps/skills/skills.h"

#include <algorithm>
#include <utility>

#include "platform/form.h"
#include "platform/platform.h"
#include "rules/race_table.h"
#include "rules/skill_prices.h"
#include "steps/skills/buy_skill.h"
#include "steps/skills/free_skills.h"
#include "steps/skills/skill_buyer.h"
#include "steps/skills/skill_lists.h"
#include "steps/skills/skill_requirements.h"
#include "steps/skills/skill_target.h"
#include "steps/skills/talents.h"
#include "steps/skills/tattoo.h"
#include "steps/skills/weapon_prof.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kOk = 1;
constexpr int kAbort = 2;
constexpr int kFirstBudget = 25;
constexpr int kFirstAbility = 50;
constexpr int kSearch = SkillsControl::Search;
constexpr int kAvailable = SkillsControl::Available;
constexpr int kOwned = SkillsControl::Owned;
constexpr int kBonusPoints = SkillsControl::BonusPoints;
constexpr int kTakeAsFree = SkillsControl::TakeAsFree;
constexpr int kAdd = SkillsControl::Add;
constexpr int kProficiencies = SkillsControl::Proficiencies;
constexpr int kTalents = SkillsControl::Talents;
constexpr int kTattoos = 4009;
constexpr int kCategory = SkillsControl::Category;

constexpr int kBudgets = 8;

constexpr int kColumns = 4;
constexpr int kListTop = 5;
constexpr int kBudgetTop = kListTop + 7;
constexpr int kListRows = kBudgetTop + kBudgets - kListTop;
constexpr int kListLines = 17;
constexpr int kButtonRow = kListTop + kListRows;

constexpr auto kSkillsControls = [] {
  std::array<ControlTemplate, 45> controls{};
  std::size_t next = 0;
  const auto add = [&](ControlTemplate control, int columnSpan = 1) {
    control.ColumnSpan = columnSpan;
    controls[next++] = control;
  };
  add(TitleAt(0, 0, "Step 12: Skills, Talents and Proficiencies"), kColumns);
  for (int ability = 0; ability < kAbilityCount; ++ability) add(ResultAt(1, 0, kFirstAbility + ability, 0), kColumns);

  add(LabelAt(2, 0, "&Category"));
  add(ComboAt(2, 0, kCategory, 23));
  add(LabelAt(3, 0, "&Search"));
  add(SearchAt(3, 0, kSearch, kAvailable, 28, 60));
  add(LabelAt(4, 0, "Skills to &learn"));
  add(ListAt(kListTop, 0, kAvailable, 44, kListLines, kListRows));

  add(ResultAt(3, 1, SkillsControl::Selected, 38), 2);
  add(LabelAt(4, 1, "Cost"));
  add(ResultAt(4, 2, SkillsControl::Price, 24));
  add(LabelAt(kListTop, 1, "Abilities"));
  add(ResultAt(kListTop, 2, SkillsControl::Abilities, 24));
  add(LabelAt(kListTop + 1, 1, "Course Die"));
  add(ResultAt(kListTop + 1, 2, SkillsControl::Die, 24));
  add(LabelAt(kListTop + 2, 1, "Page"));
  add(ResultAt(kListTop + 2, 2, SkillsControl::Page, 24));
  ControlTemplate head = LabelAt(kListTop + 3, 1, "Prerequisite Skills");
  head.Id = SkillsControl::LinksHead;
  add(head, 2);
  add(TextAt(kListTop + 4, 1, SkillsControl::Links, {}, 38, 3), 2);
  add(TextAt(kListTop + 5, 1, SkillsControl::Refusal, {}, 38, 3), 2);
  add(HeadingAt(kListTop + 6, 1, "Building Points"), 2);
  for (int budget = 0; budget < kBudgets; ++budget) {
    add(ResultAt(kBudgetTop + budget, 1, kFirstBudget + budget, 34), 2);
  }

  add(LabelAt(4, 3, "&Your Skills"));
  add(ListAt(kListTop, 3, kOwned, 44, kListLines, kListRows));

  add(ButtonAt(kButtonRow, 0, kAdd, "&Add/Improve Skill", ButtonRole::Default), kColumns);
  add(ButtonAt(kButtonRow, 0, kBonusPoints, "Apply &Bonus Skill Points"), kColumns);
  add(ButtonAt(kButtonRow, 0, kTakeAsFree, "Take as &Free"), kColumns);
  add(ButtonAt(kButtonRow, 0, kProficiencies, "&Proficiencies"), kColumns);
  add(ButtonAt(kButtonRow, 0, kTalents, "&Talents"), kColumns);
  add(ButtonAt(kButtonRow, 0, kTattoos, "Tatt&oos"), kColumns);
  add(ButtonAt(kButtonRow + 1, 0, kOk, "O&K"), kColumns);
  add(ButtonAt(kButtonRow + 1, 0, kAbort, "Abo&rt", ButtonRole::Cancel), kColumns);
  return controls;
}();
constexpr std::string_view kSkillsHelp =
    "Building Points become what he can do. Choose a category or search, choose a skill, press Add/Improve Skill: he "
    "pays its Cost, and its Course Die is rolled and added. The first time he also gets a start from the abilities "
    "shown. Buy it again to get better; each time costs the same. A refusal stands below the price, for want of BP, "
    "of another skill first, or of the class for it.\n\n"
    "Budgets such as Arcane or Language BP pay for their own kind before the others. Free picks go by Take as Free. "
    "Proficiencies, Talents and Tattoos are bought from the same BP, so visit them first: a fighter without his "
    "weapon is a porter.\n\n"
    "OK leaves for good, and every BP left becomes 25 gold. Abort ends the run with him unfinished.";
constexpr FormTemplate kSkills{"Skills", "Skills", kSkillsControls, kSkillsHelp};

/// The dialog at work: its form, and the lines of its lists as the rules know them.
struct SkillsPage {
  Form form{kSkills};
  std::vector<std::string> names;
  std::vector<std::string> owned;

  std::string SelectedName() const { return Selected(kAvailable, names); }
  std::string SelectedOwned() const { return Selected(kOwned, owned); }

 private:
  std::string Selected(int id, const std::vector<std::string>& lines) const {
    const int selection = form.Selection(id);
    return selection < 0 ? std::string{} : lines[static_cast<std::size_t>(selection)];
  }
};

void SelectLine(Form& form, int id, const std::vector<std::string>& lines, const std::string& line) {
  const auto found = line.empty() ? lines.end() : std::ranges::find(lines, line);
  form.Select(id, found == lines.end() ? -1 : static_cast<int>(found - lines.begin()));
}

template <std::size_t Slots>
std::string LinkedNames(const std::array<int, Slots>& links) {
  std::string names;
  for (const int link : links) {
    const SkillRecord* const skill = LinkedSkill(link);
    if (!skill) continue;
    if (!names.empty()) names += ", ";
    names += TrimRight(skill->Name);
  }
  return names;
}

void ShowLinks(const Game& game, Form& form, const SkillTarget& target) {
  const SkillRecord& skill = RecordOf(target);
  const bool isSuite = skill.Category == SkillCategory::Suite;
  const auto prerequisites =
      target.Kind == SkillKind::Plain ? SkillPrerequisites(target.Row, MakeSkillBuyer(game)) : skill.Prerequisites;
  form.SetText(SkillsControl::LinksHead, isSuite ? "Skill Suite Skills" : "Prerequisite Skills");
  form.SetText(SkillsControl::Links, isSuite ? LinkedNames(skill.SuiteMembers) : LinkedNames(prerequisites));
}

// --- Lists -------------------------------------------------------------------------------------------------------

/// Fills the list of available skills with those of the view that hold what is searched for. The skill selected stays
/// so while it is listed.
void FillSkillList(const Game& game, SkillsPage& page) {
  const std::string selected = page.SelectedName();
  page.names = SkillListNames(game, page.form.Selection(kCategory));
  const std::string& search = page.form.Text(kSearch);
  if (!search.empty()) {
    std::erase_if(page.names, [&](const std::string& name) { return !ContainsIgnoringCase(name, search); });
  }
  page.form.SetItems(kAvailable, page.names);
  SelectLine(page.form, kAvailable, page.names, selected);
}

/// Fills the list of owned skills; `selected` stays so, whatever its mastery is by now.
void FillOwnedSkills(const Game& game, SkillsPage& page, const SkillTarget& selected) {
  page.owned = OwnedSkillLines(game.sheet);
  page.form.SetItems(kOwned, page.owned);
  SelectLine(page.form, kOwned, page.owned, OwnedSkillLine(game.sheet, selected));
}

// --- Summary -----------------------------------------------------------------------------------------------------

/// A budget's line stands only while there is something in it.
void ShowBudget(Form& form, int place, float value, const std::string& line) {
  const int id = kFirstBudget + place;
  if (value >= 0) form.SetText(id, line);
  form.SetVisible(id, place == 0 || value > 0);
}

void ShowSummary(const Game& game, Form& form) {
  const GenerationRun& run = game.run;
  const auto decimals = [&](int place, float value, std::string_view pattern) {
    ShowBudget(form, place, value, Format(pattern, value));
  };
  const auto whole = [&](int place, int value, std::string_view pattern) {
    ShowBudget(form, place, static_cast<float>(value), Format(pattern, value));
  };
  decimals(0, run.BuildingPoints, "%g BP");
  decimals(1, run.ArcaneBP, "%g Arcane BP");
  decimals(2, run.AcademicBP, "%g Academic BP");
  decimals(3, run.LanguageBP, "%g Language BP");
  whole(4, AddSaturated(run.FreeSkillPicks, run.VeteranFreeSkills), "%i Free Skill Picks");
  whole(5, AddSaturated(run.BonusSkillPoints, run.PackageBonusPoints), "%i Bonus Skill Points");
  decimals(6, run.PackageBP, "%i Package Specific BP");
  decimals(7, run.SocialBP, "%g Social BP");
}

void ShowAbilities(const Game& game, Form& form) {
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    const AbilityScore& score = AbilityAt(game.sheet, ability);
    form.SetText(kFirstAbility + ability, Format("%s %i/%i", kAbilityShortNames[static_cast<std::size_t>(ability)],
                                                 score.Whole, score.Percentile));
  }
}

/// Brings all that a command can have changed up to date.
void ShowAll(Game& game, SkillsPage& page, const SkillTarget& selectedOwned) {
  ShowSummary(game, page.form);
  ShowAbilities(game, page.form);
  FillSkillList(game, page);
  FillOwnedSkills(game, page, selectedOwned);
  ShowSkillCost(game, page.form, page.SelectedName());
}

// --- Commands ----------------------------------------------------------------------------------------------------

/// A new member of a family shows the list of the family's kind.
void ShowNewMember(SkillsPage& page, const SkillTarget& family) {
  if (family.Kind == SkillKind::Family) page.form.Select(kCategory, RecordOf(family).Category);
}

void AddOrImprove(Game& game, SkillsPage& page) {
  const std::string name = page.SelectedName();
  const SkillTarget target = FindTarget(game.sheet, name);
  if (BuySkill(game, {.Name = name, .Price = PriceOf(game, target)})) ShowNewMember(page, target);
}

void PickFree(Game& game, SkillsPage& page) {
  const std::string name = page.SelectedName();
  const SkillTarget target = FindTarget(game.sheet, name);
  if (TakeAsFree(game, name)) ShowNewMember(page, target);
}

void RunCommand(Game& game, SkillsPage& page, int id) {
  switch (id) {
    case kAdd:
      return AddOrImprove(game, page);
    case kBonusPoints:
      return ApplyBonusPoints(game, page.SelectedOwned());
    case kTakeAsFree:
      return PickFree(game, page);
    case kProficiencies:
      return RunWeaponProf(game);
    case kTalents:
      return RunTalents(game);
    case kTattoos:
      return RunTattoo(game);
    case kOk:
      if (!MeetsSkillRequirements(game)) return;
      game.run.CurrentStep = 13;
      return page.form.Close();
    case kAbort:
      return page.form.Close();
    default:
      return;
  }
}

void FillCategories(Form& form) {
  std::vector<std::string> categories;
  for (int category = SkillCategory::None; category <= SkillCategory::Barbarian; ++category) {
    categories.emplace_back(SkillCategoryText(category));
  }
  form.SetItems(kCategory, std::move(categories));
  form.Select(kCategory, SkillCategory::None);
}

}  // namespace

void ShowSkillCost(Game& game, Form& form, std::string_view name) {
  const SkillTarget target = FindTarget(game.sheet, name);
  if (target.Kind == SkillKind::None) {
    for (const int id : {SkillsControl::Selected, SkillsControl::Price, SkillsControl::Abilities, SkillsControl::Die,
                         SkillsControl::Links, SkillsControl::Page, SkillsControl::Refusal}) {
      form.SetText(id, {});
    }
    return;
  }
  const SkillRecord& skill = RecordOf(target);
  const float price = PriceOf(game, target);
  form.SetText(SkillsControl::Selected, name);
  form.SetText(SkillsControl::Price, Format("%g BP", price));
  form.SetText(SkillsControl::Abilities, skill.MasteryAbilities);
  form.SetText(SkillsControl::Die, Format("%iD%i", skill.CourseDieCount, skill.CourseDieSides));
  form.SetText(SkillsControl::Page, skill.Page);
  ShowLinks(game, form, target);
  form.SetText(SkillsControl::Refusal, SkillRefusal(game, {.Name = std::string(name), .Price = price}));
  game.dice.RollContextText = std::string(skill.MasteryAbilities) + std::string(SkillCategoryText(skill.Category));
}

void RunSkills(Game& game) {
  SkillsPage page;
  page.form.onOpened = [&] {
    page.form.SetVisible(kTattoos, HasTrait(game.sheet.RaceName, RaceTrait::Tattooed));
    FillCategories(page.form);
    ShowAll(game, page, {});
  };
  const auto refill = [&] {
    FillSkillList(game, page);
    ShowSkillCost(game, page.form, page.SelectedName());
  };
  page.form.onSelect = [&](int id) {
    if (id == kCategory) refill();
    if (id == kAvailable) ShowSkillCost(game, page.form, page.SelectedName());
  };
  page.form.onEdit = [&](int) { FillSkillList(game, page); };
  page.form.onCommand = [&](int id) {
    const SkillTarget selectedOwned = FindOwnedSkill(game.sheet, page.SelectedOwned());
    RunCommand(game, page, id);
    if (!page.form.IsClosed()) ShowAll(game, page, selectedOwned);
  };
  game.platform.RunForm(page.form);
}

}  // namespace veld
