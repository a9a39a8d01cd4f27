#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/game.h"

namespace veld {

class Form;

// What all printed sheets show, gathered once from the character and the catalogues as one ordered list of facts. A
// fact says in its own line where and how each format prints it, and the writers only walk the list: a new fact is a
// new line here and nothing elsewhere. The list has the order of the text sheet; on the tab-separated sheet a fact belongs
// to a row, and the HTML sheet and the one on paper place block by block. The names of catalogues come without the blanks at their ends; texts that players
// typed are one line each, tabs and line ends read as blanks.

/// How a format prints a fact: a pattern for the value, or for the label and the value. Empty: not at all.
struct SheetPart {
  constexpr SheetPart() = default;
  constexpr SheetPart(const char* pattern, bool showsLabel = false) : Pattern(pattern), ShowsLabel(showsLabel) {}
  std::string_view Pattern;
  bool ShowsLabel = false;
};

/// The rows of the tab-separated sheet in their order.
enum class TabRow {
  None,
  Facts,
  Abilities,
  Saves,
  HitPoints,
  WeaponNames,
  WeaponSpeeds,
  WeaponRanges,
  WeaponTypes,
  WeaponBsl,
  WeaponDamages,
  Accomplishments,
  AccomplishmentValues,
  ClassNames,
  ClassExperience,
  ClassNextLevels,
  Encumbrance,
  Movement,
  Quirks,
  Coins,
  Inventory,
  ClassAbilities,
  Count,
};

/// A fact's place on the tab-separated sheet: facts of a row are sorted by Order, those of one Order as they are
/// listed.
struct SheetTab {
  TabRow Row = TabRow::None;
  SheetPart Part;
  int Order = 0;
};

/// What a fact is on the HTML sheet.
enum class SheetForm {
  Fact,          ///< label and value: of a block of facts, of a list, or under a table
  RowHead,       ///< the value begins a row of a table
  Cell,          ///< the value alone
  Effect,        ///< label and value, gathered in the last cell of a row; without a value not shown
  MarkupEffect,  ///< an effect whose value is markup
  Hidden,        ///< not on the HTML sheet
};

struct SheetFact {
  std::string Label;
  std::string Value;
  SheetPart Text;  ///< its part of the text sheet
  SheetTab Tab;
  SheetForm Form = SheetForm::Fact;
  std::string_view Html = "%s";  ///< the value's pattern on the HTML sheet
};

enum class SheetLevel {
  None,  ///< goes on under the heading before
  Part,
  Section,
  ShortSection,  ///< kept on one page
};

/// How the HTML sheet shows a block.
enum class SheetShape { Heading, Facts, LongFacts, Table, List, WideList, CheckList, Note };

/// Facts that stand together.
struct SheetBlock {
  std::string_view Title = {};
  SheetLevel Level = SheetLevel::None;
  SheetShape Shape = SheetShape::Heading;
  std::string TextLead = {};                   ///< what the text sheet has before the facts: headings, column heads
  std::string_view TextTail = {};              ///< and after them
  std::vector<std::string_view> Columns = {};  ///< the heads of a table; a first of them is for the rows' heads
  std::string_view TextColumn = {};            ///< the column of effects if there is one
  std::vector<SheetFact> Facts = {};
};

struct SheetContent {
  std::string Name;      ///< of the character
  std::string Subtitle;  ///< race, class and level
  std::vector<SheetBlock> Blocks;
  int Picks = 0;  ///< abilities taken for a weapon: "Quick Draw", "Dagger"
};

/// Brings all that follows from abilities and classes up to date: once and for all, so that a second sheet of the
/// character is the same as the first.
void BringUpToDate(Game& game);

/// What there is to print of a character that is up to date.
SheetContent GatherSheet(const Game& game);

/// A fact as one of its patterns prints it.
std::string PrintedPart(const SheetPart& part, const SheetFact& fact);

}  // namespace veld
