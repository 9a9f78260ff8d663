// Chooses a page of the colouring book: those of the installation and those that the user has made.
#pragma once

#include "core/session.h"

namespace cserko {

class frm_színezőmegnyitás : public Window {
 public:
  explicit frm_színezőmegnyitás(Session& session);

  FileListBox File1{*this, u"File1", {120, 120, 2760, 5400}, u"*.kif"};
  PictureBox kép{*this, u"kép", {3000, 120, 5400, 5400}};
  Button cmd_ok{*this, u"cmd_ok", {3000, 5640, 3240, 720}, u"Színező megnyitása"};
  Button CancelButton{*this, u"CancelButton", {6360, 5640, 2040, 720}, u"Mégsem"};

  void Load() override;

 private:
  void list_pages();
  void show_preview();
  void ok();

  Session& session_;
  std::vector<Text> paths_; ///< Of the entries of the list.
  PixelImage page_;         ///< The previewed one, empty if it could not be read.
};

} // namespace cserko
