#pragma once

#include <filesystem>
#include <string_view>

#include "core/database.h"
#include "core/paths.h"

namespace tarvane {

// Adds the rows of a seed file to a table. The file's first line names columns of the table, in any order; an empty
// field takes the column's default; booleans are True and False. All rows are added or none: throws UserError that
// names file, line and column.
void LoadSeed(Database& database, std::string_view table, const std::filesystem::path& file);

// Makes what a first start lacks in the data folder: the common database, the template of seasons and the text of the
// defensive eras, from the schema and the files in seeds. Each is made under a temporary name and renamed when it is
// whole. What is there is left alone. Throws UserError that names the file.
void MakeDataFiles(const DataPaths& paths, const std::filesystem::path& seeds);

// Makes the table DefensiveEras in the common database and fills it from the text, which has one record an era with its
// fields in the order of the columns. Does nothing if the table is there.
void EnsureDefensiveEras(Database& common, const std::filesystem::path& text);

}  // namespace tarvane
