#include "referee/training.h"

#include "dice/dice.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "rules/training_tables.h"
#include "store/log_file.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr int kClose = 2;
constexpr int kFirstLine = 200;

enum TrainingLine { kLocation, kTeacher, kClassSize, kInstruction, kEvent, kTrainingLines };

constexpr std::string_view kLabels[kTrainingLines] = {"Location/Proximity of School", "Quality of Teacher",
                                                      "Class Size/Conditions", "Result of BBI", "Training Event Table"};

constexpr auto kTrainingControls = [] {
  constexpr int kWidth = 60;
  std::array<ControlTemplate, 2 * kTrainingLines + 2> controls{};
  std::size_t next = 0;
  controls[next++] = TitleAt(0, 0, "Training Tables", 2);
  for (int line = 0; line < kTrainingLines; ++line) {
    controls[next++] = LabelAt(line + 2, 0, kLabels[line]);
    // The last two run to a paragraph.
    controls[next++] = line < kInstruction ? ResultAt(line + 2, 1, kFirstLine + line, kWidth)
                                           : TextAt(line + 2, 1, kFirstLine + line, {}, kWidth, 3);
  }
  controls[next] = ButtonAt(kTrainingLines + 3, 0, kClose, "&Close", ButtonRole::Both);
  controls[next].ColumnSpan = 2;
  return controls;
}();
constexpr std::string_view kTrainingHelp =
    "He has risen in level, and this is how the training went: how far the school was, who taught, how crowded it "
    "was, what he got out of it, and whether something happened. All is rolled already, and written in Training.log. "
    "Tell it at the table; Close goes on with what the level brings.";
constexpr FormTemplate kTraining{"Training", "RFC - Training Tables", kTrainingControls, kTrainingHelp};

bool IsBard(const Game& game) {
  return Contains(game.sheet.ClassName, "Bard");
}

int RollTrainingDice(Game& game) {
  return RollDice(game, 8, 1) + RollDice(game, 12, 1);
}

template <typename Rows>
const auto& RowAt(const Rows& rows, int index) {
  return rows[static_cast<std::size_t>(index)];
}

std::string RollLocation(Game& game) {
  const int total = TrainingLocationTotal(RollTrainingDice(game), kGuildTraining);
  const TrainingLocation& row = RowAt(TrainingLocations, TrainingLocationOf(total));
  const int distance = RollDice(game, row.TravelSides, row.TravelCount) + row.TravelBase;
  return Format("Location/Proximity of School (%i) %s - %i %s", total, row.Name, distance, row.Unit);
}

std::string RollTeacher(Game& game) {
  const int total = TrainingTeacherTotal(RollTrainingDice(game), kGuildTraining, IsBard(game));
  game.run.TeacherIndex = TrainingTeacherOf(total);
  return Format("Quality of Teacher (%i) %s ", total, RowAt(TrainingTeachers, game.run.TeacherIndex).Name);
}

std::string RollClassSize(Game& game) {
  const int total = TrainingClassSizeTotal(RollTrainingDice(game), kGuildTraining, IsBard(game));
  game.run.ClassSizeIndex = TrainingClassSizeOf(total);
  return Format("Class Size/Conditions (%i) %s ", total, RowAt(TrainingClassSizes, game.run.ClassSizeIndex).Name);
}

std::string RollInstruction(Game& game) {
  const int total =
      TrainingInstructionTotal(RollTrainingDice(game), game.run.TeacherIndex, game.run.ClassSizeIndex, IsBard(game));
  const TrainingInstruction& row = RowAt(TrainingInstructions, TrainingInstructionOf(total));
  std::string line = Format("Basic Block of Instruction (%i) %s ", total, row.Text);
  if (row.MasteryDie > 0) {
    game.run.TrainingFreeMastery = RollDice(game, row.MasteryDie, 1) + row.MasteryDie;
    line += Format("You have gained %i free Mastery Skill Points. ", game.run.TrainingFreeMastery);
  }
  if (row.SkillDie > 0) {
    game.run.TrainingFreeSkills = RollDice(game, row.SkillDie, 1);
    line += Format("You have gained %i free Skills. ", game.run.TrainingFreeSkills);
  }
  return line;
}

std::string RollEvent(Game& game) {
  const int roll = RollDice(game, 20, 1);
  const TrainingEvent& row = RowAt(TrainingEvents, TrainingEventOf(roll));
  std::string line = Format("Training Event Table (%i) %s ", roll, row.Text);
  if (row.ExperienceDie > 0) {
    // The points are only told: the player enters the experience himself.
    line += Format("Earned %i experience points. ", RollDice(game, row.ExperienceDie, 1) + row.ExperienceDie);
  }
  if (row.FreeSkills > 0) game.run.TrainingFreeSkills = row.FreeSkills;
  if (row.HonorDie > 0) {
    const int honor = RollDice(game, row.HonorDie, 1);
    game.sheet.Honor = AddSaturated(game.sheet.Honor, honor);
    line += Format("You have gained %i Honor. ", honor);
  }
  return line;
}

}  // namespace

void LogTrainingLine(std::string_view text) {
  AppendLine("Training.log", text);
}

void RunTrainingTables(Game& game, Form& window) {
  constexpr std::string (*kRolls[kTrainingLines])(Game&) = {RollLocation, RollTeacher, RollClassSize, RollInstruction,
                                                            RollEvent};
  const auto log = [&](std::string_view line) {
    if (!game.platform.LeavesNoTrace()) LogTrainingLine(line);
  };
  log("");
  for (int line = 0; line < kTrainingLines; ++line) {
    const std::string text = kRolls[line](game);
    window.SetText(kFirstLine + line, text);
    log(text);
  }
}

void RunTraining(Game& game) {
  Form form(kTraining);
  form.onOpened = [&] { RunTrainingTables(game, form); };
  form.onCommand = [&](int) { form.Close(); };
  game.platform.RunForm(form);
}

}  // namespace veld
