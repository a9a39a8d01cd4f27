#include "sheets/sheet_view.h"

#include <algorithm>

#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

/// "2nd-level" of "2<sup>nd</sup>-level".
std::string WithoutMarkup(std::string_view text) {
  std::string plain;
  bool isInMark = false;
  for (const char c : text) {
    if (c == '<') isInMark = true;
    if (!isInMark) plain += c;
    if (c == '>') isInMark = false;
  }
  return plain;
}

std::string Trimmed(std::string_view text) {
  text = TrimRight(text);
  return std::string(text.substr(std::min(text.find_first_not_of(' '), text.size())));
}

}  // namespace

const SheetBlock* FindBlock(const SheetContent& content, std::string_view title) {
  const auto found = std::ranges::find(content.Blocks, title, &SheetBlock::Title);
  return found == content.Blocks.end() ? nullptr : &*found;
}

std::vector<SheetRow> RowsOf(const SheetBlock* block) {
  std::vector<SheetRow> rows;
  if (!block) return rows;
  for (const SheetFact& fact : block->Facts) {
    if (fact.Form == SheetForm::RowHead) {
      rows.push_back({fact.Value, {}, {}});
    } else if (rows.empty()) {
      continue;
    } else if (fact.Form == SheetForm::Cell) {
      rows.back().Cells.push_back(fact.Value);
    } else if (fact.Form == SheetForm::Effect) {
      rows.back().Effects.emplace_back(fact.Label, fact.Value);
    } else if (fact.Form == SheetForm::MarkupEffect) {
      rows.back().Effects.emplace_back(fact.Label, WithoutMarkup(fact.Value));
    }
  }
  return rows;
}

std::string ValueOf(const SheetBlock* block, std::string_view label) {
  if (!block) return {};
  for (const SheetFact& fact : block->Facts) {
    if (fact.Label == label) return fact.Value.empty() ? std::string{} : Format(fact.Html, fact.Value);
  }
  return {};
}

std::vector<std::pair<std::string, std::string>> FactsOf(const SheetBlock* block) {
  std::vector<std::pair<std::string, std::string>> facts;
  if (!block) return facts;
  for (const SheetFact& fact : block->Facts) {
    if (fact.Form == SheetForm::Fact) facts.emplace_back(fact.Label, Trimmed(fact.Value));
  }
  return facts;
}

}  // namespace veld
