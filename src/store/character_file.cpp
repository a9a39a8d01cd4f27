#include "store/character_file.h"

#include <algorithm>
#include <memory>

#include "platform/platform.h"
#include "store/byte_reader.h"
#include "store/byte_writer.h"
#include "store/old_character_files.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/utf8.h"

namespace veld {

namespace {

// Each Pass routine below tells one section of the file to a ByteReader or a ByteWriter, so that the order of the
// fields stands once. `Sheet` is CharacterSheet or const CharacterSheet. A routine that returns false met a number that
// no character has.

/// The first `count` elements of an array.
template <typename Array>
auto First(Array& array, std::size_t count) {
  return std::span(array).first(std::min(count, array.size()));
}

template <typename File, typename Sheet>
void PassQuirks(File& file, Sheet& sheet, const CharacterFormat& format, QuirkPlace place) {
  if constexpr (File::kReads) {
    if (format.Quirks == 0) ReadScatteredQuirks(file, sheet, place);
  }
  if (place == QuirkPlace::AfterHair && format.Quirks > 0) file.Pass(First(sheet.QuirkCounts, format.Quirks));
}

template <typename File, typename Sheet>
void PassIdentity(File& file, Sheet& sheet, const CharacterFormat& format) {
  file.Pass(First(sheet.ClassExperience, format.Classes), sheet.HereditaryDebt);
  file.Pass(sheet.CharacterName, sheet.RaceName, sheet.Gender, sheet.Handedness, sheet.IllegitimacyNature);
  file.Pass(sheet.BirthCircumstance, sheet.SocialClassName, sheet.MotherStatus, sheet.FatherStatus);
  file.Pass(sheet.MotherQuality, sheet.FatherQuality, sheet.FamilyHeritage, sheet.StepParent);
  file.Pass(sheet.SiblingCountText, sheet.BirthOrder, sheet.ClassName, sheet.StartingMoneyText, sheet.Alignment);
  file.Pass(sheet.SiblingLines);
}

template <typename File, typename Sheet>
void PassAbilities(File& file, Sheet& sheet) {
  for (int ability = 0; ability < kAbilityCount; ++ability) file.Pass(AbilityAt(sheet, ability).Whole);
  for (int ability = 0; ability < kAbilityCount; ++ability) file.Pass(AbilityAt(sheet, ability).Percentile);
}

template <typename File, typename Sheet>
void PassTattoos(File& file, Sheet& sheet) {
  file.Pass(sheet.TattooChoices);
  file.Pass(sheet.TattooArdkrin, sheet.TattooShewkrin, sheet.TattooYiskrin, sheet.TattooTarkrin, sheet.TattooFakrin);
  file.Pass(sheet.TattooEmphkrin, sheet.TattooShunkrin, sheet.TattooHurdkrin, sheet.TattooGrekrin,
            sheet.TattooGorkrink);
}

template <typename File, typename Sheet>
void PassHead(File& file, Sheet& sheet, const CharacterFormat& format) {
  PassIdentity(file, sheet, format);
  file.Pass(sheet.WeaponSizeClass, sheet.LanguagesKnown, sheet.FreeWeaponProficiencySlots);
  PassAbilities(file, sheet);
  file.Pass(sheet.Age, sheet.WeightLbs, sheet.HeightInches, sheet.SocialClassIndex, sheet.IsOrphan);
  file.Pass(sheet.MotherPresence, sheet.FatherPresence, sheet.SiblingCount);
  file.Pass(sheet.IsFighterClass, sheet.IsMageClass, sheet.IsThiefClass, sheet.IsClericClass);
  file.Pass(sheet.BaseMovement, sheet.MovementRow2, sheet.GoldPieces, sheet.InheritanceTier);
  file.Pass(sheet.Honor, sheet.HonorDie);
  file.Pass(sheet.WeightAllowanceLight, sheet.WeightAllowanceModerate, sheet.WeightAllowanceHeavy);
  file.Pass(sheet.WeightAllowanceSevere, sheet.MaxPressExtra);
  PassQuirks(file, sheet, format, QuirkPlace::AfterBurden);
  file.Pass(sheet.MinorFlawPicksLeft, sheet.MajorFlawPicksLeft, sheet.ProficiencySlots, sheet.CarriedWeightLbs);
  file.Pass(sheet.SilverPieces, sheet.CopperPieces, sheet.ElectrumPieces, sheet.HardSilverPieces, sheet.PlatinumPieces);
  file.Pass(sheet.MovementLight, sheet.MovementModerate, sheet.MovementHeavy);
  PassTattoos(file, sheet);
  file.Pass(First(sheet.ClassProficiencySlots, format.Classes), sheet.ProficiencyLevels);
  file.Pass(sheet.ProficiencySlotsUsed, sheet.HitDiceCount);
  for (std::size_t ability = 0; ability < kThiefAbilities; ++ability) file.Pass(ThiefAbilityAt(sheet, ability));
  file.Pass(First(sheet.ClassLevels, format.Classes));
  file.Pass(sheet.InheritedWeapon, sheet.InheritedArmor, sheet.InheritedShieldHelmet, sheet.InheritedMount);
  file.Pass(sheet.InheritedDeed, sheet.EyeColor, sheet.HairColor);
  PassQuirks(file, sheet, format, QuirkPlace::AfterHair);
}

template <typename File, typename Goods>
bool PassGoods(File& file, Goods& goods) {
  file.Pass(goods.Quantities);
  int customCount = static_cast<int>(goods.CustomItems.size());
  file.Pass(customCount);
  if (customCount < 0 || customCount > static_cast<int>(kEquipmentRows)) return false;
  if constexpr (File::kReads) goods.CustomItems.resize(static_cast<std::size_t>(customCount));
  for (auto& item : goods.CustomItems) {
    file.Pass(item.Name, item.GoldCost, item.SilverCost, item.CopperCost, item.CopperValue, item.Weight, item.Category,
              item.Quantity);
    if constexpr (File::kReads) item.Category = KnownCategory(item.Category);
  }
  int reserved = 0;
  file.Pass(reserved);
  return true;
}

template <typename File, typename Sheet>
bool PassLevelTables(File& file, Sheet& sheet, const CharacterFormat& format) {
  const auto isLevel = [](int level) { return level >= 0 && level < static_cast<int>(kLevels); };
  if (!std::ranges::all_of(sheet.ClassLevels, isLevel)) return false;
  for (std::size_t row = 0; row < format.LevelClasses; ++row) {
    if (sheet.ClassLevels[row] == 0) continue;
    for (std::size_t level = 0; level <= static_cast<std::size_t>(sheet.ClassLevels[row]); ++level) {
      file.Pass(sheet.LevelHitPoints[level][row]);
      for (int ability = 0; ability < kAbilityCount; ++ability) file.Pass(LevelGainAt(sheet, ability)[row][level]);
    }
  }
  return true;
}

template <typename File, typename Sheet>
void PassMageBackground(File& file, Sheet& sheet) {
  file.Pass(sheet.UsesMageBackground);
  if (sheet.UsesMageBackground != 1) return;
  file.Pass(sheet.SchoolLocation, sheet.SchoolType, sheet.MasterNurture, sheet.MasterEducation);
  file.Pass(sheet.GraduatingClassSize, sheet.ClassroomEquipment, sheet.GraduatingRank);
  file.Pass(sheet.SchoolLocationRoll, sheet.SchoolQualityRoll, sheet.MasterNurtureRoll, sheet.MasterEducationRoll);
  file.Pass(sheet.GraduatingClassRoll, sheet.ClassroomRoll, sheet.GraduatingRankRoll);
  file.Pass(sheet.PackageName);
  if (sheet.PackageName == "Hermit") file.Pass(sheet.HermitField, sheet.HermitTaboo);
}

template <typename File, typename Book>
void PassSpellBook(File& file, Book& book) {
  file.Pass(book.Name, book.FormatIndex, book.PageCount, book.FormatName, book.FreeText);
  file.Pass(book.SizeIndex, book.ThicknessIndex, book.SpellLevelsUsed);
  file.Pass(book.SizeText, book.ThicknessText, book.WeightText, book.EncumbranceText);
  file.Pass(book.FirstPage, book.LastPage, book.Pages, book.PageFlags, book.SpellRows);
}

template <typename File, typename Sheet>
bool PassSpellBooks(File& file, Sheet& sheet) {
  int bookCount = 0;
  if constexpr (!File::kReads) {
    bookCount = static_cast<int>(std::ranges::count_if(sheet.SpellBooks, [](auto& b) { return !b.Name.Empty(); }));
  }
  file.Pass(bookCount);
  if (bookCount < 0 || bookCount > static_cast<int>(kSpellBooks)) return false;
  std::size_t slot = 0;
  for (int number = 0; number < bookCount; ++number) {
    auto& book = sheet.SpellBooks[slot++];
    PassSpellBook(file, book);
    if constexpr (File::kReads) {
      // A book without a name is not in use, and the books of a record stand packed.
      if (book.Name.Empty()) std::construct_at(&sheet.SpellBooks[--slot]);
    }
  }
  return true;
}

template <typename File, typename Sheet>
void PassFighterBackground(File& file, Sheet& sheet) {
  file.Pass(sheet.UsesFighterBackground);
  if (sheet.UsesFighterBackground != 1) return;
  file.Pass(sheet.PackageName, sheet.TrainingCampType, sheet.BasicTrainingQuality, sheet.BasicTrainingResults);
  file.Pass(sheet.TrainingAccidents, sheet.SpecialtyAssignment, sheet.AdvancedTrainingQuality);
  file.Pass(sheet.HostilitiesState, sheet.Wars, sheet.OccupationAttitude, sheet.OccupationEvents);
  file.Pass(sheet.GuerillaEvents, First(sheet.NonCombatTourEvents, 4));
}

template <typename File, typename Sheet>
void PassClericBackground(File& file, Sheet& sheet) {
  file.Pass(sheet.UsesClericBackground);
  if (sheet.UsesClericBackground != 1) return;
  file.Pass(sheet.PackageName, sheet.TheCall, sheet.EcclesiasticalTraining, sheet.SuperiorCompetency);
  file.Pass(sheet.SuperiorPersonality, sheet.ReligiousAccoutrements, sheet.ResidencyLocation);
  file.Pass(sheet.ResidencyResults, sheet.EducationResults);
}

/// The names of the items that there are, the first item of every row before the second of any.
template <typename File, typename Counts, typename Names>
void PassDetailNames(File& file, Counts& counts, Names& names) {
  for (std::size_t item = 0; item < kDetailRows; ++item) {
    for (std::size_t row = 0; row < kDetailRows; ++row) {
      if (counts[row][item] > 0) file.Pass(names[row][item]);
    }
  }
}

template <typename File, typename Sheet>
void PassTalentsAndSkills(File& file, Sheet& sheet, const CharacterFormat& format) {
  file.Pass(sheet.TalentCounts, sheet.TalentDetailCounts);
  file.Pass(First(sheet.SkillScores, format.Skills), sheet.SkillDetailCounts);
  PassDetailNames(file, sheet.TalentDetailCounts, sheet.TalentDetailNames);
  PassDetailNames(file, sheet.SkillDetailCounts, sheet.SkillDetailNames);
  file.Pass(sheet.SkillGroupTable);
}

/// The whole file behind its version.
template <typename File, typename Sheet, typename Goods>
bool PassCharacter(File& file, Sheet& sheet, Goods& goods, const CharacterFormat& format) {
  PassHead(file, sheet, format);
  if (!PassGoods(file, goods) || !PassLevelTables(file, sheet, format)) return false;
  file.Pass(sheet.SpellsKnown);
  PassMageBackground(file, sheet);
  PassQuirks(file, sheet, format, QuirkPlace::AfterMageBackground);
  file.Pass(sheet.Notes);
  if (!PassSpellBooks(file, sheet)) return false;
  PassQuirks(file, sheet, format, QuirkPlace::AfterSpellBooks);
  PassFighterBackground(file, sheet);
  if (format.HasClericBackground) PassClericBackground(file, sheet);
  PassTalentsAndSkills(file, sheet, format);
  file.Pass(sheet.BarbarianClimb, sheet.BarbarianHide, sheet.BarbarianBackProtection, sheet.BarbarianDetectIllusion);
  file.Pass(sheet.BarbarianTracking, sheet.ProficiencyPicks);
  return true;
}

/// Row numbers and codes that no rule knows count as none.
void DropStrayCodes(CharacterSheet& sheet) {
  for (auto& group : sheet.ProficiencyPicks) {
    for (int& row : group) {
      if (row < 0 || row >= static_cast<int>(kProficiencyRows)) row = -1;
    }
  }
  for (int* place : {&sheet.TattooArdkrin, &sheet.TattooShewkrin, &sheet.TattooYiskrin, &sheet.TattooTarkrin,
                     &sheet.TattooFakrin, &sheet.TattooEmphkrin, &sheet.TattooShunkrin, &sheet.TattooHurdkrin,
                     &sheet.TattooGrekrin, &sheet.TattooGorkrink}) {
    if (*place < 0 || *place >= static_cast<int>(sheet.TattooChoices.size())) *place = 0;
  }
}

CharacterGoods GoodsOf(const Game& game) {
  CharacterGoods goods;
  for (std::size_t row = 0; row < kEquipmentRows; ++row) goods.Quantities[row] = game.EquipmentTable[row].Quantity;
  std::ranges::copy_if(game.CustomEquipmentTable, std::back_inserter(goods.CustomItems),
                       [](const EquipmentRecord& item) { return item.Quantity > 0; });
  return goods;
}

/// Gives the character a custom item: every row that is the same thing takes the quantity; if there is none, the item
/// goes to the first free row.
void AddCustomItem(Game& game, const EquipmentRecord& item) {
  if (item.Name.Empty() || item.Quantity <= 0) return;
  auto& table = game.CustomEquipmentTable;
  bool isKnown = false;
  for (EquipmentRecord& row : First(table, kEquipmentRows - 1)) {  // the last row is not looked at
    if (row.Name != item.Name || row.CopperValue != item.CopperValue || row.Category != item.Category) continue;
    row.Quantity = AddSaturated(row.Quantity, item.Quantity);
    isKnown = true;
  }
  if (isKnown) return;
  const auto free = std::ranges::find_if(table, [](const EquipmentRecord& row) { return row.Name.Empty(); });
  if (free == table.end()) {
    game.platform.ShowMessage(Format("No room for the custom item %s.", DisplayText(item.Name)));
    return;
  }
  const int legacyId = free->LegacyId;
  *free = item;
  free->LegacyId = legacyId;
  game.CameWithCharacter.set(static_cast<std::size_t>(free - table.begin()));
}

/// Keeps a file of an older version before it is overwritten by one of the current version. False if there is a file
/// that can't be kept.
bool KeepOlderVersion(const std::string& path, SaveWay way) {
  std::string old;
  switch (ReadWholeFile(path, old, kVersionBytes)) {
    case FileRead::Missing:
      return true;
    case FileRead::Unreadable:
      return false;
    case FileRead::Done:
      break;
  }
  const CharacterFormat* format = FormatOf(old);
  if (format == nullptr || format == &kCurrentFormat) return true;
  constexpr std::size_t kNoCharacter = 64'000'000;  // many times what a character can take
  return ReadWholeFile(path, old, kNoCharacter) == FileRead::Done && old.size() < kNoCharacter &&
         KeepBackup(path, old, way);
}

}  // namespace

const CharacterFormat* FormatOf(std::string_view bytes) {
  if (bytes.size() < kVersionBytes) return nullptr;
  FixedText<kVersionBytes> version;
  ByteReader(bytes).Pass(version);
  const auto known = std::ranges::find(kCharacterFormats, version.View(), &CharacterFormat::Version);
  return known == std::end(kCharacterFormats) ? nullptr : known;
}

LoadResult DecodeCharacter(std::string_view bytes, CharacterDraft& draft) {
  const CharacterFormat* format = FormatOf(bytes);
  if (format == nullptr) return LoadResult::UnknownVersion;
  CharacterSheet& sheet = *std::construct_at(&draft.sheet);
  ByteReader file(bytes.substr(kVersionBytes));
  if (!PassCharacter(file, sheet, draft.goods, *format)) return LoadResult::Damaged;
  UpdateTalents(sheet, format->Version);
  DropStrayCodes(sheet);
  return LoadResult::Loaded;
}

std::string EncodeCharacter(const CharacterSheet& sheet, const CharacterGoods& goods) {
  ByteWriter file(kBareCharacterBytes + goods.CustomItems.size() * kCustomItemBytes);
  const FixedText<kVersionBytes> version = FileVersion;
  file.Pass(version);
  return PassCharacter(file, sheet, goods, kCurrentFormat) ? file.TakeBytes() : std::string();
}

std::string EncodeCharacter(const Game& game) {
  return EncodeCharacter(game.sheet, GoodsOf(game));
}

void TakeCharacter(Game& game, const CharacterDraft& draft) {
  ResetCharacter(game);
  const FixedText<200> playerName = game.sheet.PlayerName;
  game.sheet = draft.sheet;
  game.isFinished = true;
  game.sheet.PlayerName = playerName;
  for (std::size_t row = 0; row < kEquipmentRows; ++row) {
    game.EquipmentTable[row].Quantity = draft.goods.Quantities[row];
  }
  for (const EquipmentRecord& item : draft.goods.CustomItems) AddCustomItem(game, item);
}

bool SaveCharacterFile(Game& game, const std::string& path, SaveWay way) {
  const std::string bytes = EncodeCharacter(game);
  const bool isSaved = !bytes.empty() && KeepOlderVersion(path, way) && SaveWholeFile(path, bytes, way);
  if (isSaved) game.isFinished = true;
  game.platform.ShowMessage(isSaved ? "File saved in vlf format" : "Problem Saving vlf 4.5 file");
  return isSaved;
}

bool LoadCharacterFile(Game& game, const std::string& path) {
  std::string bytes;
  const FileRead read = ReadWholeFile(path, bytes, kLargestCharacterBytes);
  const CharacterFormat* format = FormatOf(bytes);
  if (read != FileRead::Done && format == nullptr) {
    game.platform.ShowMessage("Problem Loading vlf file");
    return false;
  }
  if (format == nullptr) {
    game.platform.ShowMessage("This file can not be loaded.");
    return false;
  }
  game.platform.ShowMessage(Format("Loading version %s character", format->Version));
  if (read != FileRead::Done) {
    // The disk gave the start of the file, but not all of it.
    game.platform.ShowMessage(Format("Problem Loading vlf %s file", format->Version));
    return false;
  }
  const auto draft = std::make_unique<CharacterDraft>();
  if (DecodeCharacter(bytes, *draft) != LoadResult::Loaded) {
    game.platform.ShowMessage("This file can not be loaded.");
    return false;
  }
  TakeCharacter(game, *draft);
  return true;
}

}  // namespace veld
