#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "store/file_layout.h"
#include "store/game.h"
#include "store/safe_file.h"

namespace veld {

/// What a character file tells of a character's goods.
struct CharacterGoods {
  std::array<int, kEquipmentRows> Quantities{};  ///< of the goods list
  std::vector<EquipmentRecord> CustomItems;      ///< whole rows: they may be new to the list of the reader
};

/// A character as read from a file, before it takes the place of the one in memory. Big: keep it on the heap.
struct CharacterDraft {
  CharacterSheet sheet;
  CharacterGoods goods;
};

/// Damaged: a count that no table can hold.
enum class LoadResult { Loaded, UnknownVersion, Damaged };

/// The version of a character file, from its first bytes; nothing if it is none that can be read, or cut short in them.
const CharacterFormat* FormatOf(std::string_view bytes);

/// Reads a character file of any known version into a draft, whatever that held. What the file is too short for behind
/// its version is zero; row numbers and codes out of range count as none. Unless the result is Loaded the draft is of
/// no use.
LoadResult DecodeCharacter(std::string_view bytes, CharacterDraft& draft);

/// The bytes of a character file of the current version. None if the record holds a level that no file can.
std::string EncodeCharacter(const CharacterSheet& sheet, const CharacterGoods& goods);
std::string EncodeCharacter(const Game& game);

/// Makes `draft` the character in memory, a finished one, of the player who sits there. Custom items that the user's
/// list does not have are added to it in memory, as the character's own (see CameWithCharacter); one that finds no free
/// row is told.
void TakeCharacter(Game& game, const CharacterDraft& draft);

/// Saves the character, with a message. The first overwriting of a file of an older version keeps that as ".bak".
bool SaveCharacterFile(Game& game, const std::string& path, SaveWay way = {});

/// Loads a character, with messages. A file that can't be loaded leaves everything as it was.
bool LoadCharacterFile(Game& game, const std::string& path);

}  // namespace veld
