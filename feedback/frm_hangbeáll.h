// The settings of the event sounds. Its lists and check boxes are the live store that the sound procedures read.
#pragma once

#include "core/settings.h"

#include <array>

namespace cserko {

class frm_hangbeáll : public Window {
 public:
  explicit frm_hangbeáll(Session& session);

  CheckBox chk_hang_a_gratulálópanelen{
      *this, u"chk_hang_a_gratulálópanelen", {120, 120, 6120, 330}, u"Hangjelzések használata a gratuláló panelen", 1};
  CheckBox chk_hang_a_feladatokban_helyes{*this,
                                          u"chk_hang_a_feladatokban_helyes",
                                          {120, 450, 6120, 330},
                                          u"Hangjelzések használata a feladatokban helyes megoldás esetén",
                                          1};
  CheckBox chk_hang_a_feladatokban_hiba{*this,
                                        u"chk_hang_a_feladatokban_hiba",
                                        {120, 780, 6120, 330},
                                        u"Hangjelzések használata a feladatokban hibás megoldás esetén",
                                        1};
  CheckBox chk_hangjelzés_segítségkérés{
      *this, u"chk_hangjelzés_segítségkérés", {6480, 120, 6000, 330}, u"Hangjelzés segítségkérés esetén", 1};
  CheckBox chk_hang_a_főablakban{
      *this, u"chk_hang_a_főablakban", {6480, 450, 6000, 330}, u"Hangok a grafikus főablakban", 1};

  Label Label_hangszám{*this, u"Label_hangszám", {120, 1230, 3720, 330}};
  FileListBox Filelist{*this, u"Filelist", {120, 1560, 3720, 4380}, u"*.wav"};
  Button cmd_play{*this, u"cmd_play", {120, 6060, 1800, 660}, u"Hang lejátszása"};
  Button cmd_hangtörlése{*this, u"cmd_hangtörlése", {2040, 6060, 1800, 660}, u"Hang törlése"};

  Label Label1{*this, u"Label1", {4080, 1230, 4320, 330}, u"A gratuláló panelen megszólaló hangok:"};
  Label Label_gartula{*this, u"Label_gartula", {8400, 1230, 1080, 330}};
  ListBox lst_gratulahang{*this, u"lst_gratulahang", {4080, 1560, 5400, 1380}};
  Button cmd_gartula{*this, u"cmd_gartula", {9600, 1560, 2880, 660}, u"Hozzáadás a gratuláló  hangok listájához"};
  Button cmd_hangtörl_gratulahangból{
      *this, u"cmd_hangtörl_gratulahangból", {9600, 2280, 2880, 660}, u"Törlés a gratuláló hangok listájából"};

  Label Label2{*this, u"Label2", {4080, 3120, 4320, 330}, u"Helyes megoldás esetén megszólaló hangok:"};
  Label Label_helyeshang{*this, u"Label_helyeshang", {8400, 3120, 1080, 330}};
  ListBox lst_helyeshang{*this, u"lst_helyeshang", {4080, 3450, 5400, 1380}};
  Button cmd_helyeshang_add{
      *this, u"cmd_helyeshang_add", {9600, 3450, 2880, 660}, u"Hozzáadás a sikerhangok listájához"};
  Button cmd_hangtörl_helyeshangból{
      *this, u"cmd_hangtörl_helyeshangból", {9600, 4170, 2880, 660}, u"Törlés a sikerhangok listájából"};

  Label Label3{*this, u"Label3", {4080, 5010, 4320, 330}, u"Hibás megoldás esetén megszólaló hangok:"};
  Label Label_hibahang{*this, u"Label_hibahang", {8400, 5010, 1080, 330}};
  ListBox Lst_hibahang{*this, u"Lst_hibahang", {4080, 5340, 5400, 1380}};
  Button cmd_hibahang_add{*this, u"cmd_hibahang_add", {9600, 5340, 2880, 660}, u"Hozzáadás a hibahangok listájához"};
  Button cmd_hangtörl_hibahangból{
      *this, u"cmd_hangtörl_hibahangból", {9600, 6060, 2880, 660}, u"Törlés a hibahangok listájából"};

  Button cmd_ok{*this, u"cmd_ok", {8400, 6960, 1980, 660}, u"OK"};
  Button cmd_mégsem{*this, u"cmd_mégsem", {10500, 6960, 1980, 660}, u"Mégsem"};

  void Load() override;
  void QueryUnload(bool& cancel) override;

 private:
  /// One of the three lists with what belongs to it.
  struct SoundList {
    ListBox& list;
    Label& count;
    Button& add;
    Button& remove;
    TextView file;
  };

  void bind(const SoundList& sounds);
  void add_selected(ListBox& list);
  void remove_selected(ListBox& list);
  void delete_selected_file();
  void play(const Text& name);
  void read_files();
  void read_names(ListBox& list, LineReader& lines);
  void write_file(const Text& path, const SettingsWriter& content);
  void refresh_labels();
  void refresh_buttons();
  void ok();
  void mégsem();
  /// What stands in the file of a list before its entries: the check boxes, in that of the first one.
  SettingsFields fields_before(const SoundList& sounds);
  Text sound_folder() const;

  Session& session_;
  std::array<SoundList, 3> lists_;
};

} // namespace cserko
