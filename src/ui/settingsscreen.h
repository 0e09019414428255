#pragma once

#include <QStringList>
#include <functional>
#include <string>
#include <vector>

#include "ui/screen.h"
#include "ui/services.h"

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace tarvane {

// What the settings screens share: controls bound to the values they show, a Save button that an edit enables, and the
// question on leaving with changes.
class SettingsScreen : public Screen {
    Q_OBJECT

  public:
    // subject begins the question on leaving: "Game Play settings" have changed.
    SettingsScreen(const QString& title, std::string subject, std::string boxTitle, Services services, QWidget* parent);

  Q_SIGNALS:
    void Saved();

  protected:
    bool MayClose() override;
    void showEvent(QShowEvent* event) override;
    // ENTER is the Save button's, except on another button or in a list.
    void keyPressEvent(QKeyEvent* event) override;

    // Writes what the controls stand for, all of it or nothing; false, after telling why, if something is wrong with
    // them. Throws UserError if it can't be written.
    virtual bool Store() = 0;
    // Shows the values in the controls; what was changed and not saved is lost.
    void Show();
    // Puts what the controls hold into the values.
    void Take();
    void Changed();
    // Warns under the screen's title and puts the keyboard on the control that is to blame.
    void Refuse(const std::string& text, QWidget* control);

    // A cream card with a caption, added to the layout; the layout inside it.
    QVBoxLayout* AddCard(QBoxLayout* to, const char* name, const QString& caption);
    QCheckBox* AddCheck(QBoxLayout* to, const char* name, const QString& caption, bool& value);
    // A list of choices with its label in front; value is the index. label may be empty.
    QComboBox* AddList(QBoxLayout* to, const char* name, const QString& label, const QStringList& choices,
                       std::function<int()> read, std::function<void(int)> write);
    QComboBox* MakeList(const char* name, const QStringList& choices, std::function<int()> read,
                        std::function<void(int)> write);
    QLabel* MakeLabel(const char* name, const QString& text);
    // A control of another kind.
    void Bind(std::function<void()> show, std::function<void()> take) { bound_.push_back({show, take}); }

    Services services_;
    QVBoxLayout* body_;      // between title and buttons
    QHBoxLayout* commands_;  // left of Save and Close
    bool filling_ = false;

  private:
    bool Save();

    struct Bound {
        std::function<void()> show, take;
    };
    std::string subject_, boxTitle_;
    std::vector<Bound> bound_;
    QPushButton *save_, *leave_;
    bool ordered_ = false;
    QLabel* status_;
};

}  // namespace tarvane
