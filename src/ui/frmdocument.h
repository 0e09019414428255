#pragma once

#include <QDialog>
#include <memory>
#include <string>

namespace Ui {
class frmDocument;
}

namespace tarvane {

// A text in columns, such as a box score.
class frmDocument : public QDialog {
    Q_OBJECT

  public:
    frmDocument(const std::string& text, const std::string& title, QWidget* parent = nullptr);
    ~frmDocument() override;

  private:
    std::unique_ptr<Ui::frmDocument> ui_;
};

}  // namespace tarvane
