#include "store/side_files.h"

#include <algorithm>
#include <memory>
#include <span>

#include "platform/platform.h"
#include "rules/skills_tsv.h"
#include "store/byte_reader.h"
#include "store/byte_writer.h"
#include "store/file_layout.h"
#include "text/numbers.h"

namespace veld {

namespace {

constexpr char kOptionsPath[] = "options.vlb";
constexpr char kEquipmentPath[] = "equip.vlb";
constexpr char kCustomEquipmentPath[] = "cequip.vlb";
constexpr char kSpellPath[] = "spells.vld";
constexpr char kSkillSheetPath[] = "skills.tsv";

bool Tell(Game& game, std::string_view problem) {
  game.platform.ShowMessage(problem);
  return false;
}

/// A short list of custom goods would lose rows to a full one unseen: the list that can't be read to its end is kept.
bool KeepShortCustomEquipment(SaveWay way) {
  std::string old;
  switch (ReadWholeFile(kCustomEquipmentPath, old, kEquipmentFileBytes)) {
    case FileRead::Missing:
      return true;
    case FileRead::Unreadable:
      return false;
    case FileRead::Done:
      break;
  }
  return old.size() == kEquipmentFileBytes || KeepBackup(kCustomEquipmentPath, old, way);
}

bool IsBlank(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

/// Takes the next text between blanks off the front of `rest`; empty at the end.
std::string_view TakeToken(std::string_view& rest) {
  const char* const end = rest.data() + rest.size();
  const char* const start = std::find_if_not(rest.data(), end, IsBlank);
  const char* const stop = std::find_if(start, end, IsBlank);
  rest = {stop, static_cast<std::size_t>(end - stop)};
  return {start, static_cast<std::size_t>(stop - start)};
}

template <std::size_t N>
void TakeText(std::string_view& rest, FixedText<N>& field) {
  const std::string_view token = TakeToken(rest);
  if (!token.empty()) field = token;
}

/// A text whose blanks the file writes as "_".
template <std::size_t N>
void TakeSpacedText(std::string_view& rest, FixedText<N>& field) {
  TakeText(rest, field);
  std::replace(std::begin(field.bytes), std::end(field.bytes), '_', ' ');
}

int SpellLevel(std::string_view token) {
  const std::int64_t level = ReadNumberPrefix(token);
  return level >= 0 && level <= 9 ? static_cast<int>(level) : 0;
}

SpellRecord EmptySpell() {
  SpellRecord spell;
  for (auto* field : {&spell.Name, &spell.Type, &spell.Specialization, &spell.Range, &spell.Component, &spell.Duration,
                      &spell.CastingTime, &spell.AreaOfEffect, &spell.SavingThrow, &spell.Category}) {
    *field = "Empty";
  }
  spell.SourceTag = "Empty";
  return spell;
}

void TakeSpell(std::string_view& rest, SpellRecord& spell) {
  TakeSpacedText(rest, spell.Name);
  TakeSpacedText(rest, spell.Type);
  TakeText(rest, spell.Specialization);
  TakeSpacedText(rest, spell.Range);
  TakeText(rest, spell.Component);
  TakeSpacedText(rest, spell.Duration);
  TakeSpacedText(rest, spell.CastingTime);
  TakeSpacedText(rest, spell.AreaOfEffect);
  TakeSpacedText(rest, spell.SavingThrow);
  spell.Level = SpellLevel(TakeToken(rest));
  TakeSpacedText(rest, spell.Category);
  TakeText(rest, spell.SourceTag);
}

}  // namespace

void DecodeOptions(std::string_view bytes, RuleSwitchArray& switches) {
  std::array<int, kOptionPlaces> numbers{};
  ByteReader(bytes).Pass(numbers);
  const std::size_t told = bytes.size() / sizeof(int);
  for (const RuleSwitchRow& row : kRuleSwitchRows) {
    switches[row.Switch] = row.FilePlace < told ? (numbers[row.FilePlace] > 0 ? 1 : 0) : row.Default;
  }
  switches[kCoreRules] = 1;
}

std::string EncodeOptions(const RuleSwitchArray& switches) {
  std::array<int, kOptionPlaces> numbers{};
  for (const RuleSwitchRow& row : kRuleSwitchRows) numbers[row.FilePlace] = switches[row.Switch];
  ByteWriter file(kOptionsFileBytes);
  file.Pass(numbers);
  return file.TakeBytes();
}

void DecodeEquipment(std::string_view bytes, EquipmentArray& table) {
  ByteReader file(bytes);
  for (EquipmentRecord& row : table) {
    file.Pass(row.Name, row.Padding, row.GoldCost, row.SilverCost, row.CopperCost, row.CopperValue, row.Weight,
              row.Category, row.Quantity, row.LegacyId);
    row.Quantity = 0;  // of the character that was in memory when the file was written
    row.Category = KnownCategory(row.Category);
  }
}

std::string EncodeEquipment(const EquipmentArray& table) {
  return {reinterpret_cast<const char*>(table.data()), kEquipmentFileBytes};
}

void DecodeSpells(std::string_view text, SpellArray& table) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";  // some editors put one at the head of a text
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  table.fill(EmptySpell());
  for (std::size_t row = 0; row < kSpellRecords; ++row) TakeSpell(text, table[row]);
}

bool LoadOptions(Game& game) {
  std::string bytes;
  const FileRead read = ReadWholeFile(kOptionsPath, bytes, kOptionsFileBytes);
  if (read == FileRead::Done) {
    DecodeOptions(bytes, game.RuleSwitches);
    return true;
  }
  game.RuleSwitches[kCoreRules] = 1;
  Tell(game,
       "Problem Loading options.vlb file. Will create new one now. If this is your first time running VELD this is "
       "normal.");
  return read == FileRead::Missing && SaveOptions(game);
}

bool SaveOptions(Game& game, SaveWay way) {
  return SaveWholeFile(kOptionsPath, EncodeOptions(game.RuleSwitches), way) ||
         Tell(game, "Problem Saving options.vlb file");
}

bool LoadEquipment(Game& game) {
  std::string bytes;
  if (ReadWholeFile(kEquipmentPath, bytes, kEquipmentFileBytes) != FileRead::Done) {
    return Tell(game, "Problem Loading equip.vlb file");
  }
  DecodeEquipment(bytes, game.EquipmentTable);
  return true;
}

bool LoadCustomEquipment(Game& game) {
  std::string bytes;
  switch (ReadWholeFile(kCustomEquipmentPath, bytes, kEquipmentFileBytes)) {
    case FileRead::Done:
      DecodeEquipment(bytes, game.CustomEquipmentTable);
      game.CameWithCharacter.reset();
      return true;
    case FileRead::Unreadable:
      return Tell(game, "Problem Loading cequip.vlb file");
    case FileRead::Missing:
      break;
  }
  Tell(game,
       "Problem Loading cequip.vlb file. Will create new one now. If this is your first time running VELD this is "
       "normal.");
  return SaveCustomEquipment(game);
}

bool SaveCustomEquipment(Game& game, SaveWay way) {
  const auto own = std::make_unique<EquipmentArray>(game.CustomEquipmentTable);
  for (std::size_t row = 0; row < kEquipmentRows; ++row) {
    if (game.CameWithCharacter[row]) (*own)[row] = Emptied((*own)[row]);
  }
  return (KeepShortCustomEquipment(way) && SaveWholeFile(kCustomEquipmentPath, EncodeEquipment(*own), way)) ||
         Tell(game, "Problem Loading cequip.vlb file");
}

bool ExportSkills(SaveWay way) {
  return SaveWholeFile(kSkillSheetPath, SkillsTsv(), way);
}

bool LoadSpells(Game& game) {
  std::string text;
  const FileRead read = ReadWholeFile(kSpellPath, text, kLargestSpellFileBytes);
  DecodeSpells(read == FileRead::Done ? std::string_view(text) : std::string_view(), game.SpellTable);
  game.sheet.SpellsKnown.fill(0);
  return read == FileRead::Done || Tell(game, "Problem Loading Spell file");
}

}  // namespace veld
