#include <CLI/CLI.hpp>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <random>

#include "cli/commands.h"
#include "cli/workbench.h"
#include "store/side_files.h"

namespace {

using veld::NpcWishes;

constexpr int kMostTimes = 1'000'000;
constexpr int kMostNpcs = 10'000;

constexpr const char* kExamples =
    "\nExamples:\n"
    "  veld-cli npc --class Fighter --level 3 --count 5       five fighters of level 3, a line each\n"
    "  veld-cli npc --seed 7 --out club --format vlf,pdf       a character as file and sheet in the folder club\n"
    "  veld-cli sheet *.vlf --to pdf --out sheets              the sheets of all characters here\n"
    "  veld-cli show ada.vlf | less                            what the main window shows\n"
    "  veld-cli check *.vlf                                    which files load, and why others don't\n"
    "  veld-cli roll 3d6+2 --times 10\n"
    "  veld-cli crit hacking 12 --roll 3456\n"
    "  veld-cli party heroes.vlp\n"
    "\nExit status: 0 all was done; 1 something could not be read, made or written; 2 the command line is wrong.\n"
    "A file named - is standard input; --out - is standard output.\n";

std::vector<std::string> FormatNames() {
  std::vector<std::string> names;
  for (const veld::SheetFormat& format : veld::OutputFormats()) names.emplace_back(format.Name);
  return names;
}

std::string ListOfFormats() {
  return CLI::detail::join(FormatNames(), ",");
}

/// What the command line asks for. Its members are filled by the options of the command that is given.
struct Request {
  std::vector<std::string> Files;
  veld::SheetOutput Output;
  NpcWishes Wishes;
  int Count = 1;
  std::string OptionsFile;
  std::string Dice;
  int Times = 1;
  veld::CriticalHitWish Hit;
  std::optional<std::uint32_t> Seed;
};

void AddFiles(CLI::App& command, Request& request) {
  command.add_option("FILES", request.Files, "character files (.vlf); - for standard input")->required();
}

void AddOutput(CLI::App& command, Request& request, const char* formats) {
  command.add_option(formats, request.Output.Formats, "of " + ListOfFormats() + "; several parted by commas")
      ->delimiter(',')
      ->check(CLI::IsMember(FormatNames()));
  command.add_option("-o,--out", request.Output.Folder, "the folder to write to; - for standard output")
      ->capture_default_str();
}

void AddSeed(CLI::App& command, Request& request) {
  command.add_option("--seed", request.Seed, "the dice begin with this number: the same again for the same number");
}

int RunNpc(Request& request) {
  request.Wishes.seed = request.Seed ? *request.Seed : std::random_device()();
  if (!request.OptionsFile.empty()) {
    std::string bytes;
    if (const std::string why = veld::ReadBytes(request.OptionsFile, bytes); !why.empty()) {
      std::cerr << "veld-cli: " << request.OptionsFile << ": " << why << '\n';
      return veld::kFailed;
    }
    veld::DecodeOptions(bytes, request.Wishes.books.emplace());
  }
  return veld::MakeNpcs(request.Wishes, request.Count, request.Output);
}

void AddNpc(CLI::App& program, Request& request, int& status) {
  CLI::App& command = *program.add_subcommand("npc", "makes characters that play themselves");
  NpcWishes& wishes = request.Wishes;
  command.add_option("--race", wishes.race, "\"Elf, High\"; any if left out");
  command.add_option("--gender", wishes.gender, "Male or Female");
  command.add_option("--class", wishes.className, "\"Fighter\", \"Fighter/Thief\"");
  command.add_option("--level", wishes.level, "of the highest of the classes")
      ->check(CLI::Range(1, veld::kHighestNpcLevel))
      ->capture_default_str();
  command.add_option("--alignment", wishes.alignment, "\"Lawful-good\"");
  command.add_option("--name", wishes.name, "one of the people's own if left out");
  command.add_flag("--youth", wishes.hasYouth, "plays the youth that an almanac tells of the class");
  command.add_option("--options", request.OptionsFile, "an options.vlb with the books and rules in use");
  command.add_option("-n,--count", request.Count, "how many, each of the next seed")
      ->check(CLI::Range(1, kMostNpcs))
      ->capture_default_str();
  AddSeed(command, request);
  AddOutput(command, request, "-f,--format");
  command.footer(
      "\nWithout --format each character is told in a line.\n\nExample:\n"
      "  veld-cli npc --race Human --class Thief --level 2 --count 5 --seed 11 --out bandits --format vlf,txt\n");
  command.callback([&] { status = RunNpc(request); });
}

void AddSheet(CLI::App& program, Request& request, int& status) {
  CLI::App& command = *program.add_subcommand("sheet", "writes the sheets of characters");
  AddFiles(command, request);
  AddOutput(command, request, "-t,--to");
  command.get_option("--to")->required();
  command.footer("\nExamples:\n  veld-cli sheet ada.vlf --to txt\n  veld-cli sheet *.vlf --to pdf,json --out sheets\n");
  command.callback([&] { status = veld::WriteSheets(request.Files, request.Output); });
}

void AddReaders(CLI::App& program, Request& request, int& status) {
  struct Reader {
    const char* Name;
    const char* Help;
    int (*Run)(const std::vector<std::string>&);
  };
  constexpr Reader kReaders[] = {
      {"show", "shows characters, a page of text each", veld::ShowCharacters},
      {"check", "tells of each file who it is, or why it can't be loaded", veld::CheckCharacters},
      {"party", "lists characters, or the parties of .vlp files", veld::ListParty},
  };
  for (const Reader& reader : kReaders) {
    CLI::App& command = *program.add_subcommand(reader.Name, reader.Help);
    AddFiles(command, request);
    command.callback([&request, &status, run = reader.Run] { status = run(request.Files); });
  }
}

void AddDice(CLI::App& program, Request& request, int& status) {
  CLI::App& roll = *program.add_subcommand("roll", "throws dice");
  roll.add_option("DICE", request.Dice, "3d6+2, d20, 2d8p-1 (p: they penetrate)")->required();
  roll.add_option("-n,--times", request.Times, "how often")->check(CLI::Range(1, kMostTimes))->capture_default_str();
  AddSeed(roll, request);
  roll.callback([&] { status = veld::RollExpression(request.Dice, request.Times, request.Seed); });

  CLI::App& crit = *program.add_subcommand("crit", "tells what a critical hit does");
  crit.add_option("TYPE", request.Hit.Type, "puncturing, hacking, crushing or monster bites; its beginning will do")
      ->required();
  crit.add_option("SEVERITY", request.Hit.Severity, "1 to 24")->required();
  crit.add_option("--roll", request.Hit.Roll, "the d10,000 for the place; thrown if left out")
      ->check(CLI::Range(1, 10'000));
  AddSeed(crit, request);
  crit.callback([&] {
    request.Hit.Seed = request.Seed;
    status = veld::LookUpCriticalHit(request.Hit);
  });
}

int Run(int argc, char** argv) {
  CLI::App program("Characters, sheets and dice of the game Quellmarch, at the prompt.", "veld-cli");
  program.require_subcommand(1);
  program.footer(kExamples);
  Request request;
  int status = veld::kDone;
  AddNpc(program, request, status);
  AddSheet(program, request, status);
  AddReaders(program, request, status);
  AddDice(program, request, status);
  try {
    program.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return program.exit(error) == 0 ? veld::kDone : veld::kWrongUse;
  }
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "veld-cli: " << error.what() << '\n';
    return EXIT_FAILURE;
  }
}
