// What a draw throws when no choice is left to it.
#pragma once

#include "platform/text.h"

#include <stdexcept>

namespace cserko {

/// Nothing can pass under the present settings. The message is a Hungarian sentence for the user that says which
/// setting to relax; the event boundary shows it in the suite's own panel.
class NothingFits : public std::runtime_error {
 public:
  explicit NothingFits(TextView message) : std::runtime_error(to_utf8(message)), message_(message) {}

  const Text& message() const { return message_; }

 private:
  Text message_;
};

} // namespace cserko
