// Gives any bytes to the dialogs as their settings files. Every control must stay within what it can hold, lists must
// name sounds that exist, and what a dialog then writes it must read back as it was.
#include "core/frm_főablak_beállítások.h"
#include "exercises/boards/frm_képmem_beáll.h"
#include "exercises/letters/frm_cserkó.h"
#include "exercises/syllables/frm_szótagoló.h"
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
  for (const Text& path :
       {Text(own) + u"kiscserko.ini", Text(own) + u"főablak.ini", Text(u"c:\\pomzu\\cserk.pmz"),
        Text(own) + u"zenebeáll.ini", Text(app) + u"cserko\\grathang.ini", Text(app) + u"cserko\\helyeshang.ini",
        Text(app) + u"cserko\\hibahang.ini", Text(own) + u"szótagoló.ini", Text(app) + u"cserko\\képmem.ini"}) {
    const std::size_t end = bytes.find('\0');
    files.put(path, bytes.substr(0, end));
    bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
  }
}

// All that the files can set.
struct State {
  std::vector<int> values;
  std::vector<Text> texts;
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
    require(updown.Buddy->text() == (updown.Format ? updown.Format(updown.value()) : to_text(updown.value())));
    state.values.push_back(updown.value());
    break;
  }
  case ElementKind::ScrollBar: {
    const auto& bar = static_cast<const ScrollBar&>(element);
    require(bar.value() >= bar.Min && bar.value() <= bar.Max);
    state.values.push_back(bar.value());
    break;
  }
  case ElementKind::TextBox: {
    const auto& box = static_cast<const TextBox&>(element);
    require(box.MaxLength == 0 || box.text().size() <= static_cast<std::size_t>(box.MaxLength));
    state.texts.push_back(box.text());
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

// One field of each kind, as a dialog without a window of its own would hold them.
struct Controls : Window {
  explicit Controls(Platform& platform) : Window(platform, u"controls", {1000, 1000}, u"") {
    letter.MaxLength = 3;
    pairs.MultiSelect = true;
    pairs.Items = {u"i-í", u"o-ó", u"ö-ő"};
  }
  Frame group{*this, u"group", {}};
  TextBox text{*this, u"text", {}};
  UpDown updown{*this, u"updown", {}, text, {-20, 400, 1}, 7};
  OptionButton first{group, u"first", {}, u"", true};
  OptionButton second{group, u"second", {}, u""};
  CheckBox box{*this, u"box", {}, u""};
  TextBox txt_shortest{*this, u"txt_shortest", {}};
  UpDown shortest{*this, u"shortest", {}, txt_shortest, {4, 10, 1}, 4};
  TextBox txt_longest{*this, u"txt_longest", {}};
  UpDown longest{*this, u"longest", {}, txt_longest, {4, 16, 1}, 10};
  CoupledRange lengths{shortest, longest, 12};
  TextBox letter{*this, u"letter", {}, u"."};
  OptionButton stored{*this, u"stored", {}, u"", true};
  OptionButton opposite{*this, u"opposite", {}, u""};
  ScrollBar bar{*this, u"bar", {}, 1, 5};
  ListBox pairs{*this, u"pairs", {}};
  int language = 2;

  SettingsFields fields() {
    return SettingsFields({&updown, &first, &second, &box, &shortest, &longest, &letter,
                           OppositeOptions{&stored, &opposite}, &bar,
                           StoredNumber{[this] { return language; },
                                        [this](int number) {
                                          if (number == 2 || number == 4) language = number;
                                        }},
                           WindowPlace{this}, SelectedEntries{&pairs}});
  }
};

State state_of(const Controls& controls) {
  State state = state_of(static_cast<const Window&>(controls));
  for (const double value : {controls.Left, controls.Top, controls.Width, controls.Height})
    state.values.push_back(static_cast<int>(value));
  state.values.push_back(controls.language);
  for (const bool selected : controls.pairs.selection()) state.values.push_back(selected ? 1 : 0);
  return state;
}

void check_rules(const Controls& controls, Size screen) {
  require(!(controls.first.value() && controls.second.value()));
  require(controls.stored.value() != controls.opposite.value());
  require(controls.language == 2 || controls.language == 4);
  require(controls.shortest.value() <= controls.longest.value());
  require(controls.shortest.Max == std::min(controls.longest.value(), 12));
  require(controls.longest.Min == controls.shortest.value());
  require(controls.Left >= 0 && controls.Left + controls.Width <= screen.width);
  require(controls.Top >= 0 && controls.Top + controls.Height <= screen.height);
}

// Cut anywhere, the bytes must do no more harm than whole ones, also over what an earlier file has set.
void check_fields(HeadlessPlatform& machine, std::string_view bytes) {
  Controls read(machine);
  const SettingsFields fields = read.fields();
  for (const std::size_t length : {bytes.size(), bytes.size() / 2}) {
    fields.read(bytes.substr(0, length));
    check_rules(read, machine.screen_size());
    Controls again(machine);
    again.fields().read(fields.written().bytes());
    require(state_of(again) == state_of(read));
  }
}

void check_pairs(const frm_képmem_beáll& dialog) {
  require(dialog.szópárszám.Max >= dialog.szópárszám.Min && dialog.szópárszám.Max <= 18);
  require(!(dialog.optnyelv[2].value() && dialog.optnyelv[4].value()));
  require(!(dialog.párbeállítás[0].value() && dialog.párbeállítás[1].value()));
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

// The same where OK would start an exercise: the dialog writes by itself.
template<class Dialog> void written_round_trip(HeadlessPlatform& machine) {
  State before;
  {
    Session session(machine);
    install_feedback(session);
    auto& dialog = session.window<Dialog>();
    before = state_of(dialog);
    dialog.write();
    dialog.read();
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
    check_pairs(session.window<frm_képmem_beáll>());
  }
  written_round_trip<frm_cserkó_beáll>(machine);
  written_round_trip<dlg_szótagoló>(machine);
  round_trip<frm_hangbeáll>(machine, [](frm_hangbeáll& dialog) -> Button& { return dialog.cmd_ok; });
  round_trip<frm_zenebeáll>(machine, [](frm_zenebeáll& dialog) -> Button& { return dialog.cmd_ok; });
  round_trip<frm_főablak_beállítások>(machine,
                                      [](frm_főablak_beállítások& dialog) -> Button& { return dialog.OKButton; });
  require(machine.errors.empty());
  return 0;
}
