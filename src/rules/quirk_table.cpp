#include "rules/quirk_table.h"

#include <algorithm>
#include <vector>

#include "rules/quirk_rows.h"

namespace veld {

namespace {

struct Exclusion {
  int Row;
  std::array<int, 7> Excludes;
};

constexpr Exclusion kExclusions[] = {
    {36, {35}},                     // both arms: the one arm
    {37, {38, 49}},                 // both legs: the one leg, the trick knee
    {39, {14, 28, 29, 30, 46, 5}},  // blind: whatever else ails the eyes
    {40, {27}},                     // deaf: tone deaf
    {44, {10, 20, 26}},             // mute: lisp, sleep chatter, stutter
};

struct RollTable {
  std::string_view Name;
  std::vector<int> Rows;
  QuirkDie Die;
};

struct Catalogue {
  std::array<QuirkRecord, kQuirkRows> Rows;
  std::vector<RollTable> Tables;
};

QuirkRecord& At(Catalogue& catalogue, int row) {
  return catalogue.Rows[static_cast<std::size_t>(row)];
}

void AddGroup(Catalogue& catalogue, const QuirkRowGroup& group) {
  for (const QuirkEntry& row : group.Rows) {
    QuirkRecord& record = At(catalogue, row.Row);
    record.Name = row.Name;
    record.BPCost = row.BPCost;
    record.RepeatBP = row.RepeatBP;
    record.Book = group.Book;
    record.Source = group.Source;
    record.TableName = group.TableName;
    record.NextTable = row.NextTable;
    record.Kind = row.Kind;
    record.Low = row.Low;
    record.High = row.High;
    record.MaxCount = row.MaxCount;
    record.Rolls = row.Rolls;
  }
}

void AddExclusions(Catalogue& catalogue) {
  for (const Exclusion& exclusion : kExclusions) {
    At(catalogue, exclusion.Row).Excludes = exclusion.Excludes;
    for (int row : exclusion.Excludes) {
      if (row != 0) At(catalogue, row).ExcludedBy = exclusion.Row;
    }
  }
}

QuirkDie DieOf(const Catalogue& catalogue, const std::vector<int>& rows) {
  int low = catalogue.Rows[static_cast<std::size_t>(rows.front())].Low;
  int high = 0;
  for (int row : rows) {
    const QuirkRecord& record = catalogue.Rows[static_cast<std::size_t>(row)];
    low = std::min(low, record.Low);
    high = std::max(high, record.High);
  }
  low = std::max(low, 1);
  return high < low ? QuirkDie{} : QuirkDie{high / low, low};
}

// The rows of each table are gathered once, so that a roll doesn't compare 618 names.
void GatherTables(Catalogue& catalogue) {
  for (int row = 1; row <= kLastQuirk; ++row) {
    const std::string_view name = At(catalogue, row).TableName;
    auto table = std::ranges::find(catalogue.Tables, name, &RollTable::Name);
    if (table == catalogue.Tables.end()) table = catalogue.Tables.insert(table, RollTable{name, {}, {}});
    table->Rows.push_back(row);
  }
  for (RollTable& table : catalogue.Tables) table.Die = DieOf(catalogue, table.Rows);
}

Catalogue BuildCatalogue() {
  Catalogue catalogue;
  for (const QuirkRowGroup& group : CodexQuirkRows()) AddGroup(catalogue, group);
  for (const QuirkRowGroup& group : AlmanacQuirkRows()) AddGroup(catalogue, group);
  AddExclusions(catalogue);
  GatherTables(catalogue);
  return catalogue;
}

const Catalogue& TheCatalogue() {
  static const Catalogue catalogue = BuildCatalogue();
  return catalogue;
}

const RollTable* FindTable(std::string_view name) {
  const std::vector<RollTable>& tables = TheCatalogue().Tables;
  const auto table = std::ranges::find(tables, name, &RollTable::Name);
  return table == tables.end() ? nullptr : &*table;
}

}  // namespace

const std::array<QuirkRecord, kQuirkRows>& QuirkTable() {
  return TheCatalogue().Rows;
}

int FindQuirkRow(std::string_view name) {
  if (name.empty()) return 0;
  const auto& rows = QuirkTable();
  const auto row = std::ranges::find(rows, name, &QuirkRecord::Name);
  return row == rows.end() ? 0 : static_cast<int>(row - rows.begin());
}

std::string_view ShownQuirkName(int row) {
  if (row < 0 || row >= kQuirkRows) return {};
  const std::string_view name = QuirkAt(row).Name;
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) < ' '; };
  return name.substr(0, static_cast<std::size_t>(std::ranges::find_if(name, isControl) - name.begin()));
}

std::span<const int> QuirkTableRows(std::string_view table) {
  const RollTable* found = FindTable(table);
  return found ? std::span<const int>(found->Rows) : std::span<const int>{};
}

QuirkDie QuirkTableDie(std::string_view table) {
  const RollTable* found = FindTable(table);
  return found ? found->Die : QuirkDie{};
}

int QuirkRowOfRoll(std::string_view table, int roll) {
  const RollTable* found = FindTable(table);
  if (!found || found->Die.Sides == 0) return 0;
  for (int row : found->Rows) {
    const QuirkRecord& record = QuirkAt(row);
    if (record.Low <= roll && roll <= record.High) return row;
  }
  return found->Die.Sides;
}

}  // namespace veld
