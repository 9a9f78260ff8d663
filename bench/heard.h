// What the sound device was given, and when: SDL's driver that writes into a file instead of sounding, in real time,
// and a hook of the mixer that notes the time of each buffer right before it is written. The file has the last word:
// what the hook has seen must be found in it, sample by sample.
#pragma once

#include <QFile>
#include <QString>
#include <QThread>
#include <QtGlobal>
#include <SDL_mixer.h>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <vector>

namespace cserko {

class Heard {
 public:
  using Clock = std::chrono::steady_clock;
  static constexpr int rate = 44100;
  static constexpr std::size_t buffer_frames = 512;
  static constexpr double buffer_ms = 1000.0 * buffer_frames / rate;

  /// Chooses the driver; the device is opened afterwards.
  explicit Heard(QString file) : file_(std::move(file)) {
    qputenv("SDL_AUDIODRIVER", "disk");
    qputenv("SDL_DISKAUDIOFILE", file_.toUtf8());
    samples_.reserve(std::size_t{2} * rate * 120);
  }
  /// The mixer keeps the hook for the next device unless it is told.
  ~Heard() { Mix_SetPostMix(nullptr, nullptr); }
  Heard(const Heard&) = delete;
  Heard& operator=(const Heard&) = delete;

  /// Waits for the device and listens from then on. The device must be closed before this object ends.
  void listen() {
    int ignored = 0;
    Uint16 format = 0;
    while (Mix_QuerySpec(&ignored, &format, &ignored) == 0) QThread::msleep(1);
    Mix_SetPostMix(note, this);
    while (frames() < 4 * buffer_frames) QThread::msleep(1);
  }

  /// Frames (samples of both channels) made so far.
  std::size_t frames() const { return frames_; }
  /// How many of the last frames are silence.
  std::size_t silent_frames() const { return silent_frames_; }

  // When the device is closed:

  /// The left channel.
  std::vector<std::int16_t> left() const {
    std::vector<std::int16_t> left(samples_.size() / 2);
    for (std::size_t i = 0; i < left.size(); ++i) left[i] = samples_[2 * i];
    return left;
  }
  /// The first frame from there on that is no silence; the number of frames if there is none.
  std::size_t first_sound(std::size_t from) const {
    for (std::size_t i = 2 * from; i < samples_.size(); ++i) {
      if (samples_[i] != 0) return i / 2;
    }
    return samples_.size() / 2;
  }
  /// When a frame goes out: its buffer begins as soon as it is made.
  Clock::time_point time_of(std::size_t frame) const {
    const auto after = std::upper_bound(buffers_.begin(), buffers_.end(), frame,
                                        [](std::size_t wanted, const Buffer& b) { return wanted < b.first_frame; });
    const Buffer& buffer = *std::prev(after);
    return buffer.made + std::chrono::duration_cast<Clock::duration>(
                             std::chrono::duration<double>(static_cast<double>(frame - buffer.first_frame) / rate));
  }
  /// Whether the file holds all that was noted, in one piece.
  bool as_written() const {
    QFile file(file_);
    if (!file.open(QIODevice::ReadOnly)) return false;
    const QByteArray written = file.readAll();
    const std::size_t size = samples_.size() * sizeof samples_[0];
    constexpr std::size_t buffer_bytes = buffer_frames * 4;
    for (std::size_t at = 0; at + size <= static_cast<std::size_t>(written.size()); at += buffer_bytes) {
      if (std::memcmp(written.constData() + at, samples_.data(), size) == 0) return true;
    }
    return false;
  }

 private:
  struct Buffer {
    Clock::time_point made;
    std::size_t first_frame;
  };

  static void SDLCALL note(void* self, Uint8* stream, int bytes) { static_cast<Heard*>(self)->add(stream, bytes); }

  void add(const Uint8* stream, int bytes) {
    const auto count = static_cast<std::size_t>(bytes) / sizeof(std::int16_t);
    const std::size_t before = samples_.size();
    samples_.resize(before + count);
    std::memcpy(samples_.data() + before, stream, static_cast<std::size_t>(bytes));
    const bool silent = std::all_of(samples_.begin() + static_cast<std::ptrdiff_t>(before), samples_.end(),
                                    [](std::int16_t sample) { return sample == 0; });
    silent_frames_ = silent ? silent_frames_ + count / 2 : 0;
    buffers_.push_back({Clock::now(), before / 2});
    frames_ = samples_.size() / 2;
  }

  QString file_;
  std::vector<std::int16_t> samples_; // of both channels by turns; the mixer's thread alone adds to them
  std::vector<Buffer> buffers_;
  std::atomic<std::size_t> frames_{0};
  std::atomic<std::size_t> silent_frames_{0};
};

} // namespace cserko
