#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "generation/sheet_formats.h"
#include "npc/npc.h"

namespace veld {

// The commands of veld-cli. Each returns the exit status: kDone, or kFailed once something could not be read, made or
// written, which is told on standard error; what else was asked for is done all the same.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;
inline constexpr int kWrongUse = 2;  ///< the command line asks for what there is not

/// The name that stands for standard input among files and for standard output as a place to write to.
inline constexpr const char* kStandard = "-";

/// The formats that characters are written in: those of all front ends, and JSON.
std::vector<SheetFormat> OutputFormats();

/// Where sheets go: each to a file of its own in a folder, which is made if need be, or all to standard output.
struct SheetOutput {
  std::vector<std::string> Formats;  ///< names of OutputFormats
  std::string Folder = kStandard;
};

/// Makes `count` characters, of the seeds from wishes.seed on.
int MakeNpcs(const NpcWishes& wishes, int count, const SheetOutput& output);

/// The sheets of characters. A file is named as its character's file.
int WriteSheets(const std::vector<std::string>& files, const SheetOutput& output);

/// The page of a character as text.
int ShowCharacters(const std::vector<std::string>& files);

/// A line for each file: who it is, or why it can't be loaded.
int CheckCharacters(const std::vector<std::string>& files);

/// Throws dice, `times` times, a line each: the sum, then the dice.
int RollExpression(const std::string& dice, int times, std::optional<std::uint32_t> seed);

struct CriticalHitWish {
  std::string Type;  ///< the beginning of one of kDamageTypes, case aside
  int Severity = 0;
  std::optional<int> Roll;  ///< d10,000 for the place; thrown if there is none
  std::optional<std::uint32_t> Seed;
};
/// What a critical hit does, and what its notation means.
int LookUpCriticalHit(const CriticalHitWish& wish);

/// A line for each character of the files; a party's (.vlp) are told by name, alignment and Honor.
int ListParty(const std::vector<std::string>& files);

}  // namespace veld
