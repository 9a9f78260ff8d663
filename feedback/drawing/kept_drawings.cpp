#include "feedback/drawing/kept_drawings.h"

#include "platform/bitmap.h"

#include <algorithm>

namespace cserko {

namespace {

Text folder() { return Text(fixed_root) + u"rajzok\\"; }

constexpr TextView ending = u".bmp";
constexpr std::size_t longest_number = 9;

Text path_of(int number) { return folder() + to_text(number) + Text(ending); }

// The number that a file name is made of, 0 for a file that is none of ours.
int number_of(TextView name) {
  if (name.size() <= ending.size()) return 0;
  const TextView digits = name.substr(0, name.size() - ending.size());
  int number = 0;
  if (digits.size() > longest_number) return 0;
  for (const char16_t digit : digits) {
    if (digit < u'0' || digit > u'9') return 0;
    number = number * 10 + (digit - u'0');
  }
  return number;
}

} // namespace

KeptDrawings::KeptDrawings(Platform& platform) : platform_(platform) {
  for (const Text& name : platform.files().list(folder() + u"*" + Text(ending))) {
    if (const int number = number_of(name); number > 0) earlier_.push_back(number);
  }
  std::sort(earlier_.begin(), earlier_.end());
  own_ = earlier_.empty() ? 1 : earlier_.back() + 1;
}

void KeptDrawings::make_folder() {
  for (const Text& part : {Text(u"c:\\pomzu"), Text(fixed_root), folder()}) platform_.files().make_folder(part);
}

void KeptDrawings::keep(const PixelImage& image) {
  try {
    make_folder();
    platform_.files().write(path_of(own_), write_bitmap(image));
    drop_oldest();
  } catch (const FileError&) {
    // The drawing is on the screen; the next try may succeed.
  }
}

void KeptDrawings::drop_oldest() {
  while (earlier_.size() >= most) {
    platform_.files().remove(path_of(earlier_.front()));
    earlier_.erase(earlier_.begin());
  }
}

std::optional<PixelImage> KeptDrawings::next_earlier() {
  for (std::size_t tries = 0; tries < earlier_.size(); ++tries) {
    const std::size_t back = offered_++ % earlier_.size();
    const auto bytes = platform_.files().read(path_of(earlier_[earlier_.size() - 1 - back]));
    if (!bytes) continue;
    if (auto image = read_bitmap(*bytes)) return image;
  }
  return std::nullopt;
}

} // namespace cserko
