#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <deque>
#include <optional>

#include "ui/fieldview.h"
#include "ui/playsounds.h"
#include "ui/services.h"

namespace tarvane {

// Runs plays on the field one after the other, with their sounds at their moments. The next key or mouse button in the
// window ends it at once and does nothing else.
class PlayShow : public QObject {
    Q_OBJECT

  public:
    PlayShow(FieldView& field, SoundPlayer& sound);
    ~PlayShow() override;

    // False if there is nothing to show; then nothing is heard either.
    bool Start(std::vector<PlayFacts> plays, std::vector<SoundCue> cues, const AnimationOptions& options);
    bool Running() const { return moving_.has_value(); }
    // Everybody is where the plays have taken him. What the crowd and the organ have to say is still heard.
    void Skip();
    // Time stands still, for a question to the user.
    void Hold(bool held);

  Q_SIGNALS:
    void Ended();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Next();
    void Frame();
    void Hear(double seconds);
    void End();

    FieldView& field_;
    SoundPlayer& sound_;
    AnimationOptions options_;
    std::deque<PlayFacts> waiting_;
    std::deque<SoundCue> cues_;
    std::optional<PlayTimeline> moving_;
    int step_ = 0;  // of the play that moves
    QTimer frame_;
    QElapsedTimer clock_;
    double before_ = 0;  // seconds of the play before the clock was last started
};

}  // namespace tarvane
