#include "feedback/frm_hangbeáll.h"

#include "core/codepage.h"
#include "core/frame.h"
#include "feedback/sounds.h"

namespace cserko {

frm_hangbeáll::frm_hangbeáll(Session& session)
    : Window(session.platform(), u"frm_hangbeáll", {12600, 7740}, u"Cserkó - Eseményhangok beállításai"),
      session_(session),
      lists_{SoundList{lst_gratulahang, Label_gartula, cmd_gartula, cmd_hangtörl_gratulahangból, u"grathang.ini"},
             SoundList{lst_helyeshang, Label_helyeshang, cmd_helyeshang_add, cmd_hangtörl_helyeshangból,
                       u"helyeshang.ini"},
             SoundList{Lst_hibahang, Label_hibahang, cmd_hibahang_add, cmd_hangtörl_hibahangból, u"hibahang.ini"}} {
  for (const SoundList& sounds : lists_) bind(sounds);
  for (Label* heading : {&Label1, &Label2, &Label3, &Label_hangszám}) heading->Centered = false;
  Filelist.AccessibleName = u"A rendelkezésre álló hangok";
  Filelist.Click = [this] {
    refresh_buttons();
    play(Filelist.selected());
    refresh_labels();
  };
  Filelist.KeyDown = [this](KeyEvent& event) {
    if (event.code == key::delete_) delete_selected_file();
  };
  cmd_play.Click = [this] { play(Filelist.selected()); };
  cmd_hangtörlése.Click = [this] { delete_selected_file(); };
  cmd_ok.Default = true;
  cmd_ok.Click = [this] { ok(); };
  cmd_mégsem.Cancel = true;
  cmd_mégsem.Click = [this] { mégsem(); };
}

void frm_hangbeáll::bind(const SoundList& sounds) {
  ListBox& list = sounds.list;
  list.Click = [this, &list] {
    play(list.selected());
    refresh_buttons();
  };
  sounds.add.Click = [this, &list] { add_selected(list); };
  sounds.remove.Click = [this, &list] { remove_selected(list); };
}

Text frm_hangbeáll::sound_folder() const { return session_.alapkönyvtár + u"hangok\\"; }

SettingsFields frm_hangbeáll::fields_before(const SoundList& sounds) {
  if (&sounds.list != &lst_gratulahang) return {};
  return SettingsFields({&chk_hang_a_gratulálópanelen, &chk_hang_a_feladatokban_helyes, &chk_hang_a_feladatokban_hiba,
                         &chk_hangjelzés_segítségkérés, &chk_hang_a_főablakban});
}

void frm_hangbeáll::Load() {
  ablak_középre(session_, *this);
  Filelist.set_path(sound_folder());
  refresh_labels();
  refresh_buttons();
  read_files();
  refresh_labels();
  // One pair of icons in the design serves all three lists.
  cmd_hibahang_add.Picture = platform().load_picture(session_.alapkönyvtár + u"cserko\\listára.wmf");
  cmd_hangtörl_hibahangból.Picture = platform().load_picture(session_.alapkönyvtár + u"cserko\\listáról.wmf");
  cmd_gartula.Picture = cmd_hibahang_add.Picture;
  cmd_helyeshang_add.Picture = cmd_hibahang_add.Picture;
  cmd_hangtörl_gratulahangból.Picture = cmd_hangtörl_hibahangból.Picture;
  cmd_hangtörl_helyeshangból.Picture = cmd_hangtörl_hibahangból.Picture;
}

void frm_hangbeáll::QueryUnload(bool& cancel) {
  if (!visible()) return;
  cancel = true;
  mégsem();
}

void frm_hangbeáll::play(const Text& name) { hang_lejátszás(session_, sound_folder() + name); }

void frm_hangbeáll::add_selected(ListBox& list) {
  const Text name = Filelist.selected();
  if (name.empty()) return;
  if (const int found = list.find(name); found >= 0) {
    list.set_list_index(found);
  } else {
    list.Items.push_back(name);
    list.set_list_index(list.count() - 1);
  }
  refresh_labels();
  // On to the next file, so that many can be added by repeated presses.
  if (Filelist.list_index() < Filelist.count() - 1) Filelist.set_list_index(Filelist.list_index() + 1);
}

void frm_hangbeáll::remove_selected(ListBox& list) {
  const int index = list.list_index();
  if (index < 0) return;
  list.remove(index);
  if (index < list.count()) list.set_list_index(index);
  refresh_labels();
  refresh_buttons();
}

void frm_hangbeáll::delete_selected_file() {
  const Text name = Filelist.selected();
  if (name.empty()) return;
  hang_lejátszás(session_, {});
  platform().files().remove(sound_folder() + name);
  Filelist.refresh();
  for (const SoundList& sounds : lists_) {
    for (int found = sounds.list.find(name); found >= 0; found = sounds.list.find(name)) sounds.list.remove(found);
  }
  refresh_labels();
  refresh_buttons();
}

void frm_hangbeáll::read_names(ListBox& list, LineReader& lines) {
  while (!lines.end()) {
    const Text name = from_cp1250(lines.next());
    if (!name.empty() && platform().files().exists(sound_folder() + name)) list.Items.push_back(name);
  }
}

void frm_hangbeáll::read_files() {
  for (const SoundList& sounds : lists_) {
    const auto bytes = platform().files().read(session_.alapkönyvtár + u"cserko\\" + Text(sounds.file));
    if (!bytes) continue;
    LineReader lines(*bytes);
    fields_before(sounds).read(lines);
    read_names(sounds.list, lines);
  }
}

void frm_hangbeáll::ok() {
  hang_lejátszás(session_, {});
  for (const SoundList& sounds : lists_) {
    SettingsWriter content = fields_before(sounds).written();
    for (const Text& name : sounds.list.Items) content.text(name);
    write_file(session_.alapkönyvtár + u"cserko\\" + Text(sounds.file), content);
  }
  platform().hide(*this);
}

void frm_hangbeáll::write_file(const Text& path, const SettingsWriter& content) {
  try {
    platform().files().write(path, content.bytes());
  } catch (const FileError& error) {
    platform().report_error(u"A hangok listáját nem sikerült elmenteni.\r\n" + from_utf8(error.what()));
  }
}

void frm_hangbeáll::mégsem() {
  hang_lejátszás(session_, {});
  for (const SoundList& sounds : lists_) {
    sounds.list.Items.clear();
    sounds.list.set_list_index(-1);
  }
  read_files();
  refresh_labels();
  refresh_buttons();
  platform().hide(*this);
}

void frm_hangbeáll::refresh_labels() {
  for (const SoundList& sounds : lists_) sounds.count.Caption = to_text(sounds.list.count()) + u" hang";
  const int selected = Filelist.list_index();
  Label_hangszám.Caption = selected < 0 ? to_text(Filelist.count()) + u" hang áll rendelkezésemre"
                                        : to_text(selected + 1) + u"\\" + to_text(Filelist.count());
}

void frm_hangbeáll::refresh_buttons() {
  const bool file_selected = Filelist.list_index() >= 0;
  for (const SoundList& sounds : lists_) {
    sounds.remove.Enabled = sounds.list.list_index() >= 0;
    sounds.add.Enabled = file_selected;
  }
  cmd_play.Enabled = file_selected;
  cmd_hangtörlése.Enabled = file_selected;
}

} // namespace cserko
