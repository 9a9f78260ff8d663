#include "core/records.h"

#include "core/codepage.h"
#include "core/kszöveg.h"

#include <algorithm>
#include <limits>

namespace cserko {

namespace {

constexpr int largest_index = std::numeric_limits<std::int16_t>::max();

Text field(std::string_view line) { return from_cp1250(line.substr(0, Records::longest_field)); }

Text picture_of(const Text& wms) { return wms.substr(0, wms.size() - 3) + u"wmf"; }

} // namespace

void Records::load(const Files& files, const Text& application_folder, const std::function<void(int index)>& progress) {
  const Text folder = application_folder + u"kepek\\";
  const Text pattern = folder + u"*.wms";
  // The folder is walked twice: once to count, once for the names. What appears in between is not seen.
  const auto count = static_cast<int>(files.list(pattern).size());
  const int last = std::clamp(count - 1, 0, largest_index);
  left_out_ = std::max(0, count - 1 - last);
  képszám = static_cast<std::int16_t>(last);
  records_.assign(static_cast<std::size_t>(last) + 1, {});
  cuts_ = {};
  derived_.clear();

  const std::vector<Text> names = files.list(pattern);
  for (int i = 0; i <= last; ++i) {
    const auto at = static_cast<std::size_t>(i);
    KépAdat& record = records_[at];
    record.wms = folder + (at < names.size() ? names[at] : Text());
    record.wmf = picture_of(record.wms);
    if (progress) progress(i);
    if (at < names.size()) read_fields(files, record);
  }
}

void Records::read_fields(const Files& files, KépAdat& record) const {
  const auto bytes = files.read(record.wms);
  if (!bytes) return;
  LineReader lines(*bytes);
  lines.next(); // line 1 has no use, like line 3, and keeps its place
  record.név = field(lines.next());
  lines.next();
  record.angol = field(lines.next());
  record.szótagolt = field(lines.next());
  record.meghatározás = field(lines.next());
  record.igaz = field(lines.next());
  record.hamis = field(lines.next());
}

const KépAdat& Records::operator[](int index) const {
  if (index < 0 || index > képszám)
    throw std::out_of_range("records: no record has the index " + std::to_string(index));
  return records_[static_cast<std::size_t>(index)];
}

int Records::szótagszám(int index) const {
  const Text& syllables = (*this)[index].szótagolt;
  return 1 + static_cast<int>(std::count(syllables.begin(), syllables.end(), u'-'));
}

const Text& Records::word(int index, WordForm form) const {
  const KépAdat& record = (*this)[index];
  if (form == WordForm::Angol) return record.angol;
  return form == WordForm::Szótagolt ? record.szótagolt : record.név;
}

Records::Cut& Records::cut(int index, WordForm form) const {
  std::vector<Cut>& cuts = cuts_.at(static_cast<std::size_t>(form));
  if (cuts.empty()) cuts.resize(records_.size());
  return cuts.at(static_cast<std::size_t>(index));
}

int Records::MAGYARBETŰKSZÁMA(int index, WordForm form) const {
  const Text& text = word(index, form);
  Cut& kept = cut(index, form);
  if (kept.count < 0) kept.count = static_cast<std::int16_t>(kszöveg::letter_count(text));
  return kept.count;
}

bool Records::vanebenne(int index, TextView letter, WordForm form) const {
  const Text& text = word(index, form);
  Cut& kept = cut(index, form);
  if (kept.list.empty()) kept.list = kszöveg::letter_list(text);
  return kszöveg::in_list(kept.list, letter);
}

int Records::word_length(int index, bool english) const {
  return english ? static_cast<int>((*this)[index].angol.size()) : MAGYARBETŰKSZÁMA(index);
}

int Records::draw(Platform& platform, const Passes& passes, TextView advice, Reach reach) const {
  switch (reach) {
  case Reach::WithLast:
    return draw_rounded(platform, képszám, passes, advice);
  case Reach::All:
    return draw_below(platform, képszám + 1, passes, advice);
  default:
    return draw_below(platform, képszám, passes, advice);
  }
}

} // namespace cserko
