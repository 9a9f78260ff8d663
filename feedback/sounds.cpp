#include "feedback/sounds.h"

#include "core/numbers.h"
#include "feedback/frm_hangbeáll.h"

namespace cserko {

namespace {

Text quoted(const Text& path) { return u"\"" + path + u"\""; }

// A random entry of a list. With an empty list the name is empty and the folder fails to open, silently.
void play_random_entry(Session& session, const ListBox& list) {
  const auto index = static_cast<std::size_t>(random_below(session.platform(), list.count()));
  const Text name = list.Items.empty() ? Text() : list.Items[index];
  // The doubled backslash is harmless to the file system.
  hang_lejátszás(session, session.alapkönyvtár + u"\\hangok\\" + name);
}

void send_and_tell_failure(Session& session, const Text& command) {
  Media& media = session.platform().media();
  if (const MediaResult result = media.send(command); result.code != 0)
    session.platform().message_box(media.error_text(result.code));
}

} // namespace

void hang_lejátszás(Session& session, Text& text) {
  Media& media = session.platform().media();
  if (session.hangállapot.hang) media.send(u"close hang");
  session.hangállapot.hang = true;
  if (text.empty()) {
    session.hangállapot.hang = false;
    return;
  }
  if (text == u"*") text = session.alapkönyvtár + u"null.wav";
  media.send(u"open " + quoted(text) + u" type waveaudio alias hang");
  media.send(u"play hang ");
}

void hang_lejátszás(Session& session, Text&& text) { hang_lejátszás(session, text); }

void helyes_hang(Session& session) {
  session.platform().seed_random();
  auto& settings = session.window<frm_hangbeáll>();
  if (settings.chk_hang_a_feladatokban_helyes.ticked()) play_random_entry(session, settings.lst_helyeshang);
}

void hiba_hang(Session& session) {
  session.platform().seed_random();
  auto& settings = session.window<frm_hangbeáll>();
  if (settings.chk_hang_a_feladatokban_hiba.ticked()) {
    play_random_entry(session, settings.Lst_hibahang);
  } else {
    session.platform().media().beep();
  }
}

bool answer_sound(Session& session, bool right) {
  if (right) {
    helyes_hang(session);
  } else {
    hiba_hang(session);
  }
  return right;
}

void segítség_hang(Session& session) {
  if (session.window<frm_hangbeáll>().chk_hangjelzés_segítségkérés.ticked())
    hang_lejátszás(session, session.alapkönyvtár + u"cserko\\alarm.wav");
}

void dicséret_hang(Session& session) { play_random_entry(session, session.window<frm_hangbeáll>().lst_gratulahang); }

void zene_lejátszás(Session& session, const Text& text) {
  Media& media = session.platform().media();
  if (session.hangállapot.midi) {
    media.send(u"close midi");
    session.zene_nyitva = false;
  }
  session.hangállapot.midi = true;
  if (text.empty()) {
    session.hangállapot.midi = false;
    return;
  }
  media.send(u"open " + quoted(text) + u" type sequencer alias midi");
  media.send(u"play midi ");
  session.zene_nyitva = true;
}

Text zene_állapot(Session& session) { return session.platform().media().send(u"Status midi mode").reply; }

void zene_szünet(Session& session) {
  if (!session.zene_nyitva) return;
  const Text state = zene_állapot(session);
  if (state.starts_with(u"playing")) {
    send_and_tell_failure(session, u"pause midi");
  } else if (state.starts_with(u"paused")) {
    send_and_tell_failure(session, u"play midi");
  }
}

} // namespace cserko
