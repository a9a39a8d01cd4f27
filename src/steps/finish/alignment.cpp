#include "steps/finish/alignment.h"

#include <string>

#include "platform/form.h"
#include "platform/platform.h"
#include "rules/class_table.h"
#include "rules/named_rows.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

enum : int { kOk = 1, kAbort = 2, kAlignments = AlignmentControl::Alignments };

constexpr std::string_view kNotPicked = "Please Pick";

constexpr std::size_t kNeutral = 4;

constexpr ControlTemplate kStepFourteenControls[] = {
    TitleAt(0, 0, "Step 14: Choose an Alignment"),
    ListAt(1, 0, kAlignments, 32, kAlignmentCount + 1),
    ButtonAt(2, 0, kOk, "&OK", ButtonRole::Default),
    ButtonAt(2, 0, kAbort, "&Abort", ButtonRole::Cancel),
};
constexpr std::string_view kStepFourteenHelp =
    "What he holds right. The list shows the alignments that all his classes allow; choose one, then OK. It costs "
    "nothing, and it is hard to change in play: an act against it costs Honor, and a cleric, paladin or druid may "
    "lose what his class gave him. Honor awards differ by alignment too, as the referee's tables tell.\n\n"
    "Choose how you will really play him, and ask what the others have: one evil soul among the good makes a short "
    "campaign. If things happened in his youth that only a good man, or only another, would have done, a quirk may "
    "follow now. Abort ends the run, with the character in memory.";
constexpr FormTemplate kStepFourteen{"StepFourteen", "Step 14", kStepFourteenControls, kStepFourteenHelp};

/// A row in which levels can be gained; the rows of combinations and the blank ones are none.
bool IsRealClass(const ClassRecord& row) {
  return row.ExperienceForLevel[2] > 0;
}

void GainQuirk(Game& game, int row, std::string_view name, std::string_view sentence) {
  game.sheet.QuirkCounts[static_cast<std::size_t>(row)] = 1;
  game.platform.ShowMessage(Format("You just gained the %s quirk", name));
  game.sheet.OccupationEvents = std::string(game.sheet.OccupationEvents.View()) + std::string(sentence);
}

void FillAlignmentBox(Game& game, Form& form, const std::vector<std::string_view>& names) {
  form.SetItems(kAlignments, {names.begin(), names.end()});
  const std::size_t posted = form.Items(kAlignments).size();
  if (posted >= names.size()) return;
  game.platform.ShowMessage(
      Format("There was a problem in function FillAlignListBox. %i items were sent and only %i were posted",
             names.size(), posted),
      "FillAlignmentBox");
}

/// Returns false, with the player told, while nothing is picked.
bool FinishAlignment(Game& game) {
  if (EqualsIgnoringCase(game.sheet.Alignment, kNotPicked)) {
    game.platform.ShowMessage("You must pick an Alignment");
    return false;
  }
  ApplyAlignmentQuirks(game);
  game.run.CurrentStep = 15;
  return true;
}

}  // namespace

std::vector<std::string_view> OpenAlignmentNames(const Game& game) {
  const std::string_view className = game.sheet.ClassName;
  std::array<int, kAlignmentCount> allowing{};
  int classes = 0;
  for (const ClassRecord& row : ClassTable()) {
    if (!IsRealClass(row) || !Contains(className, row.Name)) continue;
    ++classes;
    for (std::size_t i = 0; i < allowing.size(); ++i) allowing[i] += row.AlignmentFlags[i];
  }
  std::vector<std::string_view> names;
  for (std::size_t i = 0; i < allowing.size(); ++i) {
    const bool isDruidsOwn = i == kNeutral && Contains(className, "Druid");
    if (allowing[i] == classes || isDruidsOwn) names.push_back(kAlignmentNames[i]);
  }
  return names;
}

void ApplyAlignmentQuirks(Game& game) {
  const bool isGood = Contains(game.sheet.Alignment, "good");
  if (game.run.RiotVolunteer == 1 && !isGood) {
    GainQuirk(game, QuirkRow::Jerk, "Jerk", " You ended up becoming a jerk.");
  }
  if (game.run.VigilBuster == 1 && isGood) {
    GainQuirk(game, QuirkRow::NaggingConscience, "Nagging Conscience", " You ended up with a nagging conscience.");
  }
}

void RunStepFourteen(Game& game) {
  Form form(kStepFourteen);
  const std::vector<std::string_view> names = OpenAlignmentNames(game);
  form.onOpened = [&] { FillAlignmentBox(game, form, names); };
  form.onSelect = [&](int id) {
    const int selected = form.Selection(kAlignments);
    if (id == kAlignments && selected >= 0) game.sheet.Alignment = names[static_cast<std::size_t>(selected)];
  };
  form.onCommand = [&](int id) {
    if (id == kAbort || (id == kOk && FinishAlignment(game))) form.Close();
  };
  game.platform.RunForm(form);
}

}  // namespace veld
