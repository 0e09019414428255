#include "base/csv.h"

#include <gmock/gmock.h>

#include <random>

#include "base/error.h"

namespace tarvane {

namespace {
using Rows = std::vector<std::vector<std::string>>;

Rows ReadAll(std::string_view text, CsvOptions options = {}) {
    CsvReader reader(text, "x.csv", options);
    Rows rows;
    for (std::vector<std::string_view> cells; reader.Next(cells);) rows.emplace_back(cells.begin(), cells.end());
    return rows;
}

std::string Error(std::string_view text) {
    try {
        ReadAll(text);
    } catch (const UserError& error) {
        return error.what();
    }
    return "none";
}
}  // namespace

TEST(Csv, ReadsWhatProgramsWrite) {
    EXPECT_EQ(ReadAll("\xEF\xBB\xBF"
                      "a,b\r\n\"x,1\",\"say \"\"hi\"\"\"\r\n"),
              (Rows{{"a", "b"}, {"x,1", "say \"hi\""}}));
    EXPECT_EQ(ReadAll("a,\n,b\n\n\"\",\n"), (Rows{{"a", ""}, {"", "b"}, {"", ""}}));
    EXPECT_EQ(ReadAll("\"two\nlines\",z"), (Rows{{"two\nlines", "z"}}));
    EXPECT_EQ(ReadAll("5'11\" tall,b\"c"), (Rows{{"5'11\" tall", "b\"c"}}));
    EXPECT_EQ(ReadAll("\r\n\r\n"), Rows{});
    EXPECT_EQ(ReadAll("# from a book\na\n#b,c", {.hashComments = true}), (Rows{{"a"}}));
    EXPECT_EQ(ReadAll("a;b,c", {.separator = ';'}), (Rows{{"a", "b,c"}}));
}

TEST(Csv, KeepsManyUnescapedCellsOfOneRow) {
    std::string line;
    for (int i = 0; i < 200; ++i) line += "\"\"\"q\"\"\",";
    EXPECT_THAT(ReadAll(line + "end").at(0), testing::Contains("\"q\"").Times(200));
}

TEST(Csv, NamesFileAndLine) {
    EXPECT_EQ(Error("a\n\"b\nc"), "x.csv, line 2: a quoted text that begins in this row is never closed.");
    EXPECT_THAT(Error("a\n\n\"x\ny\",1\n\"b\"c"), testing::StartsWith("x.csv, line 5: text follows"));
    CsvReader reader("h\n\"1\n2\"\nlast", "y.csv");
    std::vector<std::string_view> cells;
    while (reader.Next(cells)) {
    }
    EXPECT_EQ(reader.Line(), 4);
}

TEST(Csv, AnyBytesEndInRowsOrOneError) {
    std::mt19937 random(7);
    const std::string_view alphabet =
        "a,\"\r\n#\0\xC3"
        "9";
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (unsigned i = 0; i < random() % 24; ++i) text += alphabet[random() % alphabet.size()];
        try {
            for (const auto& row : ReadAll(text)) EXPECT_FALSE(row.empty());
        } catch (const UserError&) {
        }
    }
}

}  // namespace tarvane
