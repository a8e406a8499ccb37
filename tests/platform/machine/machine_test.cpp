// Where the program keeps what it writes, and how one copy keeps others out.

#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <cstdlib>
#include <fcntl.h>

#include "../../base/temp_folder.h"
#include "platform/machine/instance_lock.h"
#include "platform/machine/places.h"
#include "platform/machine/sudden_end.h"

namespace ventrel {
namespace {

namespace fs = std::filesystem;

class Places : public ::testing::Test {
protected:
    static void environment(const char* home, const char* data) {
        home == nullptr ? ::unsetenv("HOME") : ::setenv("HOME", home, 1);
        data == nullptr ? ::unsetenv("XDG_DATA_HOME") : ::setenv("XDG_DATA_HOME", data, 1);
    }

    const fs::path nowhere{"/no such folder"};
    TempFolder folder;
};

TEST_F(Places, ThePlayersFolderFollowsTheEnvironmentAndIsThePlayersAlone) {
    const fs::path home = folder / "home";
    environment(home.c_str(), nullptr);
    EXPECT_EQ(playerDataFolder(nowhere, "game"), home / ".local/share/game");
    EXPECT_EQ(fs::status(home / ".local/share/game").permissions(), fs::perms::owner_all);
    environment(home.c_str(), (folder / "data").c_str());
    EXPECT_EQ(playerDataFolder(nowhere, "game"), folder / "data/game");
    EXPECT_TRUE(fs::is_directory(folder / "data/game"));
    EXPECT_EQ(playerDataFolder(folder.path(), "game"), folder.path()) << "beside the program";
}

TEST_F(Places, NothingIsEverKeptBelowTheCurrentFolder) {
    const fs::path before = fs::current_path();
    fs::current_path(folder.path());
    for (const char* home : {static_cast<const char*>(nullptr), "", "here", "./here"}) {
        environment(home, "data");
        const fs::path place = userDataFolder("ventrel-test-of-places");
        EXPECT_TRUE(place.empty() ||
                    (place.is_absolute() && !place.string().starts_with(folder.path().string())));
        if (!place.empty()) {
            ::rmdir(place.c_str());
        }
    }
    EXPECT_TRUE(fs::is_empty(folder.path()));
    fs::current_path(before);
    environment((folder / "file").c_str(), nullptr);
    writeText(folder / "file", "no folder");
    EXPECT_TRUE(userDataFolder("game").empty());
}

TEST(Lock, ShutsOutOthersUntilItIsLetGoAndNobodyElseCanOpenIt) {
    const TempFolder folder;
    writeText(folder / "lock", "");
    fs::permissions(folder / "lock", fs::perms::all);
    {
        const InstanceLock first(folder / "lock");
        EXPECT_FALSE(first.isTaken());
        EXPECT_TRUE(InstanceLock(folder / "lock").isTaken());
        EXPECT_EQ(fs::status(folder / "lock").permissions(), fs::perms::owner_read | fs::perms::owner_write);
        EXPECT_FALSE(InstanceLock(folder / "other").isTaken());
    }
    EXPECT_FALSE(InstanceLock(folder / "lock").isTaken());
    EXPECT_FALSE(InstanceLock(folder / "no such folder/lock").isTaken());
    EXPECT_FALSE(InstanceLock({}).isTaken());
    fs::create_symlink(folder / "elsewhere", folder / "link");
    EXPECT_FALSE(InstanceLock(folder / "link").isTaken());
    EXPECT_FALSE(fs::exists(folder / "elsewhere")) << "a link was followed";
}

TEST(Lock, AFileThatIsSomebodyElsesShutsNobodyOut) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << "only root can give files away";
    }
    constexpr uid_t somebody = 65534;
    const TempFolder folder;
    writeText(folder / "lock", "");
    const int held = ::open((folder / "lock").c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(::flock(held, LOCK_EX), 0);
    ASSERT_EQ(::chown((folder / "lock").c_str(), somebody, somebody), 0);
    EXPECT_FALSE(InstanceLock(folder / "lock").isTaken());
    ::close(held);
}

TEST(SuddenEndDeathTest, ActsOnlyWhenTheProcessExitsMeanwhile) {
    const auto act = [] { std::fputs("kept", stderr); };
    EXPECT_EXIT(
        {
            const SuddenEnd end(act);
            std::exit(3);
        },
        ::testing::ExitedWithCode(3), "^kept$");
    EXPECT_EXIT(
        {
            {
                const SuddenEnd end(act);
            }
            std::exit(3);
        },
        ::testing::ExitedWithCode(3), "^$");
}

} // namespace
} // namespace ventrel
