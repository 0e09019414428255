#include "ui/frmdocument.h"

#include <QFontDatabase>
#include <QScreen>

#include "ui/qtext.h"
#include "ui_frmdocument.h"

namespace tarvane {

frmDocument::frmDocument(const std::string& text, const std::string& title, QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmDocument>()) {
    ui_->setupUi(this);
    setWindowTitle(QText(title));
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(14);
    ui_->txtDocument->setFont(font);
    ui_->txtDocument->setPlainText(QText(text));
    connect(ui_->chkClose, &QPushButton::clicked, this, &QDialog::accept);
    const QFontMetrics metrics(font);
    constexpr int kColumns = 96;
    constexpr int kLines = 50;
    resize(QSize(metrics.horizontalAdvance(QLatin1Char('0')) * kColumns, metrics.height() * kLines)
               .boundedTo(screen()->availableSize() * 0.92));
}

frmDocument::~frmDocument() = default;

}  // namespace tarvane
