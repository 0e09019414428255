#include "ui/playshow.h"

#include <QApplication>
#include <QKeyEvent>

namespace tarvane {

namespace {
constexpr int kFrameMilliseconds = 20;
}

PlayShow::PlayShow(FieldView& field, SoundPlayer& sound) : field_(field), sound_(sound) {
    frame_.setInterval(kFrameMilliseconds);
    frame_.setTimerType(Qt::PreciseTimer);
    connect(&frame_, &QTimer::timeout, this, &PlayShow::Frame);
}

PlayShow::~PlayShow() {
    if (Running()) qApp->removeEventFilter(this);
}

bool PlayShow::Start(std::vector<PlayFacts> plays, std::vector<SoundCue> cues, const AnimationOptions& options) {
    if (!options.GameAnimation || plays.empty() || !field_.isVisible()) return false;
    options_ = options;
    waiting_.assign(plays.begin(), plays.end());
    cues_.assign(cues.begin(), cues.end());
    qApp->installEventFilter(this);
    Next();
    return true;
}

void PlayShow::Next() {
    if (waiting_.empty()) return End();
    const PlayFacts facts = std::move(waiting_.front());
    waiting_.pop_front();
    step_ = facts.step;
    moving_.emplace(facts, field_.Plan(), options_);
    field_.SetLabels(facts.labels);
    before_ = 0;
    clock_.start();
    Frame();
    if (Running()) frame_.start();
}

void PlayShow::Frame() {
    const double seconds = before_ + static_cast<double>(clock_.elapsed()) / 1000;
    Hear(seconds);
    field_.Show(moving_->At(seconds));
    if (seconds >= moving_->Seconds()) Next();
}

void PlayShow::Hear(double seconds) {
    while (!cues_.empty() && cues_.front().step <= step_) {
        const SoundCue& cue = cues_.front();
        const double due = cue.moment == SoundMoment::Struck   ? moving_->Struck()
                           : cue.moment == SoundMoment::Caught ? moving_->Caught()
                                                               : moving_->Seconds();
        if (seconds < due) return;
        if (cue.moment == SoundMoment::Struck)
            sound_.Play(cue.file);  // the bat doesn't wait for the dice
        else
            sound_.PlayNext(cue.file, cue.seconds);
        cues_.pop_front();
    }
}

void PlayShow::Hold(bool held) {
    if (!Running()) return;
    if (held && frame_.isActive()) {
        before_ += static_cast<double>(clock_.elapsed()) / 1000;
        frame_.stop();
    } else if (!held && !frame_.isActive()) {
        clock_.start();
        frame_.start();
    }
}

void PlayShow::Skip() {
    if (!Running()) return;
    std::erase_if(cues_, [](const SoundCue& cue) {
        return cue.moment == SoundMoment::Struck || cue.moment == SoundMoment::Caught;
    });
    waiting_.clear();
    End();
}

void PlayShow::End() {
    frame_.stop();
    moving_.reset();
    qApp->removeEventFilter(this);
    field_.Show({});
    for (const SoundCue& cue : cues_) sound_.PlayNext(cue.file, cue.seconds);
    cues_.clear();
    Q_EMIT Ended();
}

bool PlayShow::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type != QEvent::MouseButtonPress && type != QEvent::KeyPress && type != QEvent::ShortcutOverride) return false;
    if (type != QEvent::MouseButtonPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Alt || key == Qt::Key_Shift || key == Qt::Key_Control) return false;
    }
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr || widget->window() != field_.window()) return false;
    if (type == QEvent::ShortcutOverride) {  // or the key would reach the button that it is a shortcut of
        event->accept();
        return true;
    }
    Skip();
    return true;
}

}  // namespace tarvane
