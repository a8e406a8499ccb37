// Where the program keeps what it writes, and how one copy keeps others out.

#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <cstdlib>
#include <fcntl.h>

#include "../../base/shortage.h"
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
        ::unsetenv("XDG_CONFIG_HOME");
    }

    TempFolder folder;
};

TEST_F(Places, ThePlayersFoldersFollowTheEnvironmentAndAreThePlayersAlone) {
    const fs::path home = folder / "home";
    environment(home.c_str(), nullptr);
    EXPECT_EQ(userDataFolder("game"), home / ".local/share/game");
    EXPECT_EQ(userConfigFolder("game"), home / ".config/game");
    EXPECT_EQ(fs::status(home / ".local/share/game").permissions(), fs::perms::owner_all);
    EXPECT_EQ(fs::status(home / ".config/game").permissions(), fs::perms::owner_all);
    environment(home.c_str(), (folder / "data").c_str());
    EXPECT_EQ(userDataFolder("game"), folder / "data/game");
    EXPECT_TRUE(fs::is_directory(folder / "data/game"));
}

TEST_F(Places, AnInstalledProgramFindsItsDataAndAPortableCopyKeepsAllWithIt) {
    environment((folder / "home").c_str(), nullptr);
    const fs::path installed = folder / "usr/bin/game";
    EXPECT_EQ(programDataFolder(installed, "game"), folder / "usr/bin") << "nowhere";
    fs::create_directories(folder / "usr/share/games/game/grf");
    EXPECT_EQ(programDataFolder(installed, "game"), folder / "usr/share/games/game");
    fs::create_directories(folder / "usr/share/game/grf");
    EXPECT_EQ(programDataFolder(installed, "game"), folder / "usr/share/game");
    const PlayerPlaces apart = playerPlaces(installed, folder / "usr/share/game", "game");
    EXPECT_EQ(apart.options, folder / "home/.config/game");
    EXPECT_EQ(apart.data, folder / "home/.local/share/game") << "even for one who may write below usr";

    fs::create_directories(folder / "copy/grf");
    EXPECT_EQ(programDataFolder(folder / "copy/game", "game"), folder / "copy");
    const PlayerPlaces together = playerPlaces(folder / "copy/game", folder / "copy", "game");
    EXPECT_EQ(together.options, folder / "copy");
    EXPECT_EQ(together.data, folder / "copy");
}

TEST_F(Places, WhatAnEarlierVersionKeptElsewhereIsBroughtOnce) {
    writeText(folder / "old", "first");
    bringFile(folder / "old", folder / "new");
    EXPECT_FALSE(fs::exists(folder / "old"));
    EXPECT_EQ(fs::file_size(folder / "new"), 5U);
    writeText(folder / "old", "another");
    bringFile(folder / "old", folder / "new");
    bringFile(folder / "none", folder / "newer");
    bringFile(folder / "new", folder / "new");
    EXPECT_EQ(fs::file_size(folder / "new"), 5U) << "the player's own is there already";
    EXPECT_TRUE(fs::exists(folder / "old"));
    EXPECT_FALSE(fs::exists(folder / "newer"));
}

TEST_F(Places, WhatIsBroughtFromAnotherDiskComesWholeOrStays) {
    const fs::path otherDisk = "/dev/shm/ventrel-brought-" + std::to_string(::getpid());
    writeText(otherDisk, "first");
    struct stat here = {};
    struct stat there = {};
    if (::stat(folder.path().c_str(), &here) != 0 || ::stat(otherDisk.c_str(), &there) != 0 ||
        here.st_dev == there.st_dev) {
        fs::remove(otherDisk);
        GTEST_SKIP() << "there is no other disk";
    }
    {
        const FullDisk full;
        bringFile(otherDisk, folder / "new");
    }
    EXPECT_TRUE(fs::is_empty(folder.path()));
    EXPECT_EQ(readText(otherDisk), "first");
    bringFile(otherDisk, folder / "new");
    EXPECT_EQ(readText(folder / "new"), "first");
    EXPECT_FALSE(fs::remove(otherDisk)) << "it was left behind";
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
