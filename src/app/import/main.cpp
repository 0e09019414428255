// tarvane-import FILE SECONDS YEARS TABLE...: writes the wanted rows of an Access file to standard output as frames
// (import/rowstream.h). It is started by the game, not by people. The library that reads Access files may hang, crash
// or eat memory on a damaged one, so this program limits itself, and its caller limits it.

// The library's header includes this one inside extern "C", which C++ compilers refuse unless it was read before.
#include <glib.h>

#include <mdbtools.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "import/rawtables.h"
#include "import/rowstream.h"

namespace {

namespace rowstream = tarvane::rowstream;

// Why the file can't be read on; told to the caller as it stands.
struct Fault {
    std::string text;
};

struct WantedTable {
    std::vector<std::string> names, columns;
    int yearColumn = -1;
    bool required = false;
};

void Limit(__rlimit_resource resource, rlim_t amount) {
    const rlimit limit{amount, amount};
    setrlimit(resource, &limit);
}

void LimitMyself(rlim_t seconds) {
    Limit(RLIMIT_CPU, seconds);
    Limit(RLIMIT_CORE, 0);
#if !defined(__SANITIZE_ADDRESS__)  // the address sanitizer reserves terabytes that it never touches
    Limit(RLIMIT_AS, rlim_t{512} << 20);
#endif
}

std::vector<std::string> Split(const std::string& text, char between) {
    std::vector<std::string> parts(1);
    for (const char c : text) {
        if (c == between)
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
}

WantedTable ParseWanted(std::string argument) {
    WantedTable wanted;
    wanted.required = !argument.empty() && argument.front() == rowstream::kRequired;
    if (wanted.required) argument.erase(0, 1);
    const std::vector<std::string> halves = Split(argument, '=');
    if (halves.size() != 2) throw Fault{"the program was started in a wrong way."};
    wanted.names = Split(halves[0], '|');
    wanted.columns = Split(halves[1], ',');
    for (std::size_t i = 0; i < wanted.columns.size(); ++i) {
        std::string& column = wanted.columns[i];
        if (column.empty() || column.front() != rowstream::kYearMark) continue;
        column.erase(0, 1);
        wanted.yearColumn = static_cast<int>(i);
    }
    return wanted;
}

// Collects frames and writes them out in large pieces; ends the program when nobody reads them any more.
class Output {
  public:
    std::string buffer;

    void Flush() {
        std::size_t done = 0;
        while (done < buffer.size()) {
            const ssize_t size = write(STDOUT_FILENO, buffer.data() + done, buffer.size() - done);
            if (size <= 0) _exit(2);
            done += static_cast<std::size_t>(size);
        }
        buffer.clear();
    }
    void FlushIfLarge() {
        if (buffer.size() > 60'000) Flush();
    }
};

class AccessFile {
  public:
    explicit AccessFile(const char* path) {
        struct stat status {};
        if (stat(path, &status) == 0) size_ = static_cast<std::size_t>(status.st_size);
        handle_ = mdb_open(path, MDB_NOFLAGS);
        if (handle_ == nullptr) throw Fault{"it is not an Access file, or protected by a password."};
        mdb_set_bind_size(handle_, rowstream::kLongestText + 1);
        if (mdb_read_catalog(handle_, MDB_TABLE) == nullptr)
            throw Fault{
                "its list of tables is damaged or protected by a password. Get the file again, or use the CSV "
                "edition."};
    }

    void SendTable(std::size_t number, const WantedTable& wanted, const tarvane::YearSet& years, Output& output) {
        MdbCatalogEntry* entry = Find(wanted);
        if (entry == nullptr) {
            output.buffer += 'M';
            rowstream::PutNumber(output.buffer, static_cast<std::uint32_t>(number));
            return;
        }
        MdbTableDef* table = mdb_read_table(entry);
        if (table == nullptr || mdb_read_columns(table) == nullptr) Damaged(wanted);
        Bind(*table, wanted);
        mdb_rewind_table(table);
        output.buffer += 'T';
        rowstream::PutNumber(output.buffer, static_cast<std::uint32_t>(number));
        rowstream::PutNumber(output.buffer, table->num_rows);
        SendRows(*table, wanted, years, output);
    }

  private:
    [[noreturn]] static void Damaged(const WantedTable& wanted) {
        throw Fault{"table " + wanted.names.front() + " is damaged. Get the file again, or use the CSV edition."};
    }

    MdbCatalogEntry* Find(const WantedTable& wanted) const {
        for (const std::string& name : wanted.names) {
            for (guint i = 0; i < handle_->num_catalog && i < handle_->catalog->len; ++i) {
                auto* entry = static_cast<MdbCatalogEntry*>(g_ptr_array_index(handle_->catalog, i));
                if (entry != nullptr && entry->object_type == MDB_TABLE && mdb_is_user_table(entry) &&
                    g_ascii_strcasecmp(entry->object_name, name.c_str()) == 0)
                    return entry;
            }
        }
        if (wanted.required) throw Fault{"it has no table " + wanted.names.front() + ". Choose a statistics database."};
        return nullptr;
    }

    // A column of the file is read through a buffer of its own. Those not wanted are left unread.
    void Bind(MdbTableDef& table, const WantedTable& wanted) {
        texts_.assign(wanted.columns.size(), std::vector<char>(rowstream::kLongestText + 1));
        lengths_.assign(wanted.columns.size(), 0);
        for (std::size_t i = 0; i < wanted.columns.size(); ++i) {
            int found = -1;
            for (guint c = 0; c < table.columns->len; ++c) {
                const auto* column = static_cast<MdbColumn*>(g_ptr_array_index(table.columns, c));
                if (g_ascii_strcasecmp(column->name, wanted.columns[i].c_str()) != 0) continue;
                if (column->col_type == 0 || column->col_type > MDB_COMPLEX) Damaged(wanted);
                found = static_cast<int>(c) + 1;
            }
            if (found < 0)
                throw Fault{"its table " + wanted.names.front() + " has no column " + wanted.columns[i] +
                            ". Choose a statistics database."};
            mdb_bind_column(&table, found, texts_[i].data(), &lengths_[i]);
        }
    }

    void SendRows(MdbTableDef& table, const WantedTable& wanted, const tarvane::YearSet& years, Output& output) {
        // A row takes more than a byte of the file; a damaged chain of pages can go round for ever.
        const std::size_t most = std::min<std::size_t>(table.num_rows, size_);
        std::size_t read = 0, sent = 0;
        while (read <= most && mdb_fetch_row(&table) != 0) {
            ++read;
            if (wanted.yearColumn >= 0 &&
                !tarvane::YearWanted(years, Cell(static_cast<std::size_t>(wanted.yearColumn))))
                continue;
            ++sent;
            output.buffer += 'R';
            for (std::size_t i = 0; i < texts_.size(); ++i) rowstream::PutText(output.buffer, Cell(i));
            output.FlushIfLarge();
        }
        output.buffer += 'E';
        rowstream::PutNumber(output.buffer, static_cast<std::uint32_t>(read));
        rowstream::PutNumber(output.buffer, static_cast<std::uint32_t>(sent));
    }

    std::string Cell(std::size_t column) const {
        const std::vector<char>& text = texts_[column];
        return std::string(text.data(), strnlen(text.data(), text.size() - 1));
    }

    MdbHandle* handle_ = nullptr;
    std::size_t size_ = 0;
    std::vector<std::vector<char>> texts_;
    std::vector<int> lengths_;
};

void Run(const std::vector<std::string>& arguments, Output& output) {
    if (arguments.size() < 3) throw Fault{"the program was started in a wrong way."};
    tarvane::YearSet years;
    for (const std::string& year : Split(arguments[2], ','))
        if (!year.empty()) years.insert(std::atoi(year.c_str()));
    AccessFile file(arguments[0].c_str());
    for (std::size_t i = 3; i < arguments.size(); ++i) file.SendTable(i - 3, ParseWanted(arguments[i]), years, output);
    output.buffer += 'Z';
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    LimitMyself(arguments.size() > 1 ? std::strtoul(arguments[1].c_str(), nullptr, 10) : 60);
    Output output;
    output.buffer = rowstream::kMagic;
    try {
        Run(arguments, output);
    } catch (const Fault& fault) {
        output.buffer += 'X';
        rowstream::PutText(output.buffer, fault.text);
    }
    output.Flush();
    // Without cleaning up: the library can crash once more when it frees what a damaged file made of its tables.
    _exit(0);
}
