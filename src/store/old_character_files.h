#pragma once

#include "store/byte_reader.h"
#include "store/character_sheet.h"

namespace veld {

/// The places at which character files older than 4.2 hold their quirks.
enum class QuirkPlace { AfterBurden, AfterHair, AfterMageBackground, AfterSpellBooks };

/// Takes the quirks of one place of such a file.
void ReadScatteredQuirks(ByteReader& file, CharacterSheet& sheet, QuirkPlace place);

/// Brings the talents of a file of this version up to the present catalogue.
void UpdateTalents(CharacterSheet& sheet, std::string_view version);

}  // namespace veld
