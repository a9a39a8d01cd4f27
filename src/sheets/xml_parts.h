#pragma once

#include <string_view>

#include "sheets/xml_writer.h"
#include "store/game.h"

namespace veld {

// The parts of the XML sheet that stand in files of their own. The names of the elements and their order are what other
// programs read, misspellings and all: they are never mended.

/// NAME with what it is called in full and in short.
void AddXmlName(XmlWriter& xml, std::string_view full, std::string_view abbreviation);

/// True if a text of the record says anything: a field that was never filled may hold a blank.
bool HasText(std::string_view text);

/// The level tables of each class held.
void AddClassData(XmlWriter& xml, const CharacterSheet& sheet);
/// The youths, with a mage's spells, and the lists of class abilities.
void AddBackgrounds(XmlWriter& xml, const Game& game);
void AddSkillLists(XmlWriter& xml, const CharacterSheet& sheet);

/// What the character can do and owns, as bare lists of names and numbers.
void AddHoldings(XmlWriter& xml, const Game& game);

}  // namespace veld
