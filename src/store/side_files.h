#pragma once

#include <string>
#include <string_view>

#include "store/game.h"
#include "store/safe_file.h"

namespace veld {

// The four files that outlive a character: rule switches, goods, the user's own goods, spells. They lie in the working
// directory. Every routine tells a failure in a message and returns false; the program goes on with what it has.

/// Reads options.vlb, or makes it from the switches in memory if there is none. The core rules are on afterwards.
bool LoadOptions(Game& game);
bool SaveOptions(Game& game, SaveWay way = {});

/// Reads equip.vlb; a short file loads what it has.
bool LoadEquipment(Game& game);

/// Reads cequip.vlb, or makes it from memory if there is none. One that can't be read is left alone.
bool LoadCustomEquipment(Game& game);
/// Without the goods that came with the character. The first overwriting of a file that is too short keeps that as
/// ".bak".
bool SaveCustomEquipment(Game& game, SaveWay way = {});

/// Empties the spell table and fills it from spells.vld. The character knows no spell afterwards.
bool LoadSpells(Game& game);

/// Writes skills.tsv, the skill tables as a sheet. A failure is told to nobody.
bool ExportSkills(SaveWay way = {});

using EquipmentArray = std::array<EquipmentRecord, kEquipmentRows>;
using SpellArray = std::array<SpellRecord, kSpellRows>;

/// The switches of options.vlb, each 0 or 1; what is on there, is above 0. Those that the file is too short for
/// have their defaults.
void DecodeOptions(std::string_view bytes, RuleSwitchArray& switches);
std::string EncodeOptions(const RuleSwitchArray& switches);

/// The rows of an equipment file with all quantities 0. What the file is too short for is an empty row.
void DecodeEquipment(std::string_view bytes, EquipmentArray& table);
std::string EncodeEquipment(const EquipmentArray& table);

/// The spells of spells.vld: blank-separated texts, twelve to a spell, at most kSpellRecords spells. All else is
/// "Empty", and of level 0 as is a level outside 0..9.
void DecodeSpells(std::string_view text, SpellArray& table);

}  // namespace veld
