#include "editors/edit_field.h"

#include <algorithm>

namespace veld {

std::string RefusalOf(const EditField& field, const std::string& text) {
  std::string name(field.Label);
  std::erase(name, '&');
  switch (field.What) {
    case EditField::Kind::Number:
      if (!WholeNumber(text, field.Least, field.Most)) return WholeNumberWanted(name, field.Least, field.Most);
      break;
    case EditField::Kind::Text:
    case EditField::Kind::Lines:
      if (text.size() > static_cast<std::size_t>(field.Most)) {
        return TextTooLong(name, text, static_cast<std::size_t>(field.Most));
      }
      break;
    case EditField::Kind::Choice:
    case EditField::Kind::Mark:
      break;
  }
  return field.Refuse ? field.Refuse(text) : std::string();
}

std::string WithoutPadding(std::string_view text) {
  const std::size_t last = text.find_last_not_of(' ');
  return std::string(last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1));
}

EditField ChoiceField(std::string_view label, int width, std::vector<std::string> texts,
                      std::function<std::string(const Game&)> read,
                      std::function<void(Game&, const std::string&)> write) {
  std::vector<std::string> shown;
  for (const std::string& text : texts) shown.push_back(WithoutPadding(text));
  return {.Label = label,
          .What = EditField::Kind::Choice,
          .Width = width,
          .Read = [read = std::move(read)](const Game& game) { return WithoutPadding(read(game)); },
          .Write =
              [texts = std::move(texts), shown, write = std::move(write)](Game& game, const std::string& text) {
                const auto found = std::ranges::find(shown, text);
                if (found != shown.end()) write(game, texts[static_cast<std::size_t>(found - shown.begin())]);
              },
          .Choices = [shown](const Game&) { return shown; }};
}

}  // namespace veld
