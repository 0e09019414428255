#include "import/mdbreader.h"

#include <gmock/gmock.h>

#include <chrono>

#include "base/random.h"
#include "import/helperprocess.h"
#include "import/lahmansource.h"
#include "support.h"

namespace tarvane::test {
namespace {

using std::chrono::milliseconds;
using ::testing::AnyOf;
using ::testing::HasSubstr;

const TableRequest kTeams{{"Teams"}, {"yearID", "name"}, 0, false};

std::string Bytes(Random& random, std::size_t size) {
    std::string bytes;
    while (bytes.size() < size) bytes += static_cast<char>(random.Below(256));
    return bytes;
}

const std::string kJetHead = std::string("\0\1\0\0", 4) + "Standard Jet DB" + std::string("\0\1\0\0\0", 5);

TEST(MdbReader, OtherFilesAreRefusedByName) {
    TempFolder folder;
    const std::map<std::string, std::pair<std::string, std::string>> files{
        {"empty.mdb", {"", "empty"}},
        {"text.mdb", {"playerID,yearID\n", "not an Access file"}},
        {"short.mdb", {kJetHead.substr(0, 12), "not an Access file"}},
        {"season.mdb", {"SQLite format 3" + std::string(85, '\0'), "of this game"}},
        {"lahman.zip", {"PK\3\4 and more of an archive", "Unpack"}},
    };
    for (const auto& entry : files) {
        const std::string& name = entry.first;
        const auto& [bytes, told] = entry.second;
        WriteFile(folder / name, bytes);
        const std::string message = MessageOf([&] { LahmanSource(folder / name, Helper()).ReadTeams(); });
        EXPECT_THAT(message, HasSubstr(name));
        EXPECT_THAT(message, HasSubstr(told));
    }
    EXPECT_THAT(MessageOf([&] { LahmanSource(folder / "none.mdb", Helper()).ReadTeams(); }), HasSubstr("none.mdb"));
}

// The head of an Access file and then rubbish: as much as can be had without a real one.
TEST(MdbReader, RubbishBehindARealHead) {
    Random random(20);
    TempFolder folder;
    for (int i = 0; i < 24; ++i) {
        const std::size_t size = std::size_t{1} << (random.Below(12) + 6);
        std::string bytes = kJetHead;
        if (i % 2 == 1) bytes.replace(4, 15, "Standard ACE DB");
        bytes += i % 3 == 0 ? std::string(size, '\0') : Bytes(random, size);
        if (bytes.size() > 0x15) bytes[0x14] = static_cast<char>(i % 6);  // the version of the format
        WriteFile(folder / "rubbish.mdb", bytes);
        const std::string message =
            MessageOf([&] { LahmanSource(folder / "rubbish.mdb", Helper(milliseconds{5000})).ReadTeams(); });
        EXPECT_THAT(message, HasSubstr("rubbish.mdb can't be read: "));
    }
}

// A helper that misbehaves, played by a script.
std::string MessageWithHelper(const std::string& script, milliseconds limit = milliseconds{10'000}) {
    TempFolder folder;
    WriteFile(folder / "lahman.mdb", kJetHead);
    WriteFile(folder / "helper", "#!/bin/sh\n" + script);
    fs::permissions(folder / "helper", fs::perms::owner_all);
    std::string rows;
    const std::string message = MessageOf([&] {
        MdbTables tables(folder / "lahman.mdb", {folder / "helper", limit});
        tables.Read(
            {kTeams}, {}, [&](std::size_t, const RawRow& row) { rows += row.cells[1]; }, nullptr);
    });
    return message.empty() ? "rows:" + rows : message;
}

TEST(MdbReader, HelperIsNotTrusted) {
    const std::string begin = "printf 'TVROWS1\\nT\\0\\0\\0\\0\\2\\0\\0\\0'; ";
    const std::string row = "printf 'R\\4\\0\\0\\0001930\\3\\0\\0\\0Abc'; ";
    const std::string end = "printf 'E\\2\\0\\0\\0\\2\\0\\0\\0Z'; ";
    EXPECT_EQ(MessageWithHelper(begin + row + row + end), "rows:AbcAbc");
    EXPECT_EQ(MessageWithHelper(begin + row +
                                "sleep 0.3; printf 'R\\4\\0\\0'; sleep 0.1; printf '\\0001930\\3\\0\\0\\0Abc'; " + end),
              "rows:AbcAbc")
        << "a row in pieces";
    EXPECT_THAT(MessageWithHelper(begin + row + "printf 'E\\1\\0\\0\\0\\1\\0\\0\\0Z'"),
                HasSubstr("2 rows, but 1 were found"));
    EXPECT_THAT(MessageWithHelper(begin + row + end), HasSubstr("lost its way")) << "a row was lost on the road";
    EXPECT_THAT(MessageWithHelper(begin + row + "printf Z"), HasSubstr("lost its way")) << "the table has no end";
    EXPECT_THAT(MessageWithHelper(begin + row + begin.substr(0, 8) + begin.substr(17)), HasSubstr("lost its way"));
    EXPECT_THAT(MessageWithHelper(begin + row + row), HasSubstr("ends early"));
    EXPECT_THAT(MessageWithHelper(begin + row + row + end + "kill -9 $$"), HasSubstr("signal 9"));
    EXPECT_THAT(MessageWithHelper(begin + row + row + end + "exit 3"), HasSubstr("code 3"));
    EXPECT_THAT(MessageWithHelper(begin + "printf 'R\\377\\377\\377\\377'; cat /dev/zero"),
                HasSubstr("longer than any"));
    EXPECT_THAT(MessageWithHelper("printf 'TVROWS1\\nT\\7\\0\\0\\0\\2\\0\\0\\0'"), HasSubstr("lost its way"));
    EXPECT_THAT(MessageWithHelper("printf 'TVROWS1\\nM\\0\\0\\0\\0Z'"), HasSubstr("lost its way"))
        << "the table was required";
    EXPECT_THAT(MessageWithHelper("cat /dev/zero"), HasSubstr("another version"));
    EXPECT_THAT(MessageWithHelper(""), HasSubstr("ends early"));
    EXPECT_THAT(MessageWithHelper("printf 'TVROWS1\\nX\\4\\0\\0\\0Why.'"), HasSubstr("lahman.mdb can't be read: Why."));
}

TEST(MdbReader, HelperThatHangsIsStopped) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_THAT(MessageWithHelper("printf 'TVROWS1\\n'; exec sleep 30", milliseconds{300}),
                HasSubstr("longer than 0.3 seconds"));
    EXPECT_THAT(MessageWithHelper("exec >&-; exec sleep 30", milliseconds{300}), HasSubstr("longer than 0.3 seconds"))
        << "its output is closed, but it goes on";
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds{10});
    EXPECT_THAT(MessageOf([] { RunHelper("/nowhere/tarvane-import", {}, milliseconds{100}, {}, {}); }),
                HasSubstr("can't be started"));
}

TEST(MdbReader, RealFileEqualsTheCsvEdition) {
    const auto data = RealData();
    if (!data) GTEST_SKIP() << "TARVANE_REAL_DATA names no folder";
    LahmanSource access(*data / "lahman/lahman_tiny.mdb", Helper()), csv(*data / "lahman/csv");
    const YearSet years{1927, 1975};
    std::vector<TeamLine> teams = csv.ReadTeams();
    std::erase_if(teams, [&](const TeamLine& team) { return !years.contains(team.yearID); });
    EXPECT_EQ(access.ReadTeams(), teams);
    const LahmanTables a = access.ReadYears(years), b = csv.ReadYears(years);
    EXPECT_GT(a.Batting.size(), 1000U);
    EXPECT_EQ(a.Batting, b.Batting);
    EXPECT_EQ(a.Pitching, b.Pitching);
    EXPECT_EQ(a.Fielding, b.Fielding);
    EXPECT_EQ(a.FieldingOF, b.FieldingOF);
    EXPECT_EQ(a.FieldingOFSplit, b.FieldingOFSplit);
    EXPECT_EQ(a.Master, b.Master);
}

// Cut short or with bytes flipped, a file gives its rows or one message that names it, in time, and this program lives.
TEST(MdbReader, RealFileDamaged) {
    const auto data = RealData();
    if (!data) GTEST_SKIP() << "TARVANE_REAL_DATA names no folder";
    const std::string whole = ReadFile(*data / "lahman/lahman_tiny.mdb");
    Random random(7);
    TempFolder folder;
    const auto read = [&](const std::string& bytes) {
        WriteFile(folder / "damaged.mdb", bytes);
        return MessageOf([&] {
            LahmanSource source(folder / "damaged.mdb", Helper(milliseconds{4000}));
            source.ReadTeams();
            source.ReadYears({1927, 1975});
        });
    };
    ASSERT_EQ(read(whole), "");
    for (int i = 1; i <= 12; ++i)
        EXPECT_THAT(read(whole.substr(0, whole.size() * static_cast<std::size_t>(i) / 13)), HasSubstr("damaged.mdb"))
            << i;
    for (int i = 0; i < 25; ++i) {
        std::string bytes = whole;
        const bool heads = i % 2 == 0;  // the heads of pages are what leads a reader astray
        for (int flip = 0; flip < 60; ++flip) {
            const std::size_t page = random.Below(static_cast<std::uint32_t>(whole.size() / 4096)) * 4096UL;
            bytes[page + random.Below(heads ? 64 : 4096)] ^= static_cast<char>(1 + random.Below(255));
        }
        EXPECT_THAT(read(bytes), AnyOf("", HasSubstr("damaged.mdb"))) << i;
    }
    std::string locked = whole;
    for (std::size_t i = 0x3E; i < 0x42; ++i) locked[i] ^= 0x5A;  // as if every page were enciphered
    EXPECT_THAT(read(locked), HasSubstr("password"));
    EXPECT_EQ(EntryCount(folder.Path()), 1U) << "nothing but the file itself";
}

}  // namespace
}  // namespace tarvane::test
