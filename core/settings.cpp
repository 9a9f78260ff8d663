#include "core/settings.h"

#include "core/codepage.h"
#include "core/frame.h"

namespace cserko {

namespace {

TextView trimmed(TextView line) {
  const auto first = line.find_first_not_of(u" \t");
  if (first == TextView::npos) return {};
  return line.substr(first, line.find_last_not_of(u" \t") - first + 1);
}

template<class... Ts> struct Overloaded : Ts... { using Ts::operator()...; };
template<class... Ts> Overloaded(Ts...) -> Overloaded<Ts...>;

void make_folder_ignoring_errors(Files& files, const Text& path) {
  try {
    files.make_folder(path);
  } catch (const FileError&) {
    // Writing the file tells of the failure.
  }
}

void read_number(UpDown& updown, int number) {
  if (updown.clamped(number) == number) updown.set_value(number);
}

void read_number(ScrollBar& bar, int number) {
  if (number >= bar.Min && number <= bar.Max) bar.set_value(number);
}

void read_number(CheckBox& box, int number) {
  if (number >= 0 && number <= 2) box.set_value(number);
}

} // namespace

void SettingsWriter::number(int value) { text((value < 0 ? u"" : u" ") + to_text(value) + u" "); }

void SettingsWriter::word(bool value) { text(value ? u"True" : u"False"); }

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

SettingsWriter write_fields(const std::vector<SettingsField>& fields) {
  SettingsWriter writer;
  for (const SettingsField& field : fields) {
    std::visit(Overloaded{[&](const UpDown* updown) { writer.number(updown->value()); },
                          [&](const CheckBox* box) { writer.number(box->value()); },
                          [&](const ScrollBar* bar) { writer.number(bar->value()); },
                          [&](const OptionButton* option) { writer.word(option->value()); }},
               field);
  }
  return writer;
}

void read_fields(const std::vector<SettingsField>& fields, std::string_view bytes) {
  LineReader lines(bytes);
  for (const SettingsField& field : fields) {
    if (lines.end()) return;
    const Text line = from_cp1250(lines.next());
    const auto take_number = [&line](auto* control) {
      if (const auto number = number_in(line)) read_number(*control, *number);
    };
    std::visit(Overloaded{[&](UpDown* updown) { take_number(updown); }, [&](CheckBox* box) { take_number(box); },
                          [&](ScrollBar* bar) { take_number(bar); },
                          [&](OptionButton* option) {
                            if (const auto word = word_in(line)) option->set_value(*word);
                          }},
               field);
  }
}

SettingsDialog::SettingsDialog(Session& session, TextView name, Size design, TextView caption, TextView file)
    : Window(session.platform(), name, design, caption), session_(session), file_(Text(fixed_root) + Text(file)) {}

void SettingsDialog::set_buttons(Button& ok, Button& cancel_button) {
  ok.Default = true;
  ok.Click = [this] { accept(); };
  cancel_button.Cancel = true;
  cancel_button.Click = [this] { cancel(); };
}

void SettingsDialog::set_help(Button& help, TextView page) {
  help.Click = [this, page = Text(page)] { súgó_megnyitás(session_, page); };
}

void SettingsDialog::Load() {
  read();
  ablak_középre(session_, *this);
}

void SettingsDialog::QueryUnload(bool& keep) {
  if (!visible()) return;
  keep = true;
  cancel();
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
  if (!path) return;
  if (const auto bytes = platform().files().read(*path)) read_fields(fields_, *bytes);
}

void SettingsDialog::write() { write_settings(platform(), file_, write_fields(fields_)); }

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
