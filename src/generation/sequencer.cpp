#include "generation/sequencer.h"

#include <algorithm>

#include "backgrounds/mage_school.h"
#include "backgrounds/military_background.h"
#include "backgrounds/packages.h"
#include "backgrounds/seminary.h"
#include "dice/building_points.h"
#include "dice/keep_roll.h"
#include "generation/main_title.h"
#include "generation/save_by_extension.h"
#include "platform/platform.h"
#include "rules/quirk_table.h"
#include "steps/abilities/step_eight.h"
#include "steps/classes/honor.h"
#include "steps/classes/step_nine.h"
#include "steps/classes/take_after.h"
#include "steps/family/siblings.h"
#include "steps/family/step_six.h"
#include "steps/finish/alignment.h"
#include "steps/finish/equip.h"
#include "steps/finish/naming.h"
#include "steps/money/step_ten.h"
#include "steps/quirks/cherry_pick.h"
#include "steps/quirks/quirk_effects.h"
#include "steps/skills/skill_setup.h"
#include "steps/skills/skills.h"
#include "steps/spells/spell_books.h"
#include "steps/spells/spell_selection.h"
#include "store/recovery.h"
#include "store/sheet_accessors.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr float kGoldPerBP = 25.0F;
constexpr int kLowestFreeWisdom = 6;
constexpr int kLowestMiddleClass = 7;  ///< SocialClassIndex below this forces a mage into the rustic package
constexpr float kRusticPackageBP = 6.0F;

bool IsSingleClass(const Game& game) {
  return !Contains(game.sheet.LevelText, "/");
}

/// Runs a stage if its step is due, with a recovery copy and the main window's page of what the character is by then.
void RunAt(Game& game, int step, void (*stage)(Game&)) {
  if (game.run.CurrentStep != step) return;
  KeepRecoveryCopy(game);
  ShowCharacter(game);
  stage(game);
}

/// Whether the player is asked for an almanac's tables: its book is on and the class is of its group.
bool OffersYouth(const Game& game, std::size_t book, int isOfGroup) {
  return game.IsOn(book) && isOfGroup == 1;
}

/// 1 if the player wants an almanac's tables.
int AsksForYouth(Game& game, std::string_view almanac) {
  return game.platform.Confirms("Yes or No", Format("Do you wish to use the %s Tables?", almanac)) ? 1 : 0;
}

void RunFighterYouth(Game& game) {
  if (!OffersYouth(game, kWarmongersAlmanac, game.sheet.IsFighterClass)) return;
  game.sheet.UsesFighterBackground = AsksForYouth(game, "Warmonger's Almanac");
  if (game.sheet.UsesFighterBackground == 0) return;
  if (IsSingleClass(game)) RunPackageSelect(game, PackageList::Fighter);
  const bool wasNeverDrilled = HasClass(game.sheet, ClassRow::Barbarian) || HasClass(game.sheet, ClassRow::Berserker) ||
                               HasClass(game.sheet, ClassRow::Monk);
  if (!wasNeverDrilled) RunWMABackground(game);
}

void RunMageYouth(Game& game) {
  if (!OffersYouth(game, kHexwrightsAlmanac, game.sheet.IsMageClass)) return;
  game.sheet.UsesMageBackground = AsksForYouth(game, "Hexwright's Almanac");
  if (game.sheet.UsesMageBackground == 0) return;
  if (game.sheet.SocialClassIndex < kLowestMiddleClass) {
    game.platform.ShowMessage("Due to your low social class you are being forced into the Rustic Magic-User Package.");
    game.run.BuildingPoints -= kRusticPackageBP;
    game.sheet.PackageName = "Rustic Magic-User";
    ApplyPackage(game);
  } else if (IsSingleClass(game)) {
    RunPackageSelect(game, PackageList::Mage);
  }
  RunHXABackground(game);
  if (HasClass(game.sheet, ClassRow::BattleMage)) game.sheet.IsMageClass = 0;
}

void RunPriestYouth(Game& game) {
  if (!OffersYouth(game, kDevoteesAlmanac, game.sheet.IsClericClass)) return;
  game.sheet.UsesClericBackground = AsksForYouth(game, "Devotee's Almanac");
  if (game.sheet.UsesClericBackground == 0) return;
  RunDVABackground(game);
}

void ChooseSpells(Game& game) {
  if (!HasSpells(game)) return;
  RunSpellSellection(game);
  FinishSpellList(game);
  if (game.sheet.UsesMageBackground == 1 && !HasClass(game.sheet, ClassRow::PaintedMage)) MakeFirstSpellBook(game);
}

/// The starting money and the inherited goods that there are, in one sentence.
std::string InheritanceSentence(const CharacterSheet& sheet) {
  std::string sentence(sheet.StartingMoneyText.View());
  const std::string_view goods[] = {sheet.InheritedWeapon, sheet.InheritedArmor, sheet.InheritedShieldHelmet,
                                    sheet.InheritedMount, sheet.InheritedDeed};
  for (const std::string_view good : goods) {
    if (!good.empty()) sentence += ", " + std::string(good);
  }
  return sentence;
}

void RunFamilyAndQuirks(Game& game) {
  if (game.sheet.SiblingCount != 0) RunSiblings(game);
  RunCherryPick(game);  // also after an abort among the siblings: it decides what happens next
  PayQuirks(game);
  ApplyQuirkEffects(game);
}

void RunClassChoice(Game& game) {
  const bool isHalfBlood = !TakeAfterRaces(game.sheet.RaceName).empty();
  if (isHalfBlood && CanPay(game, kTakeAfterCost)) RunTakeAfter(game);
  RunStepNine(game);
}

/// Youth, spells and money. A death or an abort in one of them ends the later ones too.
void RunBackground(Game& game) {
  constexpr void (*kStages[])(Game&) = {RunFighterYouth, RunMageYouth, RunPriestYouth, ChooseSpells, RunStepTen};
  for (const auto stage : kStages) RunAt(game, 10, stage);
  if (!game.sheet.InheritedWeapon.Empty()) game.platform.ShowMessage(InheritanceSentence(game.sheet));
}

void TellHonor(Game& game) {
  ComputeHonor(game);
  game.platform.ShowMessage(
      Format("Your Honor is %i. This gives you an Honor Die of %i.", game.sheet.Honor, game.sheet.HonorDie));
  game.run.CurrentStep = 12;
}

void RunSkillStep(Game& game) {
  RunSkillSetup(game);
  RunSkills(game);
}

/// Without wisdom the alignment is no choice.
void TakeForcedAlignment(Game& game) {
  if (game.sheet.Wisdom.Whole >= kLowestFreeWisdom) return;
  game.sheet.Alignment = "Neutral  ";  // with two blanks, as the sheets print it
  game.run.CurrentStep = 15;
}

void FinishCharacter(Game& game) {
  RunEquip(game);
  game.run.CurrentStep = 20;
  RollRefereeQuirks(game);
  game.isFinished = true;
  KeepRecoveryCopy(game);
  UpdateMainTitle(game, game.sheet.CharacterName);
  if (!game.platform.Confirms("Save", Format("Save your character - %s?", game.sheet.CharacterName))) return;
  if (AskAndSaveCharacter(game)) UpdateMainTitle(game, game.sheet.CharacterName);
  SaveSpellBooks(game);
}

}  // namespace

void CashInBuildingPoints(Game& game) {
  const int started = game.sheet.GoldPieces;
  const float bp = std::max(game.run.BuildingPoints, 0.0F);
  game.sheet.GoldPieces = TruncateToInt(static_cast<float>(started) + bp * kGoldPerBP);
  game.platform.ShowMessage(Format("You started with %i GP. Your %g BPs have been cashed in. You now have %i gold.",
                                   started, bp, game.sheet.GoldPieces));
  game.run.BuildingPoints = 0;
  game.run.CurrentStep = 14;
}

void RollRefereeQuirks(Game& game) {
  auto& counts = game.sheet.QuirkCounts;
  const auto isUsable = [&](int row) {
    const QuirkRecord& quirk = QuirkTable()[static_cast<std::size_t>(row)];
    return !Contains(quirk.Name, game.sheet.RaceName) && !Contains(quirk.Name, game.sheet.ClassName) &&
           quirk.MaxCount >= counts[static_cast<std::size_t>(row)];
  };
  for (std::size_t row = 1; row < kQuirkRows; ++row) {
    if (QuirkTable()[row].Kind != kRefereeQuirk) continue;
    for (int left = counts[row]; left > 0; --left) {
      const TableResult result = RollTableUntilRow(game, QuirkTable()[row].NextTable, isUsable);
      if (!result.IsRow()) break;
      ++counts[static_cast<std::size_t>(result.Row)];
      --counts[row];
    }
  }
}

void RunGeneration(Game& game) {
  KeepRecoveryCopy(game);
  ShowCharacter(game);
  RunStepSix(game);
  RunAt(game, 7, RunFamilyAndQuirks);
  RunAt(game, 8, RunStepEight);
  RunAt(game, 9, RunClassChoice);
  RunAt(game, 10, RunBackground);
  RunAt(game, 11, TellHonor);
  if (game.run.BuildingPoints < 0) game.run.BuildingPoints = 0;  // on every path: no debt reaches the skills
  RunAt(game, 12, RunSkillStep);
  RunAt(game, 13, CashInBuildingPoints);
  RunAt(game, 14, TakeForcedAlignment);
  RunAt(game, 14, RunStepFourteen);
  RunAt(game, 15, RunStepEightteen);
  RunAt(game, 19, FinishCharacter);
  ShowCharacter(game);  // of a run that ended before its last stage too
}

}  // namespace veld
