#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class frmSplash;
}

namespace tarvane {

// What shows while the program starts.
class frmSplash : public QWidget {
    Q_OBJECT

  public:
    explicit frmSplash(QWidget* parent = nullptr);
    ~frmSplash() override;

  private:
    std::unique_ptr<Ui::frmSplash> ui_;
};

}  // namespace tarvane
