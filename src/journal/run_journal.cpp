#include "journal/run_journal.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "store/run_note.h"
#include "text/format.h"

namespace veld {

namespace {

using Kind = JournalEntry::Kind;

constexpr std::string_view kClock = "clock ";
constexpr std::string_view kSwitches = "switches";

/// The word that an entry's line begins with, and what follows it.
struct EntryWord {
  Kind What;
  std::string_view Word;
  bool HasId;
  bool HasPlace;
  bool HasText;
};
constexpr EntryWord kWords[] = {
    {Kind::Form, "form", false, false, true},       {Kind::Press, "press", true, false, true},
    {Kind::Choose, "choose", true, true, true},     {Kind::Type, "type", true, false, true},
    {Kind::Mark, "mark", true, true, false},        {Kind::MenuItem, "menu", true, false, false},
    {Kind::CloseBox, "close", false, false, false}, {Kind::Path, "path", false, false, true},
    {Kind::NoPath, "nopath", false, false, false},  {Kind::State, "state", false, false, true},
};

bool IsChange(const JournalEntry& entry) {
  return entry.What == Kind::Type || entry.What == Kind::Choose;
}

/// A text on one line.
std::string Escaped(std::string_view text) {
  std::string line;
  for (const char c : text) {
    if (c == '\n') {
      line += "\\n";
    } else if (c == '\r') {
      line += "\\r";
    } else if (c == '\\') {
      line += "\\\\";
    } else {
      line += c;
    }
  }
  return line;
}

std::string Unescaped(std::string_view line) {
  std::string text;
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] != '\\' || i + 1 == line.size()) {
      text += line[i];
      continue;
    }
    const char c = line[++i];
    text += c == 'n' ? '\n' : c == 'r' ? '\r' : c;
  }
  return text;
}

/// Takes a whole number and the blank behind it off the front of a line.
template <typename Number>
bool TakeNumber(std::string_view& line, Number& number) {
  const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), number);
  if (error != std::errc()) return false;
  line.remove_prefix(static_cast<std::size_t>(end - line.data()));
  if (line.empty()) return true;
  if (line.front() != ' ') return false;
  line.remove_prefix(1);
  return true;
}

bool TakeWord(std::string_view& line, std::string_view word) {
  if (!line.starts_with(word)) return false;
  if (line.size() > word.size() && line[word.size()] != ' ') return false;
  line.remove_prefix(std::min(word.size() + 1, line.size()));
  return true;
}

bool ReadEntry(std::string_view line, JournalEntry& entry) {
  for (const EntryWord& word : kWords) {
    std::string_view rest = line;
    if (!TakeWord(rest, word.Word)) continue;
    entry.What = word.What;
    if (word.HasId && !TakeNumber(rest, entry.Id)) return false;
    if (word.HasPlace && !TakeNumber(rest, entry.Place)) return false;
    if (word.HasText) entry.Text = Unescaped(rest);
    return true;
  }
  return false;
}

/// Takes the next whole line off a text. False at its end, and for a line without an end.
bool TakeLine(std::string_view& text, std::string_view& line) {
  const std::size_t end = text.find('\n');
  if (end == std::string_view::npos) return false;
  line = text.substr(0, end);
  text.remove_prefix(end + 1);
  return true;
}

}  // namespace

bool CountsAsAct(const JournalEntry& entry) {
  return !IsChange(entry) && entry.What != Kind::Form && entry.What != Kind::State;
}

bool RunJournal::GoesOnTyping(const JournalEntry& entry) const {
  return entry.What == Kind::Type && !Entries.empty() && Entries.back().What == Kind::Type &&
         Entries.back().Id == entry.Id;
}

void RunJournal::Add(JournalEntry entry) {
  if (GoesOnTyping(entry)) {
    Entries.back().Text = std::move(entry.Text);
  } else {
    Entries.push_back(std::move(entry));
  }
}

bool RunJournal::HasAct() const {
  return std::ranges::any_of(Entries, CountsAsAct);
}

void RunJournal::TakeBack() {
  const auto last = std::ranges::find_if(Entries.rbegin(), Entries.rend(), CountsAsAct);
  if (last == Entries.rend()) return;
  auto first = last.base() - 1;
  while (first != Entries.begin() && IsChange(*(first - 1))) --first;
  TakenBack.emplace_back(first, Entries.end());
  Entries.erase(first, Entries.end());
}

void RunJournal::DoAgain() {
  if (TakenBack.empty()) return;
  Entries.insert(Entries.end(), TakenBack.back().begin(), TakenBack.back().end());
  TakenBack.pop_back();
}

std::string JournalHead(const RunJournal& journal) {
  std::string head = std::string(kRunHead) + Format("%s%i\n%s", kClock, journal.Clock, kSwitches);
  for (const int on : journal.Switches) head += Format(" %i", on);
  return head + '\n';
}

std::string JournalLine(const JournalEntry& entry) {
  const auto word = std::ranges::find(kWords, entry.What, &EntryWord::What);
  std::string line(word->Word);
  if (word->HasId) line += Format(" %i", entry.Id);
  if (word->HasPlace) line += Format(" %i", entry.Place);
  if (word->HasText) (line += ' ') += Escaped(entry.Text);
  return line;
}

bool ReadJournal(std::string_view text, RunJournal& journal) {
  journal = {};
  std::string_view line;
  if (!text.starts_with(kRunHead)) return false;
  text.remove_prefix(kRunHead.size());
  if (!TakeLine(text, line) || !TakeWord(line, kClock.substr(0, kClock.size() - 1)) ||
      !TakeNumber(line, journal.Clock)) {
    return false;
  }
  if (!TakeLine(text, line) || !TakeWord(line, kSwitches)) return false;
  for (int& on : journal.Switches) {
    if (line.empty() || !TakeNumber(line, on)) break;  // a journal of an earlier version has fewer
  }
  while (TakeLine(text, line)) {
    JournalEntry entry;
    if (line == kTakenBackLine) {
      journal.TakeBack();
    } else if (line == kDoneAgainLine) {
      journal.DoAgain();
    } else if (IsRunRemark(line)) {
      continue;
    } else if (ReadEntry(line, entry)) {
      if (CountsAsAct(entry)) journal.TakenBack.clear();
      journal.Add(std::move(entry));
    } else {
      break;
    }
  }
  return true;
}

std::string JournalText(const RunJournal& journal) {
  std::string text = JournalHead(journal);
  for (const JournalEntry& entry : journal.Entries) text += JournalLine(entry) + '\n';
  return text;
}

}  // namespace veld
