#pragma once

#include <memory>

#include "ui/gamekeeper.h"
#include "ui/screen.h"
#include "ui/seasonaccess.h"
#include "ui/services.h"

namespace Ui {
class frmGameOver;
}

namespace tarvane {

// The end of a game: its line score and the question what to keep of it. The season is written when the user finishes,
// and not before.
class frmGameOver : public Screen {
    Q_OBJECT

  public:
    // Without a session nothing can be kept.
    frmGameOver(PlayedGame game, Session* session, Services services, QWidget* parent = nullptr);
    ~frmGameOver() override;

  protected:
    bool MayClose() override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void ShowScore();
    void ShowChoices();
    void ShowForms();
    KeepChoices Choices() const;
    void Finish();
    void DropSavedGame();

    PlayedGame game_;
    Session* session_;
    Services services_;
    bool mayClose_ = false;
    std::unique_ptr<Ui::frmGameOver> ui_;
};

}  // namespace tarvane
