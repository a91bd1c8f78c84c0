#include <tests/desktop/Desktop.h>

#include <gmock/gmock.h>

#include <cerrno>

namespace wayvane::sim {
namespace {

using platform::Error;

TEST(SimFiles, WhatIsPutCanBeReadAndListed)
{
  Files files;
  files.put("/guides/a.wayvane", "one");
  Error error;
  EXPECT_EQ(files.read("/guides/a.wayvane", 100, &error), "one");
  const auto entries = files.list("/guides");
  ASSERT_TRUE(entries && entries->size() == 1);
  EXPECT_EQ(entries->front().name, "a.wayvane");
  EXPECT_TRUE(entries->front().isRegularFile);
  EXPECT_EQ(entries->front().stamp->size, 3u);
}

TEST(SimFiles, HiddenFilesAreNotListedAndFoldersAreNoFiles)
{
  Files files;
  files.put("/guides/.hidden", "");
  files.put("/guides/sub/b", "");
  const auto entries = files.list("/guides");
  ASSERT_TRUE(entries && entries->size() == 1);
  EXPECT_EQ(entries->front().name, "sub");
  EXPECT_FALSE(entries->front().isRegularFile);
  EXPECT_FALSE(files.list("/nowhere").has_value());
}

TEST(SimFiles, ReadingFailsWithAReason)
{
  Files files;
  files.put("/a", "12345");
  files.put("/secret", "x");
  files.putSpecial("/pipe");
  files.makeFolder("/folder");
  files.setUnreadable("/secret");
  const auto codeOf = [&](const std::string& path, std::uint64_t limit) {
    Error error;
    EXPECT_EQ(files.read(path, limit, &error), std::nullopt);
    EXPECT_EQ(error.domain, "posix");
    return error.code;
  };
  EXPECT_EQ(codeOf("/none", 100), ENOENT);
  EXPECT_EQ(codeOf("/a", 4), EFBIG);
  EXPECT_EQ(codeOf("/secret", 100), EACCES);
  EXPECT_EQ(codeOf("/pipe", 100), EINVAL);
  EXPECT_EQ(codeOf("/folder", 100), EISDIR);
}

TEST(SimFiles, AFullDiskLeavesTheOldContents)
{
  Files files;
  files.put("/a", "old");
  files.setDiskFull(true);
  Error error;
  EXPECT_FALSE(files.writeAtomically("/a", "new", &error));
  EXPECT_EQ(error.code, ENOSPC);
  EXPECT_EQ(files.get("/a"), "old");
  EXPECT_FALSE(files.createFolders("/b/c"));
}

TEST(SimFiles, WritingNeedsAFolderThatTakesIt)
{
  Files files;
  EXPECT_FALSE(files.writeAtomically("/x/a", "1", nullptr));
  EXPECT_TRUE(files.createFolders("/x/y"));
  EXPECT_TRUE(files.writeAtomically("/x/y/a", "1", nullptr));
  files.setUnwritable("/x");
  EXPECT_FALSE(files.writeAtomically("/x/y/a", "2", nullptr));
  EXPECT_EQ(files.get("/x/y/a"), "1");
}

TEST(SimFiles, EveryChangeGivesANewStamp)
{
  Files files;
  files.put("/d/a", "1");
  const auto before = files.list("/d")->front().stamp;
  files.put("/d/a", "2");
  EXPECT_NE(files.list("/d")->front().stamp, before);
}

TEST(SimFiles, RemovingAFolderRemovesWhatIsInIt)
{
  Files files;
  files.put("/d/e/a", "1");
  files.remove("/d");
  EXPECT_FALSE(files.exists("/d/e/a"));
  EXPECT_FALSE(files.exists("/d"));
}

} // namespace
} // namespace wayvane::sim
