// The printed characters: finished ones are kept as files beside the sheets that they print.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include "golden_characters.h"
#include "rules/class_table.h"
#include "rules/proficiency_table.h"
#include "sheets/character_page.h"
#include "sheets/html_sheet.h"
#include "sheets/sheet_content.h"
#include "sheets/sheet_facts.h"
#include "sheets/sheet_save.h"
#include "sheets/tab_sheet.h"
#include "sheets/text_sheet.h"
#include "sheets/xml_sheet.h"
#include "steps/classes/class_recalculation.h"
#include "store/character_file.h"
#include "store/sheet_accessors.h"
#include "support/scripted_platform.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {
namespace {

namespace fs = std::filesystem;
using testing::FileText;
using testing::GoldenNames;
using testing::kGolden;
using testing::ScriptedPlatform;
using testing::ShippedGame;
using testing::TestFolder;

std::vector<std::string_view> LinesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
    lines.push_back(text.substr(0, end));
    text.remove_prefix(end);
  }
  return lines;
}

/// The first line that differs, with what stands before it; empty if nothing does.
std::string Difference(std::string_view expected, std::string_view actual) {
  if (expected == actual) return {};
  const auto wanted = LinesOf(expected);
  const auto found = LinesOf(actual);
  const auto [want, got] = std::mismatch(wanted.begin(), wanted.end(), found.begin(), found.end());
  std::string told = Format("first difference in line %i:\n", want - wanted.begin() + 1);
  constexpr std::ptrdiff_t kContext = 3;
  for (auto line = want - std::min(kContext, want - wanted.begin()); line != want; ++line)
    told += Format("    %s", *line);
  told += Format("  - %s", want == wanted.end() ? "(the end)\n" : *want);
  told += Format("  + %s", got == found.end() ? "(the end)\n" : *got);
  return told;
}

/// VELD_WRITE_GOLDEN=1 writes the sheets anew; what changed is then read before it is kept.
void ExpectGolden(const std::string& path, const std::string& actual) {
  if (std::getenv("VELD_WRITE_GOLDEN")) testing::WriteText(path, actual);
  ASSERT_TRUE(fs::exists(path)) << path;
  EXPECT_EQ(Difference(FileText(path), actual), "") << path;
}

/// True if all that is opened is closed in turn.
bool IsWellFormed(std::string_view html) {
  std::vector<std::string> open;
  for (std::size_t at = html.find('<'); at != std::string_view::npos; at = html.find('<', at + 1)) {
    const std::string_view tag = html.substr(at + 1, html.find('>', at) - at - 1);
    const std::string name(
        tag.substr(tag.starts_with('/') ? 1 : 0, tag.find_first_of(" >") - (tag.starts_with('/') ? 1 : 0)));
    if (name == "!DOCTYPE" || name == "meta") continue;
    if (!tag.starts_with('/')) {
      open.push_back(name);
    } else {
      if (open.empty() || open.back() != name) return false;
      open.pop_back();
    }
  }
  return open.empty();
}

/// The XML sheet but for the classes' tables of a hundred levels, which are the most of it.
std::string WithoutLevelTables(std::string xml) {
  for (std::size_t at = 0; (at = xml.find("<CLASS_HITPOINTS_0>", at)) != std::string::npos;) {
    xml.erase(at, xml.find("</CLASS_DATA>", at) - at);
  }
  return xml;
}

/// The characters that together have every part of the XML sheet; the others are only read back.
bool IsPrintedAsXml(std::string_view name) {
  constexpr std::string_view kNames[] = {"assassin",     "barbarian", "bard",        "bounty_hunter",
                                         "fighter_mage", "monk",      "multi_class", "odd_texts",
                                         "pixie_fairy",  "thief",     "zealot"};
  return std::ranges::find(kNames, name) != std::end(kNames);
}

class SheetsTest : public ::testing::Test {
 protected:
  void Load(const std::string& name) { ASSERT_TRUE(LoadCharacterFile(*game, kGolden + name + ".vlf")) << name; }

  TestFolder folder;
  ScriptedPlatform platform;
  std::unique_ptr<Game> game = ShippedGame(platform);
};

TEST_F(SheetsTest, FinishedCharactersPrintAsTheyWereRead) {
  const auto names = GoldenNames();
  EXPECT_GE(names.size(), 12U);
  for (const std::string& name : names) {
    SCOPED_TRACE(name);
    Load(name);
    const auto loaded = std::make_unique<CharacterSheet>(game->sheet);
    const std::string html = HtmlSheet(*game);
    const std::string printed = EncodeCharacter(*game);
    ExpectGolden(kGolden + name + ".txt", TextSheet(*game));
    ExpectGolden(kGolden + name + ".csv", TabSheet(*game));
    ExpectGolden(kGolden + name + ".html", html);
    if (IsPrintedAsXml(name)) ExpectGolden(kGolden + name + ".xml", WithoutLevelTables(XmlSheet(*game)));
    EXPECT_TRUE(IsWellFormed(html));
    EXPECT_EQ(HtmlSheet(*game), html) << "a second sheet is the same";
    EXPECT_TRUE(EncodeCharacter(*game) == printed) << "printing again changes nothing of the character";
    for (int ability = 0; ability < kAbilityCount; ++ability) {
      EXPECT_EQ(AbilityAt(game->sheet, ability), AbilityAt(*loaded, ability)) << AbilityName(ability);
    }
  }
}

TEST_F(SheetsTest, ALevelThatChangesIsOnTheFirstSheetAlready) {
  platform.AnswerOthers(Answer::Yes);
  Load("zealot");
  const int row = FindClassRow(game->sheet.ClassName);
  ASSERT_GE(row, 99) << "a class whose gains are added on every recalculation";
  // The experience of the second level: one is lost.
  game->sheet.ClassExperience[static_cast<std::size_t>(row)] =
      static_cast<float>(ClassTable()[static_cast<std::size_t>(row)].ExperienceForLevel[2]);
  const std::string text = TextSheet(*game);
  EXPECT_TRUE(Contains(text, " lvl: 2 EXP"));
  EXPECT_EQ(Difference(text, TextSheet(*game)), "");
}

TEST_F(SheetsTest, EachSheetIsSavedAndToldOrRefusedWhole) {
  Load("thief");
  const std::string pick = TextSheet(*game);
  ASSERT_TRUE(Contains(pick, "Quick Draw: Dagger"));
  EXPECT_TRUE(SaveTextSheet(*game, "a.txt"));
  EXPECT_TRUE(platform.Showed("VELD: Character Saved in text format"));
  EXPECT_EQ(FileText("a.txt"), pick);
  EXPECT_FALSE(platform.Showed("Weapon With Text"));
  EXPECT_TRUE(SaveTabSheet(*game, "a.csv"));
  EXPECT_TRUE(platform.Showed("VELD: Weapon With Text")) << "a box for each pick";
  EXPECT_TRUE(platform.Showed("VELD: Character Saved in tab-deliminated  format"));
  EXPECT_TRUE(SaveHtmlSheet(*game, "a.html"));
  EXPECT_TRUE(SaveXmlSheet(*game, "a.xml"));
  EXPECT_TRUE(platform.Showed("VELD: Character Saved in extensible markup language format"));
  EXPECT_EQ(FileText("a.xml"), XmlSheet(*game));
  platform.messages.clear();

  const SaveWay full{.DiskRoom = 100, .Flush = false};
  testing::WriteText("a.csv", "old");
  EXPECT_FALSE(SaveTextSheet(*game, "none/a.txt"));
  EXPECT_FALSE(SaveTabSheet(*game, "a.csv", full));
  EXPECT_FALSE(SaveHtmlSheet(*game, "b.html", full));
  EXPECT_FALSE(SaveXmlSheet(*game, "b.xml", full));
  EXPECT_TRUE(platform.Showed("VELD: Problem creating xml file"));
  EXPECT_FALSE(platform.Showed("Character Saved"));
  EXPECT_TRUE(platform.Showed("VELD: Problem creating text file"));
  EXPECT_TRUE(platform.Showed("VELD: Problem creating csv file"));
  EXPECT_EQ(FileText("a.csv"), "old");
  EXPECT_FALSE(fs::exists("b.html") || fs::exists("b.xml"));
}

TEST_F(SheetsTest, SectionsStandForThoseWhoHaveThem) {
  ResetCharacter(*game);
  CharacterSheet& sheet = game->sheet;
  const auto prints = [&](std::string_view part) { return Contains(TextSheet(*game), part); };
  EXPECT_FALSE(prints("Quirks and Flaws"));
  sheet.QuirkCounts[3] = 2;
  EXPECT_TRUE(prints(" x2\n"));

  sheet.IsClericClass = sheet.UsesClericBackground = 1;
  sheet.PackageName = "";
  EXPECT_FALSE(prints("Package:"));

  sheet.RaceName = "Pixie Fairy";
  sheet.TattooShewkrin = 5;
  EXPECT_TRUE(prints("\n>Shewkrin,    Right Lower Arm, +1AC against all missile attacks\n"));

  sheet.ClassLevels[17] = 2;
  EXPECT_FALSE(prints("Assassin Abilities"));

  const auto longSword =
      std::ranges::find(ProficiencyTable(), "Sword: Long", [](const auto& row) { return TrimRight(row.Name); });
  sheet.ProficiencyLevels[static_cast<std::size_t>(longSword - ProficiencyTable().begin())] = kMasteryMark;
  EXPECT_TRUE(prints("Sword: Long              | +2| +3   |"));

  // A bow of Mastery has no line among the missile weapons, but it is one of the proficiencies.
  sheet.ProficiencyLevels[8] = kMasteryMark;
  EXPECT_FALSE(prints("Bow: Short               |"));
  EXPECT_TRUE(prints("Bow: Short - Mastery \n"));
}

TEST_F(SheetsTest, EveryTextOfAYouthIsPrinted) {
  ResetCharacter(*game);
  CharacterSheet& sheet = game->sheet;
  std::vector<std::string> texts;
  const auto fill = [&](auto&... fields) { ((fields = texts.emplace_back(Format("text %i.", texts.size()))), ...); };
  sheet.IsMageClass = sheet.UsesMageBackground = 1;
  sheet.IsClericClass = sheet.UsesClericBackground = 1;
  sheet.IsFighterClass = sheet.UsesFighterBackground = 1;
  sheet.PackageName = "Hermit";
  fill(sheet.SchoolLocation, sheet.SchoolType, sheet.MasterNurture, sheet.MasterEducation, sheet.GraduatingClassSize,
       sheet.ClassroomEquipment, sheet.GraduatingRank, sheet.HermitTaboo);
  fill(sheet.TheCall, sheet.EcclesiasticalTraining, sheet.SuperiorCompetency, sheet.SuperiorPersonality,
       sheet.ReligiousAccoutrements, sheet.ResidencyLocation, sheet.ResidencyResults, sheet.EducationResults);
  fill(sheet.TrainingCampType, sheet.BasicTrainingQuality, sheet.BasicTrainingResults, sheet.SpecialtyAssignment,
       sheet.AdvancedTrainingQuality, sheet.HostilitiesState, sheet.OccupationAttitude, sheet.OccupationEvents,
       sheet.GuerillaEvents);
  for (auto& text : sheet.TrainingAccidents) fill(text);
  for (auto& text : sheet.Wars) fill(text);
  for (auto& text : sheet.NonCombatTourEvents) fill(text);
  texts.pop_back();  // the last tour is scratch
  for (const std::string& text : texts) {
    EXPECT_TRUE(Contains(TextSheet(*game), ": " + text + " \n")) << text;
    EXPECT_TRUE(Contains(HtmlSheet(*game), "<dd>" + text + "</dd>")) << text;
  }
  sheet.HermitField = "herbs";
  EXPECT_TRUE(Contains(HtmlSheet(*game), "<dt>Hermit Field</dt><dd>herbs</dd>"));
  EXPECT_FALSE(Contains(TextSheet(*game), "herbs")) << "its lay-out is fixed";
}

TEST_F(SheetsTest, WhatThePlayerTypedBreaksNoLayOut) {
  game->sheet.CharacterName = "</title>\t%s&\"'";
  game->sheet.Notes = "one\n<two>";
  EXPECT_TRUE(Contains(HtmlSheet(*game), "<title>&lt;/title&gt; %s&amp;&quot;&#39;</title>"));
  EXPECT_TRUE(Contains(HtmlSheet(*game), "one\n&lt;two&gt;"));
  EXPECT_TRUE(TabSheet(*game).starts_with("Name \t </title> %s&\"' \n"));

  game->sheet.Intelligence = {19, 1};
  EXPECT_TRUE(Contains(HtmlSheet(*game), "<b>1<sup>st</sup>-level</b>")) << "the one effect that is markup";
  EXPECT_TRUE(Contains(TextSheet(*game), "Ill imm: 1<sup>st</sup>-level spell mishap 0 \n"));
}

/// The text of a page as a reader sees it.
std::string Read(std::string html) {
  html.erase(0, html.find("</style>"));
  constexpr std::pair<std::string_view, std::string_view> kMarks[] = {
      {"<sup>", ""}, {"</sup>", ""}, {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&#39;", "'"}, {"&amp;", "&"}};
  for (const auto& [mark, read] : kMarks) {
    for (std::size_t at = 0; (at = html.find(mark, at)) != std::string::npos; at += read.size()) {
      html.replace(at, mark.size(), read);
    }
  }
  return html;
}

TEST_F(SheetsTest, TheWebSheetHasEveryFactInTheOrderOfTheSheetOnPaper) {
  for (const std::string& name : GoldenNames()) {
    SCOPED_TRACE(name);
    Load(name);
    const std::string html = HtmlSheet(*game);
    const std::string text = Read(html);
    for (const SheetBlock& block : GatherSheet(*game).Blocks) {
      for (const SheetFact& fact : block.Facts) {
        if (fact.Form == SheetForm::Hidden || fact.Form == SheetForm::MarkupEffect) continue;
        const bool isShown = fact.Form != SheetForm::Effect || !TrimRight(fact.Value).empty();
        if (!isShown || fact.Label + fact.Value == "") continue;
        for (const std::string& part : {fact.Label, Format(fact.Html, fact.Value)}) {
          EXPECT_TRUE(part.empty() || Contains(text, ">" + part + "<") || Contains(text, part + " <b>"))
              << block.Title << ": " << part;
        }
      }
    }
    std::size_t last = 0;
    for (const std::string_view heading :
         {"Character Information", "Ability Scores", "Hit Points", "Armor and shield", "Saving Throws",
          "Melee Weapons", "Missile Weapons", "Movement and Encumbrance", "Honor", "Thief Abilities", "Classes",
          "Skills", "Talents", "Weapon Proficiencies", "Quirks and Flaws", "Pixie Fairy Tattoos", "Inventory",
          "Coins & Money", "Inheritance and debts", "Family Information", "Fighter Background", "Notes", "Spells",
          "Spell Planner"}) {
      std::size_t at = text.find(Format(">%s</h", heading));
      if (at == std::string::npos) continue;
      EXPECT_LT(last, at) << heading;
      last = at;
    }
  }
  game->sheet.CarriedWeightLbs = 100'000;
  EXPECT_TRUE(Contains(HtmlSheet(*game), "<th scope=\"col\" class=\"now\">Severe</th>"));
  game->sheet.HitPoints = 2'000'000'000;
  EXPECT_LT(HtmlSheet(*game).size(), 40'000U) << "the boxes to tick stand for more then";
}

TEST_F(SheetsTest, GoodsOfTheUsersOwnAreNeverHidden) {
  EquipmentRecord& jar = game->CustomEquipmentTable[0];
  jar.Name = "Jar of teeth";
  jar.Category = 3;
  jar.Weight = 1.5F;
  jar.Quantity = 4;
  EXPECT_TRUE(Contains(TextSheet(*game), "Jar of teeth x4 1.50 lbs \n"));
  EXPECT_TRUE(Contains(TabSheet(*game), "\n Inventory\t Jar of teeth x4 \t 1.50 lbs "));
  EXPECT_TRUE(Contains(HtmlSheet(*game), "Containers: Packs, Bags, Bottles etc."));
}

TEST_F(SheetsTest, TheMainWindowsPageSaysOfAFileJustReadWhatItsSheetDoes) {
  for (const std::string& name : GoldenNames()) {
    Load(name);
    const auto before = std::make_unique<CharacterSheet>(game->sheet);
    const std::vector<PageLine> page = CharacterPage(*game);
    EXPECT_EQ(std::memcmp(before.get(), &game->sheet, sizeof(CharacterSheet)), 0) << name << " is changed by a look";
    BringUpToDate(*game);
    EXPECT_TRUE(CharacterPage(*game) == page) << name;

    const auto told = [&](std::string_view label) {  // by a fact of the label, or under the heading
      const auto says = [&](const PageLine& line) { return line.Label == label || line.Value == label; };
      const auto line = std::ranges::find_if(page, says);
      return line == page.end() ? std::string() : line->Label.empty() ? (line + 1)->Value : line->Value;
    };
    const CharacterSheet& s = game->sheet;
    if (name == "empty") continue;
    EXPECT_EQ(page.front().Value, OneLine(s.CharacterName));
    EXPECT_EQ(told("Class and level"), Format("%s %s", s.ClassName, s.LevelText)) << name;
    EXPECT_EQ(told("Hit points"), Format("%i", s.HitPoints)) << name;
    EXPECT_EQ(told("Honor"), Format("%i, %s", s.Honor, s.HonorCategory)) << name;
    EXPECT_TRUE(told("Burden").starts_with(Format("%.2f lbs, ", s.CarriedWeightLbs))) << name;
    EXPECT_TRUE(told("Strength").starts_with(Format("%i/%i:  ", s.Strength.Whole, s.Strength.Percentile))) << name;
    EXPECT_TRUE(Contains(told("Strength"), Format("open doors %s, bend bars %i%%", s.OpenDoors, s.BendBars))) << name;
    EXPECT_TRUE(told("Saving Throws").starts_with(Format("Paralyzation %i, ", BestSave(s.SaveParalyzation)))) << name;
    EXPECT_TRUE(Contains(told("Saving Throws"), Format(", Staff %i, ", BestSave(s.SaveRod)))) << name;
    for (const HeldAbility& skill : HeldSkills(s)) {
      EXPECT_TRUE(Contains(told("Skills"), Format("%s %i%%", skill.Name, skill.Amount))) << name << skill.Name;
    }
    for (const std::size_t row : KnownSpells(*game)) {
      const SpellRecord& spell = game->SpellTable[row];
      const std::string level = spell.Level < 1 ? "Cantrips" : Format("Level %i", spell.Level);
      EXPECT_TRUE(Contains(told(level), TrimRight(spell.Name))) << name << spell.Name.View();
    }
    for (const HeldWeapon& held : HeldWeapons(s)) {
      EXPECT_TRUE(Contains(told("Weapon Proficiencies"), TrimRight(held.Weapon->Name))) << name;
    }
  }
}

TEST_F(SheetsTest, ThePageBeginsWithHowToBeginAndGrowsWithTheCharacter) {
  EXPECT_TRUE(CharacterPage(*game) == NobodyPage());
  game->run.CurrentStep = 3;
  EXPECT_EQ(CharacterPage(*game).front().Value, "A character without a name");
  EXPECT_EQ(CharacterPage(*game).size(), 10U) << "the Building Points, and the abilities under their heading";
  game->sheet.Intelligence = {19, 1};
  game->sheet.CarriedWeightLbs = 100000;
  const std::vector<PageLine> page = CharacterPage(*game);
  EXPECT_TRUE(Contains(page[6].Value + page[7].Value, "illusion immunity 1st-level, "));
  EXPECT_TRUE(Contains(page[1].Value, "lbs, more than can be carried (light from ")) << page[1].Value;
  for (const std::size_t row : {kCantripRows, kCantripRows - 1, std::size_t{0}}) game->sheet.SpellsKnown[row] = 1;
  const std::vector<PageLine> mage = CharacterPage(*game);
  EXPECT_EQ(mage[mage.size() - 3].Value, "Spells");
  EXPECT_EQ(mage[mage.size() - 2].Label + mage.back().Label, "CantripsLevel 1");
  EXPECT_EQ(std::ranges::count(mage[mage.size() - 2].Value, ';'), 1);
}

}  // namespace
}  // namespace veld
