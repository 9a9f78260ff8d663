// Sound as the suite asks for it: command strings to the machine's media control, and a plain beep.
#pragma once

#include <string>

namespace cserko {

/// What the media control answers. A code other than 0 is an error that `Media::error_text` puts into words.
struct MediaResult {
  int code = 0;
  std::u16string reply;
};

/// The machine's media control, spoken to by command strings. All calls come from the one thread of the suite and
/// return at once; sounds play in the background.
class Media {
 public:
  virtual ~Media() = default;
  /// Carries out one command string. Nothing is thrown: what fails comes back as a code.
  virtual MediaResult send(const std::u16string& command) = 0;
  /// A Hungarian sentence that says what an error code means; empty for 0.
  virtual std::u16string error_text(int code) = 0;
  /// A short plain signal, heard beside whatever plays.
  virtual void beep() = 0;
  /// Why there is no sound, or no music: a Hungarian sentence; empty when nothing is known to be wrong.
  virtual std::u16string silence_reason() const { return {}; }
};

} // namespace cserko
