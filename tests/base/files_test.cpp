#include <gtest/gtest.h>

#include <vector>

#include "base/data_path.h"
#include "base/file_buffer.h"
#include "temp_folder.h"

namespace ventrel {
namespace {

struct Report {
    std::string text;
    MessageIcon icon;
};

class Files : public ::testing::Test {
protected:
    FailureReporter report = [this](std::string_view text, MessageIcon icon) {
        reports.push_back({std::string(text), icon});
    };
    std::vector<Report> reports;
    TempFolder folder;
    FileBuffer buffer;
};

TEST_F(Files, WhatIsNoFileIsRefusedByName) {
    makePipe(folder / "pipe"); // reading it would wait for ever
    for (const auto& path : {folder / "none.apt", folder.path(), folder / "pipe"}) {
        EXPECT_FALSE(buffer.Load(path, false, {}, report));
        EXPECT_FALSE(FileExists(path));
        EXPECT_EQ(reports.back().text, "Can't open the file " + path.string() + ". Please re-install.");
        EXPECT_EQ(reports.back().icon, MessageIcon::stop);
    }
    EXPECT_FALSE(buffer.loaded);
}

TEST_F(Files, ShortFilesAreRefusedAndGiantSizesTakeNoMemory) {
    writeText(folder / "short.apt", "x");
    EXPECT_FALSE(buffer.Load(folder / "short.apt", false, std::size_t{1} << 60, report));
    EXPECT_NE(reports.back().text.find("only read 1 bytes"), std::string::npos);
    EXPECT_FALSE(buffer.Load(folder / "short.apt", false, 76, report));
    EXPECT_NE(reports.back().text.find("Tried to read 76 bytes"), std::string::npos);
    std::filesystem::resize_file(folder / "short.apt", std::size_t{1} << 30);
    EXPECT_FALSE(buffer.Load(folder / "short.apt", false, {}, report));
    EXPECT_NE(reports.back().text.find("Tried to allocate 1073741824 bytes"), std::string::npos);
    EXPECT_TRUE(buffer.Load(folder / "short.apt", false, 76, report));
}

TEST_F(Files, NextLoadReplacesTheContent) {
    writeText(folder / "a", "first");
    EXPECT_TRUE(buffer.Load(folder / "a", false, {}, report));
    EXPECT_EQ(buffer.data.size(), 5U);
    EXPECT_TRUE(buffer.Load(folder / "a", false, 2, report));
    EXPECT_EQ(buffer.data.size(), 2U);
    EXPECT_FALSE(buffer.Load(folder / "b", false, {}, report));
    EXPECT_TRUE(buffer.data.empty());
}

TEST_F(Files, SavingKeepsTheLengthAndNeedsPermission) {
    using std::filesystem::perms;
    writeText(folder / "scores", "0123456789");
    std::filesystem::permissions(folder / "scores", perms::owner_read | perms::owner_write);
    ASSERT_TRUE(buffer.Load(folder / "scores", false, {}, report));
    EXPECT_FALSE(buffer.Save(report));
    EXPECT_TRUE(reports.empty());

    ASSERT_TRUE(buffer.Load(folder / "scores", true, {}, report));
    buffer.data[0] = std::byte{'X'};
    buffer.data.push_back(std::byte{'!'});
    EXPECT_TRUE(buffer.Save(report));
    EXPECT_EQ(readText(folder / "scores"), "X123456789");
    EXPECT_FALSE(std::filesystem::exists(folder / "scores.new"));
    EXPECT_EQ(std::filesystem::status(folder / "scores").permissions(),
              perms::owner_read | perms::owner_write);

    buffer.data.resize(4);
    EXPECT_FALSE(buffer.Save(report));
    EXPECT_NE(reports.back().text.find("Tried to write 10 bytes"), std::string::npos);
    EXPECT_EQ(readText(folder / "scores"), "X123456789");

    std::filesystem::remove(folder / "scores");
    EXPECT_FALSE(buffer.Save(report));
    EXPECT_NE(reports.back().text.find("for writing"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(folder / "scores"));
}

TEST_F(Files, FullDiskLeavesTheOldFile) {
    if (!std::filesystem::exists("/dev/full")) {
        GTEST_SKIP() << "no /dev/full here";
    }
    writeText(folder / "scores", "old");
    std::filesystem::create_symlink("/dev/full", folder / "scores.new");
    ASSERT_TRUE(buffer.Load(folder / "scores", true, {}, report));
    buffer.data[0] = std::byte{'X'};
    EXPECT_FALSE(buffer.Save(report));
    EXPECT_NE(reports.back().text.find("could only write 0 bytes"), std::string::npos);
    EXPECT_EQ(readText(folder / "scores"), "old");
}

TEST_F(Files, DataNamesFindTheirFilesWhateverTheCaseAndNeverLeaveTheFolder) {
    std::filesystem::create_directories(folder / "grf");
    writeText(folder / "grf/Bkgnd8.grf", "picture");
    EXPECT_EQ(DataPath(folder.path(), "GRF\\bkgnd8.GRF"), folder / "grf/Bkgnd8.grf");
    EXPECT_EQ(DataPath(folder.path(), "mci\\none.mci"), folder / "mci/none.mci");
    EXPECT_EQ(DataPath(folder.path(), "..\\../grf"), folder / "grf");
    EXPECT_EQ(DataPath(folder.path(), "/etc/passwd"), folder / "etc/passwd");
}

} // namespace
} // namespace ventrel
