#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>

#include "pty_program.h"
#include "store/character_file.h"
#include "store/recovery.h"
#include "support/scripted_platform.h"
#include "terminal/cells.h"
#include "terminal/field_keys.h"
#include "text/search.h"

namespace veld {
namespace {

using namespace testing;
namespace fs = std::filesystem;

/// A user's data folder with what ships, in a folder of its own.
class TerminalTest : public ::testing::Test {
 protected:
  TerminalTest() : data_(fs::path(folder_.Path()) / "veld") {
    fs::create_directories(data_);
    for (const char* name : {"equip.vlb", "spells.vld"}) fs::copy_file(fs::path(VELD_DATA_DIR) / name, data_ / name);
    setenv("XDG_DATA_HOME", folder_.Path().c_str(), 1);
  }

  static int RunProgram() {
    execl(VELD_TERMINAL_PROGRAM, VELD_TERMINAL_PROGRAM, nullptr);
    return 127;
  }

  /// Presses Enter on the messages of a first start.
  static void PassMessages(PtyProgram& program) {
    for (int i = 0; i < 5 && program.Title() == "VELD"; ++i) program.Press(kEnterKey);
    ASSERT_TRUE(program.Shows("File, New Character begins")) << program.Shows();
  }

  TestFolder folder_;
  fs::path data_;
};

/// Plays one generation as a person would who knows no more than what stands on the screen: takes the first race, does
/// what the line of keys says Enter does, and goes on to the next control.
class Player {
 public:
  explicit Player(PtyProgram& program) : program_(program) {}

  std::set<std::string> titles;

  /// Plays until the question whether to save, or until `limit` steps are done.
  bool PlayToSaveQuestion(int limit) {
    for (int step = 0; step < limit && program_.IsRunning(); ++step) {
      const std::string title = program_.Title();
      if (title.empty()) return false;
      titles.insert(title);
      if (title == "Save") return true;
      Act(title);
    }
    return false;
  }

 private:
  static constexpr int kShare = 4;
  static constexpr int kMostTabs = 30;
  static constexpr int kEnough = 12;  // of a page that is only closed

  void Act(const std::string& title) {
    if (title == "Roll Your Own Dice") return Throw();
    // What Enter did not change, and a control that has had its share, is left for the next one.
    const std::string seen = Seen();
    const int shown = ++shown_[title];
    const std::string keys = program_.KeysLine();
    const bool canBeLeft = keys.ends_with("Esc Close") || keys.ends_with("Esc No Package");
    if (shown > kEnough && canBeLeft) return program_.Press(kEscapeKey);
    if (program_.Shows("Almanac Tables?")) return program_.Press("n");  // a youth may end in death
    if (seenAt_[title] == seen || shown % kShare == 0) program_.Press(kTabKey);
    for (int i = 0; i < kMostTabs && IsWayOut(program_.EnterDoes()); ++i) program_.Press(kTabKey);
    seenAt_[title] = Seen();
    if (program_.KeysLine().find("Up/Down choose") != std::string::npos) program_.Press(kDownKey);
    if (title == "Choose a name" || title.starts_with("Step 18")) TypeName(title);
    program_.Press(kEnterKey);
  }

  std::string Seen() const {
    return program_.Shows() + std::to_string(program_.screen.CursorRow() * 100 + program_.screen.CursorColumn());
  }

  static bool IsWayOut(const std::string& enter) {
    constexpr const char* kWaysOut[] = {"Abort", "Cancel", "Close", "Menu", "Roll again"};
    return enter.starts_with("<<") || std::ranges::find(kWaysOut, enter) != std::end(kWaysOut);
  }

  /// Types a 10, and leaves dice that can't show it to the program.
  void Throw() {
    const std::string prompt = program_.Shows();
    program_.Press(prompt == lastPrompt_ ? kEscapeKey : "10" + std::string(kEnterKey));
    lastPrompt_ = prompt;
  }

  void TypeName(const std::string& title) {
    if (program_.EnterDoes() == "OK" && named_.insert(title).second) program_.Press("Zo\xC3\xAB the Bold");
  }

  PtyProgram& program_;
  std::string lastPrompt_;
  std::map<std::string, std::string> seenAt_;  ///< when Enter was last pressed on the page of that title
  std::map<std::string, int> shown_;
  std::set<std::string> named_;  ///< pages on which the name stands
};

TEST_F(TerminalTest, AWholeGenerationIsPlayedFromNewCharacterToASavedFile) {
  PtyProgram program(RunProgram);
  PassMessages(program);
  program.Press(kMainMenuKey);
  program.Press(kEnterKey);
  ASSERT_EQ(program.Title(), "Roll Your Own Dice") << program.Shows();

  Player player(program);
  ASSERT_TRUE(player.PlayToSaveQuestion(1500)) << program.Shows();
  program.Press("y");
  ASSERT_EQ(program.Title(), "Save") << program.Shows();
  ASSERT_TRUE(program.Shows("Quellmarch Files (*.VLF)")) << program.Shows();
  program.Press(std::string("\x15") + "Zo\xC3\xAB" + kEnterKey);
  for (int i = 0; i < 5 && !program.Title().empty(); ++i) program.Press(kEnterKey);
  EXPECT_TRUE(program.Shows("Zo\xC3\xAB the Bold - is in memory")) << program.Shows();

  ScriptedPlatform platform;
  const auto game = MakeGame(platform);
  ASSERT_TRUE(LoadCharacterFile(*game, (data_ / "Zo\xC3\xAB.vlf").string())) << program.Shows();
  EXPECT_EQ(game->sheet.CharacterName.View(), "Zo\xC3\xAB the Bold");
  EXPECT_NE(game->sheet.RaceName.View(), "Unknown");
  EXPECT_FALSE(game->sheet.ClassName.Empty());
  const auto isTyped = [](const std::string& line) { return Contains(line, "User input"); };
  const auto log = FileLines((data_ / "dice.log").string());
  EXPECT_GE(std::ranges::count_if(log, isTyped), 14) << "seven abilities alone have two throws each";

  program.Command("fx");  // File, Exit
  EXPECT_EQ(program.WaitForEnd(), 0);
  for (const char* title : {"Step 3", "Step 6", "Step 8", "Step 9", "Step 10", "Skills", "Step 19"}) {
    EXPECT_TRUE(player.titles.contains(title)) << title;
  }
  EXPECT_EQ(player.titles.contains("Step 14"), game->sheet.Wisdom.Whole >= 6) << "the dice decide whether there is one";
}

/// Brings the program to a page of Step 3 with a race chosen, the dice rolled by the program.
void OpenStepThreeWithRace(PtyProgram& program) {
  program.Command("fn");
  ASSERT_EQ(program.Title(), "Roll Your Own Dice") << program.Shows();
  program.Command("t");
  ASSERT_EQ(program.Title(), "Step 3") << program.Shows();
  program.Press(kDownKey);
}

TEST_F(TerminalTest, EveryCommandOfTheMenusIsReachedByKeyboard) {
  PtyProgram program(RunProgram);
  PassMessages(program);
  const auto opens = [&](std::string_view letters, const char* title) {
    program.Command(letters);
    EXPECT_EQ(program.Title(), title) << program.Shows();
    program.Press(kEscapeKey);
    EXPECT_EQ(program.Title(), "") << program.Shows();
  };
  opens("ha", "About VELD");
  for (const char* help : {kHelpKey, "\x1B?"}) {  // F1, and Alt+? where the terminal keeps that for itself
    program.Press(help);
    EXPECT_EQ(program.Title(), "Help: How to begin") << program.Shows();
    program.Press(kEscapeKey);
  }
  opens("fs", "Save");
  opens("fl", "Load");
  opens("fr", "VELD");  // nothing to recover yet

  // The keys that a menu shows beside its items; a terminal would stop at the first and suspend the program at the
  // last.
  for (const auto& [key, title] : {std::pair{"\x13", "Save"}, {"\x0F", "Load"}, {"\x05", "VELD"}, {"\x1A", "VELD"}}) {
    program.Press(key);
    EXPECT_EQ(program.Title(), title) << program.Shows();
    program.Press(kEscapeKey);
  }
  program.Press(kMainMenuKey);
  EXPECT_TRUE(program.Shows("New Character         Ctrl+N │")) << program.Shows();
  EXPECT_TRUE(program.Shows("F3 │")) << program.Shows();
  program.Press(kEscapeKey);

  opens("ho", "VELD Options");
  program.Command("hd");  // the dice tester counts, tells, or is cancelled
  for (int i = 0; i < 10 && !program.Title().empty(); ++i) program.Press(kEscapeKey);
  EXPECT_EQ(program.Title(), "") << program.Shows();

  OpenStepThreeWithRace(program);
  program.Press("\x1A");
  EXPECT_EQ(program.Title(), "Roll Your Own Dice") << "Ctrl+Z takes back what F2 does: " << program.Shows();
  program.Press(kRedoKey);
  program.Press(kDownKey);
  program.Press("\x0E");
  ASSERT_EQ(program.Title(), "Step 3") << "Ctrl+N is the main window's: " << program.Shows();
  program.Press(kPageMenuKey);
  program.Press("e");
  ASSERT_EQ(program.Title(), "Enter Stats") << program.Shows();
  program.Press(kEscapeKey);
  ASSERT_EQ(program.Title(), "Step 3") << program.Shows();
  // A submenu of a submenu.
  program.Press(kPageMenuKey);
  program.Press("a");
  program.Press(kDownKey);
  program.Press(kRightKey);
  EXPECT_TRUE(program.Shows("Charisma +1")) << program.Shows();
  program.Press(kEscapeKey, 3);
  ASSERT_EQ(program.Title(), "Step 3") << program.Shows();
  for (int again = 0; again < 3; ++again) {
    program.Command("fn");
    ASSERT_EQ(program.Title(), "Step 3") << "a new character takes the place of the one before: " << program.Shows();
  }
  program.Press(kEscapeKey);
  EXPECT_EQ(program.Title(), "") << program.Shows();
  program.Command("fx");
  EXPECT_EQ(program.WaitForEnd(), 0);
}

TEST_F(TerminalTest, FilesAreFoundCompletedAndNotOverwrittenUnasked) {
  fs::create_directories(data_ / "heroes");
  std::ofstream(data_ / "heroes" / "notes.txt") << "kept";
  std::ofstream(data_ / "heroes" / "old.vlf") << "not a character";
  PtyProgram program(RunProgram);
  PassMessages(program);
  program.Command("fl");
  program.Press("he");
  program.Press(kTabKey);
  EXPECT_TRUE(program.Shows("[heroes/_")) << program.Shows();
  program.Press("o");
  program.Press(kTabKey);
  EXPECT_TRUE(program.Shows("[heroes/old.vlf_")) << program.Shows();
  program.Press("\x15");
  program.Press("none" + std::string(kEnterKey));
  EXPECT_TRUE(program.Shows("There is no file")) << program.Shows();
  program.Press(kEnterKey);
  program.Press(std::string("\x15") + "heroes" + kEnterKey);
  EXPECT_TRUE(program.Shows("old.vlf")) << program.Shows();
  EXPECT_FALSE(program.Shows("notes.txt")) << "of another type: " << program.Shows();
  program.Press(kEscapeKey);

  program.Command("fs");
  program.Press("\x15heroes/notes.txt" + std::string(kEnterKey));
  ASSERT_TRUE(program.Shows("is there already")) << program.Shows();
  program.Press("n");
  EXPECT_EQ(program.Title(), "Save");
  program.Press(kEscapeKey);
  EXPECT_EQ(program.Title(), "");
  EXPECT_EQ(FileText((data_ / "heroes" / "notes.txt").string()), "kept");
  for (const char* answer : {"File saved in vlf format", "St. Ada.vlf is there already"}) {
    program.Command("fs");
    program.Press("\x15heroes/St. Ada" + std::string(kEnterKey));
    EXPECT_TRUE(program.Shows(answer)) << program.Shows();
    program.Press(kEscapeKey);
  }
}

TEST_F(TerminalTest, AResizedTerminalIsDrawnAnewAndASmallOneScrolls) {
  PtyProgram program(RunProgram);
  PassMessages(program);
  program.Command("ho");
  ASSERT_TRUE(program.Shows("< Close >")) << program.Shows();
  program.Resize(12, 60);
  EXPECT_EQ(program.Title(), "VELD Options") << program.Shows();
  EXPECT_TRUE(program.Shows("Hexwright") && !program.Shows("< Close >")) << program.Shows();
  program.Press("\x1B[Z");  // Shift+Tab, round to the last button
  EXPECT_TRUE(program.Shows("< Close >")) << "what the keys go to is in sight: " << program.Shows();
  program.Resize(30, 100);
  EXPECT_TRUE(program.Shows("Hexwright") && program.Shows("< Close >")) << program.Shows();
}

TEST_F(TerminalTest, TheCharacterInMemoryIsReadBehindTheDialogs) {
  fs::copy_file(std::string(VELD_SOURCE_DIR) + "/tests/sheets/golden/zealot.vlf", data_ / "zealot.vlf");
  PtyProgram program(RunProgram);
  PassMessages(program);
  EXPECT_FALSE(Contains(program.KeysLine(), "scroll")) << "all of it is in sight";
  program.Command("fl");
  program.Press("zealot.vlf" + std::string(kEnterKey));
  program.Press(kEnterKey);  // what was loaded is told
  EXPECT_TRUE(program.Shows("  Hit points       32")) << program.Shows();
  EXPECT_TRUE(Contains(program.KeysLine(), "Up/Down PgUp/PgDn scroll")) << program.KeysLine();
  EXPECT_TRUE(Contains(program.screen.Line(1), "Sister Marl"));
  program.Press(kDownKey);
  EXPECT_TRUE(Contains(program.screen.Line(1), "Halfling, Thug, Female")) << program.Shows();
  program.Press("\x1B[6~");  // Page Down
  EXPECT_FALSE(program.Shows("Halfling")) << program.Shows();
  program.Press("\x1BOF");  // End
  EXPECT_TRUE(program.Shows("Quirks and Flaws")) << program.Shows();
  program.Resize(50, 60);
  EXPECT_TRUE(program.Shows("Sister Marl") && program.Shows("Quirks and Flaws")) << program.Shows();
  program.Command("ha");
  EXPECT_TRUE(program.Title() == "About VELD" && program.Shows("Sister Marl")) << program.Shows();
}

/// Ends the program amid a generation, by what `end` does, and expects the character among the recovery copies.
template <typename End>
void ExpectRecoveryAfter(const fs::path& data, int (*run)(), End end) {
  PtyProgram program(run);
  for (int i = 0; i < 5 && program.Title() == "VELD"; ++i) program.Press(kEnterKey);
  OpenStepThreeWithRace(program);
  program.Command("o");
  ASSERT_EQ(program.Title(), "Step 6") << program.Shows();
  fs::remove_all(data / kRecoveryFolder);
  end(program);
  EXPECT_EQ(program.WaitForEnd(), 0);
  ScriptedPlatform platform;
  const auto game = MakeGame(platform);
  fs::current_path(data);
  const auto copies = RecoveryCopies();
  ASSERT_EQ(copies.size(), 1U);
  EXPECT_TRUE(Recover(*game, copies.front()));
  EXPECT_NE(game->sheet.RaceName.View(), "Unknown");
}

TEST_F(TerminalTest, AnInterruptARequestToEndAndALostTerminalEndAsExitDoes) {
  ExpectRecoveryAfter(data_, RunProgram, [](PtyProgram& program) { program.Press("\x03"); });
  ExpectRecoveryAfter(data_, RunProgram, [](PtyProgram& program) { program.Signal(SIGTERM); });
  ExpectRecoveryAfter(data_, RunProgram, [](PtyProgram& program) { program.HangUp(); });
}

TEST(FieldKeysTest, EditsHoldToTheirBytesAndMoveByCharacters) {
  TypedText typed;
  const auto type = [&](char32_t c, int limit) { return ApplyFieldKey(typed, {KeyKind::Character, c}, limit); };
  EXPECT_EQ(type(U'Z', 4), FieldKey::Typed);
  EXPECT_EQ(type(U'ë', 4), FieldKey::Typed);
  EXPECT_EQ(type(U'ë', 4), FieldKey::Refused);  // would be the fifth byte
  EXPECT_EQ(type(U'o', 4), FieldKey::Typed);
  EXPECT_EQ(typed.Text, "Z\xC3\xABo");
  ApplyFieldKey(typed, {KeyKind::Left}, 4);
  ApplyFieldKey(typed, {KeyKind::Backspace}, 4);
  EXPECT_EQ(typed.Text, "Zo");
  EXPECT_EQ(typed.Cursor, 1U);
  typed.IsChosen = true;
  EXPECT_EQ(type(U'X', 1), FieldKey::Typed) << "all that was marked makes room";
  EXPECT_EQ(typed.Text, "X");
}

TEST(FieldKeysTest, SeveralLinesBreakAtBlanksAndTheCursorKeepsItsCell) {
  TypedText typed{"one two three\nfour", 0};
  const std::vector<TextLine> lines = BreakIntoLines(typed.Text, 8);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(typed.Text.substr(lines[1].Begin, lines[1].End - lines[1].Begin), "three");
  typed.Cursor = 3;
  ApplyMultiLineKey(typed, {KeyKind::Down}, 0, 8);
  EXPECT_EQ(typed.Cursor, lines[1].Begin + 3);
  ApplyMultiLineKey(typed, {KeyKind::Down}, 0, 8);
  ApplyMultiLineKey(typed, {KeyKind::Enter}, 0, 8);
  EXPECT_EQ(typed.Text, "one two three\nfou\nr");
}

TEST(CellsTest, WideLettersAndAccentsTakeTheirOwnCells) {
  std::setlocale(LC_CTYPE, "C.UTF-8");
  EXPECT_EQ(CellsOf("e\xCC\x81"), 1);  // e and an accent that joins it
  EXPECT_EQ(CellsFrom("abc", 1, 4), U"bc  ");
  EXPECT_EQ(CellsFrom("abcdef", 0, 4, true), U"abc>");
  EXPECT_EQ(CellsFrom("a\tb", 0, 3), U"a b");
}

}  // namespace
}  // namespace veld
