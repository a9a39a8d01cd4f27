#include "shell/main_menu.h"

#include "dice/dice.h"
#include "dice/dice_tester.h"
#include "generation/main_title.h"
#include "generation/save_by_extension.h"
#include "generation/sequencer.h"
#include "platform/platform.h"
#include "shell/about.h"
#include "shell/options_dialog.h"
#include "shell/recover_dialog.h"
#include "steps/race/step_three.h"
#include "store/recovery.h"

namespace veld {

namespace {

void NewCharacter(Game& game) {
  CloseStepThree(game);
  KeepRecoveryCopy(game);
  UpdateMainTitle(game, "Nobody");
  ResetCharacter(game);
  RollAbilityScores(game);
  OpenStepThree(game, RunGeneration);
}

void Save(Game& game) {
  if (AskAndSaveCharacter(game)) UpdateMainTitle(game, game.sheet.CharacterName);
}

void Load(Game& game) {
  KeepRecoveryCopy(game);
  if (AskAndLoadCharacter(game)) UpdateMainTitle(game, game.sheet.CharacterName);
}

void RecoverCharacter(Game& game) {
  if (!RunRecover(game)) return;
  CloseStepThree(game);
  UpdateMainTitle(game, game.sheet.CharacterName);
}

}  // namespace

std::vector<MenuItem> MainMenu() {
  const auto later = [](int id, const char* text) { return MenuItem{.Id = id, .Text = text, .Enabled = false}; };
  return {
      {.Text = "&File",
       .Items = {{.Id = kNewCharacter, .Text = "&New Character"},
                 {.Id = kSave, .Text = "&Save"},
                 {.Id = kLoad, .Text = "&Load"},
                 {.Id = kRecover, .Text = "&Recover"},
                 later(kEdit, "&Edit"),
                 later(kInputCharacter, "&Input own character"),
                 {.Id = kExit, .Text = "E&xit"}}},
      {.Text = "&Help",
       .Items = {{.Id = kDiceTester, .Text = "&Dice Tester 3d6"},
                 {.Id = kOptions, .Text = "&Options"},
                 later(kCustomItems, "&Custom Item Editor"),
                 {.Id = kAbout, .Text = "&About VELD"}}},
      {.Text = "&GM",
       .Items = {later(kDiceRoller, "&Dice Roller"), later(kHonorTracking, "&Honor Tracking"),
                 later(kCriticalHits, "&Critical hits")}},
  };
}

void RunMainCommand(Game& game, int id) {
  switch (id) {
    case kNewCharacter: return NewCharacter(game);
    case kSave: return Save(game);
    case kLoad: return Load(game);
    case kRecover: return RecoverCharacter(game);
    case kExit: return game.platform.CloseMainWindow();
    case kDiceTester: return RunDiceTester(game);
    case kOptions: return RunOptions(game);
    case kAbout: return RunAbout(game);
    default: return;
  }
}

}  // namespace veld
