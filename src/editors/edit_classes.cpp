#include "editors/edit_classes.h"

#include <algorithm>
#include <optional>

#include "editors/character_backup.h"
#include "editors/class_progress.h"
#include "editors/whole_number.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "rules/class_grants.h"
#include "rules/class_table.h"
#include "steps/classes/class_choice.h"
#include "steps/race/race_choice.h"
#include "steps/skills/skill_setup.h"
#include "text/format.h"

namespace veld {

namespace {

enum : int {
  kOk = 1,
  kCancel = 2,
  kTold = 3,
  kAmount = 10,
  kAwardTo = 11,
  kAward = 12,
  kHeld = 13,
  kLevel = 14,
  kExperience = 15,
  kSetLevel = 16,
  kSetExperience = 17,
  kHitPoints = 18,
  kSetHitPoints = 19,
  kOther = 20,
  kAdd = 21,
  kGiveUp = 22,
  kLevels = 23,
};

constexpr int kMostHitPoints = 99'999;

constexpr ControlTemplate NumberThat(int row, int column, int id, int width, int enterPresses) {
  ControlTemplate number = NumberAt(row, column, id, width);
  number.EnterPresses = enterPresses;
  return number;
}

constexpr auto kControls = [] {
  auto controls = std::to_array<ControlTemplate>({
      TitleAt(0, 0, "Classes and levels", 2),
      LabelAt(1, 0, "Experience &gained"),
      NumberThat(1, 1, kAmount, 10, kAward),
      LabelAt(1, 1, "&for class"),
      ComboAt(1, 1, kAwardTo, 22),
      ButtonAt(1, 1, kAward, "A&ward", ButtonRole::Default),
      LabelAt(3, 0, "&Classes held"),
      ListAt(3, 1, kHeld, 55, 4),
      LabelAt(4, 0, "&Level"),
      NumberThat(4, 1, kLevel, 4, kSetLevel),
      ButtonAt(4, 1, kSetLevel, "&Set level"),
      LabelAt(4, 1, "E&xperience"),
      NumberThat(4, 1, kExperience, 10, kSetExperience),
      ButtonAt(4, 1, kSetExperience, "Se&t"),
      LabelAt(5, 0, "&Hit points"),
      NumberThat(5, 1, kHitPoints, 6, kSetHitPoints),
      ButtonAt(5, 1, kSetHitPoints, "Set hit &points"),
      ButtonAt(5, 1, kLevels, "&Each level ..."),
      LabelAt(6, 0, "&Another class"),
      ComboAt(6, 1, kOther, 28),
      ButtonAt(6, 1, kAdd, "A&dd"),
      ButtonAt(6, 1, kGiveUp, "Give &up"),
      TextAt(8, 0, kTold, {}, 76, 5, 1, 2),
      ButtonAt(9, 0, kOk, "&OK"),
      ButtonAt(9, 0, kCancel, "Ca&ncel", ButtonRole::Cancel),
  });
  for (ControlTemplate& control : controls) {
    if (control.Kind == ControlKind::Button && control.Row == 9) control.ColumnSpan = 2;
  }
  return controls;
}();
constexpr std::string_view kEditClassesHelp =
    "What play does to a class. After a session type the experience gained, choose whom it is for, and press Award: "
    "the page tells at once which levels came and what they brought, with hit points rolled and training told. An "
    "amount below 0 takes experience, and with it levels, away.\n\n"
    "Below that, choose a class held to set its level, its experience or all hit points by hand. Another class adds "
    "one, Give up ends one, each with what it gives. This is the referee's page: it lets you do what the rules would "
    "not, and says so. OK keeps it all, Cancel puts everything back.";
constexpr FormTemplate kEditClasses{"EditClasses", "Classes and levels", kControls, kEditClassesHelp};

/// The classes that can be added: all that have a name and are not held.
std::vector<int> OtherClasses(const CharacterSheet& sheet) {
  const std::vector<int> held = ClassesHeld(sheet);
  std::vector<int> rows;
  for (int row = 1; row <= kLastSingleClass; ++row) {
    if (!ClassAt(row).Name.empty() && std::ranges::find(held, row) == held.end()) rows.push_back(row);
  }
  return rows;
}

std::string HeldLine(const CharacterSheet& sheet, int row) {
  const int level = sheet.ClassLevels[static_cast<std::size_t>(row)];
  std::string line = Format("%s, level %i, %.0f points", ClassAt(row).Name, level,
                            sheet.ClassExperience[static_cast<std::size_t>(row)]);
  if (level < HighestLevelOf(row)) {
    line += Format(" (next level at %i)", ClassAt(row).ExperienceForLevel[static_cast<std::size_t>(level + 1)]);
  }
  return line;
}

class ClassPage {
 public:
  ClassPage(Game& game, const LevelWay& way) : game_(game), way_(way), form_(kEditClasses), backup_(game) {
    form_.onOpened = [this] {
      Show(0);
      form_.Focus(held_.empty() ? kOther : kAmount);
    };
    form_.onSelect = [this](int id) {
      if (id == kHeld) ShowHeldClass();
      if (id == kOther) TellOfOther();
    };
    form_.onCommand = [this](int id) { Command(id); };
  }

  void Run() {
    game_.platform.RunForm(form_);
    if (!isAccepted_) backup_.Restore(game_);
  }

 private:
  void Tell(std::string_view text) { form_.SetText(kTold, text); }

  /// The class row of the chosen line; -1 if there is none.
  int HeldRow() const {
    const int selection = form_.Selection(kHeld);
    return selection < 0 ? -1 : held_[static_cast<std::size_t>(selection)];
  }

  void ShowHeldClass() {
    const int row = HeldRow();
    if (row < 0) return;
    form_.SetNumber(kLevel, game_.sheet.ClassLevels[static_cast<std::size_t>(row)]);
    form_.SetText(kExperience, Format("%.0f", game_.sheet.ClassExperience[static_cast<std::size_t>(row)]));
  }

  /// Shows all anew, with the class of `chosenRow` chosen if it is held.
  void Show(int chosenRow) {
    held_ = ClassesHeld(game_.sheet);
    std::vector<std::string> lines;
    std::vector<std::string> takers;
    if (held_.size() > 1) takers.emplace_back("all classes, split");
    for (const int row : held_) {
      lines.push_back(HeldLine(game_.sheet, row));
      takers.emplace_back(ClassAt(row).Name);
    }
    form_.SetItems(kHeld, std::move(lines));
    const auto chosen = std::ranges::find(held_, chosenRow);
    form_.Select(kHeld, chosen == held_.end() ? 0 : static_cast<int>(chosen - held_.begin()));
    form_.SetItems(kAwardTo, std::move(takers));
    form_.Select(kAwardTo, 0);
    ShowHeldClass();
    form_.SetNumber(kHitPoints, game_.sheet.HitPoints);
    others_ = OtherClasses(game_.sheet);
    std::vector<std::string> names;
    for (const int row : others_) names.emplace_back(ClassAt(row).Name);
    form_.SetItems(kOther, std::move(names));
    for (const int id : {kAward, kSetLevel, kSetExperience, kSetHitPoints, kLevels}) {
      form_.SetEnabled(id, !held_.empty());
    }
    form_.SetEnabled(kGiveUp, held_.size() > 1);
  }

  int OtherRow() const {
    const int selection = form_.Selection(kOther);
    return selection < 0 ? -1 : others_[static_cast<std::size_t>(selection)];
  }

  /// What stands against a class; it can be added all the same.
  void TellOfOther() {
    const int row = OtherRow();
    if (row < 0) return;
    BindRaceRow(game_);
    const std::string why = WhyClassIsMissing(game_, row);
    Tell(why.empty() ? std::string("Nothing stands against this class.")
                     : "Against the rules, yet yours to say: " + why);
  }

  /// The number of a field; nothing, with its range told and the focus there, if it is none.
  std::optional<int> Read(int id, std::string_view name, int least, int most) {
    const std::optional<int> number = WholeNumber(form_.Text(id), least, most);
    if (!number) {
      Tell(WholeNumberWanted(name, least, most));
      form_.Focus(id);
    }
    return number;
  }

  void Award() {
    const auto points = Read(kAmount, "Experience gained", -kMostExperience, kMostExperience);
    if (!points) return;
    const int taker = form_.Selection(kAwardTo);
    if (held_.size() > 1 && taker == 0) return AwardExperienceToAll(game_, *points);
    const auto place = static_cast<std::size_t>(held_.size() > 1 ? taker - 1 : taker);
    if (place < held_.size()) AwardExperience(game_, held_[place], *points);
  }

  void WriteLevel(int row) {
    if (const auto level = Read(kLevel, "Level", 1, HighestLevelOf(row))) SetLevel(game_, row, *level, way_);
  }

  void WriteExperience(int row) {
    const auto experience = Read(kExperience, "Experience", 0, kMostExperience);
    if (experience) SetExperience(game_, row, *experience, way_);
  }

  void WritePoints() {
    if (const auto points = Read(kHitPoints, "Hit points", 0, kMostHitPoints)) WriteHitPoints(game_, *points);
  }

  /// A class in play begins with what a class of a new character does, if the player wants it.
  void Add() {
    const int row = OtherRow();
    if (row < 0) return Tell("Choose the class to add.");
    const std::string refusal = AddClass(game_, row, way_);
    if (!refusal.empty()) return Tell(refusal);
    const std::string_view name = ClassAt(row).Name;
    const bool hasGifts = way_.IsRolled && !ClassGrants(name, game_.sheet.UsesFighterBackground == 1).empty();
    if (!hasGifts) return;
    const std::string question = Format("Does the character gain the skills and talents that a %s begins with?", name);
    if (game_.platform.Confirms("Yes or No", question)) GiveClassGrants(game_, name);
  }

  void Act(int id) {
    const int row = HeldRow();
    if (id == kAward) return Award();
    if (id == kSetHitPoints) return WritePoints();
    if (id == kAdd) return Add();
    if (row < 0) return Tell("Choose a class first.");
    if (id == kSetLevel) return WriteLevel(row);
    if (id == kSetExperience) return WriteExperience(row);
    if (id == kGiveUp) Tell(GiveUpClass(game_, row));
    if (id == kLevels) RunEditLevels(game_);
  }

  void Command(int id) {
    if (id == kOk || id == kCancel) {
      isAccepted_ = id == kOk;
      return form_.Close();
    }
    Tell({});
    game_.run.TrainingFreeMastery = 0;
    game_.run.TrainingFreeSkills = 0;
    const CharacterBackup before(game_);
    const int chosen = id == kAdd ? OtherRow() : HeldRow();
    Act(id);
    std::string told;
    for (const std::string& line : WhatLevelsBrought(before.Sheet(), game_)) told += (told.empty() ? "" : "; ") + line;
    if (told.empty()) return;
    Tell(told + ".");
    Show(chosen);
  }

  Game& game_;
  const LevelWay& way_;
  Form form_;
  CharacterBackup backup_;
  std::vector<int> held_;
  std::vector<int> others_;
  bool isAccepted_ = false;
};

}  // namespace

void RunEditClasses(Game& game, const LevelWay& way) {
  BringClassesUpToDate(game, way);
  ClassPage(game, way).Run();
}

}  // namespace veld
