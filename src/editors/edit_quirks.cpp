#include "editors/edit_quirks.h"

#include <algorithm>

#include "editors/held_page.h"
#include "rules/class_table.h"
#include "rules/named_rows.h"
#include "rules/quirk_table.h"
#include "steps/quirks/held_quirks.h"
#include "steps/quirks/quirk_effects.h"
#include "store/sheet_accessors.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr std::string_view kHelp =
    "What is wrong with him. Choose a quirk in the catalogue and Add it, with how often he has it; Set changes that, "
    "Remove heals him. No BP are paid or taken. The note tells what is against the rules, such as a class closed to "
    "him. Cancel puts everything back.";

constexpr int kBarred = -1;

/// What a row that is held does beyond the classes and abilities.
struct QuirkConsequence {
  int Quirk;
  std::string_view Text;
};
constexpr QuirkConsequence kConsequences[] = {
    {QuirkRow::LossOfEye, "In a generation it takes the depth perception too."},
    {QuirkRow::BlindInOneEye, "In a generation it takes the depth perception too."},
    {QuirkRow::LargeHandwriting, "Spells take twice the pages in a new spell book."},
    {QuirkRow::ChintzyMentor, "A generation deals fewer spells and cantrips with it."},
    {QuirkRow::GimpMentor, "A generation deals no spell with a somatic component with it."},
    {QuirkRow::OldSchoolMentor, "The first spell book is rolled one row down on Table 7G."},
    {QuirkRow::PacifistMentor, "A generation deals no spell of attack with it."},
    {QuirkRow::WussMentor, "A generation deals no spell of attack with it, and fewer spells."},
};

/// "6B" of "Adventurer's Codex 6B: Flaws, Minor (Physical)"; of other tables the name.
std::string_view ShortTable(std::string_view table) {
  const auto letter = std::ranges::find(kQuirkTableLetters, table, &QuirkTableLetter::Table);
  return letter == kQuirkTableLetters.end() ? table : letter->Letter;
}

std::string CatalogueText(int row) {
  const std::string_view table = QuirkAt(row).TableName;
  return table.empty() ? std::string(ShownQuirkName(row))
                       : Format("%s (%s)", TrimRight(ShownQuirkName(row)), ShortTable(table));
}

bool OwesRolls(int row) {
  return QuirkAt(row).Kind == kSubTable || QuirkAt(row).Kind == kRollAgain;
}

std::string_view KindText(int row) {
  switch (QuirkAt(row).Kind) {
    case kMinorQuirk:
      return "Minor";
    case kMajorQuirk:
      return "Major";
    case kRefereeQuirk:
      return "The referee's";
    default:
      return "No quirk itself: it stands for further rolls";
  }
}

/// The catalogue does not tell that the deaf are not hearing impaired.
bool Excludes(int row, int other) {
  const auto& excluded = QuirkAt(row).Excludes;
  return std::ranges::find(excluded, other) != excluded.end() ||
         (row == QuirkRow::Deaf && other == QuirkRow::HearingImpaired);
}

std::string JoinNames(const std::vector<std::string_view>& names) {
  std::string text;
  for (const std::string_view name : names) {
    if (!text.empty()) text += ", ";
    text += TrimRight(name);
  }
  return text;
}

class Quirks : public HeldSource {
 public:
  std::string_view Name() const override { return "Quirks and flaws"; }
  std::string State(const Game& game) const override {
    return Format("Quirks and flaws: %i", HeldQuirkNames(game).size());
  }

  std::vector<HeldLine> Catalogue(const Game&) const override {
    std::vector<HeldLine> lines;
    for (int row = 1; row <= kLastQuirk; ++row) {
      if (!ShownQuirkName(row).empty()) lines.push_back({{.Row = row}, CatalogueText(row)});
    }
    return lines;
  }

  std::vector<HeldLine> Held(const Game& game) const override {
    std::vector<HeldLine> lines;
    for (int row = 0; row < kQuirkRows; ++row) {
      const int count = HeldCount(game, row);
      if (count == 0) continue;
      const std::string name = NameOrRow(ShownQuirkName(row), row);
      lines.push_back({{.Row = row},
                       count == kBarred ? name + " - barred"
                       : count == 1     ? name
                                        : Format("%s x%i", name, count)});
    }
    return lines;
  }

  HeldField Field(const Game&, const HeldPlace&) const override { return {.Label = "&Times"}; }
  int Value(const Game& game, const HeldPlace& place) const override { return HeldCount(game, place.Row); }

  HeldNote Note(const Game& game, const HeldPlace& place) const override {
    const int row = place.Row;
    const QuirkRecord& quirk = QuirkAt(row);
    HeldNote note;
    if (HeldCount(game, row) == kBarred) note.Tell("Barred: Remove frees it, Set gives it.");
    note.Tell(Format("%s, %s", KindText(row), quirk.TableName.empty() ? quirk.Source : quirk.TableName));
    if (OwesRolls(row)) {
      note.Tell("Held, its rolls are made when a generation comes to the quirks.");
    } else {
      note.Tell(Format("A generation pays %i BP for it, this page none", quirk.BPCost));
    }
    if (ChangesAbilities(row)) note.Tell("It changes abilities in a generation; here they stay as they are.");
    const auto consequence = std::ranges::find(kConsequences, row, &QuirkConsequence::Quirk);
    if (consequence != std::end(kConsequences)) note.Tell(consequence->Text);
    TellOfOthers(game, row, note);
    TellOfClasses(game, row, note);
    note.ObjectToBook(game, quirk.Book);
    if (!OwesRolls(row) && HeldCount(game, row) > quirk.MaxCount) {
      note.Object(Format("It can be held %i time%s at most", quirk.MaxCount, quirk.MaxCount == 1 ? "" : "s"));
    }
    if (row == QuirkRow::Baldness && game.sheet.Gender == "Female") note.Object("A woman does not get it.");
    return note;
  }

  HeldChange Add(Game& game, const HeldPlace& place, int value) const override { return Set(game, place, value); }
  HeldChange Set(Game& game, const HeldPlace& place, int value) const override {
    HeldCount(game, place.Row) = value;
    return {place};
  }
  HeldChange Remove(Game& game, const HeldPlace& place) const override {
    game.sheet.QuirkBP[static_cast<std::size_t>(place.Row)] = 0;  // nothing is paid for what is gone
    return Set(game, place, 0);
  }

 private:
  static void TellOfOthers(const Game& game, int row, HeldNote& note) {
    std::vector<std::string_view> excluded;
    std::vector<std::string_view> held;
    for (int other = 1; other <= kLastQuirk; ++other) {
      const bool isExcluded = Excludes(row, other);
      if (isExcluded) excluded.push_back(ShownQuirkName(other));
      if ((isExcluded || Excludes(other, row)) && HeldCount(game, other) > 0) held.push_back(ShownQuirkName(other));
    }
    if (!excluded.empty()) note.Tell("It rules out: " + JoinNames(excluded));
    if (!held.empty()) note.Object("Not together with " + JoinNames(held));
  }

  static void TellOfClasses(const Game& game, int row, HeldNote& note) {
    std::vector<std::string_view> barred;
    std::vector<std::string_view> had;
    for (const int classRow : ClassesBarredBy(row)) {
      const std::string_view name = ClassTable()[static_cast<std::size_t>(classRow)].Name;
      barred.push_back(name);
      if (HasClass(game.sheet, classRow)) had.push_back(name);
    }
    if (!barred.empty()) note.Tell("It closes: " + JoinNames(barred));
    if (!had.empty()) note.Object("The character's class is closed to it: " + JoinNames(had));
  }
};

}  // namespace

void RunEditQuirks(Game& game) {
  static const Quirks quirks;
  const HeldSource* const sources[] = {&quirks};
  RunHeldPage(game, "EditQuirks", "Quirks and Flaws", kHelp, sources);
}

}  // namespace veld
