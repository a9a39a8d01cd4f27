#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "store/character_sheet.h"

namespace veld::testing {

/// The fields of the head of a character file by their offsets, and where they are in the record.
struct HeadText {
  int Offset;
  int Width;
  std::string_view (*In)(const CharacterSheet& sheet);
};
struct HeadNumbers {
  int Offset;
  int Count;
  const int* (*In)(const CharacterSheet& sheet);
};
const std::vector<HeadText>& HeadTexts();
const std::vector<HeadNumbers>& HeadNumberFields();

/// What an image holds at an offset of its head: a number, and a text that fills its field.
int HeadNumber(int offset);
std::string HeadTextAt(int offset, int width);

/// Pieces of a file: a whole number, a floating number, a text in its field, an array of whole numbers.
std::string I(int value);
std::string F(float value);
std::string T(std::string text, std::size_t width);
std::string Numbers(std::size_t count, const std::map<std::size_t, int>& values);

/// A character file put together by hand from the offsets and widths of the format, not by the program's writer.
/// Every field of it is set.
struct CharacterImage {
  std::map<std::size_t, int> Levels = {{8, 3}, {40, 1}, {150, 2}};  ///< of classes, by row
  std::map<std::size_t, int> Quirks = {{1, 1}, {62, 2}, {77, -1}, {470, 1}, {699, 4}};
  std::map<std::size_t, int> Talents = {{0, 1}, {21, 1}, {149, 2}};
  std::map<std::size_t, int> Skills = {{0, 5}, {299, 60}, {300, 61}, {499, 62}};
  int Books = 2;
  bool HasCleric = true;

  std::string As(const std::string& version) const;
};

inline constexpr std::size_t kClassLevelsAt = 23258;
inline constexpr std::size_t kCustomCountAt = 31133;

}  // namespace veld::testing
