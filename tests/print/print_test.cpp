// The PDF sheet as poppler, a reader of others' making, reads it back.
#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <sstream>

#include "print/party_dialog.h"
#include "print/party_page.h"
#include "print/print_dialog.h"
#include "print/print_save.h"
#include "print/send_pdf.h"
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
/// tattoo and the die of Honor, an effect has no markup, and what was not chosen is for the pencil.
std::string OnPaper(const SheetBlock& block, std::string part) {
  for (const std::string_view unknown : {"name", "Unknown", "Please Pick", "30"}) {
    if (part == unknown) return {};
  }
  if (part.starts_with("Dishonorable ") || Contains(part, " Honor "))
    part.resize(std::min(part.size(), part.rfind(" d")));
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
    const std::string text = Text({isLetter ? PaperSize::Letter : PaperSize::A4, false});
    ExpectEveryFact(*game, text);
    EXPECT_FALSE(Contains(text, "Please Pick")) << "what is not chosen is for the pencil";
    EXPECT_EQ(TextSheet(*game), sheet) << "printing changes nothing of the character";
    ExpectNothingCut(56, isLetter ? 612 : 595, isLetter ? 792 : 842);
    const std::string told = OutputOf("pdfinfo a.pdf");
    EXPECT_TRUE(Contains(told, isLetter ? "612 x 792 pts (letter)" : "595.276 x 841.89 pts (A4)")) << told;
    const bool isNobody = name == "empty";
    EXPECT_TRUE(Contains(told, Format("Title:           %s", isNobody ? std::string("A new character")
                                                                      : std::string(game->sheet.CharacterName))))
        << told;
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
  EXPECT_TRUE(Contains(text, "\nCantrips, continued\n") && Contains(text, "\nClothing, continued\n"));
  // Every page has its number; the cards come nine on a page and have it too.
  const auto pages = [](const std::string& all) { return std::ranges::count(all, '\f'); };
  const std::string withCards = Text({PaperSize::Letter, true});
  EXPECT_EQ(pages(withCards) > pages(text) + 400 / 9, true);
  for (const std::string& all : {text, withCards}) {
    for (std::ptrdiff_t page = 1; page <= pages(all); ++page)
      EXPECT_TRUE(Contains(all, Format("Page %i of %i\n", page, pages(all))));
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

TEST_F(PrintTest, ALetterThatNoFontHasCanBeSearched) {
  game->sheet.CharacterName = "Ada \xF0\x93\x80\x80\xE9\xBE\x8D";
  EXPECT_TRUE(Contains(Text(), "Ada \xF0\x93\x80\x80\xE9\xBE\x8D\n"));
}

/// Every fact of a party's rows stands on its sheet.
void ExpectRows(const std::vector<PartyRow>& rows, const std::string& text) {
  const std::string printed = WithoutBlanks(text);
  for (const PartyRow& row : rows) {
    std::string saves;
    for (const std::string& save : row.Saves) saves += save;
    std::vector<std::string> facts{row.Name,   row.Calling,   row.Alignment, saves + row.Honor + row.TemporalHonor,
                                   row.Senses, row.Languages, row.Movement,  row.HitPoints};
    facts.insert(facts.end(), row.Weapons.begin(), row.Weapons.end());
    for (const std::string& fact : facts) {
      EXPECT_TRUE(fact.empty() || Contains(printed, WithoutBlanks(fact))) << row.Name << ": " << fact;
    }
  }
}

TEST_F(PrintTest, APartyIsOnOneSheetAsItsFilesHaveIt) {
  std::vector<PartyRow> rows;
  for (const std::string& name : GoldenNames()) {
    SCOPED_TRACE(name);
    const auto read = ReadPartyRows(kGolden + name + ".vlf");
    ASSERT_TRUE(read && read->size() == 1);
    const PartyRow& row = read->front();
    Load(testing::FileText(kGolden + name + ".vlf"));
    const std::string text = TextSheet(*game);  // which brings up to date, where the row only reads
    EXPECT_TRUE(name == "empty" || Contains(text, "Apology: " + row.Saves[kSaveApology] + " "));
    EXPECT_TRUE(name == "empty" || Contains(text, "Hit Points: " + row.HitPoints + " ")) << row.HitPoints;
    EXPECT_TRUE(name == "empty" || Contains(text, row.HonorCategory)) << row.HonorCategory;
    rows.push_back(row);
  }
  PartyMember member;
  member.Name = "Nobody's Cousin";
  member.Honor = -12;
  member.TemporalHonor = 345;
  AddPartyRow(rows, PartyRowOf(member));
  member.Name = rows[1].Name;
  AddPartyRow(rows, PartyRowOf(member));  // who is on the sheet already
  EXPECT_EQ(rows[1].Honor + rows[1].TemporalHonor + rows[1].HonorCategory, "-12345");
  EXPECT_EQ(rows.size(), GoldenNames().size() + 1);
  for (int i = 0; i < 150; ++i) rows[2].Weapons.push_back(Format("Weapon the %ith, hit +1, damage +2", i));

  testing::WriteText("a.pdf", PartySheet(rows, PaperSize::A4));
  const std::string text = OutputOf("pdftotext -raw a.pdf -");
  ExpectRows(rows, text);
  ExpectNothingCut(56, 842, 595);
  EXPECT_TRUE(Contains(OutputOf("pdfinfo a.pdf"), "841.89 x 595.276 pts (A4)"));
  const auto pages = std::ranges::count(text, '\f');
  EXPECT_TRUE(pages >= 3 && Contains(text, Format("Page %i of %i\n", pages, pages))) << pages;
  testing::WriteText("a.pdf", PartySheet({}, PaperSize::Letter));
  EXPECT_TRUE(Contains(OutputOf("pdfinfo a.pdf"), "792 x 612 pts (letter)")) << "a blank one";
  EXPECT_FALSE(ReadPartyRows("none.vlf"));
  testing::WriteText("short.vlp", std::string(100, '\0'));
  EXPECT_FALSE(ReadPartyRows("short.vlp"));
}

TEST_F(PrintTest, PrintHandsTheSheetToViewerPrinterOrFile) {
  Load(testing::FileText(kGolden + "mage.vlf"));
  const auto print = [&](int button, std::initializer_list<int> marks = {}, const char* path = nullptr) {
    platform.ExpectForm("Print", [=](Form& form) {
      for (const int mark : marks) EXPECT_TRUE(form.Mark(mark, true));
      form.Press(button);
      form.PressCloseBox();
    });
    if (path) platform.ExpectSavePath(path);
    RunPrint(*game);
  };
  constexpr int kCards = 21;
  print(kPrintView, {kPaperLetter, kCards});
  ASSERT_EQ(platform.opened.size(), 1U);
  const std::string shown = platform.opened.front();
  EXPECT_EQ(shown, std::filesystem::current_path().string() + "/print/1 Ilvanna Quill.pdf");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_TRUE(Contains(OutputOf("pdfinfo '" + shown + "'"), "(letter)"));
  EXPECT_EQ(testing::FileText(shown).size(), PdfSheet(*game, {PaperSize::Letter, true}).size());

  platform.canHandOver = false;
  print(kPrintPrinter);  // with what was chosen before
  ASSERT_EQ(platform.printed.size(), 1U);
  EXPECT_TRUE(platform.Showed("It lies as a PDF file in " + platform.printed[0])) << platform.messages.back();
  EXPECT_EQ(testing::FileText(platform.printed[0]).size(), testing::FileText(shown).size());

  print(kPrintSave, {kPaperA4}, "mine.pdf");
  EXPECT_TRUE(platform.Showed("Character Saved in PDF format"));
  EXPECT_TRUE(testing::FileText("mine.pdf").starts_with("%PDF-"));

  // Five are kept, and nothing of another name is touched; a folder that is none is told.
  testing::WriteText("print/mine.pdf", "mine");
  for (int i = 0; i < kKeptPdfs; ++i) EXPECT_NE(KeepPdf("..", "bytes"), "");
  const std::filesystem::directory_iterator files("print");
  EXPECT_EQ(std::distance(begin(files), end(files)), kKeptPdfs + 1);
  EXPECT_EQ(testing::FileText("print/7 ...pdf") + testing::FileText("print/mine.pdf"), "bytesmine");
  std::filesystem::remove_all("print");
  testing::WriteText("print", "a file");
  print(kPrintView);
  EXPECT_TRUE(platform.Showed("Problem creating PDF file"));
  EXPECT_EQ(platform.opened.size(), 1U);
}

TEST_F(PrintTest, ThePartySheetGathersFilesAndWhoIsInMemory) {
  game->party.Count = 1;
  game->party.Rows[1].Name = "Ilvanna Quill";
  game->party.Rows[1].TemporalHonor = 77;
  Load(testing::FileText(kGolden + "thief.vlf"));
  testing::WriteText("odd.vlf", "nothing of ours");
  platform.ExpectForm("PartySheet", [&](Form& form) {
    enum { kRows = 20, kAddFile, kAddCharacter, kRemove };
    for (int i = 0; i < 3; ++i) form.Press(kAddFile);
    EXPECT_TRUE(platform.Showed("This file can not be loaded."));
    form.Press(kAddCharacter);
    EXPECT_EQ(form.Items(kRows),
              (std::vector<std::string>{"Ilvanna Quill, Human Magic-User 1", "Nob Underhand, Dwarf Thief 3"}));
    form.Press(kPrintView);
    form.Press(kRemove);
    form.Press(kRemove);
    form.Press(kRemove);
    EXPECT_TRUE(form.Items(kRows).empty());
    form.PressCloseBox();
  });
  for (const std::string& path : {kGolden + "mage.vlf", std::string("odd.vlf"), std::string()}) {
    platform.ExpectOpenPath(path);
  }
  RunPartySheet(*game);
  ASSERT_EQ(platform.opened.size(), 1U);
  const std::string text = OutputOf("pdftotext -raw '" + platform.opened[0] + "' -");
  EXPECT_TRUE(Contains(text, " 34 77 12/9/6/3/1\n") && Contains(text, "Quarterstaff, S 1d6+1")) << text;
}

}  // namespace
}  // namespace veld
