#include "ui/playbyplay.h"

#include "base/error.h"
#include "core/paths.h"
#include "narration/narrator.h"

namespace tarvane {

namespace {

// Read once; every game tells with the same wordings.
const Wordings& ShippedWordings() {
    static const Wordings wordings = Wordings::Load(AssetsPath() / "narration" / "playbyplay.txt");
    return wordings;
}

}  // namespace

PlayByPlay::PlayByPlay() {
    try {
        narrator_ = std::make_unique<Narrator>(ShippedWordings(), [this](const std::string& play) { Note(play); });
    } catch (const UserError& error) {
        told_ = error.what();
    }
}

PlayByPlay::~PlayByPlay() = default;

void PlayByPlay::Welcome(const GameData& data, const GameState& state) {
    if (narrator_) narrator_->Welcome(data, state);
}

void PlayByPlay::WelcomeBack(const GameData& data, const GameState& state, const std::string& before) {
    if (!before.empty()) Note(before);
    if (narrator_) narrator_->WelcomeBack(data, state);
}

void PlayByPlay::OnEvent(const GameData& data, const GameState& state, const GameEvent& event) {
    if (narrator_) narrator_->OnEvent(data, state, event);
}

void PlayByPlay::Note(const std::string& text) {
    if (!told_.empty()) told_ += "\n\n";
    told_ += text;
}

std::string PlayByPlay::Text() const {
    const std::string now = narrator_ ? narrator_->PlayText() : std::string();
    if (told_.empty()) return now;
    return now.empty() ? told_ : told_ + "\n\n" + now;
}

}  // namespace tarvane
