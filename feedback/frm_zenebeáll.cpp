#include "feedback/frm_zenebeáll.h"

#include "core/codepage.h"
#include "core/frame.h"
#include "core/frm_referencia.h"
#include "feedback/sounds.h"

namespace cserko {

namespace {

constexpr int up_button = 0;
constexpr int down_button = 2;
constexpr TextView file_name = u"zenebeáll.ini";

} // namespace

frm_zenebeáll::frm_zenebeáll(Session& session)
    : Window(session.platform(), u"frm_zenebeáll", {9600, 7200}, u"Cserkó - Zene beállítások"), session_(session) {
  cmd_áthelyez.design(down_button, {8820, 5040, 660, 660}, u"▼");
  cmd_áthelyez[up_button].AccessibleName = u"Feljebb";
  cmd_áthelyez[down_button].AccessibleName = u"Lejjebb";
  for (Label* text : {&lbl_csend, &Label1, &Label2}) text->Centered = false;
  filelist_zene.AccessibleName = Label1.Caption;
  list_playlist.AccessibleName = Label2.Caption;
  lab_türelem.Visible = false;
  filelist_zene.Click = [this] { play_selected(filelist_zene); };
  list_playlist.Click = [this] { play_selected(list_playlist); };
  cmd_add.Click = [this] { add(); };
  cmd_törl.Click = [this] { törl(); };
  cmd_áthelyez.Click = [this](int index) { áthelyez(index); };
  cmd_ok.Default = true;
  cmd_ok.Click = [this] { ok(); };
  cmd_mégsem.Cancel = true;
  cmd_mégsem.Click = [this] { mégsem(); };
}

void frm_zenebeáll::Load() {
  filelist_zene.set_path(session_.alapkönyvtár + u"dysmid\\");
  read_file();
  refresh_buttons();
  ablak_középre(session_, *this);
  session_.window<frm_referencia>().Timer_zene.Tick = [this] { Timer_zene_tick(); };
}

void frm_zenebeáll::Activate() { lbl_csend.Caption = platform().media().silence_reason(); }

void frm_zenebeáll::QueryUnload(bool& cancel) {
  cancel = true;
  mégsem();
}

void frm_zenebeáll::Timer_zene_tick() {
  if (!chk_zene_enged.ticked()) return;
  const Text state = zene_állapot(session_);
  if (state.starts_with(u"playing") || state.starts_with(u"paused")) return;
  if (list_playlist.count() == 0) return;
  const int index = list_playlist.list_index();
  list_playlist.set_list_index(index < list_playlist.count() - 1 ? index + 1 : 0);
  session_.window<frm_referencia>().Caption = list_playlist.selected();
}

void frm_zenebeáll::play_selected(const ListBox& list) {
  show_title(list.selected());
  const Text path = filelist_zene.path() + u"\\" + list.selected();
  // The same title is not started twice: a playlist of one title plays once and falls silent, which is intended.
  if (path != aktuális_zene_) zene_lejátszás(session_, path);
  aktuális_zene_ = path;
  refresh_buttons();
  Pointer = MousePointer::Arrow;
  lab_türelem.Visible = false;
}

void frm_zenebeáll::show_title(const Text& name) {
  cserko::Font font = lab_türelem.Font;
  font.size = 8;
  lab_türelem.Caption = name + u" fájl lejátszása";
  lab_türelem.Font.size = first_overfilling_size(platform(), font, lab_türelem.Caption,
                                                 {0.9 * lab_türelem.Width, 0.9 * lab_türelem.Height});
  lab_türelem.Visible = true;
  Pointer = MousePointer::Hourglass;
  platform().redraw(*this);
}

void frm_zenebeáll::add() {
  const Text name = filelist_zene.selected();
  if (name.empty()) return;
  int index = list_playlist.find(name);
  if (index < 0) {
    list_playlist.Items.push_back(name);
    index = list_playlist.count() - 1;
  }
  list_playlist.set_list_index(index);
  refresh_buttons();
}

void frm_zenebeáll::törl() {
  const int index = list_playlist.list_index();
  if (index < 0) return;
  list_playlist.remove(index);
  if (index < list_playlist.count()) list_playlist.set_list_index(index);
  refresh_buttons();
}

void frm_zenebeáll::áthelyez(int button) {
  const int from = list_playlist.list_index();
  const int to = from + button - 1;
  if (from < 0 || to < 0 || to >= list_playlist.count()) return;
  std::swap(list_playlist.Items[static_cast<std::size_t>(from)], list_playlist.Items[static_cast<std::size_t>(to)]);
  list_playlist.set_list_index(to);
  refresh_buttons();
}

void frm_zenebeáll::read_file() {
  list_playlist.Items.clear();
  list_playlist.set_list_index(-1);
  const Files& files = platform().files();
  const Text own = Text(fixed_root) + Text(file_name);
  const auto bytes = files.read(files.exists(own) ? own : session_.alapkönyvtár + u"cserko\\" + Text(file_name));
  if (!bytes) return;
  LineReader lines(*bytes);
  fields_before_list().read(lines);
  while (!lines.end()) {
    if (const Text name = from_cp1250(lines.next()); !name.empty()) list_playlist.Items.push_back(name);
  }
}

void frm_zenebeáll::ok() {
  SettingsWriter content = fields_before_list().written();
  for (const Text& name : list_playlist.Items) content.text(name);
  write_settings(platform(), Text(fixed_root) + Text(file_name), content);
  zene_lejátszás(session_, {});
  platform().hide(*this);
}

void frm_zenebeáll::mégsem() {
  read_file();
  refresh_buttons();
  zene_lejátszás(session_, {});
  platform().hide(*this);
}

void frm_zenebeáll::refresh_buttons() {
  const int index = list_playlist.list_index();
  const int count = list_playlist.count();
  cmd_add.Enabled = filelist_zene.list_index() >= 0;
  cmd_törl.Enabled = index >= 0;
  cmd_áthelyez[up_button].Enabled = index > 0 && count >= 2;
  cmd_áthelyez[down_button].Enabled = count >= 2 && index != count - 1;
}

} // namespace cserko
