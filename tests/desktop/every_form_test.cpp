// What has to hold in every page that the program has, as its window shows it.
#include "support/every_form.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QPushButton>
#include <QTextBlock>
#include <QTextEdit>
#include <algorithm>
#include <cmath>
#include <map>

#include "desktop/desktop_platform.h"
#include "desktop/form_window.h"
#include "desktop/main_window.h"
#include "desktop/system_colors.h"
#include "platform/control_kinds.h"

namespace veld {
namespace {

constexpr PageSize kSmallScreen{1024 - 12, 768 - 40};  // 1024 x 768 without what a window manager draws
constexpr int kCorner = 160;                           // Menu, Help, Undo and Redo

QAccessibleInterface& Told(QWidget& widget) {
  return *QAccessible::queryAccessibleInterface(&widget);
}

/// The name that is read out: of a combo its label, since the toolkit has what is chosen in it for its name.
QString SaidName(QWidget& widget) {
  QAccessibleInterface& told = Told(widget);
  if (told.role() != QAccessible::ComboBox) return told.text(QAccessible::Name);
  const auto labels = told.relations(QAccessible::Label);
  return labels.isEmpty() ? QString() : labels.last().first->text(QAccessible::Name);
}

QString WholeText(QWidget& widget) {
  QAccessibleTextInterface* const text = Told(widget).textInterface();
  return text ? text->text(0, text->characterCount()).simplified() : QString();
}

/// A window's widget for a control that has a number; null for one that is not to be seen.
QWidget* Find(const FormWindow& window, const Control& control) {
  if (control.Template.Id == 0 || !control.Visible) return nullptr;
  return window.findChild<QWidget*>(QString::number(control.Template.Id));
}

void ExpectNames(const FormWindow& window, const Form& form) {
  std::map<std::pair<QAccessible::Role, QString>, int> said;
  for (const Control& control : form.Controls()) {
    QWidget* const widget = Find(window, control);
    if (!widget) continue;
    const ControlKind kind = control.Template.Kind;
    if (kind == ControlKind::Text) {
      EXPECT_EQ(Told(*widget).role(), QAccessible::StaticText);
      EXPECT_EQ(WholeText(*widget), ToQt(control.Text).simplified());
    } else if (kind == ControlKind::Result) {
      EXPECT_EQ(Told(*widget).text(QAccessible::Name), ToQtLine(control.Text));
    } else if (CanBeUsed(kind)) {
      const QString name = SaidName(*widget);
      EXPECT_FALSE(name.trimmed().isEmpty()) << "control " << control.Template.Id;
      EXPECT_EQ(++said[std::pair(Told(*widget).role(), name)], 1) << qPrintable(name) << control.Template.Id;
    }
  }
  for (const auto* button : window.findChildren<QPushButton*>()) EXPECT_FALSE(button->text().isEmpty());
}

/// Tab goes through the page in the order in which it is written, and leaves out nothing that can be used.
void ExpectTabOrder(const FormWindow& window, const Form& form) {
  std::vector<const QWidget*> order;
  for (const QWidget* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain()) {
    order.push_back(next);
  }
  auto at = order.begin();
  for (const Control& control : form.Controls()) {
    const QWidget* const widget = CanBeUsed(control.Template.Kind) ? Find(window, control) : nullptr;
    if (!widget) continue;
    EXPECT_TRUE(widget->focusPolicy() & Qt::TabFocus) << control.Template.Id;
    const auto found = std::find(at, order.end(), widget);
    EXPECT_NE(found, order.end()) << control.Template.Id << " comes too late";
    if (found != order.end()) at = found;
  }
}

void ExpectRoom(const Form& form, PageMetrics metrics) {
  metrics.CornerWidth = kCorner;
  const PageSize size = NaturalPageSize(form, metrics, kSmallScreen);
  EXPECT_TRUE(size.Width <= kSmallScreen.Width && size.Height <= kSmallScreen.Height)
      << size.Width << ' ' << size.Height;
}

TEST(EveryForm, IsReadOutIsWalkedThroughFitsASmallScreenAndIsToldFromOthersByItsTitle) {
  DesktopPlatform platform({.UsesNativeFileDialogs = false});
  const PaperStyle style = MakePaperStyle(QApplication::font());
  std::map<std::string, std::set<std::string_view>> titles;
  const auto missing = testing::ShowEveryForm([&](Form& form, bool isUsed) {
    SCOPED_TRACE(std::string(form.Name()) + (isUsed ? ", used" : ""));
    FormWindow window(form, style, nullptr);
    window.ShowAt({});
    QApplication::processEvents();  // names follow what has changed
    ExpectNames(window, form);
    ExpectTabOrder(window, form);
    ExpectRoom(form, style.Metrics);
    const bool isAsking = form.Name() == "Message" || form.Name() == "Question" || form.Name() == "GetDice";
    const QString described = Told(window).text(QAccessible::Description);
    EXPECT_TRUE(!isAsking || !described.isEmpty()) << "what is asked is read out with the title";
    if (form.Name() != "Message" && form.Name() != "Question") titles[form.Title()].insert(form.Name());
  });
  EXPECT_TRUE(missing.empty()) << *missing.begin();
  titles.erase("Discretionary Honor Award");  // of two kinds, which its first line names
  for (const auto& [title, forms] : titles) EXPECT_EQ(forms.size(), 1U) << title << ": " << *forms.rbegin();
}

TEST(EveryForm, TheMainWindowsPageIsADocument) {
  DesktopPlatform platform({.UsesNativeFileDialogs = false});
  const PaperStyle style = MakePaperStyle(QApplication::font());
  MainPage window;
  window.ShowPage(style, {{.What = PageLine::Kind::Title, .Value = "Ada of the Marsh"},
                          {.What = PageLine::Kind::Fact, .Label = "Hit points", .Value = "32"}});
  QWidget& page = *window.focusProxy();
  EXPECT_EQ(Told(page).role(), QAccessible::Document);
  EXPECT_EQ(WholeText(page), "Ada of the Marsh Hit points 32");
  QAccessibleTextInterface& text = *Told(page).textInterface();
  int from = 0;
  int to = 0;
  EXPECT_EQ(text.textAtOffset(18, QAccessible::WordBoundary, &from, &to), "Hit");
  text.setSelection(0, from, to);
  EXPECT_EQ(static_cast<QTextEdit&>(page).textCursor().selectedText(), "Hit");
}

// --- Colours -----------------------------------------------------------------------------------------------------

/// How bright a colour is to the eye, 0 to 1.
double Luminance(QRgb color) {
  const auto part = [](int value) {
    const double v = value / 255.0;
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(qRed(color)) + 0.7152 * part(qGreen(color)) + 0.0722 * part(qBlue(color));
}

double Contrast(QRgb a, QRgb b) {
  const auto [dark, light] = std::minmax(Luminance(a), Luminance(b));
  return (light + 0.05) / (dark + 0.05);
}

TEST(Colors, EveryWritingStandsOutFromWhatItIsWrittenOn) {
  for (const PaperColors& c : {kLightPaper, kDarkPaper}) {
    for (const QRgb under : {c.Paper, c.Rule, c.Button, c.Wash, c.Pressed, c.Desk, c.OtherRow, c.Done}) {
      EXPECT_GE(Contrast(c.Text, under), 4.5) << std::hex << under;
    }
    for (const QRgb under : {c.Paper, c.Rule, c.Button, c.Wash})
      EXPECT_GE(Contrast(c.Ink, under), 4.5) << std::hex << under;
    EXPECT_GE(Contrast(c.Hint, c.Paper), 4.5);
    EXPECT_GE(Contrast(c.ChosenText, c.Chosen), 4.5);
    for (const QRgb under : {c.Paper, c.Button, c.Wash, c.Desk})
      EXPECT_GE(Contrast(c.Faint, under), 3) << std::hex << under;
    EXPECT_TRUE(Contrast(c.Edge, c.Paper) >= 3 && Contrast(c.Slider, c.Groove) >= 3 && Contrast(c.Ink, c.Button) >= 3);
  }
}

TEST(Colors, FollowTheSystemWhileTheProgramRuns) {
  DesktopPlatform platform({.UsesNativeFileDialogs = false});
  const PaperStyle style = MakePaperStyle(QApplication::font());
  MainPage window;
  window.ShowPage(style, {{.What = PageLine::Kind::Title, .Value = "Ada of the Marsh"}});
  window.show();
  auto& page = static_cast<QTextEdit&>(*window.focusProxy());
  for (const auto& [system, colors] :
       {std::pair(QColor(40, 40, 40), kDarkPaper), {QColor(240, 240, 240), kLightPaper}}) {
    testing::ChangeSystemTo(system);
    QApplication::processEvents();
    EXPECT_EQ(window.grab().toImage().pixel(5, 200), colors.Paper);
    EXPECT_EQ(page.document()->firstBlock().begin().fragment().charFormat().foreground().color().rgba(), colors.Text);
    EXPECT_EQ(window.palette().color(QPalette::Window).rgba(), colors.Desk);
  }
}

}  // namespace
}  // namespace veld
