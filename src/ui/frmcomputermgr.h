#pragma once

#include <QComboBox>
#include <array>
#include <memory>

#include "data/session.h"
#include "manager/generate.h"
#include "ui/screen.h"
#include "ui/services.h"

class QCheckBox;

namespace Ui {
class frmComputerMgr;
}

namespace tarvane {

// The character of a team's computer manager: seven tendencies, to be set or made from the players together with
// line-ups, depth charts and pitching lists.
class frmComputerMgr : public Screen {
    Q_OBJECT

  public:
    frmComputerMgr(Session& session, Services services, QWidget* parent = nullptr);
    ~frmComputerMgr() override;

  protected:
    bool MayClose() override;

  private:
    struct Tendency {
        QComboBox* combo = nullptr;
        std::uint8_t ManagerTendencies::*value = nullptr;
    };

    void ListTeams();
    void TeamChosen();
    void Load();
    void Changed();
    bool Save();
    bool SaveOrDrop();
    void Generate();
    GenerateOptions Options() const;
    // What is wrong with the boxes as they are checked; empty if they will do.
    std::string OptionsFault() const;

    Session& session_;
    Services services_;
    std::unique_ptr<Ui::frmComputerMgr> ui_;
    std::array<Tendency, 7> tendencies_;
    std::vector<std::string> teamIDs_;
    std::string teamID_;
    bool changed_ = false, filling_ = false;
};

}  // namespace tarvane
