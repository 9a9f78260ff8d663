#include "exercises/shared/record_files.h"

#include "core/codepage.h"

namespace cserko {

namespace {

constexpr TextView text_ending = u".wms";
constexpr TextView picture_ending = u".wmf";

} // namespace

const std::vector<Text>& RecordFiles::names() {
  if (listed_) return names_;
  listed_ = true;
  names_ = session_.platform().files().list(path(u"*", text_ending));
  for (Text& name : names_) {
    name.resize(name.size() - text_ending.size());
    indexes_.emplace(lower_case(name), static_cast<int>(indexes_.size()));
  }
  return names_;
}

const Text& RecordFiles::word(int index, int line) {
  const auto at = static_cast<std::size_t>(index);
  const Text& name = names().at(at);
  std::vector<std::optional<Text>>& words = words_[line];
  words.resize(names_.size());
  if (!words[at]) words[at] = read(name, line);
  return *words[at];
}

const Text& RecordFiles::word(const Text& name, int line) {
  static const Text none;
  names();
  const auto found = indexes_.find(lower_case(name));
  return found == indexes_.end() ? none : word(found->second, line);
}

Text RecordFiles::picture(TextView name) const { return path(name, picture_ending); }

Text RecordFiles::path(TextView name, TextView ending) const {
  return session_.alapkönyvtár + u"kepek\\" + Text(name) + Text(ending);
}

Text RecordFiles::read(TextView name, int line) const {
  const auto bytes = session_.platform().files().read(path(name, text_ending));
  if (!bytes) return {};
  LineReader lines(*bytes);
  std::string_view found;
  for (int i = 0; i < line; ++i) found = lines.next();
  return lower_case(from_cp1250(found.substr(0, Records::longest_field)));
}

} // namespace cserko
