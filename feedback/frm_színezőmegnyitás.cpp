#include "feedback/frm_színezőmegnyitás.h"

#include "core/frame.h"
#include "feedback/drawing/fitting.h"
#include "feedback/frm_rajz.h"

namespace cserko {

frm_színezőmegnyitás::frm_színezőmegnyitás(Session& session)
    : Window(session.platform(), u"frm_színezőmegnyitás", {8520, 6480}, u"Cserkó - Rajz - Színező megnyitása"),
      session_(session) {
  kép.Opaque = true;
  kép.Border = true;
  kép.TabStop = false;
  kép.AccessibleName = u"A kiválasztott színező";
  File1.AccessibleName = u"Színezők";
  cmd_ok.Default = true;
  CancelButton.Cancel = true;
  File1.Click = [this] { show_preview(); };
  File1.DblClick = [this] {
    show_preview();
    ok();
  };
  cmd_ok.Click = [this] { ok(); };
  CancelButton.Click = [this] { session_.unload(*this); };
}

void frm_színezőmegnyitás::Load() {
  list_pages();
  if (File1.count() == 0)
    throw FileError(to_utf8(u"Nincs színező ebben a mappában: " + session_.alapkönyvtár + u"cserko\\kifest"));
  try {
    File1.set_list_index(0);
  } catch (const FileError& error) {
    // The other pages can still be looked at.
    platform().report_error(from_utf8(error.what()));
  }
  gombok_illesztése(*this);
  ablak_középre(session_, *this);
}

// The pages of the installation come first. Those of the user follow them, unless both lie in one folder.
void frm_színezőmegnyitás::list_pages() {
  const Text own_folder = Text(fixed_root) + u"kifest\\";
  const Text folder = session_.alapkönyvtár + u"cserko\\kifest\\";
  File1.set_path(folder);
  for (const Text& name : File1.Items) paths_.push_back(folder + name);
  if (folder == own_folder) return;
  for (const Text& name : platform().files().list(own_folder + File1.Pattern)) {
    File1.Items.push_back(u"Saját " + name);
    paths_.push_back(own_folder + name);
  }
}

void frm_színezőmegnyitás::show_preview() {
  kép.canvas().clear();
  page_ = {};
  const Text& path = paths_.at(static_cast<std::size_t>(File1.list_index()));
  const auto bytes = platform().files().read(path);
  const auto image = bytes ? platform().decode_picture(*bytes) : std::nullopt;
  cmd_ok.Enabled = image.has_value();
  if (!image) throw FileError(to_utf8(u"Ez a fájl nem kép, vagy megsérült: " + path));
  page_ = *image;
  PixelGrid& grid = kép.canvas().grid();
  const PixelImage shown = fitted_to(page_, grid.columns(), grid.rows());
  grid.paste((grid.columns() - shown.width) / 2, (grid.rows() - shown.height) / 2, shown);
}

void frm_színezőmegnyitás::ok() {
  platform().pump_events([] { return true; });
  if (!page_.empty()) session_.window<frm_rajz>().open_page(page_);
  session_.unload(*this);
}

} // namespace cserko
