#include "exercises/syllables/frm_holvan.h"

#include "feedback/message_panels.h"
#include "feedback/sounds.h"

#include <array>

namespace cserko {

namespace {

constexpr int directions = 4;
constexpr std::array<TextView, directions> irányszó{u"balra", u"fent", u"jobbra", u"lent"};
constexpr double gap = 60; // twips between the results
constexpr TextView advice =
    u"Nincs elég ilyen hosszú szavunk.\r\nKérlek, engedj meg a beállításokban rövidebb vagy hosszabb szavakat is!";

// Whatever is drawn below passes.
constexpr TextView no_advice;

// The element with the widest text gets the size that fills its place, the others the same.
template<class T> void common_size(ElementArray<T>& elements) {
  const Platform& platform = elements[0].window().platform();
  const Font font = elements[0].Font;
  int widest = 0;
  double width = platform.measure(font, elements[0].Caption).width;
  elements.each([&](const T& element) {
    const double own = platform.measure(font, element.Caption).width;
    if (own <= width) return;
    widest = element.Index;
    width = own;
  });
  szöveg_illesztés(elements[widest]);
  elements.each([&](T& element) { element.Font.size = elements[widest].Font.size; });
}

} // namespace

frm_holvan_beáll::frm_holvan_beáll(Session& session)
    : SettingsDialog(session, u"frm_holvan_beáll", {5640, 4500}, u"Cserkó - Hol van? - Beállítások", u"holvan.ini"),
      WordLengths(*this, {120, 120}, 4) {
  set_fields({&ud_minbetűszám, &ud_maxbetűszám, &option_irányok[0], &option_irányok[1], &option_irányok[2]});
  set_buttons(OKButton, CancelButton);
  set_help(cmd_súgó, u"hol van - beállítások.mht");
}

bool frm_holvan_beáll::allows(int direction) const {
  const bool beside = direction % 2 == 0;
  return option_irányok[0].value() || option_irányok[1].value() == beside;
}

void frm_holvan_beáll::apply() { session().window<frm_holvan>().beáll(); }

frm_holvan::frm_holvan(Session& session)
    : ExerciseWindow(session, u"frm_holvan", {6735, 7512.5}, u"Cserkó - Hol van?"), results_(session, pic_eredménykép) {
  Picture1.TabStop = false;
  kép.Border = true;
  kép.AccessibleName = u"Kép";
  lbl_szó[0].Choosable = true;
  lbl_szó[0].WordWrap = false;
  cmd_irány.design_places({{240, 120}, {3360, 120}, {1800, 120}, {4920, 120}});
  lbl_szó.design_places({{120, 3360}, {2280, 1320}, {4440, 3360}, {2280, 5520}});
  pic_eredménykép.design_places(
      {{120, 6360}, {1212.5, 6360}, {2305, 6360}, {3397.5, 6360}, {4490, 6360}, {5582.5, 6360}});
  cmd_irány.Click = [this](int button) { cmd_irány_click(button); };
  lbl_szó.Click = [this](int direction) { lbl_szó_click(direction); };
  kép.Click = [this] {
    if (has_puzzle()) show_hint(this->session(), aktuális_kép_, képek()[aktuális_kép_].név);
  };
  mnu_újjáték.Click = [this] {
    results_.clear();
    beáll();
  };
  set_settings_entry<frm_holvan_beáll>(mnu_fájl_beáll, DialogAtClose::GoesByMenuOnly);
  set_close_entry(mnu_fájl_kilép);
  set_help_entry(mnu_súgó_súgó, u"Hol van - a feladat.mht");
}

void frm_holvan::Load() {
  ablak_méretezés(*this, 0.95);
  szöveg_illesztés(Label1);
  settings();
  ablak_állítás();
  ablak_méretezés(*this, 0.95);
  ablak_középre(session(), *this);
  results_.clear();
  deal_first([this] { beáll(); });
}

void frm_holvan::ablak_állítás() {
  const int count = pic_eredménykép.count();
  const double side = (Picture1.Width - (count - 1) * gap) / count;
  const double top = pic_eredménykép[0].Top;
  double left = Picture1.Left;
  pic_eredménykép.each([&](PictureBox& box) {
    box.Width = box.Height = side;
    box.move_to(left, top);
    left += side + gap;
  });
}

void frm_holvan::beáll() {
  deal([this] {
    szavak_kirakása();
    gombok_kiosztása();
    betűméretek_igazítása();
  });
}

void frm_holvan::no_puzzle() {
  clear_picture(kép);
  lbl_szó.each([](Label& word) { word.Caption.clear(); });
  gombok_ürítése();
}

void frm_holvan::szavak_kirakása() {
  const int named = draw_below(
      platform(), directions, [this](int direction) { return settings().allows(direction); }, no_advice);
  for (int i = 0; i < directions; ++i) {
    const int drawn = szóválasztás();
    if (i == named) {
      aktuális_kép_ = drawn;
      show_record_picture(session(), kép, drawn);
    }
    lbl_szó[i].Caption = képek()[drawn].név;
    lbl_szó[i].Tag = to_text(drawn);
  }
}

int frm_holvan::szóválasztás() {
  platform().seed_random();
  const LengthRange lengths = settings().lengths();
  return képek().draw(
      platform(),
      [&](int index) {
        if (!lengths.allows(képek().MAGYARBETŰKSZÁMA(index))) return false;
        // A place that is not filled anew yet still holds its word of the last puzzle, which counts too.
        const Text& name = képek()[index].név;
        bool stands_there = false;
        lbl_szó.each([&](const Label& word) { stands_there = stands_there || word.Caption == name; });
        return !stands_there;
      },
      advice);
}

void frm_holvan::gombok_ürítése() {
  cmd_irány.each([](Button& button) {
    button.Caption.clear();
    button.Visible = false;
  });
}

void frm_holvan::gombok_kiosztása() {
  const bool by_keyboard = focus() != nullptr && focus()->Name == cmd_irány[0].Name;
  gombok_ürítése();
  platform().seed_random();
  for (int direction = 0; direction < directions; ++direction) {
    if (!settings().allows(direction)) continue;
    const int place = draw_below(
        platform(), directions, [this](int free) { return cmd_irány[free].Caption.empty(); }, no_advice);
    Button& button = cmd_irány[place];
    button.Caption = irányszó.at(static_cast<std::size_t>(direction));
    button.Tag = to_text(direction);
    button.Visible = true;
  }
  if (!by_keyboard || focus()->Visible) return;
  // The place of the pressed button is empty now; the keys stay among the buttons.
  for (int i = directions - 1; i >= 0; --i) set_focus(&cmd_irány[i]);
}

void frm_holvan::betűméretek_igazítása() {
  common_size(lbl_szó);
  common_size(cmd_irány);
}

void frm_holvan::cmd_irány_click(int button) {
  if (!has_puzzle()) return;
  const int direction = number_in(cmd_irány[button].Tag).value_or(0);
  if (!answer_sound(session(), lbl_szó[direction].Caption == képek()[aktuális_kép_].név)) return;
  eredmény_felvétele();
  beáll();
}

void frm_holvan::lbl_szó_click(int direction) {
  if (!has_puzzle()) return;
  const int record = number_in(lbl_szó[direction].Tag).value_or(0);
  show_hint(session(), record, képek()[record].név);
}

void frm_holvan::eredmény_felvétele() { results_.add_drawn(aktuális_kép_, {.körvonalas = true}); }

} // namespace cserko
