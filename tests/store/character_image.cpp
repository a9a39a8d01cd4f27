#include "character_image.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace veld::testing {

#define TEXT(offset, width, field) \
  {offset, width, [](const CharacterSheet& sheet) { return sheet.field.View(); }}
#define NUMBERS(offset, count, field) \
  {offset, count, [](const CharacterSheet& sheet) { return &sheet.field; }}
#define NUMBER(offset, field) NUMBERS(offset, 1, field)

// clang-format off
const std::vector<HeadText>& HeadTexts() {
  static const std::vector<HeadText> texts = {
    TEXT(814, 80, CharacterName), TEXT(894, 30, RaceName), TEXT(924, 10, Gender), TEXT(934, 20, Handedness),
    TEXT(954, 200, IllegitimacyNature), TEXT(1154, 20, BirthCircumstance), TEXT(1174, 50, SocialClassName),
    TEXT(1224, 50, MotherStatus), TEXT(1274, 50, FatherStatus), TEXT(1324, 50, MotherQuality),
    TEXT(1374, 50, FatherQuality), TEXT(1424, 50, FamilyHeritage), TEXT(1474, 30, StepParent),
    TEXT(1504, 50, SiblingCountText), TEXT(1554, 50, BirthOrder), TEXT(1604, 50, ClassName),
    TEXT(1654, 100, StartingMoneyText), TEXT(1754, 20, Alignment), TEXT(24058, 25, InheritedWeapon),
    TEXT(24083, 40, InheritedArmor), TEXT(24123, 30, InheritedShieldHelmet), TEXT(24153, 40, InheritedMount),
    TEXT(24193, 100, InheritedDeed), TEXT(24293, 20, EyeColor), TEXT(24313, 20, HairColor),
  };
  return texts;
}

const std::vector<HeadNumbers>& HeadNumberFields() {
  static const std::vector<HeadNumbers> numbers = {
    NUMBER(810, HereditaryDebt), NUMBER(17774, WeaponSizeClass), NUMBER(17778, LanguagesKnown),
    NUMBER(17782, FreeWeaponProficiencySlots), NUMBER(17786, Strength.Whole), NUMBER(17790, Dexterity.Whole),
    NUMBER(17794, Constitution.Whole), NUMBER(17798, Intelligence.Whole), NUMBER(17802, Wisdom.Whole),
    NUMBER(17806, Charisma.Whole), NUMBER(17810, Comeliness.Whole), NUMBER(17814, Strength.Percentile),
    NUMBER(17818, Dexterity.Percentile), NUMBER(17822, Constitution.Percentile),
    NUMBER(17826, Intelligence.Percentile), NUMBER(17830, Wisdom.Percentile), NUMBER(17834, Charisma.Percentile),
    NUMBER(17838, Comeliness.Percentile), NUMBER(17842, Age), NUMBER(17846, WeightLbs), NUMBER(17850, HeightInches),
    NUMBER(17854, SocialClassIndex), NUMBER(17858, IsOrphan), NUMBER(17862, MotherPresence),
    NUMBER(17866, FatherPresence), NUMBER(17870, SiblingCount), NUMBER(17874, IsFighterClass),
    NUMBER(17878, IsMageClass), NUMBER(17882, IsThiefClass), NUMBER(17886, IsClericClass),
    NUMBER(17890, BaseMovement), NUMBER(17894, MovementRow2), NUMBER(17898, GoldPieces),
    NUMBER(17902, InheritanceTier), NUMBER(17906, Honor), NUMBER(17910, HonorDie),
    NUMBER(17914, WeightAllowanceLight), NUMBER(17918, WeightAllowanceModerate), NUMBER(17922, WeightAllowanceHeavy),
    NUMBER(17926, WeightAllowanceSevere), NUMBER(17930, MaxPressExtra), NUMBER(17934, MinorFlawPicksLeft),
    NUMBER(17938, MajorFlawPicksLeft), NUMBER(17942, ProficiencySlots), NUMBER(17950, SilverPieces),
    NUMBER(17954, CopperPieces), NUMBER(17958, ElectrumPieces), NUMBER(17962, HardSilverPieces),
    NUMBER(17966, PlatinumPieces), NUMBER(17970, MovementLight), NUMBER(17974, MovementModerate),
    NUMBER(17978, MovementHeavy), NUMBER(18010, TattooArdkrin), NUMBER(18014, TattooShewkrin),
    NUMBER(18018, TattooYiskrin), NUMBER(18022, TattooTarkrin), NUMBER(18026, TattooFakrin),
    NUMBER(18030, TattooEmphkrin), NUMBER(18034, TattooShunkrin), NUMBER(18038, TattooHurdkrin),
    NUMBER(18042, TattooGrekrin), NUMBER(18046, TattooGorkrink), NUMBER(19650, ProficiencySlotsUsed),
    NUMBER(19654, HitDiceCount),
    NUMBERS(17982, 7, TattooChoices[0]), NUMBERS(18050, 200, ClassProficiencySlots[0]),
    NUMBERS(18850, 200, ProficiencyLevels[0]), NUMBERS(19658, 100, ThiefPickPockets[0]),
    NUMBERS(20058, 100, ThiefOpenLocks[0]), NUMBERS(20458, 100, ThiefFindTraps[0]),
    NUMBERS(20858, 100, ThiefRemoveTraps[0]), NUMBERS(21258, 100, ThiefMoveSilently[0]),
    NUMBERS(21658, 100, ThiefHideInShadows[0]), NUMBERS(22058, 100, ThiefDetectNoise[0]),
    NUMBERS(22458, 100, ThiefClimbWalls[0]), NUMBERS(22858, 100, ThiefReadLanguages[0]),
  };
  return numbers;
}
// clang-format on

int HeadNumber(int offset) { return offset >= 18010 && offset < 18050 ? offset % 7 : offset; }

std::string HeadTextAt(int offset, int width) {
  std::string text = "t" + std::to_string(offset);
  while (static_cast<int>(text.size()) < width - 1) text += static_cast<char>('a' + text.size() % 26);
  return text.substr(0, static_cast<std::size_t>(width) - 1);
}

std::string I(int value) {
  std::string bytes(4, '\0');
  for (std::size_t i = 0; i < 4; ++i) bytes[i] = static_cast<char>(static_cast<unsigned>(value) >> 8 * i);
  return bytes;
}

std::string F(float value) {
  int bits = 0;
  std::memcpy(&bits, &value, 4);
  return I(bits);
}

std::string T(std::string text, std::size_t width) {
  text.resize(width, '\0');
  return text;
}

std::string Numbers(std::size_t count, const std::map<std::size_t, int>& values) {
  std::string bytes(4 * count, '\0');
  for (const auto& [row, value] : values) bytes.replace(4 * row, 4, I(value));
  return bytes;
}

namespace {

std::string Head(const CharacterImage& image) {
  std::string head(27133, '\0');
  const auto put = [&](int offset, const std::string& bytes) {
    head.replace(static_cast<std::size_t>(offset), bytes.size(), bytes);
  };
  put(0, "4.5");
  for (const HeadText& text : HeadTexts()) put(text.Offset, HeadTextAt(text.Offset, text.Width));
  for (const HeadNumbers& field : HeadNumberFields()) {
    for (int i = 0; i < field.Count; ++i) put(field.Offset + 4 * i, I(HeadNumber(field.Offset + 4 * i)));
  }
  for (int i = 0; i < 200; ++i) put(10 + 4 * i, F(static_cast<float>(i) + 0.5f));
  for (int i = 0; i < 100; ++i) put(1774 + 160 * i, HeadTextAt(1774 + 160 * i, 160));
  put(814, T("Borin", 6) + "old bytes behind the end");  // kept, unseen
  put(924, "NoEndHere!");                                // 10 bytes without a terminator
  put(17946, F(42.5f));
  put(23258, Numbers(200, image.Levels));
  put(24333, Numbers(700, image.Quirks));
  return head;
}

/// The numbers of one place of scattered quirks: rows, runs, runs by twos ("135-153/2"), and the three codes.
std::string Scattered(const CharacterImage& image, const std::string& list) {
  std::string bytes;
  const auto quirk = [&](int row) {
    const auto held = image.Quirks.find(static_cast<std::size_t>(row));
    return held == image.Quirks.end() ? 0 : held->second;
  };
  for (std::size_t at = 0; at < list.size();) {
    const std::size_t end = std::min(list.find(' ', at), list.size());
    const std::string entry = list.substr(at, end - at);
    at = end + 1;
    int first = 0, last = 0, step = 1;
    if (entry == "A") bytes += I(quirk(35) == 1 ? 1 : quirk(36) == 1 ? 2 : 0);
    if (entry == "B") bytes += I(quirk(38) == 1 ? 1 : quirk(37) == 1 ? 2 : 0);
    if (entry == "C") bytes += I(quirk(123) == 1 ? 1 : quirk(122) == 1 ? 2 : 0);
    const int read = std::sscanf(entry.c_str(), "%d-%d/%d", &first, &last, &step);
    if (read == 1) last = first;
    for (int row = first; read > 0 && row <= last; row += step) bytes += I(quirk(row));
  }
  return bytes;
}

std::string LevelTables(const CharacterImage& image) {
  std::string bytes;
  for (const auto& [row, level] : image.Levels) {
    for (int l = 0; l <= level; ++l) {
      for (int i = 0; i < 8; ++i) bytes += I(static_cast<int>(row) * 1000 + l * 10 + i);
    }
  }
  return bytes;
}

std::string Book(int number) {
  std::string bytes = T("Book " + std::to_string(number), 255) + I(1) + I(64) + T("vellum", 255) + T("free", 255);
  bytes += I(2) + I(3) + I(4) + T("13x12", 80) + T("3 inches", 80) + T("7 lbs.", 80) + T("x2", 80) + I(5) + I(6);
  for (int page = 0; page < 100; ++page) bytes += T("page " + std::to_string(page), 100);
  for (int i = 0; i < 4200; ++i) bytes += I(i + number);
  return bytes;
}

std::string MageBackground() {
  std::string bytes = I(1) + T("City", 15) + T("Academy", 30) + T("Nurture", 30) + T("Education", 30) + T("Size", 30);
  bytes += T("Classroom", 30) + T("Rank", 50);
  for (int i = 1; i <= 7; ++i) bytes += I(i);
  return bytes + T("Hermit", 50) + T("Field", 30) + T("Taboo", 750);
}

std::string FighterBackground() {
  std::string bytes = I(1) + T("Hermit", 50) + T("Camp", 50) + T("Quality", 50) + T("Results", 500);
  for (const char* text : {"Accident 1", "Accident 2"}) bytes += T(text, 500);
  bytes += T("Specialty", 50) + T("Advanced", 50) + T("Hostilities", 50);
  for (const char* text : {"War 1", "War 2", "War 3", "Attitude", "Events", "Guerilla", "T1", "T2", "T3", "T4"}) {
    bytes += T(text, 500);
  }
  return bytes;
}

std::string ClericBackground() {
  return I(1) + T("Hermit", 50) + T("Call", 600) + T("Training", 100) + T("Competency", 50) + T("Personality", 50) +
         T("Accoutrements", 100) + T("Location", 512) + T("Results", 512) + T("Education", 100);
}

}  // namespace

std::string CharacterImage::As(const std::string& version) const {
  const bool scattered = version < "4.2";
  std::string head = Head(*this);
  head.replace(0, 10, T(version, 10));
  if (version == "4.2") head.resize(24333 + 2400);
  if (scattered) {
    head.replace(24333, 2800, Scattered(*this, "457-469"));
    if (version == "3.8.1") head.erase(23258 + 400, 400).erase(18050 + 400, 400);
    head.insert(17934, Scattered(*this,
                                 "1-10 13-22 26-30 33 34 A B 39-46 C 48 49 51-68 71-79 79 81-83 86-98 100 101 296-304 "
                                 "104-115 117-120 124-133 135-153/2 134-152/2 154-172 174-183 185-203 205-223 225-243 "
                                 "245-294"));
    if (version == "3.8.1") head.erase(10 + 400, 400);
  }
  std::string bytes = head + Numbers(1000, {{0, 3}, {999, 7}});
  bytes += I(1) + T("Silver horn", 50) + I(5) + I(0) + I(0) + I(500) + F(1.5f) + I(8) + I(2) + I(0);
  bytes += LevelTables(*this) + Numbers(2000, {{0, 1}, {1999, 3}}) + MageBackground();
  if (scattered) bytes += Scattered(*this, "306-309 311 312 316-359");
  bytes += T("Notes with a Latin-1 caf\xe9", 32000) + I(Books);
  for (int book = 1; book <= Books; ++book) bytes += Book(book);
  if (scattered) bytes += Scattered(*this, "360-378 456 455");
  bytes += FighterBackground();
  if (version == "4.5" && HasCleric) bytes += ClericBackground();
  if (version == "4.5" && !HasCleric) bytes += I(0);
  bytes += Numbers(150, Talents) + Numbers(2500, {{50, 1}, {1, 2}});
  bytes += Numbers(version < "4.2.1" ? 300 : 500, Skills) + Numbers(2500, {{2499, 33}, {3, -1}});
  // Talent row 1 item 0, then row 0 item 1: items run slower than rows.
  bytes += T("row 1 item 0", 100) + T("row 0 item 1", 100) + T("skill row 49 item 49", 100);
  bytes += Numbers(100, {{0, 4}, {99, 5}}) + I(11) + I(12) + I(13) + I(14) + I(15);
  std::string picks;
  for (int i = 0; i < 500; ++i) picks += I(i % 50 < 3 ? i % 200 : -1);
  return bytes + picks;
}

}  // namespace veld::testing
