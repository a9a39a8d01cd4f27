#include "editors/field_page.h"

#include <algorithm>

#include "editors/character_backup.h"
#include "platform/form.h"
#include "platform/platform.h"

namespace veld {

namespace {

using Kind = EditField::Kind;

constexpr int kOk = 1;
constexpr int kCancel = 2;
constexpr int kTold = 3;
constexpr int kFirstField = 100;
constexpr int kFirstAction = 900;

constexpr int kFirstRow = 1;
constexpr int kToldWidth = 70;
constexpr int kToldLines = 2;

/// The controls of a page: its short fields in columns, its long ones across below them, what it tells, its buttons.
std::vector<ControlTemplate> ControlsOf(const FieldPage& page) {
  const auto count =
      static_cast<int>(std::ranges::count_if(page.Fields, [](const EditField& f) { return f.What != Kind::Lines; }));
  const int columns = std::max(1, (count + page.Rows - 1) / page.Rows);
  const int span = 2 * columns;
  int next = 0;
  int below = kFirstRow + std::min(count, page.Rows);
  std::vector<ControlTemplate> controls{TitleAt(0, 0, page.Title, span)};
  for (std::size_t i = 0; i < page.Fields.size(); ++i) {
    const EditField& field = page.Fields[i];
    const int id = kFirstField + static_cast<int>(i);
    if (field.What == Kind::Lines) {
      controls.push_back(LabelAt(below++, 0, field.Label, span));
      controls.push_back({.Kind = ControlKind::MultiLine,
                          .Id = id,
                          .Row = below++,
                          .Width = field.Width,
                          .Lines = field.Height,
                          .ColumnSpan = span});
      continue;
    }
    const int row = kFirstRow + next % page.Rows;
    const int column = 2 * (next / page.Rows);
    ++next;
    if (field.What == Kind::Mark) {
      controls.push_back(CheckAt(row, column, id, field.Label, 2));
      continue;
    }
    controls.push_back(LabelAt(row, column, field.Label));
    controls.push_back(field.What == Kind::Number   ? NumberAt(row, column + 1, id, field.Width)
                       : field.What == Kind::Choice ? ComboAt(row, column + 1, id, field.Width)
                                                    : EditAt(row, column + 1, id, field.Width));
    if (field.EnterPresses >= 0) controls.back().EnterPresses = kFirstAction + field.EnterPresses;
  }
  controls.push_back(TextAt(below, 0, kTold, {}, kToldWidth, kToldLines, 1, span));
  for (std::size_t i = 0; i < page.Actions.size(); ++i) {
    controls.push_back(ButtonAt(below + 1, 0, kFirstAction + static_cast<int>(i), page.Actions[i].Text));
    controls.back().ColumnSpan = span;
  }
  controls.push_back(ButtonAt(below + 1, 0, kOk, "&OK", ButtonRole::Default));
  controls.back().ColumnSpan = span;
  controls.push_back(ButtonAt(below + 1, 0, kCancel, "Cancel", ButtonRole::Cancel));
  controls.back().ColumnSpan = span;
  return controls;
}

/// An open page.
class OpenPage {
 public:
  OpenPage(Game& game, const FieldPage& page)
      : game_(game),
        page_(page),
        controls_(ControlsOf(page)),
        form_(FormTemplate{page.Name, page.Title, controls_, page.Help}),
        backup_(game),
        shown_(page.Fields.size()) {
    form_.onOpened = [this] {
      ShowFields();
      Tell(Told());
      form_.Focus(kFirstField);
    };
    form_.onEdit = [this](int id) { Take(id); };
    form_.onSelect = [this](int id) { Take(id); };
    form_.onCommand = [this](int id) { Command(id); };
  }

  void Run() {
    game_.platform.RunForm(form_);
    if (!isAccepted_) backup_.Restore(game_);
  }

 private:
  const EditField& FieldAt(int id) const { return page_.Fields[static_cast<std::size_t>(id - kFirstField)]; }
  std::string& ShownAt(int id) { return shown_[static_cast<std::size_t>(id - kFirstField)]; }
  int LastId() const { return kFirstField + static_cast<int>(page_.Fields.size()) - 1; }
  bool IsField(int id) const { return id >= kFirstField && id <= LastId(); }

  std::string Told() const { return page_.Told ? page_.Told(game_) : std::string(); }
  void Tell(const std::string& text) { form_.SetText(kTold, text); }

  void ShowFields() {
    for (int id = kFirstField; id <= LastId(); ++id) {
      const EditField& field = FieldAt(id);
      const std::string text = field.Read(game_);
      if (field.What == Kind::Choice) {
        ShowChoice(id, field, text);
      } else if (field.What == Kind::Mark) {
        form_.SetChecked(id, text == "1");
      } else {
        form_.SetText(id, text);
      }
      ShownAt(id) = ValueOf(id);
    }
  }

  /// A value that is none of the choices, from an older file, stands before them until another is chosen.
  void ShowChoice(int id, const EditField& field, const std::string& text) {
    std::vector<std::string> choices = field.Choices(game_);
    auto found = std::ranges::find(choices, text);
    if (found == choices.end()) found = choices.insert(choices.begin(), text);
    const auto place = static_cast<int>(found - choices.begin());
    form_.SetItems(id, std::move(choices));
    form_.Select(id, place);
  }

  std::string ValueOf(int id) const {
    const EditField& field = FieldAt(id);
    if (field.What == Kind::Choice) return form_.SelectedText(id);
    if (field.What == Kind::Mark) return form_.IsChecked(id) ? "1" : "0";
    return form_.Text(id);
  }

  std::string RefusalAt(int id) {
    const std::string value = ValueOf(id);
    return value == ShownAt(id) ? std::string() : RefusalOf(FieldAt(id), value);
  }

  void Take(int id) {
    if (!IsField(id)) return;
    const std::string refusal = RefusalAt(id);
    if (refusal.empty()) FieldAt(id).Write(game_, ValueOf(id));
    Tell(refusal.empty() ? Told() : refusal);
  }

  bool AreAllTaken() {
    for (int id = kFirstField; id <= LastId(); ++id) {
      const std::string refusal = RefusalAt(id);
      if (refusal.empty()) continue;
      Tell(refusal);
      form_.Focus(id);
      return false;
    }
    return true;
  }

  void Command(int id) {
    if (IsField(id)) return Take(id);
    if (id == kCancel) return form_.Close();
    if (!AreAllTaken()) return;
    if (id == kOk) {
      isAccepted_ = true;
      return form_.Close();
    }
    const auto action = static_cast<std::size_t>(id - kFirstAction);
    if (action >= page_.Actions.size()) return;
    const std::string told = page_.Actions[action].Do(game_);
    ShowFields();
    Tell(told.empty() ? Told() : told);
  }

  Game& game_;
  const FieldPage& page_;
  std::vector<ControlTemplate> controls_;
  Form form_;
  CharacterBackup backup_;
  std::vector<std::string> shown_;  ///< what each field showed before anybody changed it
  bool isAccepted_ = false;
};

}  // namespace

void RunFieldPage(Game& game, const FieldPage& page) {
  OpenPage(game, page).Run();
}

}  // namespace veld
