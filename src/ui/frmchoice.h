#pragma once

#include <QDialog>
#include <memory>
#include <string>

namespace Ui {
class frmChoice;
}

namespace tarvane {

// Two ways and Cancel, as for a bunt or a steal with men on first and third.
class frmChoice : public QDialog {
    Q_OBJECT

  public:
    frmChoice(const std::string& text, const std::string& title, const std::string& first, const std::string& second,
              QWidget* parent = nullptr);
    ~frmChoice() override;

    // 0 for the first way, 1 for the second, -1 while none is chosen.
    int Way() const { return way_; }

  private:
    void Choose(int way);

    std::unique_ptr<Ui::frmChoice> ui_;
    int way_ = -1;
};

}  // namespace tarvane
