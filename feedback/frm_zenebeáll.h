// The playlist of the background music. It stays loaded for the whole session: its list and its check box are the live
// store that the player reads, and selecting an entry is what plays it.
#pragma once

#include "core/settings.h"
#include "platform/element_array.h"

namespace cserko {

class frm_zenebeáll : public Window {
 public:
  explicit frm_zenebeáll(Session& session);

  CheckBox chk_zene_enged{*this, u"chk_zene_enged", {120, 120, 4200, 480}, u"Zene engedélyezése"};
  Label lbl_csend{*this, u"lbl_csend", {4440, 120, 5040, 600}};
  Label Label1{*this, u"Label1", {120, 780, 4200, 330}, u"A rendelkezésre álló zenei fájlok:"};
  FileListBox filelist_zene{*this, u"filelist_zene", {120, 1110, 4200, 3810}, u"*.mid"};
  Label Label2{*this, u"Label2", {4440, 780, 5040, 330}, u"A lejátszásra kerülő zenei fájlok:"};
  ListBox list_playlist{*this, u"list_playlist", {4440, 1110, 5040, 3810}};
  Button cmd_add{*this, u"cmd_add", {120, 5040, 4200, 660}, u"Zene hozzáadása a listához"};
  Button cmd_törl{*this, u"cmd_törl", {4440, 5040, 3480, 660}, u"Zene törlése a listából"};
  /// 0 moves the entry up, 2 down.
  ElementArray<Button> cmd_áthelyez{*this, u"cmd_áthelyez", {8040, 5040, 660, 660}, TextView(u"▲")};
  Label lab_türelem{*this, u"lab_türelem", {120, 5820, 9360, 480}, u"Fájl.mid lejátszása"};
  Button cmd_ok{*this, u"cmd_ok", {5280, 6420, 2040, 660}, u"OK"};
  Button cmd_mégsem{*this, u"cmd_mégsem", {7440, 6420, 2040, 660}, u"Mégsem"};

  void Load() override;
  void Activate() override;
  void QueryUnload(bool& cancel) override;

 private:
  void Timer_zene_tick();
  void play_selected(const ListBox& list);
  void show_title(const Text& name);
  void add();
  void törl();
  void áthelyez(int index);
  void read_file();
  SettingsFields fields_before_list() { return SettingsFields({&chk_zene_enged}); }
  void ok();
  void mégsem();
  void refresh_buttons();

  Session& session_;
  Text aktuális_zene_; ///< Full path of the title last started.
};

} // namespace cserko
