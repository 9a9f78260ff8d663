#include "tests/suite/suite_fixture.h"

#include "core/codepage.h"
#include "core/exercise_table.h"
#include "feedback/message_panels.h"

#include <algorithm>

namespace cserko {

void DiaryPlatform::note(const std::string& entry) {
  const auto& commands = media().commands;
  for (; heard_ < commands.size(); ++heard_) diary_.push_back(to_utf8(commands[heard_]));
  if (!entry.empty()) diary_.push_back(entry);
}

const std::vector<std::string>& DiaryPlatform::diary() {
  note({});
  return diary_;
}

std::vector<std::string> DiaryPlatform::diary(std::initializer_list<std::string_view> beginnings) {
  std::vector<std::string> entries;
  std::copy_if(diary().begin(), diary().end(), std::back_inserter(entries), [&](const std::string& entry) {
    return std::any_of(beginnings.begin(), beginnings.end(),
                       [&](std::string_view beginning) { return entry.starts_with(beginning); });
  });
  return entries;
}

int DiaryPlatform::count(std::string_view entry) {
  return static_cast<int>(std::count(diary().begin(), diary().end(), entry));
}

DiaryPlatform::DiaryPlatform() {
  files().watch = [this](TextView deed, const Text& path) { note(to_utf8(deed) + " " + to_utf8(path)); };
}

Rect DiaryPlatform::whole_screen() const {
  if (screen_fails) throw std::runtime_error("no screen");
  return HeadlessPlatform::whole_screen();
}

void DiaryPlatform::seed_random() {
  note("seed");
  HeadlessPlatform::seed_random();
}

void DiaryPlatform::attach(Window& window) {
  note("load " + to_utf8(window.Name));
  HeadlessPlatform::attach(window);
}

void DiaryPlatform::detach(Window& window) {
  note("unload " + to_utf8(window.Name));
  HeadlessPlatform::detach(window);
}

void DiaryPlatform::show(Window& window) {
  note("show " + to_utf8(window.Name));
  HeadlessPlatform::show(window);
}

void DiaryPlatform::show_modal(Window& window) {
  note("modal " + to_utf8(window.Name));
  HeadlessPlatform::show_modal(window);
}

void DiaryPlatform::hide(Window& window) {
  if (window.visible()) note("hide " + to_utf8(window.Name));
  HeadlessPlatform::hide(window);
}

void DiaryPlatform::start_process(const Text& command_line, ProcessWindow window) {
  note("start " + to_utf8(command_line));
  HeadlessPlatform::start_process(command_line, window);
}

void DiaryPlatform::end_process() {
  note("end");
  HeadlessPlatform::end_process();
}

SuiteTest::SuiteTest() {
  machine.set_seed(20260101);
  for (const TextView sound : {u"null.wav", u"cserko\\clack 1.wav", u"cserko\\moving.wav", u"cserko\\alarm.wav"})
    put_app_file(sound);
}

SuiteTest::~SuiteTest() = default;

void SuiteTest::TearDown() {
  EXPECT_TRUE(machine.script.empty()) << "windows that were expected did not come";
  EXPECT_EQ(machine.scripted_random_left(), 0U) << "random numbers that were not drawn";
  EXPECT_EQ(machine.errors.size(), expected_errors) << (machine.errors.empty() ? "" : utf8(machine.errors.back()));
}

void SuiteTest::put_word(const Word& word) { put_record(machine.files(), ++records_, word); }

void SuiteTest::put_words(std::initializer_list<TextView> names) {
  for (const TextView name : names) put_word({Text(name)});
}

void SuiteTest::put_sounds(std::initializer_list<TextView> names) {
  for (const TextView name : names) put_app_file(u"hangok\\" + Text(name));
}

void SuiteTest::put_app_file(TextView path, TextView content) {
  machine.files().put(Text(app) + Text(path), to_cp1250(content));
}

void SuiteTest::put_settings(TextView name, std::initializer_list<TextView> lines) {
  Text content;
  for (const TextView line : lines) content += Text(line) + u"\r\n";
  machine.files().put(Text(user_folder) + Text(name), to_cp1250(content));
}

std::string SuiteTest::file(TextView path) const { return machine.files().read(Text(path)).value_or("(none)"); }

Session& SuiteTest::assemble() {
  session_.emplace(machine);
  install_feedback(*session_);
  install_exercises(*session_);
  return *session_;
}

Session& SuiteTest::start() {
  assemble();
  session_->képek.load(machine.files(), session_->alapkönyvtár);
  return *session_;
}

void SuiteTest::choose_in_menus(const std::function<Window&()>& window,
                                const std::function<bool(const Element& entry)>& wanted) {
  for (std::size_t i = 0;; ++i) {
    const auto elements = window().elements();
    if (i >= elements.size()) return;
    Element& entry = *elements[i];
    if (entry.kind() == ElementKind::MenuItem && entry.Click && wanted(entry)) hand::click(entry);
  }
}

void SuiteTest::then_close_message() {
  then_in<szövegüzenet>([this](szövegüzenet& panel) {
    message = utf8(panel.szöveg.Caption);
    ++messages_shown;
    hand::click(panel.Command1);
  });
}

std::string SuiteTest::commands() {
  std::string lines;
  const auto& all = machine.media().commands;
  for (; heard_ < all.size(); ++heard_) lines += utf8(all[heard_]) + "\n";
  return lines;
}

void SuiteTest::expect_fitted(const Element& element, double points) {
  cserko::Font font = element.Font;
  font.size += points;
  const Text text = without_mnemonic(element.Caption);
  const auto too_large = [&] {
    const Size extent = machine.measure(font, text);
    return extent.width > 0.9 * element.Width || extent.height > 0.9 * element.Height;
  };
  EXPECT_TRUE(too_large()) << to_utf8(element.Name);
  if (font.size <= 6) return;
  font.size -= 1;
  EXPECT_FALSE(too_large()) << to_utf8(element.Name);
}

namespace {

template<std::size_t Number> struct StandIn : PlainWindow {
  explicit StandIn(Session& session) : PlainWindow(session, exercise_table[Number].window) {}
};

template<std::size_t... Numbers> void offer_each(Session& session, std::index_sequence<Numbers...>) {
  (session.offer<StandIn<Numbers>>(exercise_table[Numbers].window), ...);
}

} // namespace

void offer_stand_ins(Session& session) { offer_each(session, std::make_index_sequence<exercise_table.size()>()); }

const RecordedCanvas& drawn(PictureBox& box) { return dynamic_cast<const RecordedCanvas&>(box.canvas()); }

} // namespace cserko
