#include "cli/commands.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <set>

#include "cli/json_sheet.h"
#include "cli/workbench.h"
#include "dice/dice.h"
#include "referee/dice_expression.h"
#include "rules/critical_hit_table.h"
#include "sheets/character_page.h"
#include "steps/classes/class_totals.h"
#include "store/party_file.h"
#include "store/safe_file.h"
#include "text/file_name.h"
#include "text/format.h"
#include "text/search.h"

namespace veld {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kPageWidth = 80;
constexpr std::string_view kCharacterFormat = "vlf";
constexpr int kPlaceDie = 10'000;  // tells where a critical hit lands

int Fail(std::string_view whose, std::string_view why) {
  std::fprintf(stderr, "veld-cli: %s\n", Format("%s: %s", whose, why).c_str());
  return kFailed;
}

/// To standard output. A pipe that was closed at its other end, or a full disk, is a failure.
int Print(std::string_view text) {
  const bool isWritten = std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0;
  return isWritten ? kDone : Fail("standard output", "can't be written");
}

/// A game with the shipped catalogues; null, and told, if there are none.
std::unique_ptr<Game> LoadedGame(PromptPlatform& platform) {
  auto game = QuietGame(platform);
  if (const std::string why = LoadShippedCatalogues(*game); !why.empty()) {
    Fail("VELD", why);
    return nullptr;
  }
  return game;
}

/// Calls `act` with a game and each file. The worst of what it returns.
template <typename Act>
int ForEachFile(const std::vector<std::string>& files, Act act) {
  PromptPlatform platform;
  const auto game = LoadedGame(platform);
  if (!game) return kFailed;
  int status = kDone;
  for (const std::string& file : files) status = std::max(status, act(*game, file));
  return status;
}

/// Reads each file as a character and hands it on; tells those that are none.
template <typename Act>
int ForEachCharacter(const std::vector<std::string>& files, Act act) {
  return ForEachFile(files, [&](Game& game, const std::string& file) {
    const std::string why = ReadCharacter(game, file);
    return why.empty() ? act(game, file) : Fail(file, why);
  });
}

/// Writes characters in the formats asked for.
class SheetWriter {
 public:
  explicit SheetWriter(const SheetOutput& output) : folder_(output.Folder) {
    for (const SheetFormat& format : OutputFormats()) {
      if (std::ranges::count(output.Formats, format.Name) > 0) formats_.push_back(format);
    }
  }

  /// Returns false, and tells why, if the folder can't be made.
  bool IsReady() {
    if (folder_ == kStandard) return true;
    std::error_code error;
    fs::create_directories(folder_, error);
    if (fs::is_directory(folder_, error)) return true;
    Fail(folder_, "the folder can't be made");
    return false;
  }

  /// `name`: of the character's files, without an extension. One that was written before gets a number; so does a new
  /// character for whom there are such files already, since they are somebody else's.
  int Write(Game& game, const std::string& name, bool isNew) {
    std::string file = name;
    for (int number = 2; written_.contains(file) || (isNew && IsTaken(file)); ++number) {
      file = Format("%s %i", name, number);
    }
    written_.insert(file);
    int status = kDone;
    for (const SheetFormat& format : formats_) {
      const std::string sheet = format.Write(game);
      if (sheet.empty()) {
        status = Fail(name, Format("no %s can be made here", format.Name));
      } else if (folder_ == kStandard) {
        status = std::max(status, Print(sheet));
      } else if (const std::string path = PathOf(file, format); !Save(path, sheet, format)) {
        status = Fail(path, "can't be written");
      }
    }
    return status;
  }

 private:
  std::string PathOf(const std::string& file, const SheetFormat& format) const {
    return fs::path(folder_) / Format("%s.%s", file, format.Name);
  }

  bool IsTaken(const std::string& file) const {
    std::error_code error;
    return folder_ != kStandard && std::ranges::any_of(formats_, [&](const SheetFormat& format) {
             return fs::exists(PathOf(file, format), error);
           });
  }

  /// A character file that is overwritten with other contents is kept beside it.
  static bool Save(const std::string& path, std::string_view bytes, const SheetFormat& format) {
    std::string old;
    const bool isCharacter = format.Name == kCharacterFormat && ReadBytes(path, old).empty() && old != bytes;
    return (!isCharacter || KeepBackup(path, old)) && SaveWholeFile(path, bytes);
  }

  std::vector<SheetFormat> formats_;
  std::string folder_;
  std::set<std::string> written_;
};

std::string FileNameOf(const Game& game) {
  const std::string name = FileNamePart(TrimRight(game.sheet.CharacterName));
  return name.empty() || name.starts_with('.') ? "nobody" : name;
}

std::string LineOf(const Game& game) {
  const CharacterSheet& sheet = game.sheet;
  const ClassTexts classes = ClassTextsOf(sheet);
  return Format("%s, %s, %s %s, %i HP, Honor %i", DisplayText(TrimRight(sheet.CharacterName)),
                DisplayText(TrimRight(sheet.RaceName)), TrimRight(classes.Names), classes.Levels, HitPointsOf(sheet),
                sheet.Honor);
}

/// Breaks a text into lines of the page, each behind an indent but the first.
std::string Wrapped(std::string_view text, std::size_t indent) {
  std::string page;
  std::size_t column = indent;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of(" \n"), text.size());
    const std::string_view word = text.substr(0, end);
    const bool breaksLine = column > indent && column + 1 + word.size() > kPageWidth;
    if (breaksLine) {
      page += '\n' + std::string(indent, ' ');
      column = indent;
    } else if (column > indent) {
      page += ' ';
      ++column;
    }
    page += word;
    column += word.size();
    if (end < text.size() && text[end] == '\n') {
      page += '\n' + std::string(indent, ' ');
      column = indent;
    }
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return page;
}

std::string PageText(const Game& game) {
  constexpr std::size_t kIndent = 2;
  std::string page;
  for (const PageLine& line : CharacterPage(game)) {
    switch (line.What) {
      case PageLine::Kind::Title:
        page += line.Value + '\n' + std::string(line.Value.size(), '=') + '\n';
        break;
      case PageLine::Kind::Heading:
        page += '\n' + line.Value + '\n';
        break;
      case PageLine::Kind::Fact:
        page += Wrapped(line.Label + ": " + line.Value, kIndent) + '\n';
        break;
      case PageLine::Kind::Text:
        page += std::string(kIndent, ' ') + Wrapped(line.Value, kIndent) + '\n';
        break;
    }
  }
  return page;
}

/// A line of who a file holds, or why it can't be loaded.
int ListCharacter(Game& game, const std::string& file) {
  const std::string why = ReadCharacter(game, file);
  return why.empty() ? Print(Format("%s: %s\n", file, LineOf(game))) : Fail(file, why);
}

int ListPartyFile(const std::string& file) {
  std::string bytes;
  if (const std::string why = ReadBytes(file, bytes); !why.empty()) return Fail(file, why);
  Party party;
  if (!DecodeParty(bytes, party)) return Fail(file, "no party file");
  std::string lines;
  for (int row = 0; row <= party.Count; ++row) {
    const PartyMember& member = party.Rows[static_cast<std::size_t>(row)];
    lines += Format("%s, %s, Honor %i, temporal Honor %i\n", DisplayText(member.Name), DisplayText(member.Alignment),
                    member.Honor, member.TemporalHonor);
  }
  return Print(lines);
}

/// A game for the dice alone, seeded by the clock where nobody gives a seed.
std::unique_ptr<Game> DiceGame(PromptPlatform& platform, std::optional<std::uint32_t> seed) {
  auto game = QuietGame(platform);
  if (seed) game->dice.RandomState = *seed;
  return game;
}

}  // namespace

std::vector<SheetFormat> OutputFormats() {
  std::vector<SheetFormat> formats(kSheetFormats.begin(), kSheetFormats.end());
  formats.push_back({"json", JsonSheet});
  return formats;
}

int MakeNpcs(const NpcWishes& wishes, int count, const SheetOutput& output) {
  PromptPlatform platform;
  const auto game = LoadedGame(platform);
  SheetWriter writer(output);
  if (!game || !writer.IsReady()) return kFailed;
  NpcMaker maker;
  NpcWishes wish = wishes;
  int status = kDone;
  for (int made = 0; made < count; ++made, ++wish.seed) {
    const NpcResult result = maker.Make(*game, wish);
    if (!result.isMade) return Fail("npc", result.refusal);
    if (output.Formats.empty()) {
      status = std::max(status, Print(NpcLine(*game) + '\n'));
    } else {
      status = std::max(status, writer.Write(*game, FileNameOf(*game), true));
    }
  }
  return status;
}

int WriteSheets(const std::vector<std::string>& files, const SheetOutput& output) {
  SheetWriter writer(output);
  if (!writer.IsReady()) return kFailed;
  return ForEachCharacter(files, [&](Game& game, const std::string& file) {
    return writer.Write(game, file == kStandard ? FileNameOf(game) : fs::path(file).stem().string(), false);
  });
}

int ShowCharacters(const std::vector<std::string>& files) {
  return ForEachCharacter(files, [&](const Game& game, const std::string& file) {
    return Print((file == files.front() ? "" : "\n") + PageText(game));
  });
}

int CheckCharacters(const std::vector<std::string>& files) {
  return ForEachFile(files, ListCharacter);
}

int RollExpression(const std::string& dice, int times, std::optional<std::uint32_t> seed) {
  const auto row = ReadDiceExpression(dice);
  if (!row) {
    Fail(dice, "no dice that can be thrown: write them as 3d6+2, d20 or 2d8p-1");
    return kWrongUse;
  }
  PromptPlatform platform;
  const auto game = DiceGame(platform, seed);
  int status = kDone;
  for (int i = 0; i < times && status == kDone; ++i) {
    const RowRoll roll = RollDiceRow(*game, *row, 0, "");
    status = Print(Format("%i  (%s)\n", roll.Total, TrimRight(roll.Values)));
  }
  return status;
}

int LookUpCriticalHit(const CriticalHitWish& wish) {
  const auto startsType = [&](std::string_view type) {
    return !wish.Type.empty() && EqualsIgnoringCase(type.substr(0, wish.Type.size()), wish.Type);
  };
  const auto type = std::ranges::find_if(kDamageTypes, startsType);
  if (type == kDamageTypes.end()) {
    Fail(wish.Type, "no type of damage: puncturing, hacking, crushing or monster bites");
    return kWrongUse;
  }
  PromptPlatform platform;
  const auto game = DiceGame(platform, wish.Seed);
  const int roll = wish.Roll ? *wish.Roll : RollDice(*game, kPlaceDie, 1);
  const auto result = CriticalHitResult(static_cast<int>(type - kDamageTypes.begin()), wish.Severity, roll);
  std::string text = Format("%s %i, roll %i: %s\n", *type, wish.Severity, roll, result);
  for (const std::size_t line : NotationLinesOf(result)) text += Format("  %s\n", kCriticalHitNotation[line]);
  return Print(text);
}

int ListParty(const std::vector<std::string>& files) {
  return ForEachFile(files, [](Game& game, const std::string& file) {
    return EndsIgnoringCase(file, ".vlp") ? ListPartyFile(file) : ListCharacter(game, file);
  });
}

}  // namespace veld
