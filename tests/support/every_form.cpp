#include "support/every_form.h"

#include <map>

#include "backgrounds/packages.h"
#include "referee/training.h"
#include "rules/class_table.h"
#include "rules/named_rows.h"
#include "rules/quirk_table.h"
#include "shell/main_menu.h"
#include "steps/classes/allotments.h"
#include "steps/classes/class_choice.h"
#include "steps/quirks/quirks_and_flaws.h"
#include "steps/race/step_three_menu.h"
#include "steps/skills/pick_dialogs.h"
#include "steps/skills/tattoo.h"
#include "steps/spells/spell_selection.h"
#include "support/game_test.h"
#include "support/random_player.h"
#include "support/scripted_platform.h"

namespace veld::testing {

namespace {

constexpr const char* kNames[] = {
    "ADJUSTHONOR",
    "ADJUSTTEMPORAL",
    "About",
    "BandGeek",
    "BardAbilities",
    "BardInstrument",
    "BountyHunterAbilities",
    "CRITICALHITS",
    "CherryPick",
    "DVABackground",
    "EditAbilities",
    "EditClasses",
    "EditEquip",
    "EditEquipment",
    "EditLevels",
    "EditMilitary",
    "EditMoney",
    "EditPerson",
    "EditQuirks",
    "EditSchool",
    "EditSeminary",
    "EditSkills",
    "EditSpellBooks",
    "EditSpells",
    "EditStanding",
    "EditTattoos",
    "Enter",
    "EnterAbility",
    "Equip",
    "FreeMystic",
    "FreeRemote",
    "FreeRustic",
    "FreeSpellSellection",
    "FreeWeapon",
    "GMDiceRoller",
    "GetDice",
    "GetName",
    "GetPC",
    "HONORTRACK",
    "HXABackground",
    "MainEdit",
    "MajorQuirk",
    "Message",
    "MinorQuirk",
    "MoneyBP",
    "Options",
    "PackageSelect",
    "PartySheet",
    "Print",
    "PriorEdit",
    "Question",
    "QuirksandFlaws",
    "QuirksandFlawsMage",
    "Recover",
    "Siblings",
    "Skills",
    "SpellSellection",
    "StepEight",
    "StepEightteen",
    "StepFourteen",
    "StepNine",
    "StepSix",
    "StepTen",
    "StepThree",
    "TakeAfter",
    "Talents",
    "Tattoo",
    "ThiefAbilities",
    "Training",
    "WMABackground",
    "WeaponProf",
};
constexpr int kActsBeforeSecondLook = 6;
constexpr std::uint32_t kMostRuns = 60;

class Visitor : public RandomPlayer {
 public:
  Visitor(std::uint32_t seed, std::set<std::string>& missing, const std::function<void(Form&, bool)>& look)
      : RandomPlayer(seed, 80), missing_(missing), look_(look) {
    game = QuietGame(*this);
    LoadShippedCatalogues(*game);
    game->RuleSwitches[kRollYourOwnDice] = seed % 3 == 0 ? 1 : 0;
    game->dice.RandomState = seed;
  }

  void Act(Form& form) override {
    const auto met = met_.find(&form);
    if (met != met_.end() && ++met->second == kActsBeforeSecondLook) look_(form, true);
    RandomPlayer::Act(form);
  }

  void RunForm(Form& form) override {
    form.Open();
    if (form.IsClosed()) return;
    Meet(form);
    const std::string_view name = form.Name();
    if (name == "Print" || name == "PartySheet") return form.Close();  // their buttons write paper
    const bool isAllotment = name.ends_with("Abilities") && name != "EditAbilities";
    if (name == "StepNine" && !form.Items(kClassList).empty()) {
      form.Choose(kClassList, static_cast<int>(Pick(static_cast<std::uint32_t>(form.Items(kClassList).size()))));
    }
    if (isAllotment) SpreadPoints(form);
    if (isAllotment || name == "StepNine" || name == "StepEight") form.Press(1);
    if (!form.IsClosed()) RandomPlayer::RunForm(form);
    met_.erase(&form);
  }

  void ShowWindow(std::shared_ptr<Form> form) override {
    RandomPlayer::ShowWindow(std::move(form));
    Meet(*window);
  }

  std::unique_ptr<Game> game;

 private:
  void Meet(Form& form) {
    if (missing_.erase(std::string(form.Name())) == 0) return;
    look_(form, false);
    met_[&form] = 0;
  }

  void DoShowMessage(const std::string& caption, const std::string& text) override {
    if (missing_.contains("Message")) Platform::DoShowMessage(caption, text);
  }
  Answer DoAskYesNo(const std::string& caption, const std::string& text) override {
    if (missing_.contains("Question")) Platform::DoAskYesNo(caption, text);
    return text.ends_with("Tables?") ? Answer::Yes : RandomPlayer::DoAskYesNo(caption, text);
  }

  std::set<std::string>& missing_;
  const std::function<void(Form&, bool)>& look_;
  std::map<const Form*, int> met_;  ///< those open that were met first here, with what was done in each since
};

void PlayRun(Visitor& player) {
  constexpr int kRaces = 3021;
  constexpr int kContinue = 3043;
  constexpr int kRollAgain = 3047;
  BeginCharacter(*player.game);
  for (int tries = 0; tries < 200 && player.window->Items(kRaces).empty(); ++tries) player.window->Press(kRollAgain);
  const auto races = static_cast<std::uint32_t>(player.window->Items(kRaces).size());
  if (races == 0) return;
  player.window->Choose(kRaces, static_cast<int>(player.Pick(races)));
  player.window->Press(kContinue);
}

constexpr int kMishapStep = 20;

/// What chance alone seldom comes to.
void VisitRareForms(Visitor& player) {
  Game& game = *player.game;
  CharacterSheet& sheet = game.sheet;
  BeginCharacter(game);
  player.window->ChooseMenuItem(kEnterStats);
  for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(sheet, ability) = {16, 50};
  sheet.RaceName = "Pixie Fairy";
  game.run.BuildingPoints = 30;
  RunTattoo(game);
  sheet.ClassName = "Bard";
  sheet.ClassLevels[ClassRow::Bard] = 1;
  RunAllotment(game, ClassRow::Bard);
  sheet.ClassLevels[ClassRow::BountyHunter] = 1;
  RunAllotment(game, ClassRow::BountyHunter);
  PickBardInstrument(game);
  RunTraining(game);
  RunFreeSpellSellection(game, FreeSpellKind::AnyLevel);
  for (const char* package : {"Mystic", "Rustic Magic-User"}) {
    sheet.PackageName = package;
    ApplyPackage(game);
  }
  game.run.CurrentStep = kMishapStep;
  constexpr std::string_view kMishapTables[] = {kTable6B, kTable6B};
  RunQuirksandFlawsMage(game, kMishapTables);
}

}  // namespace

std::set<std::string> ShowEveryForm(const std::function<void(Form& form, bool isUsed)>& look) {
  const TestFolder folder;
  std::set<std::string> missing(std::begin(kNames), std::end(kNames));
  for (std::uint32_t seed = 1; seed < kMostRuns && !missing.empty(); ++seed) {
    Visitor player(seed, missing, look);
    PlayRun(player);
    if (player.window) player.window->Close();
    if (seed == 1) VisitRareForms(player);
    for (const int command : {kEdit, kInputCharacter, kHonorTracking, kCriticalHits, kDiceRoller, kOptions,
                              kCustomItems, kAbout, kRecover, kPrint, kPartySheet}) {
      if (seed % 8 == 1) RunMainCommand(*player.game, command);
    }
  }
  return missing;
}

}  // namespace veld::testing
