#include "ui/soundplayer.h"

#include <QApplication>
#include <QAudioDevice>
#include <QAudioOutput>
#include <QMediaDevices>
#include <QMediaPlayer>
#include <QSoundEffect>
#include <QTimer>
#include <QUrl>
#include <deque>
#include <map>
#include <optional>

namespace tarvane {

namespace {

struct Clip {
    std::filesystem::path file;
    int seconds = 0;  // 0: to its end
};

bool IsWave(const std::filesystem::path& file) {
    return QString::fromStdString(file.extension().string()).compare(QLatin1String(".wav"), Qt::CaseInsensitive) == 0;
}

class EffectPlayer : public SoundPlayer {
  public:
    EffectPlayer() {
        limit_.setSingleShot(true);
        QObject::connect(&limit_, &QTimer::timeout, &limit_, [this] { Next(); });
    }
    ~EffectPlayer() override { EffectPlayer::Stop(); }

    void Play(const std::filesystem::path& file) override {
        Stop();
        PlayNext(file, 0);
    }

    void PlayNext(const std::filesystem::path& file, int seconds) override {
        std::error_code ignored;
        if (file.empty() || !Device() || !std::filesystem::is_regular_file(file, ignored)) return;
        waiting_.push_back({file, seconds});
        if (!playing_) Next();
    }

    void Stop() override {
        waiting_.clear();
        Halt();
    }

    void Beep() override { QApplication::beep(); }

  private:
    bool Device() {
        if (!device_) device_ = !QMediaDevices::audioOutputs().isEmpty();
        return *device_;
    }

    // Ends what plays. Its own word that it has ended comes back while nothing counts as playing, and is not heard.
    void Halt() {
        playing_ = false;
        limit_.stop();
        if (effect_ != nullptr) effect_->stop();
        effect_ = nullptr;
        if (media_) media_->stop();
    }

    void Next() {
        Halt();
        if (waiting_.empty()) return;
        const Clip clip = waiting_.front();
        waiting_.pop_front();
        playing_ = true;
        if (clip.seconds > 0) limit_.start(clip.seconds * 1000);
        if (IsWave(clip.file))
            Start(Effect(clip.file));
        else
            StartMedia(clip.file);
    }

    // A clip is read once and kept.
    QSoundEffect& Effect(const std::filesystem::path& file) {
        std::unique_ptr<QSoundEffect>& effect = effects_[file.string()];
        if (effect) return *effect;
        effect = std::make_unique<QSoundEffect>();
        QSoundEffect* made = effect.get();
        QObject::connect(made, &QSoundEffect::playingChanged, made, [this, made] {
            if (playing_ && effect_ == made && !made->isPlaying()) Later();
        });
        QObject::connect(made, &QSoundEffect::statusChanged, made, [this, made] {
            if (playing_ && effect_ == made && made->status() == QSoundEffect::Error) Later();
        });
        made->setSource(QUrl::fromLocalFile(QString::fromStdString(file.string())));
        return *made;
    }

    void Start(QSoundEffect& effect) {
        effect_ = &effect;
        if (effect.status() == QSoundEffect::Error)
            Later();
        else
            effect.play();
    }

    void StartMedia(const std::filesystem::path& file) {
        if (!media_) {
            media_ = std::make_unique<QMediaPlayer>();
            output_ = std::make_unique<QAudioOutput>();
            media_->setAudioOutput(output_.get());
            QObject::connect(media_.get(), &QMediaPlayer::mediaStatusChanged, media_.get(),
                             [this](QMediaPlayer::MediaStatus status) {
                                 const bool done =
                                     status == QMediaPlayer::EndOfMedia || status == QMediaPlayer::InvalidMedia;
                                 if (playing_ && effect_ == nullptr && done) Later();
                             });
        }
        media_->setSource(QUrl::fromLocalFile(QString::fromStdString(file.string())));
        media_->play();
    }

    // The next clip begins outside the word of the last one that it has ended.
    void Later() { limit_.start(0); }

    std::optional<bool> device_;
    std::map<std::string, std::unique_ptr<QSoundEffect>> effects_;
    QSoundEffect* effect_ = nullptr;  // the one that plays
    std::unique_ptr<QAudioOutput> output_;
    std::unique_ptr<QMediaPlayer> media_;
    std::deque<Clip> waiting_;
    QTimer limit_;
    bool playing_ = false;
};

}  // namespace

std::unique_ptr<SoundPlayer> MakeSoundPlayer() {
    return std::make_unique<EffectPlayer>();
}

}  // namespace tarvane
