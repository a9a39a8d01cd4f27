#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>

#include "journal/journal_platform.h"
#include "pictures/studio.h"
#include "platform/control_names.h"
#include "sheets/character_page.h"
#include "shell/main_menu.h"
#include "shell/main_session.h"
#include "support/game_test.h"
#include "support/scripted_platform.h"
#include "text/search.h"

namespace veld::testing {

namespace {

constexpr std::int64_t kClock = 50;  // seeds the dice of the run
constexpr const char* kHero = "Ada of the Marsh";

[[noreturn]] void GiveUp(const Form& form, std::string_view what) {
  std::fprintf(stderr, "%s has no '%s'; it shows:\n", std::string(form.Name()).c_str(), std::string(what).c_str());
  const std::vector<std::string> names = ControlNames(form);
  for (std::size_t i = 0; i < names.size(); ++i) {
    const Control& control = form.Controls()[i];
    if (!control.Visible) continue;
    std::fprintf(stderr, "  %s: '%s'\n", names[i].c_str(), control.Text.c_str());
    for (const std::string& item : control.Items) std::fprintf(stderr, "      %s\n", item.c_str());
  }
  std::exit(1);
}

/// A control by the name that is read out for it.
int Named(const Form& form, std::string_view name, bool isButton) {
  const std::vector<std::string> names = ControlNames(form);
  for (std::size_t i = 0; i < names.size(); ++i) {
    const Control& control = form.Controls()[i];
    const bool isPressed = control.Template.Kind == ControlKind::Button;
    if (names[i] == name && control.Visible && control.Template.Id != 0 && isPressed == isButton)
      return control.Template.Id;
  }
  GiveUp(form, name);
}

void Press(Form& form, std::string_view button) {
  form.Press(Named(form, button, true));
}

void Type(Form& form, std::string_view field, std::string_view text) {
  if (!form.Type(Named(form, field, false), text)) GiveUp(form, field);
}

/// The first row of the list that begins so.
void Choose(Form& form, std::string_view list, std::string_view row) {
  const int id = Named(form, list, false);
  const auto& items = form.Items(id);
  const auto found = std::ranges::find_if(items, [&](const std::string& item) { return item.starts_with(row); });
  if (found == items.end()) GiveUp(form, row);
  form.Choose(id, static_cast<int>(found - items.begin()));
}

/// Plays what was told of each form by its name; of any other the default button, then the close box.
class Player : public Platform {
 public:
  std::map<std::string, std::function<void(Form&)>, std::less<>> parts;
  std::vector<PageLine> page;
  std::string title;
  std::shared_ptr<Form> window;

  void RunForm(Form& form) override {
    form.Open();
    if (form.IsClosed()) return;
    if (const auto part = parts.find(form.Name()); part != parts.end()) part->second(form);
    if (!form.IsClosed()) form.PressDefault();
    if (!form.IsClosed()) form.PressCloseBox();
    form.Close();
  }
  void ShowWindow(std::shared_ptr<Form> form) override {
    window = std::move(form);
    window->Open();
  }
  void RunMainWindow(const MainWindow&) override {}
  void CloseMainWindow() override {}
  void SetMainTitle(std::string_view text) override { title = text; }
  void ShowPage(const std::vector<PageLine>& shown) override { page = shown; }
  void BeginProgress(std::string_view, std::string_view) override {}
  bool ShowProgress(int) override { return true; }
  void EndProgress() override {}
  std::int64_t Now() const override { return kClock; }

 protected:
  std::optional<std::string> DoAskOpenPath(const std::string&, std::span<const FileFilter>) override { return {}; }
  std::optional<ChosenPath> DoAskSavePath(const std::string&, std::span<const FileFilter>,
                                          const std::string&) override {
    return {};
  }
};

/// Presses whatever the page wants next, to its end.
void PressWhatIsNext(Form& form) {
  constexpr std::string_view kNext = "Next: ";
  for (int presses = 0; presses < 40; ++presses) {
    const auto next =
        std::ranges::find_if(form.Controls(), [&](const Control& c) { return c.Text.starts_with(kNext); });
    if (next == form.Controls().end() || next->Text == "Next: OK") return;
    Press(form, std::string(next->Text.substr(kNext.size())));
  }
}

void Buy(Form& form, std::string_view list, std::string_view what, std::string_view button) {
  Type(form, "Search", what);
  Choose(form, list, what);
  Press(form, button);
}

void AddMember(Player& player, Form& track, const char* name, const char* alignment, const char* honor) {
  player.parts["GetPC"] = [=](Form& form) {
    Type(form, "Name", name);
    Choose(form, "Alignment", alignment);
    Type(form, "Honor", honor);
    Press(form, "Add");
  };
  Press(track, "Add PC");
}

}  // namespace

void TakeHandbookPictures(Studio& studio) {
  const TestFolder folder;
  Player player;
  JournalPlatform journal(player);
  auto game = QuietGame(journal);
  LoadShippedCatalogues(*game);
  MainSession session(*game, journal);
  const auto takes = [&](const char* file) { return [&studio, file](Form& form) { studio.TakeWindow(form, file); }; };

  studio.TakeMain("Tolmar's Plain Quellmarch Toolkit", NobodyPage(), "main-window");

  game->RuleSwitches[kRollYourOwnDice] = 1;
  player.parts["GetDice"] = [&](Form& form) {
    if (game->RuleSwitches[kRollYourOwnDice] == 1) studio.TakeWindow(form, "die-prompt");
    Press(form, "Turn This Off");
  };
  session.Command(kNewCharacter);

  session.Command(kNewCharacter);
  Choose(*player.window, "Race", "Human, Female");
  studio.TakeMain(player.title, player.page, "step-three", player.window.get());
  player.parts["StepSix"] = [&](Form& form) {
    PressWhatIsNext(form);
    takes("step-six")(form);
  };
  player.parts["StepNine"] = [&](Form& form) {
    Choose(form, "Classes", "Fighter");
    studio.TakeWindow(form, "class-choice", Named(form, "Classes", false));
  };
  player.parts["Question"] = [](Form& form) {
    const bool isOffer = form.Title() == "Yes or No" || form.Title() == "Save";
    Press(form, isOffer ? "No" : "Yes");
  };
  player.parts["StepTen"] = PressWhatIsNext;
  player.parts["WeaponProf"] = [](Form& form) {
    for (const char* weapon : {"Sword: Long", "Spear", "Bow: Long", "Dagger"}) {
      Buy(form, "Weapons and styles", weapon, "Take as a Proficiency");
    }
    Press(form, "Close");
  };
  player.parts["Skills"] = [&](Form& form) {
    Press(form, "Proficiencies");
    for (const char* skill : {"Swimming: Dog Paddle", "Fire-building", "Rope Use", "Animal Lore", "Hunting"}) {
      Buy(form, "Skills to learn", skill, "Add/Improve Skill");
    }
    Type(form, "Search", "");
    Choose(form, "Skills to learn", "Map Sense");
    studio.TakeWindow(form, "skills", Named(form, "Skills to learn", false));
    Press(form, "OK");
  };
  player.parts["StepFourteen"] = [](Form& form) { Choose(form, "Step 14: Choose an Alignment", "Neutral-good"); };
  player.parts["StepEightteen"] = [](Form& form) { Type(form, "Character Name", kHero); };
  player.parts["Equip"] = [&](Form& form) {
    for (const char* good : {"Sword: Long", "Bow: Long", "Dagger", "Studded Leather", "Backpack, standard",
                             "Rope, hemp", "Torch, smokeless"}) {
      Buy(form, "Equipment", good, "Add >>");
    }
    Type(form, "Search", "");
    Choose(form, "Category", "Provisions: Outfitting");
    Choose(form, "Equipment", "Rope, silk");
    studio.TakeWindow(form, "equipment", Named(form, "Equipment", false));
    Press(form, "OK");
  };
  Press(*player.window, "Continue");
  studio.TakeMain(player.title, player.page, "character");

  player.parts["EditClasses"] = [&](Form& form) {
    Type(form, "Experience gained", "2600");
    Press(form, "Award");
    takes("edit-levels")(form);
    Press(form, "OK");
  };
  player.parts["MainEdit"] = [](Form& form) { Press(form, "Experience and classes"); };
  session.Command(kEdit);

  player.parts["HONORTRACK"] = [&](Form& form) {
    AddMember(player, form, kHero, "NG", "18");
    AddMember(player, form, "Brother Odo", "LG", "24");
    AddMember(player, form, "Wren Tallow", "CN", "9");
    Choose(form, "Party", std::string("Name ") + kHero);
    Type(form, "Search", "Saving the life");
    Choose(form, "Award", "Saving the life of another");
    Press(form, "Apply Award");
    takes("honor")(form);
  };
  session.Command(kHonorTracking);
  player.parts["CRITICALHITS"] = [&](Form& form) {
    Choose(form, "Type", "Hacking");
    Type(form, "d10,000", "4711");
    Type(form, "Severity Level", "9");
    Press(form, "Use the numbers I entered above");
    takes("critical-hits")(form);
  };
  session.Command(kCriticalHits);
  player.parts["GMDiceRoller"] = [&](Form& form) {
    for (const char* expression : {"3d6+2", "2d8p-1", "1d20", "4d4+4"}) {
      Type(form, "Expression", expression);
      Press(form, "Roll It");
    }
    Press(form, "Roll");
    takes("dice-roller")(form);
  };
  session.Command(kDiceRoller);
}

}  // namespace veld::testing
