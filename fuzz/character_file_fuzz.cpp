#include <algorithm>
#include <cmath>
#include <memory>

#include "fuzz_support.h"
#include "silent_platform.h"
#include "store/character_file.h"

using namespace veld;
using fuzz::Require;

namespace {

SilentPlatform platform;

/// Makes the draft the character of a game whose player has no goods of his own, and saves that.
std::string TakeAndSave(Game& game, const CharacterDraft& draft) {
  game.CustomEquipmentTable.fill({});
  TakeCharacter(game, draft);
  return EncodeCharacter(game);
}

void RequireSoundRecord(const CharacterSheet& sheet) {
  const auto isLevel = [](int level) { return level >= 0 && level <= 99; };
  Require(std::ranges::all_of(sheet.ClassLevels, isLevel), "levels are held to 0..99");
  const auto isFinite = [](float number) { return std::isfinite(number); };
  Require(isFinite(sheet.CarriedWeightLbs) && std::ranges::all_of(sheet.ClassExperience, isFinite),
          "floating numbers are finite");
  bool ended = false;
  for (const SpellBook& book : sheet.SpellBooks) {
    Require(!ended || book.Name.Empty(), "spell books are packed");
    ended = book.Name.Empty();
  }
}

}  // namespace

// A character file of any version: whatever loads is a sound record, and once saved it loads and saves as the same
// bytes for ever.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto game = MakeGame(platform);
  static const auto draft = std::make_unique<CharacterDraft>();
  if (DecodeCharacter(fuzz::Bytes(data, size), *draft) != LoadResult::Loaded) return 0;
  RequireSoundRecord(draft->sheet);
  const std::string saved = TakeAndSave(*game, *draft);
  Require(saved.size() >= kBareCharacterBytes && saved.size() <= kLargestCharacterBytes, "a save has a possible size");
  Require(DecodeCharacter(saved, *draft) == LoadResult::Loaded, "a save loads");
  Require(TakeAndSave(*game, *draft) == saved, "a save that was loaded saves as the same bytes");
  return 0;
}
