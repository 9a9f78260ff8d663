#include "exercises/shared/frm_irányválasztó.h"

#include "core/arrow_focus.h"
#include "core/draw.h"
#include "core/frame.h"
#include "core/numbers.h"
#include "core/settings.h"

#include <algorithm>
#include <limits>

namespace cserko {

namespace {

constexpr int arms = 4;
constexpr int positions = 3;             // of the cross, across and down
constexpr double gap = 60;               // twips around the arms
constexpr double filled = 0.9;           // of an arm's width, by the longer word
constexpr double smallest_font = 6;      // points, where the growth begins
constexpr double smallest_readable = 12; // points, however narrow the user makes the panel
constexpr double touch_height = 660;     // twips, what a finger hits
constexpr double highest_at_first = 0.2; // of the screen: more would hide the task under it
constexpr double factor = 0.1;

Text place_file() { return Text(fixed_root) + u"irány.ini"; }

} // namespace

frm_irányválasztó::frm_irányválasztó(Session& session)
    : Window(session.platform(), u"frm_irányválasztó", {5460, 2220}, u"Irányválasztó"), session_(session) {
  Border = WindowBorder::Sizable;
  KeyPreview = true;
  Label& first = cmd_iránygomb[0];
  first.Choosable = true;
  first.Opaque = true;
  first.Border = true;
  first.WordWrap = false;
  cmd_iránygomb.design_places({{1860, 60}, {60, 780}, {1860, 1500}, {3660, 780}});
  cmd_iránygomb.Click = [this](int arm) {
    Tag = cmd_iránygomb[arm].Caption;
    clear_arms();
    platform().hide(*this);
  };
}

void frm_irányválasztó::Load() {
  ablak_méretezés(*this, factor);
  ablak_középre(session_, *this);
  first_size();
  Top = 0;
  if (const auto bytes = platform().files().read(place_file())) SettingsFields({WindowPlace{this}}).read(*bytes);
  lay_out();
  clear_arms();
}

double frm_irányválasztó::arm_height(double font_size) const {
  cserko::Font font = cmd_iránygomb[0].Font;
  font.size = font_size;
  return 1.1 * platform().measure(font, jobbra).height;
}

// The inner width at which the words come to that size.
double frm_irányválasztó::width_for(double font_size) const {
  cserko::Font font = cmd_iránygomb[0].Font;
  font.size = font_size;
  return positions * platform().measure(font, jobbra).width / filled + (positions + 1) * gap;
}

// A tenth of the screen is too little for a finger and, on a low one, for the eye.
void frm_irányválasztó::first_size() {
  const double room =
      highest_at_first * platform().screen_size().height - platform().chrome(*this).height - (positions + 1) * gap;
  const double wanted = std::min(touch_height, room / positions);
  double size = smallest_readable;
  while (arm_height(size) < wanted) size += 1;
  const double width = std::max(inner_width(), width_for(size));
  Left -= (width - inner_width()) / 2;
  set_inner_size({width, inner_height()});
}

void frm_irányválasztó::lay_out() {
  const double inner = std::max(inner_width(), width_for(smallest_readable));
  const double width = (inner - (positions + 1) * gap) / positions;
  cserko::Font font = cmd_iránygomb[0].Font;
  font.size = smallest_font;
  constexpr double any_height = std::numeric_limits<double>::infinity();
  font.size = first_overfilling_size(platform(), font, jobbra, {filled * width, any_height});
  const double height = arm_height(font.size);
  const auto put = [&](int arm, int column, int row) {
    Label& label = cmd_iránygomb[arm];
    label.Font = font;
    label.Width = width;
    label.Height = height;
    label.move_to(gap + column * (width + gap), gap + row * (height + gap));
  };
  put(0, 1, 0);
  put(1, 0, 1);
  put(2, 1, 2);
  put(3, 2, 1);
  set_inner_size({inner, cmd_iránygomb[2].Top + height + gap});
}

// A window that comes up may be seen before it is active: no old words then.
void frm_irányválasztó::clear_arms() {
  cmd_iránygomb.each([](Label& arm) {
    arm.Visible = false;
    arm.Caption.clear();
  });
}

void frm_irányválasztó::Activate() {
  clear_arms();
  const int right = random_below(platform(), arms);
  put_word(right, jobbra);
  const int left = draw_below(platform(), arms, [right](int arm) { return arm != right; }, {});
  put_word(left, balra);
  Tag = vége;
  set_focus(&cmd_iránygomb[std::min(left, right)]);
  platform().redraw(*this);
}

void frm_irányválasztó::put_word(int arm, TextView word) {
  cmd_iránygomb[arm].Caption = word;
  cmd_iránygomb[arm].Visible = true;
}

void frm_irányválasztó::KeyDown(KeyEvent& event) {
  if (event.code == key::escape) {
    event.code = 0;
    session_.unload(*this);
    return;
  }
  move_focus_by_arrow(*this, event);
}

void frm_irányválasztó::Resize() { lay_out(); }

void frm_irányválasztó::Unload() {
  write_settings(platform(), place_file(), SettingsFields({WindowPlace{this}}).written());
}

Text irány_kérdés(Session& session) {
  auto& panel = session.window<frm_irányválasztó>();
  panel.Tag = frm_irányválasztó::vége;
  session.platform().show_modal(panel);
  return panel.Tag;
}

} // namespace cserko
