#include <tests/conformance/Conformance.h>

namespace wayvane::conformance {

namespace {

constexpr std::uint64_t kPlenty = 1U << 20U;

class FileSystem : public Conformance {
protected:
  [[nodiscard]] platform::Files& files() { return platform().files; }

  [[nodiscard]] std::string path(const std::string& name) const { return folder_ + "/" + name; }

  [[nodiscard]] const std::string& folder() const { return folder_; }

  [[nodiscard]] std::optional<platform::DirectoryEntry> entry(const std::string& name)
  {
    for (const auto& found : files().list(folder_).value_or(std::vector<platform::DirectoryEntry>{}))
      if (found.name == name) return found;
    return std::nullopt;
  }

private:
  std::string folder_ = stage().emptyFolder();
};

TEST_F(FileSystem, WhatIsWrittenCanBeRead)
{
  const std::string bytes("Alps\0\xff\n\r\n", 9);
  ASSERT_TRUE(files().writeAtomically(path("tour.wayvane"), bytes, nullptr));
  EXPECT_THAT(files().read(path("tour.wayvane"), kPlenty, nullptr), Optional(bytes));
}

TEST_F(FileSystem, AnEmptyFileIsAFile)
{
  ASSERT_TRUE(files().writeAtomically(path("empty"), "", nullptr));
  EXPECT_THAT(files().read(path("empty"), kPlenty, nullptr), Optional(std::string()));
  EXPECT_THAT(files().read(path("empty"), 0, nullptr), Optional(std::string()));
}

TEST_F(FileSystem, WritingReplacesTheWholeFile)
{
  ASSERT_TRUE(files().writeAtomically(path("tour"), "a long first text", nullptr));
  ASSERT_TRUE(files().writeAtomically(path("tour"), "short", nullptr));
  EXPECT_THAT(files().read(path("tour"), kPlenty, nullptr), Optional(std::string("short")));
  EXPECT_EQ(files().list(folder())->size(), 1U) << "nothing else is left behind";
}

TEST_F(FileSystem, NamesAreUtf8)
{
  ASSERT_TRUE(files().writeAtomically(path("Höhenweg ⛰.wayvane"), "up", nullptr));
  EXPECT_THAT(files().read(path("Höhenweg ⛰.wayvane"), kPlenty, nullptr), Optional(std::string("up")));
  EXPECT_TRUE(entry("Höhenweg ⛰.wayvane"));
}

TEST_F(FileSystem, AFileAtTheLimitIsRead)
{
  ASSERT_TRUE(files().writeAtomically(path("tour"), "12345", nullptr));
  EXPECT_THAT(files().read(path("tour"), 5, nullptr), Optional(std::string("12345")));
}

TEST_F(FileSystem, AFileBeyondTheLimitIsNotRead)
{
  ASSERT_TRUE(files().writeAtomically(path("tour"), "12345", nullptr));
  platform::Error error;
  EXPECT_FALSE(files().read(path("tour"), 4, &error));
  EXPECT_NE(error.domain, "");
  EXPECT_NE(error.description, "");
}

TEST_F(FileSystem, AMissingFileSaysWhy)
{
  platform::Error error;
  EXPECT_FALSE(files().read(path("missing"), kPlenty, &error));
  EXPECT_NE(error.domain, "");
  EXPECT_NE(error.code, 0);
  EXPECT_NE(error.description, "");
}

TEST_F(FileSystem, AFolderIsNoFile)
{
  platform::Error error;
  EXPECT_FALSE(files().read(folder(), kPlenty, &error));
  EXPECT_NE(error.domain, "");
}

TEST_F(FileSystem, WritingIntoAMissingFolderFails)
{
  platform::Error error;
  EXPECT_FALSE(files().writeAtomically(path("missing/tour"), "text", &error));
  EXPECT_NE(error.domain, "");
  EXPECT_NE(error.description, "");
  EXPECT_FALSE(files().list(path("missing")));
}

TEST_F(FileSystem, WritingOverAFolderFailsAndLeavesIt)
{
  ASSERT_TRUE(files().createFolders(path("guides")));
  platform::Error error;
  EXPECT_FALSE(files().writeAtomically(path("guides"), "text", &error));
  EXPECT_NE(error.domain, "");
  EXPECT_TRUE(files().list(path("guides")));
  EXPECT_EQ(files().list(folder())->size(), 1U);
}

TEST_F(FileSystem, ErrorsNeedNotBeAskedFor)
{
  EXPECT_FALSE(files().read(path("missing"), kPlenty, nullptr));
  EXPECT_FALSE(files().writeAtomically(path("missing/tour"), "text", nullptr));
}

TEST_F(FileSystem, AnEmptyFolderListsNothing)
{
  const auto entries = files().list(folder());
  ASSERT_TRUE(entries);
  EXPECT_THAT(*entries, IsEmpty());
}

TEST_F(FileSystem, AListLeavesOutWhatIsHidden)
{
  ASSERT_TRUE(files().writeAtomically(path("tour"), "text", nullptr));
  ASSERT_TRUE(files().writeAtomically(path(".hidden"), "text", nullptr));
  const auto entries = files().list(folder());
  ASSERT_TRUE(entries);
  ASSERT_EQ(entries->size(), 1U);
  EXPECT_EQ(entries->front().name, "tour");
}

TEST_F(FileSystem, AListTellsFilesFromFolders)
{
  ASSERT_TRUE(files().writeAtomically(path("tour"), "text", nullptr));
  ASSERT_TRUE(files().createFolders(path("guides")));
  ASSERT_TRUE(entry("tour") && entry("guides"));
  EXPECT_TRUE(entry("tour")->isRegularFile);
  EXPECT_FALSE(entry("guides")->isRegularFile);
}

TEST_F(FileSystem, AMissingFolderHasNoList)
{
  EXPECT_FALSE(files().list(path("missing")));
  ASSERT_TRUE(files().writeAtomically(path("tour"), "text", nullptr));
  EXPECT_FALSE(files().list(path("tour"))) << "nor has a file";
}

TEST_F(FileSystem, AStampChangesWithTheFile)
{
  ASSERT_TRUE(files().writeAtomically(path("tour"), "one", nullptr));
  ASSERT_TRUE(entry("tour") && entry("tour")->stamp);
  const auto before = *entry("tour")->stamp;
  EXPECT_EQ(before.size, 3U);
  EXPECT_EQ(*entry("tour")->stamp, before) << "and only with it";
  ASSERT_TRUE(files().writeAtomically(path("tour"), "two", nullptr));
  EXPECT_NE(*entry("tour")->stamp, before) << "although the size is the same";
}

TEST_F(FileSystem, FoldersAreMadeWithThoseAbove)
{
  EXPECT_TRUE(files().createFolders(path("a/b/c")));
  EXPECT_TRUE(files().list(path("a/b/c")));
  EXPECT_TRUE(files().createFolders(path("a/b/c"))) << "they may be there already";
  EXPECT_TRUE(files().writeAtomically(path("a/b/c/tour"), "text", nullptr));
}

TEST_F(FileSystem, NoFolderIsMadeBelowAFile)
{
  ASSERT_TRUE(files().writeAtomically(path("tour"), "text", nullptr));
  EXPECT_FALSE(files().createFolders(path("tour")));
  EXPECT_FALSE(files().createFolders(path("tour/guides")));
}

TEST_F(FileSystem, ProgramsKeepTheirDataInAnAbsoluteFolder)
{
  EXPECT_THAT(files().applicationSupportFolder(), testing::StartsWith("/"));
}

} // namespace

} // namespace wayvane::conformance
