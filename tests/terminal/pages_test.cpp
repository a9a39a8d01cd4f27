#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>
#include <set>

#include "platform/control_kinds.h"
#include "platform/control_names.h"
#include "pty_program.h"
#include "show_form.h"
#include "support/every_form.h"
#include "support/good_page.h"
#include "terminal/cells.h"
#include "terminal/terminal_page.h"

namespace veld {
namespace {

using namespace testing;

constexpr int kRows = 24;
constexpr int kColumns = 80;

/// What may be cut is told whole by the line of what the keys go to; everything else stands on the page.
void ExpectNothingIsCut(const Form& form, const PlacedControl& placed) {
  const Control& control = form.Controls()[placed.Control];
  const ControlKind kind = control.Template.Kind;
  const std::string text = ShownText(control);
  const int width = placed.Area.Width;
  EXPECT_TRUE(kind != ControlKind::Button || width >= CellsOf(text) + 4) << text;
  EXPECT_TRUE(!IsWriting(kind) || !placed.Wrapped.empty() || width >= CellsOf(text)) << text;
  for (const std::string& line : placed.Wrapped) EXPECT_GE(width, CellsOf(line)) << line;
  EXPECT_TRUE(placed.Scrolls || placed.Lines >= static_cast<int>(placed.Wrapped.size())) << text;
  if (!CanBeUsed(kind)) return;
  const std::string told = FocusLine(form, placed.Control, 0);
  const std::string name = ControlNames(form)[placed.Control];
  EXPECT_TRUE(!name.empty() && told.starts_with(name.substr(0, name.size() - 1))) << told;
  EXPECT_TRUE(IsChosenFrom(kind) || kind == ControlKind::MultiLine || told.find(text) != std::string::npos) << told;
  if (IsChosenFrom(kind) && control.Selection >= 0) {
    EXPECT_TRUE(told.ends_with(": " + control.Items[static_cast<std::size_t>(control.Selection)])) << told;
  }
}

/// Presses Tab until all that can be used has been told by the line above that of the keys, with the cursor within the
/// page.
void ExpectTabReachesAll(Form& form) {
  std::set<std::string> untold;
  for (std::size_t i = 0; i < form.Controls().size(); ++i) {
    const Control& control = form.Controls()[i];
    if (control.Visible && control.Enabled && CanBeUsed(control.Template.Kind))
      untold.insert(FocusLine(form, i, 0).substr(0, 40));
  }
  PtyProgram program([&] { return ShowAtTerminal(form); });
  for (std::size_t tabs = form.Controls().size() + 1; tabs > 0 && !untold.empty(); --tabs) {
    std::erase_if(untold, [&](const std::string& text) { return program.Shows("\n " + text); });
    EXPECT_LT(program.screen.CursorRow(), kRows - 2) << program.Shows();
    EXPECT_NE(program.Title(), "") << program.Shows();
    program.Press(kTabKey);
  }
  EXPECT_TRUE(untold.empty()) << *untold.begin() << "\n" << program.Shows();
}

TEST(TerminalPagesTest, EveryPageStandsInEightyColumnsWithNothingCutAndEachControlIsReachedAndNamed) {
  std::setlocale(LC_CTYPE, "C.UTF-8");
  const auto missing = ShowEveryForm([&](Form& form, bool isUsed) {
    SCOPED_TRACE(std::string(form.Name()) + (isUsed ? ", used" : ""));
    const PageMetrics metrics = TerminalMetrics(form);
    const PageSize room = RoomForPage(kRows, kColumns, form.Name() == "StepThree" ? 1 : 0);
    const PageLayout page = LayOutPage(form, metrics, NaturalPageSize(form, metrics, room));
    ExpectGoodPage(form, page, metrics);
    EXPECT_LE(page.Page.Width, room.Width);
    for (const PlacedControl& placed : page.Controls) {
      EXPECT_LE(placed.Area.Height, room.Height);
      ExpectNothingIsCut(form, placed);
    }
    for (const char* whole : {"StepThree", "StepSix", "StepEight", "StepNine", "StepTen", "Skills", "Equip",
                              "EditEquip", "QuirksandFlaws", "CherryPick"}) {
      EXPECT_TRUE(form.Name() != whole || page.Page.Height <= room.Height) << "it need not scroll";
    }
    if (!isUsed) ExpectTabReachesAll(form);
  });
  EXPECT_TRUE(missing.empty()) << *missing.begin();
}

}  // namespace
}  // namespace veld
