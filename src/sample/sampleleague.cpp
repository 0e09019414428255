#include "sample/sampleleague.h"

#include "base/random.h"
#include "sample/files.h"
#include "sample/rosters.h"
#include "sample/season.h"

namespace tarvane {

void WriteSampleLeague(const std::filesystem::path& folder, std::uint64_t seed) {
    Random random(seed);
    sample::MadeLeague league = sample::MakeLeague(random);
    sample::PlaySeason(random, league);
    sample::WriteTables(folder, league);
}

}  // namespace tarvane
