// The four panels in which the suite speaks to the child: two with text alone, two with a picture as well.
#pragma once

#include "core/session.h"

namespace cserko {

/// What a panel with a message gives its reader: a child that hammers on the space bar, or holds it down from the
/// exercise on, has to let it be for so long before it presses the button of the panel. The mouse is heard at once.
inline constexpr int message_key_pause = 700; // ms

/// A text with a button. Set the text with `szöveg.set_caption` before showing it: the text is fitted at once.
class szövegüzenet : public Window {
 public:
  explicit szövegüzenet(Session& session);

  Label szöveg{*this, u"szöveg", {240, 240, 7200, 3000}};
  Button Command1{*this, u"Command1", {2700, 3480, 2280, 780}, u"OK"};

  void Load() override;

 private:
  void fit_text();

  Session& session_;
  double text_width_ = 0;
};

/// A picture and a text, which is fitted when the panel comes up.
class üzenet : public Window {
 public:
  explicit üzenet(Session& session);

  PictureBox üzenet_kép{*this, u"üzenet_kép", {1920, 240, 3840, 3840}};
  Label üzenet_szöveg{*this, u"üzenet_szöveg", {240, 4200, 7200, 780}};
  Button Command1{*this, u"Command1", {2700, 5100, 2280, 780}, u"OK"};

  void Load() override;
  void Activate() override;

 private:
  Session& session_;
};

/// A text, printed as large as fits, with a button; closes by itself where `timer_bezár` has an interval.
class frm_szövegüzenet : public Window {
 public:
  explicit frm_szövegüzenet(Session& session);

  PictureBox pic_üzenet{*this, u"pic_üzenet", {240, 240, 7200, 3000}};
  Button cmd_ok{*this, u"cmd_ok", {2700, 3480, 2280, 780}, u"Ok"};
  Timer timer_bezár{*this, u"timer_bezár", 0};

  void Load() override;

 private:
  Session& session_;
};

/// A picture with its name.
class frm_üzenet : public Window {
 public:
  explicit frm_üzenet(Session& session);

  PictureBox kép{*this, u"kép", {1440, 240, 4800, 4800}};
  Label név{*this, u"név", {240, 5160, 7200, 780}};
  Button cmd_ok{*this, u"cmd_ok", {2700, 6060, 2280, 780}, u"OK"};

  void Load() override;

 private:
  Session& session_;
};

/// Shows a text until its button is pressed or the time is over: `tenths` of a second, 0 for no end, at most 327.
/// Throws InvalidValue for a longer time.
void szöveges_üzenet(Session& session, Text text, int tenths);

/// Shows a picture with its word in the panel `üzenet`, modally: what a child gets that asks what a picture is. The
/// picture is that of a record, or the one that a box shows.
void show_hint(Session& session, int record, TextView word);
void show_hint(Session& session, const PictureBox& shown, TextView word);

} // namespace cserko
