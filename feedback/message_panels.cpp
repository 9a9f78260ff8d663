#include "feedback/message_panels.h"

#include "core/frame.h"

#include <algorithm>
#include <initializer_list>
#include <limits>

namespace cserko {

namespace {

constexpr double space_above_button = 60;
constexpr double side_margins = 240;

// Scaling leaves a margin on the left that grows with the window, and a fixed one on the right.
void put_in_middle(std::initializer_list<Element*> elements) {
  for (Element* element : elements) element->Left = (element->window().inner_width() - element->Width) / 2;
}

void show_hint_panel(Session& session, TextView word, const std::function<void(PictureBox&)>& show_picture) {
  auto& panel = session.window<üzenet>();
  show_picture(panel.üzenet_kép);
  panel.üzenet_szöveg.Caption = word;
  session.platform().show_modal(panel);
}

} // namespace

szövegüzenet::szövegüzenet(Session& session)
    : Window(session.platform(), u"szövegüzenet", {7680, 4380}, u"Cserkó Üzenet"), session_(session) {
  szöveg.Change = [this] { fit_text(); };
  szöveg.Click = [this] { fit_text(); };
  KeyPause = message_key_pause;
  Command1.Default = true;
  Command1.Cancel = true;
  Command1.Click = [this] { session_.unload(*this); };
}

void szövegüzenet::Load() {
  ablak_méretezés(*this, 0.6);
  put_in_middle({&szöveg, &Command1});
  ablak_középre(session_, *this);
  gombok_illesztése(*this);
  text_width_ = szöveg.Width;
}

void szövegüzenet::fit_text() {
  const auto take_size = [this](double points) {
    szöveg.Font.size = points;
    const Size extent = platform().measure_wrapped(szöveg.Font, szöveg.Caption, text_width_);
    szöveg.Width = std::max(text_width_, extent.width);
    szöveg.Height = extent.height;
    szöveg.Left = (inner_width() - szöveg.Width) / 2;
  };
  const double space = Command1.Top - szöveg.Top - space_above_button;
  const double widest = inner_width() - side_margins;
  double points = 8;
  for (take_size(points); szöveg.Height < space && szöveg.Width <= widest; take_size(points)) ++points;
  // The last step was one too many: the text ends just inside the space.
  take_size(points - 1);
}

üzenet::üzenet(Session& session)
    : Window(session.platform(), u"üzenet", {7680, 6000}, u"Cserkó Üzenet"), session_(session) {
  üzenet_kép.TabStop = false;
  KeyPause = message_key_pause;
  Command1.Default = true;
  Command1.Cancel = true;
  Command1.Click = [this] { session_.unload(*this); };
}

void üzenet::Load() {
  ablak_méretezés(*this, 0.7);
  put_in_middle({&üzenet_kép, &üzenet_szöveg, &Command1});
  ablak_középre(session_, *this);
  gombok_illesztése(*this);
}

void üzenet::Activate() { szöveg_illesztés(üzenet_szöveg); }

frm_szövegüzenet::frm_szövegüzenet(Session& session)
    : Window(session.platform(), u"frm_szövegüzenet", {7680, 4380}, u"Üzenet"), session_(session) {
  pic_üzenet.TabStop = false;
  KeyPause = message_key_pause;
  cmd_ok.Default = true;
  cmd_ok.Cancel = true;
  cmd_ok.Click = [this] { session_.unload(*this); };
  timer_bezár.Tick = [this] { cmd_ok.Click(); };
}

void frm_szövegüzenet::Load() {
  ablak_méretezés(*this, 0.6);
  put_in_middle({&pic_üzenet, &cmd_ok});
  ablak_középre(session_, *this);
  pic_üzenet.BackColor = BackColor;
  szöveg_illesztés(cmd_ok, u"Ok");
}

frm_üzenet::frm_üzenet(Session& session)
    : Window(session.platform(), u"frm_üzenet", {7680, 6960}, u"Üzenet"), session_(session) {
  kép.TabStop = false;
  KeyPause = message_key_pause;
  cmd_ok.Default = true;
  cmd_ok.Cancel = true;
  cmd_ok.Click = [this] { session_.unload(*this); };
}

void frm_üzenet::Load() {
  ablak_méretezés(*this, 0.9);
  put_in_middle({&kép, &név, &cmd_ok});
  szöveg_illesztés(cmd_ok);
  ablak_középre(session_, *this);
}

void szöveges_üzenet(Session& session, Text text, int tenths) {
  auto& panel = session.window<frm_szövegüzenet>();
  szöveg_illesztés(panel.pic_üzenet, text);
  const int interval = tenths * 100;
  if (interval < 0 || interval > std::numeric_limits<std::int16_t>::max())
    throw InvalidValue("message panel: the time is outside 0 to 327 tenths of a second");
  panel.timer_bezár.Interval = interval;
  session.platform().show_modal(panel);
}

void show_hint(Session& session, int record, TextView word) {
  show_hint_panel(session, word, [&](PictureBox& box) { show_record_picture(session, box, record); });
}

void show_hint(Session& session, const PictureBox& shown, TextView word) {
  show_hint_panel(session, word, [&](PictureBox& box) { show_picture_of(box, shown, word); });
}

} // namespace cserko
