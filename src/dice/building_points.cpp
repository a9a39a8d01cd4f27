#include "dice/building_points.h"

#include "platform/platform.h"

namespace veld {

namespace {

constexpr std::string_view kRerollCaption = "Reroll costs 1 BP";

}  // namespace

bool CanPay(const Game& game, float charge) {
  return Reaches(game.run.BuildingPoints, charge);
}

bool Pay(Game& game, float charge) {
  if (!CanPay(game, charge)) return false;
  game.run.BuildingPoints -= charge;
  return true;
}

bool AskKeep(Game& game, std::string_view question, Answer closed) {
  if (!CanPay(game)) return true;
  const Answer answer = game.platform.AskYesNo(kRerollCaption, question);
  if ((answer == Answer::Closed ? closed : answer) == Answer::Yes) return true;
  Pay(game);
  return false;
}

}  // namespace veld
