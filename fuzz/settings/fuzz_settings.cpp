// Gives any bytes to the dialogs as their settings files. Every control must stay within what it can hold, lists must
// name sounds that exist, and what a dialog then writes it must read back as it was.
#include "core/frm_főablak_beállítások.h"
#include "exercises/letters/frm_cserkó.h"
#include "feedback/feedback.h"
#include "feedback/frm_hangbeáll.h"
#include "feedback/frm_zenebeáll.h"
#include "platform/headless/headless_platform.h"
#include "platform/input.h"

#include <algorithm>
#include <cstdlib>

namespace {

using namespace cserko;

constexpr TextView own = u"c:\\pomzu\\cserko\\";
constexpr TextView app = u"c:\\cserko\\";

// What must hold; ends the program where it does not, so that the fuzzer keeps the input.
void require(bool holds) {
  if (!holds) std::abort();
}

void put_sounds(MemoryFiles& files) {
  for (const TextView name : {u"a.wav", u"b.wav", u"tapsvihar.wav", u"ő.wav"})
    files.put(Text(app) + u"hangok\\" + Text(name), "x");
}

// A zero byte begins the content of the next file.
void put_files(MemoryFiles& files, std::string_view bytes) {
  for (const Text& path : {Text(own) + u"kiscserko.ini", Text(own) + u"főablak.ini", Text(u"c:\\pomzu\\cserk.pmz"),
                           Text(own) + u"zenebeáll.ini", Text(app) + u"cserko\\grathang.ini",
                           Text(app) + u"cserko\\helyeshang.ini", Text(app) + u"cserko\\hibahang.ini"}) {
    const std::size_t end = bytes.find('\0');
    files.put(path, bytes.substr(0, end));
    bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
  }
}

// All that the files can set, as text.
struct State {
  std::vector<int> values;
  std::vector<std::vector<Text>> lists;
  bool operator==(const State&) const = default;
};

void check_element(const Element& element, State& state) {
  switch (element.kind()) {
  case ElementKind::CheckBox: {
    const int value = static_cast<const CheckBox&>(element).value();
    require(value >= 0 && value <= 2);
    state.values.push_back(value);
    break;
  }
  case ElementKind::UpDown: {
    const auto& updown = static_cast<const UpDown&>(element);
    require(updown.value() >= updown.Min && updown.value() <= updown.Max);
    require(updown.Buddy.text() == to_text(updown.value()));
    state.values.push_back(updown.value());
    break;
  }
  case ElementKind::OptionButton:
    state.values.push_back(static_cast<const OptionButton&>(element).value() ? 1 : 0);
    break;
  case ElementKind::ListBox:
    state.lists.push_back(static_cast<const ListBox&>(element).Items);
    break;
  default:
    break;
  }
}

State state_of(const Window& window) {
  State state;
  for (const Element* element : window.elements()) check_element(*element, state);
  return state;
}

void check_options(const frm_cserkó_beáll& dialog) {
  int on = 0;
  for (int i = 0; i < 3; ++i) on += dialog.opt_betszám[i].value() ? 1 : 0;
  require(on <= 1);
}

void check_sounds(const frm_hangbeáll& dialog, const Files& files) {
  for (const ListBox* list : {&dialog.lst_gratulahang, &dialog.lst_helyeshang, &dialog.Lst_hibahang}) {
    require(std::all_of(list->Items.begin(), list->Items.end(), [&](const Text& name) {
      return !name.empty() && files.exists(Text(app) + u"hangok\\" + name);
    }));
    require(list->list_index() == -1);
  }
}

// One control of each kind, as a dialog without a window of its own would hold them.
struct Controls : Window {
  explicit Controls(Platform& platform) : Window(platform, u"controls", {1000, 1000}, u"") {}
  TextBox text{*this, u"text", {}};
  UpDown updown{*this, u"updown", {}, text, {-20, 400, 1}, 7};
  OptionButton first{*this, u"first", {}, u"", true};
  OptionButton second{*this, u"second", {}, u""};
  CheckBox box{*this, u"box", {}, u""};
  SettingsFields fields{{&updown, &first, &second, &box}};
};

void check_fields(HeadlessPlatform& machine, std::string_view bytes) {
  Controls read(machine);
  read.fields.read(bytes);
  const State state = state_of(read);
  require(!(read.first.value() && read.second.value()));
  Controls again(machine);
  again.fields.read(read.fields.written().bytes());
  require(state_of(again) == state);
}

// The button "OK" writes what the dialog holds; a new dialog of the same class must then hold the same.
template<class Dialog> void round_trip(HeadlessPlatform& machine, Button& (*ok)(Dialog&)) {
  State before;
  {
    Session session(machine);
    install_feedback(session);
    auto& dialog = session.window<Dialog>();
    before = state_of(dialog);
    machine.show(dialog);
    input::click(ok(dialog));
    require(state_of(dialog) == before);
  }
  Session session(machine);
  install_feedback(session);
  require(state_of(session.window<Dialog>()) == before);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  HeadlessPlatform machine;
  put_sounds(machine.files());
  const std::string bytes(data, data + size);
  put_files(machine.files(), bytes);
  check_fields(machine, bytes);
  {
    Session session(machine);
    install_feedback(session);
    read_order_file(session.window<frm_főablak_beállítások>());
    state_of(session.window<frm_főablak_beállítások>());
    check_options(session.window<frm_cserkó_beáll>());
    check_sounds(session.window<frm_hangbeáll>(), machine.files());
  }
  round_trip<frm_hangbeáll>(machine, [](frm_hangbeáll& dialog) -> Button& { return dialog.cmd_ok; });
  round_trip<frm_zenebeáll>(machine, [](frm_zenebeáll& dialog) -> Button& { return dialog.cmd_ok; });
  round_trip<frm_főablak_beállítások>(machine,
                                      [](frm_főablak_beállítások& dialog) -> Button& { return dialog.OKButton; });
  require(machine.errors.empty());
  return 0;
}
