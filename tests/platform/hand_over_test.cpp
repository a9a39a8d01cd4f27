// Other programs, started without a shell.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <filesystem>

#include "platform/hand_over.h"
#include "support/scripted_platform.h"

namespace veld {
namespace {

TEST(HandOverTest, AProgramGetsItsArgumentsAndNothingOfOurs) {
  const testing::TestFolder folder;
  EXPECT_TRUE(RunProgram({"true"}, 10'000));
  EXPECT_FALSE(RunProgram({"false"}, 10'000));
  EXPECT_FALSE(RunProgram({"no-program-of-this-name"}, 10'000));
  const std::string odd = "$(id); '\" \\ *";
  EXPECT_TRUE(RunProgram({"touch", "--", odd}, 10'000));
  EXPECT_TRUE(std::filesystem::exists(odd));
  EXPECT_TRUE(RunProgram({"sh", "-c", "read line || cut -d' ' -f1,6 /proc/$$/stat > session"}, 10'000));
  const std::string numbers = testing::FileText("session");
  const std::size_t blank = numbers.find(' ');
  ASSERT_NE(blank, std::string::npos) << "its input is at its end";
  EXPECT_EQ(numbers, numbers.substr(0, blank) + " " + numbers.substr(0, blank) + "\n") << "its session is its own";

  const auto start = std::chrono::steady_clock::now();
  EXPECT_TRUE(RunProgram({"sleep", "0.5"}, 20)) << "one that goes on is no failure, and is not waited for";
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(450));
  siginfo_t child{};
  for (int i = 0; i < 500 && waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT) == 0; ++i) usleep(20'000);
  EXPECT_EQ(errno, ECHILD) << "nothing is left of any";
}

}  // namespace
}  // namespace veld
