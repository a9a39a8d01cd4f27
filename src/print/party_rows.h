#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "rules/saving_throws.h"
#include "store/character_sheet.h"
#include "store/party_file.h"

namespace veld {

/// What a referee's sheet tells of a character. What is not known is empty, and left to the pencil.
struct PartyRow {
  std::string Name = {};
  std::string Calling = {};  ///< race, class and level
  std::string Alignment = {};
  std::string HitPoints = {};
  std::array<std::string, kSaveCount> Saves = {};
  std::string Honor = {};
  std::string HonorCategory = {};
  std::string TemporalHonor = {};
  std::string Movement = {};  ///< from unencumbered to severe, "12/9/6/3/1"
  std::string Senses = {};    ///< what sets the character's senses apart
  std::string Languages = {};
  std::vector<std::string> Weapons = {};  ///< held, with hit, damage by size and speed
};

/// The row of a character as a file has it: nothing is asked, rolled or brought up to date.
PartyRow PartyRowOf(const CharacterSheet& sheet);
/// What a party file knows of a member: name, alignment and Honor.
PartyRow PartyRowOf(const PartyMember& member);

/// The rows of a character file, which is one, or of a party file by its ending. Nothing if it can't be read.
std::optional<std::vector<PartyRow>> ReadPartyRows(const std::string& path);

/// Adds a row. If one of the same name is there, a character takes its place but for the temporal Honor, and a member
/// of a party gives it his Honor.
void AddPartyRow(std::vector<PartyRow>& rows, const PartyRow& row);

}  // namespace veld
