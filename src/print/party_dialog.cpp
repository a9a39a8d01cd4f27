#include "print/party_dialog.h"

#include <span>
#include <vector>

#include "platform/form.h"
#include "platform/platform.h"
#include "print/party_page.h"
#include "print/print_dialog.h"
#include "text/format.h"

namespace veld {

namespace {

enum : int { kRows = 20, kAddFile = 21, kAddCharacter = 22, kRemove = 23 };

constexpr FileFilter kFilters[] = {{"Quellmarch Files (*.VLF)", ".vlf"}, {"Quellmarch Party Files (*.VLP)", ".vlp"}};

constexpr ControlTemplate kPartyControls[] = {
    LabelAt(0, 0, "&On the sheet"),
    ListAt(1, 0, kRows, 70, 10),
    ButtonAt(2, 0, kAddFile, "Add &file..."),
    ButtonAt(2, 0, kAddCharacter, "Add character in &memory"),
    ButtonAt(2, 0, kRemove, "&Remove"),
    PaperAt(4, 0, kPaperA4, "&A4, laid across"),
    PaperAt(4, 0, kPaperLetter, "&Letter, laid across"),
    ButtonAt(6, 0, kPrintView, "Open in &viewer", ButtonRole::Default),
    ButtonAt(6, 0, kPrintPrinter, "Send to &printer"),
    ButtonAt(6, 0, kPrintSave, "&Save as PDF..."),
    ButtonAt(6, 0, kPrintClose, "Close", ButtonRole::Cancel),
};
constexpr std::string_view kPartyHelp =
    "A sheet for the referee with the whole party on it: hit points, saving throws, Honor, movement, senses and "
    "languages, and the weapons that each holds, with room for the pencil.\n\n"
    "Add file takes a character file, or a party file, which knows names and Honor alone: what it lacks stays blank, "
    "and is filled in when the character of that name is added too. The party of Honor Tracking stands here already. "
    "Nothing of this touches a character.";
constexpr FormTemplate kParty{"PartySheet", "GM - Party sheet", kPartyControls, kPartyHelp};

std::string LineOf(const PartyRow& row) {
  return Format("%s, %s", row.Name, row.Calling.empty() ? "of whom a party file tells the Honor alone" : row.Calling);
}

struct PartyPage {
  Form form{kParty};
  std::vector<PartyRow> rows;
};

void Fill(PartyPage& page, int selection) {
  std::vector<std::string> lines;
  for (const PartyRow& row : page.rows) lines.push_back(LineOf(row));
  const int last = static_cast<int>(lines.size()) - 1;
  page.form.SetItems(kRows, std::move(lines));
  page.form.Select(kRows, std::min(selection, last));
}

void AddFile(Game& game, PartyPage& page) {
  const auto path = game.platform.AskOpenPath("Add file", kFilters);
  if (!path) return;
  const auto rows = ReadPartyRows(*path);
  if (!rows) return game.platform.ShowMessage("This file can not be loaded.");
  for (const PartyRow& row : *rows) AddPartyRow(page.rows, row);
  Fill(page, static_cast<int>(page.rows.size()) - 1);
}

void Remove(PartyPage& page) {
  const int row = page.form.Selection(kRows);
  if (row < 0) return;
  page.rows.erase(page.rows.begin() + row);
  Fill(page, row);
}

}  // namespace

void RunPartySheet(Game& game) {
  PartyPage page;
  page.form.onOpened = [&] {
    for (int row = 1; row <= game.party.Count; ++row) {
      AddPartyRow(page.rows, PartyRowOf(game.party.Rows[static_cast<std::size_t>(row)]));
    }
    Fill(page, 0);
    ShowPaper(page.form, game);
  };
  page.form.onCommand = [&](int id) {
    KeepPaper(page.form, game);
    switch (id) {
      case kPrintClose:
        return page.form.Close();
      case kAddFile:
        return AddFile(game, page);
      case kAddCharacter:
        AddPartyRow(page.rows, PartyRowOf(game.sheet));
        return Fill(page, static_cast<int>(page.rows.size()) - 1);
      case kRemove:
        return Remove(page);
      case kPrintView:
      case kPrintPrinter:
      case kPrintSave:
        SendSheet(
            game, id, "Party", [&] { return PartySheet(page.rows, ChosenPaper(game)); }, "The sheet is saved.");
        return;
      default:
        return;
    }
  };
  game.platform.RunForm(page.form);
}

}  // namespace veld
