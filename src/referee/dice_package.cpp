#include "referee/dice_package.h"

#include <algorithm>

#include "platform/platform.h"
#include "store/byte_reader.h"
#include "store/byte_writer.h"

namespace veld {

namespace {

constexpr std::array<int, kDiceRows> kNoHonorModifier = {3004, 3007, 3010, 3013, 3016, 3019, 3023, 3026, 3029, 3032};

/// The fields of a roll in the order of the file.
void PassDiceRoll(auto& file, auto& roll) {
  file.Pass(roll.Include, roll.Times, roll.Sides, roll.ModPerDie, roll.ModPerRoll, roll.Penetrate, roll.HonorModifier,
            roll.Name);
}

bool Tell(Game& game, std::string_view problem) {
  game.platform.ShowMessage(problem);
  return false;
}

}  // namespace

DiceRollRecord FreeDiceRoll() {
  DiceRollRecord roll;
  roll.HonorModifier = kNoHonorModifier;
  return roll;
}

void ResetDicePackage(DicePackage& package) {
  package.fill(FreeDiceRoll());
}

std::optional<std::size_t> StoreDiceRoll(DicePackage& package, const DiceRollRecord& roll) {
  if (roll.Name.Empty()) return std::nullopt;
  auto slot = std::ranges::find(package, roll.Name, &DiceRollRecord::Name);
  if (slot == package.end()) slot = std::ranges::find_if(package, &FixedText<256>::Empty, &DiceRollRecord::Name);
  if (slot == package.end()) return std::nullopt;
  *slot = roll;
  return static_cast<std::size_t>(slot - package.begin());
}

bool DecodeDicePackage(std::string_view bytes, DicePackage& package) {
  if (bytes.size() < kDicePackageBytes) return false;
  ByteReader file(bytes);
  for (DiceRollRecord& roll : package) PassDiceRoll(file, roll);
  return true;
}

std::string EncodeDicePackage(const DicePackage& package) {
  ByteWriter file(kDicePackageBytes);
  for (const DiceRollRecord& roll : package) PassDiceRoll(file, roll);
  return file.TakeBytes();
}

bool LoadDicePackage(Game& game, const std::string& path, DicePackage& package) {
  std::string bytes;
  const FileRead read = ReadWholeFile(path, bytes, kDicePackageBytes);
  return (read == FileRead::Done && DecodeDicePackage(bytes, package)) || Tell(game, "Problem Loading Dice Package");
}

bool SaveDicePackage(Game& game, const std::string& path, const DicePackage& package, SaveWay way) {
  return SaveWholeFile(path, EncodeDicePackage(package), way) || Tell(game, "Problem Saving Dice Package");
}

}  // namespace veld
