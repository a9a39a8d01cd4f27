#pragma once

#include <span>
#include <string>

#include "print/party_rows.h"
#include "store/print_choice.h"

namespace veld {

/// A referee's sheet of a party on paper laid across, as a PDF document: a row for each character, and blank ones on
/// what is left of the page. What finds no room goes on to the next page. Empty if this computer can't make one.
std::string PartySheet(std::span<const PartyRow> rows, PaperSize paper, const std::string& title = "Party");

}  // namespace veld
