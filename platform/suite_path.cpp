#include "platform/suite_path.h"

#include <algorithm>
#include <vector>

namespace cserko {

namespace {

bool is_separator(char16_t character) { return character == u'\\' || character == u'/'; }

// Of dots and blanks alone: some systems take such a name for the folder itself or the one above it.
bool is_only_dots(TextView name) {
  return std::all_of(name.begin(), name.end(), [](char16_t c) { return c == u'.' || c == u' '; });
}

std::vector<TextView> parts_of(TextView path) {
  std::vector<TextView> parts;
  for (std::size_t begin = 0; begin <= path.size();) {
    const auto end = static_cast<std::size_t>(
        std::find_if(path.begin() + static_cast<std::ptrdiff_t>(begin), path.end(), is_separator) - path.begin());
    if (end > begin) parts.push_back(path.substr(begin, end - begin));
    begin = end + 1;
  }
  return parts;
}

// The parts with `.` and `..` carried out; none where that cannot be done within one drive.
std::optional<std::vector<TextView>> resolved(const std::vector<TextView>& parts) {
  std::vector<TextView> result;
  for (const TextView part : parts) {
    if (part == u".") continue;
    if (part == u"..") {
      if (result.size() < 2) return std::nullopt;
      result.pop_back();
      continue;
    }
    const bool drive = result.empty();
    const bool strange = part.find(u'\0') != TextView::npos || (!drive && part.find(u':') != TextView::npos);
    if (strange || is_only_dots(part)) return std::nullopt;
    result.push_back(part);
  }
  return result;
}

} // namespace

Text SuitePath::text() const {
  Text whole(root == Root::Application ? application_root : user_root);
  if (!below.empty()) whole += u"\\" + below;
  return whole;
}

std::optional<SuitePath> suite_path(TextView path) {
  if (path.empty() || is_separator(path.front())) return std::nullopt;
  const auto parts = resolved(parts_of(path));
  if (!parts || parts->size() < 2) return std::nullopt;
  const Text folder = Text((*parts)[0]) + u"\\" + Text((*parts)[1]);
  const bool application = equal_ignoring_case(folder, application_root);
  if (!application && !equal_ignoring_case(folder, user_root)) return std::nullopt;
  SuitePath result{application ? SuitePath::Root::Application : SuitePath::Root::User, {}};
  for (std::size_t i = 2; i < parts->size(); ++i) {
    if (i > 2) result.below += u'\\';
    result.below += (*parts)[i];
  }
  return result;
}

} // namespace cserko
