#include <gtest/gtest.h>

#include <algorithm>

#include "rules/named_rows.h"
#include "rules/spell_book_tables.h"
#include "steps/classes/class_chain.h"
#include "steps/spells/spell_books.h"
#include "steps/spells/spell_dealing.h"
#include "steps/spells/spell_selection.h"
#include "support/game_test.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {
namespace {

using testing::FileText;
using testing::LoadShippedCatalogues;
using testing::TestFolder;

constexpr int kMasterCombo = 3115;
constexpr int kMasterList = 3021;
constexpr int kOwnList = 3022;
constexpr int kAdd = 4001;
constexpr int kRemove = 4002;
constexpr int kAddBelow = 4003;
constexpr int kNext = 122;

class SpellsTest : public testing::GameTest<> {
 protected:
  SpellsTest() { LoadShippedCatalogues(*game); }

  void Mage(const char* className, int classRow, int starting) {
    game->sheet.ClassName = className;
    game->sheet.ClassLevels[static_cast<std::size_t>(classRow)] = 1;
    game->sheet.Intelligence.Whole = 15;
    game->run.StartingSpells = starting;
    game->run.SpellListIndex = 30;
    SetSpellsForLevel(*game, 1);
  }

  int Mark(std::string_view name) const {
    const int row = FindSpell(game->SpellTable, name);
    return row < 0 ? 0 : game->sheet.SpellsKnown[static_cast<std::size_t>(row)];
  }

  std::vector<std::string> Known() const {
    std::vector<std::string> names;
    for (std::size_t row = 0; row < kSpellRows; ++row) {
      if (game->sheet.SpellsKnown[row] > 0) names.emplace_back(game->SpellTable[row].Name);
    }
    return names;
  }

  bool IsOfTable(FirstLevelTable table, std::string_view name) const {
    const NameList names = FirstLevelSpells(table);
    for (int n = 1; n <= names.Count(); ++n) {
      if (SpellNameOf(names.Name(n)) == name) return true;
    }
    return false;
  }

  std::string SpellNameOf(std::string_view printed) const {
    const int row = FindSpell(game->SpellTable, printed);
    return row < 0 ? "" : std::string(game->SpellTable[static_cast<std::size_t>(row)].Name);
  }

  TestFolder folder;
};

TEST_F(SpellsTest, EveryClassOfMageIsDealtWhatItIsOwed) {
  struct Case {
    const char* ClassName;
    int Row;
    int Starting = 3;
    int Least = 3;
  };
  const Case cases[] = {{"Magic-User", 12},
                        {"Battle Mage", 13},
                        {"Blood Mage", 14},
                        {"Illusionist", 24},
                        {"Painted Mage", 58, 4, 4},
                        {"Elementalist: Air", 54},
                        {"Standard Specialist: Enchanter", 23},
                        {"Double Specialist: Necromancer", 34},
                        {"Sole Practitioner: Seer", 43, 8, 4}};
  for (const Case& mage : cases) {
    for (std::uint32_t seed = 0; seed < 40; ++seed) {
      game->sheet.SpellsKnown.fill(0);
      game->sheet.ClassLevels.fill(0);
      game->dice.RandomState = seed;
      Mage(mage.ClassName, mage.Row, mage.Starting);
      GrantStartingSpells(*game);
      LiftSpellBars(*game);
      const auto known = Known();
      EXPECT_GE(static_cast<int>(known.size()), mage.Least) << mage.ClassName << " seed " << seed;
      EXPECT_EQ(std::ranges::count(game->sheet.SpellsKnown, -1), 0);
      if (mage.Row == 13) {
        for (const auto& name : known) EXPECT_TRUE(IsOfTable(FirstLevelTable::C, name)) << name;
      }
    }
  }
  EXPECT_TRUE(Mark("Divining Rod") && Mark("Premonition")) << "a practitioner has the whole row";
}

TEST_F(SpellsTest, MentorsLimitWhatIsTaught) {
  for (const std::size_t mentor : {std::size_t{QuirkRow::PacifistMentor}, std::size_t{QuirkRow::WussMentor}}) {
    for (std::uint32_t seed = 0; seed < 60; ++seed) {
      for (const char* className : {"Magic-User", "Standard Specialist: Invoker", "Battle Mage"}) {
        game->sheet.SpellsKnown.fill(0);
        game->sheet.QuirkCounts.fill(0);
        game->sheet.QuirkCounts[mentor] = 1;
        game->dice.RandomState = seed;
        Mage(className, 12, 3);
        GrantStartingSpells(*game);
        for (const auto& name : Known()) EXPECT_FALSE(IsOfTable(FirstLevelTable::C, name)) << className << name;
      }
    }
  }
  game->sheet.SpellsKnown.fill(0);
  game->sheet.QuirkCounts.fill(0);
  game->sheet.QuirkCounts[QuirkRow::GimpMentor] = 1;
  game->sheet.QuirkCounts[QuirkRow::ChintzyMentor] = 1;
  Mage("Magic-User", 12, 3);
  GrantStartingSpells(*game);
  EXPECT_EQ(game->run.StartingSpells, 2);
  for (std::size_t row = 0; row < kSpellRows; ++row) {
    if (game->sheet.SpellsKnown[row] > 0) {
      EXPECT_FALSE(Contains(game->SpellTable[row].Component, "S"));
    }
  }
  game->sheet.Intelligence.Whole = 18;
  game->run.SpellListIndex = 36;
  EXPECT_EQ(CantripsToChoose(*game), 9);
  game->run.SpellListIndex = 9;
  EXPECT_EQ(CantripsToChoose(*game), 9) << "the quarter is applied once";
}

TEST_F(SpellsTest, ADealEndsWhenNoNameIsFree) {
  const std::uint32_t before = game->dice.RandomState;
  game->sheet.SpellsKnown.fill(kBarredSpell);
  EXPECT_FALSE(DealFirstLevelSpell(*game, FirstLevelTable::A));
  EXPECT_EQ(game->dice.RandomState, before) << "before it rolls";
  for (const char* className : {"Magic-User", "Blood Mage", "Standard Specialist: Abjurer"}) {
    Mage(className, 12, 3);
    GrantStartingSpells(*game);
    EXPECT_EQ(game->dice.RandomState, before) << className;
  }
  game->sheet.SpellsKnown.fill(kUnknownSpell);
  Mage("Double Specialist: Abjurer", 27, 0);
  GrantStartingSpells(*game);
  EXPECT_TRUE(Known().empty()) << "a specialist who is owed nothing gets nothing";
}

TEST_F(SpellsTest, ReadingAndWritingFollowTheChoice) {
  Mage("Painted Mage", 58, 4);
  FinishSpellList(*game);
  EXPECT_GT(Mark("Read Magic"), 0);
  EXPECT_EQ(Mark("Write"), 0);

  game->sheet.SpellsKnown.fill(0);
  Mage("Magic-User", 12, -1);
  game->run.FreeLevel1Spells = 1;
  game->run.FreeAnySpells = 1;
  platform.ExpectForm("FreeSpellSellection", [](Form& form) {
    EXPECT_EQ(form.Text(121), "You may pick any one spell castable by you for free at level 1.");
    EXPECT_EQ(form.Items(kMasterCombo).size(), 9U);
    form.Choose(kMasterList, 0);
    EXPECT_FALSE(form.Text(200).empty());
    form.Press(kAdd);
  });
  platform.ExpectForm("FreeSpellSellection", [](Form& form) {
    EXPECT_EQ(form.Items(kMasterCombo).size(), 17U);
    form.Press(kAdd);
    EXPECT_FALSE(form.IsClosed()) << "nothing chosen";
    form.PressCloseBox();
    EXPECT_EQ(form.Text(kNext), "1 spell not chosen; press Close again to leave it");
    form.PressCloseBox();
  });
  FinishSpellList(*game);
  EXPECT_EQ(Mark("Read Magic"), 0) << "no dealing, but the free picks run";
  EXPECT_EQ(Known().size(), 1U);
}

TEST_F(SpellsTest, CantripsAreChosenUpToTheirNumber) {
  Mage("Magic-User", 12, 3);
  game->run.SpellListIndex = 2;
  Play("SpellSellection", RunSpellSellection, [&](Form& form) {
    const auto isDealt = [](const std::string& line) { return line.ends_with("(dealt)"); };
    EXPECT_EQ(std::ranges::count_if(form.Items(kOwnList), isDealt), 3) << "what the tables gave is not put away";
    form.Press(kAdd);  // nothing chosen
    form.Choose(kMasterList, 0);
    for (int i = 0; i < 3; ++i) form.Press(kAdd);  // goes on to the next one
    EXPECT_EQ(form.Text(kNext), "Next: Close");
    EXPECT_EQ(form.Items(kOwnList).size(), 5U);
    EXPECT_EQ(form.Text(121), "You have 0 more slots for this spell level.");
    EXPECT_EQ(KnownCantrips(*game), 2);
    form.Choose(kOwnList, 0);
    form.Press(kRemove);
    EXPECT_EQ(form.Text(121), "You have 1 more slots for this spell level.");
    form.PressCloseBox();
    EXPECT_EQ(form.Text(kNext), "1 cantrip not chosen; press Close again to leave it");
    form.Press(kRemove);  // nothing chosen
    EXPECT_TRUE(form.Text(kNext).starts_with("1 cantrip not"));
    form.Choose(kOwnList, 0);
    form.Press(kRemove);
    EXPECT_EQ(form.Text(kNext), "Next: choose a cantrip and press Add") << "the warning is taken back";
    form.PressCloseBox();
    form.PressCloseBox();
  });
  EXPECT_EQ(KnownCantrips(*game), 0);
  for (const int mark : game->sheet.SpellsKnown) EXPECT_LE(mark, 14);
}

TEST_F(SpellsTest, ManyCantripsAreChosenInAFewPresses) {
  Mage("Magic-User", 12, -1);
  game->run.SpellListIndex = 29;
  Play("SpellSellection", RunSpellSellection, [&](Form& form) {
    form.PressCloseBox();
    EXPECT_EQ(form.Text(kNext), "29 cantrips not chosen; press Close again to leave them");
    form.Choose(kMasterList, 3);
    const std::string above = form.Items(kMasterList)[2];
    int presses = 0;
    for (int group = 1; KnownCantrips(*game) < 29; ++group, presses += 2) {
      form.Press(kAddBelow);
      form.Choose(kMasterCombo, group);
    }
    EXPECT_LT(presses, 9);
    EXPECT_EQ(KnownCantrips(*game), 29);
    EXPECT_EQ(Mark(above), 0);
    form.PressCloseBox();
  });
  game->run.SpellListIndex = 200;
  Play("SpellSellection", RunSpellSellection, [&](Form& form) {
    for (int group = 0; group < 8; ++group) {
      form.Choose(kMasterCombo, group);
      form.Press(kAddBelow);
      EXPECT_EQ(form.Text(kNext), group < 7 ? "Next: choose from another group" : "Next: Close");
    }
    EXPECT_EQ(CantripsLeft(*game), 0) << "places that no cantrip is left for are not missed";
    form.PressCloseBox();
  });
}

TEST_F(SpellsTest, TheFirstBookHoldsTheKnownSpells) {
  MakeFirstSpellBook(*game);
  EXPECT_TRUE(game->sheet.SpellBooks[0].Name.Empty()) << "no spell, no book";

  game->sheet.SpellsKnown[0] = 2;
  game->sheet.SpellsKnown[200] = 3;
  game->sheet.QuirkCounts[QuirkRow::LargeHandwriting] = 1;
  for (std::uint32_t seed = 0;; ++seed) {
    game->dice.RandomState = seed;
    ClearSpellBook(*game, 0);
    MakeFirstSpellBook(*game);
    if (game->sheet.SpellBooks[0].FormatIndex != kNonStandardFormat) break;
  }
  const SpellBook& book = game->sheet.SpellBooks[0];
  EXPECT_EQ(book.Name, "First Spellbook");
  EXPECT_EQ(book.SpellRows[200], 6);
  EXPECT_EQ(book.LastPage, 10);
  const std::string text = SpellBookText(*game, 0);
  EXPECT_TRUE(Contains(text, "First Spellbook\nStandard: ")) << text;
  EXPECT_TRUE(Contains(text, Format("%s: 6\n", game->SpellTable[200].Name))) << text;

  game->sheet.CharacterName = "A/B";
  platform.ExpectQuestion("Save First Spellbook SpellBook?", Answer::Yes);
  SaveSpellBooks(*game);
  EXPECT_EQ(FileText("A_B spellbook 0.txt"), text);

  game->sheet.SpellsKnown.fill(5);
  ClearSpellBook(*game, 0);
  game->run.BuildingPoints = 1;
  platform.ExpectQuestion("Table 7G: Spell Book Format, Keep your result of ", Answer::No);
  MakeFirstSpellBook(*game);
  EXPECT_EQ(game->run.BuildingPoints, 0);
}

TEST_F(SpellsTest, FullBooksAreFollowedByFurtherOnesOfTheSameMake) {
  constexpr std::size_t kKnown = 150;
  constexpr std::size_t kOld = 1;  // a book that he has already
  game->sheet.QuirkCounts[QuirkRow::LargeHandwriting] = 1;
  bool hasNonStandard = false;
  std::size_t mostBooks = 0;
  for (std::uint32_t seed = 0; seed < 300; ++seed) {
    game->dice.RandomState = seed * 2'654'435'769U;
    game->sheet.SpellsKnown.fill(0);
    for (std::size_t row = 200; row < 200 + kKnown; ++row) {
      game->sheet.SpellsKnown[row] = row == 300 ? 500 : static_cast<int>(row % 7) + 1;
    }
    for (std::size_t place = 0; place < kSpellBooks; ++place) ClearSpellBook(*game, place);
    game->sheet.SpellBooks[kOld].Name = "Old";
    MakeFirstSpellBook(*game);
    const SpellBook& first = game->sheet.SpellBooks[0];
    const bool isStandard = first.FormatIndex != kNonStandardFormat;
    hasNonStandard = hasNonStandard || !isStandard;
    EXPECT_EQ(first.Name, "First Spellbook");
    EXPECT_EQ(game->sheet.SpellBooks[2].Name, "Second Spellbook") << "a list holds a hundred names";
    EXPECT_TRUE(game->sheet.SpellBooks[kOld].Pages[0].Empty());
    std::size_t written = 0;
    std::size_t books = 0;
    for (const SpellBook& book : game->sheet.SpellBooks) {
      if (book.Name.Empty() || book.Name == "Old") continue;
      ++books;
      const auto names = std::ranges::count_if(book.Pages, [](const auto& name) { return !name.Empty(); });
      written += static_cast<std::size_t>(names);
      EXPECT_TRUE(!isStandard || book.LastPage <= book.PageCount || names == 1) << book.Name.View();
      EXPECT_EQ(book.FormatName, first.FormatName);
      EXPECT_EQ(book.ThicknessText, first.ThicknessText);
    }
    mostBooks = std::max(mostBooks, books);
    EXPECT_TRUE(books < 12 || game->sheet.SpellBooks[12].Name == "Twelfth Spellbook");
    EXPECT_EQ(written, kKnown) << "every spell has its place";
    const std::string_view weight = first.WeightText;
    if (const auto point = weight.find('.'); isStandard && point < weight.find(" lbs.")) {
      EXPECT_LE(weight.find(" lbs.") - point, 3U) << weight;
    }
  }
  EXPECT_TRUE(hasNonStandard);
  EXPECT_GE(mostBooks, 12U);
}

TEST_F(SpellsTest, ANonStandardBookCountsPieces) {
  SpellBook& book = game->sheet.SpellBooks[0];
  book.Name = "First Spellbook";
  book.FormatIndex = kNonStandardFormat;
  book.SizeIndex = 1;  // stone tablets hold five levels
  book.FormatName = "Stone Tablets";
  const auto ninth = std::ranges::find_if(game->SpellTable, [](const SpellRecord& spell) { return spell.Level == 9; });
  book.Pages[0] = ninth->Name.View();
  EXPECT_EQ(SpellBookText(*game, 0), Format("First Spellbook\nStone Tablets\n2\n%s: 2\n", ninth->Name));
}

}  // namespace
}  // namespace veld
