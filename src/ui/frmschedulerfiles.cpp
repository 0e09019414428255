// The schedule editor's work on whole schedules: from files, into a file, of its own making, and away.

#include <fmt/format.h>

#include <QGuiApplication>
#include <algorithm>

#include "base/error.h"
#include "base/file.h"
#include "data/resets.h"
#include "season/balancedschedule.h"
#include "season/plannedlineups.h"
#include "season/scheduleimport.h"
#include "ui/frmscheduler.h"
#include "ui/qtext.h"
#include "ui_frmscheduler.h"

namespace tarvane {

namespace {

constexpr const char* kImportTitle = "Import Schedule";
constexpr const char* kRemoveAllTitle = "Remove All Scheduled Games";
constexpr const char* kExportTitle = "Export Schedule";
constexpr const char* kBalancedTitle = "Make Balanced Schedule";

class DialogSink final : public MessageSink {
  public:
    explicit DialogSink(Dialogs& dialogs) : dialogs_(dialogs) {}
    void Warn(const std::string& title, const std::string& text) override { dialogs_.Warn(text, title); }
    void Inform(const std::string& title, const std::string& text) override { dialogs_.Remind(text, title); }

  private:
    Dialogs& dialogs_;
};

// The hourglass for as long as the object lives.
class Hourglass {
  public:
    Hourglass() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Hourglass() { QGuiApplication::restoreOverrideCursor(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

int LatestYear(const std::vector<Team>& teams) {
    int year = 0;
    for (const Team& team : teams) year = std::max<int>(year, team.yearID);
    return year;
}

}  // namespace

bool frmScheduler::Try(const std::string& title, const std::function<void()>& write) {
    std::string failure;
    try {
        const Hourglass wait;
        write();
    } catch (const UserError& error) {
        failure = error.what();
    }
    ui_->lblProgress->clear();
    if (!failure.empty()) services_.dialogs.Warn(failure, title);
    return failure.empty();
}

bool frmScheduler::MayReplace(const std::string& text, const std::string& title, const std::string& yes) {
    return services_.dialogs.Ask(text + "\n" + yes + "\nClick No to retain current schedule.", title) == Reply::Yes;
}

void frmScheduler::OfferReset(const std::string& what, const std::string& existing, const std::string& title,
                              bool played) {
    if (!played) return;
    const Reply reply = services_.dialogs.Ask(
        fmt::format("Scheduled games have been {}. Would you also like to reset {} computer stats?\nClick Yes to reset "
                    "all computer stats.\nClick No to retain computer stats. This could cause stats to become invalid.",
                    what, existing),
        title);
    if (reply != Reply::Yes) return;
    ui_->lblProgress->setText(tr("Clearing league stats - Please Wait ..."));
    ui_->lblProgress->repaint();
    DialogSink messages(services_.dialogs);
    SeasonCatalogue& seasons = session_.Seasons();
    Try(title, [&] {
        ResetLeagueStats(seasons.Season(), seasons.Rules(), session_.Paths().GameResults(seasons.ActiveSeason()),
                         messages);
    });
}

void frmScheduler::RemoveAll() {
    if (!MayReplace("This will remove all scheduled games, Played and Un-Played. Please confirm.", kRemoveAllTitle,
                    "Click Yes to Remove all scheduled games."))
        return;
    Database& season = session_.Seasons().Season();
    const bool played = CountPlayedGames(season) > 0;
    if (Try(kRemoveAllTitle, [&] { ReplaceSchedule(season, {}); })) {
        if (played)
            OfferReset("removed", "all", kRemoveAllTitle, true);
        else
            services_.dialogs.Remind("Scheduled games have been removed", kRemoveAllTitle);
    }
    lastAddDate_.clear();
    Reload();
}

void frmScheduler::Import(bool gameLog) {
    if (!MayReplace("Importing a Schedule will replace all scheduled games, Played and Un-Played. Please confirm.",
                    kImportTitle, "Click Yes to Import Schedule and replace all scheduled games."))
        return;
    const auto path =
        services_.dialogs.OpenFile(gameLog ? "Select Game Log Import File" : "Select Schedule Import File",
                                   session_.Paths().Data08(), "RetroSheet Import File (*.txt *.TXT)");
    if (!path) return;
    ui_->lblProgress->setText(tr("Importing Schedule - Please Wait ..."));
    ui_->lblProgress->repaint();
    Database& season = session_.Seasons().Season();
    const bool played = CountPlayedGames(season) > 0;
    ScheduleImportResult result;
    const bool read = Try(kImportTitle, [&] {
        const ScheduleFile file = ParseScheduleFile(ReadFile(*path), path->string());
        ScheduleImportChoice choice;
        choice.leaveOutUnknown = false;
        choice.keepBeforeFault = true;
        choice.lineups = false;
        result = ImportSchedule(season, file, choice);
    });
    if (!read) return;
    if (!result.fault.empty()) {
        services_.dialogs.Warn(result.fault, kImportTitle);
    } else {
        services_.dialogs.Remind("Schedule has been successfully imported.", kImportTitle);
        ui_->lblProgress->setText(QText(fmt::format("{} games scheduled.", result.games)));
    }
    OfferReset("imported", "any existing", kImportTitle, played);
    if (result.games > 0) OfferPlan(kImportTitle);
    lastAddDate_.clear();
    Reload();
}

void frmScheduler::MakeBalanced() {
    if (!book_.Games().empty() &&
        !MayReplace("A balanced schedule will replace all scheduled games, Played and Un-Played. Please confirm.",
                    kBalancedTitle, "Click Yes to make the schedule and replace all scheduled games."))
        return;
    Database& season = session_.Seasons().Season();
    const bool played = CountPlayedGames(season) > 0;
    std::size_t games = 0;
    const bool made = Try(kBalancedTitle, [&] {
        const int year = LatestYear(book_.Teams());
        if (year == 0) throw UserError("The teams of this season have no year, so the schedule would have none.");
        const std::vector<NewGame> schedule = BalancedSchedule(book_.Teams(), year, ui_->numGames->value());
        games = schedule.size();
        ReplaceSchedule(season, schedule);
    });
    if (!made) return;
    OfferReset("replaced", "any existing", kBalancedTitle, played);
    lastAddDate_.clear();
    Reload();
    ui_->lblProgress->setText(QText(fmt::format("{} games scheduled.", games)));
    OfferPlan(kBalancedTitle);
}

// A schedule of a season with real statistics is best played with the men who really played.
void frmScheduler::OfferPlan(const char* title) {
    Database& season = session_.Seasons().Season();
    if (!GoesByRealUse(season) ||
        services_.dialogs.Ask("Plan the lineups of all games by how often each man really played?\nClick Yes to plan "
                              "the lineups, otherwise Click No and the managers choose before each game.",
                              title) != Reply::Yes)
        return;
    int planned = 0;
    if (Try(title, [&] { planned = PlanScheduledLineups(season); }))
        ui_->lblProgress->setText(ui_->lblProgress->text() + QText(fmt::format(" {} lineups planned.", planned)));
}

void frmScheduler::Export() {
    const auto path = services_.dialogs.SaveFile("Specify Export File", session_.Paths().Data08(),
                                                 session_.Seasons().ActiveSeason() + "_SchedExport.txt",
                                                 "Tarvane PC Baseball Export Schedule (*.txt)");
    if (!path) return;
    std::error_code error;
    if (std::filesystem::exists(*path, error) &&
        services_.dialogs.Ask("Do you wish to override the existing file?\nClick Yes to Export Schedule to an existing "
                              "file, otherwise Click No.",
                              kExportTitle) != Reply::Yes)
        return;
    if (Try(kExportTitle, [&] { WriteFile(*path, ExportSchedule(session_.Seasons().Season())); }))
        services_.dialogs.Remind("Schedule has been successfully exported.", kExportTitle);
}

}  // namespace tarvane
