// A media control on one of SDL's drivers, with sounds and tunes in a folder of its own.
#pragma once

#include "platform/qt/sdl_media.h"
#include "platform/qt/sound_font.h"
#include "tests/media/sound_files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtGlobal>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace cserko::test {

/// Waits for a condition; false if it does not come true in time. A busy computer reads a sound font for half a minute.
inline bool eventually(const std::function<bool()>& condition,
                       std::chrono::milliseconds limit = std::chrono::minutes(3)) {
  const auto deadline = std::chrono::steady_clock::now() + limit;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > deadline) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  return true;
}

class SdlMediaTest : public testing::Test {
 protected:
  void TearDown() override {
    media_.reset();
    for (const char* name : {"SDL_AUDIODRIVER", "SDL_DISKAUDIOFILE", "SDL_DISKAUDIODELAY", sound_font_variable})
      qunsetenv(name);
  }

  QString real(const QString& name) const { return folder_.filePath(name); }

  void write(const QString& name, const Bytes& bytes) const {
    QFile file(real(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size())),
              static_cast<qint64>(bytes.size()));
  }

  /// Starts the media control on a driver; a path of the suite is a name in the test's folder.
  SdlMedia& start(const char* driver) {
    qputenv("SDL_AUDIODRIVER", driver);
    media_ = std::make_unique<SdlMedia>(
        [this](const std::u16string& path) { return real(QString::fromStdU16String(path)).toStdString(); });
    return *media_;
  }

  /// Starts it on a device that writes what is heard into a file, faster than it would sound.
  SdlMedia& start_recording(const char* buffer_delay = "2") {
    qputenv("SDL_DISKAUDIOFILE", real("heard.raw").toUtf8());
#ifdef Q_OS_WIN
    // There the device knows one variable at a time, and would take the delay for the file: it takes its time.
    (void)buffer_delay;
#else
    qputenv("SDL_DISKAUDIODELAY", buffer_delay);
#endif
    return start("disk");
  }

  qint64 recorded_bytes() const { return QFileInfo(real("heard.raw")).size(); }

  /// Waits until the device has taken that many more seconds of sound.
  bool record_more(double seconds) const {
    const qint64 wanted = recorded_bytes() + static_cast<qint64>(seconds * test_rate) * 4;
    return eventually([&] { return recorded_bytes() >= wanted; });
  }

  /// Ends the media control; the left channel of all that was heard.
  std::vector<std::int16_t> end_and_listen() {
    media_.reset();
    return listen();
  }

  /// Plays a tune to its end; the left channel of all that was heard.
  std::vector<std::int16_t> whole_tune(const std::u16string& tune) {
    start_recording();
    EXPECT_EQ(open_midi(tune), 0);
    EXPECT_EQ(send(u"play midi "), 0);
    EXPECT_EQ(midi_mode(), u"playing");
    EXPECT_TRUE(eventually([this] { return midi_mode() == u"stopped"; }));
    EXPECT_EQ(media_->silence_reason(), u"");
    return end_and_listen();
  }

  /// The left channel of what has been heard so far; nothing as long as the device is not open.
  std::vector<std::int16_t> listen() const {
    QFile file(real("heard.raw"));
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QByteArray bytes = file.readAll();
    std::vector<std::int16_t> left(static_cast<std::size_t>(bytes.size()) / 4);
    for (std::size_t i = 0; i < left.size(); ++i) std::memcpy(&left[i], bytes.constData() + i * 4, 2);
    return left;
  }

  /// Whether the last seconds that were heard are silence.
  bool silent_at_end(double seconds) const {
    const auto heard = listen();
    const auto count = static_cast<std::ptrdiff_t>(seconds * test_rate);
    return std::ssize(heard) >= count && std::all_of(heard.end() - count, heard.end(), [](int s) { return s == 0; });
  }

  int send(const std::u16string& command) { return media_->send(command).code; }
  int open_hang(const std::u16string& name) { return send(u"open \"" + name + u"\" type waveaudio alias hang"); }
  int open_midi(const std::u16string& name) { return send(u"open \"" + name + u"\" type sequencer alias midi"); }
  std::u16string hang_mode() { return media_->send(u"Status hang mode").reply; }
  std::u16string midi_mode() { return media_->send(u"Status midi mode").reply; }

  QTemporaryDir folder_;
  std::unique_ptr<SdlMedia> media_;
};

inline int largest_step(const std::vector<std::int16_t>& samples) {
  int largest = 0;
  for (std::size_t i = 1; i < samples.size(); ++i) largest = std::max(largest, std::abs(samples[i] - samples[i - 1]));
  return largest;
}

inline int peak(const std::vector<std::int16_t>& samples) {
  int highest = 0;
  for (const std::int16_t sample : samples) highest = std::max(highest, std::abs(static_cast<int>(sample)));
  return highest;
}

} // namespace cserko::test
