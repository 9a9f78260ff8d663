// The system's own dialogs for files and colours. What the user chooses there lies anywhere on the machine, outside the
// suite's own paths, and is named as the machine names it.
#pragma once

#include "platform/elements.h"

#include <optional>
#include <string>
#include <string_view>

namespace cserko {

/// What a file dialog shows.
struct FileQuestion {
  Text filter;          ///< Names and patterns in turn: "Minden fájl (*.*)|*.*|Képfájlok (*.bmp)|*.bmp".
  int filter_index = 1; ///< The one in force at first, counted from 1.
  Text folder;          ///< Where it starts, as the suite writes it; empty: where the machine likes.
  Text ending;          ///< Added to a name to save under that has none, such as ".bmp".
};

/// While a dialog stands its owner is not active; it is activated again behind it.
class Dialogs {
 public:
  virtual ~Dialogs() = default;
  /// The chosen file, none if the user cancels.
  virtual std::optional<Text> open_file(Window& owner, const FileQuestion& question) = 0;
  /// The same for a file to write. The dialog asks by itself before a file is replaced.
  virtual std::optional<Text> save_file(Window& owner, const FileQuestion& question) = 0;
  /// The chosen colour, none if the user cancels.
  virtual std::optional<Color> choose_color(Window& owner, Color present) = 0;

  /// The whole content of a chosen file, none if it cannot be read.
  virtual std::optional<std::string> read(const Text& chosen) = 0;
  /// Writes a chosen file in one step. Throws FileError, an old file whole.
  virtual void write(const Text& chosen, std::string_view bytes) = 0;
};

} // namespace cserko
