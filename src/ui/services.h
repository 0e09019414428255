#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tarvane {

enum class Reply { Yes, No, Cancel };

// Everything that stops and waits for the user outside the screens themselves. Texts are UTF-8, lines parted by line
// feeds. A test scripts the answers; nothing else in the screens blocks.
class Dialogs {
  public:
    virtual ~Dialogs() = default;

    // A box with one button: something was refused or went wrong.
    virtual void Warn(const std::string& text, const std::string& title) = 0;
    // A box with one button: something worth stopping for (a reminder, the end of a game).
    virtual void Remind(const std::string& text, const std::string& title) = 0;
    // Yes or No; Cancel only if it is offered.
    virtual Reply Ask(const std::string& text, const std::string& title, bool offerCancel = false) = 0;
    // Two named ways and Cancel: 0, 1 or -1.
    virtual int Choose(const std::string& text, const std::string& title, const std::string& first,
                       const std::string& second) = 0;
    // One of several lines, or -1.
    virtual int Pick(const std::string& text, const std::string& title, const std::vector<std::string>& choices) = 0;
    // A document in a fixed-width font, such as a box score.
    virtual void ShowDocument(const std::string& text, const std::string& title) = 0;
    // A colour, red in the low byte; nothing when the user cancels.
    virtual std::optional<std::uint32_t> PickColor(std::uint32_t color) = 0;
    // Nothing when the user cancels. The filter reads "Words (*.ext)".
    virtual std::optional<std::filesystem::path> OpenFile(const std::string& title, const std::filesystem::path& folder,
                                                          const std::string& filter) = 0;
    // The same for a file to write; whether it may replace one that is there is for the caller to ask.
    virtual std::optional<std::filesystem::path> SaveFile(const std::string& title, const std::filesystem::path& folder,
                                                          const std::string& name, const std::string& filter) = 0;
};

class SoundPlayer {
  public:
    virtual ~SoundPlayer() = default;
    // Plays one file from its start, stopping the one before it and forgetting what waits. A missing file is silence.
    virtual void Play(const std::filesystem::path& file) = 0;
    // Plays the file when all before it are done, for so many seconds (0: to its end).
    virtual void PlayNext(const std::filesystem::path& file, int seconds = 0) = 0;
    virtual void Stop() = 0;
    virtual void Beep() = 0;
};

class Browser {
  public:
    virtual ~Browser() = default;
    virtual void Open(const std::string& address) = 0;
};

// What a screen reaches the outside through. The objects outlive every screen.
struct Services {
    Dialogs& dialogs;
    SoundPlayer& sound;
    Browser& browser;
};

}  // namespace tarvane
