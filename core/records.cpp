#include "core/records.h"

#include "core/codepage.h"
#include "core/nothing_fits.h"
#include "core/numbers.h"

#include <algorithm>
#include <limits>

namespace cserko {

namespace {

constexpr int largest_index = std::numeric_limits<std::int16_t>::max();

// After so many draws without success the candidates are looked through once.
constexpr int fruitless_draws = 200;

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

int Records::draw(Platform& platform, const Filter& passes, TextView advice, Reach reach) const {
  const bool with_last = reach == Reach::WithLast;
  for (int fruitless = 0;; ++fruitless) {
    if (fruitless == fruitless_draws) {
      int candidate = 0;
      const int end = with_last ? képszám + 1 : képszám;
      while (!passes(candidate)) {
        if (++candidate >= end) throw NothingFits(advice);
      }
    }
    const int index = with_last ? rounded(platform.random() * képszám) : random_below(platform, képszám);
    if (passes(index)) return index;
  }
}

} // namespace cserko
