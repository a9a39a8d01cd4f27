// Promise: a newcomer who throws real dice and knows nothing of the pages comes from the start of the program to a
// saved fighter in at most 120 presses. A press is an Enter, a click, a row chosen, an answer; the digits of his dice
// and the letters of a name are counted apart, as typed. He takes what the page offers, Enter where the focus is, and
// looks only for the words "Human, Male", "Fighter" and a few things to learn and buy; where Enter does nothing he
// clicks the button that ends the page.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>

#include "platform/control_names.h"
#include "shell/main_menu.h"
#include "silent_platform.h"
#include "steps/classes/class_choice.h"
#include "store/side_files.h"

namespace veld {
namespace {

constexpr int kMostPresses = 120;
constexpr int kMostPressesOfAPage = 60;
constexpr std::uint32_t kSeeds = 200;

std::string FileText(const std::string& path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

class Newcomer : public SilentPlatform, public FormObserver {
 public:
  explicit Newcomer(std::uint32_t seed) : state_(seed) {}

  int presses = 0;
  int typed = 0;
  bool isSaved = false;
  std::map<std::string, int> pressesOfPages;
  std::shared_ptr<Form> window;

  void RunForm(Form& form) override {
    Form* const below = form_;
    const std::size_t focusBelow = focus_;
    const int before = presses;
    form_ = &form;
    form.SetObserver(this);
    focus_ = form.Controls().size();
    form.Open();
    if (focus_ == form.Controls().size()) focus_ = form.FirstFocus();
    for (int left = kMostPressesOfAPage; left > 0 && !form.IsClosed(); --left) Use(form);
    while (!form.IsClosed()) form.PressCloseBox();
    form.SetObserver(nullptr);
    pressesOfPages[std::string(form.Name())] += presses - before;
    form_ = below;
    focus_ = focusBelow;
    ++changes_;
  }

  void ShowWindow(std::shared_ptr<Form> form) override {
    window = std::move(form);
    window->Open();
  }

  void OnControlChanged(std::size_t) override { ++changes_; }
  void OnTitleChanged() override {}
  void OnFocusWanted(std::size_t control) override { focus_ = control; }
  void OnClosed() override { ++changes_; }

  bool ChooseRow(Form& form, int list, std::string_view text) {
    const std::vector<std::string>& items = form.Items(list);
    const auto row =
        std::find_if(items.begin(), items.end(), [&](const std::string& item) { return item.starts_with(text); });
    if (row == items.end()) return false;
    ++presses;
    return form.Choose(list, static_cast<int>(row - items.begin()));
  }

 protected:
  void DoShowMessage(const std::string& caption, const std::string& text) override {
    Platform::DoShowMessage(caption, text);
  }
  Answer DoAskYesNo(const std::string&, const std::string& text) override {
    ++presses;
    ++pressesOfPages["questions"];
    return text.ends_with("Tables?") ? Answer::No : Answer::Yes;
  }
  std::optional<ChosenPath> DoAskSavePath(const std::string&, std::span<const FileFilter>,
                                          const std::string&) override {
    ++presses;  // Enter: the name of the character is offered
    isSaved = true;
    return ChosenPath{"hero.vlf", 0};
  }

 private:
  int Throw(int sides, int count) {
    int sum = 0;
    for (int die = 0; die < count; ++die) {
      state_ = state_ * 1664525U + 1013904223U;
      sum += 1 + static_cast<int>((state_ >> 8) % static_cast<std::uint32_t>(sides));
    }
    return sum;
  }

  void Type(Form& form, int id, const std::string& text) {
    typed += static_cast<int>(text.size());
    form.Type(id, text);
  }

  /// Searches for the next thing wanted on this page and takes it by Enter. False if he wants no more.
  bool Shop(Form& form) {
    auto& wanted = wanted_[std::string(form.Name())];
    if (wanted.empty()) return false;
    if (wanted.front() == kProficienciesWord) {
      ++presses;
      wanted.erase(wanted.begin());
      return form.Press(kProficienciesButton);
    }
    const Control& search = form.Controls()[focus_];
    Type(form, search.Template.Id, wanted.front());
    wanted.erase(wanted.begin());
    Trace(form, search);
    ++presses;
    return form.PressEnterAt(focus_);
  }

  /// One thing that somebody does who follows the page.
  void Use(Form& form) {
    const bool isShop = wanted_.contains(std::string(form.Name()));
    if (isShop) {
      if (!Shop(form)) EndPage(form);
      return;
    }
    if (form.Name() == "CherryPick") return EndPage(form);  // he wants no flaw
    const Control& control = form.Controls()[focus_];
    const int id = control.Template.Id;
    if (form.Name() == "GetDice") {
      TypeDice(form);
    } else if (form.Name() == "StepNine" && form.Selection(kClassList) < 0) {
      ChooseRow(form, kClassList, "Fighter");
    } else if (control.Template.Kind == ControlKind::List && control.Selection < 0) {
      ++presses;  // Down
      form.Choose(id, 0);
    } else if (form.Name() == "StepEightteen" && control.Template.Kind == ControlKind::Edit && control.Text != kName) {
      Type(form, id, kName);  // over what stands there, which is marked
    }
    Trace(form, control);
    ++presses;
    const int before = changes_;
    if (control.Template.Kind == ControlKind::Button) {
      form.Press(id);
    } else {
      form.PressEnterAt(focus_);
    }
    if (changes_ == before) EndPage(form);
  }

  void TypeDice(Form& form) {
    int count = 0;
    int sides = 0;
    const std::string_view prompt = form.Text(10);
    const std::size_t dice = prompt.find_first_of("0123456789");
    if (dice == std::string_view::npos || std::sscanf(prompt.data() + dice, "%dd%d", &count, &sides) != 2) return;
    Type(form, 3000, std::to_string(Throw(sides, count)));
  }

  /// Clicks the page's last word.
  void EndPage(Form& form) {
    for (const Control& control : form.Controls()) {
      const std::string text = WithoutMnemonic(control.Text);
      if (control.Template.Kind != ControlKind::Button || (text != "OK" && text != "Close" && text != "Done")) continue;
      Trace(form, control);
      ++presses;
      form.Press(control.Template.Id);
      return;
    }
  }

  static void Trace(const Form& form, const Control& control) {
    if (!std::getenv("VELD_TRACE")) return;
    std::cerr << form.Name() << ": at " << control.Template.Id << " '" << control.Text << "'\n";
  }

  static constexpr const char* kName = "Wat";
  static constexpr int kProficienciesButton = 4005;
  static constexpr const char* kProficienciesWord = "(Proficiencies)";

  std::map<std::string, std::vector<std::string>> wanted_{
      {"Skills", {kProficienciesWord, "swimming", "first aid"}},
      {"WeaponProf", {"sword: long", "dagger"}},
      {"Equip", {"sword, long", "leather", "backpack", "ration", "torch", "rope"}}};
  std::uint32_t state_;
  Form* form_ = nullptr;
  std::size_t focus_ = 0;
  int changes_ = 0;  ///< seen in the forms
};

/// Returns the presses of a whole run, or 0 if its abilities let nobody become a fighter.
int PlayRun(std::uint32_t seed) {
  Newcomer newcomer(seed);
  const auto game = MakeGame(newcomer);
  game->dice.RandomState = seed;
  DecodeEquipment(FileText(std::string(VELD_DATA_DIR) + "/equip.vlb"), game->EquipmentTable);
  DecodeSpells(FileText(std::string(VELD_DATA_DIR) + "/spells.vld"), game->SpellTable);
  constexpr int kRaces = 3021;
  constexpr int kContinue = 3043;
  ++newcomer.presses;  // Ctrl+N
  BeginCharacter(*game);
  if (!newcomer.ChooseRow(*newcomer.window, kRaces, "Human, Male")) return 0;
  ++newcomer.presses;
  newcomer.window->Press(kContinue);
  if (std::getenv("VELD_TRACE")) {
    for (const auto& [page, presses] : newcomer.pressesOfPages) std::cerr << page << ' ' << presses << '\n';
    std::cerr << "typed " << newcomer.typed << ' ' << newcomer.isSaved << ' ' << game->sheet.ClassName.View() << ' '
              << newcomer.presses << '\n';
  }
  return newcomer.isSaved && game->sheet.ClassName == "Fighter" ? newcomer.presses : 0;
}

void PressesOfANewcomer(benchmark::State& state) {
  const auto before = std::filesystem::current_path();
  const auto folder = std::filesystem::temp_directory_path() / "veld-newcomer-bench";
  std::filesystem::create_directories(folder);
  std::filesystem::current_path(folder);
  for (auto _ : state) {
    int saved = 0;
    int most = 0;
    int sum = 0;
    int above = 0;
    for (std::uint32_t seed = 1; seed <= kSeeds; ++seed) {
      const int presses = PlayRun(seed);
      if (presses == 0) continue;
      ++saved;
      sum += presses;
      most = std::max(most, presses);
      if (presses > kMostPresses) ++above;
    }
    if (saved == 0) return state.SkipWithError("nobody came to a saved fighter");
    state.counters["fighters"] = saved;
    state.counters["presses"] = static_cast<double>(sum) / saved;
    state.counters["most"] = most;
    state.counters["promised"] = kMostPresses;
    state.counters["above_it"] = above;  // those of many brothers and sisters, each with dice to be typed
  }
  std::filesystem::current_path(before);
  std::filesystem::remove_all(folder);
}
BENCHMARK(PressesOfANewcomer)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
}  // namespace veld
