// The PDF sheet as poppler, a reader of others' making, reads it back.
#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <cstdio>
#include <iterator>
#include <sstream>

#include "print/print_save.h"
#include "sheets/golden_characters.h"
#include "sheets/sheet_content.h"
#include "sheets/text_sheet.h"
#include "store/character_file.h"
#include "support/random_player.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {
namespace {

using testing::GoldenNames;
using testing::kGolden;
using testing::RandomPlayer;
using testing::ShippedGame;

/// What a command prints; it must succeed.
std::string OutputOf(const std::string& command) {
  std::string output;
  FILE* pipe = popen((command + " 2>&1").c_str(), "r");
  std::array<char, 4096> part;
  for (std::size_t got; (got = fread(part.data(), 1, part.size(), pipe)) > 0;) output.append(part.data(), got);
  EXPECT_EQ(pclose(pipe), 0) << command << ": " << output.substr(0, 500);
  return output;
}

std::string WithoutBlanks(std::string text) {
  std::erase_if(text, [](char c) { return std::isspace(static_cast<unsigned char>(c)); });
  return text;
}

std::vector<std::string> WordsOf(const std::string& text) {
  std::istringstream words(text);
  return {std::istream_iterator<std::string>(words), {}};
}

/// A part of a fact as it stands on paper, where the number of a good has a column of its own, as have the parts of a
/// tattoo, and an effect has no markup.
std::string OnPaper(const SheetBlock& block, std::string part) {
  for (const std::string_view mark : {"<sup>", "</sup>"}) {
    if (const auto at = part.find(mark); at != std::string::npos) part.erase(at, mark.size());
  }
  if (block.Title == "Pixie Fairy Tattoos") std::erase_if(part, [](char c) { return c == ',' || c == '>'; });
  const auto number = part.rfind(" x");
  const bool isGood = block.Shape == SheetShape::List && number != std::string::npos;
  return WithoutBlanks(isGood ? part.substr(0, number) : part);
}

/// All that the text sheet prints stands in the text of the document. Notes may go on from page to page.
void ExpectEveryFact(const Game& game, const std::string& text) {
  const std::string printed = WithoutBlanks(text);
  for (const SheetBlock& block : GatherSheet(game).Blocks) {
    for (const SheetFact& fact : block.Facts) {
      if (fact.Text.Pattern.empty()) continue;
      std::vector<std::string> parts{fact.Value, fact.Text.ShowsLabel ? fact.Label : ""};
      if (block.Title == "Notes") parts = WordsOf(fact.Value);
      for (const std::string& part : parts) {
        const std::string bare = OnPaper(block, part);
        EXPECT_TRUE(bare.empty() || Contains(printed, bare)) << block.Title << ": " << part;
      }
    }
  }
}

/// Every word of a document lies inside its margins.
void ExpectNothingCut(double left, double width, double height, double top = 20) {
  std::istringstream lines(OutputOf("pdftotext -bbox a.pdf -"));
  int words = 0;
  for (std::string line; std::getline(lines, line);) {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    constexpr char kWord[] = " <word xMin=\"%lf\" yMin=\"%lf\" xMax=\"%lf\" yMax=\"%lf\"";
    if (std::sscanf(line.c_str(), kWord, &x1, &y1, &x2, &y2) != 4) continue;
    EXPECT_TRUE(x1 >= left && y1 >= top && x2 <= width - 28 && y2 <= height - 24) << line;
    ++words;
  }
  EXPECT_GE(words, 100);
}

class PrintTest : public ::testing::Test {
 protected:
  void Load(const std::string& bytes) {
    const auto draft = std::make_unique<CharacterDraft>();
    ASSERT_EQ(DecodeCharacter(bytes, *draft), LoadResult::Loaded);
    TakeCharacter(*game, *draft);
  }
  std::string Text(const PrintOptions& options = {PaperSize::A4, false}) {
    testing::WriteText("a.pdf", PdfSheet(*game, options));
    return OutputOf("pdftotext -raw a.pdf -");
  }

  testing::TestFolder folder;
  testing::ScriptedPlatform platform;
  std::unique_ptr<Game> game = ShippedGame(platform);
};

TEST_F(PrintTest, EveryFactOfFinishedCharactersIsFoundOnPaper) {
  for (const std::string& name : GoldenNames()) {
    SCOPED_TRACE(name);
    Load(testing::FileText(kGolden + name + ".vlf"));
    const std::string sheet = TextSheet(*game);
    const bool isLetter = name == "thief" || name == "mage";
    ExpectEveryFact(*game, Text({isLetter ? PaperSize::Letter : PaperSize::A4, false}));
    EXPECT_EQ(TextSheet(*game), sheet) << "printing changes nothing of the character";
    ExpectNothingCut(56, isLetter ? 612 : 595, isLetter ? 792 : 842);
    const std::string told = OutputOf("pdfinfo a.pdf");
    EXPECT_TRUE(Contains(told, isLetter ? "612 x 792 pts (letter)" : "595.276 x 841.89 pts (A4)")) << told;
    EXPECT_TRUE(Contains(told, Format("Title:           %s", game->sheet.CharacterName))) << told;
    EXPECT_TRUE(Contains(told, "Author:          Robin")) << told;
    std::istringstream fonts(OutputOf("pdffonts a.pdf | tail -n +3"));
    for (std::string font; std::getline(fonts, font);) {
      const auto columns = WordsOf(font);  // ... embedded, subset, with the letters, object, generation
      ASSERT_GE(columns.size(), 6U) << font;
      EXPECT_EQ(columns[columns.size() - 5] + columns[columns.size() - 3], "yesyes") << font;
    }
  }
}

TEST_F(PrintTest, ACharacterWithEverythingComesOutWhole) {
  Load(testing::FileText(kGolden + "multi_class.vlf"));
  CharacterSheet& sheet = game->sheet;
  const std::string name = "Ἀχιλλεύς-Владимир-" + std::string(43, 'W');
  sheet.CharacterName = name;
  for (std::size_t row = 0; row < 300; ++row) {
    game->EquipmentTable[row].Quantity = 1 + static_cast<int>(row % 12);
    sheet.SkillScores[row] = 1 + static_cast<int>(row % 100);
    sheet.QuirkCounts[2 * row + 1] = 1 + static_cast<int>(row % 2);
    sheet.TalentCounts[row / 3] = 2;
    sheet.ProficiencyLevels[row / 2] = static_cast<int>(row / 2 % 4);
  }
  for (std::size_t row = 0; row < 400; ++row) sheet.SpellsKnown[row] = 1;
  sheet.SkillDetailCounts[3][7] = 12;
  sheet.SkillDetailNames[3][7] = std::string(99, 'M');
  sheet.ClassExperience.fill(1);  // every class that there is
  platform.AnswerOthers(Answer::Yes);
  game->run.SpellsPerLevel.fill(2'000'000'000);
  std::string notes;
  for (int line = 0; notes.size() < 31'900; ++line) notes += Format("word%i%s", line, line % 90 == 0 ? "\n" : " ");
  sheet.Notes = notes + "end-of-notes";
  const std::string text = Text();
  ExpectEveryFact(*game, text);
  ExpectNothingCut(56, 595, 842);
  EXPECT_TRUE(Contains(WithoutBlanks(text), name));
  // Every page has its number; the cards come nine on a page and have it too.
  const auto pages = [](const std::string& all) { return std::ranges::count(all, '\f'); };
  const std::string withCards = Text({PaperSize::Letter, true});
  EXPECT_EQ(pages(withCards) > pages(text) + 400 / 9, true);
  for (const std::string& all : {text, withCards}) {
    for (std::ptrdiff_t page = 1; page <= pages(all); ++page) EXPECT_TRUE(Contains(all, Format("Page %i\n", page)));
  }
  ExpectNothingCut(17, 612, 792, 11);
}

TEST_F(PrintTest, WhateverAFileHoldsIsPrinted) {
  constexpr std::string_view kPieces[] = {"<&>\"'",           "\xE2\x80\xAE", "\xE2\x80\xA9", "\x01\x1F\x7F",
                                          "\xFF\xFE",         "\xEF\xBF\xBF", "\xED\xA0\x80", "\xD7\x90\xD8\xA8",
                                          "\xF0\x9F\x90\x89", "\r\n\t",       "\xC3"};
  const auto names = GoldenNames();
  int printed = 0;
  for (std::uint32_t seed = 0; seed < 60; ++seed) {
    SCOPED_TRACE(seed);
    RandomPlayer player(seed, 20);
    const auto spoilt = ShippedGame(player);
    const auto below = [&](std::size_t limit) { return player.Pick(static_cast<std::uint32_t>(limit)); };
    std::string bytes = testing::FileText(kGolden + names[seed % names.size()] + ".vlf");
    for (int i = 0; i < 80; ++i) {
      const std::string_view piece = kPieces[below(std::size(kPieces))];
      bytes.replace(16 + below(i % 2 == 0 ? 1700 : 17'700), piece.size(), piece);
      bytes[17'800 + below(bytes.size() - 17'800)] = static_cast<char>(below(256));
    }
    const auto draft = std::make_unique<CharacterDraft>();
    if (DecodeCharacter(bytes, *draft) != LoadResult::Loaded) continue;
    TakeCharacter(*spoilt, *draft);
    testing::WriteText("a.pdf", PdfSheet(*spoilt, {PaperSize::A4, seed % 4 == 0}));
    EXPECT_TRUE(Contains(OutputOf("pdftotext -raw a.pdf -"), "Page 3")) << "read without a complaint";
    ++printed;
  }
  EXPECT_GE(printed, 30);
}

TEST_F(PrintTest, AFileIsSavedAndToldOrRefusedWhole) {
  EXPECT_TRUE(SavePdfSheet(*game, "a.pdf"));
  EXPECT_TRUE(platform.Showed("VELD: Character Saved in PDF format"));
  const std::string old = testing::FileText("a.pdf");
  EXPECT_TRUE(old.starts_with("%PDF-"));
  platform.messages.clear();
  EXPECT_FALSE(SavePdfSheet(*game, "a.pdf", {}, {.DiskRoom = 100, .Flush = false}));
  EXPECT_TRUE(platform.Showed("VELD: Problem creating PDF file"));
  EXPECT_FALSE(platform.Showed("Character Saved"));
  EXPECT_EQ(testing::FileText("a.pdf"), old);
}

}  // namespace
}  // namespace veld
