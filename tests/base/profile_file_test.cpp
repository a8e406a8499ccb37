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
    auto profile = ProfileFile::read(folder / "new.ini").value();
    EXPECT_TRUE(profile.save());
    EXPECT_FALSE(std::filesystem::exists(folder / "new.ini"));
    profile.set("Options", "Music", "1");
    EXPECT_TRUE(profile.save());
    EXPECT_EQ(readText(folder / "new.ini"), "[Options]\nMusic=1\n");

    auto lost = ProfileFile::read(folder / "no such folder/x.ini").value();
    lost.set("a", "b", "c");
    EXPECT_FALSE(lost.save());
    EXPECT_FALSE(lost.save()) << "it is not kept yet";
}

TEST(Profile, WhatCannotBeReadWholeIsNoEmptyFile) {
    const TempFolder folder;
    makePipe(folder / "pipe.ini");
    EXPECT_FALSE(ProfileFile::read(folder / "pipe.ini"));
    EXPECT_FALSE(ProfileFile::read(folder.path()));
    writeText(folder / "large.ini", std::string(ProfileFile::mostBytes, ';'));
    EXPECT_TRUE(ProfileFile::read(folder / "large.ini"));
    writeText(folder / "large.ini", std::string(ProfileFile::mostBytes + 1, ';'));
    EXPECT_EQ(ProfileFile::read(folder / "large.ini").error().text,
              "The file " + (folder / "large.ini").string() +
                  " is too large: at most 1048576 bytes can be read.");
}

TEST(Profile, ByteOrderMarkAndLoneEqualSignsDoNoHarm) {
    auto profile = profileOf("\xEF\xBB\xBF[Options]\nMusic=0\n=5\n[\n]\n");
    EXPECT_EQ(profile.integer("Options", "Music", 1), 0);
    EXPECT_EQ(profile.integer("Options", "", 1), 5);
}

} // namespace
} // namespace ventrel
