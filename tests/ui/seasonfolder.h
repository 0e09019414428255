#pragma once

#include "data/session.h"
#include "season/postingseason.h"

namespace tarvane::testing {

class SilentSink final : public MessageSink {
  public:
    void Warn(const std::string&, const std::string& text) override { texts.push_back(text); }
    void Inform(const std::string&, const std::string& text) override { texts.push_back(text); }
    std::vector<std::string> texts;
};

// A data folder of the program with the sample league as its active season, and a schedule of five days of eight games;
// gone with the object. The league is imported once, each folder is a copy.
class SeasonFolder {
  public:
    SeasonFolder() : root(MakeFolder()) { fs::copy(Master(), root, fs::copy_options::recursive); }
    ~SeasonFolder() { fs::remove_all(root); }
    SeasonFolder(const SeasonFolder&) = delete;
    SeasonFolder& operator=(const SeasonFolder&) = delete;

    // The program started on this folder.
    std::unique_ptr<Session> Start() {
        auto session = std::make_unique<Session>(sink);
        StartupEnvironment environment;
        environment.dataFolder = root;
        if (session->StartUp(environment) != StartResult::Running) throw std::runtime_error("the session didn't start");
        return session;
    }

    const fs::path root;
    SilentSink sink;

  private:
    static fs::path MakeFolder() {
        std::string name = (fs::temp_directory_path() / "tarvane-ui-XXXXXX").string();
        return mkdtemp(name.data());
    }
    struct Kept {
        Kept() : root(MakeFolder()) { Fill(root); }
        ~Kept() { fs::remove_all(root); }
        Kept(const Kept&) = delete;
        Kept& operator=(const Kept&) = delete;
        const fs::path root;
    };
    static const fs::path& Master() {
        static const Kept kept;
        return kept.root;
    }
    static void Fill(const fs::path& root) {
        const fs::path csv = root / "league";
        fs::create_directories(csv);
        WriteSampleLeague(csv, 11);
        const DataPaths paths = DetermineDataPath(root);
        MakeDataFiles(paths, AssetsPath() / "seeds");
        Database common(paths.CommonFile());
        ImportRequest request;
        request.seasonName = "Test";
        request.source = csv;
        request.teams = {{kSampleYear, ""}};
        request.lineups.basedOnUsage = true;
        request.generateManagers = GenerateImportedManagers;
        ImportSeason(request, paths, common);
        Database season(paths.SeasonFile("Test"));
        WriteRoundRobin(season, 5);
        common.Execute("UPDATE SeasonsDB SET Active = -1");
    }
};

}  // namespace tarvane::testing
