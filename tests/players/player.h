// Somebody who plays an exercise through its elements alone: clicks, drags and keys. The same player plays on every
// machine, also on those where an action takes effect some time after the hand has moved, so each step is decided from
// what the windows show and never from what was done before.
#pragma once

#include "platform/window.h"
#include "tests/players/hand.h"

#include <cstdint>

namespace cserko {

enum class PlayMode : std::uint8_t { Mouse, Keyboard };

class Player {
 public:
  using Mode = PlayMode;

  virtual ~Player() = default;

  /// One action of a person in the window at the front. False when there is nothing to do but wait.
  virtual bool step(Window& top, Hand& hand) = 0;

  /// Congratulation panels seen so far: sets that were solved.
  virtual int sets() const = 0;
  /// Wrong answers so far that the player knew to be wrong.
  virtual int wrong_answers() const = 0;
};

} // namespace cserko
