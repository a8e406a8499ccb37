// How a file is replaced, and what stands there when that goes wrong.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "base/file_buffer.h"
#include "base/fresh_file.h"
#include "base/profile_file.h"
#include "base/whole_file.h"
#include "temp_folder.h"
#include "watched_calls.h"

namespace ventrel {
namespace {

namespace fs = std::filesystem;

Result<> replaceText(const fs::path& file, std::string_view text) {
    return replaceFile(file, std::as_bytes(std::span(text)));
}

std::ptrdiff_t filesIn(const fs::path& folder) {
    return std::distance(fs::directory_iterator(folder), {});
}

TEST(FreshFile, IsOnTheDiskBeforeItTakesTheNameAndTheNameAfterwards) {
    const TempFolder folder;
    const WatchedCalls watched(folder.path());
    ASSERT_TRUE(replaceText(folder / "a", "new"));
    EXPECT_EQ(watched.calls, (std::vector<std::string>{"fsync file", "rename", "fsync folder"}));
}

TEST(FreshFile, NeverWritesThroughWhatSomebodyHasLaidThere) {
    const TempFolder folder;
    writeText(folder / "victim", "precious");
    fs::create_directory(folder / "in");
    WatchedCalls watched(folder.path());
    watched.layInWay = folder / "victim";
    EXPECT_TRUE(replaceText(folder / "in/a", "new"));
    EXPECT_TRUE(watched.layInWay.empty());
    EXPECT_EQ(readText(folder / "victim"), "precious");
    EXPECT_EQ(readText(folder / "in/a"), "new");
    EXPECT_EQ(filesIn(folder / "in"), 2); // and what was laid there
}

TEST(FreshFile, FailingDisksLeaveTheOldFileAloneAndNothingBeside) {
    const TempFolder folder;
    writeText(folder / "scores", "old");
    FileBuffer buffer;
    ASSERT_TRUE(buffer.load(folder / "scores", true, {}));
    {
        WatchedCalls watched(folder.path());
        watched.writeError = ENOSPC;
        EXPECT_EQ(replaceText(folder / "scores", "much").error().text,
                  "The file " + (folder / "scores").string() +
                      " cannot be written: No space left on device.");
        EXPECT_NE(buffer.save().error().text.find("and could only write 2 bytes"), std::string::npos);
    }
    EXPECT_EQ(readText(folder / "scores"), "old");
    EXPECT_EQ(filesIn(folder.path()), 1);
}

TEST(FreshFile, KeepsTheModeAndHidesNothingFromOthersThatTheMaskAllows) {
    const TempFolder folder;
    const auto modeOf = [&](std::string_view name) { return fs::status(folder / name).permissions(); };
    const mode_t mask = ::umask(027);
    EXPECT_TRUE(replaceText(folder / "new", "x"));
    ::umask(mask);
    EXPECT_EQ(modeOf("new"), fs::perms{0640});
    for (const fs::perms mode : {fs::perms{0600}, fs::perms{0664}, fs::perms{0755}}) {
        fs::permissions(folder / "new", mode);
        EXPECT_TRUE(replaceText(folder / "new", "x"));
        EXPECT_EQ(modeOf("new"), mode);
    }
}

TEST(FreshFile, LinksStayAndLeadToTheNewContent) {
    const TempFolder folder;
    fs::create_directory(folder / "kept");
    fs::create_symlink("second", folder / "first"); // relative, and one after the other
    fs::create_symlink("kept/target", folder / "second");
    for (const char* text : {"made", "replaced"}) {
        EXPECT_TRUE(replaceText(folder / "first", text));
        EXPECT_TRUE(fs::is_symlink(folder / "first") && fs::is_symlink(folder / "second"));
        EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(folder / "kept/target")));
        EXPECT_EQ(readText(folder / "kept/target"), text);
    }
    fs::create_symlink("circle", folder / "circle");
    EXPECT_FALSE(replaceText(folder / "circle", "x"));
}

TEST(FreshFile, OnlyFilesOfOnesOwnAreReplaced) {
    const TempFolder folder;
    makePipe(folder / "pipe");
    EXPECT_FALSE(replaceText(folder / "pipe", "x"));
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
    EXPECT_FALSE(replaceText(folder.path(), "x"));
    EXPECT_FALSE(replaceText("", "x"));
    writeText(folder / "protected", "old");
    fs::permissions(folder / "protected", fs::perms::owner_read);
    const bool isRoot = ::geteuid() == 0; // who may write all the same
    EXPECT_EQ(replaceText(folder / "protected", "new").has_value(), isRoot);
    EXPECT_EQ(readText(folder / "protected"), isRoot ? "new" : "old");
}

TEST(FreshFile, ClearsAwayWhatAKilledProgramHasLeftAndNothingElse) {
    const TempFolder folder;
    const std::vector<std::string> kept{"scores", "0123456789abcdef.new", ".0123456789abcdeg.new",
                                        ".0123456789abcdef.new~"};
    for (const std::string& name : kept) {
        writeText(folder / name, "mine");
    }
    writeText(folder / ".0123456789abcdef.new", "half");
    fs::create_directory(folder / ".1123456789abcdef.new");
    fs::create_symlink("scores", folder / ".2123456789abcdef.new");
    {
        auto inTheMaking = FreshFile::beside(folder / "scores");
        ASSERT_TRUE(inTheMaking);
        EXPECT_FALSE(fs::exists(folder / ".0123456789abcdef.new"));
        ASSERT_TRUE(replaceText(folder / "options", "new")); // meanwhile
        inTheMaking->write(std::as_bytes(std::span(std::string_view("better"))));
        EXPECT_TRUE(inTheMaking->putInPlace());
    }
    EXPECT_EQ(readText(folder / "scores"), "better");
    EXPECT_EQ(filesIn(folder.path()), 7);
    for (const std::string& name : kept) {
        EXPECT_TRUE(fs::exists(folder / name)) << name;
    }
}

TEST(WholeFile, FailedReadsAreToldAndNotTakenForTheEnd) {
    const TempFolder folder;
    writeText(folder / "a", "content");
    WatchedCalls watched(folder.path());
    watched.readError = EIO;
    EXPECT_EQ(readFileStart(folder / "a", 100).error().text,
              "The file " + (folder / "a").string() + " cannot be read: Input/output error.");
    EXPECT_FALSE(readWholeFile(folder / "a", 100));
    EXPECT_FALSE(ProfileFile::read(folder / "a"));
}

} // namespace
} // namespace ventrel
