#include "exercises/sentences/frm_párosító.h"

#include "core/numbers.h"
#include "feedback/frm_gratuláció.h"
#include "feedback/sounds.h"

#include <algorithm>

namespace cserko {

namespace {

constexpr TextView task = u"Kösd össze a képeket a hozzájuk tartozó meghatározásokkal!";
constexpr TextView empty_place = u"-1";
constexpr TextView advice = u"Nincs elég olyan kép, amelyikhez meghatározás tartozik.";
constexpr double line_width = 3 * twips_per_pixel;
constexpr Color line_color{59, 36, 20};
constexpr Color chosen_color{250, 224, 160};
constexpr double smallest_line = 14; // points; definitions that would be smaller on one line are broken into several

Point middle_of(const PictureBox& box) { return {box.Left + box.Width / 2, box.Top + box.Height / 2}; }

bool any_usable(const ElementArray<PictureBox>& boxes) {
  bool usable = false;
  boxes.each([&usable](const PictureBox& box) { usable = usable || box.Enabled; });
  return usable;
}

} // namespace

frm_párosító_beáll::frm_párosító_beáll(Session& session)
    : SettingsDialog(session, u"frm_párosító_beáll", {5640, 2520}, u"Mondatpárosító - Beállítások", u"paros.ini") {
  set_fields({OppositeOptions{&Option_ellenőr[0], &Option_ellenőr[1]}});
  set_buttons(OKButton, CancelButton);
  set_help(cmd_súgó, u"Mondatpárosító - beállítások.mht");
}

void frm_párosító_beáll::apply() { session().window<frm_párosító>().beáll(); }

frm_párosító::frm_párosító(Session& session)
    : ExerciseWindow(session, u"frm_párosító", {7815, 5895}, u"Mondatpárosító") {
  label_feladat.TabStop = false;
  label_feladat.Opaque = true;
  label_feladat.AccessibleName = task;
  for (const Side side : {Side::Pictures, Side::Definitions}) {
    PictureBox& first = column(side)[0];
    first.Border = true;
    first.Opaque = true; // the lines run under the boxes
    const double left = first.Left;
    column(side).design_places({{left, 480}, {left, 1560}, {left, 2640}, {left, 3720}, {left, 4800}});
    bind(side);
  }
  mnu_fájl_újrakezd.Click = [this] {
    if (has_puzzle()) újrakezdés();
  };
  mnu_fájl_újjáték.Click = [this] { beáll(); };
  set_settings_entry<frm_párosító_beáll>(mnu_beáll, DialogAtClose::Stays);
  set_close_entry(mnu_fájl_kilépés);
  set_help_entry(mnu_súgó_súgó, u"mondatpárosító - a feladat.mht");
}

void frm_párosító::bind(Side side) {
  ElementArray<PictureBox>& boxes = column(side);
  boxes.MouseDown = [this, side](int index, const MouseEvent& event) { press({side, index}, event); };
  boxes.MouseMove = [this, side](int index, const MouseEvent& event) { move({side, index}, event); };
  boxes.MouseUp = [this, side](int index, const MouseEvent& event) { release({side, index}, event); };
  boxes.Click = [this, side](int index) { choose({side, index}); };
}

void frm_párosító::Load() {
  ablak_méretezés(*this, 0.95);
  ablak_középre(session(), *this);
  label_feladat.BackColor = BackColor;
  szöveg_illesztés(label_feladat, Text(task));
  deal_first([this] { beáll(); });
}

void frm_párosító::feladat_törlés() {
  párosítva_.assign(static_cast<std::size_t>(lbl_feladvány.count()), false);
  for (const Side side : {Side::Pictures, Side::Definitions}) {
    column(side).each([](PictureBox& box) {
      clear_picture(box);
      box.Enabled = true;
      box.Tag = empty_place;
      box.AccessibleName.clear();
    });
  }
  unchoose();
  canvas().clear();
}

void frm_párosító::beáll() {
  deal([this] { new_puzzle(); });
}

void frm_párosító::new_puzzle() {
  feladat_törlés();
  const int rows = lbl_feladvány.count();
  std::vector<Text> texts(static_cast<std::size_t>(rows));
  const auto free_row = [&](const ElementArray<PictureBox>& boxes) {
    return draw_below(
        platform(), rows, [&](int row) { return boxes[row].Tag == empty_place; }, advice);
  };
  for (int i = 0; i < rows; ++i) {
    const int record = szóválasztás();
    const int text_row = free_row(lbl_feladvány);
    texts[static_cast<std::size_t>(text_row)] = képek()[record].meghatározás;
    lbl_feladvány[text_row].Tag = to_text(record);
    lbl_feladvány[text_row].AccessibleName = képek()[record].meghatározás;
    const int picture_row = free_row(pic_feladvány);
    show_record_picture(session(), pic_feladvány[picture_row], record);
    pic_feladvány[picture_row].Tag = to_text(record);
    pic_feladvány[picture_row].AccessibleName = képek()[record].név;
  }
  szöveg_kiírás(texts);
}

int frm_párosító::szóválasztás() {
  return képek().draw(
      platform(),
      [this](int index) {
        bool shown = false;
        const Text tag = to_text(index);
        lbl_feladvány.each([&](const PictureBox& box) { shown = shown || box.Tag == tag; });
        return !shown && !képek()[index].meghatározás.empty();
      },
      advice);
}

void frm_párosító::szöveg_kiírás(std::vector<Text> texts) {
  const cserko::Font& measured = lbl_feladvány[lbl_feladvány.count() - 1].Font;
  const auto width = [&](const Text& text) { return platform().measure(measured, text).width; };
  const auto widest =
      std::max_element(texts.begin(), texts.end(), [&](const Text& a, const Text& b) { return width(a) < width(b); });
  if (widest->empty()) *widest = u"Kéne írni ide valamit!";
  const PictureBox& measuring = lbl_feladvány[static_cast<int>(widest - texts.begin())];
  cserko::Font font = measuring.Font;
  font.name = u"Times New Roman";
  font.size = 8;
  font.size = first_overfilling_size(platform(), font, *widest, {0.9 * measuring.Width, 0.9 * measuring.Height});
  const bool broken = font.size < smallest_line;
  if (broken) {
    double size = largest_broken_size(measuring, *widest);
    for (const Text& text : texts) size = std::min(size, largest_broken_size(measuring, text));
    font.size = std::max(font.size, size);
  }
  lbl_feladvány.each([&](PictureBox& box) {
    const Text& text = texts[static_cast<std::size_t>(box.Index)];
    box.Font = font;
    if (broken) {
      print_broken(box, text);
    } else {
      print_centered(box, text);
    }
  });
}

void frm_párosító::újrakezdés() {
  canvas().clear();
  unchoose();
  for (const Side side : {Side::Pictures, Side::Definitions})
    column(side).each([](PictureBox& box) { box.Enabled = true; });
  párosítva_.assign(párosítva_.size(), false);
}

bool frm_párosító::mind_párosítva() const { return !any_usable(pic_feladvány) || !any_usable(lbl_feladvány); }

// ---- The line ----

void frm_párosító::press(Place place, const MouseEvent& event) {
  if (event.button != MouseButton::Left || !has_puzzle()) return;
  const PictureBox& e = element(place);
  vonal_.assign(1, {rounded(e.Left + event.x), rounded(e.Top + event.y)});
  gesture_.begin({e.Left + event.x, e.Top + event.y});
  for (int i = 0; i < lbl_feladvány.count(); ++i) {
    if (lbl_feladvány[i].Tag != pic_feladvány[place.index].Tag) continue;
    const PictureBox& partner = column(other(place.side))[i];
    cél_bal_ = static_cast<float>(partner.Left - e.Left);
    cél_fent_ = static_cast<float>(partner.Top - e.Top);
    cél_jobb_ = static_cast<float>(partner.Left + partner.Width - e.Left);
    cél_lent_ = static_cast<float>(partner.Top + partner.Height - e.Top);
    return;
  }
}

void frm_párosító::move(Place place, const MouseEvent& event) {
  if (event.button != MouseButton::Left || !has_puzzle() || vonal_.empty()) return;
  const PictureBox& e = element(place);
  const LinePoint from = vonal_.back();
  const LinePoint to{rounded(e.Left + event.x), rounded(e.Top + event.y)};
  vonal_.push_back(to);
  gesture_.follow({e.Left + event.x, e.Top + event.y});
  canvas().line({double(from.x), double(from.y)}, {double(to.x), double(to.y)}, line_color, line_width);
}

void frm_párosító::release(Place place, const MouseEvent& event) {
  const PictureBox& e = element(place);
  const bool click_follows = event.x >= 0 && event.y >= 0 && event.x < e.Width && event.y < e.Height;
  if (!click_follows) gesture_.end();
  if (!has_puzzle()) return;
  const int x = rounded(e.Left + event.x);
  const int y = rounded(e.Top + event.y);
  const ElementArray<PictureBox>& partners = column(other(place.side));
  for (int h = 0; h < partners.count(); ++h) {
    const PictureBox& p = partners[h];
    if (!(x > p.Left && x < p.Left + p.Width && y > p.Top && y < p.Top + p.Height)) continue;
    unchoose();
    if (place.side == Side::Definitions) {
      release_of_definition(place.index, h);
    } else {
      release_of_picture(place.index, h, event);
    }
    leave_dead_focus();
    return;
  }
  wipe_line();
}

// The elements that go dead in the mode of the late check are those with the crossed indices, and not the two that the
// line joins. That is intended.
void frm_párosító::release_of_definition(int definition, int picture) {
  if (!check_at_once()) {
    pic_feladvány[definition].Enabled = false;
    lbl_feladvány[picture].Enabled = false;
  }
  if (lbl_feladvány[definition].Tag != pic_feladvány[picture].Tag) {
    hiba_hang(session());
    if (check_at_once()) return wipe_line();
  } else {
    lbl_feladvány[definition].Enabled = false;
    pic_feladvány[picture].Enabled = false;
    helyes_hang(session());
    párosítva_[static_cast<std::size_t>(picture)] = true;
  }
  line_ended();
}

void frm_párosító::release_of_picture(int picture, int definition, const MouseEvent& event) {
  const bool right = event.x >= cél_bal_ && event.x <= cél_jobb_ && event.y >= cél_fent_ && event.y <= cél_lent_;
  if (!check_at_once() || right) {
    pic_feladvány[picture].Enabled = false;
    lbl_feladvány[definition].Enabled = false;
  }
  if (right) {
    helyes_hang(session());
    párosítva_[static_cast<std::size_t>(picture)] = true;
  } else {
    hiba_hang(session());
    if (check_at_once()) return wipe_line();
  }
  line_ended();
}

// What a line that stays may bring about: the set is solved, or it is full and wrong.
void frm_párosító::line_ended() {
  if (std::find(párosítva_.begin(), párosítva_.end(), false) == párosítva_.end()) {
    platform().redraw(*this);
    platform().show_modal(session().window<frm_gratuláció>());
    beáll();
  }
  if (!mind_párosítva()) return;
  hiba_hang(session());
  újrakezdés();
}

// Other lines lose what they share with it.
void frm_párosító::wipe_line() {
  for (std::size_t i = 1; i < vonal_.size(); ++i) {
    canvas().erase_line({double(vonal_[i - 1].x), double(vonal_[i - 1].y)}, {double(vonal_[i].x), double(vonal_[i].y)},
                        line_width);
  }
}

// ---- Without drawing: one side is chosen, then the other ----

void frm_párosító::choose(Place place) {
  // A line that came back to where it began is no click.
  const bool drawn = gesture_.held() && gesture_.moved();
  gesture_.end();
  if (!has_puzzle() || drawn) return;
  const std::optional<Place> before = chosen_;
  unchoose();
  if (before == place) return;
  if (before && before->side != place.side) return join(*before, place);
  chosen_ = place;
  element(place).Selected = true;
  element(place).BackColor = chosen_color;
}

void frm_párosító::unchoose() {
  chosen_.reset();
  for (const Side side : {Side::Pictures, Side::Definitions}) {
    column(side).each([this](PictureBox& box) {
      box.Selected = false;
      box.BackColor = BackColor;
    });
  }
}

// A straight line by the same steps as a drawn one. It is made of short pieces, as a drawn one is: what is wiped costs
// the area around each piece.
void frm_párosító::join(Place from, Place to) {
  constexpr int pieces = 16;
  const PictureBox& e = element(from);
  const Point start{e.Width / 2, e.Height / 2};
  const Point middle = middle_of(element(to));
  const Point end{middle.x - e.Left, middle.y - e.Top};
  const auto at = [&](int piece) {
    const double share = static_cast<double>(piece) / pieces;
    return MouseEvent{MouseButton::Left, shift::none, start.x + (end.x - start.x) * share,
                      start.y + (end.y - start.y) * share};
  };
  press(from, at(0));
  for (int piece = 1; piece <= pieces; ++piece) move(from, at(piece));
  release(from, at(pieces));
}

// The keys go on from a picture that can still be joined.
void frm_párosító::leave_dead_focus() {
  if (focus() == nullptr || focus()->usable()) return;
  for (const Side side : {Side::Pictures, Side::Definitions}) {
    for (int i = 0; i < column(side).count(); ++i) {
      if (!column(side)[i].Enabled) continue;
      set_focus(&column(side)[i]);
      return;
    }
  }
}

} // namespace cserko
