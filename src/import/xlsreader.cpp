#include "import/xlsreader.h"

#include <fmt/core.h>

#include <algorithm>

#include "base/error.h"
#include "base/file.h"
#include "import/biff8.h"
#include "import/compoundfile.h"

namespace tarvane {

namespace {

constexpr std::uint16_t kBiff8 = 0x0600;
constexpr std::size_t kMostStrings = 4'000'000;
constexpr std::uintmax_t kMostBytes = std::uintmax_t{64} << 20;

// Puts the cells of one record into the sheet. A formula whose result is a text has it in the STRING record that
// follows.
class CellReader {
  public:
    CellReader(XlsSheet& sheet, const std::vector<std::string>& strings) : sheet_(sheet), strings_(strings) {}

    void Take(const biff::Records& records) {
        const ByteView body = records.Body();
        switch (records.Type()) {
            case biff::kLabelSst: return Put(body, SharedText(body.U32(6)));
            case biff::kLabel:
            case biff::kRString: return Put(body, TextBehind(records, 6));
            case biff::kNumber: return Put(body, body.F64(6));
            case biff::kRk: return Put(body, biff::UnpackRk(body.U32(6)));
            case biff::kMulRk: return TakeMulRk(body);
            case biff::kBoolErr: return Put(body, body.U8(7) != 0 ? XlsCell{} : XlsCell{body.U8(6) != 0});
            case biff::kFormula: return TakeFormula(body);
            case biff::kString: return TakeFormulaText(records);
            default: return;
        }
    }

  private:
    static int Row(ByteView body) { return body.U16(0) + 1; }
    static int Column(ByteView body) { return body.U16(2) + 1; }

    void Put(ByteView body, XlsCell cell) { sheet_.Put(Row(body), Column(body), std::move(cell)); }

    XlsCell SharedText(std::uint32_t index) const {
        if (index >= strings_.size()) throw OutOfBytes();
        return strings_[index];
    }

    static std::string TextBehind(const biff::Records& records, std::size_t head) {
        biff::TextReader reader(records.BodyAndContinuations());
        reader.Skip(head);
        return reader.Text(2);
    }

    void TakeMulRk(ByteView body) {
        constexpr std::size_t kHead = 4, kTail = 2, kCell = 6;
        if (body.Size() < kHead + kTail) throw OutOfBytes();
        const std::size_t count = (body.Size() - kHead - kTail) / kCell;
        for (std::size_t i = 0; i < count; ++i)
            sheet_.Put(Row(body), Column(body) + static_cast<int>(i), biff::UnpackRk(body.U32(kHead + i * kCell + 2)));
    }

    void TakeFormula(ByteView body) {
        enum Result : std::uint8_t { kTextFollows, kYesOrNo, kError, kBlank };
        textDue_ = false;
        if (body.U16(12) != 0xFFFF) return Put(body, body.F64(6));
        if (body.U8(6) == kYesOrNo) Put(body, XlsCell{body.U8(8) != 0});
        textDue_ = body.U8(6) == kTextFollows;
        row_ = Row(body);
        column_ = Column(body);
    }

    void TakeFormulaText(const biff::Records& records) {
        if (textDue_) sheet_.Put(row_, column_, TextBehind(records, 0));
        textDue_ = false;
    }

    XlsSheet& sheet_;
    const std::vector<std::string>& strings_;
    bool textDue_ = false;
    int row_ = 0, column_ = 0;
};

}  // namespace

void XlsSheet::Put(int row, int column, XlsCell cell) {
    cells_.emplace_back(static_cast<Place>(row) * 65536U + static_cast<Place>(column), std::move(cell));
}

void XlsSheet::Sort() {
    const auto before = [](const auto& a, const auto& b) { return a.first < b.first; };
    if (!std::is_sorted(cells_.begin(), cells_.end(), before)) std::stable_sort(cells_.begin(), cells_.end(), before);
}

const XlsCell& XlsSheet::At(int row, int column) const {
    static const XlsCell kNothing;
    const Place place = static_cast<Place>(row) * 65536U + static_cast<Place>(column);
    const auto after = std::upper_bound(cells_.begin(), cells_.end(), place,
                                        [](Place wanted, const auto& cell) { return wanted < cell.first; });
    return after == cells_.begin() || std::prev(after)->first != place ? kNothing : std::prev(after)->second;
}

int XlsSheet::LastRow() const {
    return cells_.empty() ? 0 : static_cast<int>(cells_.back().first / 65536U);
}

XlsWorkbook::XlsWorkbook(const std::filesystem::path& path) : name_(path.filename().string()) {
    std::error_code missing;
    if (const auto size = std::filesystem::file_size(path, missing); !missing && size > kMostBytes)
        throw UserError(fmt::format("The workbook {} is larger than {} MB. Split it up.", name_, kMostBytes >> 20));
    Load(ReadFile(path));
}

XlsWorkbook::XlsWorkbook(std::string_view bytes, std::string name) : name_(std::move(name)) {
    Load(bytes);
}

void XlsWorkbook::Damaged() const {
    throw UserError(
        fmt::format("The workbook {} is damaged: it ends early or points outside itself. Get it again.", name_));
}

void XlsWorkbook::Load(std::string_view bytes) {
    if (!CompoundFile::LooksLikeOne(bytes))
        throw UserError(fmt::format("{} is not an Excel 97-2003 workbook. Save it as .xls.", name_));
    try {
        const CompoundFile file(bytes);
        std::optional<std::string> stream = file.ReadStream("Workbook");
        if (!stream && file.ReadStream("EncryptedPackage"))
            throw UserError(fmt::format("The workbook {} is protected by a password. Save it without one.", name_));
        if (!stream) throw UserError(fmt::format("{} holds no Excel 97-2003 workbook. Save it in that format.", name_));
        stream_ = std::move(*stream);
        ReadGlobals();
    } catch (const OutOfBytes&) {
        Damaged();
    }
}

// The first part of the stream: which sheets there are, and the texts they share.
void XlsWorkbook::ReadGlobals() {
    biff::Records records(stream_, 0);
    if (!records.Next() || records.Type() != biff::kBof) throw OutOfBytes();
    if (records.Body().U16(0) != kBiff8)
        throw UserError(
            fmt::format("The workbook {} is of a format before Excel 97. Save it as Excel 97-2003.", name_));
    while (records.Next() && records.Type() != biff::kEof) {
        const ByteView body = records.Body();
        if (records.Type() == biff::kFilePass)
            throw UserError(fmt::format("The workbook {} is protected by a password. Save it without one.", name_));
        if (records.Type() == biff::kBoundSheet && body.U8(5) == 0) {
            biff::TextReader reader({body.From(6)});
            sheets_.push_back({reader.Text(1), body.U32(0)});
        }
        if (records.Type() != biff::kSst) continue;
        biff::TextReader reader(records.BodyAndContinuations());
        reader.Skip(4);
        const std::uint32_t count = reader.Number(4);
        for (std::uint32_t i = 0; i < count && i < kMostStrings && !reader.AtEnd(); ++i)
            strings_.push_back(reader.Text(2));
    }
}

std::vector<std::string> XlsWorkbook::SheetNames() const {
    std::vector<std::string> names;
    for (const SheetPlace& sheet : sheets_) names.push_back(sheet.name);
    return names;
}

bool XlsWorkbook::HasSheet(std::string_view name) const {
    return std::any_of(sheets_.begin(), sheets_.end(), [&](const SheetPlace& sheet) { return sheet.name == name; });
}

XlsSheet XlsWorkbook::ReadSheet(std::string_view name) const {
    const auto place =
        std::find_if(sheets_.begin(), sheets_.end(), [&](const SheetPlace& s) { return s.name == name; });
    if (place == sheets_.end()) throw UserError(fmt::format("The workbook {} has no sheet {}.", name_, name));
    XlsSheet sheet;
    try {
        biff::Records records(stream_, place->at);
        if (!records.Next() || records.Type() != biff::kBof) throw OutOfBytes();
        CellReader cells(sheet, strings_);
        // A chart on the sheet is a sheet within the sheet, between a beginning and an end of its own.
        bool ended = false;
        for (int depth = 1; !ended && records.Next();) {
            if (records.Type() == biff::kBof)
                ++depth;
            else if (records.Type() == biff::kEof)
                ended = --depth == 0;
            else if (depth == 1)
                cells.Take(records);
        }
        if (!ended) throw OutOfBytes();
    } catch (const OutOfBytes&) {
        Damaged();
    }
    sheet.Sort();
    return sheet;
}

}  // namespace tarvane
