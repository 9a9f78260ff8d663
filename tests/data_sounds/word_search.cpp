#include "word_search.h"

#include "core/codepage.h"

#include <cmath>

namespace cserko::test {

namespace {

/// A file that is read line by line from any byte; positions count from 1.
class ByteFile {
 public:
  explicit ByteFile(const std::string& bytes) : bytes_(bytes) {}

  void seek(long position) { at_ = static_cast<std::size_t>(position - 1); }
  long position() const { return static_cast<long>(at_) + 1; }
  bool at_end() const { return at_ >= bytes_.size(); }

  /// The line up to the next CR LF or CR.
  Text line() {
    std::string text;
    while (!at_end() && bytes_[at_] != '\r') text += bytes_[at_++];
    if (!at_end()) ++at_;
    if (!at_end() && bytes_[at_] == '\n') ++at_;
    return from_cp1250(text);
  }

 private:
  const std::string& bytes_;
  std::size_t at_ = 0;
};

/// A half goes to the even neighbour.
long half_of(long sum) { return static_cast<long>(std::nearbyint(static_cast<double>(sum) / 2)); }

} // namespace

bool szó_a_szótárban_by_rule(const std::string& bytes, const Text& word) {
  constexpr long close_enough = 500;
  constexpr long step_back = 30;
  ByteFile file(bytes);
  long high = static_cast<long>(bytes.size());
  long low = 0;
  do {
    file.seek(std::max(1L, half_of(high + low)));
    file.line(); // perhaps the tail of a word
    if (file.at_end()) {
      high = half_of(high + low); // no second line: the end is an upper bound
      continue;
    }
    const Text line = file.line();
    if (line == word) return true;
    (line > word ? high : low) = file.position();
  } while (high - low > close_enough);

  file.seek(std::max(low, step_back + 1) - step_back);
  while (!file.at_end()) {
    if (file.line() == word) return true;
    if (file.position() >= high) return false;
  }
  return false;
}

} // namespace cserko::test
