#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "rules/rule_switches.h"

namespace veld {

/// One thing of a run: a form that opened, or what a player did.
struct JournalEntry {
  enum class Kind {
    Form,      ///< a form opened; Text is its name
    Press,     ///< Text is what the button says, for who reads the journal
    Choose,    ///< Text is the row, Place how many rows of the same text stand before it
    Type,      ///< Text is all that stands in the field
    Mark,      ///< Place is 1 or 0
    MenuItem,  ///< of the form's menu
    CloseBox,
    Path,    ///< a file was chosen
    NoPath,  ///< none was
    State,   ///< what a tool beside the run left: Text holds the dice and the rule switches
  };
  Kind What = Kind::Form;
  int Id = 0;
  int Place = 0;
  std::string Text = {};
};

/// True of what Undo takes back by itself. Typing and choosing go with the act that follows them.
bool CountsAsAct(const JournalEntry& entry);

/// All that happened in a run from New Character on: enough to play it again.
struct RunJournal {
  std::int64_t Clock = 0;  ///< seconds since 1970, which the dice were seeded with
  RuleSwitchArray Switches = kDefaultRuleSwitches;
  std::vector<JournalEntry> Entries = {};
  std::vector<std::vector<JournalEntry>> TakenBack = {};  ///< what DoAgain brings back, the next last

  /// Adds what happened. Typing goes on where the last entry was typing in the same field.
  void Add(JournalEntry entry);
  bool GoesOnTyping(const JournalEntry& entry) const;
  bool HasAct() const;
  /// Takes the last act that counts back, with the typing and choosing before it and all that came of it.
  void TakeBack();
  /// Puts back what was taken back last.
  void DoAgain();
};

// The journal as a readable text, one entry a line. Lines are only ever added: an Undo is a line too.

/// The first lines of a journal.
std::string JournalHead(const RunJournal& journal);
/// An entry's line, without the line's end.
std::string JournalLine(const JournalEntry& entry);
inline constexpr std::string_view kTakenBackLine = "undo";
inline constexpr std::string_view kDoneAgainLine = "redo";

/// Reads a journal's text as far as it makes sense: a last line may be cut. False if it is no journal at all.
bool ReadJournal(std::string_view text, RunJournal& journal);

/// The whole of a journal as text, without what was taken back.
std::string JournalText(const RunJournal& journal);

}  // namespace veld
