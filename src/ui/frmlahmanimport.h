#pragma once

#include <array>
#include <memory>

#include "ui/lahmanwizard.h"
#include "ui/screen.h"
#include "ui/services.h"

class QComboBox;
class QLabel;
class QLineEdit;

namespace Ui {
class frmLahmanImport;
}

namespace tarvane {

class DragList;

// A season out of real statistics, page by page: the clubs, codes for two of one code, the season's name and filters,
// the choices once more, and the last settings. The season takes its place with the last step; Cancel at any moment
// leaves the data folder as it was.
class frmLahmanImport : public Screen {
    Q_OBJECT

  public:
    frmLahmanImport(Session& session, Services services, const std::filesystem::path& source,
                    QWidget* parent = nullptr);
    ~frmLahmanImport() override;

    // Reads the clubs of the source; a source that can't be read is told, and the screen closes.
    void Begin();

  protected:
    bool MayClose() override;

  private:
    class Bar;
    enum Page { Clubs, Codes, Form, Confirm, Last };

    void Connect();
    void Open(Page page);
    void Next();
    void Back();

    // --- The clubs ---
    void FillLists();
    void Choose();
    void Drop();
    void LeaveClubs();
    void OpenCodes();
    void LeaveCodes();

    // --- Name, filters and confirmation ---
    void OpenForm();
    void LeaveForm();
    void OpenConfirm();
    void Import();

    // --- The last page ---
    void OpenLast();
    void ShowEras();
    void ShowPAFactor();
    FinishSettings Settings() const;
    void Finish();

    bool Fault(const std::optional<FormFault>& fault, const char* title);
    // Runs work with the bar and a Cancel that works; false if it didn't come to its end.
    template <class Work>
    bool Run(const QString& what, const char* title, Work work);

    Session& session_;
    Services services_;
    LahmanWizard wizard_;
    std::unique_ptr<Ui::frmLahmanImport> ui_;
    std::array<QLabel*, 3> eraLabels_{};
    std::array<QComboBox*, 3> eras_{};
    bool running_ = false, stop_ = false;
};

}  // namespace tarvane
