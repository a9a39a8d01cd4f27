#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "backgrounds/what_it_brought.h"
#include "platform/form_template.h"
#include "store/game.h"

namespace veld {

class Form;

// The page on which a chain of youth tables runs: a line for each result under the label of its group, the Building
// Points, the table that is being rolled and a list of what the tables brought. Begin runs the chain, once; Close
// leaves when it has run.

/// A label of the page with the ids of the result lines beside it, first to last in the order of the ids.
struct ChainGroup {
  std::string_view Label;
  int FirstId;
  int LineCount = 1;
};

namespace ChainControl {
inline constexpr int Begin = 1;
inline constexpr int Close = 2;
inline constexpr int BuildingPoints = 50;
inline constexpr int Table = 51;
inline constexpr int Brought = 52;
inline constexpr int LabelShift = 1000;  ///< from the id of a line to that of its label
}  // namespace ChainControl

/// The controls of a chain's page: `ChainControls<kGroups>("Title")`, with kGroups an array of ChainGroup.
template <const auto& Groups>
consteval auto ChainControls(std::string_view title) {
  constexpr std::size_t kLines = [] {
    int lines = 0;
    for (const ChainGroup& group : Groups) lines += group.LineCount;
    return static_cast<std::size_t>(lines);
  }();
  constexpr int kFirstRow = 2;
  constexpr int kWidth = 68;
  std::array<ControlTemplate, 2 * kLines + 9> controls{};
  std::size_t next = 0;
  const auto add = [&](const ControlTemplate& control) { controls[next++] = control; };
  add(TitleAt(0, 0, title, 2));
  add(LabelAt(1, 0, "Table being rolled"));
  add(ResultAt(1, 1, ChainControl::Table, kWidth));
  int row = kFirstRow;
  for (const ChainGroup& group : Groups) {
    for (int line = 0; line < group.LineCount; ++line, ++row) {  // both come with the line's text
      ControlTemplate label = LabelAt(row, 0, group.Label);
      label.Id = group.FirstId + line + ChainControl::LabelShift;
      label.Visible = false;
      add(label);
      ControlTemplate text = TextAt(row, 1, group.FirstId + line, {}, kWidth, 0);
      text.Visible = false;
      add(text);
    }
  }
  add(LabelAt(row, 1, "BP:"));
  add(ResultAt(row, 1, ChainControl::BuildingPoints, 8));
  add(LabelAt(row, 0, "&What this brought"));
  ControlTemplate list = ListAt(row + 1, 0, ChainControl::Brought, 0, 9);
  list.ColumnSpan = 2;
  add(list);
  add(ButtonAt(row + 2, 0, ChainControl::Begin, "&Begin", ButtonRole::Default));
  add(ButtonAt(row + 2, 0, ChainControl::Close, "&Close", ButtonRole::Cancel));
  return controls;
}

/// How a page shows the Building Points: "3.5", or "3".
enum class ChainBP { Exact, Whole };

/// A chain at work on its page.
struct ChainPage {
  Game& game;
  Form& form;
  std::span<const ChainGroup> groups;
  ChainBP shownBP = ChainBP::Exact;
  std::string table = {};                      ///< what is being rolled
  std::unique_ptr<SheetSnapshot> before = {};  ///< the character as it stood when it was last told what changed
  std::vector<std::string> brought = {};
};

/// Opens the page and runs `chain` when Begin is pressed. A character that died in it is told of once, and the run is
/// left: CurrentStep becomes 1.
void RunChainPage(Game& game, const FormTemplate& page, std::span<const ChainGroup> groups,
                  void (*chain)(ChainPage& page), ChainBP shownBP = ChainBP::Exact);

/// Rolls a table of the chain: names it on the page, tries it until it stands, which is when `tryOnce` returns true,
/// and lists what it brought. Tables may be rolled within tables. False if the table has no result left.
bool RollChainTable(ChainPage& page, std::string_view table, const std::function<bool()>& tryOnce);

/// The same for a part of the chain that always stands: names it and lists what it brought.
void RunChainPart(ChainPage& page, std::string_view name, const std::function<void()>& part);

/// Writes a result line, and the Building Points. An id that the page does not have is passed over. An empty text shows
/// no line.
void ShowChainLine(ChainPage& page, int id, std::string_view text);
void ShowChainBP(ChainPage& page);

}  // namespace veld
