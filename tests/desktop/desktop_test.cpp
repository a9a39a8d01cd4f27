// Drives the real windows through the window system's layer, as a player would, while the program's procedures wait for
// them to close. Runs offscreen, or on a display that QT_QPA_PLATFORM names.
#include "desktop/desktop_platform.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QThread>
#include <QTimer>
#include <QWindow>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <fstream>
#include <stdexcept>

#include "platform/main_window.h"
#include "support/counted_acts.h"

namespace veld {
namespace {

using Action = std::function<void()>;
using Condition = std::function<bool()>;

/// What a player does, step by step: each step waits for its window. A step is set up before the one before it acts, by
/// a timer of its own, since a timer that is still in its slot does not fire again inside a nested loop.
class Player {
 public:
  void When(const std::string& what, Condition isReady, Action act) {
    steps_.push_back({what, std::move(isReady), std::move(act)});
  }
  void Start() {
    waited_.start();
    Later();
  }
  ~Player() {
    EXPECT_TRUE(steps_.empty()) << "the program ended before step '" << (steps_.empty() ? "" : steps_.front().What)
                                << "'";
  }

 private:
  struct Step {
    std::string What;
    Condition IsReady;
    Action Act;
  };

  void Later() {
    QTimer::singleShot(2, &timers_, [this] { Tick(); });
  }

  void Tick() {
    if (steps_.empty()) return;
    // A click turns the event loop itself: the step is over when it has returned or stands in a nested loop.
    if (isActing_ && QThread::currentThread()->loopLevel() <= level_) return Later();
    if (!steps_.front().IsReady()) {
      if (waited_.elapsed() > 10000) GiveUp();
      return Later();
    }
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    waited_.restart();
    Later();
    const bool wasActing = std::exchange(isActing_, true);
    const int level = std::exchange(level_, QThread::currentThread()->loopLevel());
    step.Act();
    isActing_ = wasActing;
    level_ = level;
  }

  /// Windows that wait for a player who does not come can not be left in any other way.
  void GiveUp() {
    std::printf("no window for step '%s'; visible are:\n", steps_.front().What.c_str());
    for (const QWidget* window : QApplication::topLevelWidgets()) {
      if (window->isVisible())
        std::printf("  %s '%s'\n", window->metaObject()->className(), qPrintable(window->windowTitle()));
    }
    std::fflush(stdout);
    std::_Exit(2);
  }

  std::deque<Step> steps_;
  QElapsedTimer waited_;
  QObject timers_;
  bool isActing_ = false;
  int level_ = 0;
};

QWidget* Top() {
  return QApplication::activeModalWidget();
}

QWidget* WindowTitled(const QString& title) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->windowTitle() == title) return window;
  }
  return nullptr;
}

/// The dialog of this title is on top and takes clicks.
Condition Dialog(const QString& title) {
  return [title] {
    return Top() && Top()->isVisible() && Top()->windowTitle() == title && !QApplication::activePopupWidget() &&
           QTest::qWaitForWindowExposed(Top(), 0);
  };
}

Condition Window(const QString& title) {
  return [title] {
    QWidget* window = WindowTitled(title);
    return window && !Top() && !QApplication::activePopupWidget() && QTest::qWaitForWindowExposed(window, 0);
  };
}

bool HasPopup() {
  return QApplication::activePopupWidget() != nullptr;
}

/// Clicks and keys go to the window, not to the widget: so what is modal, what pops up and what has the focus act as
/// for a player.
void ClickAt(QWidget* widget, QPoint place, Qt::MouseButton button = Qt::LeftButton) {
  QTest::mouseClick(widget->window()->windowHandle(), button, {}, widget->mapTo(widget->window(), place));
}
void Click(QWidget* widget) {
  ClickAt(widget, widget->rect().center());
}

void Press(QWidget* window, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
  QTest::keyClick(window->window()->windowHandle(), key, modifiers);
}
void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
  Press(Top(), key, modifiers);
}

void Type(QWidget* window, const char* text) {
  for (const char* c = text; *c; ++c) QTest::keyClick(window->window()->windowHandle(), *c);
}
void Type(const char* text) {
  Type(Top(), text);
}

QWidget* Id(int id, QWidget* window = nullptr) {
  auto* widget = (window ? window : Top())->findChild<QWidget*>(QString::number(id));
  if (!widget) {
    std::printf("no control %i\n", id);
    std::fflush(stdout);
    std::_Exit(3);
  }
  return widget;
}

void ClickRow(int id, int row, Qt::MouseButton button = Qt::LeftButton) {
  auto* list = qobject_cast<QListView*>(Id(id));
  const QModelIndex index = list->model()->index(row, 0);
  list->scrollTo(index);
  ClickAt(list->viewport(), list->visualRect(index).center(), button);
}

QString ShownText(int id) {
  return qobject_cast<QLabel*>(Id(id))->text();
}

/// A button pressed by its letter acts a moment later.
void PressLetter(Qt::Key key, const Condition& acted) {
  Press(key, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor(acted, 3000));
}

// --- Forms -------------------------------------------------------------------------------------------------------

enum : int {
  kName = 100,
  kAge,
  kList,
  kCombo,
  kWizard,
  kLeft,
  kRight,
  kNotes,
  kSaid,
  kGone,
  kOk = 1,
  kCancel = 2,
  kOpen = 3
};

constexpr ControlTemplate kEverything[] = {
    TitleAt(0, 0, "Everything"),
    LabelAt(1, 0, "&Name"),
    EditAt(1, 1, kName, 20, 8),
    LabelAt(2, 0, "Age"),
    NumberAt(2, 1, kAge),
    LabelAt(1, 2, "Races"),
    ListAt(2, 2, kList, 16, 4, 4),
    LabelAt(3, 0, "Gender"),
    ComboAt(3, 1, kCombo, 12),
    CheckAt(4, 0, kWizard, "A &wizard"),
    {.Kind = ControlKind::Radio, .Id = kLeft, .Row = 5, .Column = 0, .Text = "Left", .Group = 1},
    {.Kind = ControlKind::Radio, .Id = kRight, .Row = 5, .Column = 1, .Text = "Right", .Group = 1},
    {.Kind = ControlKind::MultiLine, .Id = kNotes, .Row = 6, .Column = 0, .Lines = 3, .ColumnSpan = 2},
    LabelAt(7, 0, "Said"),
    ResultAt(7, 1, kSaid, 20),
    ButtonAt(8, 0, kOk, "OK", ButtonRole::Default),
    ButtonAt(8, 0, kCancel, "Cancel", ButtonRole::Cancel),
    ButtonAt(8, 0, kOpen, "Open"),
    ButtonAt(8, 0, kGone, "Gone"),
};
constexpr FormTemplate kEverythingForm{"Everything", "Everything", kEverything, "What all of it is for."};

constexpr ControlTemplate kEntry[] = {
    TextAt(0, 0, kSaid, "", 40, 0),
    NumberAt(1, 0, kAge),
    ButtonAt(2, 0, kOk, "OK", ButtonRole::Default),
    ButtonAt(2, 0, kCancel, "Roll For Me", ButtonRole::Cancel),
};
constexpr FormTemplate kEntryForm{"Entry", "Entry", kEntry, ""};

class Desktop : public ::testing::Test {
 protected:
  DesktopPlatform platform{DesktopPlatform::Settings{.UsesNativeFileDialogs = false}};
  Player player;
  Form form{kEverythingForm};
  std::vector<int> commands;

  void FillForm() {
    form.onOpened = [this] {
      form.SetItems(kList,
                    {"Dwarf, Male", "Elf, High, Male", "Human & Co", "Orc, Male", "Pixie, Female", "Troll, Male"});
      form.SetItems(kCombo, {"Male", "Female", "Other"});
      form.SetVisible(kGone, false);
    };
    form.onCommand = [this](int id) {
      commands.push_back(id);
      if (id == kOk || id == kCancel) form.Close();
    };
    form.onSelect = [this](int id) { form.SetText(kSaid, form.SelectedText(id)); };
  }

  void Play() {
    player.Start();
    platform.RunForm(form);
  }
  void Play(const MainWindow& window) {
    player.Start();
    platform.RunMainWindow(window);
  }

  std::int64_t AskNumber() {
    Form entry(kEntryForm);
    entry.SetText(kSaid, "A roll of 3d6");
    std::int64_t number = -1;
    entry.onCommand = [&](int id) {
      if (id == kOk) number = entry.Number(kAge);
      entry.Close();
    };
    platform.RunForm(entry);
    return number;
  }
};

TEST_F(Desktop, WhatAPlayerDoesReachesTheFormAndWhatTheFormSaysIsShown) {
  FillForm();
  player.When("type", Dialog("Everything"), [&] {
    EXPECT_EQ(Top()->focusWidget(), Id(kName)) << "the first field has the focus";
    Type("Annabella");
    EXPECT_EQ(form.Text(kName), "Annabell") << "held to its limit";
    EXPECT_EQ(qobject_cast<QLineEdit*>(Id(kName))->text(), "Annabell");
    Press(Qt::Key_Tab);
    Type("17");
    EXPECT_EQ(form.Number(kAge), 17);
    ClickRow(kList, 5);
  });
  player.When(
      "chosen", [&] { return form.Selection(kList) == 5; },
      [&] {
        EXPECT_EQ(ShownText(kSaid), "Troll, Male");
        Press(Qt::Key_Up);
      });
  player.When(
      "chosen by key", [&] { return form.Selection(kList) == 4; },
      [&] {
        ClickAt(Id(kRight), {8, 8});
        ClickAt(Id(kLeft), {8, 8});
        EXPECT_TRUE(form.IsChecked(kLeft) && !form.IsChecked(kRight));
        EXPECT_FALSE(qobject_cast<QAbstractButton*>(Id(kRight))->isChecked());
        form.SetChecked(kLeft, false);
        EXPECT_FALSE(qobject_cast<QAbstractButton*>(Id(kLeft))->isChecked())
            << "a form may leave a group without a mark";
        Click(Id(kNotes));
        Type("a b");
        Press(Qt::Key_Return);
        Type("c");
        EXPECT_EQ(form.Text(kNotes), "a b\nc");
        form.SetText(kSaid, "x < y & <b>z</b>");
        EXPECT_EQ(ShownText(kSaid), "x < y & <b>z</b>");
        form.SetEnabled(kOk, false);
        Click(Id(kOk));
        EXPECT_FALSE(form.IsClosed() || Id(kGone)->isVisible());
        form.SetEnabled(kOk, true);
        form.SetVisible(kGone, true);
        EXPECT_TRUE(Id(kGone)->isVisible());
        form.Focus(kCombo);
        Press(Qt::Key_Down);
        EXPECT_EQ(form.SelectedText(kCombo), "Male");
        Click(Id(kOk));
      });
  Play();
  EXPECT_TRUE(form.IsClosed());
  EXPECT_EQ(commands, (std::vector<int>{kRight, kLeft, kOk}));
}

TEST_F(Desktop, UpAndDownLeadFromFieldToFieldAndFromASearchToItsList) {
  static constexpr ControlTemplate kFields[] = {NumberAt(0, 0, kAge), NumberAt(1, 0, kSaid),
                                                SearchAt(2, 0, kName, kList, 9), ListAt(2, 1, kList, 20, 4),
                                                ButtonAt(3, 0, kOk, "OK", ButtonRole::Cancel)};
  Form fields({"Fields", "Fields", kFields, ""});
  fields.onEdit = [&](int) { fields.SetItems(kList, {"Rope", "Tent"}); };
  fields.onCommand = [&](int) { fields.Close(); };
  player.When("fields", Dialog("Fields"), [&] {
    const auto focus = [] { return Top()->focusWidget()->objectName().toInt(); };
    Press(Qt::Key_Down);
    EXPECT_EQ(focus(), kSaid);
    Press(Qt::Key_Up);
    EXPECT_EQ(focus(), kAge);
    fields.Focus(kName);
    Type("e");
    EXPECT_EQ(fields.SelectedText(kList), "Rope");
    Press(Qt::Key_Return);
    Type("t");
    EXPECT_EQ(fields.Text(kName), "t") << "what is typed behind Enter is another search";
    Press(Qt::Key_Down);
    EXPECT_EQ(focus(), kList);
    Press(Qt::Key_Down);
    Press(Qt::Key_Escape);
  });
  player.Start();
  platform.RunForm(fields);
  EXPECT_EQ(fields.SelectedText(kList), "Tent");
}

TEST_F(Desktop, EveryControlIsReachedByTabAndByItsLetter) {
  FillForm();
  player.When("tab", Dialog("Everything"), [&] {
    std::vector<int> order;
    for (int i = 0; i < 11; ++i) {
      order.push_back(Top()->focusWidget()->objectName().toInt());
      Press(Qt::Key_Tab);
    }
    EXPECT_EQ(order,
              (std::vector<int>{kName, kAge, kList, kCombo, kWizard, kLeft, kNotes, kOk, kCancel, kOpen, kName}));
    EXPECT_TRUE(commands.empty() && form.Selection(kList) == -1) << "passing through chooses nothing";
    const auto name = [](int id) { return QAccessible::queryAccessibleInterface(Id(id))->text(QAccessible::Name); };
    form.SetText(kSaid, "17");
    for (const auto& [id, said] :
         {std::pair{kName, "Name"}, {kAge, "Age"}, {kList, "Races"}, {kWizard, "A wizard"}, {kSaid, "17"}}) {
      EXPECT_EQ(name(id), said) << "for those who can not see";
    }
    EXPECT_EQ(Id(kSaid)->accessibleDescription(), "Said");
    Press(Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(Top()->focusWidget(), Id(kName));
    PressLetter(Qt::Key_W, [&] { return form.IsChecked(kWizard); });
    PressLetter(Qt::Key_O, [&] { return !commands.empty() && commands.back() == kOk; });  // "OK" gives no letter itself
  });
  Play();
}

TEST_F(Desktop, EnterPressesTheFocusedButtonElseTheDefaultOne) {
  FillForm();
  player.When("enter", Dialog("Everything"), [&] {
    form.Focus(kOpen);
    Press(Qt::Key_Return);
    EXPECT_EQ(commands, std::vector<int>{kOpen});
    form.Focus(kList);
    Press(Qt::Key_Down);  // told to the form before Enter is
    Press(Qt::Key_Enter);
  });
  Play();
  EXPECT_EQ(commands, (std::vector<int>{kOpen, kOk}));
  EXPECT_EQ(form.Selection(kList), 0);
}

TEST_F(Desktop, TheMenuOpensByKeysByItsButtonAndByARightClick) {
  FillForm();
  form.contextMenu = {
      {.Text = "Adjust", .Items = {{.Id = 40, .Text = "Off", .Enabled = false}, {.Id = 41, .Text = "Dexterity +1"}}},
      {},
      {.Id = 42, .Text = "Re-roll"}};
  const auto chose = [&](int id) {
    return [this, id] { return Dialog("Everything")() && !commands.empty() && commands.back() == id; };
  };
  player.When("Shift+F10", Dialog("Everything"), [] { Press(Qt::Key_F10, Qt::ShiftModifier); });
  player.When("submenu by keys", HasPopup, [] {
    Press(QApplication::activePopupWidget(), Qt::Key_Down);
    Press(QApplication::activePopupWidget(), Qt::Key_Right);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    while (menu->activeAction() != menu->actions()[1]) Press(menu, Qt::Key_Down);
    Press(menu, Qt::Key_Return);
  });
  player.When("button", chose(41), [] { Click(Top()->findChild<QPushButton*>("menu")); });
  player.When("last item", HasPopup, [] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ClickAt(menu, menu->actionGeometry(menu->actions().back()).center());
  });
  player.When("right click on a field", chose(42), [&] {
    commands.clear();
    ClickAt(Id(kName), {10, 10}, Qt::RightButton);
  });
  player.When("leave it", HasPopup, [] { Press(QApplication::activePopupWidget(), Qt::Key_Escape); });
  player.When("Alt+M", Dialog("Everything"), [&] {
    EXPECT_TRUE(commands.empty());
    Press(Qt::Key_M, Qt::AltModifier);
  });
  player.When("leave", HasPopup, [] { Press(QApplication::activePopupWidget(), Qt::Key_Escape); });
  player.When("close", Dialog("Everything"), [] { Press(Qt::Key_Escape); });
  Play();
}

TEST_F(Desktop, MessagesAndQuestionsAreAnsweredByKeys) {
  player.When("message", Dialog("VELD"), [] {
    EXPECT_EQ(Top()->findChild<QTextEdit*>()->toPlainText(), "1 < 2 & <b>plain</b>");
    Press(Qt::Key_Return);
  });
  player.When("enter", Dialog("Reroll"), [] { Press(Qt::Key_Return); });
  player.When("letter", Dialog("Reroll"), [] { Press(Qt::Key_N, Qt::AltModifier); });
  std::vector<Answer> answers;
  player.When(
      "escape", [&] { return answers.size() == 2 && Dialog("Reroll")(); }, [] { Press(Qt::Key_Escape); });
  player.When(
      "letter alone", [&] { return answers.size() == 3 && Dialog("Reroll")(); }, [] { Press(Qt::Key_N); });
  player.Start();
  platform.ShowMessage("1 < 2 & <b>plain</b>");
  for (int i = 0; i < 4; ++i) answers.push_back(platform.AskYesNo("Reroll", "Keep?"));
  EXPECT_EQ(answers, (std::vector<Answer>{Answer::Yes, Answer::No, Answer::Closed, Answer::No}));
}

TEST_F(Desktop, FormsNestOnOneCallStackAndExceptionsComeUpIt) {
  FillForm();
  std::int64_t asked = 0;
  form.onCommand = [&](int id) {
    commands.push_back(id);
    if (id != kOpen) return;
    asked = AskNumber();
    throw std::runtime_error("the table has burned");
  };
  QWidget* outer = nullptr;
  player.When("outer", Dialog("Everything"), [&] {
    outer = Top();
    Click(Id(kOpen));
  });
  player.When("inner", Dialog("Entry"), [&] {
    EXPECT_EQ(Top()->parentWidget(), outer);
    Click(Id(kOk, outer));  // does not act
    EXPECT_EQ(commands, std::vector<int>{kOpen});
    Type("5");
    Press(Qt::Key_Return);
  });
  player.Start();
  EXPECT_THROW(platform.RunForm(form), std::runtime_error);
  EXPECT_EQ(asked, 5);
  EXPECT_TRUE(form.IsClosed());
}

// --- Taking back -------------------------------------------------------------------------------------------------

TEST_F(Desktop, KeysAndButtonsTakeBackAndTypingInAFieldGoesFirst) {
  FillForm();
  testing::CountedActs acts;
  form.SetActs(&acts);
  const auto button = [](const char* name) { return Top()->findChild<QPushButton*>(name); };
  const auto press = [](Qt::Key key, Qt::KeyboardModifiers more = {}) { Press(key, Qt::ControlModifier | more); };
  player.When("type", Dialog("Everything"), [&] {
    EXPECT_FALSE(button("Undo")) << "nothing to take back yet";
    Type("Ann");
    press(Qt::Key_Z);
    EXPECT_TRUE(form.Text(kName).empty() && acts.done == 4) << "the typing alone, and the form is told";
    press(Qt::Key_Y);
    EXPECT_EQ(form.Text(kName), "Ann");
    Click(Id(kNotes));
    Type("x");
    press(Qt::Key_Z);
    EXPECT_TRUE(form.Text(kNotes).empty() && acts.takenBack == 0);
    form.Focus(kName);
    Type("Bo");
    Press(Qt::Key_W, Qt::AltModifier);
  });
  player.When(
      "take back", [&] { return form.IsChecked(kWizard); },
      [&] {
        form.Focus(kName);
        const int done = acts.done;
        press(Qt::Key_Z);
        EXPECT_TRUE(form.Text(kName) == "Bo" && acts.done == done - 1) << "the typing is not what was done last";
        QTest::simulateEvent(Top()->windowHandle(), true, Qt::Key_Z, Qt::ControlModifier, {}, true);
        EXPECT_EQ(acts.takenBack, 1) << "a key held down";
        form.Focus(kList);
        press(Qt::Key_Z);
        press(Qt::Key_Z, Qt::ShiftModifier);
        EXPECT_TRUE(acts.takenBack == 1 && button("Redo")->isVisible());
        for (const QLabel* label : Top()->findChildren<QLabel*>()) {
          EXPECT_FALSE(label->geometry().intersects(button("Redo")->geometry())) << qPrintable(label->text());
        }
        Click(button("Redo"));
        EXPECT_FALSE(acts.takenBack == 1 || button("Redo")->isVisible());
        Click(button("Undo"));
        EXPECT_TRUE(acts.takenBack == 1 && Top()->focusWidget() == Id(kList));
        Click(Id(kCombo));
      });
  player.When("open list", HasPopup, [&] {
    Press(QApplication::activePopupWidget(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(!HasPopup() && acts.takenBack == 1) << "goes first, alone";
    Press(Qt::Key_Escape);
  });
  Play();
}

TEST_F(Desktop, HelpIsShownByKeyAndWordAndIsNoActOfTheForm) {
  FillForm();
  testing::CountedActs acts;
  form.SetActs(&acts);
  const auto showsHelp = [] { return Top()->windowTitle() == "Help: Everything"; };
  player.When("key", Dialog("Everything"), [] { Press(Qt::Key_F1); });
  player.When("leave help", showsHelp, [] {
    EXPECT_FALSE(Top()->findChild<QPushButton*>("Help")) << "it has none itself";
    Press(Qt::Key_Escape);
  });
  player.When("word", Dialog("Everything"), [] { Click(Top()->findChild<QPushButton*>("Help")); });
  player.When("leave by Enter", showsHelp, [] { Press(Qt::Key_Return); });
  player.When("end", Dialog("Everything"), [&] {
    EXPECT_TRUE(acts.done == 0 && commands.empty());
    Press(Qt::Key_Escape);
  });
  Play();
}

TEST_F(Desktop, WhatIsTakenBackMayCloseItsForm) {
  FillForm();
  testing::CountedActs acts;
  form.onCommand = [&](int id) {
    commands.push_back(id);
    if (id != kOpen) return form.Close();
    Form entry(kEntryForm);
    entry.SetActs(&acts);
    acts.onTakeBack = [&] { entry.Close(); };
    platform.RunForm(entry);
  };
  form.SetActs(&acts);
  player.When("open", Dialog("Everything"), [] { Click(Id(kOpen)); });
  player.When("button", Dialog("Entry"), [] { Click(Top()->findChild<QPushButton*>("Undo")); });
  player.When("leave", Dialog("Everything"), [] {
    EXPECT_TRUE(Top()->findChild<QPushButton*>("Redo")->isVisible()) << "of what was done in the other";
    Press(Qt::Key_Escape);
  });
  Play();
  EXPECT_EQ(commands, (std::vector<int>{kOpen, kCancel}));
}

// --- The main window ---------------------------------------------------------------------------------------------

void ChooseFromMenuBar(int menu, int item) {
  auto* bar = WindowTitled("Toolkit")->findChild<QMenuBar*>();
  QMenu* const popup = bar->actions()[menu]->menu();
  ClickAt(bar, bar->actionGeometry(bar->actions()[menu]).center());
  if (QTest::qWaitFor([&] { return popup->isVisible(); }, 3000)) {
    ClickAt(popup, popup->actionGeometry(popup->actions()[item]).center());
  } else {
    ADD_FAILURE() << "the menu does not open";
  }
}

class DesktopMain : public Desktop {
 protected:
  MainWindow window{.Title = "Toolkit",
                    .Menu = {{.Text = "&File",
                              .Items = {{.Id = 50, .Text = "&New", .Shortcut = "Ctrl+N"},
                                        {.Id = 51, .Text = "&Later", .Enabled = false},
                                        {.Id = 52, .Text = "E&xit"}}}}};
  // With memory of its own, which goes when the form does: the sanitizer sees who uses it afterwards.
  std::shared_ptr<Form> beside{new Form(kEverythingForm)};
  std::weak_ptr<Form> watched = beside;

  /// A window that closes itself and goes on to ask for numbers.
  void GoOnAfterClosing() {
    beside->onCommand = [this](int) {
      Form& shown = *beside;
      beside.reset();  // the platform's is now the only pointer
      shown.Close();
      EXPECT_FALSE(WindowTitled("Everything")) << "it has vanished at once";
      EXPECT_EQ(AskNumber(), 3);
      EXPECT_EQ(AskNumber(), 4);
      EXPECT_FALSE(watched.expired()) << "its handler still runs";
      commands.push_back(shown.Text(kName).empty() ? 0 : 1);
    };
  }
};

TEST_F(DesktopMain, AWindowBesideItLivesUntilItsHandlerHasReturned) {
  beside->SetText(kName, "Ann");
  GoOnAfterClosing();
  window.onStart = [&] { platform.ShowWindow(beside); };
  window.onCommand = [&](int id) {
    commands.push_back(id);
    platform.SetMainTitle("Toolkit - [*] Nobody");
    if (id == 52) platform.CloseMainWindow();
  };
  player.When("menu beside the window", Window("Everything"), [&] {
    ChooseFromMenuBar(0, 1);  // disabled
    Press(QApplication::activePopupWidget(), Qt::Key_Escape);
    ChooseFromMenuBar(0, 0);
  });
  player.When(
      "go on", [&] { return !commands.empty() && Window("Everything")(); },
      [&] {
        EXPECT_EQ(commands, std::vector<int>{50});
        WindowTitled("Everything")->activateWindow();
        Click(Id(kOk, WindowTitled("Everything")));
      });
  for (const char* number : {"3", "4"}) {
    player.When(number, Dialog("Entry"), [number] {
      Type(number);
      Press(Qt::Key_Return);
    });
  }
  player.When(
      "gone", [&] { return watched.expired() && !Top(); },
      [&] {
        QWidget* main = WindowTitled("Toolkit - [*][*] Nobody");
        ASSERT_TRUE(main);
        main->close();
      });
  Play(window);
  EXPECT_EQ(commands, (std::vector<int>{50, 1}));
}

TEST_F(DesktopMain, AWindowThatReplacesAnotherOutlivesItAndExitLeaves) {
  const auto second = std::make_shared<Form>(kEntryForm);
  window.onStart = [&] { platform.ShowWindow(beside); };
  window.onCommand = [&](int id) {
    if (id == 50) {
      std::exchange(beside, nullptr)->Close();
      platform.ShowWindow(second);
    }
    if (id == 52) platform.CloseMainWindow();
  };
  player.When("replace", Window("Everything"), [] { ChooseFromMenuBar(0, 0); });
  player.When(
      "the first is gone", [&] { return watched.expired() && Window("Entry")(); },
      [&] {
        second->SetTitle("Second");
        EXPECT_TRUE(WindowTitled("Second"));
        ChooseFromMenuBar(0, 2);
      });
  Play(window);
}

TEST_F(DesktopMain, ThePageIsReadScrolledAndLeavesTheMenuItsKeys) {
  using Kind = PageLine::Kind;
  window.Page = {{Kind::Title, "", "Nobody"}};
  std::vector<PageLine> page{{Kind::Title, "", "Ann"}, {Kind::Fact, "Race", "Dwarf, Male"}};
  for (int i = 0; i < 40; ++i) page.push_back({Kind::Heading, "", "Skills"});
  window.onCommand = [&](int id) {
    commands.push_back(id);
    if (id == 50) return platform.ShowPage(page);
    platform.CloseMainWindow();
  };
  window.Menu[0].Items[2].Shortcut = "Ctrl+Z";
  const auto view = [] { return WindowTitled("Toolkit")->findChild<QTextEdit*>(); };
  const auto spoken = [&] {
    QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(view());
    EXPECT_EQ(heard->text(QAccessible::Name), "The character in memory");
    EXPECT_TRUE(heard->state().readOnly);
    return heard->textInterface()->text(0, heard->textInterface()->characterCount());
  };
  player.When(
      "page", [&] { return Window("Toolkit")() && view(); },
      [&] {
        EXPECT_EQ(spoken(), "Nobody");
        Press(view(), Qt::Key_N, Qt::ControlModifier);
        EXPECT_TRUE(spoken().startsWith("Ann\nRace\tDwarf, Male\nSkills\n")) << spoken().toStdString();
        const QScrollBar& bar = *view()->verticalScrollBar();
        Press(view(), Qt::Key_Down);
        EXPECT_EQ(bar.value(), 20) << "by a rule";
        Press(view(), Qt::Key_PageDown);
        const int place = bar.value();
        EXPECT_GT(place, 200);
        page[1].Value = "Elf, Male";
        platform.ShowPage(page);
        EXPECT_EQ(bar.value(), place) << "the reader keeps his place";
        Press(view(), Qt::Key_Home);
        EXPECT_EQ(bar.value(), 0);
        page[0].Value = "Bo";
        Press(view(), Qt::Key_End);
        EXPECT_EQ(bar.value(), bar.maximum());
        platform.ShowPage(page);
        EXPECT_EQ(bar.value(), 0) << "another character";
        Press(view(), Qt::Key_Z, Qt::ControlModifier);
      });
  Play(window);
  EXPECT_EQ(commands, (std::vector<int>{50, 52}));
}

TEST_F(DesktopMain, WhatAMenuCommandThrowsComesOutOfTheMainWindow) {
  window.onCommand = [](int) { throw std::runtime_error("lost"); };
  const auto hasMenu = [] { return Window("Toolkit")() && WindowTitled("Toolkit")->findChild<QMenuBar*>(); };
  player.When("choose", hasMenu, [] { Press(WindowTitled("Toolkit"), Qt::Key_N, Qt::ControlModifier); });
  player.Start();
  EXPECT_THROW(platform.RunMainWindow(window), std::runtime_error);
}

TEST_F(DesktopMain, ProgressShowsAndIsCancelledWhileTheWorkRuns) {
  bool isFinished = true;
  window.onStart = [&] {
    platform.BeginProgress("Dice Tester", "Rolling ...");
    for (int i = 0; isFinished && i < 100'000'000; ++i) isFinished = platform.ShowProgress(40);
    platform.EndProgress();
    platform.CloseMainWindow();
  };
  player.When(
      "bar",
      [] { return Dialog("Dice Tester")() && Top()->findChild<QWidget*>("11")->property("value").toInt() == 40; },
      [] {
        Click(WindowTitled("Toolkit"));
        Press(Qt::Key_Escape);
      });
  Play(window);
  EXPECT_FALSE(isFinished);
  EXPECT_FALSE(WindowTitled("Dice Tester"));
}

// --- Files -------------------------------------------------------------------------------------------------------

constexpr FileFilter kFilters[] = {
    {"Quellmarch Files (*.VLF)", ".vlf"}, {"HTM Files  (*.HTM)", ".htm"}, {"All Files (*.*)", ""}};

QFileDialog* FileDialog() {
  return qobject_cast<QFileDialog*>(Top());
}

void TypeName(const QString& name) {
  auto* edit = FileDialog()->findChild<QLineEdit*>("fileNameEdit");
  edit->setText(name);
  Click(edit);
  Press(Qt::Key_End);
  Press(Qt::Key_Return);
}

TEST_F(Desktop, SavedFilesGetTheExtensionOfTheFilterAndOverwritingIsAsked) {
  QTemporaryDir folder;
  const std::string path = folder.path().toStdString();
  std::ofstream(path + "/old.vlf") << "kept";
  player.When("plain", Dialog("Save"), [&] { TypeName(folder.filePath("new")); });
  player.When("other filter", Dialog("Save"), [&] {
    auto* types = FileDialog()->findChild<QComboBox*>("fileTypeCombo");
    EXPECT_EQ(types->itemText(1).toStdString(), "HTM Files  (*.HTM)") << "as the filter is named";
    FileDialog()->findChild<QLineEdit*>("fileNameEdit")->setText("Ann.vlf");
    types->setFocus();
    Press(Qt::Key_Down);
    EXPECT_EQ(FileDialog()->findChild<QLineEdit*>("fileNameEdit")->text().toStdString(), "Ann.htm")
        << "the name follows the filter";
    TypeName(folder.filePath("J\u00fcrgen"));
  });
  player.When("existing", Dialog("Save"), [&] { TypeName(folder.filePath("old")); });
  player.When(
      "overwrite?", [] { return qobject_cast<QMessageBox*>(Top()) != nullptr; }, [] { Press(Qt::Key_Escape); });
  player.When("then not", Dialog("Save"), [] { Press(Qt::Key_Escape); });
  std::ofstream(path + "/St. Bo.vlf") << "kept";
  player.When("a point in a name", Dialog("Save"), [&] { TypeName(folder.filePath("St. Ada")); });
  player.When("of a file that is there", Dialog("Save"), [&] { TypeName(folder.filePath("St. Bo")); });
  player.When(
      "overwrite that?", [] { return Dialog("Save")() && !FileDialog(); }, [] { Press(Qt::Key_N, Qt::AltModifier); });
  player.When(
      "not that", [] { return FileDialog() != nullptr; }, [] { Press(Qt::Key_Escape); });
  player.Start();
  EXPECT_EQ(platform.AskSavePath("Save", kFilters, "new"), path + "/new.vlf");
  EXPECT_EQ(platform.AskSavePath("Save", kFilters, ""), path + "/J\u00fcrgen.htm");
  EXPECT_EQ(platform.AskSavePath("Save", kFilters, "old"), std::nullopt);
  EXPECT_EQ(platform.AskSavePath("Save", kFilters, ""), path + "/St. Ada.vlf");
  EXPECT_EQ(platform.AskSavePath("Save", kFilters, ""), std::nullopt);
}

TEST_F(Desktop, LoadingAsksForAFileThatExists) {
  QTemporaryDir folder;
  const std::string path = folder.path().toStdString();
  for (const char* name : {"Ann.vlf", "Bob.VLF", "notes.txt"}) std::ofstream(path + "/" + name) << "x";
  player.When("choose", Dialog("Load"), [&] {
    FileDialog()->setDirectory(folder.path());
    auto* files = FileDialog()->findChild<QListView*>("listView");
    EXPECT_TRUE(QTest::qWaitFor([&] { return files->model()->rowCount(files->rootIndex()) == 2; }, 3000))
        << "both cases, nothing else";
    TypeName(folder.filePath("Bob.VLF"));
  });
  player.When("cancel", Dialog("Load"), [] { Press(Qt::Key_Escape); });
  player.Start();
  EXPECT_EQ(platform.AskOpenPath("Load", kFilters), path + "/Bob.VLF");
  EXPECT_EQ(platform.AskOpenPath("Load", kFilters), std::nullopt);
}

// --- The look ----------------------------------------------------------------------------------------------------

TEST_F(Desktop, PagesHoldAtOtherFontSizesAndSizesOfTheWindow) {
  const QFont font = QApplication::font();
  for (const int pixels : {13, 20, 26}) {
    QFont larger = font;
    larger.setPixelSize(pixels);
    QApplication::setFont(larger);
    DesktopPlatform scaled(DesktopPlatform::Settings{.UsesNativeFileDialogs = false});
    Form page(kEverythingForm);
    Player reader;
    reader.When("read", Dialog("Everything"), [&] {
      for (const Control& control : page.Controls()) {
        if (control.Template.Kind != ControlKind::Button) continue;
        const auto* button = qobject_cast<QPushButton*>(Id(control.Template.Id));
        EXPECT_GE(button->width(), button->fontMetrics().horizontalAdvance(button->text()) + 8);
        EXPECT_GE(button->height(), button->fontMetrics().height());
      }
      for (const QLabel* label : Top()->findChildren<QLabel*>()) {
        EXPECT_GE(label->height(), label->fontMetrics().height()) << label->text().toStdString();
      }
      const int width = Id(kList)->width();
      const int row = qobject_cast<QListView*>(Id(kList))->sizeHintForRow(0);
      Top()->resize(Top()->width() + 100, Top()->height() + 3 * row);
      EXPECT_TRUE(QTest::qWaitFor([&] { return Id(kList)->width() > width; }, 3000));
      page.SetText(kSaid, "still here");
      Top()->resize(200, 100);
      EXPECT_TRUE(QTest::qWaitFor([&] { return Id(kList)->width() <= width; }, 3000));
      Press(Qt::Key_Escape);
    });
    page.onCommand = [&](int) { page.Close(); };
    reader.Start();
    scaled.RunForm(page);
  }
  QApplication::setFont(font);
}

}  // namespace
}  // namespace veld

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  setenv("QT_LOGGING_RULES", "default.warning=false", 0);
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setDoubleClickInterval(20);  // combos take no release so soon after they have opened
  return RUN_ALL_TESTS();
}
