#include "import/xlsreader.h"

#include <gmock/gmock.h>

#include "base/random.h"
#include "import/retrosplits.h"
#include "support.h"
#include "xlswriter.h"

namespace tarvane::test {
namespace {

using ::testing::AnyOf;
using ::testing::HasSubstr;

XlsSheet ReadOne(const std::string& records, std::string_view globals = {}) {
    return XlsWorkbook(CompoundWith(WorkbookStream({{"One", records}}, globals)), "book.xls").ReadSheet("One");
}

std::string Text(const XlsSheet& sheet, int row, int column) {
    return std::get<std::string>(sheet.At(row, column));
}
double Number(const XlsSheet& sheet, int row, int column) {
    return std::get<double>(sheet.At(row, column));
}
bool Empty(const XlsSheet& sheet, int row, int column) {
    return std::holds_alternative<std::monostate>(sheet.At(row, column));
}

TEST(XlsReader, EveryKindOfCell) {
    const std::string shared =
        Record(0x00FC, Low(3, 4) + Low(3, 4) + Narrow("first", 2) + Wide(u"Jos\u00E9 \U0001F3C6", 2) +
                           // with two runs of formats and three bytes of phonetics
                           Low(4, 2) + Low(12, 1) + Low(2, 2) + Low(3, 4) + "rich" + std::string(11, 'x'));
    const auto formula = [](int row, const std::string& result) {
        return Record(0x0006, CellHead(row, 7) + result + std::string(8, '\0'));
    };
    const std::string chart = Record(0x0809, Low(0x0600, 2) + Low(0x20, 2) + std::string(12, '\0')) +
                              Record(0x0203, CellHead(1, 1) + Low(77.0)) + Record(0x000A, "");
    const XlsSheet sheet = ReadOne(
        Record(0x00FD, CellHead(1, 1) + Low(0, 4)) + Record(0x00FD, CellHead(1, 2) + Low(1, 4)) +
            Record(0x00FD, CellHead(1, 3) + Low(2, 4)) + chart + Record(0x0204, CellHead(2, 1) + Narrow("label", 2)) +
            Record(0x0203, CellHead(2, 2) + Low(-2.5)) + Record(0x027E, CellHead(2, 3) + Low((1234U << 2) | 3, 4)) +
            Record(0x00BD, CellHead(3, 1).substr(0, 4) + Low(15, 2) + Low((7U << 2) | 2, 4) + Low(15, 2) +
                               Low(static_cast<std::uint32_t>(-9 * 4) | 2, 4) + Low(1, 2)) +
            Record(0x0205, CellHead(4, 1) + Low(1, 1) + Low(0, 1)) +
            Record(0x0205, CellHead(4, 2) + Low(7, 1) + Low(1, 1)) + formula(5, Low(0.5)) +
            formula(6, std::string("\0\0\0\0\0\0\xFF\xFF", 8)) + Record(0x0207, Wide(u"\u00BD yes", 2)) +
            formula(7, std::string("\1\0\1\0\0\0\xFF\xFF", 8)) + formula(8, std::string("\2\0\7\0\0\0\xFF\xFF", 8)) +
            Record(0x0203, CellHead(9, 1) + Low(1.0)),
        shared);
    EXPECT_EQ(Text(sheet, 1, 1), "first");
    EXPECT_EQ(Text(sheet, 1, 2), "Jos\xC3\xA9 \xF0\x9F\x8F\x86");
    EXPECT_EQ(Text(sheet, 1, 3), "rich");
    EXPECT_EQ(Text(sheet, 2, 1), "label");
    EXPECT_EQ(Number(sheet, 2, 2), -2.5);
    EXPECT_EQ(Number(sheet, 2, 3), 12.34);
    EXPECT_EQ(Number(sheet, 3, 1), 7);
    EXPECT_EQ(Number(sheet, 3, 2), -9);
    EXPECT_EQ(std::get<bool>(sheet.At(4, 1)), true);
    EXPECT_TRUE(Empty(sheet, 4, 2)) << "an error";
    EXPECT_EQ(Number(sheet, 5, 7), 0.5);
    EXPECT_EQ(Text(sheet, 6, 7), "\xC2\xBD yes");
    EXPECT_EQ(std::get<bool>(sheet.At(7, 7)), true);
    EXPECT_TRUE(Empty(sheet, 8, 7));
    EXPECT_TRUE(Empty(sheet, 4, 7));
    EXPECT_EQ(sheet.LastRow(), 9) << "the sheet goes on behind its chart";
}

// The table of shared texts is cut into records anywhere, also inside a text, whose rest then says anew how wide it is.
TEST(XlsReader, SharedTextsAcrossRecords) {
    const std::string globals =
        Record(0x00FC, Low(3, 4) + Low(3, 4) + Narrow("one", 2) + Low(8, 2) + Low(0, 1) + "conti") +
        Record(0x003C, Low(1, 1) + Low(u'\u00F1', 2) + Low(u'u', 2)) +
        Record(0x003C, Low(0, 1) + "e" + Narrow("three", 2));
    std::string cells;
    for (int i = 0; i < 3; ++i) cells += Record(0x00FD, CellHead(1, i + 1) + Low(static_cast<std::uint64_t>(i), 4));
    const XlsSheet sheet = ReadOne(cells, globals);
    EXPECT_EQ(Text(sheet, 1, 1), "one");
    EXPECT_EQ(Text(sheet, 1, 2), "conti\xC3\xB1ue");
    EXPECT_EQ(Text(sheet, 1, 3), "three");
}

TEST(XlsReader, WhatCannotBeReadIsSaid) {
    const std::string stream = WorkbookStream({{"One", Record(0x0203, CellHead(1, 1) + Low(1.0))}});
    const auto message = [](const std::string& bytes) {
        return MessageOf([&] { XlsWorkbook(bytes, "book.xls").ReadSheet("One"); });
    };
    EXPECT_EQ(message(CompoundWith(stream)), "");
    EXPECT_THAT(message("PK\3\4"), HasSubstr("book.xls is not an Excel 97-2003 workbook"));
    EXPECT_THAT(message(""), HasSubstr("not an Excel"));
    EXPECT_THAT(message(CompoundWith(stream, "WordDocument")), HasSubstr("holds no Excel"));
    EXPECT_THAT(message(CompoundWith(WorkbookStream({}, Record(0x002F, "key")))), HasSubstr("password"));
    EXPECT_THAT(message(CompoundWith(Replaced(stream, Low(0x0600, 2), Low(0x0500, 2)))), HasSubstr("before Excel 97"));
    EXPECT_THAT(message(CompoundWith(WorkbookStream({{"Two", ""}}))), HasSubstr("no sheet One"));
    EXPECT_THAT(message(CompoundWith(WorkbookStream({{"One", Record(0x00FD, CellHead(1, 1) + Low(5, 4))}}))),
                HasSubstr("damaged"));
    EXPECT_THAT(message(CompoundWith(stream).substr(0, 700)), HasSubstr("book.xls is damaged"));
    EXPECT_THAT(MessageOf([] { XlsWorkbook("/nowhere/at/all.xls"); }), HasSubstr("/nowhere/at/all.xls"));
    TempFolder folder;
    WriteFile(folder / "huge.xls", "");
    fs::resize_file(folder / "huge.xls", std::uintmax_t{1} << 40);  // without a byte on the disk
    EXPECT_THAT(MessageOf([&] { XlsWorkbook(folder / "huge.xls"); }), HasSubstr("huge.xls is larger than 64 MB"));
}

// A chain of sectors that bites its tail, and thousands of random wounds: a message or a sheet, never a fall.
TEST(XlsReader, HostileBytes) {
    std::string cells;
    for (int row = 1; row <= 300; ++row)
        cells += Record(0x0204, CellHead(row, 1) + Narrow("a label of some length", 2));
    for (const std::string& whole : {CompoundWith(WorkbookStream({{"One", cells}})),
                                     CompoundWith(WorkbookStream({{"One", cells.substr(0, 960)}}))}) {
        Random random(97);
        for (int i = 0; i < 3000; ++i) {
            std::string bytes = whole;
            if (i % 3 == 0) bytes.resize(random.Below(static_cast<std::uint32_t>(whole.size())));
            const std::uint32_t wounds = bytes.empty() ? 0 : random.Below(8);
            for (std::uint32_t w = 0; w < wounds; ++w) {
                const bool head = random.Below(2) == 0;
                bytes[random.Below(
                    static_cast<std::uint32_t>(head ? std::min<std::size_t>(bytes.size(), 600) : bytes.size()))] =
                    static_cast<char>(random.Below(4) == 0 ? 255 : random.Below(256));
            }
            EXPECT_THAT(MessageOf([&] { XlsWorkbook(bytes, "book.xls").ReadSheet("One"); }),
                        AnyOf("", HasSubstr("book.xls")));
        }
    }
}

// A sheet of splits: name in column 2, clubs in 8, the figures from 25 and from 38 on.
std::string SplitRow(int row, std::string_view name, std::string_view teams, int first) {
    std::string records =
        Record(0x0204, CellHead(row, 2) + Narrow(name, 2)) + Record(0x0204, CellHead(row, 8) + Narrow(teams, 2));
    for (int column = 25; column <= 49; ++column)
        if (column != 27) records += Record(0x0203, CellHead(row, column) + Low(static_cast<double>(first + column)));
    return records;
}

TEST(RetroSplits, TheRightManOfAName) {
    TempFolder folder;
    const std::string rows = SplitRow(2, "Head Ing", "BOS", 0) + SplitRow(3, "Bob Twin", "BOS/NYA", 100) +
                             SplitRow(4, "Bob Twin", "CHN", 200) + SplitRow(5, "Bob Twin", "NYA", 300) +
                             SplitRow(1001, "Too Far", "BOS", 0);
    WriteFile(folder / "splits.xls", CompoundWith(WorkbookStream({{"1974", ""}, {"1975", rows}})));
    EXPECT_EQ(ReadRetroSplits(folder / "splits.xls", "1976"), nullptr);
    const auto splits = ReadRetroSplits(folder / "splits.xls", "1975");
    ASSERT_NE(splits, nullptr);
    EXPECT_FALSE(splits->Find("Bob Twin", "DET"));
    EXPECT_FALSE(splits->Find("Head Ing", "BOS")) << "a heading";
    EXPECT_FALSE(splits->Find("Too Far", "BOS"));
    EXPECT_EQ(splits->Find("Bob Twin", "CHN")->vsLeft.AB, 225);
    const auto line = splits->Find("Bob Twin", "NYA");  // the first row that holds the code
    EXPECT_EQ(line->vsLeft.AB, 125);
    EXPECT_EQ(line->vsLeft.Doubles, 0) << "an empty cell";
    EXPECT_EQ(line->vsLeft.HBP, 133);
    EXPECT_EQ(line->vsLeft.SH, 135) << "intentional walks stand between";
    EXPECT_EQ(line->vsRight.AB, 138);
    EXPECT_EQ(line->vsRight.SF, 149);
}

TEST(RetroSplits, RealWorkbook) {
    const auto data = RealData();
    if (!data) GTEST_SKIP() << "TARVANE_REAL_DATA names no folder";
    const XlsWorkbook book(*data / "retrosheet" / kRetroWorkbook);
    EXPECT_EQ(book.SheetNames().size(), 9U);
    EXPECT_EQ(book.ReadSheet("1975").LastRow(), 669) << "two headings and 667 players";
    // The season line of that year's rookie of the year.
    const auto splits = ReadRetroSplits(*data / "retrosheet" / kRetroWorkbook, "1975");
    const auto line = splits->Find("Fred Lynn", "BOS");
    ASSERT_TRUE(line);
    EXPECT_EQ(line->vsLeft.AB + line->vsRight.AB, 528);
    EXPECT_EQ(line->vsLeft.H + line->vsRight.H, 175);
    EXPECT_EQ(line->vsLeft.HR + line->vsRight.HR, 21);
}

}  // namespace
}  // namespace tarvane::test
