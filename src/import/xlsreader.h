#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace tarvane {

// What a cell shows: nothing, a number, yes or no, a text (UTF-8). A formula's cell holds its stored result, a cell in
// error nothing. Dates are numbers of days.
using XlsCell = std::variant<std::monostate, double, bool, std::string>;

// One worksheet. Rows and columns count from 1.
class XlsSheet {
  public:
    const XlsCell& At(int row, int column) const;  // empty where the sheet has nothing
    int LastRow() const;                           // 0 if the sheet is empty

    void Put(int row, int column, XlsCell cell);
    void Sort();  // ends a row of Puts; the last one of a place holds

  private:
    using Place = std::uint32_t;  // row * 65536 + column
    std::vector<std::pair<Place, XlsCell>> cells_;
};

// A workbook of Excel 97 to 2003 (BIFF8 in a compound file). Sheets are read when asked for.
class XlsWorkbook {
  public:
    // Throws UserError that names the file and what to do if it is none, is protected by a password, is of an older or
    // newer format, or is damaged.
    explicit XlsWorkbook(const std::filesystem::path& path);
    // The same from bytes; name is for error texts.
    XlsWorkbook(std::string_view bytes, std::string name);

    std::vector<std::string> SheetNames() const;  // worksheets, in the order of their tabs
    bool HasSheet(std::string_view name) const;
    // Throws UserError if there is no such worksheet or it is damaged.
    XlsSheet ReadSheet(std::string_view name) const;

  private:
    struct SheetPlace {
        std::string name;
        std::uint32_t at = 0;
    };

    void Load(std::string_view bytes);
    void ReadGlobals();
    [[noreturn]] void Damaged() const;

    std::string name_;
    std::string stream_;
    std::vector<SheetPlace> sheets_;
    std::vector<std::string> strings_;
};

}  // namespace tarvane
