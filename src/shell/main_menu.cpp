#include "shell/main_menu.h"

#include "dice/dice.h"
#include "dice/dice_tester.h"
#include "editors/custom_item_editor.h"
#include "editors/main_edit.h"
#include "generation/main_title.h"
#include "generation/save_by_extension.h"
#include "generation/sequencer.h"
#include "platform/platform.h"
#include "print/party_dialog.h"
#include "print/print_dialog.h"
#include "referee/critical_hits.h"
#include "referee/gm_dice_roller.h"
#include "referee/honor_track.h"
#include "shell/about.h"
#include "shell/npc_page.h"
#include "shell/options_dialog.h"
#include "shell/recover_dialog.h"
#include "steps/race/step_three.h"
#include "store/recovery.h"

namespace veld {

namespace {

constexpr std::string_view kBeginning =
    "File, New Character begins: seven abilities are rolled and Step 3 opens, where you pick a race. Continue then "
    "leads from step to step, through family, quirks, class, money, skills and a name to the shop, and asks at the "
    "end whether to save. A first character takes half an hour, or five minutes if the program throws the dice.\n\n"
    "Decide before you begin which books and optional rules your table uses, and who throws: both stand in Help, "
    "Options.\n\n"
    "Nothing is lost. Undo takes back the last thing that you did, from step to step, and File, Recover has what was "
    "broken off. File, Load brings back a character that was saved; File, Edit is for what happens to one in play. "
    "The GM menu has the referee's tools, and touches no character.\n\n"
    "F1 on any page tells what it is and what to do there.";

void Save(Game& game) {
  if (AskAndSaveCharacter(game)) UpdateMainTitle(game, game.sheet.CharacterName);
}

void Load(Game& game) {
  KeepRecoveryCopy(game);
  if (AskAndLoadCharacter(game)) UpdateMainTitle(game, game.sheet.CharacterName);
}

void Edit(Game& game, bool (*edit)(Game&)) {
  if (edit(game)) return UpdateMainTitle(game, game.sheet.CharacterName);
  ShowCharacter(game);  // a cancelled one may have closed the window of Step 3
}

}  // namespace

void BeginCharacter(Game& game) {
  CloseStepThree(game);
  KeepRecoveryCopy(game);
  ResetCharacter(game);
  UpdateMainTitle(game, "Nobody");
  RollAbilityScores(game);
  OpenStepThree(game, RunGeneration, ShowCharacter);
}

void TakeChosenCopy(Game& game, const RecoveryCopy& copy) {
  if (!TakeRecoveryCopy(game, copy)) return;
  CloseStepThree(game);
  UpdateMainTitle(game, game.sheet.CharacterName);
}

std::vector<MenuItem> MainMenu() {
  return {
      {.Text = "&File",
       .Items = {{.Id = kNewCharacter, .Text = "&New Character", .Shortcut = "Ctrl+N"},
                 {.Id = kSave, .Text = "&Save", .Shortcut = "Ctrl+S"},
                 {.Id = kPrint, .Text = "&Print...", .Shortcut = "Ctrl+P"},
                 {.Id = kLoad, .Text = "&Load", .Shortcut = "Ctrl+O"},
                 {.Id = kRecover, .Text = "&Recover"},
                 {.Id = kUndo, .Text = "&Undo", .Shortcut = "Ctrl+Z"},
                 {.Id = kRedo, .Text = "Re&do", .Shortcut = "Ctrl+Shift+Z"},
                 {.Id = kSaveRun, .Text = "Save &this run..."},
                 {.Id = kEdit, .Text = "&Edit", .Shortcut = "Ctrl+E"},
                 {.Id = kInputCharacter, .Text = "&Input own character"},
                 {.Id = kExit, .Text = "E&xit"}}},
      {.Text = "&Help",
       .Items = {{.Id = kHowToBegin, .Text = "&How to begin", .Shortcut = "F1"},
                 {.Id = kDiceTester, .Text = "&Dice Tester 3d6"},
                 {.Id = kOptions, .Text = "&Options"},
                 {.Id = kCustomItems, .Text = "&Custom Item Editor"},
                 {.Id = kAbout, .Text = "&About VELD"}}},
      {.Text = "&GM",
       .Items = {{.Id = kDiceRoller, .Text = "&Dice Roller"},
                 {.Id = kHonorTracking, .Text = "&Honor Tracking"},
                 {.Id = kCriticalHits, .Text = "&Critical hits"},
                 {.Id = kPartySheet, .Text = "&Party sheet..."},
                 {.Id = kNpcs, .Text = "&NPCs..."}}},
  };
}

void RunMainCommand(Game& game, int id) {
  switch (id) {
    case kNewCharacter: return BeginCharacter(game);
    case kSave: return Save(game);
    case kLoad: return Load(game);
    case kRecover:
      if (const auto copy = AskRecoveryCopy(game)) TakeChosenCopy(game, *copy);
      return;
    case kEdit: return Edit(game, RunMainEdit);
    case kInputCharacter: return Edit(game, RunEnter);
    case kExit: return game.platform.CloseMainWindow();
    case kHowToBegin: return game.platform.ShowMessage(kBeginning, "Help: How to begin");
    case kDiceRoller: return RunGmDiceRoller(game);
    case kDiceTester: return RunDiceTester(game);
    case kOptions: return RunOptions(game);
    case kCustomItems: return RunCustomItemEditor(game);
    case kAbout: return RunAbout(game);
    case kHonorTracking: return RunHonorTracking(game);
    case kCriticalHits: return RunCriticalHits(game);
    case kPrint: return RunPrint(game);
    case kPartySheet: return RunPartySheet(game);
    case kNpcs: return RunNpcs(game);
    default: return;
  }
}

}  // namespace veld
