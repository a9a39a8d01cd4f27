#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "editors/whole_number.h"
#include "store/game.h"
#include "text/format.h"

namespace veld {

/// A field of the character as a page of the editor shows and changes it.
struct EditField {
  enum class Kind { Text, Lines, Number, Choice, Mark };

  std::string_view Label;  ///< with its unit
  Kind What = Kind::Text;
  int Width = 20;         ///< characters
  int Height = 1;         ///< lines
  int Least = 0;          ///< Number: its range
  int Most = 0;           ///< Number: its range; Text, Lines: the bytes that it holds
  int EnterPresses = -1;  ///< Number: the action of the page that Enter does here; -1 its OK
  std::function<std::string(const Game&)> Read = {};
  std::function<void(Game&, const std::string&)> Write = {};  ///< of a text that RefusalOf lets pass
  std::function<std::vector<std::string>(const Game&)> Choices = {};
  std::function<std::string(const std::string&)> Refuse = {};  ///< what else is wrong with a text; may be missing
};

/// Why a field can't take a text: its name and its range. Empty if it can.
std::string RefusalOf(const EditField& field, const std::string& text);

/// What a text shows of a field that is padded with blanks.
std::string WithoutPadding(std::string_view text);

// Fields of the sheet. `access` is a member, or yields the field of a sheet.

template <typename Access>
EditField TextField(std::string_view label, Access access, int width = 20) {
  constexpr auto kWidth = std::remove_cvref_t<std::invoke_result_t<Access, CharacterSheet&>>::kWidth;
  return {.Label = label,
          .Width = width,
          .Most = static_cast<int>(kWidth) - 1,
          .Read = [access](const Game& game) { return WithoutPadding(std::invoke(access, game.sheet)); },
          .Write = [access](Game& game, const std::string& text) { std::invoke(access, game.sheet) = text; }};
}

template <typename Access>
EditField LinesField(std::string_view label, Access access, int width, int height) {
  EditField field = TextField(label, access, width);
  field.What = EditField::Kind::Lines;
  field.Height = height;
  return field;
}

template <typename Access>
EditField NumberField(std::string_view label, Access access, int least, int most) {
  return {.Label = label,
          .What = EditField::Kind::Number,
          .Width = 8,
          .Least = least,
          .Most = most,
          .Read = [access](const Game& game) { return Format("%i", std::invoke(access, game.sheet)); },
          .Write =
              [access, least, most](Game& game, const std::string& text) {
                if (const auto number = WholeNumber(text, least, most)) std::invoke(access, game.sheet) = *number;
              }};
}

/// A yes or no, kept as 1 or 0.
template <typename Access>
EditField MarkField(std::string_view label, Access access) {
  return {.Label = label,
          .What = EditField::Kind::Mark,
          .Read = [access](const Game& game) { return std::invoke(access, game.sheet) == 1 ? "1" : "0"; },
          .Write = [access](Game& game, const std::string& text) { std::invoke(access, game.sheet) = text == "1"; }};
}

/// One of the texts of a catalogue. `texts` yields them as they are written; they are shown without their padding.
EditField ChoiceField(std::string_view label, int width, std::vector<std::string> texts,
                      std::function<std::string(const Game&)> read,
                      std::function<void(Game&, const std::string&)> write);

template <typename Access>
EditField TextChoiceField(std::string_view label, Access access, int width, std::vector<std::string> texts) {
  return ChoiceField(
      label, width, std::move(texts),
      [access](const Game& game) { return std::string(std::invoke(access, game.sheet).View()); },
      [access](Game& game, const std::string& text) { std::invoke(access, game.sheet) = text; });
}

/// A number that stands for one of a few things.
struct NamedNumber {
  int Number;
  std::string_view Name;
};

template <typename Access>
EditField NamedNumberField(std::string_view label, Access access, int width, std::vector<NamedNumber> names) {
  std::vector<std::string> texts;
  for (const NamedNumber& name : names) texts.emplace_back(name.Name);
  return ChoiceField(
      label, width, std::move(texts),
      [access, names](const Game& game) {
        const int number = std::invoke(access, game.sheet);
        for (const NamedNumber& name : names) {
          if (name.Number == number) return std::string(name.Name);
        }
        return Format("%i", number);
      },
      [access, names](Game& game, const std::string& text) {
        for (const NamedNumber& name : names) {
          if (name.Name == text) std::invoke(access, game.sheet) = name.Number;
        }
      });
}

}  // namespace veld
