#include "tests/x11/heard_platform.h"

#include <map>

namespace cserko {

/// Passes every call on, and counts the sounds by the names of their files.
class HeardPlatform::Ear : public Media {
 public:
  explicit Ear(Media& media) : media_(media) {}

  MediaResult send(const std::u16string& command) override {
    const std::size_t end = command.rfind(u'"');
    if (command.starts_with(u"open ") && command.ends_with(u" alias hang") && end != Text::npos) {
      const std::size_t start = command.find_last_of(u"\\\"", end - 1) + 1;
      ++counts_[command.substr(start, end - start)];
    }
    return media_.send(command);
  }
  std::u16string error_text(int code) override { return media_.error_text(code); }
  void beep() override { media_.beep(); }
  std::u16string silence_reason() const override { return media_.silence_reason(); }

  int count(const Text& file) const {
    const auto found = counts_.find(file);
    return found == counts_.end() ? 0 : found->second;
  }

 private:
  Media& media_;
  std::map<Text, int> counts_;
};

HeardPlatform::HeardPlatform() : ear_(std::make_unique<Ear>(QtPlatform::media())) {}

HeardPlatform::~HeardPlatform() = default;

Media& HeardPlatform::media() { return *ear_; }

int HeardPlatform::heard(TextView file) const { return ear_->count(Text(file)); }

int HeardPlatform::heard_any(const std::vector<Text>& files) const {
  int sum = 0;
  for (const Text& file : files) sum += ear_->count(file);
  return sum;
}

} // namespace cserko
