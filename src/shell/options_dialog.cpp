#include "shell/options_dialog.h"

#include "store/side_files.h"

namespace veld {

namespace {

constexpr int kApply = 1;
constexpr int kClose = 2;

struct OptionBox {
  int Id;
  std::size_t Switch;
  std::string_view Label;
};

// In the order of the dialog.
constexpr OptionBox kBoxes[] = {
    {3003, kHexwrightsAlmanac, "HXA - Hexwright's Almanac to Erdra Domination"},
    {3006, kWarmongersAlmanac, "WMA - Warmonger's Almanac to Slaughtering Foes"},
    {3007, kSwindlersAlmanac, "SWA - Swindler's Almanac"},
    {3012, kDevoteesAlmanac, "DVA - Devotee's Almanac to "},
    {3015, kBeastGrid, "BG - Beast Grid"},
    {3019, kPostedFixes, "Posted Fixes"},
    {3023, kTavernGazette12, "TG12 - Tavern Gazette #12"},
    {3028, kSmallFortModule, "SFM - Small Fort Module"},
    {3031, kTitanTrilogyModule, "TTM - Titan Trilogy Module"},
    {3036, kRollYourOwnDice, "Roll Your Own Dice"},
    {3039, kBronzeMetropolis, "Bronze Metropolis"},
    {3045, kSocialClassRestrictions, "Enforce Social Class Restrictions"},
};

constexpr auto kOptionsControls = [] {
  std::array<ControlTemplate, std::size(kBoxes) + 3> controls{};
  controls[0] = HeadingAt(0, 0, "I want to use the following Rules");
  for (std::size_t i = 0; i < std::size(kBoxes); ++i) {
    controls[i + 1] = CheckAt(static_cast<int>(i) + 1, 0, kBoxes[i].Id, kBoxes[i].Label);
  }
  const int last = static_cast<int>(std::size(kBoxes)) + 2;
  controls[std::size(kBoxes) + 1] = ButtonAt(last, 0, kApply, "&Apply", ButtonRole::Default);
  controls[std::size(kBoxes) + 2] = ButtonAt(last, 0, kClose, "Close", ButtonRole::Cancel);
  return controls;
}();
constexpr FormTemplate kOptions{"Options", "VELD Options", kOptionsControls};

}  // namespace

void RunOptions(Game& game) {
  Form form(kOptions);
  std::array<int, kRuleSwitches> working{};
  form.onOpened = [&] {
    LoadOptions(game);  // what is on disk: "Turn This Off" may have changed a switch for this run only
    working = game.RuleSwitches;
    for (const OptionBox& box : kBoxes) form.SetChecked(box.Id, working[box.Switch] > 0);
  };
  form.onCommand = [&](int id) {
    if (id == kClose) return form.Close();
    if (id != kApply) return;
    for (const OptionBox& box : kBoxes) working[box.Switch] = form.IsChecked(box.Id) ? 1 : 0;
    for (std::size_t i = 0; i < kRuleSwitches; ++i) game.RuleSwitches[i] = working[i] == 1 ? 1 : 0;
    game.RuleSwitches[kCoreRules] = 1;
    SaveOptions(game);
    form.Close();
  };
  game.platform.RunForm(form);
}

}  // namespace veld
