// A suite with three tunes and a playlist that the test writes down.
#pragma once

#include "core/frm_referencia.h"
#include "feedback/frm_zenebeáll.h"
#include "feedback/sounds.h"
#include "tests/suite/suite_fixture.h"

namespace cserko {

class MusicTest : public SuiteTest {
 protected:
  MusicTest() {
    for (const TextView name : {u"a.mid", u"b.mid", u"c.mid"}) put_app_file(u"dysmid\\" + Text(name));
    start();
  }

  /// Loads the dialog with music allowed and those titles, and starts the player as the program does.
  frm_zenebeáll& player(std::initializer_list<TextView> titles) {
    auto& dialog = load<frm_zenebeáll>();
    dialog.chk_zene_enged.set_value(1);
    dialog.list_playlist.Items.assign(titles.begin(), titles.end());
    load<frm_referencia>().Timer_zene.Enabled = true;
    return dialog;
  }
  void tick(int times = 1) { machine.advance(1000 * times); }

  /// What is sent to start a title while none is open.
  static std::string start_of(const std::string& name) {
    return "open \"c:\\cserko\\dysmid\\" + name + "\" type sequencer alias midi\nplay midi \n";
  }
  static constexpr const char* ask = "Status midi mode\n";

  /// The names of all titles that sounded so far, in order.
  std::string played() {
    std::string names;
    for (const Text& path : machine.media().played) names += utf8(path.substr(path.rfind(u'\\') + 1)) + " ";
    return names;
  }
  void all_titles_last(int ms) { machine.media().music_length = ms; }
  MediaMode music() { return machine.media().mode(MediaAlias::Midi); }

  /// The playlist in one line.
  static std::string titles(const frm_zenebeáll& dialog) {
    std::string line;
    for (const Text& name : dialog.list_playlist.Items) line += utf8(name) + " ";
    return line;
  }
};

} // namespace cserko
