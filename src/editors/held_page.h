#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "store/game.h"

namespace veld {

/// What a line of the page stands for: a row of the catalogue, or an item of that row that was named or picked. The
/// numbers are the source's own.
struct HeldPlace {
  int Row = -1;
  int Item = -1;

  bool IsNone() const { return Row < 0; }
  bool operator==(const HeldPlace&) const = default;
};

/// A line of one of the two lists.
struct HeldLine {
  HeldPlace Place;
  std::string Text;
};

/// A value that is chosen by its name.
struct HeldChoice {
  int Value = 0;
  std::string Text;
};

/// The field in which a thing has its number, or its value by name.
struct HeldField {
  std::string_view Label = "&Value";  ///< the letter behind '&' is none of A C D H R S W
  int Lowest = 1;
  int Highest = 999;
  int First = 1;                         ///< what stands in it for what is not held
  std::vector<HeldChoice> Choices = {};  ///< not empty: one of these, and no number
};

/// What the page tells of a thing: what it is, and which rules speak against the character holding it. Sentences.
struct HeldNote {
  std::string Facts;
  std::string Against;

  /// Adds a sentence; an empty one adds nothing, and one without a full stop gets it.
  void Tell(std::string_view sentence) { Append(Facts, sentence); }
  void Object(std::string_view sentence) { Append(Against, sentence); }
  /// Objects if the book of a catalogue row is not in use.
  void ObjectToBook(const Game& game, int book);

 private:
  static void Append(std::string& text, std::string_view sentence);
};

/// What became of a change: where what was added or set stands, or why nothing was done. Both empty: a question was
/// cancelled.
struct HeldChange {
  HeldPlace Place = {};
  std::string Refusal = {};
};

/// A kind of thing that a character holds by catalogue row, as the page shows and changes it. Changes cost nothing and
/// ask no rule.
class HeldSource {
 public:
  virtual ~HeldSource() = default;
  /// As the box that chooses among several sources lists it.
  virtual std::string_view Name() const = 0;
  /// A line on the whole: how many are held, slots used.
  virtual std::string State(const Game& game) const = 0;
  virtual std::vector<HeldLine> Catalogue(const Game& game) const = 0;
  virtual std::vector<HeldLine> Held(const Game& game) const = 0;
  virtual HeldField Field(const Game& game, const HeldPlace& place) const = 0;
  /// The value of a place that is held; what is not held has 0.
  virtual int Value(const Game& game, const HeldPlace& place) const = 0;
  virtual HeldNote Note(const Game& game, const HeldPlace& place) const = 0;
  /// `place` is one of the catalogue's, `value` one that its field takes.
  virtual HeldChange Add(Game& game, const HeldPlace& place, int value) const = 0;
  /// `place` is one that is held.
  virtual HeldChange Set(Game& game, const HeldPlace& place, int value) const = 0;
  virtual HeldChange Remove(Game& game, const HeldPlace& place) const = 0;
};

/// The page of a character's things: the catalogue on the left with a search over it, what the character has on the
/// right. Changes are made to the character at once; OK keeps them, all else takes them back.
void RunHeldPage(Game& game, std::string_view name, std::string_view title, std::string_view help,
                 std::span<const HeldSource* const> sources);

/// A catalogue's name without the blanks at its end, or "Row 412" for a row that has none: files may hold such rows.
std::string NameOrRow(std::string_view name, int row);

}  // namespace veld
