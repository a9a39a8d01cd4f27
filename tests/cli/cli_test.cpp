#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "support/scripted_platform.h"

namespace veld {
namespace {

namespace fs = std::filesystem;

constexpr const char* kCorpus = VELD_SOURCE_DIR "/fuzz/corpus";

struct Output {
  std::string Text;
  std::string Errors;
  int Status = -1;  ///< -1: it did not end by itself
};

Output RunCli(const std::string& arguments) {
  Output output;
  const std::string command = "'" VELD_CLI_PROGRAM "' " + arguments + " 2>../errors.txt";
  std::FILE* pipe = popen(command.c_str(), "r");
  char block[4096];
  while (const std::size_t count = std::fread(block, 1, sizeof block, pipe)) output.Text.append(block, count);
  const int status = pclose(pipe);
  if (WIFEXITED(status)) output.Status = WEXITSTATUS(status);
  output.Errors = testing::FileText("../errors.txt");
  return output;
}

std::set<std::string> Files() {
  std::set<std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator("."))
    files.insert(entry.path().lexically_normal().string());
  return files;
}

/// Works in an empty folder, and holds what must stand there.
class CliTest : public ::testing::Test {
 protected:
  CliTest() {
    fs::create_directory("work");
    fs::current_path("work");
  }

  testing::TestFolder folder;
};

TEST_F(CliTest, MakesCharactersAndWritesThemAndNothingElse) {
  const Output made = RunCli(
      "npc --race Human --class Fighter --level 2 --count 2 --seed 5 --name Brida --out club --format vlf,json,txt");
  EXPECT_EQ(made.Status, 0) << made.Errors;
  EXPECT_EQ(Files(), (std::set<std::string>{"club", "club/Brida 2.json", "club/Brida 2.txt", "club/Brida 2.vlf",
                                            "club/Brida.json", "club/Brida.txt", "club/Brida.vlf"}));
  const auto brida = nlohmann::json::parse(testing::FileText("club/Brida.json"));
  EXPECT_EQ(brida["classes"][0]["name"], "Fighter");
  EXPECT_EQ(brida["classes"][0]["level"], 2);
  EXPECT_GE(brida["classes"][0]["experience"], 2000);

  // Each way to the same sheet gives the same bytes: from memory, from the file, from standard input.
  const std::string sheet = testing::FileText("club/Brida.txt");
  EXPECT_EQ(RunCli("sheet club/Brida.vlf --to txt").Text, sheet);
  EXPECT_EQ(RunCli("sheet - --to txt --out - < club/Brida.vlf").Text, sheet);
  EXPECT_EQ(RunCli("sheet club/Brida.vlf --to json").Text, testing::FileText("club/Brida.json"));
  EXPECT_EQ(RunCli("sheet club/Brida.vlf --to vlf").Text, testing::FileText("club/Brida.vlf"));
  EXPECT_NE(RunCli("show club/Brida.vlf").Text.find("Class and level: Fighter 2"), std::string::npos);
  EXPECT_NE(RunCli("party club/Brida.vlf").Text.find("Brida, Human, Fighter 2"), std::string::npos);
  EXPECT_EQ(Files().size(), 7U);
  // Nobody is lost: a new character takes a free name, and what a file held before stays beside it.
  EXPECT_EQ(RunCli("npc --class Thief --name Brida --seed 6 --out club --format vlf").Status, 0);
  ASSERT_TRUE(fs::exists("club/Brida 3.vlf"));
  fs::copy_file("club/Brida 3.vlf", "Brida.vlf");
  const std::string first = testing::FileText("club/Brida.vlf");
  EXPECT_EQ(RunCli("sheet Brida.vlf --to vlf --out club").Status, 0);
  EXPECT_EQ(testing::FileText("club/Brida.vlf"), testing::FileText("Brida.vlf"));
  EXPECT_EQ(testing::FileText("club/Brida.vlf.bak"), first);
  EXPECT_FALSE(fs::exists("../recovery"));
}

TEST_F(CliTest, TellsWhatItCannotDo) {
  struct Case {
    const char* Arguments;
    int Status;
    const char* Told;
  };
  constexpr Case kCases[] = {
      {"", 2, "subcommand"},
      {"sheet a.vlf", 2, "--to"},
      {"sheet a.vlf --to doc", 2, "doc"},
      {"roll 3x6", 2, "3x6"},
      {"roll d6 --times 0", 2, "times"},
      {"crit tickling 3", 2, "tickling"},
      {"npc --level 21", 2, "level"},
      {"npc --race Gnome --class Wizardess", 1, "Wizardess"},
      {"check nobody.vlf", 1, "nobody.vlf: there is no such file"},
      {"check .", 1, "can't be read"},
      {"show ../errors.txt", 1, "no character file"},
      {"party ../errors.vlp", 1, "no such file"},
      {"npc --out /dev/null/a --format txt", 1, "can't be made"},
  };
  for (const Case& wrong : kCases) {
    const Output output = RunCli(wrong.Arguments);
    EXPECT_EQ(output.Status, wrong.Status) << wrong.Arguments;
    EXPECT_NE(output.Errors.find(wrong.Told), std::string::npos) << wrong.Arguments << ": " << output.Errors;
    EXPECT_EQ(output.Text, "") << wrong.Arguments;
  }
}

TEST_F(CliTest, ThrowsDiceThatASeedGivesAgain) {
  const std::string dice = RunCli("roll 3d6+2 --times 200 --seed 9").Text;
  EXPECT_EQ(dice, RunCli("roll '3D6 + 2' -n 200 --seed 9").Text);
  EXPECT_EQ(std::count(dice.begin(), dice.end(), '\n'), 200);
  std::istringstream lines(dice);
  for (std::string line; std::getline(lines, line);) {
    const int total = std::stoi(line);
    EXPECT_TRUE(total >= 5 && total <= 20) << line;
  }
  const std::string hit = RunCli("crit hack 12 --roll 3456").Text;
  EXPECT_TRUE(hit.starts_with("Hacking 12, roll 3456: Back, upper: x2, d1, f, w, a1, mt3, b1\n")) << hit;
}

/// Whatever bytes a file holds: it is a character in every format, or it is told why not.
TEST_F(CliTest, HostileFilesEndInAStatus) {
  for (const auto& entry : fs::recursive_directory_iterator(kCorpus)) {
    if (!entry.is_regular_file()) continue;
    const std::string file = "'" + entry.path().string() + "'";
    const Output check = RunCli("check " + file);
    ASSERT_TRUE(check.Status == 0 || check.Status == 1) << file;
    const Output sheets = RunCli("sheet " + file + " --to vlf,txt,csv,html,xml,json --out out");
    EXPECT_EQ(sheets.Status, check.Status) << file << sheets.Errors;
    if (check.Status != 0) continue;
    const std::string json = testing::FileText("out/" + entry.path().stem().string() + ".json");
    EXPECT_TRUE(nlohmann::json::accept(json)) << file;
  }
}

}  // namespace
}  // namespace veld
