// make_side_files GOODS SPELLS FOLDER: writes FOLDER/equip.vlb and FOLDER/spells.vld from their readable sources.
// Every fault of a source is told with its line; with any fault nothing is written and the result is 1.

#include <array>
#include <bit>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/format.h"
#include "text/search.h"
#include "text/utf8.h"

namespace veld {
namespace {

constexpr std::size_t kGoodsRows = 1000;
constexpr std::size_t kGoodsRowBytes = 84;
constexpr int kGoodsCategories = 21;
constexpr std::size_t kTextLimit = 49;  // what a field of 50 bytes holds

constexpr std::size_t kSpells = 767;
constexpr std::size_t kCantrips = 109;
constexpr int kCantripGroups = 8;
constexpr int kSpellLevels = 9;
constexpr std::size_t kSpellColumns = 10;

/// A line of a source that holds something, cut at its bars.
struct Line {
  std::size_t Number;
  std::vector<std::string_view> Columns;
};

struct Good {
  std::size_t Line;
  std::string_view Name;
  std::array<std::int32_t, 3> Coins;  // gold, silver, copper: one of them set
  std::int32_t CopperValue;
  float Weight;
  std::int32_t Category;
};

class Source {
 public:
  explicit Source(const char* path) : path_(path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
      Fault(0, "can't be opened");
      return;
    }
    text_.assign(std::istreambuf_iterator<char>(file), {});
    std::size_t number = 0;
    for (std::size_t at = 0; at < text_.size();) {
      const std::size_t end = std::min(text_.find('\n', at), text_.size());
      AddLine(++number, std::string_view(text_).substr(at, end - at));
      at = end + 1;
    }
  }
  Source(const Source&) = delete;
  Source& operator=(const Source&) = delete;

  const std::vector<Line>& Lines() const { return lines_; }
  bool Sound() const { return faults_ == 0; }

  void Fault(std::size_t line, const std::string& reason) {
    ++faults_;
    std::cerr << path_ << ":" << line << ": error: " << reason << "\n";
  }

  /// Tells a text that a field of the file can't hold.
  void CheckText(std::size_t line, std::string_view text, std::string_view what, std::size_t limit = kTextLimit) {
    if (text.empty()) Fault(line, Format("%s is empty", what));
    if (text.size() > limit) Fault(line, Format("%s \"%s\" is longer than %i bytes", what, text, limit));
    if (!IsUtf8(text)) Fault(line, Format("%s is not UTF-8", what));
    for (const char c : text) {
      if (static_cast<unsigned char>(c) < ' ') Fault(line, Format("%s holds a tab or a control character", what));
    }
  }

 private:
  static std::string_view Trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view{} : TrimRight(text.substr(first));
  }

  void AddLine(std::size_t number, std::string_view text) {
    if (Trim(text).empty() || text.front() == '#') return;
    Line line{number, {}};
    for (std::size_t at = 0; at <= text.size();) {
      const std::size_t bar = std::min(text.find('|', at), text.size());
      line.Columns.push_back(Trim(text.substr(at, bar - at)));
      at = bar + 1;
    }
    lines_.push_back(line);
  }

  std::string path_;
  std::string text_;
  std::vector<Line> lines_;
  int faults_ = 0;
};

template <typename Number>
std::optional<Number> ReadNumber(std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return {};
  return number;
}

/// Reads a price such as "12 sp" into the good; false if it is none.
bool ReadPrice(std::string_view text, Good& good) {
  constexpr std::array<std::string_view, 3> coins = {" gp", " sp", " cp"};
  constexpr std::array<std::int32_t, 3> values = {100, 10, 1};
  for (std::size_t coin = 0; coin < coins.size(); ++coin) {
    if (!text.ends_with(coins[coin])) continue;
    const auto count = ReadNumber<std::int32_t>(text.substr(0, text.size() - coins[coin].size()));
    if (!count || *count < 1 || *count > std::numeric_limits<std::int32_t>::max() / values[coin]) return false;
    good.Coins[coin] = *count;
    good.CopperValue = *count * values[coin];
    return true;
  }
  return false;
}

/// A purchase takes the first row whose name stands in the text asked for: every name must find its own row.
void CheckThatNamesFindThemselves(Source& source, const std::vector<Good>& goods) {
  for (std::size_t row = 0; row < goods.size(); ++row) {
    for (std::size_t earlier = 0; earlier < row; ++earlier) {
      if (!Contains(goods[row].Name, goods[earlier].Name)) continue;
      source.Fault(goods[row].Line, Format("\"%s\" would buy \"%s\" of line %i, which must stand below it",
                                           goods[row].Name, goods[earlier].Name, goods[earlier].Line));
    }
  }
}

std::vector<Good> ReadGoods(Source& source) {
  std::vector<Good> goods;
  for (const Line& line : source.Lines()) {
    if (line.Columns.size() != 4) {
      source.Fault(line.Number, Format("has %i columns in place of 4", line.Columns.size()));
      continue;
    }
    Good good{line.Number, line.Columns[0], {}, 0, 0, 0};
    source.CheckText(line.Number, good.Name, "the name");
    const auto category = ReadNumber<std::int32_t>(line.Columns[1]);
    if (!category || *category < 1 || *category > kGoodsCategories) {
      source.Fault(line.Number, Format("\"%s\" is no category from 1 to %i", line.Columns[1], kGoodsCategories));
    }
    if (!ReadPrice(line.Columns[2], good)) {
      source.Fault(line.Number, Format("\"%s\" is no price in gp, sp or cp", line.Columns[2]));
    }
    const auto weight = ReadNumber<float>(line.Columns[3]);
    if (!weight || !(*weight >= 0 && *weight < 1'000'000)) {
      source.Fault(line.Number, Format("\"%s\" is no weight in pounds", line.Columns[3]));
    }
    good.Category = category.value_or(0);
    good.Weight = weight.value_or(0.0F);
    goods.push_back(good);
  }
  if (goods.size() > kGoodsRows) source.Fault(0, Format("%i goods, but only %i rows", goods.size(), kGoodsRows));
  CheckThatNamesFindThemselves(source, goods);
  return goods;
}

/// The bytes of equip.vlb: 1000 rows of Name[50], two bytes, gold, silver, copper, value in copper, weight, category,
/// quantity, row number; numbers of 32 bits, low byte first.
std::string EquipmentImage(const std::vector<Good>& goods) {
  std::string image(kGoodsRows * kGoodsRowBytes, '\0');
  const auto put = [&](std::size_t at, std::uint32_t number) {
    for (std::size_t byte = 0; byte < 4; ++byte) image[at + byte] = static_cast<char>(number >> (8 * byte));
  };
  for (std::size_t row = 0; row < kGoodsRows; ++row) {
    const std::size_t at = row * kGoodsRowBytes;
    put(at + 80, static_cast<std::uint32_t>(row));
    if (row >= goods.size()) continue;
    const Good& good = goods[row];
    image.replace(at, good.Name.size(), good.Name);
    for (std::size_t coin = 0; coin < 3; ++coin) {
      put(at + 52 + 4 * coin, static_cast<std::uint32_t>(good.Coins[coin]));
    }
    put(at + 64, static_cast<std::uint32_t>(good.CopperValue));
    put(at + 68, std::bit_cast<std::uint32_t>(good.Weight));
    put(at + 72, static_cast<std::uint32_t>(good.Category));
  }
  return image;
}

/// One field of spells.vld. Fields of which the program turns "_" into a blank may have blanks.
std::string Token(std::string_view text) {
  std::string token(text);
  for (char& c : token) {
    if (c == ' ') c = '_';
  }
  return token;
}

/// The spell list that the source is in: eight cantrip groups, then the nine levels.
struct SpellList {
  std::string_view Category;
  int Count = 0;  // lists begun so far

  int Level() const { return std::max(0, Count - kCantripGroups); }
};

/// Takes a line such as "[Magic-user Level 1]" if it is one.
bool BeginsList(Source& source, const Line& line, std::size_t spells, SpellList& list) {
  const std::string_view text = line.Columns[0];
  if (line.Columns.size() != 1 || !text.starts_with('[') || !text.ends_with(']')) return false;
  list.Category = text.substr(1, text.size() - 2);
  ++list.Count;
  source.CheckText(line.Number, list.Category, "the list");
  const bool cantrips = list.Count <= kCantripGroups;
  if (cantrips ? !list.Category.starts_with("Cantrips, ")
               : list.Category != Format("Magic-user Level %i", list.Level())) {
    source.Fault(line.Number, Format("\"%s\" is not the list that belongs here", list.Category));
  }
  if (list.Count == kCantripGroups + 1 && spells != kCantrips) {
    source.Fault(line.Number, Format("%i cantrips in place of %i", spells, kCantrips));
  }
  return true;
}

void CheckSpell(Source& source, const Line& line) {
  // The widths are those of SpellRecord; the program doesn't turn "_" into blanks in the fields that may have none.
  constexpr std::array<std::string_view, kSpellColumns> names = {
      "the name",     "the school",       "the specialization", "the range",        "the component",
      "the duration", "the casting time", "the area",           "the saving throw", "the book's name",
  };
  for (std::size_t column = 0; column < kSpellColumns; ++column) {
    const std::string_view text = line.Columns[column];
    source.CheckText(line.Number, text, names[column], column == 9 ? 9 : kTextLimit);
    if (Contains(text, "_")) source.Fault(line.Number, Format("%s holds a \"_\"", names[column]));
    const bool bare = column == 2 || column == 4 || column == 9;
    if (bare && Contains(text, " ")) source.Fault(line.Number, Format("%s holds a blank", names[column]));
  }
}

/// The text of spells.vld: one spell a line, twelve words each.
std::string ReadSpells(Source& source) {
  std::string out;
  std::vector<std::string_view> names;
  SpellList list;
  for (const Line& line : source.Lines()) {
    if (BeginsList(source, line, names.size(), list)) continue;
    if (line.Columns.size() != kSpellColumns) {
      source.Fault(line.Number, Format("has %i columns in place of %i", line.Columns.size(), kSpellColumns));
      continue;
    }
    if (list.Count == 0) source.Fault(line.Number, "stands before the first list");
    CheckSpell(source, line);
    for (const std::string_view name : names) {
      if (EqualsIgnoringCase(name, line.Columns[0])) source.Fault(line.Number, Format("\"%s\" comes twice", name));
    }
    names.push_back(line.Columns[0]);
    for (std::size_t column = 0; column < kSpellColumns - 1; ++column) out += Token(line.Columns[column]) + " ";
    out += Format("%i %s %s\n", list.Level(), Token(list.Category), line.Columns[kSpellColumns - 1]);
  }
  if (list.Count != kCantripGroups + kSpellLevels) source.Fault(0, Format("%i lists", list.Count));
  if (names.size() != kSpells) source.Fault(0, Format("%i spells in place of %i", names.size(), kSpells));
  return out;
}

bool WriteFile(const std::string& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) std::cerr << path << ": can't be written\n";
  return static_cast<bool>(file);
}

int Run(const char* goodsPath, const char* spellsPath, const std::string& folder) {
  Source goodsSource(goodsPath);
  Source spellsSource(spellsPath);
  const std::string equipment = EquipmentImage(ReadGoods(goodsSource));
  const std::string spells = ReadSpells(spellsSource);
  if (!goodsSource.Sound() || !spellsSource.Sound()) return 1;
  return WriteFile(folder + "/equip.vlb", equipment) && WriteFile(folder + "/spells.vld", spells) ? 0 : 1;
}

}  // namespace
}  // namespace veld

int main(int argc, char** argv) {
  if (argc != 4) {
    std::cerr << "make_side_files GOODS SPELLS FOLDER\n";
    return 2;
  }
  return veld::Run(argv[1], argv[2], argv[3]);
}
