// The XML sheet as another tool reads it.
#include <gtest/gtest.h>
#include <libxml/parser.h>
#include <libxml/xpath.h>

#include "golden_characters.h"
#include "rules/class_table.h"
#include "rules/quirk_table.h"
#include "rules/skill_table.h"
#include "sheets/xml_sheet.h"
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

using Strings = std::vector<std::string>;

/// A document that must be well-formed.
class Document {
 public:
  explicit Document(const std::string& xml)
      : document_(xmlReadMemory(xml.data(), static_cast<int>(xml.size()), "sheet.xml", nullptr, XML_PARSE_NOERROR)) {
    EXPECT_TRUE(document_) << xmlGetLastError()->line << ": " << xmlGetLastError()->message;
  }
  ~Document() { xmlFreeDoc(document_); }
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;

  /// The texts at an XPath, without the line ends around those that have lines of their own.
  Strings operator[](const std::string& path) const {
    Strings values;
    xmlXPathContext* context = xmlXPathNewContext(document_);
    xmlXPathObject* found = xmlXPathEvalExpression(reinterpret_cast<const xmlChar*>(path.c_str()), context);
    const xmlNodeSet* nodes = found ? found->nodesetval : nullptr;
    for (int i = 0; nodes && i < nodes->nodeNr; ++i) {
      xmlChar* content = xmlNodeGetContent(nodes->nodeTab[i]);
      const std::string value = reinterpret_cast<const char*>(content);
      xmlFree(content);
      const bool isSpread = value.size() > 1 && value.front() == '\n' && value.back() == '\n';
      values.push_back(isSpread ? value.substr(1, value.size() - 2) : value);
    }
    xmlXPathFreeObject(found);
    xmlXPathFreeContext(context);
    return values;
  }

 private:
  xmlDoc* document_;
};

std::string Number(int number) {
  return Format("%i", number);
}

void ExpectClasses(const Document& document, const CharacterSheet& sheet) {
  Strings expected;
  for (std::size_t row = 0; row < kClassRows; ++row) {
    if (sheet.ClassLevels[row] <= 0) continue;
    expected.insert(expected.end(), {std::string(ClassTable()[row].Name), Number(sheet.ClassLevels[row]),
                                     Format("%.0f", sheet.ClassExperience[row])});
    for (std::size_t level = 0; level < kLevels; ++level) {
      expected.push_back(Number(sheet.LevelHitPoints[level][row]));
      for (int i = 0; i < kAbilityCount; ++i) expected.push_back(Number(LevelGainAt(sheet, i)[row][level]));
      for (std::size_t i = 0; i < kThiefAbilities; ++i) expected.push_back(Number(ThiefAbilityAt(sheet, i)[level]));
    }
  }
  EXPECT_EQ(document["/*/CLASS_DATA/*"], expected);
  EXPECT_EQ(document["/*/CLASS_DATA/CLASS_READ_LANGUAGES_99"].size(), document["/*/CLASS_DATA"].size());
}

void ExpectHoldings(const Document& document, const Game& game) {
  const CharacterSheet& sheet = game.sheet;
  Strings quirks;
  for (std::size_t row = 1; row <= kLastQuirk; ++row) {
    const std::string name(TrimRight(ShownQuirkName(static_cast<int>(row))));
    if (sheet.QuirkCounts[row] > 0) quirks.insert(quirks.end(), {name, Number(sheet.QuirkCounts[row])});
  }
  EXPECT_EQ(document["/*/QUIRKS_AND_FLAWS/*"], quirks);

  Strings skills;
  for (std::size_t row = 0; row < kSkillRows; ++row) {
    const std::string name(TrimRight(SkillTable()[row].Name));
    const int score = sheet.SkillScores[row];
    if (score > 0 && !name.empty()) skills.insert(skills.end(), {name, Number(score)});
  }
  Strings read = document["/*/SKILL_SECTION/*"];
  std::ptrdiff_t named = 0;
  for (const auto& family : sheet.SkillDetailCounts) {
    named += std::ranges::count_if(family, [](int score) { return score > 0; });
  }
  EXPECT_EQ(read.size(), skills.size() + 2 * static_cast<std::size_t>(named));
  read.resize(skills.size());
  EXPECT_EQ(read, skills);

  Strings goods;
  for (const auto* table : {&game.EquipmentTable, &game.CustomEquipmentTable}) {
    for (const EquipmentRecord& good : *table) {
      const std::string name(TrimRight(good.Name));
      if (good.Quantity <= 0 || name.empty()) continue;
      goods.insert(goods.end(), {name, Number(good.Quantity), Format("%.2f", good.Weight)});
    }
  }
  EXPECT_EQ(document["//EQUIPMENT_ITEM/*"], goods);
  EXPECT_EQ(document["/*/INVENTORY/CATEGORY[position() > 2]/ITEM/*"].size(), goods.size());
  EXPECT_EQ(document["/*/COINS/*"],
            (Strings{Number(sheet.GoldPieces), Number(sheet.SilverPieces), Number(sheet.CopperPieces)}));
}

void ExpectReadsBack(Game& game) {
  const Document document(XmlSheet(game));
  Strings scores;
  for (int ability = 0; ability < kAbilityCount; ++ability) {
    const AbilityScore score = AbilityAt(game.sheet, ability);
    scores.insert(scores.end(), {Number(score.Whole), Number(score.Percentile)});
  }
  scores.push_back(Number(game.sheet.Honor));
  EXPECT_EQ(document["//SCORE/*"], scores);
  ExpectClasses(document, game.sheet);
  ExpectHoldings(document, game);
}

TEST(XmlSheetTest, WhateverAFileHoldsIsReadBack) {
  constexpr std::string_view kPieces[] = {"<&>\"'",       "</RACE>", "]]>",  "\x01\x1F\x7F", "\xFF\xFE", "\xEF\xBF\xBF",
                                          "\xED\xA0\x80", "<!--",    "&#0;", "\r\n\t",       "\xC3"};
  constexpr std::size_t kTextsAt = 16;      // behind the version
  constexpr std::size_t kTextsEnd = 17800;  // names and the lines of siblings; numbers follow
  const auto names = GoldenNames();
  const auto draft = std::make_unique<CharacterDraft>();
  std::size_t read = 0;
  for (std::uint32_t seed = 0; seed < names.size() + 150; ++seed) {
    SCOPED_TRACE(seed);
    RandomPlayer player(seed, 20);
    const auto game = ShippedGame(player);
    const auto below = [&](std::size_t limit) { return player.Pick(static_cast<std::uint32_t>(limit)); };
    std::string bytes = testing::FileText(kGolden + names[seed % names.size()] + ".vlf");
    for (int i = 0; i < 60 && seed >= names.size(); ++i) {
      const std::string_view piece = kPieces[below(std::size(kPieces))];
      bytes.replace(kTextsAt + below(i % 2 == 0 ? 1700 : kTextsEnd - kTextsAt), piece.size(), piece);
      bytes[kTextsEnd + below(bytes.size() - kTextsEnd)] = static_cast<char>(below(256));
    }
    if (DecodeCharacter(bytes, *draft) != LoadResult::Loaded) continue;
    TakeCharacter(*game, *draft);
    ExpectReadsBack(*game);
    ++read;
  }
  EXPECT_GE(read, 100U);
}

TEST(XmlSheetTest, TypedTextsComeThroughAsTheyAre) {
  testing::ScriptedPlatform platform;
  const auto game = ShippedGame(platform);
  CharacterSheet& sheet = game->sheet;
  sheet.CharacterName = "<b>Ann & \"Bo\"</b> 'C' ]]> %s";
  std::string notes = "&amp; \xC3\xA9 <two>\n\t";
  while (notes.size() < 31'980) notes += "'\"&<>\n.";
  sheet.Notes = notes;
  sheet.RaceName = "Half & <Half>";
  sheet.HairColor = "gr\xE9y";
  sheet.EyeColor = "b\x01l\x7F\xEF\xBF\xBFue";
  sheet.SiblingLines[4] = "a <twin>";
  sheet.StepParent = "N/A";
  const std::string xml = XmlSheet(*game);
  EXPECT_TRUE(Contains(xml, "<CHARACTER_NAME>&lt;b&gt;Ann &amp; &quot;Bo&quot;&lt;/b&gt; &apos;C&apos; ]]&gt; %s</"));
  const Document document(xml);
  EXPECT_EQ(document["//CHARACTER_NAME"], Strings{std::string(sheet.CharacterName.View())});
  EXPECT_EQ(document["/*/HISTORY"], Strings{notes});
  EXPECT_EQ(document["//RACE"], Strings{"Half & <Half>"});
  EXPECT_EQ(document["//HAIR_COLOR|//EYE_COLOR"], (Strings{"gr\xC3\xA9y", "blue"}));
  EXPECT_EQ(document["//SIBLING|//SIBLING/@NUMBER"], (Strings{"a <twin>", "5"}));
  EXPECT_EQ(document["//PARENT/@TYPE"], (Strings{"Father", "Mother"}));
}

TEST(XmlSheetTest, CallingsHaveTheListsThatReadersKnow) {
  constexpr std::pair<const char*, const char*> kCases[] = {{"Fighter/Thief", "Fighter/Thief"},
                                                            {"Illusionist/Thief", "Illusionist/Thief"},
                                                            {"Cleric/Fighter/Thief", "Thief"},
                                                            {"Bounty Hunter", "Bounty HunterThief"}};
  for (const auto& [className, type] : kCases) {
    RandomPlayer player(1);
    const auto game = ShippedGame(player);
    CharacterSheet& sheet = game->sheet;
    sheet.RaceName = "Human";
    sheet.ClassName = className;
    sheet.ClassExperience.fill(1);
    sheet.UsesFighterBackground = sheet.UsesMageBackground = 1;
    const Document document(XmlSheet(*game));
    EXPECT_EQ(document["//SKILL_LIST/@TYPE"], Strings{type}) << className;
    EXPECT_EQ(document["//SKILL/NAME/ABBR"], (Strings{"PP", "OL", "FT", "RT", "MS", "HiS", "HiS", "DN", "DW", "RL"}));
    // A youth is the fighter's or the mage's alone, whatever the record says of it.
    EXPECT_EQ(document["//BACKGROUND/@TYPE"], Strings{sheet.IsMageClass == 1 ? "Magic-User" : "Fighter"});
  }
}

}  // namespace
}  // namespace veld
