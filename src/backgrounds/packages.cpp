#include "backgrounds/packages.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

#include "dice/building_points.h"
#include "dice/dice.h"
#include "dice/keep_roll.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "rules/named_rows.h"
#include "rules/quirk_table.h"
#include "rules/skill_table.h"
#include "rules/spell_catalogue.h"
#include "steps/skills/buy_skill.h"
#include "steps/skills/grants.h"
#include "steps/skills/pick_dialogs.h"
#include "steps/skills/proficiency_purchase.h"
#include "steps/skills/skill_target.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"
#include "text/utf8.h"

namespace veld {

namespace {

constexpr int kAccept = 1;
constexpr int kNoPackageButton = 2;
constexpr int kBuildingPoints = 25;
constexpr int kPrice = 30;
constexpr int kNeeds = 31;
constexpr int kGifts = 32;
constexpr int kWhyNot = 33;
constexpr int kPackages = 3115;

constexpr ControlTemplate kPackageControls[] = {
    TitleAt(0, 0, "Pick a Package", 2),
    LabelAt(1, 0, "&Package"),
    ComboAt(1, 1, kPackages, 30),
    LabelAt(2, 0, "Price in BP: "),
    ResultAt(2, 1, kPrice, 8),
    LabelAt(3, 0, "Building Points: "),
    ResultAt(3, 1, kBuildingPoints, 8),
    LabelAt(4, 0, "Needs: "),
    TextAt(4, 1, kNeeds, {}, 54, 2),
    LabelAt(5, 0, "Gives: "),
    TextAt(5, 1, kGifts, {}, 54, 12),
    TextAt(6, 1, kWhyNot, {}, 54, 1),
    ButtonAt(7, 0, kAccept, "&Accept", ButtonRole::Default),
    ButtonAt(7, 0, kNoPackageButton, "&No Package", ButtonRole::Cancel),
};
constexpr std::string_view kPackageSelectHelp =
    "A package is the life he led before the class: a bundle of skills, talents and gear for one price in BP, with a "
    "price of another kind in what it forbids. Choose one and read it: Price is paid on Accept, Needs is what he must "
    "have already or still get by the end of Step 12, Gives is what he gets. The line below tells why one is closed "
    "to him.\n\n"
    "Only a character of a single class is asked. Some packages also make some skills cheaper later, so look where "
    "you mean to go. No Package costs nothing and shuts nothing.";
constexpr FormTemplate kPackageSelect{"PackageSelect", "Pick a Package", kPackageControls, kPackageSelectHelp};

// --- Several picks from one list ---------------------------------------------------------------------------------

constexpr int kChoices = 3021;
constexpr int kPicksLeft = 50;

constexpr ControlTemplate kFreePicksControls[] = {
    LabelAt(0, 0, "Choose &one"),
    ListAt(1, 0, kChoices, 44, 12),
    LabelAt(2, 0, "Picks left: "),
    ResultAt(2, 0, kPicksLeft, 4),
    ButtonAt(3, 0, kAccept, "&Accept Selection", ButtonRole::Default),
};
constexpr std::string_view kFreeMysticHelp =
    "The package gives three skills free, one for each press of Accept Selection. Picks left counts them. A press is "
    "gone even if the skill can not be taken, so do not choose what he is barred from. The same one twice makes it "
    "better.";
constexpr FormTemplate kFreeMystic{"FreeMystic", "Pick your three free skills", kFreePicksControls, kFreeMysticHelp};
constexpr std::string_view kFreeRusticHelp =
    "The package gives six skills of country life free, one for each press of Accept Selection. Picks left counts "
    "them. A press is gone even if the skill can not be taken. The same one twice makes it better, though breadth "
    "feeds a village mage.";
constexpr FormTemplate kFreeRustic{"FreeRustic", "Pick your six free skills", kFreePicksControls, kFreeRusticHelp};

constexpr int kMysticPicks = 3;
constexpr int kRusticPicks = 6;

// "History: Local" finds no skill and has never given anything.
constexpr std::string_view kMysticSkills[] = {"Agriculture", "Alchemy",        "Ancient History",
                                              "Animal Lore", "Arcane Lore",    "Arcane Speak",
                                              "Astrology",   "History: Local", "Spirit Lore"};
constexpr std::string_view kRusticSkills[] = {"Animal Handling",
                                              "Carpentry",
                                              "Cobbling",
                                              "Cooking",
                                              "Map Sense",
                                              "Fire-building",
                                              "Glersee (Trail Markers)",
                                              "Leatherworking",
                                              "Pottery",
                                              "Riding, Land-based",
                                              "Stonemasonry",
                                              "Weather Sense",
                                              "Weaving"};

/// So many presses of Accept close the page, whether what they picked was granted or refused.
void RunFreePicks(Game& game, const FormTemplate& page, std::span<const std::string_view> skills, int picks) {
  Form form(page);
  form.onOpened = [&] {
    form.SetItems(kChoices, {skills.begin(), skills.end()});
    form.Select(kChoices, 0);
    form.SetNumber(kPicksLeft, picks);
  };
  form.onCommand = [&](int id) {
    if (id != kAccept || picks <= 0) return;
    --picks;
    const std::string skill = form.SelectedText(kChoices);
    RaisePrerequisites(game, skill);
    GrantSkillAtNoCost(game, skill);
    form.SetNumber(kPicksLeft, picks);
    if (picks <= 0) form.Close();
  };
  game.platform.RunForm(form);
}

// --- What only packages give -------------------------------------------------------------------------------------

constexpr float kGrantBP = 100;
constexpr int kRaised = 50;
constexpr std::size_t kTabooBytes = 74;
constexpr std::string_view kTabooTable = "Table 5A: Hermit Taboos";
constexpr std::string_view kHermitWeapons[] = {"Club", "Staff Sling", "Blowgun", "Sewing Needle", "Quarterstaff"};

/// Nothing that a package gives is too dear while it is given; then the player has a whole number of BP again.
template <typename Give>
void GiveForNothing(Game& game, Give give) {
  const int kept = TruncateToInt(game.run.BuildingPoints);
  game.run.BuildingPoints = kGrantBP;
  give();
  game.run.BuildingPoints = static_cast<float>(kept);
}

/// Who rides in the air has ridden on the ground.
void RaiseLandRiding(Game& game) {
  int& mastery = game.sheet.SkillDetailCounts[SkillFamily::LandRiding].front();
  mastery = std::max(mastery, kRaised);
}

void PickHermitWeapon(Game& game) {
  const int used = game.sheet.ProficiencySlotsUsed;
  const int picked = PickOne(game, PickPage::FreeWeapon, {std::begin(kHermitWeapons), std::end(kHermitWeapons)});
  if (picked < 0) return;
  GiveForNothing(game, [&] { ChangeProficiency(game, kHermitWeapons[static_cast<std::size_t>(picked)], 1); });
  game.sheet.ProficiencySlotsUsed = used;
}

/// A taboo can be refused for a BP like every result of a table.
void RollTaboo(Game& game) {
  const std::string purpose = std::exchange(game.dice.RollPurpose, kTabooTable);
  RollUntilItStands(game, kTabooTable, [&] {
    const std::string_view taboo = HermitTaboo(RollDice(game, 100, 1));
    if (!AskKeep(game, Format("%s, %s", kTabooTable, taboo))) return false;
    game.sheet.HermitTaboo = CutToBytes(taboo, kTabooBytes);
    return true;
  });
  game.dice.RollPurpose = purpose;
}

void LearnFindFamiliar(Game& game) {
  const int row = FindSpell(game.SpellTable, "Find Familiar");
  if (row < 0) return;
  const int pages = 1 + RollDice(game, 6, 1) - 1;
  const bool writesLarge = game.sheet.QuirkCounts[QuirkRow::LargeHandwriting] > 0;
  game.sheet.SpellsKnown[static_cast<std::size_t>(row)] = writesLarge ? 2 * pages : pages;
}

void GiveExtra(Game& game, PackageExtra extra) {
  switch (extra) {
    case PackageExtra::None:
      return;
    case PackageExtra::LandRiding:
      return RaiseLandRiding(game);
    case PackageExtra::HermitVows:
      PickHermitWeapon(game);
      return RollTaboo(game);
    case PackageExtra::MysticPicks:
      return RunFreePicks(game, kFreeMystic, kMysticSkills, kMysticPicks);
    case PackageExtra::RusticPicks:
      return RunFreePicks(game, kFreeRustic, kRusticSkills, kRusticPicks);
    case PackageExtra::FindFamiliar:
      return LearnFindFamiliar(game);
  }
}

// --- What it gives, in words -------------------------------------------------------------------------------------

std::string FieldGift(const Grant& grant) {
  const int amount = grant.Amount.Plus;
  switch (static_cast<GrantField>(grant.Row)) {
    case GrantField::MoneyRoll:
      return Format("Starting money roll %s%i", grant.Change == GrantChange::Take ? "-" : "+", amount);
    case GrantField::PackageBP:
      return Format("%i BP for skills that suit it", amount);
    case GrantField::AmazonDoubleRoll:
      return "A double roll on one skill of an amazon";
    case GrantField::FreeWeaponProficiencySlots:
      return "A free step of Specialization";
    default:
      return {};
  }
}

std::string GiftText(const Grant& grant) {
  const std::string_view name = grant.Name;
  switch (grant.Kind) {
    case GrantKind::Buy:
      return grant.Times > 1 ? Format("Skill: %s x%i", name, grant.Times) : Format("Skill: %s", name);
    case GrantKind::NewMember:
      return Format("Skill: %s", name);
    case GrantKind::Score:
      return Format("Skill: %s at %i", name, grant.Amount.Plus);
    case GrantKind::Pick:
      return Format("Pick of %s", TrimRight(SkillTable2()[static_cast<std::size_t>(grant.Row)].Name));
    case GrantKind::Choose:
    case GrantKind::ChooseItem:
      return Format("One of: %s", name);
    case GrantKind::SurvivalPick:
      return "Pick of a survival skill";
    case GrantKind::LanguagePick:
      return "Pick of a language to read and write";
    case GrantKind::BardInstrument:
      return "Pick of an instrument";
    case GrantKind::WeaponPick:
      return "Pick of a bow or crossbow, with its Specialization";
    case GrantKind::Talent:
      return Format("Talent: %s", name);
    case GrantKind::Quirk:
      return Format("Quirk: %s", ShownQuirkName(grant.Row));
    case GrantKind::Field:
      return FieldGift(grant);
    default:
      return {};
  }
}

std::string_view ExtraText(PackageExtra extra) {
  switch (extra) {
    case PackageExtra::LandRiding:
      return "Skill: Riding, Land-based at 50";
    case PackageExtra::HermitVows:
      return "Pick of a plain weapon, and a taboo";
    case PackageExtra::MysticPicks:
      return "Pick of three scholarly skills";
    case PackageExtra::RusticPicks:
      return "Pick of six country skills";
    case PackageExtra::FindFamiliar:
      return "Spell: Find Familiar";
    case PackageExtra::None:
      break;
  }
  return {};
}

// --- The page ----------------------------------------------------------------------------------------------------

PackageTaker TakerOf(const Game& game) {
  const CharacterSheet& sheet = game.sheet;
  PackageTaker taker{{}, sheet.RaceName, sheet.Gender, sheet.SocialClassIndex, sheet.ClassLevels};
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    taker.Abilities[static_cast<std::size_t>(ability)] = AbilityAt(sheet, ability);
  }
  return taker;
}

bool HasPackage(const CharacterSheet& sheet) {
  return !sheet.PackageName.Empty() && sheet.PackageName != kNoPackage;
}

bool CanPay(const Game& game, int price) {
  return static_cast<float>(price) <= game.run.BuildingPoints;
}

std::string WhyNotText(const Game& game, int price) {
  return CanPay(game, price) ? std::string{}
                             : Format("It costs %i BP and you have %g.", price, game.run.BuildingPoints);
}

void ShowPackage(const Game& game, Form& form) {
  const std::string name = form.SelectedText(kPackages);
  const PackageRecord* const package = FindPackage(name);
  form.SetText(kBuildingPoints, Format("%g", game.run.BuildingPoints));
  if (package == nullptr) return form.SetText(kWhyNot, "No package is open to your character.");
  const int price = PackagePriceNow(game, name);
  form.SetNumber(kPrice, price);
  const std::string needs = PackageNeedsText(*package);
  form.SetText(kNeeds, needs.empty() ? "nothing besides the class" : needs);
  std::string gifts;
  for (const std::string& gift : PackageGifts(game, name)) gifts += (gifts.empty() ? "" : "\n") + gift;
  form.SetText(kGifts, gifts);
  form.SetText(kWhyNot, WhyNotText(game, price));
}

}  // namespace

std::vector<std::string_view> PackagesOffered(const Game& game, PackageList list) {
  const PackageTaker taker = TakerOf(game);
  std::vector<std::string_view> names;
  for (const PackageRecord& package : Packages()) {
    if (package.List == list && CanPay(game, package.OfferedAt) && MayTake(package, taker)) {
      names.push_back(package.Name);
    }
  }
  return names;
}

int PackagePriceNow(const Game& game, std::string_view name) {
  return PackagePrice(name, TakerOf(game));
}

std::vector<std::string> PackageGifts(const Game& game, std::string_view name) {
  std::vector<std::string> gifts;
  const auto add = [&](std::string text) {
    if (!text.empty()) gifts.push_back(std::move(text));
  };
  for (const PackageGrant& line : PackageGrants(name, game.sheet.RaceName)) {
    ForEachGrant(line.Grants, [&](const Grant& grant) {
      if (!grant.FindsNoRow) add(GiftText(grant));
    });
    add(std::string(ExtraText(line.Extra)));
  }
  return gifts;
}

void ApplyPackage(Game& game) {
  const std::string name(game.sheet.PackageName.View());
  for (const PackageGrant& line : PackageGrants(name, game.sheet.RaceName)) {
    GiveForNothing(game, [&] { GiveGrants(game, line.Grants, Prerequisites::Raised); });
    GiveExtra(game, line.Extra);
  }
}

void RunPackageSelect(Game& game, PackageList list) {
  if (HasPackage(game.sheet)) return;
  Form form(kPackageSelect);
  std::string chosen;
  form.onOpened = [&] {
    const auto names = PackagesOffered(game, list);
    form.SetItems(kPackages, {names.begin(), names.end()});
    form.Select(kPackages, 0);
    ShowPackage(game, form);
    form.Focus(kNoPackageButton);  // an Enter too many must not buy the first
  };
  form.onSelect = [&](int) { ShowPackage(game, form); };
  form.onCommand = [&](int id) {
    if (id == kNoPackageButton) return form.Close();
    const std::string name = form.SelectedText(kPackages);
    if (CanPay(game, PackagePriceNow(game, name))) {
      chosen = name;
      form.Close();
    } else if (list == PackageList::Mage) {
      // A mage who reaches too high goes without; a fighter may look for something cheaper.
      game.platform.ShowMessage("You can not pay for this package and go without one.");
      form.Close();
    }
  };
  game.platform.RunForm(form);
  if (chosen.empty()) return;
  game.sheet.PackageName = chosen;
  game.run.BuildingPoints -= static_cast<float>(PackagePriceNow(game, chosen));
  ApplyPackage(game);
}

}  // namespace veld
