#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <clocale>
#include <filesystem>
#include <iostream>
#include <set>

#include "dice/dice.h"
#include "editors/class_progress.h"
#include "editors/custom_item_editor.h"
#include "editors/edit_classes.h"
#include "editors/edit_quirks.h"
#include "editors/edit_skills.h"
#include "editors/edit_spell_books.h"
#include "editors/edit_spells.h"
#include "editors/main_edit.h"
#include "editors/person_pages.h"
#include "platform/ask_name.h"
#include "pty_program.h"
#include "referee/critical_hits.h"
#include "referee/gm_dice_roller.h"
#include "referee/honor_track.h"
#include "referee/training.h"
#include "shell/about.h"
#include "shell/options_dialog.h"
#include "shell/recover_dialog.h"
#include "steps/abilities/step_eight.h"
#include "steps/classes/allotments.h"
#include "steps/classes/step_nine.h"
#include "steps/classes/take_after.h"
#include "steps/family/siblings.h"
#include "steps/family/step_six.h"
#include "steps/finish/alignment.h"
#include "steps/finish/equip.h"
#include "steps/finish/naming.h"
#include "steps/money/money_bp.h"
#include "steps/money/step_ten.h"
#include "steps/quirks/cherry_pick.h"
#include "steps/quirks/free_quirk.h"
#include "steps/quirks/quirks_and_flaws.h"
#include "steps/skills/pick_dialogs.h"
#include "steps/skills/skills.h"
#include "steps/skills/talents.h"
#include "steps/skills/tattoo.h"
#include "steps/skills/weapon_prof.h"
#include "steps/spells/spell_selection.h"
#include "store/recovery.h"
#include "store/side_files.h"
#include "support/counted_acts.h"
#include "support/random_player.h"
#include "support/scripted_platform.h"
#include "terminal/terminal_platform.h"

namespace veld {
namespace {

using namespace testing;

/// A dialog of the program, and what must be so for it to open.
struct Dialog {
  const char* Title;
  void (*Run)(Game&);
  bool HasOneButton = false;  ///< and nothing else that the keys go to
};

template <int kClassRow>
void RunAllotmentOf(Game& game) {
  game.sheet.ClassLevels[kClassRow] = 1;
  RunAllotment(game, kClassRow);
}

const Dialog kDialogs[] = {
    {"Step 6", RunStepSix},
    {"Siblings",
     [](Game& game) {
       game.sheet.SiblingCount = 3;
       RunSiblings(game);
     }},
    {"Step 7: Pick Quirks and Flaws", RunCherryPick},
    {"Step 7: Roll for Quirks and Flaws", RunQuirksandFlaws},
    {"Minor Quirk", RunMinorQuirk},
    {"Major Quirk", RunMajorQuirk},
    {"Step 8", RunStepEight},
    {"Step 9", RunStepNine},
    {"Thief Abilities", RunAllotmentOf<16>},
    {"Bard Abilities", RunAllotmentOf<18>},
    {"Bounty Hunter Abilities", RunAllotmentOf<60>},
    {"Step 10", RunStepTen},
    {"Money",
     [](Game& game) {
       game.run.BuildingPoints = 5;
       RunMoneyBP(game);
     }},
    {"Skills", RunSkills},
    {"Talents", RunTalents},
    {"Weapon Proficiencies", RunWeaponProf},
    {"Pick your free skill",
     [](Game& game) {
       PickOne(game, PickPage::FreeRemote, {"one", "two"});
     }},
    {"Pick your free item",
     [](Game& game) {
       PickOne(game, PickPage::FreeWeapon, {"one", "two"});
     }},
    {"Instrument", PickBardInstrument},
    {"Choose a name", [](Game& game) { AskName(game.platform, "A name"); }},
    {"Spell Selection",
     [](Game& game) {
       game.run.SpellListIndex = 3;
       RunSpellSellection(game);
     }},
    {"Free Spell", [](Game& game) { RunFreeSpellSellection(game, FreeSpellKind::AnyLevel); }},
    {"Tattoo",
     [](Game& game) {
       game.sheet.RaceName = "Pixie Fairy";
       RunTattoo(game);
     }},
    {"Do you wish to take the Take After Talent for 30 BP?",
     [](Game& game) {
       game.sheet.RaceName = "Half-elf";
       RunTakeAfter(game);
     }},
    {"Step 14", RunStepFourteen},
    {"Step 18: Name your character", RunStepEightteen},
    {"Step 19", RunEquip},
    {"Equipment", RunEditEquip},
    {"RFC - Training Tables", RunTraining, true},
    {"GM's Dice Roller", RunGmDiceRoller},
    {"VELD Options",
     [](Game& game) {
       SaveOptions(game);
       RunOptions(game);
     }},
    {"Recover",
     [](Game& game) {
       KeepRecoveryCopy(game);
       AskRecoveryCopy(game);
     }},
    {"About VELD", RunAbout, true},
    {"GM - Honor Tracking System", RunHonorTracking},
    {"Critical Hits", RunCriticalHits},
    {"Custom Item Editor", RunCustomItemEditor},
    {"Input own character", [](Game& game) { RunEnter(game); }},
    {"The person", RunEditPerson},
    {"Abilities", RunEditAbilities},
    {"Money and inheritance", RunEditMoney},
    {"Birth and family", RunPriorEdit},
    {"Youth of a fighter", RunEditMilitary},
    {"Youth of a mage", RunEditSchool},
    {"Youth of a priest", RunEditSeminary},
    {"Tattoos", RunEditTattoos},
    {"Honor and other counts", RunEditStanding},
    {"Classes and levels", [](Game& game) { RunEditClasses(game, kWrittenLevels); }},
    {"Levels and hit points",
     [](Game& game) {
       game.RuleSwitches[kRollYourOwnDice] = 0;
       AddClass(game, 3);
       RunEditLevels(game);
     }},
    {"Skills, Talents and Proficiencies", RunEditSkills},
    {"Quirks and Flaws", RunEditQuirks},
    {"Spells Known", RunEditSpells},
    {"Spell Books", RunEditSpellBooks},
};

/// A character that has been through a generation, so that every dialog has something to show.
std::unique_ptr<Game> PlayedGame(Platform& platform) {
  auto game = MakeGame(platform);
  game->RuleSwitches.fill(1);
  game->RuleSwitches[kRollYourOwnDice] = 0;
  game->dice.LogMode = DiceLogMode::Off;
  DecodeEquipment(FileText(std::string(VELD_DATA_DIR) + "/equip.vlb"), game->EquipmentTable);
  DecodeSpells(FileText(std::string(VELD_DATA_DIR) + "/spells.vld"), game->SpellTable);
  ResetCharacter(*game);
  game->dice.RandomState = 7;
  RollAbilityScores(*game);
  game->sheet.RaceName = "Human";
  game->sheet.SiblingCount = 2;
  game->run.BuildingPoints = 40;
  game->run.CurrentStep = 6;
  return game;
}

int RunAtTerminal(const Dialog& dialog) {
  std::setlocale(LC_ALL, "C.UTF-8");
  Screen screen;
  if (!screen.IsOpen()) return 2;
  TerminalPlatform platform(screen);
  const auto game = PlayedGame(platform);
  dialog.Run(*game);
  return 0;
}

/// The controls that the keys go to as Tab is pressed, as the places of the cursor; all are in sight.
std::set<std::pair<int, int>> TabThrough(PtyProgram& program, const std::string& title) {
  std::set<std::pair<int, int>> places;
  for (int i = 0; i < 60; ++i) {
    const std::pair place{program.screen.CursorRow(), program.screen.CursorColumn()};
    if (!places.insert(place).second && i > 1) break;
    program.Press(kTabKey);
    EXPECT_EQ(program.Title(), title) << program.Shows();
    if (program.Title() != title) break;
  }
  return places;
}

/// Leaves by Escape. A dialog that does not let go yet is played on: what it says Enter does, one control after
/// another.
void Leave(PtyProgram& program) {
  for (int tries = 0; tries < 60 && program.IsRunning(); ++tries) {
    program.Press(kEscapeKey);
    if (program.IsRunning()) program.Press(kEnterKey);
    if (program.IsRunning()) program.Press(kTabKey);
  }
}

TEST(TerminalDialogsTest, EveryDialogIsOpenedWalkedThroughAndLeftByKeyboardAlone) {
  TestFolder folder;
  for (const Dialog& dialog : kDialogs) {
    SCOPED_TRACE(dialog.Title);
    PtyProgram program([&] { return RunAtTerminal(dialog); });
    EXPECT_EQ(program.Title(), dialog.Title) << program.Shows();
    EXPECT_TRUE(program.KeysLine().find("Esc ") != std::string::npos) << program.Shows();
    if (std::getenv("VELD_SHOW_PAGES")) std::cout << program.Shows() << '\n';
    program.Press(kHelpKey);
    EXPECT_EQ(program.Title(), std::string("Help: ") + dialog.Title) << program.Shows();
    EXPECT_EQ(program.KeysLine(), " Tab  Alt+letter  Enter OK  Esc OK") << "it is whole, and has no help itself";
    program.Press(kEscapeKey);
    EXPECT_TRUE(program.KeysLine().find("F1 Help") != std::string::npos) << program.Shows();
    const auto places = TabThrough(program, dialog.Title);
    EXPECT_GE(places.size(), dialog.HasOneButton ? 1U : 2U) << program.Shows();
    for (const auto& [row, column] : places) EXPECT_LT(row, program.screen.Rows() - 1) << column;
    Leave(program);
    EXPECT_EQ(program.WaitForEnd(), 0) << program.Shows();
  }
}

TEST(TerminalDialogsTest, EveryDialogIsLeftWhenTheTerminalIsLost) {
  TestFolder folder;
  for (const Dialog& dialog : kDialogs) {
    SCOPED_TRACE(dialog.Title);
    PtyProgram program([&] { return RunAtTerminal(dialog); });
    program.HangUp();
    EXPECT_EQ(program.WaitForEnd(), 0);
  }
}

/// Reads the help of the first form that opens.
struct HelpReader : ScriptedPlatform {
  struct Read {
    std::string Help;
  };
  void RunForm(Form& form) override { throw Read{std::string(form.Help())}; }
};

TEST(TerminalDialogsTest, EveryDialogHasAParagraphOfHelpAndOnlyMessagesHaveNone) {
  TestFolder folder;
  for (const Dialog& dialog : kDialogs) {
    SCOPED_TRACE(dialog.Title);
    HelpReader platform;
    const auto game = PlayedGame(platform);
    try {
      dialog.Run(*game);
      ADD_FAILURE() << "it did not open";
    } catch (const HelpReader::Read& read) {
      const auto words = std::ranges::count(read.Help, ' ') + 1;
      EXPECT_TRUE(words >= 25 && words <= 140) << words << ": " << read.Help;
    }
  }
  // No template ends in an empty text.
  const auto isWithout = [](const std::string& source) {
    for (std::size_t at = 0; (at = source.find("FormTemplate", at)) != std::string::npos; ++at) {
      const std::string declared = source.substr(at, source.find(';', at) - at);
      if (declared.ends_with("\"\"}") || declared.ends_with("{}}")) return true;
    }
    return false;
  };
  const std::filesystem::path sources = std::filesystem::path(VELD_SOURCE_DIR) / "src";
  for (const auto& file : std::filesystem::recursive_directory_iterator(sources)) {
    if (file.path().extension() != ".cpp" || file.path().parent_path().filename() == "platform") continue;
    EXPECT_FALSE(isWithout(FileText(file.path().string()))) << file.path();
  }
}

TEST(TerminalDialogsTest, LongWorkShowsHowFarItIsAndIsCancelled) {
  TestFolder folder;
  const Dialog work{"Work", [](Game& game) {
                      game.platform.ShowMessage("Begin?");
                      game.platform.BeginProgress("Work", "It goes on and on.");
                      int percent = 0;
                      while (game.platform.ShowProgress(percent)) {
                        percent = std::min(percent + 1, 50);
                        usleep(2000);
                      }
                      game.platform.EndProgress();
                      game.platform.ShowMessage("Cancelled.");
                    }};
  PtyProgram program([&] { return RunAtTerminal(work); });
  program.Type(kEnterKey);
  EXPECT_TRUE(program.WaitUntilShown("50%") && program.Shows("It goes on")) << program.Shows();
  program.Type(kEscapeKey);
  EXPECT_TRUE(program.WaitUntilShown("Cancelled.")) << program.Shows();
  program.Press(kEnterKey);
  EXPECT_EQ(program.WaitForEnd(), 0);
}

/// The title tells how many acts are left.
void RunWithActs(Game& game) {
  enum : int { kRows = 10, kOk = 1 };
  constexpr ControlTemplate kControls[] = {ListAt(0, 0, kRows, 20, 3, 3),
                                           ButtonAt(1, 0, kOk, "Go on with the next of the steps", ButtonRole::Cancel)};
  Form form({"Acts", "Acts", kControls, ""});
  CountedActs acts;
  form.onOpened = [&] { form.SetItems(kRows, {"one", "two", "three"}); };
  form.onCommand = [&](int) { form.Close(); };
  form.contextMenu = {{.Id = 40, .Text = "Nothing"}};
  acts.onTakeBack = [&] { form.SetTitle("Left " + std::to_string(acts.done)); };
  form.SetActs(&acts);
  game.platform.RunForm(form);
}

TEST(TerminalDialogsTest, WhatWasDoneIsTakenBackByKeyAndTheKeysAreToldWhenTheyDoSomething) {
  TestFolder folder;
  PtyProgram program([] { return RunAtTerminal({"Acts", RunWithActs}); });
  EXPECT_FALSE(program.Shows("F2")) << program.Shows();
  program.Press(kDownKey, 2);
  program.Press(kPageMenuKey);
  program.Press(kUndoKey);
  EXPECT_EQ(program.Title(), "Acts") << "an open menu goes first";
  program.Press(kUndoKey);
  EXPECT_EQ(program.Title(), "Left 1") << program.Shows();
  EXPECT_EQ(program.KeysLine(), " Up/Down choose  F2 Undo  F3 Redo  Esc Go on with the next of the steps  F9 Menu");
  program.Press(kRedoKey);
  EXPECT_FALSE(program.Shows("F3")) << program.Shows();
  program.Press(kEscapeKey);
  EXPECT_EQ(program.WaitForEnd(), 0);
}

}  // namespace
}  // namespace veld
