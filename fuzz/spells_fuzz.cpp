#include <memory>

#include "fuzz_support.h"
#include "store/side_files.h"

using namespace veld;
using fuzz::Require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto table = std::make_unique<SpellArray>();
  DecodeSpells(fuzz::Bytes(data, size), *table);
  for (std::size_t row = 0; row < kSpellRows; ++row) {
    const SpellRecord& spell = (*table)[row];
    Require(spell.Level >= 0 && spell.Level <= 9, "a level is 0 to 9");
    Require(spell.Name.View().size() < 50 && spell.SourceTag.View().size() < 10, "a text ends inside its field");
    Require(spell.Name.View().find('_') == std::string_view::npos, "a name has blanks for underscores");
    if (row >= kSpellRecords) Require(spell.Name == "Empty" && spell.Level == 0, "rows beyond the list are empty");
  }
  return 0;
}
