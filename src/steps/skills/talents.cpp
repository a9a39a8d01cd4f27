#include "steps/skills/talents.h"

#include "platform/platform.h"
#include "steps/skills/line_lists.h"
#include "text/format.h"
#include "text/numbers.h"

namespace veld {

namespace {

enum : int {
  kClose = 1,
  kBuildingPoints = 25,
  kPrice = 90,
  kCostHead = 92,
  kBuildingPointsHead = 93,
  kPage = 95,
  kOffered = TalentsControl::Offered,
  kHeld = 3025,
  kSearch = 3026,
  kNote = TalentsControl::Note,
  kAdd = TalentsControl::Add,
  kRemove = 4002,
};

constexpr int kListWidth = 38;
constexpr int kListLines = 16;
constexpr int kSearchBytes = 49;

constexpr ControlTemplate kTalentsControls[] = {
    TitleAt(0, 0, "Talents", 2),
    LabelAt(1, 0, "&Search"),
    SearchAt(1, 0, kSearch, kOffered, 28, kSearchBytes),
    LabelWithIdAt(1, 1, kBuildingPointsHead, "BP's:"),
    ResultAt(1, 1, kBuildingPoints, 8),
    LabelAt(2, 0, "Talents you may &take"),
    LabelAt(2, 1, "Talents you &have"),
    ListAt(3, 0, kOffered, kListWidth, kListLines),
    ListAt(3, 1, kHeld, kListWidth, kListLines),
    LabelWithIdAt(4, 0, kCostHead, "Cost"),
    ResultAt(4, 0, kPrice, 10),
    LabelAt(4, 1, "Page"),
    ResultAt(4, 1, kPage, 20),
    TextAt(5, 0, kNote, "", 2 * kListWidth, 1, 1, 2),
    ButtonAt(6, 0, kAdd, "&Add", ButtonRole::Default),
    ButtonAt(6, 1, kRemove, "&Remove"),
    ButtonAt(6, 1, kClose, "&Close", ButtonRole::Cancel),
};
constexpr std::string_view kTalentsHelp =
    "Talents are gifts of blood: the list holds those that his race may have, and a few that his class or package "
    "opens. Choose one; its cost in BP stands below the list. Add buys it, Remove gives the BP back, as long as you "
    "are on this page of skills.\n\n"
    "A talent counts once, but those called a Bonus may be bought again and again, and some ask which weapon or thing "
    "they are for. What his race gave him is listed too, cost nothing, and stays. Talents are dear beside skills, so "
    "begin with those that work in every fight.";
constexpr FormTemplate kTalents{"Talents", "Talents", kTalentsControls, kTalentsHelp};

/// The open page, with the talents behind the lines of its two lists.
struct TalentsPage {
  Form form{kTalents};
  std::vector<TalentLine> offered;
  std::vector<TalentLine> held;
  int shown = kOffered;  ///< the list whose selection is told of
};

TalentPlace SelectedIn(const TalentsPage& page, int list) {
  return SelectedPlace(page.form, list, list == kHeld ? page.held : page.offered);
}

void FillOffered(const Game& game, TalentsPage& page) {
  RefillList(page.form, kOffered, page.offered, LinesHolding(TalentsOffered(game), page.form.Text(kSearch)));
}

/// What Add or Remove will do with the talent, or why it will do nothing.
std::string NoteOn(const Game& game, const TalentPlace& place, int direction) {
  const int price = TalentPriceNow(game, place);
  if (std::string obstacle = TalentObstacle(game, place, direction, price); !obstacle.empty()) return obstacle;
  if (direction < 0) return Format("Taking it away gives %i BP back.", price);
  if (IsLuckyTalent(place)) return "You will be asked for the sides of its die.";
  if (place.Row < 0 && place.Item < 0) return "You will be asked what it is for.";
  return TalentCount(game, place) > 0 ? "You have it, and may take it again." : "";
}

void ShowTalentCost(const Game& game, TalentsPage& page) {
  const TalentPlace place = SelectedIn(page, page.shown);
  if (place.IsNone()) {
    for (const int id : {kPrice, kPage, kNote}) page.form.SetText(id, "");
    return;
  }
  page.form.SetText(kPrice, Format("%i BP", TalentPriceNow(game, place)));
  page.form.SetText(kPage, TalentAt(place).Page);
  page.form.SetText(kNote, NoteOn(game, place, page.shown == kHeld ? -1 : 1));
}

void ShowTalents(const Game& game, TalentsPage& page) {
  FillOffered(game, page);
  RefillList(page.form, kHeld, page.held, TalentsHeld(game));
  page.form.SetNumber(kBuildingPoints, TruncateToInt(game.run.BuildingPoints));
  ShowTalentCost(game, page);
}

}  // namespace

void RunTalents(Game& game) {
  TalentsPage page;
  Form& form = page.form;
  form.onOpened = [&] {
    GrantRaceTalents(game);
    ShowTalents(game, page);
  };
  form.onSelect = [&](int list) {
    page.shown = list;
    ShowTalentCost(game, page);
  };
  form.onEdit = [&](int) { FillOffered(game, page); };
  form.onCommand = [&](int id) {
    if (id == kClose) return form.Close();
    const TalentPlace place = SelectedIn(page, id == kRemove ? kHeld : kOffered);
    ChangeTalent(game, place, id == kRemove ? -1 : 1, TalentPriceNow(game, place));
    ShowTalents(game, page);
  };
  game.platform.RunForm(form);
}

}  // namespace veld
