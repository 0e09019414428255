#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

namespace tarvane::test {

inline std::filesystem::path SeedsFolder() {
    return std::filesystem::path(TARVANE_SOURCE_DIR) / "assets" / "seeds";
}

inline std::string ReadAll(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// A row by column name. Asking for a column that isn't there fails the test.
class Row {
  public:
    Row(const std::vector<std::string>& header, const std::vector<std::string>& fields) {
        for (std::size_t i = 0; i < header.size() && i < fields.size(); ++i) field_[header[i]] = fields[i];
    }
    const std::string& operator[](const std::string& column) const {
        static const std::string missing;
        const auto found = field_.find(column);
        if (found != field_.end()) return found->second;
        ADD_FAILURE() << "no column " << column;
        return missing;
    }
    int Int(const std::string& column) const { return std::atoi((*this)[column].c_str()); }
    double Double(const std::string& column) const { return std::atof((*this)[column].c_str()); }

  private:
    std::map<std::string, std::string> field_;
};

inline std::vector<std::string> SplitLine(const std::string& line) {
    std::vector<std::string> fields(1);
    bool quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (quoted && c == '"' && i + 1 < line.size() && line[i + 1] == '"') {
            fields.back() += '"';
            ++i;
        } else if (c == '"') {
            quoted = !quoted;
        } else if (c == ',' && !quoted) {
            fields.emplace_back();
        } else {
            fields.back() += c;
        }
    }
    EXPECT_FALSE(quoted) << "an open quote: " << line;
    return fields;
}

struct Csv {
    std::vector<std::string> comments, header;
    std::vector<Row> rows;
};

// Comments, then a header, then rows that all have as many fields as the header.
inline Csv ReadCsv(const std::filesystem::path& path) {
    Csv csv;
    std::ifstream file(path);
    EXPECT_TRUE(file) << path;
    for (std::string line; std::getline(file, line);) {
        if (csv.header.empty() && line.rfind('#', 0) == 0) {
            csv.comments.push_back(line);
            continue;
        }
        const std::vector<std::string> fields = SplitLine(line);
        if (csv.header.empty()) {
            csv.header = fields;
            continue;
        }
        EXPECT_EQ(fields.size(), csv.header.size()) << path << ": " << line;
        csv.rows.emplace_back(csv.header, fields);
    }
    return csv;
}

}  // namespace tarvane::test
