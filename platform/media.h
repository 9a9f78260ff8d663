// The machine's media control, spoken to by command strings.
#pragma once

#include "platform/text.h"

namespace cserko {

/// What a command came to: 0 or an error code, and the reply of a status question.
struct MediaResult {
  int code = 0;
  Text reply;
};

class Media {
 public:
  virtual ~Media() = default;
  /// Carries out one command string and returns at once; sounds play in the background.
  virtual MediaResult send(const Text& command) = 0;
  /// A Hungarian sentence for an error code.
  virtual Text error_text(int code) = 0;
  /// The plain short beep.
  virtual void beep() = 0;
};

} // namespace cserko
