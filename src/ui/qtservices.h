#pragma once

#include "ui/services.h"

namespace tarvane {

// The services of a running desktop.
class QtDialogs : public Dialogs {
  public:
    void Warn(const std::string& text, const std::string& title) override;
    void Remind(const std::string& text, const std::string& title) override;
    Reply Ask(const std::string& text, const std::string& title, bool offerCancel) override;
    int Choose(const std::string& text, const std::string& title, const std::string& first,
               const std::string& second) override;
    int Pick(const std::string& text, const std::string& title, const std::vector<std::string>& choices) override;
    void ShowDocument(const std::string& text, const std::string& title) override;
    std::optional<std::uint32_t> PickColor(std::uint32_t color) override;
    std::optional<std::filesystem::path> OpenFile(const std::string& title, const std::filesystem::path& folder,
                                                  const std::string& filter) override;
    std::optional<std::filesystem::path> SaveFile(const std::string& title, const std::filesystem::path& folder,
                                                  const std::string& name, const std::string& filter) override;
};

class DesktopBrowser : public Browser {
  public:
    void Open(const std::string& address) override;
};

}  // namespace tarvane
