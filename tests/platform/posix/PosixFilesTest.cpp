// SPDX-License-Identifier: MIT
#include "platform/posix/PosixFiles.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {
std::function<void(const std::string& file)> whenSynced;  ///< called with the open file
}

/// Replaces the system's function in the whole test program.
extern "C" int fsync(int descriptor) {
  if (whenSynced) whenSynced("/proc/self/fd/" + std::to_string(descriptor));
  return static_cast<int>(::syscall(SYS_fsync, descriptor));
}

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

class ReplaceTest : public testing::Test {
 protected:
  ReplaceTest() { fs::permissions(folder.Path(), fs::perms(0777)); }

  bool Replace(const fs::path& target, std::string_view content, bool commit = true) {
    std::error_code error;
    const auto pending = files.Replace(target, error);
    EXPECT_EQ(pending == nullptr, static_cast<bool>(error)) << target;
    if (!pending) return false;
    for (const auto piece : {content.substr(0, 3), content.substr(3)}) {
      EXPECT_FALSE(pending->Write(std::as_bytes(std::span(piece))));
    }
    return commit && !pending->Commit();
  }

  auto Entries() const { return CountEntries(folder.Path()); }

  TemporaryFolder folder;
  PosixFiles files;
};

TEST_F(ReplaceTest, MakesAFileAndReplacesOneWithItsPermissions) {
  const fs::path target = folder / "new \xFF.exm";
  EXPECT_TRUE(Replace(target, "first content"));
  fs::permissions(target, fs::perms(0640));
  EXPECT_TRUE(Replace(target, "second"));
  Replace(target, "discarded", false);
  Replace(folder / "never made", "discarded", false);
  EXPECT_EQ(ReadBytes(target), "second");
  EXPECT_EQ(fs::status(target).permissions(), fs::perms(0640));
  EXPECT_EQ(Entries(), 1);
}

/// After a power cut the file has its old or its new content, and is never empty.
TEST_F(ReplaceTest, TheNewContentIsOnTheDiskBeforeItTakesTheName) {
  const fs::path target = WriteBytes(folder / "exam.exm", "old content");
  std::vector<std::pair<std::string, std::string>> synced;  // its content, and the target's at that time
  whenSynced = [&](const std::string& file) {
    synced.emplace_back(fs::is_directory(file) ? "" : ReadBytes(file), ReadBytes(target));
  };
  EXPECT_TRUE(Replace(target, "new content"));
  whenSynced = nullptr;
  ASSERT_EQ(synced.size(), 2U);
  EXPECT_EQ(synced[0], std::pair(std::string("new content"), std::string("old content")));
  EXPECT_EQ(synced[1], std::pair(std::string(), std::string("new content"))) << "the folder, for the name";
}

TEST_F(ReplaceTest, ReplacesWhatALinkPointsTo) {
  fs::create_directory(folder / "elsewhere");
  fs::create_symlink("elsewhere/target", folder / "link");
  fs::create_symlink("link", folder / "link to link");
  for (const char* content : {"made behind the link", "replaced"}) {
    EXPECT_TRUE(Replace(folder / "link to link", content));
    EXPECT_EQ(ReadBytes(folder / "elsewhere/target"), content);
  }
  EXPECT_TRUE(fs::is_symlink(folder / "link") && fs::is_symlink(folder / "link to link"));
}

TEST_F(ReplaceTest, RefusesWhatIsNoFileOrNotWritable) {
  fs::create_directory(folder / "a folder");
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0666), 0);
  const fs::path readOnly = WriteBytes(folder / "read-only", "old");
  fs::permissions(readOnly, fs::perms(0444));
  const OrdinaryUser user;
  for (const char* name : {"a folder", "pipe", "read-only", "no/such/folder", "read-only/below"}) {
    EXPECT_FALSE(Replace(folder / name, "content")) << name;
  }
  EXPECT_EQ(ReadBytes(readOnly), "old");
  EXPECT_EQ(Entries(), 3);
}

TEST_F(ReplaceTest, OverwritesAFileInAFolderThatTakesNoNewOnes) {
  const fs::path target = WriteBytes(folder / "mine", "a longer old content");
  fs::permissions(target, fs::perms(0666));
  fs::permissions(folder.Path(), fs::perms(0555));
  {
    const OrdinaryUser user;
    EXPECT_FALSE(Replace(folder / "new", "content"));
    for (const std::string& content : {std::string("short"), std::string(200000, 'x')}) {
      Replace(target, "discarded", false);
      EXPECT_TRUE(Replace(target, content));
      EXPECT_EQ(ReadBytes(target), content);
    }
  }
  fs::permissions(folder.Path(), fs::perms(0755));
}

}  // namespace
}  // namespace quorvantis::test
