#include "steps/quirks/free_quirk.h"

#include "platform/form.h"
#include "platform/platform.h"
#include "rules/quirk_table.h"
#include "steps/quirks/held_quirks.h"
#include "steps/quirks/quirk_work.h"

namespace veld {

namespace {

constexpr int kMinorMental = 4006;
constexpr int kMajorMental = 4007;
constexpr int kMinorPersonality = 4008;
constexpr int kMajorPersonality = 4009;

// There is no way out but a table: the close box is the second one.
constexpr ControlTemplate kMinorQuirkControls[] = {
    TitleAt(0, 0, "You just earned a free minor quirk!"),
    ButtonAt(1, 0, kMinorMental, "6&F: Quirks, Minor (Mental)", ButtonRole::Default),
    ButtonAt(2, 0, kMinorPersonality, "6&H: Quirks, Minor (Personality)", ButtonRole::Cancel),
};
constexpr std::string_view kFreeMinorQuirkHelp =
    "His past has left him a minor quirk. It brings no BP; you only choose the table. Mental quirks trouble his mind "
    "and can spoil a fight; personality is how he treats others. The result is rolled at once, and refusing it costs "
    "1 BP.";
constexpr FormTemplate kFreeMinorQuirk{"MinorQuirk", "Minor Quirk", kMinorQuirkControls, kFreeMinorQuirkHelp};

constexpr ControlTemplate kMajorQuirkControls[] = {
    TitleAt(0, 0, "You just earned a free major quirk!"),
    ButtonAt(1, 0, kMajorMental, "6&G: Quirks, Major (Mental)", ButtonRole::Default),
    ButtonAt(2, 0, kMajorPersonality, "6&I: Quirks, Major (Personality)", ButtonRole::Cancel),
};
constexpr std::string_view kFreeMajorQuirkHelp =
    "His past has left him a major quirk. It brings no BP; you only choose the table. A major mental quirk can take "
    "him out of a fight, one of personality out of the party's good graces. The result is rolled at once, and "
    "refusing it costs 1 BP.";
constexpr FormTemplate kFreeMajorQuirk{"MajorQuirk", "Major Quirk", kMajorQuirkControls, kFreeMajorQuirkHelp};

std::string_view TableOfButton(int id) {
  switch (id) {
    case kMinorMental:
      return kTable6F;
    case kMinorPersonality:
      return kTable6H;
    case kMajorMental:
      return kTable6G;
    default:
      return kTable6I;
  }
}

void RunFreeQuirk(Game& game, const FormTemplate& formTemplate) {
  Form form(formTemplate);
  form.onCommand = [&](int id) {
    TakeFreeQuirk(game, TableOfButton(id));
    form.Close();
  };
  game.platform.RunForm(form);
}

}  // namespace

bool TakeFreeQuirk(Game& game, std::string_view table) {
  const int row = RollQuirkRow(game, table);
  if (row == 0) return false;
  ++HeldCount(game, row);
  return true;
}

void RunMinorQuirk(Game& game) {
  RunFreeQuirk(game, kFreeMinorQuirk);
}
void RunMajorQuirk(Game& game) {
  RunFreeQuirk(game, kFreeMajorQuirk);
}

}  // namespace veld
