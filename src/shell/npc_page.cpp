#include "shell/npc_page.h"

#include <algorithm>
#include <filesystem>

#include "generation/main_title.h"
#include "generation/sheet_formats.h"
#include "npc/npc.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "print/print_dialog.h"
#include "steps/finish/alignment.h"
#include "steps/race/step_three.h"
#include "store/character_file.h"
#include "store/recovery.h"
#include "store/safe_file.h"
#include "text/file_name.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

namespace fs = std::filesystem;

enum : int {
  kRace = 3021,
  kClass = 3022,
  kGender = 3023,
  kAlignment = 3024,
  kLevel = 3000,
  kCount = 3001,
  kName = 3002,
  kSeed = 3003,
  kYouth = 3004,
  kOutcome = 10,
  kMade = 3025,
  kMake = 1,
  kTake = 3,
  kSaveAll = 4,
  kPrintAll = 5,
  kClose = 2,
};

constexpr int kMostMade = 200;
constexpr int kNameLimit = 60;
constexpr int kListWidth = 74;
constexpr std::string_view kAny = "any";

constexpr ControlTemplate kNpcControls[] = {
    LabelAt(0, 0, "&Race"),
    ComboAt(0, 1, kRace, 22),
    LabelAt(0, 2, "&Class"),
    ComboAt(0, 3, kClass, 26),
    LabelAt(1, 0, "&Gender"),
    ComboAt(1, 1, kGender, 22),
    LabelAt(1, 2, "&Alignment"),
    ComboAt(1, 3, kAlignment, 26),
    LabelAt(2, 0, "&Level, 1 to 20"),
    NumberAt(2, 1, kLevel, 6),
    LabelAt(2, 2, "&How many, 1 to 200"),
    NumberAt(2, 3, kCount, 6),
    LabelAt(3, 0, "&Name"),
    EditAt(3, 1, kName, 22, kNameLimit),
    LabelAt(3, 2, "S&eed, to make them again"),
    NumberAt(3, 3, kSeed, 12),
    CheckAt(4, 0, kYouth, "Plays his &youth, where a book in use tells it", 4),
    {.Kind = ControlKind::Button, .Id = kMake, .Row = 5, .Text = "&Make", .ColumnSpan = 4, .Role = ButtonRole::Default},
    ButtonAt(5, 0, kTake, "&Take into memory"),
    ButtonAt(5, 0, kSaveAll, "&Save all..."),
    ButtonAt(5, 0, kPrintAll, "&Print all..."),
    ButtonAt(5, 0, kClose, "Close", ButtonRole::Cancel),
    TextAt(6, 0, kOutcome, "", kListWidth, 2, 1, 4),
    LabelAt(7, 0, "Those who &came out", 4),
    {.Kind = ControlKind::List, .Id = kMade, .Row = 8, .Width = kListWidth, .Lines = 9, .ColumnSpan = 4},
};
constexpr std::string_view kNpcHelp =
    "Characters for the referee, made by the rules from the first dice to the last level: tell what is wanted, leave "
    "at "
    "any what the dice may choose, and press Make. Each plays the whole run by himself, buys what his class lives by, "
    "and "
    "gains his levels with training. A wish that the rules forbid is told, with the reason.\n\n"
    "The same wishes and seed make the same characters again; without a seed the dice choose one, which is told. "
    "Choose "
    "one of the list and press Take into memory to look at him, edit or print him; Save all writes each to a file of "
    "his "
    "own. Nobody in the list costs anything, and the character in memory is left alone until you take one.";
constexpr FormTemplate kNpcs{"NPCs", "GM - NPCs", kNpcControls, kNpcHelp};

constexpr FileFilter kSaveAllFilters[] = {
    {"Each as character file (*.VLF)", ".vlf"}, {"Each as text (*.TXT)", ".txt"}, {"Each as table (*.CSV)", ".csv"},
    {"Each as HTML (*.HTML)", ".html"},         {"Each as XML (*.XML)", ".xml"},  {"Each as PDF (*.PDF)", ".pdf"},
};

std::vector<std::string> WithAny(std::vector<std::string> items) {
  items.insert(items.begin(), std::string(kAny));
  return items;
}

/// What is chosen in a box; empty for "any".
std::string Wish(const Form& form, int box) {
  std::string text = form.SelectedText(box);
  return text == kAny ? std::string() : text;
}

/// The page at work.
class NpcPage {
 public:
  explicit NpcPage(Game& game) : game_(game), workshop_(MakeGame(game.platform)) {
    workshop_->dice.LogMode = DiceLogMode::Off;
    workshop_->EquipmentTable = game.EquipmentTable;
    workshop_->SpellTable = game.SpellTable;
    workshop_->RuleSwitches = game.RuleSwitches;
  }

  void Run() {
    form_.onOpened = [this] { Fill(); };
    form_.onSelect = [this](int id) {
      if (id == kRace || id == kGender) ListClasses();
      ShowButtons();
    };
    form_.onCommand = [this](int id) { Command(id); };
    game_.platform.RunForm(form_);
  }

 private:
  void Fill() {
    std::vector<std::string> alignments;
    for (const std::string_view name : kAlignmentNames) alignments.emplace_back(TrimRight(name));
    form_.SetItems(kRace, WithAny(NpcRaces(game_.RuleSwitches)));
    form_.SetItems(kGender, WithAny({"Male", "Female"}));
    form_.SetItems(kAlignment, WithAny(std::move(alignments)));
    for (const int box : {kRace, kGender, kAlignment}) form_.Select(box, 0);
    ListClasses();
    form_.SetNumber(kLevel, 1);
    form_.SetNumber(kCount, 1);
    ListMade();
    form_.Focus(kRace);
  }

  /// The classes open to the race and the gender; the one that was chosen stays if it can.
  void ListClasses() {
    const std::string before = form_.SelectedText(kClass);
    std::vector<std::string> classes =
        WithAny(NpcClasses(game_.RuleSwitches, Wish(form_, kRace), Wish(form_, kGender)));
    const auto same = std::ranges::find(classes, before);
    const int chosen = same == classes.end() ? 0 : static_cast<int>(same - classes.begin());
    form_.SetItems(kClass, std::move(classes));
    form_.Select(kClass, chosen);
  }

  void ListMade() {
    std::vector<std::string> lines;
    for (const MadeNpc& npc : game_.npcs) lines.push_back(npc.Line);
    form_.SetItems(kMade, std::move(lines));
    if (!game_.npcs.empty()) form_.Select(kMade, 0);
    ShowButtons();
  }

  void ShowButtons() {
    form_.SetEnabled(kTake, form_.Selection(kMade) >= 0);
    form_.SetEnabled(kSaveAll, !game_.npcs.empty());
    form_.SetEnabled(kPrintAll, !game_.npcs.empty());
  }

  void Tell(std::string_view outcome) { form_.SetText(kOutcome, outcome); }

  void Command(int id) {
    switch (id) {
      case kMake:
        return Make();
      case kTake:
        return Take();
      case kSaveAll:
        return SaveAll();
      case kPrintAll:
        return PrintAll();
      case kClose:
        return form_.Close();
      default:
        return;
    }
  }

  void Make() {
    const std::int64_t level = form_.Number(kLevel);
    const std::int64_t count = form_.Number(kCount);
    if (level < 1 || level > kHighestNpcLevel) return Refuse(kLevel, "The level is a number from 1 to 20.");
    if (count < 1 || count > kMostMade) return Refuse(kCount, "How many is a number from 1 to 200.");
    NpcWishes wishes{.race = Wish(form_, kRace),
                     .gender = Wish(form_, kGender),
                     .className = Wish(form_, kClass),
                     .level = static_cast<int>(level),
                     .alignment = Wish(form_, kAlignment),
                     .books = {},
                     .hasYouth = form_.IsChecked(kYouth),
                     .name = form_.Text(kName),
                     .seed = SeedWished()};
    MakeAll(wishes, static_cast<int>(count));
  }

  void Refuse(int field, std::string_view why) {
    Tell(why);
    form_.Focus(field);
  }

  /// The seed in its field; without one the clock's.
  std::uint32_t SeedWished() const {
    const std::int64_t seed = form_.Number(kSeed);
    return static_cast<std::uint32_t>(seed > 0 ? seed : game_.platform.Now() % kMostSeeds);
  }

  void MakeAll(NpcWishes wishes, int count) {
    const std::uint32_t first = wishes.seed;
    std::vector<MadeNpc> made;
    std::string refusal;
    game_.platform.BeginProgress("NPCs", Format("Making %i ...", count));
    for (int i = 0; i < count && refusal.empty(); ++i, ++wishes.seed) {
      if (!game_.platform.ShowProgress(100 * i / count)) {
        refusal = "Broken off.";
        break;
      }
      refusal = maker_.Make(*workshop_, wishes).refusal;
      if (refusal.empty()) made.push_back({.Line = NpcLine(*workshop_), .Bytes = EncodeCharacter(*workshop_)});
    }
    game_.platform.EndProgress();
    if (!made.empty()) {
      Tell(Format("%i made, from seed %i on. %s", made.size(), first, refusal));
      game_.npcs = std::move(made);
      ListMade();
      form_.Focus(kMade);
    } else {
      Tell(refusal);
    }
  }

  void Take() {
    const int chosen = form_.Selection(kMade);
    if (chosen < 0) return;
    const auto draft = std::make_unique<CharacterDraft>();
    const MadeNpc& npc = game_.npcs[static_cast<std::size_t>(chosen)];
    if (DecodeCharacter(npc.Bytes, *draft) != LoadResult::Loaded) return;
    KeepRecoveryCopy(game_);
    TakeCharacter(game_, *draft);
    CloseStepThree(game_);
    UpdateMainTitle(game_, game_.sheet.CharacterName);
    Tell(Format("%s is in memory.", game_.sheet.CharacterName));
  }

  /// Calls `act` with the workshop holding each of the list in turn, until it returns false.
  template <typename Act>
  void ForEachMade(Act act) {
    const auto draft = std::make_unique<CharacterDraft>();
    for (const MadeNpc& npc : game_.npcs) {
      if (DecodeCharacter(npc.Bytes, *draft) != LoadResult::Loaded) continue;
      TakeCharacter(*workshop_, *draft);
      if (!act(*workshop_)) return;
    }
  }

  /// Writes each into the folder that the player chooses, in the format of the file type that he chooses. A file that
  /// is there stays: a name that is taken gets a number.
  void SaveAll() {
    const auto path = game_.platform.AskSavePath("Save all into this folder", kSaveAllFilters, "each by his own name");
    if (!path) return;
    const fs::path folder = fs::path(*path).parent_path();
    const auto isChosen = [&](const SheetFormat& format) {
      return EndsIgnoringCase(*path, Format(".%s", format.Name));
    };
    const auto chosen = std::ranges::find_if(kSheetFormats, isChosen);
    const SheetFormat& format = chosen == kSheetFormats.end() ? kSheetFormats[0] : *chosen;
    int saved = 0;
    ForEachMade([&](Game& npc) {
      const std::string sheet = format.Write(npc);
      if (sheet.empty() || !SaveWholeFile(FreePath(folder, npc, format.Name), sheet)) return false;
      ++saved;
      return true;
    });
    const bool isWhole = saved == static_cast<int>(game_.npcs.size());
    Tell(Format(isWhole ? "%i saved in %s." : "Only %i could be saved in %s.", saved, folder.string()));
  }

  void PrintAll() {
    RunPrintOf(game_, Format("%i characters", game_.npcs.size()), true, [this](const PrintOptions& options) {
      PdfSheets sheets("NPCs", options);
      ForEachMade([&](Game& npc) {
        sheets.Add(npc);
        return true;
      });
      return sheets.Finish();
    });
  }

  static std::string FreePath(const fs::path& folder, const Game& npc, std::string_view extension) {
    const std::string name = FileNamePart(TrimRight(npc.sheet.CharacterName));
    std::error_code error;
    fs::path path = folder / Format("%s.%s", name, extension);
    for (int number = 2; fs::exists(path, error); ++number) path = folder / Format("%s %i.%s", name, number, extension);
    return path.string();
  }

  static constexpr std::int64_t kMostSeeds = 1'000'000'000;

  Game& game_;
  std::unique_ptr<Game> workshop_;  ///< where they are made, apart from the character in memory
  NpcMaker maker_;
  Form form_{kNpcs};
};

}  // namespace

void RunNpcs(Game& game) {
  NpcPage(game).Run();
}

}  // namespace veld
