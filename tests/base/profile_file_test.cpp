#include "base/profile_file.h"

#include <gtest/gtest.h>

#include "temp_folder.h"

namespace ventrel {
namespace {

ProfileFile profileOf(std::string_view text) {
    return ProfileFile::fromText("test.ini", text);
}

TEST(Profile, ReadsNumbersAsTheClassicReaderDoes) {
    const auto profile =
        profileOf("[Options]\n Music = 0\nName=x\nA=-12abc\nB=99999999999\nC=\nD=\"7\"\nE=+3\n");
    EXPECT_EQ(profile.integer("options", "MUSIC", 1), 0);
    EXPECT_EQ(profile.integer("Options", "Name", 5), 0);
    EXPECT_EQ(profile.integer("Options", "A", 5), -12);
    EXPECT_EQ(profile.integer("Options", "B", 5), 1215752191);
    EXPECT_EQ(profile.integer("Options", "C", 5), 0);
    EXPECT_EQ(profile.integer("Options", "D", 5), 7);
    EXPECT_EQ(profile.integer("Options", "E", 5), 3);
    EXPECT_EQ(profile.integer("Options", "Missing", 5), 5);
    EXPECT_EQ(profile.integer("Game", "Music", 5), 5);
}

TEST(Profile, RewritingKeepsEverythingElseAsItStands) {
    const std::string before =
        "; mine\r\n\r\n[Other]\r\nMusic=9\r\n[options]\r\n;Music=3\r\nmusic = 1 \r\nOdd line\r\n"
        "\r\n[Last]\r\nx=y";
    auto profile = profileOf(before);
    profile.set("Options", "Music", "0");
    profile.set("Options", "Voice", "1");
    profile.set("Last", "z", "2");
    profile.set("Game", "Name", " Mary ");
    EXPECT_EQ(profile.toText(), "; mine\r\n\r\n[Other]\r\nMusic=9\r\n[options]\r\n;Music=3\r\nmusic = 0 "
                                "\r\nOdd line\r\nVoice=1\r\n\r\n"
                                "[Last]\r\nx=y\r\nz=2\r\n[Game]\r\nName=\" Mary \"\r\n");
    EXPECT_EQ(profile.text("Game", "name", ""), " Mary ");
}

TEST(Profile, FirstOfEqualKeysAndSectionsCounts) {
    auto profile = profileOf("[A]\nk=1\nk=2\n[A]\nk=3\n");
    EXPECT_EQ(profile.integer("A", "k", 0), 1);
    profile.set("A", "k", "7");
    EXPECT_EQ(profile.toText(), "[A]\nk=7\nk=2\n[A]\nk=3\n");
}

TEST(Profile, ValuesComeBackAsTheyWereSet) {
    for (const std::string value : {"plain", "", "\"quoted\"", "'", "a = b ; c", "[x]", "\t tab"}) {
        auto profile = profileOf("");
        profile.set("S", "k", value);
        EXPECT_EQ(ProfileFile::fromText("", profile.toText()).text("S", "k", "?"), value);
    }
    auto profile = profileOf("");
    profile.set("S", "k", "two\nlines");
    EXPECT_EQ(profile.text("S", "k", ""), "two lines");
}

TEST(Profile, IsMadeOnFirstSaveAndLeftAloneWhenNothingChanged) {
    const TempFolder folder;
    ProfileFile profile(folder / "new.ini");
    EXPECT_TRUE(profile.save());
    EXPECT_FALSE(std::filesystem::exists(folder / "new.ini"));
    profile.set("Options", "Music", "1");
    EXPECT_TRUE(profile.save());
    EXPECT_EQ(ProfileFile(folder / "new.ini").integer("Options", "Music", 0), 1);

    std::filesystem::create_symlink(folder / "new.ini", folder / "link.ini");
    ProfileFile linked(folder / "link.ini");
    linked.set("Options", "Music", "2");
    EXPECT_TRUE(linked.save());
    EXPECT_EQ(readText(folder / "new.ini"), "[Options]\nMusic=2\n");

    ProfileFile lost(folder / "no such folder/x.ini");
    lost.set("a", "b", "c");
    EXPECT_FALSE(lost.save());
}

TEST(Profile, NeverReplacesWhatItMayNotReadOrWrite) {
    const TempFolder folder;
    makePipe(folder / "pipe.ini");
    ProfileFile pipe(folder / "pipe.ini");
    pipe.set("Options", "Music", "1");
    EXPECT_FALSE(pipe.save());
    EXPECT_TRUE(std::filesystem::is_fifo(folder / "pipe.ini"));

    using std::filesystem::perms;
    for (const perms mode : {perms::owner_read, perms::owner_write}) {
        const auto file = folder / "mine.ini";
        writeText(file, "[Options]\nMine=1\n");
        std::filesystem::permissions(file, mode);
        ProfileFile profile(file);
        profile.set("Options", "Music", "1");
        const bool isRoot = ::geteuid() == 0; // who may read and write all the same
        EXPECT_EQ(profile.save(), isRoot);
        std::filesystem::permissions(file, perms::owner_all);
        EXPECT_TRUE(readText(file).starts_with("[Options]\nMine=1\n"));
        std::filesystem::remove(file);
    }
}

TEST(Profile, ByteOrderMarkAndLoneEqualSignsDoNoHarm) {
    auto profile = profileOf("\xEF\xBB\xBF[Options]\nMusic=0\n=5\n[\n]\n");
    EXPECT_EQ(profile.integer("Options", "Music", 1), 0);
    EXPECT_EQ(profile.integer("Options", "", 1), 5);
}

} // namespace
} // namespace ventrel
