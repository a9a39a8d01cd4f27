#include "store/safe_file.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <thread>

#include "store/character_file.h"
#include "store/log_file.h"
#include "store/side_files.h"
#include "support/game_test.h"

namespace veld::testing {
namespace {

namespace fs = std::filesystem;

std::size_t FilesHere() { return static_cast<std::size_t>(std::distance(fs::directory_iterator("."), {})); }

/// No file of the process can grow beyond this: what a full disk does.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : signal_(signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit small{bytes, before_.rlim_max};
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    signal(SIGXFSZ, signal_);
  }

 private:
  rlimit before_{};
  void (*signal_)(int);
};

/// A folder that nobody may write to, met by a user who is not root.
class ReadOnlyFolder {
 public:
  ReadOnlyFolder() : wasRoot_(geteuid() == 0) {
    EXPECT_EQ(chmod(".", 0555), 0);
    if (wasRoot_) {
      EXPECT_EQ(seteuid(65534), 0);
    }
  }
  ~ReadOnlyFolder() {
    if (wasRoot_) {
      EXPECT_EQ(seteuid(0), 0);
    }
    chmod(".", 0755);
  }

 private:
  bool wasRoot_;
};

class SafeFile : public GameTest<> {
 protected:
  TestFolder folder;
};

TEST_F(SafeFile, ADiskThatIsFullAtAnyByteLeavesTheOldFileWhole) {
  SaveCharacterFile(*game, "a.vlf");
  const std::string old = FileText("a.vlf");
  game->sheet.CharacterName = "Borin";
  const std::string bytes = EncodeCharacter(*game);
  for (std::size_t room = 0; room < bytes.size(); ++room) {
    ASSERT_FALSE(SaveWholeFile("a.vlf", bytes, {.DiskRoom = room, .Flush = false})) << room;
    if (room % 499 != 0) continue;
    platform.messages.clear();
    ASSERT_FALSE(SaveCharacterFile(*game, "a.vlf", {.DiskRoom = room, .Flush = false})) << room;
    ASSERT_EQ(platform.messages, std::vector<std::string>{"VELD: Problem Saving vlf 4.5 file"});
    ASSERT_TRUE(FileText("a.vlf") == old) << room;
  }
  EXPECT_TRUE(FileText("a.vlf") == old);
  EXPECT_EQ(FilesHere(), 1u);
  EXPECT_TRUE(SaveCharacterFile(*game, "a.vlf", {.DiskRoom = bytes.size()}));
  EXPECT_TRUE(FileText("a.vlf") == bytes);
}

TEST_F(SafeFile, ARealFullDiskAndAReadOnlyFolderAreTold) {
  ASSERT_TRUE(SaveCharacterFile(*game, "a.vlf"));
  ASSERT_TRUE(SaveOptions(*game));
  chmod("options.vlb", 0666);
  const std::string old = FileText("a.vlf");
  game->sheet.CharacterName = "Borin";
  platform.messages.clear();
  {
    const FullDisk full(50'000);
    EXPECT_FALSE(SaveCharacterFile(*game, "a.vlf"));
  }
  {
    const ReadOnlyFolder readOnly;
    EXPECT_FALSE(SaveCharacterFile(*game, "a.vlf"));
    EXPECT_FALSE(SaveCharacterFile(*game, "b.vlf"));
    EXPECT_FALSE(SaveOptions(*game));
    EXPECT_FALSE(SaveCustomEquipment(*game));
  }
  EXPECT_FALSE(SaveCharacterFile(*game, "nowhere/a.vlf"));
  EXPECT_FALSE(SaveCharacterFile(*game, "options.vlb/a.vlf"));
  EXPECT_FALSE(SaveCharacterFile(*game, ""));
  EXPECT_EQ(std::count(platform.messages.begin(), platform.messages.end(), "VELD: Problem Saving vlf 4.5 file"), 6);
  EXPECT_TRUE(platform.Showed("VELD: Problem Saving options.vlb file"));
  EXPECT_TRUE(platform.Showed("VELD: Problem Loading cequip.vlb file"));
  EXPECT_TRUE(FileText("a.vlf") == old);
  EXPECT_EQ(FilesHere(), 2u);
}

TEST_F(SafeFile, ReplacesTheTargetOfALinkAndKeepsTheMode) {
  fs::create_directory("deep");
  WriteText("deep/real.vlf", "old");
  chmod("deep/real.vlf", 0640);
  fs::create_symlink("real.vlf", "deep/first.vlf");
  fs::create_symlink("deep/first.vlf", "link.vlf");
  EXPECT_TRUE(SaveWholeFile("link.vlf", "new"));
  EXPECT_TRUE(fs::is_symlink("link.vlf") && fs::is_symlink("deep/first.vlf"));
  EXPECT_EQ(FileText("deep/real.vlf"), "new");
  EXPECT_EQ(fs::status("deep/real.vlf").permissions(), fs::perms(0640));
  fs::create_symlink("circle.vlf", "circle.vlf");
  EXPECT_FALSE(SaveWholeFile("circle.vlf", "new"));
  fs::create_directory("folder.vlf");
  EXPECT_FALSE(SaveWholeFile("folder.vlf", "new"));
}

TEST_F(SafeFile, ReadsAPipeOrAFolderAsUnreadableAndAtMostWhatIsAsked) {
  std::string bytes;
  ASSERT_EQ(mkfifo("pipe.vlf", 0600), 0);
  EXPECT_EQ(ReadWholeFile("pipe.vlf", bytes, 100), FileRead::Unreadable);
  AppendLine("pipe.vlf", "a log that nobody reads does not keep the program waiting");
  EXPECT_EQ(ReadWholeFile(".", bytes, 100), FileRead::Unreadable);
  EXPECT_EQ(ReadWholeFile("none", bytes, 100), FileRead::Missing);
  WriteText("a", "0123456789");
  EXPECT_EQ(ReadWholeFile("a", bytes, 4), FileRead::Done);
  EXPECT_EQ(bytes, "0123");
  EXPECT_EQ(ReadWholeFile("a", bytes, 11), FileRead::Done);
  EXPECT_EQ(bytes, "0123456789");
  // Its size is told as 0.
  EXPECT_EQ(ReadWholeFile("/proc/self/status", bytes, 1'000'000), FileRead::Done);
  EXPECT_EQ(bytes.substr(0, 5), "Name:");
}

TEST_F(SafeFile, SavesAtTheSameTimeLeaveOneWholeFile) {
  const std::string a(200'000, 'a'), b(200'000, 'b');
  const auto saveOften = [](const std::string& bytes) {
    for (int i = 0; i < 50; ++i) EXPECT_TRUE(SaveWholeFile("a", bytes, {.Flush = false}));
  };
  std::thread other(saveOften, a);
  saveOften(b);
  other.join();
  const std::string left = FileText("a");
  EXPECT_TRUE(left == a || left == b);
  EXPECT_EQ(FilesHere(), 1u);
}

TEST_F(SafeFile, AFileOfAnOlderVersionIsKeptBeforeItsFirstOverwriting) {
  const std::string old = std::string("4.1\0 and more", 13) + std::string(100'000, 'x');
  WriteText("a.vlf", old);
  EXPECT_FALSE(SaveCharacterFile(*game, "a.vlf", {.DiskRoom = 50}));
  EXPECT_TRUE(FileText("a.vlf") == old);
  EXPECT_EQ(FilesHere(), 1u);
  EXPECT_TRUE(SaveCharacterFile(*game, "a.vlf"));
  EXPECT_TRUE(FileText("a.vlf.bak") == old);
  EXPECT_TRUE(SaveCharacterFile(*game, "a.vlf"));
  EXPECT_EQ(FilesHere(), 2u);
  const std::string older("3.8.1\0\0\0\0\0", 10);
  WriteText("a.vlf", older);
  EXPECT_TRUE(SaveCharacterFile(*game, "a.vlf"));
  EXPECT_TRUE(FileText("a.vlf.bak") == old);
  EXPECT_EQ(FileText("a.vlf.bak2"), older);
  EXPECT_TRUE(platform.Showed("VELD: File saved in vlf format"));
}

}  // namespace
}  // namespace veld::testing
