#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "rules/equipment_record.h"
#include "rules/rule_switches.h"
#include "rules/spell_record.h"
#include "store/character_sheet.h"
#include "store/generation_run.h"
#include "store/party_file.h"
#include "store/print_choice.h"

namespace veld {

class Form;
class Platform;

/// Where dice.log lines go: each line opens, appends and closes the file; a long run of rolls may hold it open; rolls
/// that are no player's (measurements) leave no line.
enum class DiceLogMode { EachLine, HeldOpen, Off };

/// The dice engine's state, and the texts that it shares with the rules that roll.
struct DiceState {
  std::uint32_t RandomState = 0;
  std::string DiceLabel;        ///< what the next roll is for; fewer than 3 characters count as none
  std::string RollContextText;  ///< the sentence a prompt shows
  std::string RollPurpose;      ///< what a player who types the dice is told they are for; may be empty
  std::int64_t DiceEntryValue = 0;
  DiceLogMode LogMode = DiceLogMode::EachLine;
  int LogFile = -1;             ///< while held open
  std::string LogLines;         ///< gathered for it
};

/// What the referee's critical hit dialog holds while the program runs.
struct CriticalHitNumbers {
  int Roll = 0;          ///< d10,000 for the place
  int BaseSeverity = 0;
  int Severity = 0;
  std::vector<std::string> LastResults;  ///< the newest first
};

/// A character that played himself, as he is listed and as the bytes of his file.
struct MadeNpc {
  std::string Line;
  std::string Bytes;
};

/// All that the program remembers. Big: made once on the heap by MakeGame and only ever passed by reference.
struct Game {
  explicit Game(Platform& p) : platform(p) {}

  Platform& platform;
  CharacterSheet sheet;
  GenerationRun run;
  DiceState dice;
  RuleSwitchArray RuleSwitches = kDefaultRuleSwitches;
  std::array<EquipmentRecord, kEquipmentRows> EquipmentTable{};
  std::array<EquipmentRecord, kEquipmentRows> CustomEquipmentTable{};
  std::bitset<kEquipmentRows> CameWithCharacter;  ///< rows of CustomEquipmentTable that are the character's, not the
                                                  ///< user's: they are in no cequip.vlb, and leave with him
  std::array<SpellRecord, kSpellRows> SpellTable{};
  std::string TextScratch;            ///< the name that a purchase or grant is for
  std::shared_ptr<Form> stepThree;    ///< the open StepThree window
  bool isFinished = false;            ///< the character has come to the end of its generation, from a file or into one
  std::string recoveryCopy;           ///< which recovery copy is that of the character; empty: none yet
  Party party;                        ///< the referee's; no character's, and stays while characters come and go
  std::string runCopy;                ///< which journal is that of the run; empty: none yet
  int characters = 0;                 ///< how many have been in memory: another number, another character
  std::string partyCopy;              ///< which recovery copy is that of the party; empty: none yet
  CriticalHitNumbers criticalHits;
  PrintChoice print;
  std::vector<MadeNpc> npcs;          ///< those that the referee's page made last

  bool IsOn(std::size_t ruleSwitch) const { return ruleSwitch < kRuleSwitches && RuleSwitches[ruleSwitch] == 1; }
};

/// A game with an empty character, the rule switches at their defaults and empty catalogues of goods and spells.
std::unique_ptr<Game> MakeGame(Platform& platform);

/// Puts the character, the run and all quantities owned to their defaults, the core rules on, and seeds the dice with
/// the clock. Frees the rows of goods that came with the character. Keeps the player's name, what else the
/// catalogues hold, and the recovery copy of the character that was there.
void ResetCharacter(Game& game);

}  // namespace veld
