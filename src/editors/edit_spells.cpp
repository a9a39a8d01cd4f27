#include "editors/edit_spells.h"

#include <algorithm>

#include "editors/held_page.h"
#include "rules/named_rows.h"
#include "steps/spells/spell_dealing.h"
#include "store/sheet_accessors.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

constexpr std::string_view kHelp =
    "The spells that a mage knows. Choose one in the catalogue and Add it, with the pages that it fills in his book; "
    "Set changes the pages, Remove makes him forget. Learning costs nothing here: the roll for it was made at the "
    "table. Cancel puts everything back.";

constexpr std::string_view kNoSpell = "Empty";

const SpellRecord& SpellAt(const Game& game, int row) {
  return game.SpellTable[static_cast<std::size_t>(row)];
}
bool IsSpell(const SpellRecord& spell) {
  return !spell.Name.Empty() && spell.Name != kNoSpell;
}
int MarkOf(const Game& game, int row) {
  return game.sheet.SpellsKnown[static_cast<std::size_t>(row)];
}

std::string SpellName(const Game& game, int row) {
  return NameOrRow(IsSpell(SpellAt(game, row)) ? SpellAt(game, row).Name.View() : std::string_view(), row);
}

std::string LevelText(const SpellRecord& spell) {
  return spell.Level == 0 ? "cantrip" : Format("level %i", spell.Level);
}

class Spells : public HeldSource {
 public:
  std::string_view Name() const override { return "Spells"; }

  std::string State(const Game& game) const override {
    return Format("Spells known: %i", std::ranges::count_if(game.sheet.SpellsKnown, [](int mark) { return mark > 0; }));
  }

  std::vector<HeldLine> Catalogue(const Game& game) const override {
    std::vector<HeldLine> lines;
    lines.reserve(kSpellRecords);
    for (int row = 0; row < static_cast<int>(kSpellRows); ++row) {
      const SpellRecord& spell = SpellAt(game, row);
      if (!IsSpell(spell)) continue;
      lines.push_back({{.Row = row}, Format("%s (%s, %s)", TrimRight(spell.Name), LevelText(spell), spell.Type)});
    }
    return lines;
  }

  std::vector<HeldLine> Held(const Game& game) const override {
    std::vector<HeldLine> lines;
    for (int row = 0; row < static_cast<int>(kSpellRows); ++row) {
      const int mark = MarkOf(game, row);
      if (mark == kUnknownSpell) continue;
      lines.push_back({{.Row = row},
                       mark == kBarredSpell ? SpellName(game, row) + " - barred"
                                            : Format("%s - %i p.", SpellName(game, row), mark)});
    }
    return lines;
  }

  HeldField Field(const Game& game, const HeldPlace& place) const override {
    return {.Label = "&Pages", .First = std::max(SpellAt(game, place.Row).Level, 1)};
  }
  int Value(const Game& game, const HeldPlace& place) const override { return MarkOf(game, place.Row); }

  HeldNote Note(const Game& game, const HeldPlace& place) const override {
    const SpellRecord& spell = SpellAt(game, place.Row);
    HeldNote note;
    if (!IsSpell(spell)) {
      note.Tell("The catalogue has no spell of this number.");
      return note;
    }
    note.Tell(Format("%s, %s, %s, %s", spell.Category, spell.Type, spell.Component, spell.Specialization));
    note.Tell("A generation gives a spell pages of its level and 1d6 - 1.");
    std::string books;
    for (const SpellBook& book : game.sheet.SpellBooks) {
      if (book.Name.Empty() || book.SpellRows[static_cast<std::size_t>(place.Row)] <= 0) continue;
      books += (books.empty() ? "" : ", ") + std::string(book.Name);
    }
    note.Tell(books.empty() ? "It stands in no spell book." : "It stands in: " + books);
    if (game.sheet.IsMageClass != 1) note.Object("The character is no mage.");
    if (HasQuirk(game.sheet, QuirkRow::GimpMentor) && Contains(spell.Component, "S")) {
      note.Object("A Gimp Mentor teaches nothing with a somatic component.");
    }
    return note;
  }

  HeldChange Add(Game& game, const HeldPlace& place, int value) const override { return Set(game, place, value); }
  HeldChange Set(Game& game, const HeldPlace& place, int value) const override {
    game.sheet.SpellsKnown[static_cast<std::size_t>(place.Row)] = value;
    return {place};
  }
  HeldChange Remove(Game& game, const HeldPlace& place) const override { return Set(game, place, kUnknownSpell); }
};

}  // namespace

void RunEditSpells(Game& game) {
  static const Spells spells;
  const HeldSource* const sources[] = {&spells};
  RunHeldPage(game, "EditSpells", "Spells Known", kHelp, sources);
}

}  // namespace veld
