#pragma once

#include <vector>

#include "platform/menu.h"
#include "store/game.h"
#include "store/recovery.h"

namespace veld {

inline constexpr int kNewCharacter = 3029;
inline constexpr int kExit = 3030;
inline constexpr int kAbout = 3032;
inline constexpr int kSave = 3033;
inline constexpr int kLoad = 3034;
inline constexpr int kEdit = 3035;
inline constexpr int kInputCharacter = 3036;
inline constexpr int kRecover = 3037;
inline constexpr int kUndo = 3038;
inline constexpr int kRedo = 3039;
inline constexpr int kSaveRun = 3040;
inline constexpr int kHowToBegin = 3041;
inline constexpr int kPrint = 3042;
inline constexpr int kCriticalHits = 3099;
inline constexpr int kNpcs = 5562;
inline constexpr int kDiceTester = 5555;
inline constexpr int kCustomItems = 5557;
inline constexpr int kDiceRoller = 5558;
inline constexpr int kOptions = 5559;
inline constexpr int kHonorTracking = 5560;
inline constexpr int kPartySheet = 5561;

/// The main window's menu.
std::vector<MenuItem> MainMenu();

/// Carries out a command of the main menu, all but those that go back to what was done (see MainSession).
void RunMainCommand(Game& game, int id);

/// New Character: another character begins with the first dice and the window of Step 3.
void BeginCharacter(Game& game);

/// Makes what was chosen in Recover the character or the party in memory.
void TakeChosenCopy(Game& game, const RecoveryCopy& copy);

}  // namespace veld
