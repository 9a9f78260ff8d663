#include "core/settings.h"

#include "core/frame.h"
#include "core/numbers.h"

#include <algorithm>
#include <utility>

namespace cserko {

namespace {

TextView trimmed(TextView line) {
  const auto first = line.find_first_not_of(u" \t");
  if (first == TextView::npos) return {};
  return line.substr(first, line.find_last_not_of(u" \t") - first + 1);
}

void make_folder_ignoring_errors(Files& files, const Text& path) {
  try {
    files.make_folder(path);
  } catch (const FileError&) {
    // Writing the file tells of the failure.
  }
}

// A window that is smaller than what a finger can hit is no window.
constexpr double least_window = 44 * twips_per_pixel;

// Gives a window a place that was stored, perhaps on a larger screen; a size that no screen shows is not taken.
void move_onto_screen(Window& window, const Rect& place) {
  const Size screen = window.platform().screen_size();
  const auto fits = [](double size, double room) { return size >= least_window && size <= room; };
  if (!fits(place.width, screen.width) || !fits(place.height, screen.height)) return;
  window.Left = std::clamp(place.left, 0.0, screen.width - place.width);
  window.Top = std::clamp(place.top, 0.0, screen.height - place.height);
  window.Width = place.width;
  window.Height = place.height;
}

} // namespace

void SettingsWriter::number(int value) { text((value < 0 ? u"" : u" ") + to_text(value) + u" "); }

void SettingsWriter::word(bool value) { text(value ? u"True" : u"False"); }

void SettingsWriter::quoted(TextView value) { text(u"\"" + Text(value) + u"\""); }

void SettingsWriter::text(TextView value) { bytes_ += to_cp1250(value) + "\r\n"; }

void write_settings(Platform& platform, const Text& path, const SettingsWriter& content) {
  Files& files = platform.files();
  make_folder_ignoring_errors(files, u"c:\\pomzu");
  make_folder_ignoring_errors(files, Text(fixed_root.substr(0, fixed_root.size() - 1)));
  try {
    files.write(path, content.bytes());
  } catch (const FileError& error) {
    platform.report_error(u"A beállításokat nem sikerült elmenteni.\r\n" + from_utf8(error.what()));
  }
}

std::optional<int> number_in(TextView line) {
  line = trimmed(line);
  const bool negative = !line.empty() && line.front() == u'-';
  if (negative) line.remove_prefix(1);
  if (line.empty() || line.size() > 9) return std::nullopt;
  int number = 0;
  for (const char16_t digit : line) {
    if (digit < u'0' || digit > u'9') return std::nullopt;
    number = number * 10 + (digit - u'0');
  }
  return negative ? -number : number;
}

std::optional<bool> word_in(TextView line) {
  line = trimmed(line);
  if (equal_ignoring_case(line, u"True")) return true;
  if (equal_ignoring_case(line, u"False")) return false;
  return std::nullopt;
}

std::optional<Text> quoted_in(TextView line) {
  line = trimmed(line);
  if (line.empty()) return std::nullopt;
  if (line.front() != u'"') return Text(line);
  line.remove_prefix(1);
  if (!line.empty() && line.back() == u'"') line.remove_suffix(1);
  return Text(line);
}

namespace {

void write_line(SettingsWriter& writer, const UpDown* updown) { writer.number(updown->value()); }
void write_line(SettingsWriter& writer, const CheckBox* box) { writer.number(box->value()); }
void write_line(SettingsWriter& writer, const ScrollBar* bar) { writer.number(bar->value()); }
void write_line(SettingsWriter& writer, const OptionButton* option) { writer.word(option->value()); }
void write_line(SettingsWriter& writer, const TextBox* box) { writer.quoted(box->text()); }
void write_line(SettingsWriter& writer, const OppositeOptions& options) { writer.word(options.stored->value()); }
void write_line(SettingsWriter& writer, const SelectedEntries& entries) {
  for (const bool selected : entries.list->selection()) writer.word(selected);
}
void write_line(SettingsWriter& writer, const StoredNumber& number) { writer.number(number.value()); }
void write_line(SettingsWriter& writer, const WindowPlace& place) {
  const Window& window = *place.window;
  for (const double value : {window.Left, window.Top, window.Width, window.Height}) writer.number(rounded(value));
}

std::optional<int> next_number(LineReader& lines) { return number_in(from_cp1250(lines.next())); }
std::optional<bool> next_word(LineReader& lines) { return word_in(from_cp1250(lines.next())); }

void read_line(LineReader& lines, UpDown* updown) {
  const auto number = next_number(lines);
  if (number && updown->clamped(*number) == *number) updown->set_value(*number);
}

void read_line(LineReader& lines, ScrollBar* bar) {
  const auto number = next_number(lines);
  if (number && *number >= bar->Min && *number <= bar->Max) bar->set_value(*number);
}

void read_line(LineReader& lines, CheckBox* box) {
  const auto number = next_number(lines);
  if (number && *number >= 0 && *number <= 2) box->set_value(*number);
}

void read_line(LineReader& lines, OptionButton* option) {
  if (const auto word = next_word(lines)) option->set_value(*word);
}

void read_line(LineReader& lines, TextBox* box) {
  const auto text = quoted_in(from_cp1250(lines.next()));
  if (text && (box->MaxLength == 0 || text->size() <= static_cast<std::size_t>(box->MaxLength))) box->set_text(*text);
}

void read_line(LineReader& lines, const OppositeOptions& options) {
  const auto word = next_word(lines);
  if (!word) return;
  options.stored->set_value(*word);
  options.opposite->set_value(!*word);
}

void read_line(LineReader& lines, const SelectedEntries& entries) {
  std::vector<bool> selection = entries.list->selection();
  for (auto&& selected : selection) {
    if (const auto word = next_word(lines)) selected = *word;
  }
  entries.list->set_selection(selection);
}

void read_line(LineReader& lines, const StoredNumber& stored) {
  if (const auto number = next_number(lines)) stored.set(*number);
}

void read_line(LineReader& lines, const WindowPlace& place) {
  Rect read;
  for (double* value : {&read.left, &read.top, &read.width, &read.height}) {
    const auto number = next_number(lines);
    if (!number) return;
    *value = *number;
  }
  move_onto_screen(*place.window, read);
}

/// The handlers of the numbers rest for as long as this lives.
class HandlersAtRest {
 public:
  explicit HandlersAtRest(const std::vector<SettingsField>& fields) {
    for (const SettingsField& field : fields) {
      if (auto* const* updown = std::get_if<UpDown*>(&field)) rest((*updown)->Change);
      if (auto* const* bar = std::get_if<ScrollBar*>(&field)) rest((*bar)->Change);
    }
  }
  ~HandlersAtRest() {
    for (Handler& handler : resting_) handler.place->swap(handler.resting);
  }
  HandlersAtRest(const HandlersAtRest&) = delete;
  HandlersAtRest& operator=(const HandlersAtRest&) = delete;

 private:
  struct Handler {
    std::function<void()>* place;
    std::function<void()> resting;
  };

  void rest(std::function<void()>& handler) { resting_.push_back({&handler, std::exchange(handler, nullptr)}); }

  std::vector<Handler> resting_;
};

} // namespace

SettingsFields::SettingsFields(std::vector<SettingsField> fields) : fields_(std::move(fields)) {
  for (const SettingsField& field : fields_) {
    if (auto* const* updown = std::get_if<UpDown*>(&field))
      widest_.push_back({*updown, (*updown)->Min, (*updown)->Max});
  }
}

SettingsWriter SettingsFields::written() const {
  SettingsWriter writer;
  for (const SettingsField& field : fields_) {
    std::visit([&writer](const auto& value) { write_line(writer, value); }, field);
  }
  return writer;
}

void SettingsFields::open_ranges() const {
  for (const Range& range : widest_) {
    range.updown->Min = range.minimum;
    range.updown->Max = range.maximum;
  }
}

void SettingsFields::read(std::string_view bytes) const {
  LineReader lines(bytes);
  read(lines);
}

void SettingsFields::read(LineReader& lines) const {
  open_ranges();
  {
    const HandlersAtRest rest(fields_);
    for (const SettingsField& field : fields_) {
      if (lines.end()) break;
      std::visit([&lines](const auto& value) { read_line(lines, value); }, field);
    }
  }
  settle();
}

void SettingsFields::settle() const {
  for (const SettingsField& field : fields_) {
    if (auto* const* updown = std::get_if<UpDown*>(&field)) {
      (*updown)->show_value();
      if ((*updown)->Change) (*updown)->Change();
    }
    if (auto* const* bar = std::get_if<ScrollBar*>(&field); bar != nullptr && (*bar)->Change) (*bar)->Change();
  }
}

NotedFields::NotedFields(std::vector<SettingsField> fields)
    : fields_(std::move(fields)), values_(fields_.written().bytes()) {}

CoupledRange::CoupledRange(UpDown& lower, UpDown& upper, int cap) : lower_(lower), upper_(upper), cap_(cap) {
  lower_.Max = cap_;
  lower_.Change = [this] { limit_upper(); };
  upper_.Change = [this] { limit_lower(); };
}

// Only a file that contradicts itself leaves a value outside: the line that comes first holds, the other follows it.
void CoupledRange::limit_lower() {
  lower_.Max = std::min(upper_.value(), cap_);
  if (lower_.value() > lower_.Max) lower_.set_value(lower_.Max);
}

void CoupledRange::limit_upper() {
  upper_.Min = lower_.value();
  if (upper_.value() < upper_.Min) upper_.set_value(upper_.Min);
}

SettingsDialog::SettingsDialog(Session& session, TextView name, Size design, TextView caption, TextView file)
    : Window(session.platform(), name, design, caption), session_(session), file_(Text(fixed_root) + Text(file)) {}

void SettingsDialog::set_buttons(Button& ok) {
  ok.Default = true;
  ok.Click = [this] { accept(); };
}

void SettingsDialog::set_buttons(Button& ok, Button& cancel_button) {
  set_buttons(ok);
  cancel_button.Cancel = true;
  cancel_button.Click = [this] { cancel(); };
}

void SettingsDialog::set_help(Button& help, TextView page) {
  help_ = &help;
  KeyPreview = true;
  help.Click = [this, page = Text(page)] { súgó_megnyitás(session_, page); };
}

void SettingsDialog::Load() {
  read();
  ablak_középre(session_, *this);
  if (fit_buttons_) gombok_illesztése(*this);
}

void SettingsDialog::KeyDown(KeyEvent& event) {
  if (event.code != key::f1 || help_ == nullptr) return;
  event.code = 0;
  help_->Click();
}

void SettingsDialog::QueryUnload(bool& keep) {
  if (!visible()) return;
  keep = true;
  close_box();
}

std::optional<Text> SettingsDialog::file_to_read() const {
  const Files& files = platform().files();
  for (const Text& path : {own_file(), factory_file()}) {
    if (!path.empty() && files.exists(path)) return path;
  }
  return std::nullopt;
}

void SettingsDialog::read() {
  const auto path = file_to_read();
  const auto bytes = path ? platform().files().read(*path) : std::nullopt;
  if (bytes) {
    fields_.read(*bytes);
  } else {
    fields_.settle();
  }
  after_read(bytes.has_value());
}

void SettingsDialog::write() { write_settings(platform(), file_, fields_.written()); }

void SettingsDialog::accept() {
  write();
  platform().hide(*this);
  apply();
}

void SettingsDialog::cancel() {
  read();
  platform().hide(*this);
}

} // namespace cserko
