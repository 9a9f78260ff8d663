// The real machine under the ears of a test as well: it notes which sounds the suite asks for.
#pragma once

#include "tests/x11/watched_platform.h"

#include <memory>
#include <vector>

namespace cserko {

class HeardPlatform : public WatchedPlatform {
 public:
  HeardPlatform();
  ~HeardPlatform() override;

  /// The machine's own media control, which plays what it is asked for.
  Media& media() override;

  /// How often a sound was opened, by the bare name of its file.
  int heard(TextView file) const;
  /// How often any of several sounds was opened.
  int heard_any(const std::vector<Text>& files) const;

 private:
  class Ear;

  std::unique_ptr<Ear> ear_;
};

} // namespace cserko
