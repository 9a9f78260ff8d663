// The system's dialogs for files and colours over Qt.
#pragma once

#include "platform/dialogs.h"

#include <QStringList>
#include <QTranslator>

namespace cserko {

class QtPlatform;

class QtDialogs : public Dialogs {
 public:
  explicit QtDialogs(QtPlatform& platform) : platform_(platform) {}

  std::optional<Text> open_file(Window& owner, const FileQuestion& question) override;
  std::optional<Text> save_file(Window& owner, const FileQuestion& question) override;
  std::optional<Color> choose_color(Window& owner, Color present) override;
  std::optional<std::string> read(const Text& chosen) override;
  void write(const Text& chosen, std::string_view bytes) override;

 private:
  std::optional<Text> ask(Window& owner, const FileQuestion& question, bool saving);
  void speak_hungarian();

  QtPlatform& platform_;
  QTranslator translator_;
  bool asked_for_translation_ = false;
  QString last_folder_; ///< Where the user went last.
};

/// A filter such as "Minden fájl (*.*)|*.*|Képfájlok (*.bmp)|*.bmp" in Qt's form.
QStringList name_filters(TextView filter);

} // namespace cserko
