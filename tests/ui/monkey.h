#pragma once

#include <QLineEdit>
#include <QPointer>
#include <deque>
#include <functional>

#include "base/random.h"
#include "ui/demo.h"

class QWidget;

namespace tarvane::testing {

// Boxes answered by chance, as somebody would who doesn't read them.
class RandomDialogs : public Dialogs {
  public:
    RandomDialogs(Random& random, std::vector<std::filesystem::path> files)
        : random_(random), files_(std::move(files)) {}

    void Warn(const std::string& text, const std::string& title) override { Note("warned", title, text); }
    void Remind(const std::string& text, const std::string& title) override { Note("reminded", title, text); }
    Reply Ask(const std::string& text, const std::string& title, bool offerCancel) override;
    int Choose(const std::string& text, const std::string& title, const std::string&, const std::string&) override;
    int Pick(const std::string& text, const std::string& title, const std::vector<std::string>& choices) override;
    void ShowDocument(const std::string&, const std::string& title) override { Note("shown", title, {}); }
    std::optional<std::uint32_t> PickColor(std::uint32_t) override { return random_.Below(0x1000000); }
    std::optional<std::filesystem::path> OpenFile(const std::string& title, const std::filesystem::path&,
                                                  const std::string&) override {
        return AnyFile(title);
    }
    std::optional<std::filesystem::path> SaveFile(const std::string& title, const std::filesystem::path&,
                                                  const std::string&, const std::string&) override {
        return AnyFile(title);
    }

    // What is answered to every question while it is set: the way out.
    std::optional<Reply> always;
    std::function<void(const std::string&)> told = [](const std::string&) {};
    int boxes = 0;

  private:
    std::optional<std::filesystem::path> AnyFile(const std::string& title);
    void Note(const char* what, const std::string& title, const std::string& text);

    Random& random_;
    std::vector<std::filesystem::path> files_;
};

// Clicks, types and turns wheels at random on whatever can be seen, with a memory of what it did last.
class Monkey {
  public:
    explicit Monkey(Random& random) : random_(random) {}

    // One deed on the screen that is in front, and the events that follow from it.
    void Act();
    // The screens, dialogs and lists that can be seen, the one in front last.
    static std::vector<QWidget*> Windows();
    // The last deeds, oldest first.
    std::string Memory() const;
    void Remember(std::string deed);

  private:
    void ClickSomething(QWidget& window);
    void TypeSomething(QWidget& window);
    void TurnWheel(QWidget& window);
    int Below(int n) { return static_cast<int>(random_.Below(static_cast<std::uint32_t>(n))); }

    Random& random_;
    std::deque<std::string> memory_;
    int depth_ = 0;  // deeds that wait for an answer to the box or menu that they opened
};

}  // namespace tarvane::testing
