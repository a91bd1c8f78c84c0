#include <wayvane/platform/qt/QtFiles.h>

#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <algorithm>
#include <csignal>
#include <fstream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace wayvane::qt::test {
namespace {

using platform::Error;

class QtFiles : public testing::Test {
protected:
  [[nodiscard]] std::string at(const std::string& name) const
  {
    return folder.path().toStdString() + "/" + name;
  }

  [[nodiscard]] std::vector<platform::DirectoryEntry> entries() const
  {
    return files.list(at("")).value_or(std::vector<platform::DirectoryEntry>{});
  }

  [[nodiscard]] std::vector<std::string> names() const
  {
    std::vector<std::string> result;
    for (const platform::DirectoryEntry& entry : entries())
      result.push_back(entry.name);
    std::ranges::sort(result);
    return result;
  }

  QTemporaryDir folder;
  qt::QtFiles files;
  Error error;
};

TEST_F(QtFiles, WritesAndReadsBytesAsTheyAre)
{
  const std::string bytes("a\0\r\n\xFFz", 6);
  EXPECT_TRUE(files.writeAtomically(at("guide"), bytes, &error));
  EXPECT_EQ(files.read(at("guide"), 100, &error), bytes);
}

TEST_F(QtFiles, LeavesNoTemporaryFileBehind)
{
  EXPECT_TRUE(files.writeAtomically(at("guide"), "new", &error));
  EXPECT_TRUE(files.writeAtomically(at("guide"), "newer", &error));
  EXPECT_EQ(names(), std::vector<std::string>{"guide"});
  EXPECT_EQ(files.read(at("guide"), 100, &error), "newer");
}

TEST_F(QtFiles, FailedWriteKeepsTheOldContentsAndTellsWhy)
{
  EXPECT_FALSE(files.writeAtomically(at("missing/guide"), "x", &error));
  EXPECT_EQ(error.domain, "posix");
  EXPECT_EQ(error.code, ENOENT);
  ASSERT_EQ(::mkdir(at("folder").c_str(), 0700), 0);
  EXPECT_FALSE(files.writeAtomically(at("folder"), "x", &error));
  EXPECT_EQ(error.code, EISDIR);
  EXPECT_EQ(names(), std::vector<std::string>{"folder"});
}

/// Lets no file grow beyond so many bytes, as a disk would that is full.
class FullDisk {
public:
  explicit FullDisk(rlim_t room)
    : handler_(std::signal(SIGXFSZ, SIG_IGN))
  {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit little{room, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &little);
  }

  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

  ~FullDisk()
  {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

private:
  rlimit before_{};
  void (*handler_)(int);
};

TEST_F(QtFiles, DiskThatFillsUpWhileWritingLeavesTheOldFileAndNothingElse)
{
  ASSERT_TRUE(files.writeAtomically(at("guide"), "old", &error));
  {
    const FullDisk disk(10'000);
    EXPECT_FALSE(files.writeAtomically(at("guide"), std::string(50'000, 'n'), &error));
  }
  EXPECT_EQ(error.domain, "posix");
  EXPECT_EQ(names(), std::vector<std::string>{"guide"});
  EXPECT_EQ(files.read(at("guide"), 100, &error), "old");
}

TEST_F(QtFiles, NameLongerThanTheSystemAllowsIsRefused)
{
  EXPECT_FALSE(files.writeAtomically(at(std::string(300, 'n')), "x", &error));
  EXPECT_EQ(error.code, ENAMETOOLONG);
  EXPECT_EQ(names(), std::vector<std::string>{});
}

TEST_F(QtFiles, LongestNameThatTheSystemAllowsIsWritten)
{
  const std::string name(255, 'n');
  EXPECT_TRUE(files.writeAtomically(at(name), "x", &error));
  EXPECT_EQ(names(), std::vector<std::string>{name});
}

TEST_F(QtFiles, ReplacementKeepsPermissionsAndFollowsLinks)
{
  ASSERT_TRUE(files.writeAtomically(at("real"), "old", &error));
  ASSERT_EQ(::chmod(at("real").c_str(), 0640), 0);
  ASSERT_EQ(::symlink(at("real").c_str(), at("link").c_str()), 0);
  EXPECT_TRUE(files.writeAtomically(at("link"), "new", &error));

  struct stat info {};

  ASSERT_EQ(::lstat(at("link").c_str(), &info), 0);
  EXPECT_TRUE(S_ISLNK(info.st_mode));
  ASSERT_EQ(::stat(at("real").c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 0777, 0640U);
  EXPECT_EQ(files.read(at("real"), 100, &error), "new");
}

TEST_F(QtFiles, FreshFileHasTheUsualPermissions)
{
  const mode_t mask = ::umask(0);
  ::umask(mask);
  ASSERT_TRUE(files.writeAtomically(at("fresh"), "x", &error));

  struct stat info {};

  ASSERT_EQ(::stat(at("fresh").c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 0777, 0666 & ~mask);
}

TEST_F(QtFiles, ReadRefusesFolderFifoAndDeviceWithoutWaiting)
{
  ASSERT_EQ(::mkfifo(at("fifo").c_str(), 0600), 0);
  EXPECT_EQ(files.read(at("fifo"), 100, &error), std::nullopt);
  EXPECT_EQ(error.code, EINVAL);
  EXPECT_EQ(files.read(at(""), 100, &error), std::nullopt);
  EXPECT_EQ(error.code, EISDIR);
  EXPECT_EQ(files.read("/dev/zero", 100, &error), std::nullopt);
  EXPECT_EQ(files.read(at("missing"), 100, nullptr), std::nullopt);
}

TEST_F(QtFiles, ReadRefusesWhatIsLargerThanTheLimit)
{
  ASSERT_TRUE(files.writeAtomically(at("guide"), "12345", &error));
  EXPECT_EQ(files.read(at("guide"), 5, &error), "12345");
  EXPECT_EQ(files.read(at("guide"), 4, &error), std::nullopt);
  EXPECT_EQ(error.code, EFBIG);
}

TEST_F(QtFiles, ListLeavesHiddenFilesOutAndTellsWhatIsAFile)
{
  ASSERT_TRUE(files.writeAtomically(at("b"), "123", &error));
  ASSERT_TRUE(files.writeAtomically(at(".hidden"), "x", &error));
  ASSERT_EQ(::mkdir(at("a").c_str(), 0700), 0);
  ASSERT_EQ(::symlink(at("nowhere").c_str(), at("c").c_str()), 0);
  EXPECT_EQ(names(), (std::vector<std::string>{"a", "b", "c"}));
  for (const platform::DirectoryEntry& entry : entries()) {
    EXPECT_EQ(entry.isRegularFile, entry.name == "b");
    EXPECT_EQ(entry.stamp.has_value(), entry.name != "c");
    if (entry.name == "b") {
      EXPECT_EQ(entry.stamp->size, 3U);
    }
  }
  EXPECT_EQ(files.list(at("missing")), std::nullopt);
}

TEST_F(QtFiles, StampChangesWithTheFile)
{
  ASSERT_TRUE(files.writeAtomically(at("guide"), "one", &error));
  const auto before = entries().front().stamp;
  ASSERT_TRUE(files.writeAtomically(at("guide"), "two", &error));
  EXPECT_NE(entries().front().stamp, before);
}

TEST_F(QtFiles, CreatesFoldersWithThoseAbove)
{
  EXPECT_TRUE(files.createFolders(at("a/b/c")));
  EXPECT_TRUE(files.createFolders(at("a/b/c")));
  ASSERT_TRUE(files.writeAtomically(at("file"), "x", &error));
  EXPECT_FALSE(files.createFolders(at("file/below")));
  EXPECT_FALSE(files.createFolders(""));
}

TEST_F(QtFiles, SupportFolderIsTheUsersDataFolder)
{
  EXPECT_EQ(files.applicationSupportFolder(), qEnvironmentVariable("XDG_DATA_HOME").toStdString());
}

} // namespace
} // namespace wayvane::qt::test
