#include "editors/main_edit.h"

#include <array>

#include "editors/character_backup.h"
#include "editors/class_progress.h"
#include "editors/edit_classes.h"
#include "editors/edit_quirks.h"
#include "editors/edit_skills.h"
#include "editors/edit_spell_books.h"
#include "editors/edit_spells.h"
#include "editors/person_pages.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "rules/race_table.h"
#include "steps/finish/equip.h"
#include "steps/finish/equipment_purchase.h"
#include "steps/race/race_choice.h"
#include "steps/race/step_three.h"
#include "store/recovery.h"
#include "text/format.h"
#include "text/utf8.h"

namespace veld {

namespace {

constexpr std::string_view kNoClass = "Please Pick";

enum : int {
  kOk = 1,
  kCancel = 2,
  kWho = 3,
  kWhat = 4,
  kNext = 5,
  kFirstPage = 100,
  kFirstOften = kFirstPage + 2,  // Experience and classes
};

/// Who edits: a referee the character in memory, or a player who copies his own from paper.
enum class EditMode { Edit, Paper };

bool Always(const Game&) {
  return true;
}
bool Never(const Game&) {
  return false;
}
bool IsMage(const Game& game) {
  return game.sheet.IsMageClass == 1;
}
bool IsTattooed(const Game& game) {
  return HasTrait(game.sheet.RaceName, RaceTrait::Tattooed);
}

/// A page of the editor.
struct EditorPage {
  std::string_view Button;
  bool IsUsedOften;                     ///< stands in the first row
  bool (*IsOnPaper)(const Game& game);  ///< Next comes to it when a character is copied from paper
  void (*Run)(Game& game, EditMode mode);
};

// In the order of a paper sheet.
// clang-format off
constexpr std::array<EditorPage, 16> kPages{{
    {"&Person and notes",       false, Always,     [](Game& game, EditMode) { RunEditPerson(game); }},
    {"&Abilities",              false, Always,     [](Game& game, EditMode) { RunEditAbilities(game); }},
    {"&Experience and classes", true,  Always,     [](Game& game, EditMode mode) {
       RunEditClasses(game, mode == EditMode::Paper ? kPaperLevels : kWrittenLevels);
     }},
    {"&Hit points",             true,  Never,      [](Game& game, EditMode) { RunEditLevels(game); }},
    {"H&onor and counts",       false, Always,     [](Game& game, EditMode) { RunEditStanding(game); }},
    {"&Skills and talents",     false, Always,     [](Game& game, EditMode) { RunEditSkills(game); }},
    {"&Quirks and flaws",       false, Always,     [](Game& game, EditMode) { RunEditQuirks(game); }},
    {"&Money",                  true,  Always,     [](Game& game, EditMode) { RunEditMoney(game); }},
    {"&Goods",                  true,  Always,     [](Game& game, EditMode mode) {
       mode == EditMode::Paper ? RunFreeEquip(game) : RunEditEquip(game);
     }},
    {"Spe&lls known",           false, IsMage,     [](Game& game, EditMode) { RunEditSpells(game); }},
    {"Spell &books",            false, IsMage,     [](Game& game, EditMode) { RunEditSpellBooks(game); }},
    {"&Tattoos",                false, IsTattooed, [](Game& game, EditMode) { RunEditTattoos(game); }},
    {"Birth and &family",       false, Always,     [](Game& game, EditMode) { RunPriorEdit(game); }},
    {"&Youth of a fighter",     false, Never,      [](Game& game, EditMode) { RunEditMilitary(game); }},
    {"Yo&uth of a mage",        false, Never,      [](Game& game, EditMode) { RunEditSchool(game); }},
    {"Youth of a p&riest",      false, Never,      [](Game& game, EditMode) { RunEditSeminary(game); }},
}};
// clang-format on

constexpr int kColumns = 3;
constexpr int kOftenRow = 5;
constexpr int kOthersRow = kOftenRow + 3;
constexpr int kOtherRows = 4;
constexpr int kLastRow = kOthersRow + kOtherRows + 1;

constexpr std::size_t kControls = kPages.size() + 8;

constexpr std::array<ControlTemplate, kControls> ControlsFor(EditMode mode, std::string_view title) {
  std::array<ControlTemplate, kControls> controls{};
  std::size_t next = 0;
  const auto addWide = [&](ControlTemplate control) {
    control.ColumnSpan = kColumns;
    controls[next++] = control;
  };
  addWide(TitleAt(0, 0, title));
  addWide(ResultAt(1, 0, kWho, 76));
  addWide(ResultAt(2, 0, kWhat, 76));
  addWide(HeadingAt(kOftenRow - 1, 0, "What happens most"));
  addWide(HeadingAt(kOthersRow - 1, 0, "Everything else"));
  int other = 0;
  for (std::size_t page = 0; page < kPages.size(); ++page) {
    const int id = kFirstPage + static_cast<int>(page);
    if (kPages[page].IsUsedOften) {
      addWide(ButtonAt(kOftenRow, 0, id, kPages[page].Button));
      continue;
    }
    controls[next++] = ButtonAt(kOthersRow + other % kOtherRows, other / kOtherRows, id, kPages[page].Button);
    ++other;
  }
  const bool isPaper = mode == EditMode::Paper;
  addWide(ButtonAt(kLastRow, 0, kNext, "&Next: Person and notes", ButtonRole::Default));
  if (!isPaper) controls[next - 1] = {.Kind = ControlKind::Label, .Row = kLastRow, .Visible = false};
  addWide(ButtonAt(kLastRow, 0, kOk, "O&K", isPaper ? ButtonRole::Plain : ButtonRole::Default));
  addWide(ButtonAt(kLastRow, 0, kCancel, "&Cancel", ButtonRole::Cancel));
  return controls;
}

constexpr auto kMainEditControls = ControlsFor(EditMode::Edit, "Edit the character");
constexpr auto kEnterControls = ControlsFor(EditMode::Paper, "Input your own character");
constexpr std::string_view kMainEditHelp =
    "The character in memory, page by page. What play changes stands first: experience and classes, hit points, money "
    "and goods. Everything else that a file holds is below. Each page takes effect with its own OK, and OK here keeps "
    "them all; Cancel leaves him as he was. It is the referee's: it costs nothing, asks no rule, and tells where a "
    "rule is broken.";
constexpr FormTemplate kMainEdit{"MainEdit", "Edit", kMainEditControls, kMainEditHelp};
constexpr std::string_view kEnterHelp =
    "For a character that lives on paper. Next leads through the pages in the order of a sheet, and each can be "
    "opened by itself and again. Write down what the sheet says: nothing is rolled, nothing costs, and levels typed "
    "in raise nothing. A page that does not concern him may stay empty. OK makes him the character in memory; save "
    "him then.";
constexpr FormTemplate kEnter{"Enter", "Input own character", kEnterControls, kEnterHelp};

/// "Person and notes" of "&Person and notes".
std::string PlainText(std::string_view button) {
  std::string text(button);
  std::erase(text, '&');
  return text;
}

void BringUpToDateAll(Game& game, EditMode mode) {
  BringClassesUpToDate(game, {.HasTraining = false, .IsRolled = mode != EditMode::Paper});
  ComputeCarriedWeight(game);
}

void ShowCharacter(const Game& game, Form& form) {
  const CharacterSheet& sheet = game.sheet;
  const bool hasClass = sheet.ClassName != kNoClass;
  const std::string name = sheet.CharacterName.Empty() ? "Without a name" : DisplayText(sheet.CharacterName);
  form.SetText(kWho, Format("%s, %s %s, %s", name, sheet.Gender, sheet.RaceName,
                            hasClass ? Format("%s %s", sheet.ClassName, sheet.LevelText) : "no class yet"));
  form.SetText(
      kWhat, Format("%i hit points, Honor %i, %i gold, carries %g of %i pounds before it is a burden", sheet.HitPoints,
                    sheet.Honor, sheet.GoldPieces, sheet.CarriedWeightLbs, sheet.WeightAllowanceLight));
}

/// The first page from `page` on that a character has on paper; the number of pages if there is none.
std::size_t NextOnPaper(const Game& game, std::size_t page) {
  while (page < kPages.size() && !kPages[page].IsOnPaper(game)) ++page;
  return page;
}

class EditorHub {
 public:
  EditorHub(Game& game, EditMode mode) : game_(game), mode_(mode), form_(mode == EditMode::Paper ? kEnter : kMainEdit) {
    form_.onOpened = [this] {
      form_.Focus(kFirstOften);
      Show();
    };
    form_.onCommand = [this](int id) { Command(id); };
  }

  bool Run() {
    game_.platform.RunForm(form_);
    return isAccepted_;
  }

 private:
  void Show() {
    ShowCharacter(game_, form_);
    if (mode_ != EditMode::Paper) return;
    next_ = NextOnPaper(game_, next_);
    const bool isDone = next_ == kPages.size();
    form_.SetText(kNext, isDone ? std::string("&Done") : "&Next: " + PlainText(kPages[next_].Button));
    form_.Focus(kNext);
  }

  void Open(std::size_t page) {
    kPages[page].Run(game_, mode_);
    next_ = page + 1;
    BringUpToDateAll(game_, mode_);
    Show();
  }

  void Accept() {
    if (game_.sheet.ClassName == kNoClass) {
      game_.platform.ShowMessage("A character needs a class before he can be kept: see Experience and classes.");
      return form_.Focus(kFirstOften);
    }
    isAccepted_ = true;
    form_.Close();
  }

  void Command(int id) {
    if (id == kCancel) return form_.Close();
    if (id == kOk || (id == kNext && next_ == kPages.size())) return Accept();
    Open(id == kNext ? next_ : static_cast<std::size_t>(id - kFirstPage));
  }

  Game& game_;
  EditMode mode_;
  Form form_;
  std::size_t next_ = 0;
  bool isAccepted_ = false;
};

bool RunEditor(Game& game, EditMode mode, const CharacterBackup& before) {
  game.run.CurrentStep = 0;
  const bool isAccepted = EditorHub(game, mode).Run();
  if (!isAccepted) {
    before.Restore(game);
    return false;
  }
  BringUpToDateAll(game, mode);
  KeepRecoveryCopy(game);
  return true;
}

/// A person of no particular looks, so that only what is different needs to be typed.
void BeginOnPaper(Game& game) {
  CharacterSheet& sheet = game.sheet;
  sheet.CharacterName = "";
  sheet.RaceName = "Human";
  sheet.Gender = "Male";
  sheet.Alignment = "Neutral  ";
  sheet.Handedness = "Right";
  sheet.Honor = 10;
  for (int ability = 0; ability < kAbilityCount; ++ability) AbilityAt(sheet, ability) = {10, 50};
  const RaceRecord& race = RaceTable()[static_cast<std::size_t>(FindRaceRow(sheet.RaceName, sheet.Gender))];
  const auto average = [](int base, int sides, int count) { return base + count * (sides + 1) / 2; };
  sheet.Age = average(race.AgeBase, race.AgeDieSides, race.AgeDieCount);
  sheet.HeightInches = average(race.HeightBase, race.HeightDieSides, race.HeightDieCount);
  sheet.WeightLbs = average(race.WeightBase, race.WeightDieSides, race.WeightDieCount);
  TakeNativeLanguage(game, RaceLanguages(game).front());
  game.isFinished = true;
}

}  // namespace

bool RunMainEdit(Game& game) {
  if (game.sheet.ClassName == kNoClass) {
    game.platform.ShowMessage("You must have a character in memory to enter the edit section.");
    return false;
  }
  KeepRecoveryCopy(game);
  const CharacterBackup before(game);
  BringUpToDateAll(game, EditMode::Edit);
  return RunEditor(game, EditMode::Edit, before);
}

bool RunEnter(Game& game) {
  CloseStepThree(game);
  KeepRecoveryCopy(game);
  const CharacterBackup before(game);
  ResetCharacter(game);
  BeginOnPaper(game);
  BringUpToDateAll(game, EditMode::Paper);
  return RunEditor(game, EditMode::Paper, before);
}

}  // namespace veld
