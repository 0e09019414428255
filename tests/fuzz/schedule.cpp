// Schedule files and game logs: anything may be refused with a UserError, nothing else may happen.
#include "base/error.h"
#include "season/schedulefile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        const tarvane::ScheduleFile file = tarvane::ParseScheduleFile(text, "fuzz.txt");
        for (const tarvane::FileGame& game : file.games)
            if (!game.date.empty()) tarvane::ScheduleFileLine(game.date, "A", "B");
    } catch (const tarvane::UserError&) {
    }
    return 0;
}
