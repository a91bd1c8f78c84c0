#include <wayvane/manager/WVGuideManager.h>
#include <wayvane/platform/qt/QtPlatform.h>
#include <wayvane/playback/WVPlayer.h>
#include <wayvane/recording/WVRecorder.h>

#include <QApplication>

#include <gmock/gmock.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <linux/capability.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace wayvane::qt::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

/// Takes the right of root to open everything, until it goes.
class ClosedDoors {
public:
  ClosedDoors()
  {
    ::syscall(SYS_capget, &header_, before_);
    __user_cap_data_struct without[2] = {before_[0], before_[1]};
    without[0].effective &= ~((1U << CAP_DAC_OVERRIDE) | (1U << CAP_DAC_READ_SEARCH));
    ::syscall(SYS_capset, &header_, without);
  }

  ClosedDoors(const ClosedDoors&) = delete;
  ClosedDoors& operator=(const ClosedDoors&) = delete;

  ~ClosedDoors() { ::syscall(SYS_capset, &header_, before_); }

private:
  __user_cap_header_struct header_{_LINUX_CAPABILITY_VERSION_3, 0};
  __user_cap_data_struct before_[2]{};
};

/// The library of a program whose guides are real files.
class RealLibrary : public testing::Test {
protected:
  RealLibrary() { manager.install(); }

  ~RealLibrary() override { fs::remove_all(folder); }

  [[nodiscard]] std::string at(const std::string& name) const { return folder / name; }

  static std::string guideNamed(const std::string& name)
  {
    WVGuide guide(name);
    guide.addStepWithAccessibilityIdentifier("button", "Click");
    return guide.jsonDataWithError().value();
  }

  void put(const std::string& name, const std::string& bytes) const
  {
    FILE* file = std::fopen((name.empty() ? folder.string() : at(name)).c_str(), "wb");
    ASSERT_TRUE(file) << name;
    EXPECT_EQ(std::fwrite(bytes.data(), 1, bytes.size(), file), bytes.size());
    std::fclose(file);
  }

  [[nodiscard]] std::vector<std::string> names() const
  {
    std::vector<std::string> result;
    for (const GuideHandle& guide : manager.savedGuides())
      result.push_back(guide->name.value_or(""));
    return result;
  }

  WVPlayer player;
  WVRecorder recorder;
  WVGuideManager manager{player, recorder};
  const fs::path folder = manager.guidesDirectory();
};

TEST_F(RealLibrary, IsBelowTheUsersDataFolder)
{
  EXPECT_EQ(folder, fs::path(std::getenv("XDG_DATA_HOME")) / "example.library.Library" / "Guides");
  EXPECT_TRUE(fs::is_directory(folder));
}

TEST_F(RealLibrary, LeavesOutWhatIsNoGuide)
{
  const std::string whole = guideNamed("Whole");
  put("whole.wayvane", whole);
  put("half.wayvane", whole.substr(0, whole.size() / 2));
  put("empty.wayvane", "");
  put("binary.wayvane", std::string("\0\xFF\x1F\x8B", 4));
  put("nested.wayvane", std::string(100'000, '['));
  put("other.txt", whole);
  ASSERT_EQ(::mkfifo(at("fifo.wayvane").c_str(), 0600), 0);
  fs::create_directory(at("folder.wayvane"));
  fs::create_symlink("/nowhere/at/all", at("nowhere.wayvane"));
  fs::create_symlink("itself.wayvane", at("itself.wayvane"));
  fs::create_symlink("/dev/zero", at("device.wayvane"));
  manager.reloadGuides();
  EXPECT_THAT(names(), ElementsAre("Whole"));
}

TEST_F(RealLibrary, LeavesOutAFileOfAGigabyte)
{
  put("huge.wayvane", guideNamed("Huge"));
  fs::resize_file(at("huge.wayvane"), std::uintmax_t{1} << 30);
  put("small.wayvane", guideNamed("Small"));
  manager.reloadGuides();
  EXPECT_THAT(names(), ElementsAre("Small"));
}

TEST_F(RealLibrary, ReadsFilesWhoseNamesAreInNoKnownEncoding)
{
  put("caf\xE9.wayvane", guideNamed("Latin"));
  put("\xFF\xFE.wayvane", guideNamed("Bytes"));
  put("line\nbreak.wayvane", guideNamed("Line"));
  manager.reloadGuides();
  EXPECT_THAT(names(), UnorderedElementsAre("Latin", "Bytes", "Line"));
}

TEST_F(RealLibrary, FollowsALinkToAGuideElsewhere)
{
  put("../elsewhere", guideNamed("Linked"));
  fs::create_symlink("../elsewhere", at("link.wayvane"));
  manager.reloadGuides();
  EXPECT_THAT(names(), ElementsAre("Linked"));
}

TEST_F(RealLibrary, FindsItsGuideAmongTenThousandOtherFiles)
{
  for (int number = 0; number < 10'000; ++number)
    put(std::to_string(number) + ".wayvane", "{");
  put("guide.wayvane", guideNamed("Needle"));
  manager.reloadGuides();
  EXPECT_THAT(names(), ElementsAre("Needle"));
}

TEST_F(RealLibrary, IsEmptyWithAFileInThePlaceOfItsFolder)
{
  fs::remove_all(folder);
  put("", "no folder");
  manager.install();
  manager.reloadGuides();
  EXPECT_THAT(names(), IsEmpty());
  EXPECT_FALSE(WVGuide("New").writeToURL(at("new.wayvane")));
  EXPECT_TRUE(fs::is_regular_file(folder));
}

TEST_F(RealLibrary, IsEmptyWhileItsFolderIsMissingAndBackWithIt)
{
  fs::remove_all(folder);
  manager.reloadGuides();
  EXPECT_THAT(names(), IsEmpty());
  fs::create_directories(folder);
  put("guide.wayvane", guideNamed("Back"));
  manager.reloadGuides();
  EXPECT_THAT(names(), ElementsAre("Back"));
}

TEST_F(RealLibrary, IsEmptyWhileItsFolderMayNotBeRead)
{
  put("guide.wayvane", guideNamed("Secret"));
  const ClosedDoors closed;
  fs::permissions(folder, fs::perms::none);
  manager.reloadGuides();
  EXPECT_THAT(names(), IsEmpty());
  fs::permissions(folder, fs::perms::owner_all);
  manager.reloadGuides();
  EXPECT_THAT(names(), ElementsAre("Secret"));
}

TEST_F(RealLibrary, LeavesOutAGuideThatMayNotBeReadUntilItMay)
{
  put("guide.wayvane", guideNamed("Secret"));
  put("open.wayvane", guideNamed("Open"));
  const ClosedDoors closed;
  fs::permissions(at("guide.wayvane"), fs::perms::none);
  manager.reloadGuides();
  EXPECT_THAT(names(), ElementsAre("Open"));
  fs::permissions(at("guide.wayvane"), fs::perms::owner_all);
  manager.reloadGuides();
  EXPECT_THAT(names(), UnorderedElementsAre("Open", "Secret"));
}

TEST_F(RealLibrary, ShowsWhatAnotherProgramSavesIntoTheSameFolder)
{
  WVGuideManager other(player, recorder);
  other.install();
  EXPECT_TRUE(WVGuide("First").writeToURL(at("same.wayvane")));
  manager.reloadGuides();
  other.reloadGuides();
  EXPECT_TRUE(WVGuide("Second").writeToURL(at("same.wayvane")));
  manager.reloadGuides();
  other.reloadGuides();
  EXPECT_THAT(names(), ElementsAre("Second"));
  EXPECT_EQ(other.savedGuides().size(), 1U);
}

} // namespace
} // namespace wayvane::qt::test

int main(int argc, char** argv)
{
  testing::InitGoogleMock(&argc, argv);
  const QApplication app(argc, argv);
  QCoreApplication::setOrganizationDomain(QStringLiteral("library.example"));
  QCoreApplication::setApplicationName(QStringLiteral("Library"));
  return wayvane::qt::installPlatform() ? RUN_ALL_TESTS() : 1;
}
