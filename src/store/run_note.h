#pragma once

#include <string>
#include <string_view>

#include "text/format.h"

namespace veld {

// What the list of things to recover reads of a run's journal without playing it. The journal's other lines are the
// business of who plays it.

/// The first line of every journal.
inline constexpr std::string_view kRunHead = "VELD run 1\n";

/// No journal is longer, in bytes.
inline constexpr std::size_t kLargestJournal = 16'000'000;

inline constexpr std::string_view kRunNote = "note ";  ///< how far the run is: the last one holds
inline constexpr std::string_view kRunEnd = "end";     ///< the run came to its end

/// True of a line that tells something of the run and is no part of it.
inline bool IsRunRemark(std::string_view line) {
  return line == kRunEnd || line.starts_with(kRunNote);
}

/// How far a run is.
struct RunNote {
  std::string Text;  ///< "Ada, Half-elf, Fighter, Step 12"; empty: it is no journal, or nothing was done yet
  bool IsEnded = false;
};

/// The last note of a journal's text.
inline RunNote NoteOfRun(std::string_view text) {
  RunNote note;
  if (!text.starts_with(kRunHead)) return note;
  while (true) {
    const std::size_t end = text.find('\n');
    if (end == std::string_view::npos) return note;
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end + 1);
    note.IsEnded = line == kRunEnd || (note.IsEnded && line.starts_with(kRunNote));
    if (line.starts_with(kRunNote)) note.Text = line.substr(kRunNote.size());
  }
}

}  // namespace veld
