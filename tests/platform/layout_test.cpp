#include "platform/layout.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/control_names.h"
#include "platform/mnemonics.h"
#include "platform/wrap_text.h"
#include "support/good_page.h"

namespace veld {
namespace {

using testing::ExpectGoodPage;
using Lines = std::vector<std::string>;

/// A desktop's metrics with letters of 7 pixels.
PageMetrics Desktop() {
  PageMetrics m;
  m.TextWidth = [](std::string_view text, TextFace face) {
    return static_cast<int>(text.size()) * (face == TextFace::Title ? 10 : 7);
  };
  m.Pitch = 20;
  m.Baseline = 16;
  m.Character = 7;
  m.MarginLeft = m.MarginRight = 24;
  m.MarginTop = 11;
  m.MarginBottom = 20;
  m.ColumnGap = 16;
  m.ControlGap = 10;
  m.ButtonPadding = 14;
  m.ButtonLeast = 80;
  m.EditPadding = 12;
  m.ComboPadding = 32;
  m.ListPadding = 24;
  m.MarkWidth = 26;
  m.MarkRise = 12;
  m.MarkHeight = 15;
  m.FrameAbove = 1;
  m.Roomy = {.BoxLines = 2, .TitleLines = 2, .BoxRise = 17, .BoxHeight = 25};
  m.Dense = {.BoxLines = 1, .TitleLines = 2, .BoxRise = 13, .BoxHeight = 17};
  return m;
}

/// A terminal's: one cell is one unit.
PageMetrics Terminal() {
  PageMetrics m;
  m.TextWidth = [](std::string_view text, TextFace) { return static_cast<int>(text.size()); };
  m.ColumnGap = 2;
  m.ButtonPadding = 2;
  m.MarkWidth = 4;
  m.ListPadding = 2;
  m.ComboPadding = 2;
  return m;
}

enum : int { kList = 10, kNotes, kHelp, kName, kAge, kGender, kWizard, kBar, kResult, kOk = 1, kCancel = 2, kMore = 3 };

constexpr ControlTemplate kControls[] = {
    TitleAt(0, 0, "A page with everything on it"),
    HeadingAt(1, 0, "Typed"),
    LabelAt(2, 0, "&Name"),
    EditAt(2, 1, kName, 20),
    LabelAt(2, 2, "Races"),
    LabelAt(3, 0, "Age"),
    NumberAt(3, 1, kAge),
    ListAt(3, 2, kList, 20, 8, 4),
    LabelAt(4, 0, "Gender"),
    ComboAt(4, 1, kGender, 12),
    CheckAt(5, 0, kWizard, "A wizard"),
    ResultAt(5, 1, kResult, 10, "17"),
    TextAt(6, 0, kHelp, "Some words of help that are so long that they do not stand on one line", 30, 0, 1, 2),
    {.Kind = ControlKind::MultiLine, .Id = kNotes, .Row = 7, .Column = 0, .Width = 20, .Lines = 3},
    {.Kind = ControlKind::Progress, .Id = kBar, .Row = 8, .Column = 0, .Width = 10},
    ButtonAt(10, 0, kOk, "OK", ButtonRole::Default),
    ButtonAt(10, 0, kCancel, "Cancel", ButtonRole::Cancel),
    ButtonAt(10, 0, kMore, "And a third one"),
};
constexpr FormTemplate kTemplate{"Everything", "Everything", kControls, ""};

const PlacedControl& Find(const PageLayout& page, const Form& form, int id) {
  return *std::ranges::find_if(page.Controls,
                               [&](const PlacedControl& p) { return form.Controls()[p.Control].Template.Id == id; });
}

PageLayout NaturalLayout(const Form& form, const PageMetrics& m, PageSize limit = {2000, 2000}) {
  return LayOutPage(form, m, NaturalPageSize(form, m, limit));
}

TEST(Layout, PlacesEveryControlOnTheRulesWithoutOverlap) {
  Form form(kTemplate);
  for (const int corner : {0, 70}) {
    PageMetrics m = Desktop();
    m.CornerWidth = corner;
    const PageSize natural = NaturalPageSize(form, m, {2000, 2000});
    EXPECT_EQ(NaturalLayout(form, m).Page, natural);
    for (const PageSize size : {natural, PageSize{natural.Width + 300, natural.Height + 215},
                                PageSize{natural.Width, natural.Height - 100}, PageSize{natural.Width - 60, 300}}) {
      SCOPED_TRACE(std::to_string(size.Width) + "x" + std::to_string(size.Height));
      ExpectGoodPage(form, LayOutPage(form, m, size), m);
    }
  }
  PageMetrics terminal = Terminal();
  ExpectGoodPage(form, NaturalLayout(form, terminal), terminal);
  terminal.CornerWidth = 8;
  ExpectGoodPage(form, LayOutPage(form, terminal, {80, 24}), terminal);
}

TEST(Layout, PutsControlsOfOneCellSideBySideAndSpansCells) {
  Form form(kTemplate);
  const PageMetrics m = Desktop();
  const PageLayout page = NaturalLayout(form, m);
  const PlacedControl& ok = Find(page, form, kOk);
  const PlacedControl& cancel = Find(page, form, kCancel);
  EXPECT_EQ(ok.Baseline, cancel.Baseline);
  EXPECT_EQ(cancel.Area.X, ok.Area.Right() + m.ControlGap);
  // The row of buttons lies over the second column without pushing it to the right.
  EXPECT_GT(Find(page, form, kMore).Area.Right(), Find(page, form, kName).Area.X);
  // The list begins with the row of Age and has the rows below it.
  const PlacedControl& list = Find(page, form, kList);
  EXPECT_EQ(list.Baseline, Find(page, form, kAge).Baseline);
  EXPECT_GE(list.Lines, 8);
  EXPECT_GT(list.Area.Bottom(), Find(page, form, kHelp).Baseline);
  EXPECT_EQ(list.Area.Height, list.Lines * m.Pitch + m.FrameAbove);
}

TEST(Layout, IsRoomyWhenThatFitsAndDenseElse) {
  Form form(kTemplate);
  const PageMetrics m = Desktop();
  const PageLayout roomy = NaturalLayout(form, m);
  EXPECT_TRUE(roomy.IsRoomy);
  EXPECT_EQ(Find(roomy, form, kAge).Baseline - Find(roomy, form, kName).Baseline, 2 * m.Pitch);
  const PageLayout dense = LayOutPage(form, m, {roomy.Page.Width, roomy.Page.Height - m.Pitch});
  EXPECT_FALSE(dense.IsRoomy);
  EXPECT_EQ(Find(dense, form, kAge).Baseline - Find(dense, form, kName).Baseline, m.Pitch);
  EXPECT_TRUE(LayOutPage(form, m, roomy.Page).IsRoomy) << "growing back";
}

TEST(Layout, GivesWhatIsLeftOverToListsAndTexts) {
  Form form(kTemplate);
  const PageMetrics m = Desktop();
  const PageLayout natural = NaturalLayout(form, m);
  const PageSize size{natural.Page.Width + 200, natural.Page.Height + 5 * m.Pitch};
  const PageLayout page = LayOutPage(form, m, size);
  EXPECT_EQ(page.Page, size);
  EXPECT_GT(Find(page, form, kList).Area.Width, Find(natural, form, kList).Area.Width);
  EXPECT_EQ(Find(page, form, kName).Area.Width, Find(natural, form, kName).Area.Width);
  const auto lines = [&](const PageLayout& p) { return Find(p, form, kList).Lines + Find(p, form, kNotes).Lines; };
  EXPECT_EQ(lines(page), lines(natural) + 5);
}

TEST(Layout, TakesFromListsAndTextsWhatIsMissing) {
  Form form(kTemplate);
  form.SetText(kHelp, std::string(4000, 'x') + " end");
  const PageMetrics m = Desktop();
  const PageSize limit{500, 600};
  const PageSize natural = NaturalPageSize(form, m, limit);
  EXPECT_LE(natural.Width, limit.Width);
  EXPECT_LE(natural.Height, limit.Height);
  const PageLayout page = LayOutPage(form, m, natural);
  ExpectGoodPage(form, page, m);
  const PlacedControl& help = Find(page, form, kHelp);
  EXPECT_TRUE(help.Scrolls);
  EXPECT_GE(help.Lines, 3);
  EXPECT_GT(help.Wrapped.size(), static_cast<std::size_t>(help.Lines));
  EXPECT_TRUE(help.Wrapped.back().ends_with(" end"));
  // A page that can not be made small enough keeps its size.
  EXPECT_GT(LayOutPage(form, m, {100, 100}).Page.Height, 100);
}

TEST(Layout, TextOfNoWantedHeightTakesTheLinesThatItNeeds) {
  constexpr ControlTemplate kMessage[] = {TextAt(0, 0, 10, "", 20, 0), ButtonAt(1, 0, 1, "OK", ButtonRole::Both)};
  Form form(FormTemplate{"Message", "VELD", kMessage, ""});
  const PageMetrics m = Desktop();
  form.SetText(10, "short");
  const PageLayout page = NaturalLayout(form, m);
  form.SetText(10, "one two three four five six\nseven");
  const PageLayout longer = NaturalLayout(form, m);
  EXPECT_EQ(Find(longer, form, 10).Wrapped, (std::vector<std::string>{"one two three four", "five six", "seven"}));
  EXPECT_FALSE(Find(longer, form, 10).Scrolls);
  EXPECT_EQ(longer.Page.Height, page.Page.Height + 2 * m.Pitch);
}

TEST(Layout, ARowThatIsTooLongGoesOnInTheNextLineAndPartsNoLabelFromItsField) {
  constexpr ControlTemplate kLongRows[] = {LabelAt(0, 0, "A caption of the whole page that is far too long for it", 2),
                                           LabelAt(1, 0, "Name"),
                                           EditAt(1, 0, 20, 20),
                                           LabelAt(1, 0, "Age"),
                                           NumberAt(1, 0, 21),
                                           LabelAt(1, 0, "years"),
                                           ListAt(1, 1, 22, 30, 3),
                                           ButtonAt(2, 0, 1, "One button"),
                                           ButtonAt(2, 0, 2, "Another"),
                                           ButtonAt(2, 0, 3, "And the third"),
                                           ResultAt(3, 0, 23, 4, "A result that is wider than the page can be")};
  const Form form(FormTemplate{"Rows", "Rows", kLongRows, ""});
  PageMetrics m = Terminal();
  m.WrapsResults = true;
  const auto placed = [&](const PageLayout& page, std::size_t control) { return page.Controls[control]; };
  const PageLayout wide = NaturalLayout(form, m);
  EXPECT_EQ(placed(wide, 9).Baseline, placed(wide, 7).Baseline) << "nothing is broken that fits";
  const PageLayout page = NaturalLayout(form, m, {40, 20});
  ExpectGoodPage(form, page, m);
  EXPECT_EQ(page.Page, (PageSize{40, 9}));
  EXPECT_EQ(placed(page, 0).Wrapped.size(), 2U);
  EXPECT_EQ(placed(page, 2).Baseline, placed(page, 1).Baseline);
  EXPECT_EQ(placed(page, 3).Area.X, placed(page, 1).Area.X) << "Age begins a line";
  EXPECT_EQ(placed(page, 5).Baseline, placed(page, 3).Baseline) << "years stands beside its number";
  EXPECT_EQ(placed(page, 8).Baseline, placed(page, 7).Baseline);
  EXPECT_EQ(placed(page, 9).Baseline, placed(page, 7).Baseline + 1);
  EXPECT_EQ(placed(page, 10).Wrapped.size(), 2U);
  for (int width = 79; width > 36; --width) ExpectGoodPage(form, NaturalLayout(form, m, {width, 30}), m);
}

TEST(Layout, HiddenControlsTakeNoRoom) {
  Form form(kTemplate);
  const PageMetrics m = Desktop();
  const PageLayout all = NaturalLayout(form, m);
  for (const int id : {kNotes, kBar, kList}) form.SetVisible(id, false);
  const PageLayout page = NaturalLayout(form, m);
  EXPECT_EQ(page.Controls.size(), all.Controls.size() - 3);
  EXPECT_LT(page.Page.Height, all.Page.Height - 4 * m.Pitch);
  EXPECT_LT(page.Page.Width, all.Page.Width);
  ExpectGoodPage(form, page, m);
  for (const Control& control : form.Controls()) form.SetVisible(control.Template.Id, false);
  NaturalLayout(form, m);  // labels only
}

TEST(Layout, ARowNumberLeftOutIsABlankLine) {
  constexpr ControlTemplate kRows[] = {LabelAt(0, 0, "a"), ResultAt(0, 1, 1, 5), ResultAt(2, 1, 2, 5),
                                       ResultAt(90, 1, 3, 5)};
  Form form(FormTemplate{"Rows", "Rows", kRows, ""});
  const PageMetrics m = Desktop();
  const PageLayout page = NaturalLayout(form, m);
  EXPECT_EQ(Find(page, form, 2).Baseline - Find(page, form, 1).Baseline, 2 * m.Pitch);
  EXPECT_EQ(Find(page, form, 3).Baseline - Find(page, form, 2).Baseline, 2 * m.Pitch);
  const PageLayout dense = LayOutPage(form, m, {page.Page.Width, page.Page.Height - 1});
  EXPECT_EQ(Find(dense, form, 2).Baseline - Find(dense, form, 1).Baseline, m.Pitch);
}

TEST(Layout, LabelsNameTheControlsTheyStandBy) {
  Form form(kTemplate);
  const auto placeOf = [&](int id) {
    const auto& controls = form.Controls();
    const auto found = std::ranges::find_if(controls, [id](const Control& c) { return c.Template.Id == id; });
    return static_cast<std::size_t>(found - controls.begin());
  };
  EXPECT_EQ(ControlName(form, placeOf(kAge)), "Age");
  EXPECT_EQ(ControlName(form, placeOf(kList)), "Races") << "the label above it";
  EXPECT_EQ(NamedControl(form, placeOf(kName) - 1), placeOf(kName));
  EXPECT_EQ(NamedControl(form, placeOf(kName) + 1), placeOf(kList));

  constexpr ControlTemplate kStep[] = {ButtonAt(0, 0, 1, "Starting Age"), ResultAt(0, 1, 2, 9), LabelAt(1, 0, "Points"),
                                       ResultAt(1, 1, 3, 9), ButtonAt(2, 0, 4, "OK")};
  const Form step(FormTemplate{"Step", "Step", kStep, ""});
  EXPECT_EQ(ControlName(step, 1), "Starting Age");
  EXPECT_EQ(ControlName(step, 3), "Points");
  EXPECT_EQ(NamedControl(step, 2), 5u) << "a label of a result leads nowhere";
}

TEST(Layout, AResultMayStandBetweenALabelAndItsField) {
  constexpr ControlTemplate kRow[] = {
      LabelAt(0, 0, "&Pick Pockets"), ResultAt(0, 1, 10, 6), NumberAt(0, 2, 11),
      LabelAt(1, 0, "&Score"),        ResultAt(1, 1, 12, 6), ButtonAt(1, 2, 13, "Roll"),
  };
  const Form form(FormTemplate{"Row", "Row", kRow, ""});
  EXPECT_EQ(NamedControl(form, 0), 2u);
  EXPECT_EQ(ControlName(form, 2), "Pick Pockets");
  EXPECT_EQ(NamedControl(form, 3), 6u) << "a button has a name of its own";
  const auto marked = MarkMnemonics(form, "");
  EXPECT_EQ(marked[0], "&Pick Pockets");
  EXPECT_EQ(marked[3], "Score") << "no letter is marked that reaches nothing";
}

TEST(Layout, RadiosOfANumberedTableAreNamedByTheirHeadingsAndRow) {
  const auto radio = [](int row, int column, int id) {
    return ControlTemplate{.Kind = ControlKind::Radio, .Id = id, .Row = row, .Column = column, .Group = row};
  };
  const ControlTemplate rows[] = {HeadingAt(0, 1, "Honor", 2), HeadingAt(1, 1, "-1"), HeadingAt(1, 2, "0"),
                                  CheckAt(2, 0, 1, "&1"),      radio(2, 1, 2),        radio(2, 2, 3),
                                  CheckAt(3, 0, 4, "&2"),      radio(3, 1, 5),        radio(3, 2, 6)};
  Form form(FormTemplate{"Table", "Table", rows, ""});
  EXPECT_EQ(ControlNames(form)[4], "Honor -1, row 1");
  EXPECT_EQ(ControlNames(form)[8], "Honor 0, row 2");
  form.Focus(6);
  EXPECT_EQ(form.FirstFocus(), 8U) << "whoever shows the form after that begins there";
}

TEST(Search, ChoosesTheFirstFoundAndLeadsToItsList) {
  enum : int { kSearch = 20, kGoods = 21 };
  static constexpr ControlTemplate kSearchControls[] = {ListAt(0, 0, kGoods, 20, 4),
                                                        SearchAt(1, 0, kSearch, kGoods, 9)};
  static constexpr FormTemplate kSearchForm{"Search", "Search", kSearchControls, ""};
  Form form(kSearchForm);
  std::vector<std::string> told;
  form.onEdit = [&](int) { form.SetItems(kGoods, form.Text(kSearch) == "x" ? Lines{} : Lines{"Rope", "Tent"}); };
  form.onSelect = [&](int id) { told.push_back(std::to_string(id) + form.SelectedText(kGoods)); };
  for (const char* text : {"e", "x", "t", ""}) form.Type(kSearch, text);
  EXPECT_EQ(told, (Lines{"21Rope", "21", "21Rope", "21"})) << "a search that is cleared chooses nothing";
  EXPECT_EQ(ControlInNextRow(form, 1, 1), 0U);
  EXPECT_EQ(ControlInNextRow(form, 1, -1), 0U);
}

TEST(Mnemonics, EveryControlHasALetterOfItsOwn) {
  Form form(kTemplate);
  const std::vector<std::string> texts = MarkMnemonics(form, "m");
  std::string letters = "m";
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const std::size_t mark = texts[i].find('&');
    EXPECT_EQ(WithoutMnemonic(texts[i]), WithoutMnemonic(form.Controls()[i].Text));
    const ControlKind kind = form.Controls()[i].Template.Kind;
    EXPECT_TRUE(mark != std::string::npos || (kind != ControlKind::Button && kind != ControlKind::Check)) << texts[i];
    if (mark == std::string::npos) continue;
    const char letter = static_cast<char>(std::tolower(texts[i][mark + 1]));
    EXPECT_EQ(letters.find(letter), std::string::npos) << texts[i];
    letters += letter;
  }
  EXPECT_EQ(texts[2], "&Name") << "what the form gives stays";
  EXPECT_EQ(WithoutMnemonic("Bow && &Arrow"), "Bow & Arrow");
}

TEST(WrapText, BreaksAtBlanksAndInsideWordsThatAreTooLong) {
  const auto wrap = [](std::string_view text, int width) {
    return WrapText(text, width, [](std::string_view line) { return static_cast<int>(line.size()); });
  };
  EXPECT_EQ(wrap("ab cd ef", 5), (Lines{"ab cd", "ef"}));
  EXPECT_EQ(wrap("a\r\n\nb\n", 5), (Lines{"a", "", "b", ""}));
  EXPECT_EQ(wrap("abcdefg hi", 3), (Lines{"abc", "def", "g", "hi"}));
  EXPECT_EQ(wrap("     ", 3), (Lines{"   "}));
  EXPECT_EQ(wrap("ééé", 3), (Lines{"é", "é", "é"})) << "never inside a character";
  EXPECT_EQ(wrap("ab", 0), (Lines{"a", "b"}));
}

}  // namespace
}  // namespace veld
