#pragma once

#include <cstdint>
#include <filesystem>

namespace tarvane {

// The season that the sample league bears in the files. It is made up, but its year must be one that has league rates.
inline constexpr int kSampleYear = 1975;

// Writes a fictional league of sixteen clubs as a folder of the Lahman CSV layout (Teams, People, Batting, Pitching,
// Fielding, FieldingOF, FieldingOFsplit), for people who have no statistics of their own yet. A season of 162 games is
// played by a small simulator with the habits of the 1970s, so that batting, pitching, fielding and standings agree
// with each other as those of a real season do. The same seed writes the same bytes. The folder is made if need be;
// throws UserError if a file can't be written, and then leaves none of them half-written.
void WriteSampleLeague(const std::filesystem::path& folder, std::uint64_t seed);

}  // namespace tarvane
