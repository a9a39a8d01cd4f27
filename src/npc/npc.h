#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "store/game.h"

namespace veld {

/// What a character that plays itself shall be. What is left empty the dice choose, within what the rest allows.
struct NpcWishes {
  std::string race = {};    ///< as the race table has it, "Elf, High", case aside; empty: any
  std::string gender = {};  ///< "Male" or "Female", case aside; empty: any
  std::string className =
      {};         ///< a class or a combination as the class table has it, "Fighter/Thief", case aside; empty: any
  int level = 1;  ///< 1 to kHighestNpcLevel: of the highest of his classes, see MakeNpc
  std::string alignment = {};                 ///< "Lawful-good", case aside; empty: one that his class allows
  std::optional<RuleSwitchArray> books = {};  ///< the books and optional rules in use; none: those of the game
  bool hasYouth = false;   ///< plays the youth before the first adventure, if an almanac in use tells that of his class
  std::string name = {};   ///< empty: one of his people
  std::uint32_t seed = 1;  ///< the same wishes, books, catalogues and seed make the same character, byte for byte
};

inline constexpr int kHighestNpcLevel = 20;

/// Whether there is a character, and if not, which wish can't be met and why, in whole sentences.
struct NpcResult {
  bool isMade = false;
  std::string refusal = {};  ///< empty if he is made
  float cashedBP = 0;        ///< BP that he did not spend, and that became gold; never more than 3
};

/// Makes a character that plays his own generation, form by form, as a sensible player would towards the wishes, and
/// then gains the levels asked for with their training. He takes the place of the character in memory as a loaded one
/// does: his sheet, his goods and the run that he ended; all else of the game stays as it is, its dice too. Where there
/// is a refusal nothing is changed. A class that his race holds below the level stops there; if all of them do, that is
/// a refusal. Nothing is asked of the player, and nothing is written to a disk.
/// Whoever calls closes the window of Step 3 and keeps a copy of the character before, and shows the new one after.
NpcResult MakeNpc(Game& game, const NpcWishes& wishes);

/// Makes many: holds what the making of one needs for the next. A maker gives what MakeNpc gives.
class NpcMaker {
 public:
  NpcMaker();
  ~NpcMaker();
  NpcMaker(const NpcMaker&) = delete;
  NpcMaker& operator=(const NpcMaker&) = delete;

  NpcResult Make(Game& game, const NpcWishes& wishes);

 private:
  struct Workshop;
  std::unique_ptr<Workshop> workshop_;
};

/// The character in memory in one line of a list: name, race, class, level, hit points, Honor and the weapon that he
/// is best with, "Orla Fenwick, Human, Fighter 3, 34 HP, Honor 14, Sword: Long".
std::string NpcLine(const Game& game);

// For boxes to choose from.

/// The names of the races whose book is in use, in the table's order, each once.
std::vector<std::string> NpcRaces(const RuleSwitchArray& books);
/// The names of the classes and combinations whose book is in use and that the race allows; of any race if it is empty.
std::vector<std::string> NpcClasses(const RuleSwitchArray& books, std::string_view race = {},
                                    std::string_view gender = {});

}  // namespace veld
